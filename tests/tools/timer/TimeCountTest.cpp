// The timer's counters and the lines of its log.
#include "tools/timer/TimeCount.h"

#include "platform/values/Dates.h"
#include "support/Text.h"
#include "tools/timer/DateLog.h"

#include <gtest/gtest.h>
#include <QDate>
#include <QLocale>

namespace {

struct Row {
    int ticks;
    const char16_t* text;
};

const Row rows[] = {
    {0, u"0 Hrs 0 Mins 0 Secs"},
    {1, u"0 Hrs 0 Mins 10 Secs"},
    {5, u"0 Hrs 0 Mins 50 Secs"},
    {6, u"0 Hrs 1 Mins 0 Secs"},
    {7, u"0 Hrs 1 Mins 10 Secs"},
    {359, u"0 Hrs 59 Mins 50 Secs"},
    {360, u"1 Hrs 0 Mins 0 Secs"},
    {366, u"1 Hrs 1 Mins 0 Secs"},
    {8640, u"24 Hrs 0 Mins 0 Secs"},
    {8641, u"24 Hrs 0 Mins 10 Secs"},
    {3'600'000, u"10000 Hrs 0 Mins 0 Secs"},
};

TEST(TimeCount, Rows) {
    for (const Row& row : rows) {
        TimeCount count;
        for (int i = 0; i < row.ticks; ++i)
            count.Tick();
        EXPECT_EQ(count.Text(), QString::fromUtf16(row.text));
    }
}

TEST(DateLog, ALineIsTheShortDateAndTheTime) {
    EXPECT_EQ(LogLine(QDate(2023, 3, 5), QLocale(QLocale::English, QLocale::UnitedStates),
                      QStringLiteral("1 Hrs 2 Mins 30 Secs")),
              QStringLiteral("3/5/23 - 1 Hrs 2 Mins 30 Secs"));
    EXPECT_EQ(LogLine(QDate(2023, 3, 5), QLocale(QLocale::German), QStringLiteral("x")),
              QStringLiteral("05.03.23 - x"));
}

TEST(DateLog, LinesAreSeparatedAndTheFirstStandsAlone) {
    EXPECT_EQ(WithLine(QString(), QStringLiteral("a")), QStringLiteral("a"));
    EXPECT_EQ(WithLine(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("a\r\nb"));
}

} // namespace
