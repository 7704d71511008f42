// The Table dialog: lays a table out on a grid, whose cells are edited one at a time.
#pragma once

#include "builders/tables/CellTags.h"
#include "builders/tables/CurrentCell.h"
#include "dialogs/TagDialog.h"

#include <memory>

class QComboBox;

namespace Ui {
class frmTable;
}

struct TableFields;

/// The table that is written is made of the cells that were edited since its size was last set. The grid goes
/// on showing the texts of the others.
class frmTable final : public TagDialog, public CurrentCell {
    Q_OBJECT

  public:
    explicit frmTable(Frame& frame);
    ~frmTable() override;

    /// Cancel.
    void reject() override;

    /// The text of the grid's current row, each of its cells in plain tags. The current column is the last
    /// one afterwards.
    QString TableFill();
    QString CellText() const override;
    void SetCell(const QString& tag, const QString& text) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void FillLists();
    void WireSizes();
    void txtRows_Change();
    void txtRows_LostFocus();
    void txtCols_Change();
    void hsbWidth_Change();
    void Grid1_Click();
    void cmdImport_Click();
    void cmdPreview_Click();
    void cmdOK_Click() override;

    void SizeRows();
    void SizeCols();
    /// What was edited is lost. Where a size is none, nothing is done.
    void SizeCellTags();
    void ImportSelection();
    TableFields Fields() const;
    void DeleteTestFile();

    std::unique_ptr<Ui::frmTable> ui_;
    CellTags cellTags_;
    /// Where the table was previewed last; empty before that.
    QString testFilePath_;
};
