// Stretches cut out of a coloured text: on the bytes, and in the control.
#include "platform/text/TextRemoval.h"

#include "platform/text/RichTextFixture.h"

namespace {

StyledText Styled(const QByteArray& text, const QByteArray& styles) {
    StyledText styled{text, {}};
    for (const char style : styles)
        styled.styles.Append(1, style - '0');
    return styled;
}

TEST(Without, LeavesTheRestAndItsStyles) {
    const StyledText whole = Styled("abcdef", "112233");
    const std::vector<ByteRange> none;
    EXPECT_EQ(Without(whole, none), whole);
    EXPECT_EQ(Without(whole, std::vector<ByteRange>{{0, 6}}), Styled("", ""));
    EXPECT_EQ(Without(whole, std::vector<ByteRange>{{1, 3}}), Styled("adef", "1233"));
    EXPECT_EQ(Without(whole, std::vector<ByteRange>{{0, 1}, {1, 2}, {5, 6}}), Styled("cde", "223"));
    EXPECT_EQ(Without(whole, std::vector<ByteRange>{{2, 2}, {4, 6}}), Styled("abcd", "1122"));
}

class RichTextRemoveTest : public RichTextFixture {};

TEST_F(RichTextRemoveTest, TakesStretchesOutInOneStep) {
    Put(QStringLiteral("abcdef"), QStringLiteral("rrggbb"));
    box.Remove(std::vector<CharRange>{{1, 3}, {4, 5}});
    EXPECT_EQ(box.Text(), QStringLiteral("adf"));
    EXPECT_EQ(Colors(), QStringLiteral("rgb"));
    EXPECT_EQ(box.SelStart(), 2);
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_EQ(Signalled().count(QStringLiteral("Change")), 1);
    box.Send(RichTextBox::Message::Undo);
    EXPECT_EQ(box.Text(), QStringLiteral("abcdef"));
    EXPECT_EQ(Colors(), QStringLiteral("rrggbb"));
    EXPECT_EQ(box.Send(RichTextBox::Message::CanUndo), 0);
}

TEST_F(RichTextRemoveTest, CountsCharactersHoweverManyBytesTheyTake) {
    const QString text = QStringLiteral("\u00e9<\u20ac>\r\nb<\u00e9>\U0001F600<x>c");
    box.SetHolds(CharacterSet::Unicode);
    Put(text, QString(text.size(), u'r'));
    std::vector<CharRange> tags;
    for (qsizetype open = text.indexOf(u'<'); open >= 0; open = text.indexOf(u'<', open + 1))
        tags.push_back({static_cast<int>(open), static_cast<int>(text.indexOf(u'>', open)) + 1});
    ASSERT_EQ(tags.size(), 3U);
    box.Remove(tags);
    EXPECT_EQ(box.Text(), QStringLiteral("\u00e9\r\nb\U0001F600c"));
    EXPECT_EQ(box.TextLength(), box.Text().size());
}

TEST_F(RichTextRemoveTest, NothingIsNoChange) {
    Put(QStringLiteral("abc"), QStringLiteral("rgb"));
    box.Remove({});
    EXPECT_EQ(Signalled(), QStringList());
    EXPECT_EQ(box.Send(RichTextBox::Message::CanUndo), 0);
}

TEST_F(RichTextRemoveTest, WhatIsTypedNextTakesTheColorBeforeIt) {
    Put(QStringLiteral("abc"), QStringLiteral("rgb"));
    box.Remove(std::vector<CharRange>{{1, 2}});
    box.SetSelText(QStringLiteral("x"));
    EXPECT_EQ(box.Text(), QStringLiteral("axc"));
    EXPECT_EQ(Colors(), QStringLiteral("rrb"));
}

} // namespace
