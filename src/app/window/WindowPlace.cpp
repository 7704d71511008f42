#include "app/window/WindowPlace.h"

#include <algorithm>
#include <cmath>

namespace {

// As much of a title bar as a person needs to see and get hold of it.
constexpr int gripWidth = 100;
constexpr int gripHeight = 24;

bool WithinReach(const QRect& window, const QRect& screen) {
    const QRect grip = QRect(window.topLeft(), QSize(window.width(), gripHeight)) & screen;
    return grip.height() == gripHeight && grip.width() >= gripWidth;
}

} // namespace

QRect WindowPlace::Centred(QSize window, QRect screen) {
    const QPoint offset(screen.width() / 2 - window.width() / 2, screen.height() / 2 - window.height() / 2);
    return QRect(screen.topLeft() + offset, window);
}

QRect WindowPlace::Reachable(QRect window, const QList<QRect>& screens) {
    window.setSize(Possible(window.size(), screens));
    const auto reaches = [&](const QRect& screen) { return WithinReach(window, screen); };
    if (screens.isEmpty() || std::ranges::any_of(screens, reaches))
        return window;
    const auto touches = [&](const QRect& screen) { return window.intersects(screen); };
    const auto touched = std::ranges::find_if(screens, touches);
    const QRect& home = touched == screens.end() ? screens.first() : *touched;
    const int left = std::min(window.left(), home.right() + 1 - window.width());
    const int top = std::min(window.top(), home.bottom() + 1 - window.height());
    window.moveTopLeft(QPoint(std::max(left, home.left()), std::max(top, home.top())));
    return window;
}

QSize WindowPlace::Possible(QSize window, const QList<QRect>& screens) {
    QRect all;
    for (const QRect& screen : screens)
        all |= screen;
    return all.isEmpty() ? window : window.boundedTo(all.size() * 2);
}

QList<QRect> WindowPlace::TiledHorizontally(int windows, QSize area) {
    QList<QRect> places;
    const int columns = static_cast<int>(std::sqrt(windows));
    for (int column = 0; column < columns; ++column) {
        // The columns at the right take the windows that don't divide evenly.
        const int rows = windows / columns + (column >= columns - windows % columns ? 1 : 0);
        const int left = area.width() * column / columns;
        const int right = area.width() * (column + 1) / columns;
        for (int row = 0; row < rows; ++row) {
            const int top = area.height() * row / rows;
            const int bottom = area.height() * (row + 1) / rows;
            places << QRect(left, top, right - left, bottom - top);
        }
    }
    return places;
}

QList<QRect> WindowPlace::IconsInRows(int windows, QSize icon, QSize area) {
    QList<QRect> places;
    const int columns = std::max(1, area.width() / std::max(1, icon.width()));
    for (int n = 0; n < windows; ++n) {
        const int left = n % columns * icon.width();
        const int top = area.height() - (n / columns + 1) * icon.height();
        places << QRect(QPoint(left, top), icon);
    }
    return places;
}
