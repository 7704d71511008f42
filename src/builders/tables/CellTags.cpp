#include "builders/tables/CellTags.h"

void CellTags::ReDim(int columns, int rows) {
    columns_ = columns;
    rows_ = rows;
    tags_.clear();
}

void CellTags::Erase() {
    ReDim(-1, -1);
}

bool CellTags::Set(int column, int row, const QString& tag) {
    if (column < 0 || column > columns_ || row < 0 || row > rows_)
        return false;
    tags_[{row, column}] = tag;
    return true;
}

QString CellTags::At(int column, int row) const {
    const auto found = tags_.find({row, column});
    return found == tags_.end() ? QString() : found->second;
}

void CellTags::AppendRow(int row, int columns, QString& text) const {
    for (auto cell = tags_.lower_bound({row, 0}); cell != tags_.end(); ++cell) {
        const auto& [place, tag] = *cell;
        if (place.first != row || place.second >= columns)
            return;
        text += tag;
    }
}
