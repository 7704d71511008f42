// The JAVA Applet dialog.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmJava;
}

class frmJava final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmJava(Frame& frame);
    ~frmJava() override;

  private:
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmJava> ui_;
};
