// How the Frames dialog splits its picture of the page.
#pragma once

#include <QRect>
#include <QString>
#include <vector>

enum class FrameDirection { None, Across, Up };

/// Lengths in twips, which need not be whole.
struct TwipsRect {
    double left;
    double top;
    double width;
    double height;
    bool operator==(const TwipsRect&) const = default;
};

/// The rectangle that stands for the page.
inline constexpr TwipsRect PageShape{60, 45, 4110, 2970};

/// On the screen. Edges are rounded, not lengths: what meets in twips meets there too.
QRect ToPixels(const TwipsRect& rect);

/// The count that an answer stands for, rounded to a whole number, a half to the even one; 0 for an answer
/// that is no number. What no page can be split into comes back as the nearest number that an int holds.
int FrameCount(const QString& answer);

/// What is said to a count that is asked for again; empty where the count is taken. Across takes 2 to 6, up
/// and down up to 15 and whatever lies below.
QString FrameCountRefusal(FrameDirection direction, int count);

/// Where each frame's button stands; none for a count below 1. The page is parted equally, whatever the sizes
/// are.
std::vector<TwipsRect> SplitPage(FrameDirection direction, int count);

/// What stands in a size box at first: the percentage of one frame, a half to the even number. The boxes need
/// not make up 100. count is at least 1.
QString FrameSizeText(int count);
