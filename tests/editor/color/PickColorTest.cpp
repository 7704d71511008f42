// Asking the user for a colour.
#include "editor/color/PickColor.h"

#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

TEST(PickColor, GivesTheColourOrNothing) {
    ScriptedPrompts prompts;
    prompts.colorAnswers = {255, 0, std::nullopt};
    EXPECT_EQ(PickColor(prompts, nullptr), 255);
    EXPECT_EQ(PickColor(prompts, nullptr), 0);
    EXPECT_EQ(PickColor(prompts, nullptr), std::nullopt);
}

TEST(PickColor, ACancelledOneIsBlackToThoseWhoTakeItSo) {
    ScriptedPrompts prompts;
    prompts.colorAnswers = {255, std::nullopt};
    EXPECT_EQ(PickColorOrBlack(prompts, nullptr), 255);
    EXPECT_EQ(PickColorOrBlack(prompts, nullptr), 0);
}

TEST(PickColor, CustomColoursDoNotOutliveTheCall) {
    ScriptedPrompts prompts;
    prompts.colorAnswers = {1, 2};
    prompts.customColorsLeft = QByteArray(64, '\7');
    PickColor(prompts, nullptr);
    EXPECT_EQ(prompts.customColorsSeen, QByteArray(64, '\0'));
    prompts.customColorsSeen.clear();
    PickColor(prompts, nullptr);
    EXPECT_EQ(prompts.customColorsSeen, QByteArray(64, '\0'));
}
