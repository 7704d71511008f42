// The colour words of tags, the escapes, and the exact stream that each write sends.
#include "editor/color/WriteColoredText.h"

#include "editor/color/ColorStream.h"
#include "editor/frame/EditorOptions.h"
#include "platform/text/RtfReader.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

const QString header =
    QStringLiteral("{{\\colortbl ;\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red0\\green128\\blue0;"
                   "\\red255\\green0\\blue0;\\red255\\green127\\blue0;\\red128\\green128\\blue128;}");

struct TagRow {
    const char* tag;
    const char* word;
};

class TagColorCodeTest : public testing::TestWithParam<TagRow> {};

TEST_P(TagColorCodeTest, FirstMatchingRowWins) {
    const QString tag = QString::fromLatin1(GetParam().tag);
    EXPECT_EQ(TagColorCode(tag), QString::fromLatin1(GetParam().word));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TagColorCodeTest,
    testing::Values(TagRow{"<B>", "\\cf2 "}, TagRow{"", "\\cf2 "},
                    TagRow{"<EMBED SRC=\"meta.img\">", "\\cf5 "}, TagRow{"<IMG SRC=\"a.gif\">", "\\cf4 "},
                    TagRow{"<img src=\"A.GIF\">", "\\cf4 "}, TagRow{"<A HREF=\"x.htm\">", "\\cf3 "},
                    TagRow{"<A HREF=\"x.img\">", "\\cf4 "}, TagRow{"<META NAME=\"a\">", "\\cf6 "},
                    TagRow{"<META HREF=\"a\">", "\\cf3 "}, TagRow{"<A NAME=\"top\">", "\\cf3 "},
                    TagRow{"<A  NAME=\"top\">", "\\cf2 "}, TagRow{"<META><A NAME=x>", "\\cf6 "},
                    TagRow{"</A>", "\\cf3 "}, TagRow{"</ADDRESS>", "\\cf3 "}, TagRow{"</applet>", "\\cf3 "},
                    TagRow{"<!-- /a -->", "\\cf3 "}, TagRow{"<!-- x -->", "\\cf6 "},
                    TagRow{"<!-- img -->", "\\cf4 "}, TagRow{"<!DOCTYPE html>", "\\cf2 "}));

TEST(Escapes, EachTouchesItsOwnCharacterOnly) {
    QString text = QStringLiteral("a\\b{c}d");
    EscapeBackslashes(text);
    EXPECT_EQ(text, QStringLiteral("a\\\\b{c}d"));
    EscapeOpenBraces(text);
    EXPECT_EQ(text, QStringLiteral("a\\\\b\\{c}d"));
    EscapeCloseBraces(text);
    EXPECT_EQ(text, QStringLiteral("a\\\\b\\{c\\}d"));
}

class WriteColoredTextTest : public testing::Test {
  protected:
    void Write(const QString& text, const char* word) {
        WriteColoredText(frame, frame.active, text, QString::fromLatin1(word));
    }
    TestFrame frame;
    ColorStream& state = frame.State<ColorStream>();
};

TEST_F(WriteColoredTextTest, GathersUntilThePieceThatFlushes) {
    Write(QStringLiteral("x"), "\\cf1 ");
    EXPECT_EQ(state.RtfBuffer(), QStringLiteral("\\cf1 x"));
    EXPECT_EQ(frame.Box().Text(), QString());
    EXPECT_FALSE(state.RtfFlushNow());
    state.LetThrough();
    Write(QStringLiteral("<B>"), "\\cf2 ");
    EXPECT_EQ(frame.Box().streams, QStringList{header + QStringLiteral("\\cf1 x\\cf2 <B>}")});
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("x<B>"));
    EXPECT_TRUE(state.RtfBuffer().isEmpty());
    EXPECT_TRUE(state.RtfFlushNow()) << "the flush leaves it on";
}

TEST_F(WriteColoredTextTest, AllDocumentsShareTheBufferAndTheFlag) {
    Write(QStringLiteral("x"), "\\cf1 ");
    RecordingBox& first = frame.Box();
    frame.NewDocument();
    state.LetThrough();
    Write(QStringLiteral("<B>"), "\\cf2 ");
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("x<B>"));
    EXPECT_EQ(first.Text(), QString());
}

TEST_F(WriteColoredTextTest, PairsOfCrLfComeBackAsParagraphs) {
    const std::pair<const char*, const char*> rows[] = {{"a\r\nb\rc\nd\r\n", "a\\par b\rc\nd\\par "},
                                                        {"\r\r\n\n\r", "\r\\par \n\r"},
                                                        {"\r\n\r\n", "\\par \\par "},
                                                        {"\n\r", "\n\r"}};
    for (const auto& [given, left] : rows) {
        EXPECT_EQ(WriteColoredText(frame, frame.active, QString::fromLatin1(given), u"\\cf1 "),
                  QString::fromLatin1(left));
    }
}

TEST_F(WriteColoredTextTest, ALoneLfVanishesWhereRawLineEndsAreSkippedAndStaysWhereTheyAreKept) {
    state.LetThrough();
    const std::pair<RawLineEnds, const char*> rows[] = {{RawLineEnds::Skip, "ab\r\nc"},
                                                        {RawLineEnds::Keep, "a\nb\r\nc"}};
    for (const auto& [mode, expected] : rows) {
        frame.SetText(QString());
        frame.Box().SetRawLineEndMode(mode);
        Write(QStringLiteral("a\nb\r\nc"), "\\cf1 ");
        EXPECT_EQ(frame.Box().Text(), QString::fromLatin1(expected));
    }
}

