// The text control: drawing the text on pages.
#include "platform/RichTextBox.h"

#include <QPainter>
#include <QTextLayout>

namespace {

/// A line of the text may be a megabyte: it is laid out in stretches of this many characters.
constexpr int longestStretch = 1 << 13;

QColor FromNumber(ColorNumber color) {
    return QColor(color & 0xff, (color >> 8) & 0xff, (color >> 16) & 0xff);
}

QString WithoutLineEnd(QString text) {
    while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r')))
        text.chop(1);
    return text;
}

} // namespace

QVector<QTextLayout::FormatRange> RichTextBox::PrintColors(int startByte, const QString& text) const {
    QVector<QTextLayout::FormatRange> formats;
    const QByteArray bytes = text.toUtf8();
    const StyleRuns styles = StylesOf(startByte, static_cast<int>(bytes.size()));
    qsizetype from = 0;
    int character = 0;
    for (std::size_t run = 0; run < styles.Count(); ++run) {
        QTextLayout::FormatRange format;
        format.start = character;
        format.length = static_cast<int>(QString::fromUtf8(bytes.mid(from, styles.LengthOf(run))).size());
        format.format.setForeground(FromNumber(styles_.ColorOf(styles.StyleOf(run))));
        formats.push_back(format);
        from += styles.LengthOf(run);
        character += format.length;
    }
    return formats;
}

int RichTextBox::FormatRange(bool draw, QPainter& painter, const QRectF& page, int from) {
    const int length = TextLength();
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(8 * QFontMetricsF(font_, painter.device()).horizontalAdvance(QLatin1Char(' ')));
    qreal y = page.top();
    int position = std::max(from, 0);
    while (position < length) {
        const int startByte = ByteFromChar(position);
        const long line = Sci(SCI_LINEFROMPOSITION, startByte);
        const int nextLine = CharFromByte(static_cast<int>(Sci(SCI_POSITIONFROMLINE, line + 1)));
        const bool cut = nextLine - position > longestStretch;
        QString text = TextRange(position, std::min(nextLine - position, longestStretch));
        if (!cut)
            text = WithoutLineEnd(text);
        QTextLayout layout(text, font_, painter.device());
        layout.setTextOption(option);
        layout.setFormats(PrintColors(startByte, text));
        layout.beginLayout();
        int drawn = 0;
        bool full = false;
        while (true) {
            QTextLine row = layout.createLine();
            if (!row.isValid())
                break;
            row.setLineWidth(page.width());
            // The last row of a stretch goes on in the next one.
            if (cut && row.textStart() > 0 && row.textStart() + row.textLength() == text.size())
                break;
            const bool first = y <= page.top();
            if (y + row.height() > page.bottom() && !first) {
                full = true;
                break;
            }
            row.setPosition(QPointF(page.left(), y));
            if (draw)
                row.draw(&painter, QPointF());
            y += row.height();
            drawn = row.textStart() + row.textLength();
        }
        layout.endLayout();
        if (full)
            return position + drawn;
        position = cut ? position + drawn : nextLine;
    }
    return length;
}
