// What the working thread has to show, on its way to the window.
#include "ftp/ScreenText.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace {

const QString line = QStringLiteral("x");

TEST(ScreenText, LinesAndMarks) {
    ScreenText text;
    EXPECT_TRUE(text.AddLine(line));
    EXPECT_FALSE(text.AddMark());
    EXPECT_FALSE(text.AddMark());
    EXPECT_FALSE(text.AddLine(line));
    EXPECT_EQ(text.Take().text, QStringLiteral("x\n##\nx\n"));
    EXPECT_EQ(text.Take().text, QString());
    // Told again once it was taken.
    EXPECT_TRUE(text.AddMark());
}

TEST(ScreenText, ALineHoldsSoManyMarks) {
    ScreenText text;
    for (int i = 0; i < ScreenText::MarksInALine + 1; ++i)
        text.AddMark();
    text.AddLine(line);
    const QString taken = text.Take().text;
    EXPECT_EQ(taken, QString(ScreenText::MarksInALine, u'#') + QStringLiteral("\n#\nx\n"));
}

TEST(ScreenText, TheLatestProgressCounts) {
    ScreenText text;
    EXPECT_TRUE(text.Set({line, 1, 10}));
    EXPECT_FALSE(text.Set({line, 2, 10}));
    EXPECT_EQ(text.Take().progress.done, 2);
    EXPECT_EQ(text.Take().progress.done, 2);
}

TEST(ScreenText, WhoeverFloodsWaitsUntilSomethingIsTaken) {
    ScreenText text;
    constexpr int lines = 100;
    const QString big(100'000, u'x');
    std::atomic<int> added = 0;
    std::thread flood([&] {
        for (int i = 0; i < lines; ++i, ++added)
            text.AddLine(big);
    });
    qsizetype all = 0;
    while (added < lines) {
        const qsizetype size = text.Take().text.size();
        EXPECT_LE(size, ScreenText::Most + big.size() + 1);
        all += size;
    }
    flood.join();
    all += text.Take().text.size();
    EXPECT_EQ(all, lines * (big.size() + 1));
}

TEST(ScreenText, ClosingLetsNobodyWait) {
    ScreenText text;
    std::atomic<bool> started = false;
    std::thread flood([&] {
        for (int i = 0; i < 100; ++i) {
            text.AddLine(QString(100'000, u'x'));
            started = true;
        }
    });
    while (!started)
        std::this_thread::yield();
    text.Close();
    flood.join();
    EXPECT_FALSE(text.AddLine(line));
}

} // namespace
