// Finding a stored text once more: from where, in which direction, and what is said where there is none.
#include "tools/find/FindAgain.h"

#include "support/TestFrame.h"
#include "tools/find/FindState.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

class FindAgainTest : public testing::Test {
  protected:
    FindAgainState& State() { return frame.State<FindAgainState>(); }
    QString Search(const char* marked) {
        frame.SetMarked(marked);
        FindAgain(frame);
        return frame.Marked();
    }

    TestFrame frame;
};

TEST_F(FindAgainTest, TheFirstSearchTakesAMatchAtTheCaret) {
    State().Text = u"ab"_s;
    EXPECT_EQ(Search("x|ab ab"), u"x[ab] ab"_s);
    EXPECT_FALSE(State().FirstSearch);
    EXPECT_EQ(State().LastCaret, 1);
    // From where the last search ended it goes on a character further.
    EXPECT_EQ(Search("x|ab ab"), u"xab [ab]"_s);
    EXPECT_EQ(State().LastCaret, 4);
    // From anywhere else the caret's own place counts.
    EXPECT_EQ(Search("x|ab ab"), u"x[ab] ab"_s);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(FindAgainTest, BackwardAMatchLiesInFrontOfTheCaret) {
    State().Text = u"ab"_s;
    State().Direction = 0;
    EXPECT_EQ(Search("ab ab ab|"), u"ab ab [ab]"_s);
    EXPECT_EQ(Search("ab ab |ab"), u"ab [ab] ab"_s);
    // Where the last search ended, one place more is looked at.
    State().LastCaret = 2;
    EXPECT_EQ(Search("xa|b"), u"x[ab]"_s);
    State().LastCaret = 0;
    EXPECT_EQ(Search("xa|b"), u"xa|b"_s);
    EXPECT_EQ(Search("a|b"), u"a|b"_s) << "a place in front of the first character is none";
    EXPECT_EQ(Search("xab|"), u"x[ab]"_s);
}

TEST_F(FindAgainTest, CaseCountsWhenTheFlagIsSet) {
    State().Text = u"É"_s;
    EXPECT_EQ(Search("|x\xE9"), QString::fromLatin1("x[\xE9]"));
    State().MatchCase = true;
    State().FirstSearch = true;
    EXPECT_EQ(Search("|\xE9\xC9"), QString::fromLatin1("\xE9[\xC9]"));
    // Nothing grows in upper case: places stay what they are.
    State().MatchCase = false;
    State().Text = u"b"_s;
    EXPECT_EQ(Search("|\xDF\xDF"
                     "b"),
              QString::fromLatin1("\xDF\xDF[b]"));
}

TEST_F(FindAgainTest, SaysWhereThereIsNone) {
    State().Text = u"zz"_s;
    EXPECT_EQ(Search("a|b"), u"a|b"_s);
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].text, u"Cannot find \"zz\""_s);
    EXPECT_EQ(frame.prompts.asked[0].title, u"The Tarnwick"_s);
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::None);
    EXPECT_EQ(State().LastCaret, 1);
    EXPECT_FALSE(State().FirstSearch);
}

TEST_F(FindAgainTest, WithoutADocumentNothingIsFound) {
    frame.CloseDocument();
    State().Text = u"a"_s;
    FindAgain(frame);
    EXPECT_EQ(frame.prompts.Messages(), QStringList(u"Cannot find \"a\""_s));
}

} // namespace
