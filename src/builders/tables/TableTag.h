// What the Table dialog writes: a cell, the table, and the page on which it is previewed.
#pragma once

#include "builders/tables/CellTags.h"
#include "dialogs/TagPair.h"
#include "editor/color/TagCase.h"

#include <optional>
#include <QString>

struct CellFields {
    QString text{};
    bool header = false;
    bool wrapText = true;
    QString colSpan{};
    QString rowSpan{};
    QString align{};
    QString vAlign{};
    /// Six hexadecimal digits; nothing for the page's own colour.
    std::optional<QString> color{};
};

/// The whole of a cell, from its tag to the closing one.
QString CellTag(const CellFields& fields, TagCase tagCase);

struct TableFields {
    QString rows{};
    QString columns{};
    QString caption{};
    bool captionBelow = false;
    QString cellPadding{};
    QString cellSpacing{};
    QString borderWidth{};
    QString width{};
};

/// The table's tag with all of its rows, and its closing tag. Cells come as they are; a cell that has no text
/// has no tags either.
TagPair TableTag(const TableFields& fields, const CellTags& cells, TagCase tagCase);

/// A page with the table, its words in upper case.
QString TablePage(const TableFields& fields, const CellTags& cells);
