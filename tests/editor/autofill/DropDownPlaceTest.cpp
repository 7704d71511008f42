// Where the auto-fill list stands: the place it reckons, and the place on the screen.
#include "editor/autofill/DropDownPlace.h"

#include <gtest/gtest.h>

TEST(DropDownPlace, Twips) {
    EXPECT_EQ(DropDownTwips({0, 0}, {0, 0}), QPoint(100, 2070));
    EXPECT_EQ(DropDownTwips({300, 450}, {10, 20}), QPoint(300 + 150 + 100, 450 + 300 + 2070));
    EXPECT_EQ(DropDownTwips({-60, -60}, {1, 0}), QPoint(55, 2010));
}

TEST(DropDownPlace, OnTheScreen) {
    const QRect area(0, 0, 800, 600);
    const QSize list(150, 200);
    struct Row {
        const char* name;
        QRect caretLine;
        QSize list;
        QRect area;
        QRect expected;
    };
    const Row rows[] = {
        {"below the line", {100, 50, 1, 16}, list, area, {100, 66, 150, 200}},
        {"below, exactly fitting", {0, 384, 1, 16}, list, area, {0, 400, 150, 200}},
        {"above where below is too short", {100, 500, 1, 16}, list, area, {100, 300, 150, 200}},
        {"moved left at the right edge", {790, 50, 1, 16}, list, area, {650, 66, 150, 200}},
        {"shortened below", {0, 40, 1, 16}, list, {0, 0, 800, 156}, {0, 56, 150, 100}},
        {"shortened above", {0, 90, 1, 16}, list, {0, 0, 800, 156}, {0, 0, 150, 90}},
        {"narrowed in a narrow area", {50, 0, 1, 16}, list, {0, 0, 100, 600}, {0, 16, 100, 200}},
        {"caret left of the area", {-500, 0, 1, 16}, list, area, {0, 16, 150, 200}},
        {"an area that starts elsewhere", {5, 110, 1, 10}, list, {20, 100, 300, 400}, {20, 120, 150, 200}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(DropDownRect(row.caretLine, row.list, row.area), row.expected) << row.name;
}

TEST(DropDownPlace, NeverNegative) {
    for (int y = -700; y <= 1300; y += 50) {
        const QRect place = DropDownRect({y, y, 1, 16}, {150, 200}, {0, 0, 800, 600});
        EXPECT_GE(place.width(), 0);
        EXPECT_GE(place.height(), 0);
    }
}
