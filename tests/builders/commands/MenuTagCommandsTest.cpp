// The small commands of the Tags and Edit menus: what each row writes, under every setting that changes it.
#include "builders/commands/MenuTagCommands.h"

#include "builders/lists/frmBulletList.h"
#include "platform/values/Dates.h"
#include "support/CommandTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QDate>
#include <QLocale>

namespace {

/// What the command writes into an empty place, "|" at the caret, as it stands and with LowerCaseTags on.
struct TagRow {
    const char* name;
    const char* upper;
    const char* lower;
    int color = 16711680; ///< blue, as all tags and what is taken for one
};

const TagRow wrappers[] = {
    {"mnuBIG", "<BIG>|</BIG>", "<big>|</big>"},
    {"mnuSMALL", "<SMALL>|</SMALL>", "<small>|</small>"},
    {"mnuBlink", "<BLINK>|</BLINK>", "<blink>|</blink>"},
    {"mnuSUB", "<SUB>|</SUB>", "<sub>|</sub>"},
    {"mnuSUP", "<SUP>|</SUP>", "<sup>|</sup>"},
    {"mnuEm", "<EM>|</EM>", "<em>|</em>"},
    {"mnuStrong", "<STRONG>|</STRONG>", "<strong>|</strong>"},
    {"mnuS", "<S>|</S>", "<s>|</s>"},
    {"mnuCODE", "<CODE>|</CODE>", "<code>|</code>"},
    {"mnuSAMP", "<SAMP>|</SAMP>", "<samp>|</samp>"},
    {"mnuKBD", "<KBD>|</KBD>", "<kbd>|</kbd>"},
    {"mnuCITE", "<CITE>|</CITE>", "<cite>|</cite>"},
    {"mnuTT", "<TT>|</TT>", "<tt>|</tt>"},
    {"mnuBlockQuote", "<BLOCKQUOTE>|</BLOCKQUOTE>", "<blockquote>|</blockquote>"},
    {"mnuNOBR", "<NOBR>|</NOBR>", "<nobr>|</nobr>"},
    {"mnuMar", "<MARQUEE>|</MARQUEE>", "<marquee>|</marquee>"},
    {"mnuMap", "<MAP>|</MAP>", "<map>|</map>"},
    {"mnuBold", "<B>|</B>", "<b>|</b>"},
    {"mnuItalic", "<I>|</I>", "<i>|</i>"},
    {"mnuUnderline", "<U>|</U>", "<u>|</u>"},
    {"mnuCenter", "<CENTER>|</CENTER>", "<center>|</center>"},
};

const TagRow singles[] = {
    {"mnuBreak", "<BR>|", "<br>|"},
    {"mnuWBR", "<WBR>|", "<wbr>|"},
    {"mnuBGPROP", " BGPROPERTIES=FIXED|", " bgproperties=fixed|"},
    {"mnuControls", " CONTROLS |", " controls |"},
    {"mnuFileOpen", " START=FILEOPEN |", " start=fileopen |"},
    {"mnuMouseOver", " START=MOUSEOVER |", " start=mouseover |"},
    {"mnuMapArea", "<AREA SHAPE=\"\" COORDS=\"\" HREF=\"\">|", "<area shape=\"\" coords=\"\" href=\"\">|",
     // It holds a link, for all the eye of the colouring can see.
     32768},
    {"mnuSpace", "&#160;|", "&#160;|"},
    {"mnuExclamation", "&#33;|", "&#33;|"},
    {"mnuQuotation", "&#34;|", "&#34;|"},
    {"mnuNumber", "&#35;|", "&#35;|"},
    {"mnuDollar", "&#36;|", "&#36;|"},
    {"mnuPercent", "&#37;|", "&#37;|"},
    {"mnuAmpersand", "&#38;|", "&#38;|"},
    {"mnuApostrophe", "&#39;|", "&#39;|"},
    {"mnuLeftP", "&#40;|", "&#40;|"},
    {"mnuRightP", "&#41;|", "&#41;|"},
    {"mnuAsterisk", "&#42;|", "&#42;|"},
    {"mnuPlusSign", "&#43;|", "&#43;|"},
    {"mnuLessThan", "&#60;|", "&#60;|"},
    {"mnuEqual", "&#61;|", "&#61;|"},
    {"mnuGreaterThan", "&#62;|", "&#62;|"},
    {"mnuQuestion", "&#63;|", "&#63;|"},
    {"mnuAT", "&#64;|", "&#64;|"},
    {"mnuLeftSQ", "&#91;|", "&#91;|"},
    {"mnuRightSQ", "&#93;|", "&#93;|"},
    {"mnuTilde", "&#126;|", "&#126;|"},
    {"mnuInEx", "&#161;|", "&#161;|"},
    {"mnuCent", "&#162;|", "&#162;|"},
    {"mnuCopyright", "&#169;|", "&#169;|"},
    {"mnuRegistered", "&#174;|", "&#174;|"},
    {"mnuOneFourth", "&#188;|", "&#188;|"},
    {"mnuOneHalf", "&#189;|", "&#189;|"},
    {"mnuThreeFourths", "&#190;|", "&#190;|"},
};

/// The answer given is "Ab 1"; a Cancel is the empty answer.
struct AskingRow {
    const char* name;
    const char* prompt;
    const char* title;
    const char* answered;
    const char* answeredLower;
    const char* cancelled;
};

const AskingRow askingRows[] = {
    {"mnuAligns", "Insert value: TOP, MIDDLE, or BOTTOM", "", " ALIGN=Ab 1 |", " align=ab 1 |", " ALIGN= |"},
    {"mnuBehavior", "Insert value: SCROLL, SLIDE, or ALTERNATE", "", " BEHAVE=Ab 1 |", " behave=ab 1 |",
     " BEHAVE= |"},
    {"mnuDirection", "Insert value: LEFT or RIGHT", "", " DIRECTION=Ab 1 |", " direction=ab 1 |",
     " DIRECTION= |"},
    {"mnuH", "Height amount:", "", " HEIGHT=Ab 1 |", " height=ab 1 |", " HEIGHT= |"},
    {"mnuWidthAgain", "WIDTH amount:", "", " WIDTH=Ab 1 |", " width=ab 1 |", " WIDTH= |"},
    {"mnuScrollAm", "SCROLLAMOUNT value:", "", " SCROLLAMOUNT=Ab 1 |", " scrollamount=ab 1 |",
     " SCROLLAMOUNT= |"},
    {"mnuScrollD", "SCROLLDELAY value:", "", " SCROLLDELAY=Ab 1 |", " scrolldelay=ab 1 |", " SCROLLDELAY= |"},
    {"mnuLOOP", "How many loops? or type INFINITE", "", " LOOP=Ab 1 |", " loop=ab 1 |", " LOOP= |"},
    {"mnuDYN", "Input DYNSRC URL:", "", " DYNSRC=\"Ab 1\" |", " dynsrc=\"ab 1\" |", " DYNSRC=\"\" |"},
    {"mnuFace", "Font Name:", "", " FACE=\"Ab 1\" |", " face=\"ab 1\" |", " FACE=\"\" |"},
    {"mnuLeftMargin", "Insert Left Margin Value", "", " LEFTMARGIN=\"Ab 1\"|", " leftmargin=\"ab 1\"|",
     " LEFTMARGIN=\"\"|"},
    {"mnuTopMargin", "Insert Top Margin Value", "", " TOPMARGIN=\"Ab 1\"|", " topmargin=\"ab 1\"|",
     " TOPMARGIN=\"\"|"},
    {"mnuBASE", "Input Font Size:", "Base Font Size", "<BASEFONT SIZE=\"Ab 1\">|",
     "<basefont size=\"ab 1\">|", "<BASEFONT SIZE=\"\">|"},
    {"mnuBGSOUND", "Give URL name:", "", "<BGSOUND SRC=\"Ab 1\">|", "<bgsound src=\"ab 1\">|",
     "<BGSOUND SRC=\"\">|"},
    {"mnuImageMap", "Enter Map Name:", "The Tarnwick", "<MAP NAME=\"Ab 1\">|</MAP>",
     "<map name=\"ab 1\">|</map>", "|"},
};

class MenuTagCommands : public CommandTest {
  protected:
    MenuTagCommands() { FillMenuTagCommands(frame); }

