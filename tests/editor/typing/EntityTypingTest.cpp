#include "editor/typing/EntityTyping.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char* name;
    int code;
    const char* setting; ///< ConvertChar
    int left;            ///< of the code
    const char* after;   ///< of "a[b]c"
};

class EntityTypingTest : public testing::TestWithParam<Row> {};

TEST_P(EntityTypingTest, WritesTheEntityOrLeavesTheKey) {
    TestFrame frame;
    frame.Store().Write(Keys::ConvertChar, QString::fromLatin1(GetParam().setting));
    frame.SetMarked("a[b]c");
    int KeyAscii = GetParam().code;
    EntityTyping(frame.Store(), frame.Box()).KeyPress(KeyAscii);
    EXPECT_EQ(KeyAscii, GetParam().left);
    EXPECT_EQ(frame.Marked(), QString::fromLatin1(GetParam().after));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EntityTypingTest,
    testing::Values(Row{"letter", 233, "1", 0, "a&eacute;|c"}, Row{"upper_case", 201, "1", 0, "a&Eacute;|c"},
                    Row{"sharp_s", 223, "1", 0, "a&szlig;|c"}, Row{"left_out", 208, "1", 208, "a[b]c"},
                    Row{"ascii", 97, "1", 97, "a[b]c"}, Row{"no_key", 0, "1", 0, "a[b]c"},
                    Row{"off", 233, "0", 233, "a[b]c"}, Row{"only_one_is_on", 233, "2", 233, "a[b]c"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(EntityTyping, WritesThemInsideTagsToo) {
    TestFrame frame;
    frame.SetMarked("<IMG ALT=\"|\">");
    int KeyAscii = 228;
    EntityTyping(frame.Store(), frame.Box()).KeyPress(KeyAscii);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<IMG ALT=\"&auml;|\">"));
}

} // namespace
