// Edits in bytes, and what of them is one undo step.
#include "platform/text/TextParts.h"

#include <QMimeData>

namespace {

using namespace Qt::StringLiterals;

using TextEditingTest = TextParts;

TEST_F(TextEditingTest, TypingInARowIsOneStepUntilItIsEnded) {
    editing.Type(QByteArrayLiteral("a"));
    editing.Type(QByteArrayLiteral("b"));
    editing.EndTyping();
    editing.Type(QByteArrayLiteral("c"));
    Send(Control::SCI_UNDO);
    EXPECT_EQ(Text(), u"ab"_s);
    Send(Control::SCI_UNDO);
    EXPECT_EQ(Text(), u""_s);
}

TEST_F(TextEditingTest, AReplacementIsOneStepAndTheCaretStandsBehindIt) {
    Put(u"one two"_s);
    editing.Replace({0, 3}, QByteArrayLiteral("four"), StyleRuns(4, 0));
    EXPECT_EQ(Text(), u"four two"_s);
    EXPECT_EQ(editing.Selection(), (ByteRange{4, 4}));
    Send(Control::SCI_UNDO);
    EXPECT_EQ(Text(), u"one two"_s);
}

TEST_F(TextEditingTest, ASelectionIsFromTheAnchorToTheCaret) {
    Put(u"abcd"_s);
    editing.Select(3, 1);
    EXPECT_EQ(editing.Selection(), (ByteRange{1, 3}));
    EXPECT_EQ(editing.Caret(), 1);
    editing.Type(QByteArrayLiteral("x"));
    EXPECT_EQ(Text(), u"axd"_s);
}

TEST_F(TextEditingTest, TextFromOutsideTakesTheDocumentsLineEnds) {
    Put(u"a\nb"_s);
    EXPECT_EQ(editing.Incorporate(u"1\r\n2\r3\n"_s), QByteArrayLiteral("1\n2\n3\n"));
    Put(u"a"_s);
    EXPECT_EQ(editing.Incorporate(u"1\n2"_s), QByteArrayLiteral("1\r\n2"));
    EXPECT_EQ(editing.Incorporate(u"e\u0301\u2603"_s), QByteArrayLiteral("\xc3\xa9&#9731;"));
}

TEST_F(TextEditingTest, NothingComesOfASourceWithoutText) {
    Put(u"a"_s);
    const QMimeData nothing;
    editing.Select(0, 1);
    editing.PasteFrom(nullptr);
    editing.PasteFrom(&nothing);
    EXPECT_EQ(Text(), u"a"_s);
    QMimeData text;
    text.setText(u"b"_s);
    editing.PasteFrom(&text);
    EXPECT_EQ(Text(), u"b"_s);
}

} // namespace
