// A colour number's other forms.
#include "editor/EditorColors.h"

#include "support/Text.h"

#include <gtest/gtest.h>

TEST(EditorColors, RedIsTheLowByte) {
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
        EXPECT_EQ(EditorColors::RtfText(number), QString::fromLatin1(text));
}

TEST(EditorColors, NumbersGoToTheScreenAndBack) {
    EXPECT_EQ(EditorColors::ToQColor(0x030201), QColor(1, 2, 3));
    for (const int number : {0, 255, 32767, 0x030201, 16777215})
        EXPECT_EQ(EditorColors::FromQColor(EditorColors::ToQColor(number)), number);
}
