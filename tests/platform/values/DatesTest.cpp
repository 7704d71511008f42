// Dates in the words and forms of a locale.
#include "platform/values/Dates.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <QDate>
#include <QLocale>

namespace {

TEST(LongDate, TwoDigitsForTheDayAndTheLocalesWords) {
    EXPECT_EQ(LongDate(QDate(2023, 3, 5), QLocale::c()), QStringLiteral("Sunday, March 05, 2023"));
    EXPECT_EQ(LongDate(QDate(1999, 12, 31), QLocale::c()), QStringLiteral("Friday, December 31, 1999"));
    EXPECT_EQ(LongDate(QDate(2023, 3, 5), QLocale(QLocale::German)),
              QStringLiteral("Sonntag, M\u00e4rz 05, 2023"));
}

TEST(ShortDate, TheLocalesOwn) {
    EXPECT_EQ(ShortDate(QDate(2023, 3, 5), QLocale(QLocale::English, QLocale::UnitedStates)),
              QStringLiteral("3/5/23"));
    EXPECT_EQ(ShortDate(QDate(2023, 3, 5), QLocale(QLocale::German)), QStringLiteral("05.03.23"));
}

} // namespace
