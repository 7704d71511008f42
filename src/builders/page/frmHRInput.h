// The Horizontal Rule dialog.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmHRInput;
}

class frmHRInput final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmHRInput(Frame& frame);
    ~frmHRInput() override;

  private:
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmHRInput> ui_;
};
