// A grid of texts with a current cell.
#pragma once

#include "builders/tables/GridCells.h"

#include <QTableView>

class GridModel;

/// Two rows and two columns at first, none of them fixed. Rows and columns count from 0; a value that can't
/// be set leaves all as it was and gives false. Thousands of rows and columns cost next to nothing.
class Grid final : public QTableView {
    Q_OBJECT

  public:
    explicit Grid(QWidget* parent = nullptr);

    int Rows() const { return Cells().Rows(); }
    bool SetRows(int rows);
    int Cols() const { return Cells().Cols(); }
    /// A column that is new has the width of all columns at first.
    bool SetCols(int cols);
    int Row() const { return Cells().Row(); }
    bool SetRow(int row);
    int Col() const { return Cells().Col(); }
    bool SetCol(int col);
    /// The text of the current cell.
    QString Text() const { return Cells().Text(); }
    bool SetText(const QString& text);
    /// In twips, to the pixel; 0 for a column that is not there.
    int ColWidth(int index) const;
    bool SetColWidth(int index, int twips);

    const GridCells& Cells() const;
    void Take(const GridCells& cells);

    /// A letter typed is no search through the cells.
    void keyboardSearch(const QString& /*search*/) override {}

  Q_SIGNALS:
    /// The left button went down and up again in the grid, or Enter, the space bar or F2 was pressed in it.
    void Click();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    /// Changes the cells, while the view's own idea of the current one doesn't count.
    template <typename Change> bool Apply(Change change);

    GridModel* model_;
    bool changing_ = false;
    bool pressed_ = false;
};
