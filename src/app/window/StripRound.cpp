#include "app/window/StripRound.h"

#include <algorithm>
#include <QShortcut>
#include <QWidget>

StripRound::StripRound(QWidget& window, std::vector<Station> stations)
    : QObject(&window), window_(window), stations_(std::move(stations)) {
    const auto bind = [this](const QKeySequence& key, int step) {
        connect(new QShortcut(key, &window_), &QShortcut::activated, this, [this, step] { Go(step); });
    };
    bind(Qt::Key_F6, 1);
    bind(Qt::SHIFT | Qt::Key_F6, -1);
}

bool StripRound::HasFocus(const Station& station) const {
    const QWidget* focus = window_.focusWidget();
    if (!focus || !focus->isVisible())
        return false;
    return focus == station.place || station.place->isAncestorOf(focus) ||
           (station.holds && station.holds(*focus));
}

void StripRound::Go(int step) {
    const auto has = [this](const Station& station) { return HasFocus(station); };
    const auto count = static_cast<int>(stations_.size());
    const auto found = std::ranges::find_if(stations_, has);
    int at = found == stations_.end() ? 0 : static_cast<int>(found - stations_.begin());
    for (int tried = 1; tried < count; ++tried) {
        at = (at + step + count) % count;
        const Station& station = stations_[static_cast<size_t>(at)];
        if (!station.place->isVisible())
            continue;
        station.takeFocus();
        if (!HasFocus(station))
            continue;
        // What has the focus shows it, as after the Tab key.
        window_.setAttribute(Qt::WA_KeyboardFocusChange);
        window_.focusWidget()->update();
        return;
    }
}
