// The layer dialog: writes a class with a place, and a layer of that class around the selection.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>

namespace Ui {
class frmDHTML;
}

/// Both of its actions leave it open.
class frmDHTML final : public TagDialog {
    Q_OBJECT

  public:
    explicit frmDHTML(Frame& frame);
    ~frmDHTML() override;

  private:
    /// txtOK is this form's OK, txtCancel its Cancel.
    void cmdOK_Click() override;
    void Command1_Click();
    /// Enter presses the button of the frame that is worked in.
    void FocusMoved(const QWidget* now);

    std::unique_ptr<Ui::frmDHTML> ui_;
};
