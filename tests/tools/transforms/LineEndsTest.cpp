// The four conversions: what each makes of each line end, that colours go and undo brings them back, and what
// they say.
#include "tools/transforms/LineEnds.h"

#include "support/CommandTest.h"
#include "tools/ToolTest.h"

namespace {

struct Row {
    const char16_t* command;
    const char16_t* before;
    const char16_t* after;
};

const Row rows[] = {
    {u"mnuConvertFromMac", u"a\rb\r", u"a\r\nb\r\n"},
    {u"mnuConvertFromMac", u"a\r\nb", u"a\r\n\nb"},
    {u"mnuConvertFromMac", u"a\nb", u"a\nb"},
    {u"mnuConvertFromMac", u"\r\r", u"\r\n\r\n"},
    {u"mnuConvertFromUNIX", u"a\nb\n", u"a\r\nb\r\n"},
    {u"mnuConvertFromUNIX", u"a\r\nb", u"a\r\r\nb"},
    {u"mnuConvertFromUNIX", u"a\rb", u"a\rb"},
    {u"mnuConvertToMac", u"a\r\nb\r\n", u"a\rb\r"},
    {u"mnuConvertToMac", u"\n\r\n\r", u"\n\r\r"},
    {u"mnuConvertToMac", u"a\nb", u"a\nb"},
    {u"mnuConvertToUNIX", u"a\r\nb\r\n", u"a\nb\n"},
    {u"mnuConvertToUNIX", u"a\r\r\nb", u"a\r\nb"},
    {u"mnuConvertToUNIX", u"", u""},
    {u"mnuConvertToUNIX", u"caf\u00e9\r\n\u20ac", u"caf\u00e9\n\u20ac"},
};

using LineEndsTest = ToolTest;

TEST_F(LineEndsTest, EachReplacesItsLineEndAndSaysSo) {
    for (const Row& row : rows) {
        SCOPED_TRACE(T(row.command).toStdString());
        frame.SetText(T(row.before));
        frame.prompts.asked.clear();
        Run(row.command);
        EXPECT_EQ(Box().Text(), T(row.after));
        EXPECT_EQ(Box().SelStart(), 0);
        EXPECT_EQ(Box().SelLength(), 0);
        ASSERT_EQ(Questions(), QStringList{T(u"Finished!")});
        EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Information);
        EXPECT_EQ(frame.prompts.asked[0].buttons, MsgButtons::OK);
        EXPECT_EQ(frame.prompts.asked[0].title, T(u"The Tarnwick"));
    }
}

TEST_F(LineEndsTest, TheWholeTextTakesTheTextColor) {
    frame.Store().WriteNumber(Keys::TextColor[0], 0x112233);
    for (const bool selected : {false, true}) {
        frame.SetText(T(u"<B>a</B>\r\nb"));
        Box().SetSelStart(2);
        Box().SetSelLength(4);
        Box().SetSelColor(0xff0000);
        if (!selected)
            Box().SetSelStart(4);
        Run(u"mnuConvertToUNIX");
        const Stretches expected = {{T(u"<B>a</B>\nb"), 0x112233}};
        EXPECT_EQ(frame.Colors(), expected);
    }
}

TEST_F(LineEndsTest, OneUndoBringsTextAndColorsBack) {
    for (const bool selected : {false, true}) {
        frame.SetText(T(u"<B>a</B>\r\nb"));
        Box().SetSelStart(2);
        Box().SetSelLength(4);
        Box().SetSelColor(0xff0000);
        if (!selected)
            Box().SetSelStart(4);
        Box().EmptyUndoBuffer();
        const auto before = frame.Colors();
        Run(u"mnuConvertToMac");
        EXPECT_EQ(Box().Text(), T(u"<B>a</B>\rb"));
        Box().Send(RichTextBox::Message::Undo);
        EXPECT_EQ(frame.Colors(), before);
        EXPECT_EQ(Box().Send(RichTextBox::Message::CanUndo), 0);
    }
}

TEST_F(LineEndsTest, WithoutADocumentItSaysThatItFailedAndThatItFinished) {
    frame.CloseDocument();
    for (const char16_t* command :
         {u"mnuConvertFromMac", u"mnuConvertFromUNIX", u"mnuConvertToMac", u"mnuConvertToUNIX"}) {
        frame.prompts.asked.clear();
        Run(command);
        ASSERT_EQ(Questions(), (QStringList{T(u"An error occured, try again!"), T(u"Finished!")}));
        EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Critical);
        EXPECT_EQ(frame.prompts.asked[0].title, T(u"The Tarnwick"));
        EXPECT_EQ(frame.prompts.asked[1].icon, MsgIcon::Information);
    }
}

TEST_F(LineEndsTest, GivesTheTextThatItWrote) {
    EXPECT_EQ(ConvertLineEnds(frame, T(u"a-b"), T(u"-"), T(u"--")), T(u"a--b"));
    EXPECT_EQ(Box().Text(), T(u"a--b"));
}

} // namespace
