// The two readings of ColoredTags.
#include "editor/color/ColoredTags.h"

#include "platform/store/Settings.h"
#include "support/FreshUser.h"

#include <gtest/gtest.h>

namespace {

TEST(ColoredTags, TheTwoReadingsDifferBeyondOne) {
    const struct {
        const char* stored;
        bool writes, checked;
    } rows[] = {
        {"0", false, false}, {"1", true, true},      {"2", true, false},  {"-1", true, false},
        {"", false, false},  {"True", false, false}, {"1.0", true, true},
    };
    FreshUser();
    Settings store;
    EXPECT_TRUE(WritesColored(store));
    EXPECT_TRUE(ColoredTagsChecked(store));
    for (const auto& row : rows) {
        store.Write(Keys::ColoredTags, QString::fromLatin1(row.stored));
        EXPECT_EQ(WritesColored(store), row.writes) << row.stored;
        EXPECT_EQ(ColoredTagsChecked(store), row.checked) << row.stored;
    }
}

} // namespace
