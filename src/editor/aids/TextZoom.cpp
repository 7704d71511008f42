#include "editor/aids/TextZoom.h"

#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"

#include <algorithm>
#include <iterator>

namespace {

/// Ten percent make a difference that can be seen, and less and less of one as letters grow.
constexpr int levels[] = {TextZoom::Smallest,
                          60,
                          70,
                          80,
                          90,
                          TextZoom::Normal,
                          110,
                          120,
                          130,
                          140,
                          150,
                          160,
                          180,
                          200,
                          225,
                          250,
                          300,
                          350,
                          400,
                          TextZoom::Largest};

} // namespace

int TextZoom::Beyond(int percent, int steps) {
    const int last = static_cast<int>(std::size(levels)) - 1;
    const auto at =
        steps < 0 ? std::ranges::lower_bound(levels, percent) : std::ranges::upper_bound(levels, percent) - 1;
    const auto index = static_cast<int>(at - std::begin(levels));
    return levels[std::clamp(index + std::clamp(steps, -last, last), 0, last)];
}

int TextZoom::Stored(const Settings& store) {
    const int percent = store.ReadNumber(Keys::Zoom);
    return percent > 0 ? std::clamp(percent, Smallest, Largest) : Normal;
}

void TextZoom::Set(Frame& frame, int percent) {
    if (percent != Stored(frame.Store()))
        frame.Store().WriteNumber(Keys::Zoom, percent);
    Q_EMIT Changed(percent);
    frame.SetStatusPanel(QStringLiteral("Zoom %1 %").arg(percent));
}
