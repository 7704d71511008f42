// The MultiColumn dialog: lays the selection out in columns.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmMulti;
}

class frmMulti final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmMulti(Frame& frame);
    ~frmMulti() override;

  private:
    /// Command1 is this form's OK, Command2 its Cancel.
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmMulti> ui_;
};
