#include "editor/views/DesignVisit.h"

#include <gtest/gtest.h>

TEST(DesignVisit, EndsOnce) {
    DesignVisit visit;
    EXPECT_FALSE(visit.End());
    visit.Begin();
    visit.Begin();
    EXPECT_TRUE(visit.ComingFromDesign());
    EXPECT_TRUE(visit.End());
    EXPECT_FALSE(visit.ComingFromDesign());
    EXPECT_FALSE(visit.End());
}
