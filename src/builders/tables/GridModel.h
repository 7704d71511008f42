// The cells of a grid as views read them.
#pragma once

#include "builders/tables/GridCells.h"

#include <QAbstractTableModel>

/// Sizes and texts change by the calls of GridCells, with what views have to be told.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT

  public:
    GridModel(GridCells cells, QObject* parent) : QAbstractTableModel(parent), cells_(std::move(cells)) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    const GridCells& Cells() const { return cells_; }
    bool SetRows(int rows);
    bool SetCols(int cols);
    bool SetRow(int row) { return cells_.SetRow(row); }
    bool SetCol(int col) { return cells_.SetCol(col); }
    bool SetText(const QString& text);
    /// Everything anew; views keep what they know of the rows and columns that stay.
    void Take(const GridCells& cells);

  private:
    GridCells cells_;
};
