#include "builders/tables/GridCells.h"

#include "dialogs/TagRows.h"
#include <QStringList>

namespace {

TEST(GridCells, HoldTextsAtTheCurrentCell) {
    GridCells grid(2, 3);
    EXPECT_EQ(grid.Text(), QString());
    EXPECT_TRUE(grid.SetRow(1));
    EXPECT_TRUE(grid.SetCol(2));
    EXPECT_TRUE(grid.SetText(T(u"a")));
    EXPECT_EQ(grid.At(1, 2), T(u"a"));
    EXPECT_EQ(grid.Text(), T(u"a"));
    EXPECT_EQ(grid.At(0, 0), QString());
    EXPECT_TRUE(grid.SetText(QString()));
    EXPECT_EQ(grid.At(1, 2), QString());
}

TEST(GridCells, TakeNoCellThatIsNotThere) {
    GridCells grid(2, 3);
    EXPECT_FALSE(grid.SetRow(2));
    EXPECT_FALSE(grid.SetRow(-1));
    EXPECT_FALSE(grid.SetCol(3));
    EXPECT_FALSE(grid.SetCol(-1));
    EXPECT_FALSE(grid.SetRows(-1));
    EXPECT_FALSE(grid.SetCols(-1));
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Cols(), 3);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.Col(), 0);
}

TEST(GridCells, LoseWhatASmallerSizeCutsOff) {
    GridCells grid(3, 3);
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col) {
            grid.SetRow(row);
            grid.SetCol(col);
            grid.SetText(QString::number(row * 3 + col));
        }
    }
    EXPECT_TRUE(grid.SetRows(2));
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_TRUE(grid.SetCols(1));
    EXPECT_EQ(grid.Col(), 0);
    EXPECT_TRUE(grid.SetRows(3));
    EXPECT_TRUE(grid.SetCols(3));
    QStringList texts;
    for (int row = 0; row < 3; ++row)
        for (int col = 0; col < 3; ++col)
            texts << grid.At(row, col);
    EXPECT_EQ(texts.join(u','), T(u"0,,,3,,,,,"));
}

TEST(GridCells, MayBeNone) {
    GridCells grid(2, 2);
    EXPECT_TRUE(grid.SetCols(0));
    EXPECT_FALSE(grid.SetText(T(u"a")));
    EXPECT_FALSE(grid.SetCol(0));
    EXPECT_TRUE(grid.SetCols(1));
    EXPECT_TRUE(grid.SetRows(0));
    EXPECT_FALSE(grid.SetText(T(u"a")));
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.Col(), 0);
    EXPECT_EQ(grid.Text(), QString());
}

} // namespace
