#include "builders/tables/TableTag.h"

#include "dialogs/TagRows.h"

namespace {

Row Cell(const CellFields& fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[fields](TagCase tagCase) { return CellTag(fields, tagCase); }, asWritten, lowered};
}

TEST(CellTag, OfItsFields) {
    Check({
        Cell({}, u"<TD></TD>", u"<td></td>"),
        Cell({.text = T(u"Text")}, u"<TD>Text</TD>", u"<td>Text</td>"),
        Cell({.text = T(u"a"), .header = true}, u"<TH>a</TH>", u"<th>a</th>"),
        Cell({.wrapText = false}, u"<TD NOWRAP></TD>", u"<td nowrap></td>"),
        Cell({.colSpan = T(u"2")}, u"<TD COLSPAN=2></TD>", u"<td colspan=2></td>"),
        Cell({.rowSpan = T(u"3")}, u"<TD ROWSPAN=3></TD>", u"<td rowspan=3></td>"),
        Cell({.align = T(u"CENTER")}, u"<TD ALIGN=CENTER></TD>", u"<td align=CENTER></td>"),
        Cell({.vAlign = T(u"TOP")}, u"<TD VALIGN=TOP></TD>", u"<td valign=TOP></td>"),
        Cell({.color = T(u"FFAA00")}, u"<TD BGCOLOR=#FFAA00></TD>", u"<td bgcolor=#FFAA00></td>"),
        Cell({.text = T(u"text"), .align = T(u"CENTER"), .color = T(u"FF0000")},
             u"<TD ALIGN=CENTER BGCOLOR=#FF0000>text</TD>", u"<td align=CENTER bgcolor=#FF0000>text</td>"),
        Cell({.text = T(u"<B>x</B>"),
              .header = true,
              .wrapText = false,
              .colSpan = T(u"2"),
              .rowSpan = T(u"x y"),
              .align = T(u"Left"),
              .vAlign = T(u"b"),
              .color = T(u"000000")},
             u"<TH NOWRAP COLSPAN=2 ROWSPAN=x y ALIGN=Left VALIGN=b BGCOLOR=#000000><B>x</B></TH>",
             u"<th nowrap colspan=2 rowspan=x y align=Left valign=b bgcolor=#000000><B>x</B></th>"),
    });
}

CellTags FourCells() {
    CellTags cells(2, 2);
    cells.Set(0, 0, T(u"<TD>a</TD>"));
    cells.Set(1, 1, T(u"<td>d</td>"));
    cells.Set(2, 0, T(u"<TD>spare column</TD>"));
    cells.Set(0, 2, T(u"<TD>spare row</TD>"));
    return cells;
}

Row Table(const TableFields& fields, const char16_t* asWritten, const char16_t* lowered) {
    return {[fields](TagCase tagCase) { return Shown(TableTag(fields, FourCells(), tagCase)); }, asWritten,
            lowered};
}

TEST(TableTag, OfItsFields) {
    const TableFields two = {.rows = T(u"2"), .columns = T(u"2")};
    TableFields all = two;
    all.cellPadding = T(u"1");
    all.cellSpacing = T(u"2");
    all.borderWidth = T(u"3");
    all.width = T(u"90%");
    TableFields caption = {.rows = T(u"0"), .columns = T(u"2"), .caption = T(u"My Cats")};
    TableFields below = caption;
    below.captionBelow = true;
    Check({
        Table(two, u"<TABLE>\r\n<TR><TD>a</TD></TR>\r\n<TR><td>d</td></TR>\r\n|</TABLE>",
              u"<table>\r\n<tr><TD>a</TD></tr>\r\n<tr><td>d</td></tr>\r\n|</table>"),
        Table(all,
              u"<TABLE CELLPADDING=1 CELLSPACING=2 BORDER=3 WIDTH=90%>\r\n<TR><TD>a</TD></TR>\r\n"
              u"<TR><td>d</td></TR>\r\n|</TABLE>",
              u"<table cellpadding=1 cellspacing=2 border=3 width=90%>\r\n<tr><TD>a</TD></tr>\r\n"
              u"<tr><td>d</td></tr>\r\n|</table>"),
        Table(caption, u"<TABLE>\r\n<CAPTION>My Cats</CAPTION>\r\n|</TABLE>",
              u"<table>\r\n<caption>My Cats</caption>\r\n|</table>"),
        Table(below, u"<TABLE>\r\n<CAPTION ALIGN=BOTTOM>My Cats</CAPTION>\r\n|</TABLE>",
              u"<table>\r\n<caption align=bottom>My Cats</caption>\r\n|</table>"),
        // Below no caption there is nothing.
        Table({.rows = T(u"0"), .columns = T(u"2"), .captionBelow = true}, u"<TABLE>\r\n|</TABLE>",
              u"<table>\r\n|</table>"),
        // A broken size goes up, and takes the spare row in; a number counts by its start.
        Table({.rows = T(u"2.5"), .columns = T(u"1x")},
              u"<TABLE>\r\n<TR><TD>a</TD></TR>\r\n<TR></TR>\r\n<TR><TD>spare row</TD></TR>\r\n|</TABLE>",
              u"<table>\r\n<tr><TD>a</TD></tr>\r\n<tr></tr>\r\n<tr><TD>spare row</TD></tr>\r\n|</table>"),
        // Sizes beyond all tables have neither rows nor cells.
        Table({.rows = T(u"99999"), .columns = T(u"2")}, u"<TABLE>\r\n|</TABLE>", u"<table>\r\n|</table>"),
        Table({.rows = T(u"1"), .columns = T(u"99999")}, u"<TABLE>\r\n<TR></TR>\r\n|</TABLE>",
              u"<table>\r\n<tr></tr>\r\n|</table>"),
    });
}

TEST(TableTag, OfCellsThatWereNeverEdited) {
    EXPECT_EQ(Shown(TableTag({.rows = T(u"2"), .columns = T(u"2")}, CellTags(2, 2), TagCase::AsWritten)),
              T(u"<TABLE>\r\n<TR></TR>\r\n<TR></TR>\r\n|</TABLE>"));
}

TEST(TablePage, IsInUpperCaseAroundTheCells) {
    EXPECT_EQ(TablePage({.rows = T(u"2"),
                         .columns = T(u"2"),
                         .caption = T(u"c"),
                         .captionBelow = true,
                         .cellPadding = T(u"1"),
                         .cellSpacing = T(u"2"),
                         .borderWidth = T(u"3"),
                         .width = T(u"4")},
                        FourCells()),
              T(u"<HTML><HEAD><TITLE>Table Test</TITLE><BODY><CENTER><TABLE CELLPADDING=1 CELLSPACING=2 "
                u"BORDER=3 WIDTH=4>\r\n<CAPTION ALIGN=BOTTOM>c</CAPTION>\r\n<TR><TD>a</TD></TR>\r\n"
                u"<TR><td>d</td></TR>\r\n</TABLE></CENTER></BODY></HTML>"));
    EXPECT_EQ(TablePage({.rows = T(u"1"), .columns = T(u"1")}, CellTags(1, 1)),
              T(u"<HTML><HEAD><TITLE>Table Test</TITLE><BODY><CENTER><TABLE>\r\n<TR></TR>\r\n"
                u"</TABLE></CENTER></BODY></HTML>"));
}

} // namespace
