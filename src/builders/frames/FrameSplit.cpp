#include "builders/frames/FrameSplit.h"

#include "platform/values/Twips.h"
#include "platform/values/Values.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// What the buttons leave of the page, both ways taken together.
constexpr double Margin = 150;

/// To a whole number in the way of all conversions here: a half goes to the even one.
double Whole(double value) {
    return std::nearbyint(value);
}

struct Stretch {
    double start;
    double size;
};

/// One after the other along a side of the page.
std::vector<Stretch> Split(double pageStart, double pageSize, int count) {
    const double size = (pageSize - Margin) / count;
    const double rest = Whole(pageSize - size * count);
    const double start = Whole(pageStart + rest / 2);
    std::vector<Stretch> stretches;
    double offset = 0;
    for (int i = 0; i < count; ++i) {
        stretches.push_back({start + offset, size});
        offset += size;
    }
    return stretches;
}

} // namespace

QRect ToPixels(const TwipsRect& rect) {
    const QPoint topLeft(Twips::ToPixels(rect.left), Twips::ToPixels(rect.top));
    const QPoint end(Twips::ToPixels(rect.left + rect.width), Twips::ToPixels(rect.top + rect.height));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

int FrameCount(const QString& answer) {
    constexpr double Lowest = std::numeric_limits<int>::min();
    constexpr double Highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(Whole(Values::ToNumber(answer).value_or(0)), Lowest, Highest));
}

QString FrameCountRefusal(FrameDirection direction, int count) {
    constexpr int MostAcross = 6;
    constexpr int FewestAcross = 2;
    constexpr int MostUp = 15;
    if (direction == FrameDirection::Up)
        return count > MostUp ? QStringLiteral("Too many frames - please enter a lower number.") : QString();
    if (count > MostAcross)
        return QStringLiteral("Too many frames.  Please enter a lower number.");
    return count < FewestAcross ? QStringLiteral("Too few frames.  Please choose 2 - 6 frames.") : QString();
}

std::vector<TwipsRect> SplitPage(FrameDirection direction, int count) {
    const TwipsRect& page = PageShape;
    std::vector<TwipsRect> frames;
    if (direction == FrameDirection::Across)
        for (const auto& [start, size] : Split(page.left, page.width, count))
            frames.push_back({start, page.top + Margin / 2, size, page.height - Margin});
    if (direction == FrameDirection::Up)
        for (const auto& [start, size] : Split(page.top, page.height, count))
            frames.push_back({page.left + Margin / 2, start, page.width - Margin, size});
    return frames;
}

QString FrameSizeText(int count) {
    return QString::number(Whole(100.0 / count));
}
