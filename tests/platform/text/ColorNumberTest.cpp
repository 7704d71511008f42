#include "platform/text/ColorNumber.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <QColor>

TEST(ColorNumber, RedIsTheLowByte) {
    const std::pair<int, const char*> rows[] = {
        {0, "\\red0\\green0\\blue0"},
        {16711680, "\\red0\\green0\\blue255"},
        {32768, "\\red0\\green128\\blue0"},
        {255, "\\red255\\green0\\blue0"},
        {32767, "\\red255\\green127\\blue0"},
        {8421504, "\\red128\\green128\\blue128"},
        {16777215, "\\red255\\green255\\blue255"},
        {0x7F000001, "\\red1\\green0\\blue0"},
    };
    for (const auto& [number, text] : rows)
        EXPECT_EQ(RtfColor(number), QString::fromLatin1(text));
}

TEST(ColorNumber, NumbersGoToTheScreenAndBack) {
    EXPECT_EQ(ToQColor(0x030201), QColor(1, 2, 3));
    for (const int number : {0, 255, 32767, 0x030201, 16777215})
        EXPECT_EQ(FromQColor(ToQColor(number)), number);
}

TEST(ColorNumber, SplitsIntoItsParts) {
    EXPECT_EQ(PartsOf(0x030201), (ColorParts{.red = 1, .green = 2, .blue = 3}));
    EXPECT_EQ(PartsOf(0x7F0000FF), (ColorParts{.red = 255, .green = 0, .blue = 0}));
    EXPECT_EQ(PartsOf(-1), (ColorParts{.red = 255, .green = 255, .blue = 255}));
}

TEST(ColorHex, SixUpperCaseDigitsRedFirst) {
    const std::pair<ColorNumber, const char*> rows[] = {
        {0, "000000"},        {255, "FF0000"},      {65280, "00FF00"},
        {16711680, "0000FF"}, {16777215, "FFFFFF"}, {8421376, "008080"},
        {1, "010000"},        {11259375, "EFCDAB"}, {-1, "FFFFFF"},
    };
    for (const auto& [color, digits] : rows)
        EXPECT_EQ(ColorHex(color), QString::fromLatin1(digits)) << color;
}
