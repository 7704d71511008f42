// The finished texts of a table's cells.
#pragma once

#include <map>
#include <QString>

/// A text for each column and row, counted from 0 to the sizes themselves: one column and one row are spare.
/// A cell that was never edited is empty, and takes no memory.
class CellTags {
  public:
    CellTags(int columns, int rows) : columns_(columns), rows_(rows) {}

    /// New sizes; all texts go.
    void ReDim(int columns, int rows);
    /// No sizes at all: no cell can be set.
    void Erase();
    /// False, and nothing changed, outside the sizes.
    bool Set(int column, int row, const QString& tag);
    /// Empty outside the sizes.
    QString At(int column, int row) const;
    /// All that stands in the first columns of a row, from left to right.
    void AppendRow(int row, int columns, QString& text) const;
    /// How many cells hold a text.
    size_t EditedCount() const { return tags_.size(); }

  private:
    int columns_;
    int rows_;
    std::map<std::pair<int, int>, QString> tags_; ///< by row, then column
};
