// The text that commands work on.
#include "editor/frame/ActiveText.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

TEST(ActiveText, IsThatOfTheActiveDocument) {
    TestFrame frame;
    EXPECT_EQ(ActiveText(frame), &frame.Box());
    frame.CloseDocument();
    EXPECT_EQ(ActiveText(frame), nullptr);
}

} // namespace
