#include "editor/spelling/SpellPlace.h"

#include <algorithm>

namespace {

/// Between word and dialog, so that the words around are to be seen too.
constexpr int distance = 24;

QPoint Within(QPoint at, QSize size, const QRect& area) {
    const int right = std::max(area.left(), area.left() + area.width() - size.width());
    const int bottom = std::max(area.top(), area.top() + area.height() - size.height());
    return {std::clamp(at.x(), area.left(), right), std::clamp(at.y(), area.top(), bottom)};
}

int Covered(QPoint at, QSize size, const QRect& word) {
    const QRect both = QRect(at, size).intersected(word);
    return both.width() * both.height();
}

} // namespace

QPoint PlaceBesideWord(QPoint at, QSize dialog, const QRect& word, const QRect& area) {
    const QPoint places[] = {
        at,
        {word.x(), word.y() + word.height() + distance},
        {word.x(), word.y() - dialog.height() - distance},
        {word.x() + word.width() + distance, at.y()},
        {word.x() - dialog.width() - distance, at.y()},
    };
    QPoint best = Within(at, dialog, area);
    for (const QPoint& place : places) {
        const QPoint inside = Within(place, dialog, area);
        if (Covered(inside, dialog, word) < Covered(best, dialog, word))
            best = inside;
        if (Covered(best, dialog, word) == 0)
            break;
    }
    return best;
}
