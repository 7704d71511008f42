// The colouring pass: the exact streams, every oddity of the scan, and the off state.
#include "editor/color/ColorizeText.h"

#include "editor/color/ColorStream.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

const QString header =
    QStringLiteral("{{\\colortbl ;\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red0\\green128\\blue0;"
                   "\\red255\\green0\\blue0;\\red255\\green127\\blue0;\\red128\\green128\\blue128;}");

struct StreamRow {
    const char* name;
    const char* text;
    const char* stream;   ///< behind the header
    const char* document; ///< what stands in the control
};

class StreamTest : public testing::TestWithParam<StreamRow> {};

TEST_P(StreamTest, OneAssignment) {
    TestFrame frame;
    frame.SetText(QStringLiteral("old"));
    const QString text = QString::fromLatin1(GetParam().text);
    ColorizeText(frame, text, KeepDocument::No, CaretToTop::No);
    EXPECT_EQ(frame.Box().streams, QStringList{header + QString::fromLatin1(GetParam().stream)});
    EXPECT_EQ(frame.Box().Text(), QString::fromLatin1(GetParam().document));
    EXPECT_EQ(frame.Box().SelStart(), frame.Box().TextLength());
    EXPECT_TRUE(frame.State<ColorStream>().RtfFlushNow());
    EXPECT_TRUE(frame.State<ColorStream>().RtfBuffer().isEmpty());
    EXPECT_FALSE(frame.Box().enabledDuringWrite);
    EXPECT_TRUE(frame.Box().Enabled());
    EXPECT_TRUE(frame.statuses.isEmpty()) << "the status bar is the caller's";
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StreamTest,
    testing::Values(
        StreamRow{"worked", "<B>x</B>", "\\cf1 \\cf2 <B>\\cf1 x\\cf2 </B>\\cf1 }", "<B>x</B>"},
        StreamRow{"empty", "", "\\cf1 }", ""}, StreamRow{"plain", "abc", "\\cf1 abc}", "abc"},
        StreamRow{"inner_open", "<a <b>c", "\\cf1 \\cf2 <a <b>\\cf1 c}", "<a <b>c"},
        StreamRow{"tag_behind_inner_open", "<a <b><I>c", "\\cf1 \\cf2 <a <b>\\cf1 \\cf2 <I>\\cf1 c}",
                  "<a <b><I>c"},
        StreamRow{"empty_tag", "<>x<B>", "\\cf1 \\cf2 <>\\cf1 x\\cf2 <B>\\cf1 }", "<>x<B>"},
        StreamRow{"comment_ends_at_first_close", "<!-- a > b -->", "\\cf1 \\cf6 <!-- a >\\cf1  b -->}",
                  "<!-- a > b -->"},
        StreamRow{"quotes_are_not_seen", "<a title=\">\">", "\\cf1 \\cf2 <a title=\">\\cf1 \">}",
                  "<a title=\">\">"},
        StreamRow{"lone_close", "a > b<I>", "\\cf1 a > b\\cf2 <I>\\cf1 }", "a > b<I>"},
        StreamRow{"leading_close", "><B>", "\\cf1 >\\cf2 <B>\\cf1 }", "><B>"},
        StreamRow{"unclosed_doubles", "x<p>1 < 2", "\\cf1 x\\cf2 <p>\\cf1 x<p>1 < 2}", "x<p>x<p>1 < 2"},
        StreamRow{"first_unclosed_stands_once", "1 < 2", "\\cf1 1 < 2}", "1 < 2"},
        StreamRow{"between_is_dropped", "<B>a < b", "\\cf1 \\cf2 <B>\\cf1 <B>a < b}", "<B><B>a < b"},
        StreamRow{"escapes", "a\\b{c}<B>", "\\cf1 a\\\\b\\{c\\}\\cf2 <B>\\cf1 }", "a\\b{c}<B>"},
        StreamRow{"line_ends", "a\r\n<B>\r\n", "\\cf1 a\\par \\cf2 <B>\\cf1 \\par }", "a\r\n<B>\r\n"},
        StreamRow{"neighbours", "<B><I>", "\\cf1 \\cf2 <B>\\cf1 \\cf2 <I>\\cf1 }", "<B><I>"},
        StreamRow{"open_touching_close", "<a<>b", "\\cf1 \\cf2 <a<>\\cf1 b}", "<a<>b"},
        StreamRow{"link_and_image", "<A HREF=x><IMG SRC=y></A>",
                  "\\cf1 \\cf3 <A HREF=x>\\cf1 \\cf4 <IMG SRC=y>\\cf1 \\cf3 </A>\\cf1 }",
                  "<A HREF=x><IMG SRC=y></A>"}),
    [](const auto& info) { return std::string(info.param.name); });

class ColorizeTextTest : public testing::Test {
  protected:
    TestFrame frame;
};

