// Conversions from text to value and back.
#include "platform/values/Values.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <limits>

TEST(Values, ValReadsTheNumberAtTheStart) {
    struct Row {
        QStringView text;
        double value;
    };
    const Row rows[] = {{u"12pt", 12},   {u"", 0},        {u"abc", 0},
                        {u"  7 ", 7},    {u"-3", -3},     {u"+3", 3},
                        {u"1.5x", 1.5},  {u".5", 0.5},    {u"1.", 1},
                        {u"1.2.3", 1.2}, {u"1E3", 1000},  {u"1e3", 1000},
                        {u"1e", 1},      {u"1e-2", 0.01}, {u"1e+", 1},
                        {u"-", 0},       {u"--1", 0},     {u"1-2", 1},
                        {u" 255", 255},  {u"12,5", 12},   {u"e3", 0},
                        {u"1e400", 0},   {u"nan", 0},     {u"inf", 0},
                        {u"1 6", 16},    {u"\t4", 4},     {u"16711680", 16711680}};
    for (const Row& row : rows)
        EXPECT_DOUBLE_EQ(Values::Val(row.text), row.value) << row.text.toString().toStdString();
}

TEST(Values, WholeValCutsTowardZeroAndAtTheBounds) {
    EXPECT_EQ(Values::WholeVal(u"2.9"), 2);
    EXPECT_EQ(Values::WholeVal(u"-2.9"), -2);
    EXPECT_EQ(Values::WholeVal(u"4294967296"), std::numeric_limits<int>::max());
    EXPECT_EQ(Values::WholeVal(u"-4294967296"), std::numeric_limits<int>::min());
}

TEST(Values, ToNumberWantsTheWholeText) {
    EXPECT_EQ(Values::ToNumber(u"12"), 12);
    EXPECT_EQ(Values::ToNumber(u" -1.5 "), -1.5);
    EXPECT_EQ(Values::ToNumber(u"1E2"), 100);
    for (QStringView text : {u"", u" ", u"12pt", u"abc", u"nan", u"inf", u"-inf", u"1e999", u"1,2", u"True"})
        EXPECT_EQ(Values::ToNumber(text), std::nullopt) << text.toString().toStdString();
}

TEST(Values, ToBooleanKnowsTheTwoWordsAndNumbers) {
    EXPECT_EQ(Values::ToBoolean(u"True"), true);
    EXPECT_EQ(Values::ToBoolean(u"tRUE"), true);
    EXPECT_EQ(Values::ToBoolean(u"false"), false);
    EXPECT_EQ(Values::ToBoolean(u"0"), false);
    EXPECT_EQ(Values::ToBoolean(u"-1"), true);
    EXPECT_EQ(Values::ToBoolean(u"2"), true);
    EXPECT_EQ(Values::ToBoolean(u"yes"), std::nullopt);
    EXPECT_EQ(Values::ToBoolean(u""), std::nullopt);
    EXPECT_EQ(Values::FromBoolean(true), QStringLiteral("True"));
    EXPECT_EQ(Values::FromBoolean(false), QStringLiteral("False"));
}

TEST(Values, TrimCutsBlanksOnly) {
    EXPECT_EQ(Values::Trim(QStringLiteral("  a b  ")), QStringLiteral("a b"));
    EXPECT_EQ(Values::Trim(QStringLiteral(" \ta\r\n ")), QStringLiteral("\ta\r\n"));
    EXPECT_EQ(Values::Trim(QStringLiteral("   ")), QString());
    EXPECT_EQ(Values::Trim(QStringLiteral("\u00a0a")), QStringLiteral("\u00a0a"));
}
