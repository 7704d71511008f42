#include "editor/typing/UserButtonKeys.h"

#include "editor/typing/UserButtonTexts.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char* name;
    int KeyCode;
    int Shift;
    const char* after; ///< of "a[x]b", where button n writes "<Bn>" and "</Bn>"
};

class UserButtonKeysTest : public testing::TestWithParam<Row> {};

TEST_P(UserButtonKeysTest, RunTheButton) {
    TestFrame frame;
    auto& texts = frame.State<UserButtonTexts>();
    for (size_t n = 0; n < texts.FirstBut.size(); ++n) {
        texts.FirstBut[n] = QStringLiteral("<B%1>").arg(n);
        texts.SecondBut[n] = QStringLiteral("</B%1>").arg(n);
    }
    frame.SetMarked("a[x]b");
    UserButtonKeys(frame).KeyDown(GetParam().KeyCode, GetParam().Shift);
    EXPECT_EQ(frame.Marked(), QString::fromLatin1(GetParam().after));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UserButtonKeysTest,
    testing::Values(Row{"first", '1', 2, "a<B0>x|</B0>b"}, Row{"ninth", '9', 2, "a<B8>x|</B8>b"},
                    Row{"nought_is_the_tenth", '0', 2, "a<B9>x|</B9>b"},
                    Row{"no_digit_below", '0' - 1, 2, "a[x]b"}, Row{"no_digit_above", '9' + 1, 2, "a[x]b"},
                    Row{"without_ctrl", '1', 0, "a[x]b"}, Row{"with_shift_too", '1', 3, "a[x]b"},
                    Row{"with_alt_too", '1', 6, "a[x]b"}, Row{"ctrl_itself", 17, 2, "a[x]b"}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
