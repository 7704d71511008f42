#include "builders/tables/Grid.h"

#include "dialogs/TagRows.h"
#include <QImage>
#include <QSignalSpy>
#include <QTest>

namespace {

/// What a person sees of the grid: the view's own current cell and the texts that its model shows.
class GridTest : public testing::Test {
  protected:
    QPoint Current() const { return {grid.currentIndex().column(), grid.currentIndex().row()}; }
    QPoint Told() const { return {grid.Col(), grid.Row()}; }
    QString Seen(int row, int col) const {
        return grid.model()->index(row, col).data(Qt::DisplayRole).toString();
    }
    QPoint CenterOf(int row, int col) const {
        return grid.visualRect(grid.model()->index(row, col)).center();
    }
    void ExpectSize(int rows, int cols) const {
        EXPECT_EQ(grid.Rows(), rows);
        EXPECT_EQ(grid.model()->rowCount(), rows);
        EXPECT_EQ(grid.Cols(), cols);
        EXPECT_EQ(grid.model()->columnCount(), cols);
    }
    Grid grid;
};

TEST_F(GridTest, StartsWithTwoByTwoEmptyCells) {
    ExpectSize(2, 2);
    EXPECT_EQ(Told(), QPoint(0, 0));
    EXPECT_EQ(Current(), QPoint(0, 0));
    EXPECT_EQ(grid.Text(), QString());
    EXPECT_EQ(grid.ColWidth(0), 960);
}

TEST_F(GridTest, ShowsTheTextOfTheCurrentCellAlone) {
    EXPECT_TRUE(grid.SetRow(1));
    EXPECT_TRUE(grid.SetCol(1));
    EXPECT_EQ(Current(), QPoint(1, 1));
    EXPECT_TRUE(grid.SetText(T(u"a")));
    EXPECT_EQ(Seen(1, 1), T(u"a"));
    EXPECT_EQ(Seen(0, 0), QString());
    EXPECT_FALSE(grid.SetRow(2));
    EXPECT_FALSE(grid.SetCol(-1));
    EXPECT_EQ(Current(), QPoint(1, 1));
}

TEST_F(GridTest, KeepsAColumnsWidthWhileOtherColumnsComeAndGo) {
    EXPECT_TRUE(grid.SetColWidth(1, 3000));
    EXPECT_EQ(grid.ColWidth(1), 3000);
    EXPECT_TRUE(grid.SetCols(5));
    EXPECT_EQ(grid.ColWidth(1), 3000);
    EXPECT_EQ(grid.ColWidth(4), 960);
    EXPECT_FALSE(grid.SetColWidth(5, 3000));
    EXPECT_FALSE(grid.SetColWidth(-1, 3000));
    EXPECT_TRUE(grid.SetColWidth(4, 600));
    EXPECT_EQ(grid.ColWidth(4), 600);
    grid.Take(GridCells(3, 2));
    EXPECT_EQ(grid.ColWidth(1), 3000);
}

TEST_F(GridTest, MovesTheCurrentCellIntoASmallerSize) {
    grid.SetRows(9);
    grid.SetRow(8);
    grid.SetCol(1);
    EXPECT_TRUE(grid.SetRows(3));
    EXPECT_EQ(Told(), QPoint(1, 2));
    EXPECT_EQ(Current(), QPoint(1, 2));
    EXPECT_TRUE(grid.SetCols(1));
    EXPECT_EQ(Told(), QPoint(0, 2));
    EXPECT_EQ(Current(), QPoint(0, 2));
    EXPECT_FALSE(grid.SetRows(-1));
    ExpectSize(3, 1);
}

TEST_F(GridTest, MayHaveNoCells) {
    EXPECT_TRUE(grid.SetCols(0));
    ExpectSize(2, 0);
    EXPECT_FALSE(grid.currentIndex().isValid());
    EXPECT_FALSE(grid.SetText(T(u"a")));
    EXPECT_EQ(grid.ColWidth(0), 0);
    EXPECT_TRUE(grid.SetCols(2));
    EXPECT_EQ(Current(), QPoint(0, 0));
}

TEST_F(GridTest, TakesAnotherContent) {
    GridCells cells(3, 4);
    cells.SetRow(2);
    cells.SetCol(3);
    cells.SetText(T(u"last"));
    grid.Take(cells);
    ExpectSize(3, 4);
    EXPECT_EQ(Current(), QPoint(3, 2));
    EXPECT_EQ(Seen(2, 3), T(u"last"));
}

TEST_F(GridTest, HoldsThousandsOfRowsAndColumns) {
    EXPECT_TRUE(grid.SetRows(32767));
    EXPECT_TRUE(grid.SetCols(32767));
    EXPECT_TRUE(grid.SetRow(32766));
    EXPECT_TRUE(grid.SetCol(32766));
    EXPECT_TRUE(grid.SetText(T(u"a")));
    EXPECT_EQ(Seen(32766, 32766), T(u"a"));
    grid.resize(400, 300);
    grid.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid));
    EXPECT_TRUE(grid.SetRows(1));
    EXPECT_TRUE(grid.SetCols(1));
}

TEST_F(GridTest, AClickComesFromTheLeftButtonOnItsCell) {
    grid.resize(400, 300);
    grid.show();
    QSignalSpy clicks(&grid, &Grid::Click);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, CenterOf(1, 1));
    EXPECT_EQ(clicks.size(), 1);
    EXPECT_EQ(Told(), QPoint(1, 1));
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, CenterOf(0, 0));
    EXPECT_EQ(clicks.size(), 1);
    // Beside the cells it is a click all the same, on the cell that is current.
    grid.SetCol(1);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, QPoint(390, 290));
    EXPECT_EQ(clicks.size(), 2);
    EXPECT_EQ(Told(), QPoint(1, 0));
    // Not where the button goes up elsewhere.
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, CenterOf(0, 0));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_EQ(clicks.size(), 2);
}

// The lines are what shows an empty cell, on a dark ground too.
TEST_F(GridTest, ItsEmptyCellsAreSeen) {
    for (const auto& [ground, text] : {std::pair(Qt::white, Qt::black), std::pair(Qt::black, Qt::white)}) {
        QPalette palette;
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::PlaceholderText, text);
        grid.setPalette(palette);
        grid.resize(400, 300);
        const QImage seen = grid.viewport()->grab().toImage();
        const QRect cell = grid.visualRect(grid.model()->index(1, 1));
        EXPECT_EQ(seen.pixelColor(cell.center()), QColor(ground));
        EXPECT_EQ(seen.pixelColor(cell.right(), cell.center().y()), QColor(text));
        EXPECT_EQ(seen.pixelColor(cell.center().x(), cell.bottom()), QColor(text));
    }
}

TEST_F(GridTest, WorksByKeys) {
    grid.show();
    QSignalSpy clicks(&grid, &Grid::Click);
    QTest::keyClick(&grid, Qt::Key_Right);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(Told(), QPoint(1, 1));
    EXPECT_TRUE(clicks.isEmpty());
    int expected = 0;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_F2}) {
        QTest::keyClick(&grid, key);
        EXPECT_EQ(clicks.size(), ++expected);
    }
    // A letter goes nowhere.
    grid.SetRow(0);
    grid.SetText(T(u"x"));
    grid.SetRow(1);
    QTest::keyClick(&grid, Qt::Key_X);
    EXPECT_EQ(Told(), QPoint(1, 1));
}

} // namespace
