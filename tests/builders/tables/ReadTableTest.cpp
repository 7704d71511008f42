#include "builders/tables/ReadTable.h"

#include "dialogs/TagRows.h"
#include <QStringList>

namespace {

/// Rows by columns, the cells ("," between them, ";" between rows), and the fields that were set.
QString Shown(const TableRead& read) {
    QStringList rows;
    for (int row = 0; row < read.grid.Rows(); ++row) {
        QStringList cells;
        for (int col = 0; col < read.grid.Cols(); ++col)
            cells << read.grid.At(row, col);
        rows << cells.join(u',');
    }
    QString shown = QString::number(read.grid.Rows()) + u'x' + QString::number(read.grid.Cols());
    shown += u' ' + rows.join(u';');
    if (read.cellPadding)
        shown += T(u" padding=") + *read.cellPadding;
    if (read.border)
        shown += T(u" border=") + *read.border;
    if (read.cellSpacing)
        shown += T(u" spacing=") + *read.cellSpacing;
    return shown;
}

struct ReadRow {
    const char16_t* text;
    const char16_t* shown;
};

TEST(ReadTable, IntoAGridOfTwoByTwo) {
    const ReadRow rows[] = {
        {u"<TABLE><TR><TD>a</TD><TD>b</TD></TR><TR><TD>c</TD><TD>d</TD></TR></TABLE>", u"2x2 a,b;c,d"},
        {u"<table>\r\n<tr><td align=left>a</td>\r\n<th>b</th></tr>\r\n</table>", u"1x2 a,b"},
        // The first row tells the columns: what a longer one has more is not shown.
        {u"<TABLE><TR><TD>a</TD></TR><TR><TD>b</TD><TD>c</TD></TR></TABLE>", u"2x1 a;b"},
        {u"<TABLE><TR><TD>a</TD><TD>b</TD></TR><TR><TD>c</TD></TR></TABLE>", u"2x2 a,b;c,"},
        // The text ends at the next tag, whatever that is; a line end stays.
        {u"<TABLE><TR><TD><B>a</B></TD><TD>b<BR>c</TD></TR></TABLE>", u"1x2 ,b"},
        {u"<TABLE><TR><TD>a\r\nb</TD></TR></TABLE>", u"1x1 a\r\nb"},
        // Cells without closing tags, rows with them.
        {u"<TABLE><TR><TD>a<TD>b</TR><TR><TD>c<TD>d</TR></TABLE>", u"2x2 a,b;c,d"},
        // Rows count by their ends alone.
        {u"<TABLE><TR><TD>a<TR><TD>b</TABLE>", u"0x2 "},
        {u"<TABLE></TABLE>", u"0x0 "},
        // Without a table's tag the grid is as it was, and the current cell too.
        {u"<TR><TD>a</TD><TD>b</TD></TR>", u"2x2 a,b;,"},
        {u"<TD>a</TD>", u"1x1 a"},
        // No tag at all: nothing is left of the columns, and a row goes.
        {u"", u"1x0 "},
        {u"no tags here", u"1x0 "},
        {u"a < b", u"1x0 "},
        {u"a > b", u"1x0 "},
        // A head cell with a width is none, a data cell is.
        {u"<TABLE><TR><TD WIDTH=50>a</TD><TH WIDTH=50>b</TH><TH>c</TH></TR></TABLE>", u"1x2 a,c"},
        // A file name holds what a cell's tag holds.
        {u"<TABLE><TR><TD>a</TD><TD><A HREF=\"this.htm\">b</A></TD></TR></TABLE>", u"1x3 a,,b"},
        {u"<TABLE><THEAD>x</THEAD><TR><TD>a</TD></TR></TABLE>", u"1x2 x,a"},
        // So does one that names the end of a row.
        {u"<TABLE><TR><TD>a</TD><IMG SRC=/tree.gif><TD>b</TD></TR></TABLE>", u"2x1 a;b"},
        // But not in a table's own tag.
        {u"<TABLE BACKGROUND=/tree.gif><TR><TD>a</TD></TR></TABLE>", u"1x1 a"},
        {u"<TABLE><TR><TD>a</TD></TR></TABLE /TR>", u"1x1 a"},
        // A table in a table: the grid starts anew, the columns go on.
        {u"<TABLE><TR><TD><TABLE><TR><TD>a</TD></TR></TABLE></TD><TD>b</TD></TR></TABLE>", u"2x2 a,;b,"},
        {u"<TABLE><TR><TD>a</TD><TD>b</TD></TR></TABLE><TABLE><TR><TD>c</TD></TR></TABLE>", u"1x2 c,"},
        // What never closes ends the scan, and so does a cell with no tag behind it.
        {u"<TABLE><TR><TD>a</TD></TR><TR", u"1x1 a"},
        {u"<TABLE><TR><TD>a</TD><TD>b</TR><TD>c", u"1x2 a,b"},
        {u"<TABLE><TR></TR><TD BORDER=3>c", u"1x0 "},
        // A tag in a tag is looked at once more by itself.
        {u"<TABLE><TR><TD <TD>a</TD></TR></TABLE>", u"1x2 a,a"},
        // One character of each value, of any tag, in capitals.
        {u"<TABLE CELLPADDING=12 BORDER=\"1\" CELLSPACING=a><TR><TD>a</TD></TR></TABLE>",
         u"1x1 a padding=1 border=\" spacing=A"},
        {u"<table border=1><tr><td>a</td></tr><img border=0 src=a.gif></table>", u"1x1 a border=0"},
        {u"<TABLE BORDER=><TR><TD>a</TD></TR></TABLE>", u"1x1 a border="},
        {u"<TABLE BORDER= 5><TR><TD>a</TD></TR></TABLE>", u"1x1 a border= "},
        {u"<TABLE FRAMEBORDER=7 BORDER=8><TR><TD>a</TD></TR></TABLE>", u"1x1 a border=7"},
        {u"<TABLE CELLPADDING=\u00DF><TR><TD>a</TD></TR></TABLE>", u"1x1 a padding=\u00DF"},
        {u"<TABLE CELLPADDING=\U0001F600x><TR><TD>a</TD></TR></TABLE>", u"1x1 a padding=\U0001F600"},
    };
    for (const ReadRow& row : rows)
        EXPECT_EQ(Shown(ReadTable(T(row.text), GridCells(2, 2))), T(row.shown)) << T(row.text).toStdString();
}

TEST(ReadTable, TellsTheColumnsOfTheFirstRow) {
    EXPECT_EQ(ReadTable(T(u"<TABLE><TD>a</TD><TD>b</TD></TR><TD>c</TD></TABLE>"), GridCells(2, 2)).columns,
              2);
    EXPECT_EQ(ReadTable(QString(), GridCells(2, 2)).columns, 0);
}

TEST(ReadTable, StartsAtTheCurrentCell) {
    GridCells grid(3, 3);
    grid.SetText(T(u"kept"));
    grid.SetRow(1);
    grid.SetCol(1);
    EXPECT_EQ(Shown(ReadTable(T(u"<TD>a</TD><TD>b</TD></TR>"), grid)), T(u"3x2 kept,;,a;,"));
}

TEST(ReadTable, LeavesTheTextOfTheFirstCellWhereNoneCame) {
    GridCells grid(2, 2);
    grid.SetText(T(u"old"));
    grid.SetRow(1);
    grid.SetText(T(u"gone"));
    EXPECT_EQ(Shown(ReadTable(T(u"<TABLE></TR><TD>a</TD></TR></TABLE>"), grid)), T(u"2x0 ;"));
    EXPECT_EQ(Shown(ReadTable(T(u"<TABLE></TABLE><B>"), grid)), T(u"0x0 "));
}

TEST(ReadTable, EndsWhereTheGridHasNoCellToTake) {
    GridCells grid(0, 0);
    const TableRead read = ReadTable(T(u"<TD>a</TD></TR><TABLE BORDER=1>"), grid);
    EXPECT_EQ(Shown(read), T(u"0x0 "));
    EXPECT_FALSE(ReadTable(T(u"</TR><TABLE BORDER=1>"), grid).border);
}

// Tags within tags all end at the same place: neither their search nor their texts may cost each time anew.
TEST(ReadTable, TakesALongTextOfOpenTagsInOneGo) {
    constexpr qsizetype count = 100'000;
    const QString text = T(u"<td").repeated(count) + u'>' + QString(count, u'x') + u'<';
    const TableRead read = ReadTable(text, GridCells(2, 2));
    EXPECT_EQ(read.columns, count);
    EXPECT_EQ(read.grid.At(0, 0).size(), count);
    EXPECT_EQ(read.grid.At(0, count - 1).size(), count);
}

} // namespace
