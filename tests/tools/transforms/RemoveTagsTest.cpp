// The command that removes tags: what it asks, what stays, and that there is no way back.
#include "tools/transforms/RemoveTags.h"

#include "support/CommandTest.h"
#include "tools/ToolTest.h"
#include "tools/transforms/SlowTagRemoval.h"

namespace {

class RemoveTagsTest : public ToolTest {
  protected:
    void Remove(MsgAnswer answer = MsgAnswer::Yes) {
        frame.prompts.messageAnswers = {answer};
        Run(u"mnuRemoveTags");
    }
};

TEST_F(RemoveTagsTest, AsksFirst) {
    frame.SetMarked("<B>x</B>|");
    Remove(MsgAnswer::No);
    EXPECT_EQ(frame.Marked(), T(u"<B>x</B>|"));
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].text, T(u"This Option Cannot Be Undone, Continue?"));
    EXPECT_EQ(frame.prompts.asked[0].title, T(u"Notice!"));
    EXPECT_EQ(frame.prompts.asked[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Exclamation);
}

TEST_F(RemoveTagsTest, TakesThemOutOfTheWholeTextOrOfASelection) {
    const char* const rows[][2] = {
        {"<B>x</B>|", "x|"},
        {"a > b|", "a [>] b"},
        {"<I>[<B>x</B>]</I>", "<I>x|</I>"},
    };
    for (const auto& row : rows) {
        frame.SetMarked(row[0]);
        Remove();
        EXPECT_EQ(frame.Marked(), QString::fromLatin1(row[1]));
    }
    // It says nothing at its end.
    EXPECT_EQ(frame.prompts.asked.size(), 3);
}

TEST_F(RemoveTagsTest, TheTextBetweenKeepsItsColors) {
    frame.SetText(T(u"a<B>bc</B>d"));
    Box().SetSelStart(5);
    Box().SetSelLength(4);
    Box().SetSelColor(0xff);
    Box().SetSelStart(0);
    Remove();
    const Stretches expected = {{T(u"ab"), 0}, {T(u"c"), 0xff}, {T(u"d"), 0}};
    EXPECT_EQ(frame.Colors(), expected);
    EXPECT_TRUE(frame.active->modified);
}

TEST_F(RemoveTagsTest, UndoEndsThere) {
    frame.SetText(T(u"<B>x</B>"));
    Remove();
    EXPECT_EQ(Box().Send(RichTextBox::Message::CanUndo), 0);
    Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(Box().Text(), T(u"x"));
    // What is typed from here on is undone as ever.
    Box().SetSelText(T(u"y"));
    Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(frame.Colors(), (Stretches{{T(u"x"), 0}}));
}

TEST_F(RemoveTagsTest, WhereNothingIsRemovedUndoStays) {
    frame.SetText(T(u"a"));
    Box().SetSelText(T(u" > b"));
    Remove();
    EXPECT_EQ(Box().Text(), T(u"a > b"));
    EXPECT_EQ(Box().Send(RichTextBox::Message::CanUndo), 1);
}

TEST_F(RemoveTagsTest, TheTextHasTheKeys) {
    frame.SetText(T(u"<B>x</B>"));
    frame.window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.window.get()));
    frame.window->setFocus();
    Remove();
    EXPECT_TRUE(Box().hasFocus());
}

TEST_F(RemoveTagsTest, LeavesAPageAsTheStepsOneByOneLeaveIt) {
    const QString page =
        Latin("<TR><TD CLASS=\"x\">caf\xE9</TD>\r\n<TD>{a} <A HREF=\"x.htm\">link</A></TD></TR>\r\n")
            .repeated(200);
    for (const int selected : {0, 10'000}) {
        frame.SetText(page);
        Box().SetSelStart(100);
        Box().SetSelLength(selected);
        RichTextBox told;
        told.SetText(page);
        told.SetSelStart(100);
        told.SetSelLength(selected);
        RemoveTagsSlowly(told);
        Remove();
        EXPECT_TRUE(Box().Text() == told.Text());
        EXPECT_EQ(Box().SelStart(), told.SelStart());
        EXPECT_EQ(Box().SelLength(), told.SelLength());
        EXPECT_LT(Box().TextLength(), page.size() - 20);
    }
}

TEST_F(RemoveTagsTest, TextBeyondTheCodePageStays) {
    // Two units each, of four bytes.
    const QString face = T(u"\U0001f600");
    for (const int selected : {0, 1}) {
        Box().SetHolds(CharacterSet::Unicode);
        frame.SetText(face + T(u"<B>") + face + T(u"</B>") + face + T(u"<I>"));
        Box().SetSelStart(2);
        Box().SetSelLength(selected * 9);
        Remove();
        EXPECT_EQ(Box().Text(), selected ? face.repeated(3) + T(u"<I>") : face.repeated(3));
        EXPECT_EQ(Box().SelStart(), selected ? 4 : 6);
        EXPECT_EQ(Box().SelLength(), 0);
    }
}

TEST_F(RemoveTagsTest, WithoutADocumentNothingIsAsked) {
    frame.CloseDocument();
    Run(u"mnuRemoveTags");
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

} // namespace
