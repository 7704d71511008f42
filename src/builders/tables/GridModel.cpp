#include "builders/tables/GridModel.h"

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cells_.Rows();
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cells_.Cols();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    return role == Qt::DisplayRole ? cells_.At(index.row(), index.column()) : QVariant();
}

bool GridModel::SetRows(int rows) {
    const int before = cells_.Rows();
    if (rows < 0)
        return false;
    if (rows > before) {
        beginInsertRows({}, before, rows - 1);
        cells_.SetRows(rows);
        endInsertRows();
    } else if (rows < before) {
        beginRemoveRows({}, rows, before - 1);
        cells_.SetRows(rows);
        endRemoveRows();
    }
    return true;
}

bool GridModel::SetCols(int cols) {
    const int before = cells_.Cols();
    if (cols < 0)
        return false;
    if (cols > before) {
        beginInsertColumns({}, before, cols - 1);
        cells_.SetCols(cols);
        endInsertColumns();
    } else if (cols < before) {
        beginRemoveColumns({}, cols, before - 1);
        cells_.SetCols(cols);
        endRemoveColumns();
    }
    return true;
}

bool GridModel::SetText(const QString& text) {
    if (!cells_.SetText(text))
        return false;
    const QModelIndex place = index(cells_.Row(), cells_.Col());
    emit dataChanged(place, place);
    return true;
}

void GridModel::Take(const GridCells& cells) {
    SetRows(cells.Rows());
    SetCols(cells.Cols());
    cells_ = cells;
    if (cells_.Rows() > 0 && cells_.Cols() > 0)
        emit dataChanged(index(0, 0), index(cells_.Rows() - 1, cells_.Cols() - 1));
}
