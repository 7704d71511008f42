#include "builders/tables/GridCells.h"

#include <algorithm>

bool GridCells::SetRows(int rows) {
    if (rows < 0)
        return false;
    if (rows < rows_)
        texts_.erase(texts_.lower_bound({rows, 0}), texts_.end());
    rows_ = rows;
    row_ = std::clamp(row_, 0, std::max(rows_ - 1, 0));
    return true;
}

bool GridCells::SetCols(int cols) {
    if (cols < 0)
        return false;
    if (cols < cols_)
        std::erase_if(texts_, [cols](const auto& cell) { return cell.first.second >= cols; });
    cols_ = cols;
    col_ = std::clamp(col_, 0, std::max(cols_ - 1, 0));
    return true;
}

bool GridCells::SetRow(int row) {
    if (row < 0 || row >= rows_)
        return false;
    row_ = row;
    return true;
}

bool GridCells::SetCol(int col) {
    if (col < 0 || col >= cols_)
        return false;
    col_ = col;
    return true;
}

bool GridCells::SetText(const QString& text) {
    if (rows_ == 0 || cols_ == 0)
        return false;
    if (text.isEmpty())
        texts_.erase({row_, col_});
    else
        texts_[{row_, col_}] = text;
    return true;
}

QString GridCells::At(int row, int col) const {
    const auto found = texts_.find({row, col});
    return found == texts_.end() ? QString() : found->second;
}
