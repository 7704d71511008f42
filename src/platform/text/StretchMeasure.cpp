#include "platform/text/StretchMeasure.h"

#include <cmath>
#include <QFont>
#include <QTextLayout>

namespace {

constexpr QChar leftToRightMark(0x200E);

enum class Order { FromTheRight, FromTheLeft, AsBefore };

Order OrderOf(QChar::Direction direction) {
    switch (direction) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirRLI:
        return Order::FromTheRight;
    case QChar::DirNSM:
    case QChar::DirBN:
        return Order::AsBefore;
    default:
        return Order::FromTheLeft;
    }
}

char32_t CharacterAt(QStringView text, qsizetype at) {
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    return pair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : char32_t{text[at].unicode()};
}

/// Where the part of a text ends that starts at a position and is written in one direction.
qsizetype PartEnd(QStringView text, qsizetype start) {
    Order order = Order::AsBefore;
    for (qsizetype at = start; at < text.size();
         at += QChar::requiresSurrogates(CharacterAt(text, at)) ? 2 : 1) {
        const Order next = OrderOf(QChar::direction(CharacterAt(text, at)));
        if (order == Order::AsBefore)
            order = next;
        else if (next != Order::AsBefore && next != order)
            return at;
    }
    return text.size();
}

QTextLine OneLine(QTextLayout& layout) {
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line;
}

QTextOption FromTheLeft() {
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    return option;
}

/// The same as EndsFromTheLeft for a text in one direction, which stands behind others.
void AppendEnds(const QString& text, const QFont& font, QList<qreal>& ends) {
    // The mark keeps the end of the text from being the left of its last word.
    QTextLayout layout(text + leftToRightMark);
    layout.setFont(font);
    layout.setTextOption(FromTheLeft());
    const QTextLine line = OneLine(layout);
    qreal end = ends.isEmpty() ? 0 : ends.last();
    for (int i = 0; i < text.size(); ++i) {
        // Inside a cluster both edges are those of the next one.
        if (layout.isValidCursorPosition(i))
            end += std::abs(line.cursorToX(i, QTextLine::Trailing) - line.cursorToX(i));
        ends << end;
    }
}

} // namespace

bool HasRightToLeft(QStringView text) {
    constexpr char16_t firstOfRightToLeft = 0x590;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] >= firstOfRightToLeft &&
            OrderOf(QChar::direction(CharacterAt(text, i))) == Order::FromTheRight)
            return true;
    }
    return false;
}

QList<qreal> EndsFromTheLeft(const QString& text, const QFont& font) {
    QList<qreal> ends;
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = PartEnd(text, start);
        AppendEnds(text.sliced(start, end - start), font, ends);
        start = end;
    }
    return ends;
}

void UseStretchMeasure() {}

#ifdef Q_OF_ELF

namespace {

/// Makes of a layout one of as many characters that end where those of a text do: a tab each, and a stop
/// behind it. What has no width can't be one.
void EndAt(QTextLayout& layout, const QList<qreal>& ends) {
    QString tabs;
    QTextOption option = FromTheLeft();
    QList<QTextOption::Tab> stops;
    qreal last = 0;
    for (const qreal end : ends) {
        tabs += end > last ? QChar(u'\t') : leftToRightMark;
        if (end > last)
            stops << QTextOption::Tab(end, QTextOption::LeftTab);
        last = end;
    }
    option.setTabs(stops);
    layout.setText(tabs);
    layout.setTextOption(option);
}

} // namespace

// The base class of the control builds a layout by this constructor of the library for each stretch that it
// measures, and offers no other way to tell it a width. Here it is replaced for all of the program, and does
// what the library's own does; only with a device given, as nothing but measuring a stretch does, and with
// words from right to left, other characters take the places of those in the text.
QTextLayout::QTextLayout(const QString& text, const QFont& font, const QPaintDevice* paintdevice)
    : QTextLayout(text) {
    const QFont used = paintdevice != nullptr ? QFont(font, paintdevice) : font;
    if (paintdevice != nullptr && HasRightToLeft(text))
        EndAt(*this, EndsFromTheLeft(text, used));
    else
        setFont(used);
}

#endif
