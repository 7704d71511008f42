// The cell of a grid that is edited: as its own dialog sees it.
#pragma once

#include <QString>

class CurrentCell {
  public:
    virtual ~CurrentCell() = default;
    /// The text of the grid's current cell.
    virtual QString CellText() const = 0;
    /// The current cell: its tag for the table, and the text that the grid shows. A cell outside the table's
    /// size has no tag.
    virtual void SetCell(const QString& tag, const QString& text) = 0;
};
