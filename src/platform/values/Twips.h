// Lengths as the settings and rules of the windows count them: in twips, 15 to the pixel.
#pragma once

#include <cmath>

namespace Twips {

inline constexpr int PerPixel = 15;

inline constexpr int FromPixels(int pixels) {
    return pixels * PerPixel;
}

/// The nearest whole pixel; halves go away from zero. What no window can have is cut to the range of one.
inline int ToPixels(double twips) {
    constexpr double limit = 1 << 24;
    const double pixels = std::round(twips / PerPixel);
    return static_cast<int>(pixels < -limit ? -limit : pixels > limit ? limit : pixels);
}

} // namespace Twips
