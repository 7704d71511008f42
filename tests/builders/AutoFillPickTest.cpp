// A colour of one's own, picked from the auto-fill list.
#include "builders/AutoFillPick.h"

#include "support/TypingFrame.h"

#include <gtest/gtest.h>

TEST(AutoFillPick, WritesThePickedColor) {
    struct Row {
        ColorNumber picked;
        const char* text;
    };
    for (const auto& [picked, text] :
         {Row{255, "#FF0000"}, Row{0, "#000000"}, Row{1, "#010000"}, Row{0x00ABCDEF, "#EFCDAB"}}) {
        TypingFrame frame;
        FillAutoFillHooks(frame);
        frame.prompts.colorAnswers = {picked};
        frame.Type("<font color\r\r");
        EXPECT_EQ(frame.Marked(), QStringLiteral("<font COLOR=\"%1|\"").arg(QLatin1String(text)));
    }
}

TEST(AutoFillPick, CancelLetsTheEnterThrough) {
    TypingFrame frame;
    FillAutoFillHooks(frame);
    frame.prompts.colorAnswers = {std::nullopt};
    frame.Type("<font color\r\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<font COLOR=\"\r\n|\""));
}
