// Breaks and list items on the lines of a selection.
#include "tools/transforms/LineTags.h"

#include "tools/ToolTest.h"

namespace {

struct Row {
    const char16_t* command;
    const char* before;
    const char* after;
};

const Row rows[] = {
    {u"mnuAddBreaks", "x[a\r\nb\r\nc]y", "xa<BR>\r\nb<BR>\r\nc|y"},
    {u"mnuAddLi", "x[a\r\nb\r\nc]y", "xa\r\n<LI>b\r\n<LI>c|y"},
    {u"mnuAddBreaks", "[a\r\n]b", "a<BR>\r\n|b"},
    {u"mnuAddLi", "[\r\n\r\n]", "\r\n<LI>\r\n<LI>|"},
    {u"mnuAddBreaks", "[a\nb\rc]", "a\nb\rc|"},
    {u"mnuAddLi", "[abc]", "abc|"},
    {u"mnuAddBreaks", "a\r\n|b", "a\r\n|b"},
    {u"mnuAddLi", "a\r\n|b", "a\r\n|b"},
};

using LineTagsTest = ToolTest;

TEST_F(LineTagsTest, MarkTheLinesOfASelectionAndSaySo) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.before);
        frame.SetMarked(row.before);
        frame.prompts.asked.clear();
        Run(row.command);
        EXPECT_EQ(frame.Marked(), QString::fromLatin1(row.after));
        ASSERT_EQ(Questions(), QStringList{T(u"Finished!")});
        EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Information);
    }
}

TEST_F(LineTagsTest, WithNothingSelectedNothingChanges) {
    frame.SetMarked("a\r\n|b");
    Box().EmptyUndoBuffer();
    Run(u"mnuAddBreaks");
    EXPECT_FALSE(frame.active->modified);
    EXPECT_EQ(Box().Send(RichTextBox::Message::CanUndo), 0);
}

TEST_F(LineTagsTest, WithoutADocumentNothingIsSaid) {
    frame.CloseDocument();
    Run(u"mnuAddBreaks");
    Run(u"mnuAddLi");
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

} // namespace
