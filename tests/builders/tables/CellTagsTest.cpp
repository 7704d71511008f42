#include "builders/tables/CellTags.h"

#include "dialogs/TagRows.h"

namespace {

QString Row(const CellTags& cells, int row, int columns) {
    QString text;
    cells.AppendRow(row, columns, text);
    return text;
}

TEST(CellTags, HaveOneSpareColumnAndRow) {
    CellTags cells(2, 3);
    EXPECT_TRUE(cells.Set(0, 0, T(u"a")));
    EXPECT_TRUE(cells.Set(2, 3, T(u"spare")));
    EXPECT_EQ(cells.At(2, 3), T(u"spare"));
    EXPECT_FALSE(cells.Set(3, 0, T(u"x")));
    EXPECT_FALSE(cells.Set(0, 4, T(u"x")));
    EXPECT_FALSE(cells.Set(-1, 0, T(u"x")));
    EXPECT_FALSE(cells.Set(0, -1, T(u"x")));
    EXPECT_EQ(cells.EditedCount(), 2U);
    EXPECT_EQ(cells.At(3, 0), QString());
}

TEST(CellTags, LoseTheirTextsWithEverySize) {
    CellTags cells(2, 2);
    cells.Set(1, 1, T(u"a"));
    cells.ReDim(2, 2);
    EXPECT_EQ(cells.EditedCount(), 0U);
    EXPECT_TRUE(cells.Set(1, 1, T(u"a")));
    cells.Erase();
    EXPECT_EQ(cells.At(1, 1), QString());
    EXPECT_FALSE(cells.Set(0, 0, T(u"a")));
}

TEST(CellTags, StandInARowFromLeftToRight) {
    CellTags cells(3, 3);
    cells.Set(2, 1, T(u"c"));
    cells.Set(0, 1, T(u"a"));
    cells.Set(3, 1, T(u"spare"));
    cells.Set(0, 2, T(u"below"));
    EXPECT_EQ(Row(cells, 0, 3), QString());
    EXPECT_EQ(Row(cells, 1, 3), T(u"ac"));
    EXPECT_EQ(Row(cells, 1, 2), T(u"a"));
    EXPECT_EQ(Row(cells, 1, 0), QString());
    EXPECT_EQ(Row(cells, 1, 9), T(u"acspare"));
    EXPECT_EQ(Row(cells, 2, 3), T(u"below"));
    EXPECT_EQ(Row(cells, 7, 3), QString());
}

TEST(CellTags, CostNothingBeforeTheyAreEdited) {
    CellTags cells(32767, 32767);
    EXPECT_EQ(cells.EditedCount(), 0U);
    EXPECT_TRUE(cells.Set(32767, 32767, T(u"a")));
    EXPECT_EQ(cells.EditedCount(), 1U);
}

} // namespace