TEST_F(WriteColoredTextTest, ResetEmptiesTheBufferAndWritesNothing) {
    frame.SetText(QStringLiteral("abc"));
    frame.Box().SetSelStart(0);
    frame.Box().SetSelLength(2);
    state.Add(u"rest", {});
    state.LetThrough();
    ResetColoredText(frame, *frame.active);
    EXPECT_TRUE(state.RtfBuffer().isEmpty());
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("abc"));
    EXPECT_TRUE(frame.Box().streams.isEmpty());
}

TEST_F(WriteColoredTextTest, ResetWithColoringOffDeletesTheSelection) {
    frame.Store().Write(Keys::ColoredTags, QStringLiteral("0"));
    frame.SetText(QStringLiteral("abc"));
    frame.Box().SetSelStart(0);
    frame.Box().SetSelLength(2);
    state.Add(u"rest", {});
    ResetColoredText(frame, *frame.active);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("c"));
    EXPECT_EQ(state.RtfBuffer(), QStringLiteral("rest"));
}

TEST_F(WriteColoredTextTest, OffWritesTheTextPlainAndUnchanged) {
    frame.Store().Write(Keys::ColoredTags, QStringLiteral("0"));
    EXPECT_EQ(WriteColoredText(frame, frame.active, QStringLiteral("a\r\n{b}"), u"\\cf4 "),
              QStringLiteral("a\r\n{b}"));
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("a\r\n{b}"));
    EXPECT_TRUE(frame.Box().streams.isEmpty());
}

TEST_F(WriteColoredTextTest, AnyNumberButZeroColors) {
    state.LetThrough();
    const std::pair<const char*, bool> rows[] = {{"2", true},  {"1", true},  {"-1", true},
                                                 {"0", false}, {"x", false}, {"", false}};
    for (const auto& [stored, colored] : rows) {
        frame.Store().Write(Keys::ColoredTags, QString::fromLatin1(stored));
        frame.Box().streams.clear();
        Write(QStringLiteral("<B>"), "\\cf2 ");
        EXPECT_EQ(!frame.Box().streams.isEmpty(), colored) << stored;
    }
}

TEST_F(WriteColoredTextTest, WhatIsTypedNextHasTheTextColor) {
    frame.Store().Write(Keys::TextColor[0], QStringLiteral("12345"));
    state.LetThrough();
    Write(QStringLiteral("<B>"), "\\cf2 ");
    EXPECT_EQ(frame.Box().SelColor(), 12345);
    EXPECT_EQ(frame.Box().ColorAt(0), 16711680);
    frame.Box().SetSelText(QStringLiteral("x"));
    EXPECT_EQ(frame.Box().ColorAt(3), 12345);
}

TEST_F(WriteColoredTextTest, WithoutAUsableTextColorWhatIsTypedNextIsBlack) {
    state.LetThrough();
    Write(QStringLiteral("<B>"), "\\cf2 ");
    EXPECT_EQ(frame.Box().SelColor(), 0) << "never stored";
    frame.Store().Write(Keys::TextColor[0], QStringLiteral("no number"));
    Write(QStringLiteral("<I>"), "\\cf2 ");
    EXPECT_EQ(frame.Box().SelColor(), 0) << "no number counts as 0";
}

TEST_F(WriteColoredTextTest, TheTableIsReadAtEachWriteAndTextAlreadyThereKeepsItsColor) {
    state.LetThrough();
    Write(QStringLiteral("<B>"), "\\cf2 ");
    frame.State<EditorOptions>().ColorTable[1] = QStringLiteral("\\red1\\green2\\blue3");
    Write(QStringLiteral("<I>"), "\\cf2 ");
    EXPECT_EQ(frame.Box().ColorAt(0), 16711680);
    EXPECT_EQ(frame.Box().ColorAt(3), 1 + 2 * 256 + 3 * 65536);
}

TEST_F(WriteColoredTextTest, CharactersAbove127StandAsTheyAre) {
    state.LetThrough();
    Write(QStringLiteral("\u00e4\u20ac\u2019"), "\\cf1 ");
    EXPECT_EQ(frame.Box().streams.last(), header + QStringLiteral("\\cf1 \u00e4\u20ac\u2019}"));
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("\u00e4\u20ac\u2019"));
}

TEST_F(WriteColoredTextTest, WithoutADocumentNothingHappens) {
    frame.CloseDocument();
    state.LetThrough();
    EXPECT_EQ(WriteColoredText(frame, frame.ActiveForm(), QStringLiteral("a\r\n"), u"\\cf1 "),
              QStringLiteral("a\r\n"));
    EXPECT_TRUE(state.RtfBuffer().isEmpty());
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(WriteColoredTextTest, NothingIsPaintedWhileItIsWritten) {
    QList<bool> painting;
    QObject::connect(frame.active->input, &RichTextBox::Change, frame.active,
                     [&] { painting << frame.Box().updatesEnabled(); });
    state.LetThrough();
    Write(QStringLiteral("a"), "\\cf1 ");
    EXPECT_EQ(painting, QList<bool>{false});
    EXPECT_TRUE(frame.Box().updatesEnabled());
    EXPECT_TRUE(frame.Box().isVisible());
}

TEST_F(WriteColoredTextTest, TheControlHasTheFocusAfterAFlush) {
    frame.Box().clearFocus();
    ASSERT_NE(frame.Window()->focusWidget(), &frame.Box());
    state.LetThrough();
    Write(QStringLiteral("a"), "\\cf1 ");
    EXPECT_EQ(frame.Window()->focusWidget(), &frame.Box());
}

} // namespace