TEST_F(ColorizeTextTest, WithoutATagTheKeptDocumentGetsOnePieceAndKeepDocumentComesBackFalse) {
    frame.SetText(QStringLiteral("[]"));
    frame.Box().SetSelStart(1);
    const QString text = QStringLiteral("a{b\r\n");
    const ColorizedText written = ColorizeText(frame, text, KeepDocument::Yes, CaretToTop::Yes);
    EXPECT_EQ(written.keepDocument, KeepDocument::No);
    EXPECT_EQ(written.text, QStringLiteral("a\\{b\\par "));
    EXPECT_EQ(frame.Box().streams, QStringList{header + QStringLiteral("\\cf1 a\\{b\\par }")});
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("[a{b\r\n]"));
    EXPECT_EQ(frame.Box().SelStart(), 6) << "caretToTop has no effect without a tag";
    EXPECT_TRUE(frame.State<ColorStream>().RtfFlushNow());
    EXPECT_TRUE(frame.State<ColorStream>().RtfBuffer().isEmpty());
    EXPECT_FALSE(frame.Box().enabledDuringWrite);
    EXPECT_TRUE(frame.Box().Enabled());
}

TEST_F(ColorizeTextTest, AnUnclosedTagAloneIsNoTextWithoutATag) {
    frame.SetText(QStringLiteral("[]"));
    frame.Box().SetSelStart(1);
    const QString text = QStringLiteral("1 < 2\r\n");
    const ColorizedText written = ColorizeText(frame, text, KeepDocument::Yes, CaretToTop::Yes);
    EXPECT_EQ(written.keepDocument, KeepDocument::Yes);
    EXPECT_EQ(written.text, QStringLiteral("1 < 2\r\n")) << "only what is handed on gets its paragraphs";
    EXPECT_EQ(frame.Box().streams, QStringList{header + QStringLiteral("\\cf1 1 < 2\\par }")});
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("[1 < 2\r\n]"));
    EXPECT_EQ(frame.Box().SelStart(), 0) << "caretToTop holds";
}

TEST_F(ColorizeTextTest, APassDropsNothingThatWaitsInTheBuffer) {
    frame.State<ColorStream>().Add(u"<I>", u"\\cf2 ");
    ColorizeText(frame, QStringLiteral("x<B>"), KeepDocument::Yes, CaretToTop::No);
    EXPECT_EQ(frame.Box().streams, QStringList{header + QStringLiteral("\\cf2 <I>\\cf1 x\\cf2 <B>\\cf1 }")});
}

TEST_F(ColorizeTextTest, WhatIsTypedAfterAPassHasTheTextColor) {
    frame.Store().Write(Keys::TextColor[0], QStringLiteral("12345"));
    ColorizeText(frame, QStringLiteral("<B>"), KeepDocument::No, CaretToTop::No);
    frame.Box().SetSelText(QStringLiteral("x"));
    EXPECT_EQ(frame.Box().ColorAt(2), 16711680);
    EXPECT_EQ(frame.Box().ColorAt(3), 12345);
}

TEST_F(ColorizeTextTest, NoKeysGetInWithColoringOffEither) {
    frame.Store().Write(Keys::ColoredTags, QStringLiteral("0"));
    frame.SetText(QStringLiteral("old"));
    QList<bool> enabled;
    QObject::connect(frame.active->input, &RichTextBox::Change, frame.active,
                     [&] { enabled << frame.Box().Enabled(); });
    ColorizeText(frame, QStringLiteral("<B>"), KeepDocument::No, CaretToTop::No);
    EXPECT_EQ(enabled, QList<bool>({true, false})) << "emptying the document comes before";
    EXPECT_TRUE(frame.Box().Enabled());
}

TEST_F(ColorizeTextTest, CaretToTopWithColoringOff) {
    frame.Store().Write(Keys::ColoredTags, QStringLiteral("0"));
    ColorizeText(frame, QStringLiteral("<B>"), KeepDocument::No, CaretToTop::Yes);
    EXPECT_EQ(frame.Box().SelStart(), 0);
}

TEST_F(ColorizeTextTest, WithColoringOffATextWithoutATagIsTheSameOnePiece) {
    frame.Store().Write(Keys::ColoredTags, QStringLiteral("0"));
    frame.SetText(QStringLiteral("[]"));
    frame.Box().SetSelStart(1);
    const QString text = QStringLiteral("a{\r\n");
    const ColorizedText written = ColorizeText(frame, text, KeepDocument::Yes, CaretToTop::Yes);
    EXPECT_EQ(written.keepDocument, KeepDocument::No);
    EXPECT_EQ(written.text, QStringLiteral("a\\{\r\n")) << "line ends stay as they are";
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("[a\\{\r\n]"));
    EXPECT_EQ(frame.Box().SelStart(), 6);
}

TEST_F(ColorizeTextTest, TheCaretGoesToTheTopBeforeTheKeysAreLetIn) {
    QList<bool> enabled;
    QObject::connect(frame.active->input, &RichTextBox::SelChange, frame.active, [&] {
        if (frame.Box().SelStart() == 0)
            enabled << frame.Box().Enabled();
    });
    ColorizeText(frame, QStringLiteral("<B>"), KeepDocument::Yes, CaretToTop::Yes);
    EXPECT_EQ(enabled, QList<bool>{false});
}

