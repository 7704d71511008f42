// Lengths in twips and in pixels.
#include "platform/values/Twips.h"

#include <gtest/gtest.h>

namespace {

TEST(Twips, FifteenToThePixel) {
    EXPECT_EQ(Twips::FromPixels(600), 9000);
    EXPECT_EQ(Twips::ToPixels(9000), 600);
    EXPECT_EQ(Twips::ToPixels(75), 5);
    EXPECT_EQ(Twips::ToPixels(40), 3);
    EXPECT_EQ(Twips::ToPixels(7), 0);
    EXPECT_EQ(Twips::ToPixels(7.5), 1);
    EXPECT_EQ(Twips::ToPixels(-7.5), -1);
    EXPECT_EQ(Twips::ToPixels(8), 1);
    EXPECT_EQ(Twips::ToPixels(-75), -5);
    EXPECT_EQ(Twips::ToPixels(1e30), 1 << 24);
    EXPECT_EQ(Twips::ToPixels(-1e30), -(1 << 24));
}

} // namespace
