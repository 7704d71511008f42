#include "editor/autofill/DropDownPlace.h"

#include "platform/values/Twips.h"

#include <algorithm>

QPoint DropDownTwips(QPoint frame, QPoint caret) {
    return {frame.x() + Twips::FromPixels(caret.x()) + 100, frame.y() + Twips::FromPixels(caret.y()) + 2070};
}

QRect DropDownRect(const QRect& caretLine, QSize list, const QRect& area) {
    const int below = std::max(0, area.y() + area.height() - (caretLine.y() + caretLine.height()));
    const int above = std::max(0, caretLine.y() - area.y());
    const bool goesBelow = list.height() <= below || below >= above;
    const int height = std::min(list.height(), goesBelow ? below : above);
    const int width = std::min(list.width(), area.width());
    const int rightmost = area.x() + area.width() - width;
    const int x = std::clamp(caretLine.x(), area.x(), std::max(area.x(), rightmost));
    const int y = goesBelow ? caretLine.y() + caretLine.height() : caretLine.y() - height;
    return {x, y, width, height};
}
