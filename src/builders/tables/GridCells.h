// What a grid holds: its size, its current cell, and the texts of its cells.
#pragma once

#include <map>
#include <QString>

/// Rows and columns count from 0. Only cells with a text take memory. A value that can't be set leaves all as
/// it was and gives false.
class GridCells {
  public:
    GridCells(int rows, int cols) : rows_(rows), cols_(cols) {}

    int Rows() const { return rows_; }
    int Cols() const { return cols_; }
    /// Texts beyond a smaller size go, and the current cell moves to the last one left. Not below 0.
    bool SetRows(int rows);
    bool SetCols(int cols);

    /// The current cell; 0 where there is none.
    int Row() const { return row_; }
    int Col() const { return col_; }
    bool SetRow(int row);
    bool SetCol(int col);

    /// The text of the current cell; empty where there is none.
    QString Text() const { return At(row_, col_); }
    bool SetText(const QString& text);
    QString At(int row, int col) const;

  private:
    int rows_;
    int cols_;
    int row_ = 0;
    int col_ = 0;
    std::map<std::pair<int, int>, QString> texts_; ///< by row, then column
};
