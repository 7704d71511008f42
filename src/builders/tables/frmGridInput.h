// The Table Input dialog: one cell of the Table dialog's grid.
#pragma once

#include "dialogs/TagDialog.h"

#include <memory>
#include <optional>

namespace Ui {
class frmGridInput;
}

class CurrentCell;

/// Comes up with the text of the cell that is current then, and with nothing else of it. OK writes to the
/// cell that is current by then. It goes with the Table dialog.
class frmGridInput final : public TagDialog {
    Q_OBJECT

  public:
    /// Owned by the Table dialog, whose current cell it edits.
    frmGridInput(Frame& frame, QWidget& table, CurrentCell& cell);
    ~frmGridInput() override;

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void FillLists();
    void Label2_DblClick();
    /// Shows the pictures of the disk to pick one from.
    void cmdGetFile_Click();
    void TakePicture();
    void cmdOK_Click() override;

    std::unique_ptr<Ui::frmGridInput> ui_;
    QWidget& table_;
    CurrentCell& cell_;
    /// The Tag of Label2, once a colour was picked.
    std::optional<QString> color_;
};
