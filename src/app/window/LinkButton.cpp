#include "app/window/LinkButton.h"

#include <algorithm>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace {

constexpr int margin = 4;
constexpr int gap = 10;
// The width of a text is told without what its last letter needs beside it.
constexpr int slack = 2;

QFont Underlined(QFont font) {
    font.setUnderline(true);
    return font;
}

} // namespace

LinkButton::LinkButton(QWidget* parent) : QAbstractButton(parent) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}

void LinkButton::SetTexts(const QString& title, const QString& note) {
    title_ = title;
    note_ = note;
    // Not the button's text, in which an "&" would be a mnemonic.
    setAccessibleName(note.isEmpty() ? title : tr("%1, %2").arg(title, note));
    update();
}

QSize LinkButton::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int note = note_.isEmpty() ? 0 : gap + metrics.horizontalAdvance(note_) + slack;
    return {metrics.horizontalAdvance(title_) + note + 2 * margin, metrics.height() + 2 * margin};
}

void LinkButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect inside = rect().adjusted(margin, 0, -margin, 0);
    const QFontMetrics metrics = fontMetrics();
    const QString title = metrics.elidedText(title_, Qt::ElideMiddle, inside.width());
    const int titleWidth = metrics.horizontalAdvance(title);
    const Qt::Alignment start = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
    painter.setFont(Underlined(font()));
    painter.drawText(inside, start | Qt::TextSingleLine, title);
    painter.setFont(font());
    const int room = std::max(0, inside.width() - titleWidth - gap);
    const QRect place =
        QStyle::visualRect(layoutDirection(), inside, inside.adjusted(titleWidth + gap, 0, 0, 0));
    painter.drawText(place, start | Qt::TextSingleLine, metrics.elidedText(note_, Qt::ElideMiddle, room));
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void LinkButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
