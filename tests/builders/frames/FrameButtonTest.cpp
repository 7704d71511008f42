#include "builders/frames/FrameButton.h"

#include "dialogs/TagRows.h"
#include <QSet>
#include <QTest>

namespace {

/// The ink of a button's face: how many pixels differ from those of one without a caption.
int Ink(FrameButton& button) {
    const QImage face = button.grab().toImage();
    FrameButton plain(nullptr);
    plain.resize(button.size());
    const QImage empty = plain.grab().toImage();
    int ink = 0;
    for (int y = 0; y < face.height(); ++y)
        for (int x = 0; x < face.width(); ++x)
            ink += face.pixel(x, y) != empty.pixel(x, y) ? 1 : 0;
    return ink;
}

TEST(FrameButton, AnAmpersandStandsForItself) {
    FrameButton button(nullptr);
    button.SetCaption(T(u"a&b"));
    EXPECT_EQ(button.text(), T(u"a&b"));
    EXPECT_EQ(button.accessibleName(), T(u"a&b"));
    EXPECT_EQ(button.toolTip(), T(u"a&b"));
    EXPECT_TRUE(button.shortcut().isEmpty());
    button.Place({0, 0, 1500, 450});
    const int withAmpersand = Ink(button);
    button.SetCaption(T(u"ab"));
    EXPECT_GT(withAmpersand, Ink(button));
}

TEST(FrameButton, ALongCaptionIsCutAndALowButtonStillHasOne) {
    FrameButton button(nullptr);
    button.Place({0, 0, 900, 450});
    button.SetCaption(QString(1000, u'W'));
    EXPECT_GT(Ink(button), 0);
    // Its edges stay free of letters.
    const QImage face = button.grab().toImage();
    FrameButton plain(nullptr);
    plain.resize(button.size());
    const QImage empty = plain.grab().toImage();
    for (int y = 0; y < face.height(); ++y) {
        EXPECT_EQ(face.pixel(1, y), empty.pixel(1, y));
        EXPECT_EQ(face.pixel(face.width() - 2, y), empty.pixel(face.width() - 2, y));
    }
    button.SetCaption(T(u"Frame 15"));
    for (const int twips : {188, 75, 15, 0}) {
        button.Place({0, 0, 3960, double(twips)});
        EXPECT_GE(Ink(button), twips > 75 ? 1 : 0);
    }
}

TEST(FrameButton, ButtonsOfOneSplitHaveLettersOfOneSize) {
    // 12 and 13 pixels high.
    const std::vector<TwipsRect> places = SplitPage(FrameDirection::Up, 15);
    QSet<int> heights;
    QSet<int> inks;
    for (const TwipsRect& place : places) {
        FrameButton button(nullptr);
        button.SetCaption(T(u"Frame"));
        button.Place(place);
        heights << button.height();
        inks << Ink(button);
    }
    EXPECT_EQ(heights.size(), 2);
    EXPECT_EQ(inks.size(), 1);
}

} // namespace
