// The Table dialog and its cell dialog, used as a person does.
#pragma once

#include "builders/DialogTest.h"
#include "builders/tables/frmGridInput.h"
#include "builders/tables/frmTable.h"
#include "builders/tables/Grid.h"
#include "dialogs/TagRows.h"

class TableTest : public DialogTest {
  protected:
    QWidget& ShowTable() { return Open(T(u"tb_table"), T(u"frmTable")); }
    /// Makes the Table dialog the one that the calls work on again.
    void BackToTable() { form = frame.LoadedForms().Find<frmTable>(); }
    Grid& Grid1() { return *frame.LoadedForms().Find<frmTable>()->findChild<Grid*>(T(u"Grid1")); }
    void Size(const char16_t* rows, const char16_t* columns) {
        Fill(T(u"txtRows"), T(rows));
        Fill(T(u"txtCols"), T(columns));
    }
    /// Clicks a cell: the cell dialog comes up.
    void OpenCell(int row, int col) {
        const QPoint at = Grid1().visualRect(Grid1().model()->index(row, col)).center();
        QTest::mouseClick(Grid1().viewport(), Qt::LeftButton, {}, at);
        form = frame.LoadedForms().Find<frmGridInput>();
        ASSERT_TRUE(form && form->isVisible());
    }
    void TypeCell(int row, int col, const char16_t* text) {
        OpenCell(row, col);
        Fill(T(u"txtGridInput"), T(text));
        Press(T(u"cmdOK"));
        BackToTable();
    }
    /// The grid as it is seen: "," between cells, ";" between rows.
    QString Seen() {
        QStringList rows;
        for (int row = 0; row < Grid1().Rows(); ++row) {
            QStringList cells;
            for (int col = 0; col < Grid1().Cols(); ++col)
                cells << Grid1().Cells().At(row, col);
            rows << cells.join(u',');
        }
        return rows.join(u';');
    }
};