    QString After(const char* command) {
        Run(command);
        return Marked();
    }
};

TEST_F(MenuTagCommands, WrappersStandAroundTheSelectionOrTheCaret) {
    for (const TagRow& row : wrappers)
        UnderAllSettings(row.name, [&](bool lower, bool /*colored*/) {
            ExpectWraps(row.name, Latin(lower ? row.lower : row.upper), row.color);
        });
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(MenuTagCommands, SingleStringsStandInFrontOfTheSelection) {
    for (const TagRow& row : singles)
        UnderAllSettings(row.name, [&](bool lower, bool /*colored*/) {
            ExpectWraps(row.name, Latin(lower ? row.lower : row.upper), row.color);
        });
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(MenuTagCommands, AttributesAskForTheirValue) {
    for (const AskingRow& row : askingRows)
        UnderAllSettings(row.name, [&](bool lower, bool /*colored*/) {
            frame.prompts.asked.clear();
            frame.prompts.inputAnswers = {Latin("Ab 1"), Latin("Ab 1")};
            ExpectWraps(row.name, Latin(lower ? row.answeredLower : row.answered));
            ASSERT_EQ(frame.prompts.asked.size(), 2);
            for (const Asked& asked : frame.prompts.asked) {
                EXPECT_EQ(asked.kind, Asked::Input);
                EXPECT_EQ(asked.text, Latin(row.prompt));
                EXPECT_EQ(asked.title, Latin(row.title));
            }
        });
}

TEST_F(MenuTagCommands, TheAnswerHasASayInTheColor) {
    const std::pair<const char*, int> rows[] = {
        {"a.img", imageColor}, {"/a", linkColor}, {"meta", commentColor}, {"a.wav", tagColor}};
    for (const auto& [answer, color] : rows) {
        frame.prompts.inputAnswers = {Latin(answer), Latin(answer)};
        ExpectWraps("mnuBGSOUND", Latin("<BGSOUND SRC=\"") + Latin(answer) + Latin("\">|"), color);
    }
}

TEST_F(MenuTagCommands, CancelCountsAsAnEmptyValue) {
    for (const AskingRow& row : askingRows)
        UnderAllSettings(row.name, [&](bool lower, bool /*colored*/) {
            Put("a|b");
            frame.prompts.inputAnswers = {QString()};
            const QString written = Latin(row.cancelled);
            EXPECT_EQ(After(row.name), u'a' + (lower ? written.toLower() : written) + u'b');
        });
}

TEST_F(MenuTagCommands, ImageMapWithoutANameChangesNothing) {
    Put("a[X]b");
    frame.prompts.inputAnswers = {QString()};
    EXPECT_EQ(After("mnuImageMap"), Latin("a[X]b"));
    EXPECT_FALSE(frame.active->modified);
}

TEST_F(MenuTagCommands, TagsTakeTheirColorAndTheSelectionItsOwn) {
    Put("a[x<!--c-->]b");
    After("mnuBold");
    const Stretches coloured = {
        {Latin("a"), 0},           {Latin("<B>"), 16711680}, {Latin("x"), 0}, {Latin("<!--c-->"), 8421504},
        {Latin("</B>"), 16711680}, {Latin("b"), 0},
    };
    EXPECT_EQ(frame.Colors(), coloured);
}

TEST_F(MenuTagCommands, WithColoringOffTagsAreTypedInTheColorAtTheCaret) {
    Use(false, false);
    Put("[a]b");
    frame.Box().SetSelColor(255);
    frame.Box().SetSelStart(1);
    After("mnuBold");
    EXPECT_EQ(frame.Colors(), (Stretches{{Latin("a<B></B>"), 255}, {Latin("b"), 0}}));
}

TEST_F(MenuTagCommands, DefinitionListMarksEachLineBehindALineEnd) {
    struct Row {
        const char* before;
        const char* after;
    };
    const Row rows[] = {
        {"[one]", "<DL>\r\n<LI>one</DL>|"},
        {"a[one\r\ntwo]b", "a<DL>\r\n<LI>one\r\n<LI>two</DL>|b"},
        {"[one\r\ntwo\r\n]", "<DL>\r\n<LI>one\r\n<LI>two\r\n<LI></DL>|"},
        // A line end of another kind is text to this command.
        {"[a\rb\nc]", "<DL>\r\n<LI>a\rb\nc</DL>|"},
        {"[{\\b}\xE9\x80]", "<DL>\r\n<LI>{\\b}\xE9\x80</DL>|"},
    };
    for (const Row& row : rows)
        UnderAllSettings(row.before, [&](bool /*lower*/, bool /*colored*/) {
            // Neither setting changes anything: the list is plain text.
            Put(row.before);
            frame.prompts.asked.clear();
            EXPECT_EQ(After("mnuDef"), Latin(row.after));
            ASSERT_EQ(frame.prompts.asked.size(), 1);
            EXPECT_EQ(frame.prompts.asked[0].kind, Asked::Message);
            EXPECT_EQ(frame.prompts.asked[0].text, Latin("Finished!"));
            EXPECT_EQ(frame.prompts.asked[0].title, Latin("The Tarnwick"));
            EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Information);
            EXPECT_EQ(frame.Colors(), (Stretches{{frame.Box().Text(), 0}}));
        });
}

TEST_F(MenuTagCommands, DefinitionListOfNothingShowsTheListsDialog) {
    Put("a|b");
    Run("mnuDef");
    auto* dialog = frame.LoadedForms().Find<frmBulletList>();
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->isModal());
    EXPECT_EQ(dialog->Tag(), Latin("D"));
    EXPECT_EQ(frame.Box().Text(), Latin("ab"));
}

TEST_F(MenuTagCommands, TheDateIsTodays) {
    UnderAllSettings("mnuTimeDate", [&](bool lower, bool colored) {
        Put("a[x]b");
        const QDate before = QDate::currentDate();
        const QString written = After("mnuTimeDate");
        const auto expected = [&](const QDate& date) {
            const QString text = LongDate(date, QLocale());
            return u'a' + (lower ? text.toLower() : text) + Latin("x|b");
        };
        EXPECT_THAT((QStringList{expected(before), expected(QDate::currentDate())}),
                    testing::Contains(written));
        // To the colouring it is a tag as good as any.
        EXPECT_EQ(frame.Box().ColorAt(1), colored ? tagColor : textColor);
        EXPECT_EQ(frame.Box().ColorAt(static_cast<int>(written.indexOf(u'x'))), textColor);
    });
}

TEST_F(MenuTagCommands, AnswersGoIntoTheStreamAsTheyStand) {
    struct Row {
        const char* answer;
        const char* colored;
        const char* plain;
    };
    const Row rows[] = {
        {"a\\b{c}", "<BGSOUND SRC=\"ac\">|", "<BGSOUND SRC=\"a\\b{c}\">|"},
        {"caf\xE9\x80\xFF", "<BGSOUND SRC=\"caf\xE9\x80\xFF\">|", "<BGSOUND SRC=\"caf\xE9\x80\xFF\">|"},
        {"a\"b", "<BGSOUND SRC=\"a\"b\">|", "<BGSOUND SRC=\"a\"b\">|"},
    };
    for (const Row& row : rows)
        for (const bool colored : {true, false}) {
            Use(false, colored);
            Put("|");
            frame.prompts.inputAnswers = {Latin(row.answer)};
            EXPECT_EQ(After("mnuBGSOUND"), Latin(colored ? row.colored : row.plain));
        }
    Use(true, true);
    Put("|");
    frame.prompts.inputAnswers = {Latin("CAF\xC9\x8A")};
    EXPECT_EQ(After("mnuBGSOUND"), Latin("<bgsound src=\"caf\xE9\x9A\">|"));
}

TEST_F(MenuTagCommands, LoneLineEndsInTheSelectionStay) {
    Put("[a\rb\nc\r\nd]");
    EXPECT_EQ(After("mnuBold"), Latin("<B>a\rb\nc\r\nd|</B>"));
}

TEST_F(MenuTagCommands, WithoutADocumentNothingIsAskedShownOrSaid) {
    frame.CloseDocument();
    const QStringList names = frame.Commands().Names();
    // 21 wrappers, 34 single strings, 15 that ask, the definition list and the date.
    EXPECT_EQ(names.size(), 72);
    for (const QString& name : names)
        frame.Commands().Run(name);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(frame.LoadedForms().Count(), 0);
}

using Expected = QString (*)(const QString& selection);

struct LongRow {
    const char* name;
    Expected expected;
};

class LongSelection : public MenuTagCommands, public testing::WithParamInterface<LongRow> {};

TEST_P(LongSelection, IsDoneWhole) {
    ExpectOnLongSelection(GetParam().name, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    OneOfEachKind, LongSelection,
    testing::Values(
        LongRow{"mnuBold",
                [](const QString& text) { return QStringLiteral("<B>") + text + QStringLiteral("</B>"); }},
        LongRow{"mnuCopyright", [](const QString& text) { return QStringLiteral("&#169;") + text; }},
        LongRow{"mnuFace", [](const QString& text) { return QStringLiteral(" FACE=\"x\" ") + text; }},
        LongRow{"mnuImageMap",
                [](const QString& text) {
                    return QStringLiteral("<MAP NAME=\"x\">") + text + QStringLiteral("</MAP>");
                }},
        LongRow{"mnuDef",
                [](const QString& text) {
                    const QString lines = QStringLiteral("\r\n") + text;
                    return QStringLiteral("<DL>") +
                           QString(lines).replace(QStringLiteral("\r\n"), QStringLiteral("\r\n<LI>")) +
                           QStringLiteral("</DL>");
                }}),
    [](const auto& info) { return std::string(info.param.name); });

// With the colouring off the pieces of a page are typed as one text: the escapes and the colour word stay.
TEST_F(MenuTagCommands, ALongSelectionIsDoneWholeWithColoringOff) {
    Use(false, false);
    ExpectOnLongSelection("mnuBold", [](const QString& text) -> QString {
        QString escaped = text;
        escaped.replace(u'\\', QStringLiteral("\\\\"))
            .replace(u'{', QStringLiteral("\\{"))
            .replace(u'}', QStringLiteral("\\}"));
        const auto tail = escaped.lastIndexOf(u'>') + 1;
        return QStringLiteral("<B>") + escaped.insert(tail, QStringLiteral("\\cf1 ")) +
               QStringLiteral("</B>");
    });
}

} // namespace
