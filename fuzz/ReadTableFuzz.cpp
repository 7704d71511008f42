// The reader of tables on random text: its grid is that of a scan that does each step on the text as it says,
// however often it goes over it.
#include "builders/tables/ReadTable.h"
#include "platform/values/Cp1252.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

QString Upper(QString text) {
    for (QChar& one : text)
        one = one.toUpper();
    return text;
}

std::optional<QString> PlainValue(const QString& tag, const QString& name) {
    const qsizetype at = tag.indexOf(name);
    return at < 0 ? std::nullopt : std::optional(tag.mid(at + name.size(), 1));
}

/// False at the end of the scan.
bool PlainStep(const QString& text, qsizetype& pos, bool& firstRow, TableRead& read) {
    GridCells& grid = read.grid;
    const qsizetype open = text.indexOf(u'<', pos);
    const qsizetype close = open < 0 ? -1 : text.indexOf(u'>', open);
    if (close < 0)
        return false;
    const QString tag = Upper(text.mid(open + 1, close - open - 1));
    const auto has = [&tag](const char* word) { return tag.contains(QLatin1String(word)); };
    pos = open + 1;
    if (has("TABLE") && !has("/TABLE")) {
        grid.SetRows(1);
        grid.SetCols(1);
    }
    if (!has("TABLE") && has("/TR")) {
        firstRow = false;
        if (!grid.SetRows(grid.Rows() + 1) || !grid.SetRow(grid.Row() + 1) || !grid.SetCol(0))
            return false;
    }
    if ((has("TD") && !has("/TD")) || (has("TH") && !has("/TH") && !has("WIDTH="))) {
        const qsizetype next = text.indexOf(u'<', close + 1);
        if (next < 0 || !grid.SetText(text.mid(close + 1, next - close - 1)))
            return false;
        grid.SetCols(grid.Cols() + 1);
        grid.SetCol(grid.Col() + 1);
        read.columns += firstRow ? 1 : 0;
    }
    if (const auto value = PlainValue(tag, QStringLiteral("CELLPADDING=")))
        read.cellPadding = value;
    if (const auto value = PlainValue(tag, QStringLiteral("BORDER=")))
        read.border = value;
    if (const auto value = PlainValue(tag, QStringLiteral("CELLSPACING=")))
        read.cellSpacing = value;
    return true;
}

TableRead PlainScan(const QString& text, const GridCells& grid) {
    TableRead read{.grid = grid};
    qsizetype pos = 0;
    bool firstRow = true;
    while (PlainStep(text, pos, firstRow, read)) {
    }
    read.grid.SetCols(read.columns);
    read.grid.SetRows(read.grid.Rows() - 1);
    return read;
}

/// Letters stand for words that matter: random bytes hardly ever make up a tag.
QString Spelled(QByteArrayView bytes) {
    static const char* const words[] = {"<",    ">",     "TABLE", "/TABLE",  "/TR",          "td",
                                        "/td",  "TH",    "/Th",   "WIDTH=",  "CELLPADDING=", "Border=",
                                        "<TD>", "</TR>", "12",    "<TABLE>", "CELLSPACING="};
    QString text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (code < std::size(words))
            text += QLatin1String(words[code]);
        else
            text += Cp1252::FromCode(code);
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2)
        return 0;
    GridCells grid(data[0] % 4, data[1] % 4);
    grid.SetRow(data[0] / 64);
    grid.SetCol(data[1] / 64);
    grid.SetText(QStringLiteral("old"));
    const QString text = Spelled({reinterpret_cast<const char*>(data) + 2, static_cast<qsizetype>(size) - 2});
    const TableRead read = ReadTable(text, grid);
    const TableRead plain = PlainScan(text, grid);
    Demand(read.columns == plain.columns);
    Demand(read.cellPadding == plain.cellPadding && read.border == plain.border &&
           read.cellSpacing == plain.cellSpacing);
    Demand(read.grid.Rows() == plain.grid.Rows() && read.grid.Cols() == plain.grid.Cols());
    Demand(read.grid.Row() == plain.grid.Row() && read.grid.Col() == plain.grid.Col());
    for (int row = 0; row < read.grid.Rows(); ++row)
        for (int col = 0; col < read.grid.Cols(); ++col)
            Demand(read.grid.At(row, col) == plain.grid.At(row, col));
    return 0;
}
