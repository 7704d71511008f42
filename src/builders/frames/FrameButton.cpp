#include "builders/frames/FrameButton.h"

#include "platform/values/Twips.h"

#include <algorithm>
#include <QFontInfo>
#include <QKeySequence>
#include <QStyleOptionButton>
#include <QStylePainter>

void FrameButton::SetCaption(const QString& caption) {
    setText(caption);
    // A button makes a key of what follows an "&", and takes the "&" out of its name.
    setShortcut(QKeySequence());
    setAccessibleName(caption);
    setToolTip(caption);
}

// Buttons of one split may differ by a pixel, and their captions must not.
void FrameButton::Place(const TwipsRect& place) {
    setGeometry(ToPixels(place));
    lineHeight_ = static_cast<int>(place.height / Twips::PerPixel);
}

QFont FrameButton::FittingFont() const {
    constexpr int edges = 5;
    constexpr int smallest = 6;
    QFont fitting = font();
    fitting.setPixelSize(std::clamp(lineHeight_ - edges, smallest, QFontInfo(font()).pixelSize()));
    return fitting;
}

void FrameButton::paintEvent(QPaintEvent* /*event*/) {
    constexpr int margin = 3;
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButton, option);
    painter.setFont(FittingFont());
    const QRect inside = rect().adjusted(margin, 0, -margin, 0);
    const QString shown = painter.fontMetrics().elidedText(text(), Qt::ElideRight, inside.width());
    style()->drawItemText(&painter, inside, Qt::AlignCenter | Qt::TextSingleLine, option.palette, isEnabled(),
                          shown, QPalette::ButtonText);
}
