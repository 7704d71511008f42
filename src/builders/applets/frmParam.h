// The JAVA Parameters dialog: writes one parameter after the other and stays open.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmParam;
}

class frmParam final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmParam(Frame& frame);
    ~frmParam() override;

  private:
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmParam> ui_;
};
