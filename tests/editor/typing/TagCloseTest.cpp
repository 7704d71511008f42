// A typed ">": which tags it colours, what it writes, and what it leaves plain.
#include "editor/color/ColorizeText.h"
#include "support/TypingFrame.h"

#include <gtest/gtest.h>

namespace {

constexpr ColorNumber plain = 0;
constexpr ColorNumber tagColor = 16711680;
constexpr ColorNumber linkColor = 32768;
constexpr ColorNumber imageColor = 255;
constexpr ColorNumber embedColor = 32767;
constexpr ColorNumber commentColor = 8421504;

struct TagRow {
    const char* name;
    const char* before; ///< "|" the caret, "[" and "]" a selection
    const char* after;
    /// The characters [from, to) that have the colour afterwards; all others are plain.
    int from;
    int to;
    ColorNumber color;
};

class TagClose : public testing::TestWithParam<TagRow> {};

TEST_P(TagClose, TextCaretAndColor) {
    const TagRow& row = GetParam();
    TypingFrame frame;
    frame.SetMarked(row.before);
    frame.Type(">");
    EXPECT_EQ(frame.Marked(), QString::fromLatin1(row.after));
    for (int i = 0; i < frame.Box().TextLength(); ++i)
        EXPECT_EQ(frame.Box().ColorAt(i), i >= row.from && i < row.to ? row.color : plain) << "at " << i;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TagClose,
    testing::Values(TagRow{"at_the_documents_end", "<B|", "<B>|", 0, 0, plain},
                    TagRow{"behind_the_last_tag", "<I>x<B|", "<I>x<B>|", 0, 0, plain},
                    TagRow{"before_text_without_a_bracket", "<B| and more", "<B>| and more", 0, 0, plain},
                    TagRow{"before_a_tag", "<B|<I>", "<B>|<I>", 0, 3, tagColor},
                    TagRow{"before_a_lone_bracket", "<B| x>", "<B>| x>", 0, 3, tagColor},
                    TagRow{"no_tag_at_all", "x|<I>", "x>|<I>", 0, 0, plain},
                    TagRow{"at_the_start", "|<I>", ">|<I>", 0, 0, plain},
                    TagRow{"empty_tag", "<|<I>", "<>|<I>", 0, 0, plain},
                    TagRow{"empty_tag_behind_text", "a<|<I>", "a<>|<I>", 0, 0, plain},
                    TagRow{"empty_tag_behind_a_tag", "<U><|<I>", "<U><>|<I>", 0, 0, plain},
                    TagRow{"the_bracket_at_the_caret_is_not_counted", "<U<|<I>", "<U<>|<I>", 0, 4, tagColor},
                    TagRow{"the_nearest_bracket", "<a <b|<I>", "<a <b>|<I>", 3, 6, tagColor},
                    TagRow{"closed_already", "<B>x|<I>", "<B>x>|<I>", 0, 0, plain},
                    TagRow{"a_second_bracket", "<B>|<I>", "<B>>|<I>", 0, 4, tagColor},
                    TagRow{"a_second_bracket_at_the_end", "<B>|", "<B>>|", 0, 4, tagColor},
                    TagRow{"image", "<IMG SRC=\"a.gif\"|<I>", "<IMG SRC=\"a.gif\">|<I>", 0, 17, imageColor},
                    TagRow{"link", "x<a href=\"b\"|<I>", "x<a href=\"b\">|<I>", 1, 13, linkColor},
                    TagRow{"link_end", "</A|<I>", "</A>|<I>", 0, 4, linkColor},
                    TagRow{"embed", "<EMBED|<I>", "<EMBED>|<I>", 0, 7, embedColor},
                    TagRow{"comment", "<!-- x --|<I>", "<!-- x -->|<I>", 0, 10, commentColor},
                    TagRow{"over_lines", "<B\r\nC|<I>", "<B\r\nC>|<I>", 0, 6, tagColor},
                    TagRow{"a_selection_is_replaced", "<B[xx]<I>", "<B>|<I>", 0, 3, tagColor},
                    TagRow{"a_selection_holds_the_bracket", "<B[x>y]", "<B>|", 0, 3, tagColor},
                    TagRow{"a_selection_at_the_end", "<B[xx]", "<B>|", 0, 0, plain},
                    // A typed tag is not escaped: a backslash word and braces vanish, as in any RTF text.
                    TagRow{"backslash", "<A x=\"c:\\site\"|<I>", "<A x=\"c:\">|<I>", 0, 10, tagColor},
                    TagRow{"doubled_backslash", "<A \\\\|<I>", "<A \\>|<I>", 0, 5, tagColor},
                    TagRow{"braces", "<A {x}|<I>", "<A x>|<I>", 0, 5, tagColor}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(TagClosed, TypingGoesOnInTheTextColor) {
    TypingFrame frame;
    frame.Store().WriteNumber(Keys::TextColor[0], 4711);
    frame.SetMarked("|<I>");
    frame.Type("<B>x");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<B>x|<I>"));
    EXPECT_EQ(frame.Box().ColorAt(2), tagColor);
    EXPECT_EQ(frame.Box().ColorAt(3), 4711);
}

TEST(TagClosed, ColorsEvenOutsideTheTag) {
    // The colours of what is typed do not depend on the colours around it.
    TypingFrame frame;
    ColorizeText(frame, QStringLiteral("<B></B>"), KeepDocument::No, CaretToTop::No);
    frame.Box().SetSelStart(2);
    frame.Type("x");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<Bx|></B>"));
    EXPECT_EQ(frame.Box().ColorAt(1), tagColor);
    EXPECT_EQ(frame.Box().ColorAt(2), plain);
    EXPECT_EQ(frame.Box().ColorAt(3), tagColor);
}

TEST(TagClosed, FlushesWhatComesNextPieceByPiece) {
    TypingFrame frame;
    frame.SetMarked("<B|<I>");
    frame.Stream().Hold();
    frame.Type(">");
    EXPECT_TRUE(frame.Stream().RtfFlushNow());
    EXPECT_EQ(frame.Stream().RtfBuffer(), QString());
}

TEST(TagClosed, WithColoringOffItIsPlainTyping) {
    TypingFrame frame;
    frame.Store().WriteFlag(Keys::ColoredTags, false);
    frame.SetMarked("<B x\\y|<I>");
    frame.Type(">");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<B x\\y>|<I>"));
    EXPECT_EQ(frame.Box().ColorAt(0), plain);
}

TEST(TagClosed, IsOneUndoStep) {
    TypingFrame frame;
    frame.SetMarked("<B|<I>");
    frame.Box().EmptyUndoBuffer();
    frame.Type(">");
    frame.Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<B<I>"));
}

TEST(TagClosed, KeepsTheFocus) {
    TypingFrame frame;
    frame.SetMarked("<B|<I>");
    frame.Type(">x");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<B>x|<I>"));
}

} // namespace
