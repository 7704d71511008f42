#include "builders/tables/TableTag.h"

#include "builders/tables/TableSize.h"
#include "dialogs/BuildTag.h"

namespace {

const QString lineEnd = QStringLiteral("\r\n");

QString Rows(const TableFields& fields, const CellTags& cells, TagCase tagCase) {
    const QString open = InCase(QStringLiteral("<TR>"), tagCase);
    const QString close = InCase(QStringLiteral("</TR>"), tagCase) + lineEnd;
    const int rows = WrittenCount(fields.rows);
    const int columns = WrittenCount(fields.columns);
    QString text;
    for (int row = 0; row < rows; ++row) {
        text += open;
        cells.AppendRow(row, columns, text);
        text += close;
    }
    return text;
}

QString Caption(const TableFields& fields, TagCase tagCase) {
    if (fields.caption.isEmpty())
        return QString();
    const TagPart below = TagPart::Word(QStringLiteral(" ALIGN=BOTTOM"), fields.captionBelow);
    return BuildTag(QStringLiteral("<CAPTION"), {below}, tagCase) + fields.caption +
           InCase(QStringLiteral("</CAPTION>"), tagCase) + lineEnd;
}

} // namespace

QString CellTag(const CellFields& fields, TagCase tagCase) {
    const QString open =
        BuildTag(fields.header ? QStringLiteral("<TH") : QStringLiteral("<TD"),
                 {TagPart::Word(QStringLiteral(" NOWRAP"), !fields.wrapText),
                  TagPart::Plain(QStringLiteral("COLSPAN"), fields.colSpan),
                  TagPart::Plain(QStringLiteral("ROWSPAN"), fields.rowSpan),
                  TagPart::Plain(QStringLiteral("ALIGN"), fields.align),
                  TagPart::Plain(QStringLiteral("VALIGN"), fields.vAlign),
                  TagPart::Plain(QStringLiteral("BGCOLOR"), fields.color ? u'#' + *fields.color : QString())},
                 tagCase);
    return open + fields.text +
           InCase(fields.header ? QStringLiteral("</TH>") : QStringLiteral("</TD>"), tagCase);
}

TagPair TableTag(const TableFields& fields, const CellTags& cells, TagCase tagCase) {
    const QString tag = BuildTag(QStringLiteral("<TABLE"),
                                 {TagPart::Plain(QStringLiteral("CELLPADDING"), fields.cellPadding),
                                  TagPart::Plain(QStringLiteral("CELLSPACING"), fields.cellSpacing),
                                  TagPart::Plain(QStringLiteral("BORDER"), fields.borderWidth),
                                  TagPart::Plain(QStringLiteral("WIDTH"), fields.width)},
                                 tagCase);
    return {tag + lineEnd + Caption(fields, tagCase) + Rows(fields, cells, tagCase),
            InCase(QStringLiteral("</TABLE>"), tagCase)};
}

QString TablePage(const TableFields& fields, const CellTags& cells) {
    const auto [open, close] = TableTag(fields, cells, TagCase::AsWritten);
    return QStringLiteral("<HTML><HEAD><TITLE>Table Test</TITLE><BODY><CENTER>") + open + close +
           QStringLiteral("</CENTER></BODY></HTML>");
}
