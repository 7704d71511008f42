#include "editor/aids/TextZoom.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>

TEST(TextZoom, GoesInStepsAndNoFurther) {
    struct Row {
        int from;
        int steps;
        int to;
    };
    const Row rows[] = {
        {100, 1, 110},  {100, -1, 90},  {100, 2, 120},
        {110, -1, 100}, {160, 1, 180},  {500, 1, 500},
        {400, 1, 500},  {50, -1, 50},   {60, -1, 50},
        {100, 99, 500}, {100, -99, 50}, {100, 0, 100},
        {104, 1, 110},  {104, -1, 100}, {496, 1, 500},
        {51, -1, 50},   {119, 1, 120},  {100, 2'000'000'000, 500},
    };
    for (const Row& row : rows)
        EXPECT_EQ(TextZoom::Beyond(row.from, row.steps), row.to) << row.from << " by " << row.steps;
}

TEST(TextZoom, StoredLevelIsHeldToWhatCanBeDrawn) {
    struct Row {
        const char* stored;
        int percent;
    };
    const Row rows[] = {{"120", 120}, {"", 100},      {"x", 100},   {"0", 100},   {"-5", 100},
                        {"1", 50},    {"99999", 500}, {"104", 104}, {"1e99", 500}};
    for (const Row& row : rows) {
        TestFrame frame;
        frame.Store().Write(Keys::Zoom, QString::fromLatin1(row.stored));
        EXPECT_EQ(TextZoom::Stored(frame.Store()), row.percent) << row.stored;
    }
    EXPECT_EQ(TextZoom::Stored(TestFrame().Store()), 100);
}

TEST(TextZoom, IsStoredAndToldInThePanel) {
    TestFrame frame;
    int told = 0;
    QObject::connect(&frame.State<TextZoom>(), &TextZoom::Changed, frame.window.get(),
                     [&](int percent) { told = percent; });
    frame.State<TextZoom>().Set(frame, 120);
    EXPECT_EQ(told, 120);
    EXPECT_EQ(frame.statuses, QStringList(QStringLiteral("Zoom 120 %")));
    EXPECT_EQ(Settings().Read(Keys::Zoom), QStringLiteral("120"));
}
