#include "platform/text/TextPrinter.h"

#include "platform/text/TextColors.h"
#include "platform/values/Utf8.h"

#include <algorithm>
#include <QPainter>

namespace {

/// A line of the text may be a megabyte: it is laid out in stretches of this many characters.
constexpr int longestStretch = 1 << 13;

QString WithoutLineEnd(QString text) {
    while (text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r')))
        text.chop(1);
    return text;
}

/// The rows of a page as it fills from the top.
class PrintPage {
  public:
    PrintPage(QPainter& painter, const QRectF& page, bool draw)
        : painter_(painter), page_(page), draw_(draw) {}

    bool IsFull() const { return full_; }

    /// Sets the rows of a stretch of text one below the other and returns how many of its characters are on
    /// the page then. A stretch that goes on behind its end keeps its last row back: what follows may belong
    /// to it.
    int Fill(QTextLayout& layout, bool goesOn) {
        int set = 0;
        layout.beginLayout();
        for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
            row.setLineWidth(page_.width());
            const int end = row.textStart() + row.textLength();
            if (goesOn && row.textStart() > 0 && end == layout.text().size())
                break;
            // A page takes at least one row, however low it is.
            full_ = y_ > 0 && page_.top() + y_ + row.height() > page_.bottom();
            if (full_)
                break;
            row.setPosition(QPointF(page_.left(), page_.top() + y_));
            y_ += row.height();
            set = end;
        }
        layout.endLayout();
        if (draw_)
            Draw(layout, set);
        return set;
    }

  private:
    void Draw(const QTextLayout& layout, int end) {
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine row = layout.lineAt(i);
            if (row.textStart() + row.textLength() <= end)
                row.draw(&painter_, QPointF());
        }
    }

    QPainter& painter_;
    const QRectF page_;
    const bool draw_;
    qreal y_ = 0;
    bool full_ = false;
};

} // namespace

QVector<QTextLayout::FormatRange> TextPrinter::Colors(int startByte, const QString& text) const {
    QVector<QTextLayout::FormatRange> formats;
    const QByteArray bytes = text.toUtf8();
    const StyleRuns styles = colors_.StylesOf({startByte, startByte + static_cast<int>(bytes.size())});
    qsizetype from = 0;
    int character = 0;
    for (std::size_t run = 0; run < styles.Count(); ++run) {
        QTextLayout::FormatRange format;
        format.start = character;
        format.length = static_cast<int>(Utf8::ToText(bytes.mid(from, styles.LengthOf(run))).size());
        format.format.setForeground(ToQColor(colors_.ColorOf(styles.StyleOf(run))));
        formats.push_back(format);
        from += styles.LengthOf(run);
        character += format.length;
    }
    return formats;
}

int TextPrinter::FormatRange(bool draw, QPainter& painter, const QRectF& page, int from) const {
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(8 * QFontMetricsF(font_, painter.device()).horizontalAdvance(QLatin1Char(' ')));
    PrintPage sheet(painter, page, draw);
    const int length = buffer_.Length();
    int position = std::clamp(from, 0, length);
    while (position < length) {
        const int nextLine = buffer_.NextLine(position);
        const bool goesOn = nextLine - position > longestStretch;
        const ByteRange range = buffer_.FromChars(position, std::min(nextLine, position + longestStretch));
        const QString stretch = buffer_.Text(range);
        const QString text = goesOn ? stretch : WithoutLineEnd(stretch);
        QTextLayout layout(text);
        layout.setFont(QFont(font_, painter.device()));
        layout.setTextOption(option);
        layout.setFormats(Colors(range.start, text));
        const int set = sheet.Fill(layout, goesOn);
        if (sheet.IsFull())
            return position + set;
        position = goesOn ? position + set : nextLine;
    }
    return length;
}
