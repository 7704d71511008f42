#include "platform/text/RtfWriter.h"

#include "platform/text/TextColors.h"

namespace {

QString ColorTable(const TextColors& colors) {
    QString table = QStringLiteral("{\\colortbl ;");
    for (int style = 1; style < colors.End(); ++style)
        table += RtfColor(colors.ColorOf(style)) + QLatin1Char(';');
    return table + QLatin1Char('}');
}

QString Escaped(QString text) {
    return text.replace(QStringLiteral("\\"), QStringLiteral("\\\\"))
        .replace(QStringLiteral("{"), QStringLiteral("\\{"))
        .replace(QStringLiteral("}"), QStringLiteral("\\}"))
        .replace(QStringLiteral("\r"), QStringLiteral("\\'0d"))
        .replace(QStringLiteral("\n"), QStringLiteral("\\'0a"));
}

} // namespace

QString WriteRtf(const TextBuffer& buffer, const TextColors& colors, ByteRange range) {
    const StyleRuns styles = colors.StylesOf(range);
    QString rtf = QLatin1Char('{') + ColorTable(colors);
    int from = range.start;
    for (std::size_t run = 0; run < styles.Count(); ++run) {
        const int end = from + styles.LengthOf(run);
        rtf += QStringLiteral("\\cf%1 ").arg(styles.StyleOf(run)) + Escaped(buffer.Text({from, end}));
        from = end;
    }
    return rtf + QLatin1Char('}');
}
