// InsertTag, BuildAttribute and ReplaceInSelection: what they write, what they change, where the caret
// stands.
#include "editor/InsertTag.h"

#include "editor/EditorState.h"
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

/// Puts the text into the document without its marks, and the caret or selection where they stood.
void SetMarked(TestFrame& frame, QString text) {
    const auto caret = static_cast<int>(text.indexOf(QLatin1Char('|')));
    const auto start = static_cast<int>(text.indexOf(QLatin1Char('[')));
    const auto end = static_cast<int>(text.indexOf(QLatin1Char(']'))) - 1;
    text.remove(QLatin1Char('|')).remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    frame.SetText(text);
    frame.Box().SetSelStart(caret >= 0 ? caret : start);
    if (start >= 0)
        frame.Box().SetSelLength(end - start);
}

QString Marked(TestFrame& frame) {
    QString text = frame.Box().Text();
    return text.insert(frame.Box().SelStart(), QLatin1Char('|'));
}

class InsertTagTest : public testing::TestWithParam<InsertRow> {};

TEST_P(InsertTagTest, TextAndCaret) {
    const InsertRow& row = GetParam();
    for (const bool firstInsertionOfTheRun : {true, false}) {
        TestFrame frame;
        frame.Store().WriteFlag(Keys::LowerCaseTags, row.lower);
        frame.Store().WriteFlag(Keys::ColoredTags, row.colored);
        frame.State<EditorState>().RtfFlushNow = !firstInsertionOfTheRun;
        SetMarked(frame, QString::fromLatin1(row.before));
        InsertTag(frame, QString::fromLatin1(row.open), QString::fromLatin1(row.close), row.keepCase);
        EXPECT_EQ(Marked(frame), QString::fromLatin1(row.after));
        EXPECT_EQ(frame.Box().SelLength(), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, InsertTagTest,
    testing::Values(
        InsertRow{"nothing_selected", "a|b", "<B>", "</B>", "a<B>|</B>b"},
        InsertRow{"around_a_selection", "a[x]b", "<B>", "</B>", "a<B>x|</B>b"},
        InsertRow{"without_close", "a[x]b", "<BR>", "", "a<BR>x|b"},
        InsertRow{"lower", "|", "<A HREF=\"X.HTM\">", "</A>", "<a href=\"x.htm\">|</a>", true},
        InsertRow{"lower_kept", "|", "<A HREF=\"X.HTM\">", "</A>", "<A HREF=\"X.HTM\">|</A>", true, true},
        InsertRow{"selection_is_not_lowered", "[<I>X]", "<B>", "</B>", "<b><I>X|</b>", true},
        // The closing string's CR LF counts five when the caret goes back: three too many.
        InsertRow{"crlf_in_close", "|", "<APPLET>", "\r\n</APPLET>", "<APPL|ET>\r\n</APPLET>"},
        InsertRow{"crlf_in_close_off", "|", "<APPLET>", "\r\n</APPLET>", "<APPLET>|\r\n</APPLET>", false,
                  false, false},
        InsertRow{"crlf_in_open", "|", "<UL>\r\n<LI>", "", "<UL>\r\n<LI>|"},
        // Neither string is escaped: words and braces vanish as RTF has it.
        InsertRow{"backslash_word_vanishes", "|", "<B x=\"c:\\site\">", "</B>", "<B x=\"c:\">|</B>"},
        InsertRow{"braces_vanish", "|", "{<B>}", "</B>", "<B>|</B>"},
        InsertRow{"selected_braces_stay", "[{a\\b}]", "<B>", "</B>", "<B>{a\\b}|</B>"},
        InsertRow{"lone_line_ends", "[a\nb]", "<B>", "</B>", "<B>a\nb|</B>"},
        InsertRow{"off", "[x]", "<B>", "</B>", "<B>x|</B>", false, false, false},
        InsertRow{"off_selected_tag", "[<I>x{]", "<B>", "</B>", "<B><I>\\cf1 x\\{|</B>", false, false, false},
        InsertRow{"unclosed_selection_doubles", "[<I>1 < 2]", "<B>", "</B>", "<B><I><I>1 < 2|</B>"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(InsertTag, ColorsEachPartByItsKind) {
    TestFrame frame;
    SetMarked(frame, QStringLiteral("[a<IMG>b]"));
    InsertTag(frame, QStringLiteral("<A HREF=\"x\"><B>"), QStringLiteral("</B></A>"), false);
    const std::vector<std::pair<QString, int>> expected = {{QStringLiteral("<A HREF=\"x\"><B>"), 32768},
                                                           {QStringLiteral("a"), 0},
                                                           {QStringLiteral("<IMG>"), 255},
                                                           {QStringLiteral("b"), 0},
                                                           {QStringLiteral("</B></A>"), 32768}};
    EXPECT_EQ(frame.Colors(), expected);
    EXPECT_EQ(frame.Box().SelColor(), 0);
}

TEST(InsertTag, ChangesTheCallersStrings) {
    TestFrame frame;
    frame.Store().WriteFlag(Keys::LowerCaseTags, true);
    QString open = QStringLiteral("<B>\r\n"), close = QStringLiteral("\r\n</B>");
    InsertTag(frame, open, close, false);
    EXPECT_EQ(open, QStringLiteral("<b>\\par "));
    EXPECT_EQ(close, QStringLiteral("\\par </b>"));
}

TEST(InsertTag, WithoutADocumentChangesNothing) {
    TestFrame frame;
    frame.CloseDocument();
    InsertTag(frame, QStringLiteral("<B>"), QStringLiteral("</B>"), false);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_TRUE(frame.State<EditorState>().RtfBuffer.isEmpty());
}

struct AttributeRow {
    const char *name, *value;
    bool quoted;
    const char* bare;
    bool lower;
    const char *result, *nameAfter, *valueAfter, *bareAfter;
};

TEST(BuildAttribute, FourCasesWithTheirEffects) {
    const AttributeRow rows[] = {
        {"WIDTH", "100", true, "", false, " WIDTH=\"100\"", "WIDTH", "\"100\"", ""},
        {"WIDTH", "100", true, "", true, " width=\"100\"", "width", "\"100\"", ""},
        {"WIDTH", "\"100\"", true, "", false, " WIDTH=\"\"100\"\"", "WIDTH", "\"\"100\"\"", ""},
        {"WIDTH", "A1", false, "", false, " WIDTH=A1", "WIDTH", "A1", ""},
        {"WIDTH", "A1", false, "", true, " width=A1", "width", "A1", ""},
        {"WIDTH", "", true, "", true, "", "WIDTH", "", ""},
        {"WIDTH", "", false, "", false, "", "WIDTH", "", ""},
        {"", "", true, " NOSHADE", false, " NOSHADE", "", "", " NOSHADE"},
        {"X", "y", true, " NOSHADE", true, " noshade", "X", "y", " noshade"},
        {"X", "y", false, "<HR", false, "<HR", "X", "y", "<HR"},
    };
    TestFrame frame;
    for (const AttributeRow& row : rows) {
        frame.Store().WriteFlag(Keys::LowerCaseTags, row.lower);
        QString name = QString::fromLatin1(row.name), value = QString::fromLatin1(row.value),
                bare = QString::fromLatin1(row.bare);
        EXPECT_EQ(BuildAttribute(frame, name, value, row.quoted, bare), QString::fromLatin1(row.result));
        EXPECT_EQ(name, QString::fromLatin1(row.nameAfter));
        EXPECT_EQ(value, QString::fromLatin1(row.valueAfter));
        EXPECT_EQ(bare, QString::fromLatin1(row.bareAfter));
    }
}

TEST(BuildAttribute, OnlyExactlyOneLowers) {
    TestFrame frame;
    frame.Store().Write(Keys::LowerCaseTags, QStringLiteral("2"));
    EXPECT_EQ(BuildAttribute(frame, QStringLiteral("ALT"), QStringLiteral("x"), false),
              QStringLiteral(" ALT=x"));
    EXPECT_EQ(BuildBare(frame, QStringLiteral("<IMG")), QStringLiteral("<IMG"));
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
        SetMarked(frame, QStringLiteral("([old])"));
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

TEST(ReplaceInSelection, WithoutADocumentTheErrorComesBeforeFinished) {
    TestFrame frame;
    frame.CloseDocument();
    ReplaceInSelection(frame, QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("b"));
    EXPECT_EQ(frame.prompts.Messages(),
              (QStringList{QStringLiteral("Error - 91"), QStringLiteral("Finished!")}));
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Critical);
}

} // namespace
