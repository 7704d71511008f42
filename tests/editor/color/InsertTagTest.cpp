// InsertTag and ReplaceInSelection: what they write, what they change, where the caret
// stands.
#include "editor/color/InsertTag.h"

#include "editor/color/ColorStream.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

struct InsertRow {
    const char* name;
    const char* before; ///< "[" and "]" mark the selection, "|" the caret
    const char* open;
    const char* close;
    const char* after; ///< "|" marks the caret
    bool lower = false;
    bool keepCase = false;
    bool colored = true;
};

class InsertTagTest : public testing::TestWithParam<InsertRow> {};

TEST_P(InsertTagTest, TextAndCaret) {
    const InsertRow& row = GetParam();
    for (const bool firstInsertionOfTheRun : {true, false}) {
        TestFrame frame;
        frame.Store().WriteFlag(Keys::LowerCaseTags, row.lower);
        frame.Store().WriteFlag(Keys::ColoredTags, row.colored);
        if (!firstInsertionOfTheRun)
            frame.State<ColorStream>().LetThrough();
        frame.SetMarked(row.before);
        InsertTag(frame, QString::fromLatin1(row.open), QString::fromLatin1(row.close),
                  row.keepCase ? KeepCase::Yes : KeepCase::No);
        EXPECT_EQ(frame.Marked(), QString::fromLatin1(row.after));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, InsertTagTest,
    testing::Values(
        InsertRow{"nothing_selected", "a|b", "<B>", "</B>", "a<B>|</B>b"},
        InsertRow{"around_a_selection", "a[x]b", "<B>", "</B>", "a<B>x|</B>b"},
        InsertRow{"around_blanks_and_tabs", "a[ \tx  ]b", "<B>", "</B>", "a<B> \tx  |</B>b"},
        InsertRow{"around_a_line_end", "a[\r\n]b", "<B>", "</B>", "a<B>\r\n|</B>b"},
        InsertRow{"without_close", "a[x]b", "<BR>", "", "a<BR>x|b"},
        InsertRow{"lower", "|", "<A HREF=\"X.HTM\">", "</A>", "<a href=\"x.htm\">|</a>", true},
        InsertRow{"lower_kept", "|", "<A HREF=\"X.HTM\">", "</A>", "<A HREF=\"X.HTM\">|</A>", true, true},
        // Everything in them is lowered, text and accented letters too.
        InsertRow{"lower_all", "|", "<A ALT=\"\xC9\">Some TEXT", "THE END</A>",
                  "<a alt=\"\xE9\">some text|the end</a>", true},
        InsertRow{"selection_is_not_lowered", "[<I>X]", "<B>", "</B>", "<b><I>X|</b>", true},
        // The closing string's CR LF counts five when the caret goes back: three too many.
        InsertRow{"crlf_in_close", "|", "<APPLET>", "\r\n</APPLET>", "<APPL|ET>\r\n</APPLET>"},
        InsertRow{"crlf_in_close_off", "|", "<APPLET>", "\r\n</APPLET>", "<APPLET>|\r\n</APPLET>", false,
                  false, false},
        // A shift that would lead in front of the text fails, and the caret stays behind what was inserted.
        InsertRow{"crlf_only", "|", "", "\r\n\r\n", "\r\n\r\n|"},
        InsertRow{"crlf_in_open", "|", "<UL>\r\n<LI>", "", "<UL>\r\n<LI>|"},
        InsertRow{"both_empty", "a[x]b", "", "", "ax|b"},
        // Neither string is escaped: words and braces vanish as RTF has it.
        InsertRow{"backslash_word_vanishes", "|", "<B x=\"c:\\site\">", "</B>", "<B x=\"c:\">|</B>"},
        InsertRow{"braces_vanish", "|", "{<B>}", "</B>", "<B>|</B>"},
        InsertRow{"selected_braces_stay", "[{a\\b}]", "<B>", "</B>", "<B>{a\\b}|</B>"},
        InsertRow{"lone_line_ends", "[a\nb]", "<B>", "</B>", "<B>a\nb|</B>"},
        InsertRow{"off", "[x]", "<B>", "</B>", "<B>x|</B>", false, false, false},
        InsertRow{"off_lower", "[X]", "<B>", "</B>", "<b>X|</b>", true, false, false},
        InsertRow{"off_nothing_selected", "a|b", "<B>", "</B>", "a<B>|</B>b", false, false, false},
        InsertRow{"off_backslashes_and_braces_stay", "[x]", "{<B \\site>}", "</B>", "{<B \\site>}x|</B>",
                  false, false, false},
        InsertRow{"off_selected_tag", "[<I>x{]", "<B>", "</B>", "<B><I>\\cf1 x\\{|</B>", false, false, false},
        InsertRow{"unclosed_selection_doubles", "[<I>1 < 2]", "<B>", "</B>", "<B><I><I>1 < 2|</B>"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(InsertTag, SendsEachPartByItselfOnceAPassHasRun) {
    const QString header =
        QStringLiteral("{{\\colortbl ;\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red0\\green128\\blue0;"
                       "\\red255\\green0\\blue0;\\red255\\green127\\blue0;\\red128\\green128\\blue128;}");
    const QString open = QStringLiteral("\\cf2 <B>\\par "), close = QStringLiteral("\\cf2 </B>");
    TestFrame frame;
    frame.SetMarked("[x]");
    frame.Box().streams.clear();
    InsertTag(frame, QStringLiteral("<B>\r\n"), QStringLiteral("</B>"), KeepCase::No);
    // The first insertion of a run holds the opening string back until the selection goes out.
    EXPECT_EQ(frame.Box().streams,
              (QStringList{header + open + QStringLiteral("\\cf1 x}"), header + close + u'}'}));
    frame.SetMarked("|");
    frame.Box().streams.clear();
    InsertTag(frame, QStringLiteral("<B>\r\n"), QStringLiteral("</B>"), KeepCase::No);
    EXPECT_EQ(frame.Box().streams,
              (QStringList{header + open + u'}', header + QStringLiteral("\\cf1 }"), header + close + u'}'}));
}

TEST(InsertTag, TypingGoesOnInTheTextColor) {
    TestFrame frame;
    frame.Store().WriteNumber(Keys::TextColor[0], 4711);
    for (const char* close : {"</B>", ""}) {
        frame.SetMarked("|");
        InsertTag(frame, QStringLiteral("<B>"), QString::fromLatin1(close), KeepCase::No);
        EXPECT_EQ(frame.Box().SelColor(), 4711) << close;
        frame.Box().SetSelText(QStringLiteral("x"));
        EXPECT_EQ(frame.Box().ColorAt(3), 4711) << close;
    }
}

TEST(InsertTag, WithColoringOffTheColorAtTheCaretStays) {
    TestFrame frame;
    frame.Store().WriteFlag(Keys::ColoredTags, false);
    frame.SetMarked("[ab]");
    frame.Box().SetSelColor(255);
    frame.Box().SetSelStart(1);
    InsertTag(frame, QStringLiteral("<B>"), QStringLiteral("</B>"), KeepCase::No);
    EXPECT_EQ(frame.Box().SelColor(), 255);
}

TEST(InsertTag, LowersAtExactlyOneAndAsTheSettingStands) {
    TestFrame frame;
    const std::pair<const char*, const char*> rows[] = {{"2", "<B></B>"},    {"1", "<b></b>"},
                                                        {"0", "<B></B>"},    {"-1", "<B></B>"},
                                                        {"True", "<B></B>"}, {"", "<B></B>"}};
    for (const auto& [value, written] : rows) {
        frame.Store().Write(Keys::LowerCaseTags, QString::fromLatin1(value));
        frame.SetText(QString());
        InsertTag(frame, QStringLiteral("<B>"), QStringLiteral("</B>"), KeepCase::No);
        EXPECT_EQ(frame.Box().Text(), QString::fromLatin1(written)) << value;
    }
}

TEST(InsertTag, ColorsEachPartByItsKind) {
    TestFrame frame;
    frame.SetMarked("[a<IMG>b]");
    InsertTag(frame, QStringLiteral("<A HREF=\"x\"><B>"), QStringLiteral("</B></A>"), KeepCase::No);
    const std::vector<std::pair<QString, int>> expected = {{QStringLiteral("<A HREF=\"x\"><B>"), 32768},
                                                           {QStringLiteral("a"), 0},
                                                           {QStringLiteral("<IMG>"), 255},
                                                           {QStringLiteral("b"), 0},
                                                           {QStringLiteral("</B></A>"), 32768}};
    EXPECT_EQ(frame.Colors(), expected);
    EXPECT_EQ(frame.Box().SelColor(), 0);
    // The opening string says nothing of the closing one.
    frame.SetMarked("|");
    InsertTag(frame, QStringLiteral("<IMG>"), QStringLiteral("<!-- -->"), KeepCase::No);
    EXPECT_EQ(frame.Colors(), (std::vector<std::pair<QString, int>>{{QStringLiteral("<IMG>"), 255},
                                                                    {QStringLiteral("<!-- -->"), 8421504}}));
}

TEST(InsertTag, GivesBackTheStringsAsTheyWentOut) {
    TestFrame frame;
    frame.Store().WriteFlag(Keys::LowerCaseTags, true);
    const QString open = QStringLiteral("<B>\r\n"), close = QStringLiteral("\r\n</B>");
    EXPECT_EQ(InsertTag(frame, open, close, KeepCase::No),
              (WrittenTag{QStringLiteral("<b>\\par "), QStringLiteral("\\par </b>")}));
    // With the case kept or the colouring off there is that much less to change.
    EXPECT_EQ(InsertTag(frame, open, close, KeepCase::Yes),
              (WrittenTag{QStringLiteral("<B>\\par "), QStringLiteral("\\par </B>")}));
    frame.Store().WriteFlag(Keys::ColoredTags, false);
    EXPECT_EQ(InsertTag(frame, open, close, KeepCase::No),
              (WrittenTag{QStringLiteral("<b>\r\n"), QStringLiteral("\r\n</b>")}));
}

TEST(InsertTag, WithoutADocumentChangesNothing) {
    TestFrame frame;
    frame.CloseDocument();
    InsertTag(frame, QStringLiteral("<B>"), QStringLiteral("</B>"), KeepCase::No);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_TRUE(frame.State<ColorStream>().RtfBuffer().isEmpty());
}

struct ReplaceRow {
    const char *text, *find, *replacement;
    Compare compare;
    const char* result;
};

TEST(ReplaceInSelection, ReplacesAllAndSaysFinished) {
    const ReplaceRow rows[] = {
        {"aXbXc", "X", "XX", Compare::Exact, "aXXbXXc"},
        {"XXX", "XX", "X", Compare::Exact, "XX"},
        {"XX", "X", "", Compare::Exact, ""},
        {"aBab", "ab", "-", Compare::IgnoreCase, "--"},
        {"aBab", "ab", "-", Compare::Exact, "aB-"},
        {"abc", "", "x", Compare::Exact, "abc"},
        {"a\r\nb", "\r\n", "\r\n<LI>", Compare::Exact, "a\r\n<LI>b"},
    };
    for (const ReplaceRow& row : rows) {
        TestFrame frame;
        frame.SetMarked("([old])");
        EXPECT_EQ(ReplaceInSelection(frame, QString::fromLatin1(row.text), QString::fromLatin1(row.find),
                                     QString::fromLatin1(row.replacement), row.compare),
                  QString::fromLatin1(row.result));
        EXPECT_EQ(frame.Box().Text(),
                  QStringLiteral("(") + QString::fromLatin1(row.result) + QStringLiteral(")"));
        ASSERT_EQ(frame.prompts.asked.size(), 1);
        EXPECT_EQ(frame.prompts.asked[0].text, QStringLiteral("Finished!"));
        EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Information);
        EXPECT_EQ(frame.prompts.asked[0].title, QStringLiteral("The Tarnwick"));
    }
}

TEST(ReplaceInSelection, WritesInTheColorThatStandsThere) {
    TestFrame frame;
    frame.SetMarked("a[b]c");
    frame.Box().SetSelColor(255);
    ReplaceInSelection(frame, QStringLiteral("<B>{x\\y}"), QStringLiteral("x"), QStringLiteral("<I>"));
    const std::vector<std::pair<QString, int>> expected = {
        {QStringLiteral("a"), 0}, {QStringLiteral("<B>{<I>\\y}"), 255}, {QStringLiteral("c"), 0}};
    EXPECT_EQ(frame.Colors(), expected);
    EXPECT_EQ(frame.Marked(), QStringLiteral("a<B>{<I>\\y}|c"));
}

TEST(ReplaceInSelection, ComparesExactlyUnlessToldOtherwise) {
    TestFrame frame;
    EXPECT_EQ(ReplaceInSelection(frame, QStringLiteral("aA"), QStringLiteral("a"), QStringLiteral("-")),
              QStringLiteral("-A"));
}

TEST(ReplaceInSelection, WithoutADocumentTheErrorComesBeforeFinished) {
    TestFrame frame;
    frame.CloseDocument();
    EXPECT_EQ(ReplaceInSelection(frame, QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("b")),
              QStringLiteral("b"));
    EXPECT_EQ(frame.prompts.Messages(),
              (QStringList{QStringLiteral("Error - 91"), QStringLiteral("Finished!")}));
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Critical);
    EXPECT_EQ(frame.prompts.asked[0].title, QStringLiteral("The Tarnwick"));
    EXPECT_EQ(frame.prompts.asked[1].icon, MsgIcon::Information);
}

} // namespace
