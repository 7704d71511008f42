#include "editor/typing/TypingColor.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

TEST(TypingColor, WhatIsTypedNextHasTheTextColor) {
    TestFrame frame;
    frame.SetMarked("a|b");
    TypingColor color(frame.Store(), frame.Box());
    // The setting counts as it is at the key.
    frame.Store().WriteNumber(Keys::TextColor[0], 255);
    color.KeyPress();
    EXPECT_EQ(frame.Box().SelColor(), 255);
    frame.Store().WriteNumber(Keys::TextColor[0], 4711);
    color.KeyPress();
    EXPECT_EQ(frame.Box().SelColor(), 4711);
    EXPECT_EQ(frame.Box().ColorAt(0), 0);
    EXPECT_EQ(frame.Box().ColorAt(1), 0);
}

TEST(TypingColor, ASelectionKeepsItsOwn) {
    TestFrame frame;
    frame.SetMarked("a[b]");
    frame.Store().WriteNumber(Keys::TextColor[0], 255);
    TypingColor(frame.Store(), frame.Box()).KeyPress();
    EXPECT_EQ(frame.Box().SelColor(), 0);
    EXPECT_EQ(frame.Box().ColorAt(1), 0);
}

} // namespace
