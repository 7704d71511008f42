// Where windows stand: centred, within reach, tiled, lined up.
#include "app/window/WindowPlace.h"

#include <gtest/gtest.h>

namespace {

TEST(WindowPlace, CentredHalvesAreWholeNumbers) {
    EXPECT_EQ(WindowPlace::Centred(QSize(600, 400), QRect(0, 0, 1024, 768)), QRect(212, 184, 600, 400));
    EXPECT_EQ(WindowPlace::Centred(QSize(601, 401), QRect(0, 0, 1024, 768)), QRect(212, 184, 601, 401));
    EXPECT_EQ(WindowPlace::Centred(QSize(600, 400), QRect(0, 0, 1025, 769)), QRect(212, 184, 600, 400));
    EXPECT_EQ(WindowPlace::Centred(QSize(600, 400), QRect(1024, 100, 1024, 768)), QRect(1236, 284, 600, 400));
}

TEST(WindowPlace, SizeIsCutOnlyWhereNobodyCouldHaveSetIt) {
    const QList<QRect> screens = {QRect(0, 0, 1024, 768), QRect(1024, 0, 1280, 1024)};
    EXPECT_EQ(WindowPlace::Possible(QSize(2400, 1100), screens), QSize(2400, 1100));
    EXPECT_EQ(WindowPlace::Possible(QSize(4608, 2048), screens), QSize(4608, 2048));
    EXPECT_EQ(WindowPlace::Possible(QSize(1 << 24, 600), screens), QSize(4608, 600));
    EXPECT_EQ(WindowPlace::Possible(QSize(600, 1 << 24), screens), QSize(600, 2048));
    EXPECT_EQ(WindowPlace::Possible(QSize(600, 400), {}), QSize(600, 400));
}

TEST(WindowPlace, ReachableMovesAsLittleAsNeeded) {
    const QList<QRect> screens = {QRect(0, 0, 1024, 768), QRect(1024, 0, 1280, 1024)};
    const struct {
        QRect window, place;
    } rows[] = {
        {{10, 10, 600, 400}, {10, 10, 600, 400}},       // on the screen
        {{-450, 10, 600, 400}, {-450, 10, 600, 400}},   // enough of the title bar shows
        {{-550, 10, 600, 400}, {0, 10, 600, 400}},      // too little shows
        {{10, -10, 600, 400}, {10, 0, 600, 400}},       // the title bar is above the screen
        {{10, 760, 600, 400}, {10, 368, 600, 400}},     // below it
        {{9000, 9000, 600, 400}, {424, 368, 600, 400}}, // off all screens: the first one
        {{-9000, -9000, 600, 400}, {0, 0, 600, 400}},
        {{2000, 100, 600, 400}, {2000, 100, 600, 400}},     // on the second, partly
        {{2250, 100, 600, 400}, {1704, 100, 600, 400}},     // grip lost on the second: stays there
        {{-2990, 10, 3000, 2000}, {0, 0, 3000, 2000}},      // larger than any screen
        {{10, 10, 1 << 24, 1 << 24}, {10, 10, 4608, 2048}}, // no window at all
        {{-9000, 10, 600, 1 << 24}, {0, 0, 600, 2048}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(WindowPlace::Reachable(row.window, screens), row.place)
            << row.window.x() << ',' << row.window.y();
    EXPECT_EQ(WindowPlace::Reachable(QRect(9000, 0, 10, 10), {}), QRect(9000, 0, 10, 10));
}

TEST(WindowPlace, TilesStandOneBelowTheOther) {
    EXPECT_TRUE(WindowPlace::TiledHorizontally(0, QSize(900, 600)).isEmpty());
    EXPECT_EQ(WindowPlace::TiledHorizontally(1, QSize(900, 600)), QList<QRect>({{0, 0, 900, 600}}));
    EXPECT_EQ(WindowPlace::TiledHorizontally(3, QSize(900, 600)),
              QList<QRect>({{0, 0, 900, 200}, {0, 200, 900, 200}, {0, 400, 900, 200}}));
    EXPECT_EQ(WindowPlace::TiledHorizontally(4, QSize(900, 600)),
              QList<QRect>({{0, 0, 450, 300}, {0, 300, 450, 300}, {450, 0, 450, 300}, {450, 300, 450, 300}}));
    EXPECT_EQ(WindowPlace::TiledHorizontally(5, QSize(900, 600)), QList<QRect>({{0, 0, 450, 300},
                                                                                {0, 300, 450, 300},
                                                                                {450, 0, 450, 200},
                                                                                {450, 200, 450, 200},
                                                                                {450, 400, 450, 200}}));
}

TEST(WindowPlace, TilesLeaveNoGap) {
    for (int windows = 1; windows < 12; ++windows) {
        int covered = 0;
        for (const QRect& place : WindowPlace::TiledHorizontally(windows, QSize(701, 503)))
            covered += place.width() * place.height();
        EXPECT_EQ(covered, 701 * 503) << windows;
    }
}

TEST(WindowPlace, IconsLineUpFromTheLowerLeft) {
    EXPECT_EQ(WindowPlace::IconsInRows(3, QSize(200, 30), QSize(500, 400)),
              QList<QRect>({{0, 370, 200, 30}, {200, 370, 200, 30}, {0, 340, 200, 30}}));
    EXPECT_EQ(WindowPlace::IconsInRows(1, QSize(200, 30), QSize(100, 400)),
              QList<QRect>({{0, 370, 200, 30}}));
}

} // namespace
