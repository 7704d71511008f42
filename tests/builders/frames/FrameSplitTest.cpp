#include "builders/frames/FrameSplit.h"

#include "dialogs/TagRows.h"

#include <cmath>
#include <limits>

void PrintTo(const TwipsRect& rect, std::ostream* out) {
    *out << rect.left << ',' << rect.top << ' ' << rect.width << 'x' << rect.height;
}

namespace {

std::vector<double> Of(const std::vector<TwipsRect>& frames, double TwipsRect::*part) {
    std::vector<double> parts;
    for (const TwipsRect& frame : frames)
        parts.push_back(frame.*part);
    return parts;
}

TEST(FrameSplit, AcrossPartsTheWidth) {
    using Frames = std::vector<TwipsRect>;
    EXPECT_EQ(SplitPage(FrameDirection::Across, 2),
              (Frames{{135, 120, 1980, 2820}, {2115, 120, 1980, 2820}}));
    EXPECT_EQ(SplitPage(FrameDirection::Across, 3),
              (Frames{{135, 120, 1320, 2820}, {1455, 120, 1320, 2820}, {2775, 120, 1320, 2820}}));
    EXPECT_EQ(Of(SplitPage(FrameDirection::Across, 6), &TwipsRect::left),
              (std::vector<double>{135, 795, 1455, 2115, 2775, 3435}));
}

TEST(FrameSplit, UpAndDownPartsTheHeight) {
    using Frames = std::vector<TwipsRect>;
    EXPECT_EQ(SplitPage(FrameDirection::Up, 1), (Frames{{135, 120, 3960, 2820}}));
    EXPECT_EQ(SplitPage(FrameDirection::Up, 2), (Frames{{135, 120, 3960, 1410}, {135, 1530, 3960, 1410}}));
    EXPECT_EQ(Of(SplitPage(FrameDirection::Up, 15), &TwipsRect::top),
              (std::vector<double>{120, 308, 496, 684, 872, 1060, 1248, 1436, 1624, 1812, 2000, 2188, 2376,
                                   2564, 2752}));
}

TEST(FrameSplit, AnyCountFillsThePageButForItsMargins) {
    for (int count = 1; count <= 15; ++count) {
        const std::vector<TwipsRect> frames = SplitPage(FrameDirection::Up, count);
        ASSERT_EQ(int(frames.size()), count);
        EXPECT_EQ(frames.front().top, 120);
        EXPECT_NEAR(frames.back().top + frames.back().height, 120 + 2820, 1e-6);
        for (size_t i = 1; i < frames.size(); ++i)
            EXPECT_NEAR(frames[i].top, frames[i - 1].top + frames[i - 1].height, 1e-6);
    }
}

TEST(FrameSplit, EdgesThatMeetInTwipsMeetOnTheScreen) {
    EXPECT_EQ(ToPixels(PageShape), QRect(4, 3, 274, 198));
    EXPECT_EQ(ToPixels({135, 120, 792, 2820}), QRect(9, 8, 53, 188));
    EXPECT_EQ(ToPixels({927, 120, 792, 2820}), QRect(62, 8, 53, 188));
    EXPECT_EQ(ToPixels({1719, 120, 792, 2820}), QRect(115, 8, 52, 188));
}

TEST(FrameSplit, NothingIsSplitIntoLessThanOne) {
    for (const int count : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_TRUE(SplitPage(FrameDirection::Across, count).empty());
        EXPECT_TRUE(SplitPage(FrameDirection::Up, count).empty());
    }
    EXPECT_TRUE(SplitPage(FrameDirection::None, 3).empty());
}

TEST(FrameSplit, APercentageIsRoundedAHalfToTheEvenNumber) {
    const std::pair<int, const char16_t*> rows[] = {
        {1, u"100"}, {2, u"50"},  {3, u"33"}, {4, u"25"}, {5, u"20"}, {6, u"17"}, {7, u"14"}, {8, u"12"},
        {9, u"11"},  {10, u"10"}, {11, u"9"}, {12, u"8"}, {13, u"8"}, {14, u"7"}, {15, u"7"},
    };
    for (const auto& [count, text] : rows)
        EXPECT_EQ(FrameSizeText(count), T(text)) << count;
}

TEST(FrameSplit, AnAnswerThatIsNoNumberCountsAsNone) {
    const std::pair<const char16_t*, int> rows[] = {
        {u"3", 3},
        {u" 3 ", 3},
        {u"", 0},
        {u"abc", 0},
        {u"3x", 0},
        {u"0", 0},
        {u"-2", -2},
        {u"2.5", 2},
        {u"3.5", 4},
        {u"1.5", 2},
        {u"6.4", 6},
        {u"99999", 99999},
        {u"99,999", 0},
        {u"1e3", 1000},
        {u"9999999999999", std::numeric_limits<int>::max()},
        {u"-9999999999999", std::numeric_limits<int>::min()},
        {u"inf", 0},
        {u" ", 0},
    };
    for (const auto& [answer, count] : rows)
        EXPECT_EQ(FrameCount(T(answer)), count) << T(answer).toStdString();
}

TEST(FrameSplit, AcrossTakesTwoToSixAndUpAndDownWhateverIsNotAboveFifteen) {
    const QString many = T(u"Too many frames.  Please enter a lower number.");
    const QString few = T(u"Too few frames.  Please choose 2 - 6 frames.");
    const QString manyUp = T(u"Too many frames - please enter a lower number.");
    for (const int count : {7, 15, 99999})
        EXPECT_EQ(FrameCountRefusal(FrameDirection::Across, count), many);
    for (const int count : {1, 0, -1})
        EXPECT_EQ(FrameCountRefusal(FrameDirection::Across, count), few);
    for (int count = 2; count <= 6; ++count)
        EXPECT_EQ(FrameCountRefusal(FrameDirection::Across, count), QString());
    for (const int count : {16, 99999})
        EXPECT_EQ(FrameCountRefusal(FrameDirection::Up, count), manyUp);
    for (const int count : {15, 7, 1, 0, -1})
        EXPECT_EQ(FrameCountRefusal(FrameDirection::Up, count), QString());
}

} // namespace
