// Picking a colour, and a colour's form on the web.
#include "dialogs/PickColor.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>

TEST(PickColor, GivesDecimalTextWithALeadingBlankOrNothing) {
    TestFrame frame;
    frame.prompts.colorAnswers = {255, 0, std::nullopt};
    EXPECT_EQ(PickColor(frame, nullptr), QStringLiteral(" 255"));
    EXPECT_EQ(PickColor(frame, nullptr), QStringLiteral(" 0"));
    EXPECT_EQ(PickColor(frame, nullptr), QString());
}

TEST(PickColor, CustomColoursDoNotOutliveTheCall) {
    TestFrame frame;
    frame.prompts.colorAnswers = {1, 2};
    frame.prompts.customColorsLeft = QByteArray(64, '\7');
    PickColor(frame, nullptr);
    EXPECT_EQ(frame.prompts.customColorsSeen, QByteArray(64, '\0'));
    frame.prompts.customColorsSeen.clear();
    PickColor(frame, nullptr);
    EXPECT_EQ(frame.prompts.customColorsSeen, QByteArray(64, '\0'));
}

TEST(ColorHex, SixUpperCaseDigitsRedFirst) {
    struct Row {
        const char* picked;
        const char* digits;
    };
    const Row rows[] = {{"", "000000"},         {" 0", "000000"},        {" 255", "FF0000"},
                        {" 65280", "00FF00"},   {" 16711680", "0000FF"}, {" 16777215", "FFFFFF"},
                        {" 8421376", "008080"}, {"1", "010000"},         {" 11259375", "EFCDAB"},
                        {"-1", "FFFFFF"},       {"no colour", "000000"}};
    for (const Row& row : rows)
        EXPECT_EQ(ColorHex(QString::fromLatin1(row.picked)), QString::fromLatin1(row.digits)) << row.picked;
}
