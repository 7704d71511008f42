// An existing table as a grid: what Import does with the selected text.
#pragma once

#include "builders/tables/GridCells.h"

#include <optional>
#include <QString>

struct TableRead {
    GridCells grid;
    /// The cells before the first end of a row: the table's columns.
    int columns = 0;
    /// One character each, where a tag named the attribute; the last one counts.
    std::optional<QString> cellPadding{};
    std::optional<QString> border{};
    std::optional<QString> cellSpacing{};
};

/// Goes through the tags of a text and puts what follows each cell's tag into the grid that is there, which
/// then has the columns of the first row and as many rows as ends of rows. A plain scan: a tag is what its
/// letters hold, wherever in it they stand, so that a file name may count as a cell. It ends with the first
/// "<" that never closes, with a cell behind which no tag follows, or where the grid can't take a cell.
TableRead ReadTable(const QString& text, GridCells grid);