TEST_F(ColorizeTextTest, AnEmptyKeptTextWritesTheWordAlone) {
    ColorizeText(frame, QString(), KeepDocument::Yes, CaretToTop::No);
    EXPECT_EQ(frame.Box().streams, QStringList{header + QStringLiteral("\\cf1 }")});
}

TEST_F(ColorizeTextTest, AKeptDocumentIsWrittenAtItsSelection) {
    frame.SetText(QStringLiteral("abcd"));
    frame.Box().SetSelStart(1);
    frame.Box().SetSelLength(2);
    const QString text = QStringLiteral("<B>");
    const ColorizedText written = ColorizeText(frame, text, KeepDocument::Yes, CaretToTop::No);
    EXPECT_EQ(written.keepDocument, KeepDocument::Yes);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("a<B>d"));
    EXPECT_EQ(frame.Box().SelStart(), 4) << "behind the inserted text";
}

TEST_F(ColorizeTextTest, CaretToTop) {
    for (const char* text : {"<B>x", "abc", "x<p>1 < 2"}) {
        ColorizeText(frame, QString::fromLatin1(text), KeepDocument::No, CaretToTop::Yes);
        EXPECT_EQ(frame.Box().SelStart(), 0) << text;
    }
}

TEST_F(ColorizeTextTest, TagsStandInTheirColors) {
    ColorizeText(frame, QStringLiteral("t<B><A HREF=x><IMG><EMBED><!-- c -->"), KeepDocument::No,
                 CaretToTop::No);
    const std::vector<std::pair<QString, int>> expected = {{QStringLiteral("t"), 0},
                                                           {QStringLiteral("<B>"), 16711680},
                                                           {QStringLiteral("<A HREF=x>"), 32768},
                                                           {QStringLiteral("<IMG>"), 255},
                                                           {QStringLiteral("<EMBED>"), 32767},
                                                           {QStringLiteral("<!-- c -->"), 8421504}};
    EXPECT_EQ(frame.Colors(), expected);
}

TEST_F(ColorizeTextTest, OneUndoStepBringsTheReplacedTextBack) {
    frame.SetText(QStringLiteral("abc"));
    frame.Box().SetSelStart(0);
    frame.Box().SetSelLength(3);
    ColorizeText(frame, QStringLiteral("<B>x</B>"), KeepDocument::Yes, CaretToTop::No);
    frame.Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("abc"));
}

TEST_F(ColorizeTextTest, WithoutADocumentOnlyTheTextIsEscaped) {
    frame.CloseDocument();
    const QString text = QStringLiteral("{<B>");
    const ColorizedText written = ColorizeText(frame, text, KeepDocument::No, CaretToTop::Yes);
    EXPECT_EQ(written.text, QStringLiteral("\\{<B>"));
    EXPECT_FALSE(frame.State<ColorStream>().RtfFlushNow());
}

TEST_F(ColorizeTextTest, WithoutADocumentAPassThatKeepsItComesToItsEnd) {
    frame.CloseDocument();
    for (const bool tagged : {true, false}) {
        frame.State<ColorStream>().Hold();
        const QString text = tagged ? QStringLiteral("a<B>\r\n") : QStringLiteral("a\r\n");
        const ColorizedText written = ColorizeText(frame, text, KeepDocument::Yes, CaretToTop::Yes);
        EXPECT_EQ(written.text, text);
        EXPECT_EQ(written.keepDocument, tagged ? KeepDocument::Yes : KeepDocument::No);
        EXPECT_TRUE(frame.State<ColorStream>().RtfFlushNow());
        EXPECT_TRUE(frame.State<ColorStream>().RtfBuffer().isEmpty());
    }
}

struct OffRow {
    const char* name;
    bool keepDocument;
    const char* text;
    const char* document;
};

class OffStateTest : public testing::TestWithParam<OffRow> {};

TEST_P(OffStateTest, EscapesAndTheLastWordAreTyped) {
    TestFrame frame;
    frame.Store().Write(Keys::ColoredTags, QStringLiteral("0"));
    ColorizeText(frame, QString::fromLatin1(GetParam().text),
                 GetParam().keepDocument ? KeepDocument::Yes : KeepDocument::No, CaretToTop::No);
    EXPECT_EQ(frame.Box().Text(), QString::fromLatin1(GetParam().document));
    EXPECT_TRUE(frame.Box().streams.isEmpty());
    EXPECT_TRUE(frame.Box().Enabled());
}

INSTANTIATE_TEST_SUITE_P(Rows, OffStateTest,
                         testing::Values(OffRow{"tags", true, "<B>x</B>", "<B>x</B>\\cf1 "},
                                         OffRow{"tags_new", false, "<B>x</B>y", "<B>x</B>\\cf1 y"},
                                         OffRow{"no_tag_kept", true, "a{b}\\", "a\\{b\\}\\\\"},
                                         OffRow{"no_tag_new", false, "ab", "\\cf1 ab"},
                                         OffRow{"line_ends", true, "a\r\n<B>\r\n", "a\r\n<B>\\cf1 \r\n"},
                                         OffRow{"unclosed", true, "x<p>1 < 2", "x<p>\\cf1 x<p>1 < 2"}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
