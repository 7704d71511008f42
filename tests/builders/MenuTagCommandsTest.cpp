// The small commands of the Tags and Edit menus: what each row writes, under every setting that changes it.
#include "builders/MenuTagCommands.h"

#include "builders/frmBulletList.h"
#include "platform/Cp1252.h"
#include "support/TestFrame.h"

#include <ctime>
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
    {"mnuMapArea", "<AREA SHAPE=\"\" COORDS=\"\" HREF=\"\">|", "<area shape=\"\" coords=\"\" href=\"\">|"},
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

/// The bytes of a literal as characters of code page 1252.
QString Latin(const char* text) {
    return Cp1252::FromBytes(text);
}

class MenuTagCommands : public testing::Test {
  protected:
    MenuTagCommands() { FillMenuTagCommands(frame); }

    void Use(bool lower, bool colored) {
        frame.Store().WriteFlag(Keys::LowerCaseTags, lower);
        frame.Store().WriteFlag(Keys::ColoredTags, colored);
    }
    /// "[" and "]" mark the selection, "|" the caret.
    void Put(QString text) {
        const auto caret = static_cast<int>(text.indexOf(u'|'));
        const auto start = static_cast<int>(text.indexOf(u'['));
        const auto end = static_cast<int>(text.indexOf(u']')) - 1;
        frame.SetText(text.remove(u'|').remove(u'[').remove(u']'));
        frame.Box().SetSelStart(caret >= 0 ? caret : start);
        if (start >= 0)
            frame.Box().SetSelLength(end - start);
    }
    QString After(const char* command) {
        frame.Commands().Run(Latin(command));
        return frame.Box().Text().insert(frame.Box().SelStart(), u'|');
    }

    TestFrame frame;
};

/// Runs a body for both cases of tags, with colouring on and off; what it tells names the failing run.
template <typename Body> void UnderAllSettings(const char* command, Body body) {
    for (const bool lower : {false, true})
        for (const bool colored : {false, true}) {
            SCOPED_TRACE(testing::Message()
                         << command << (lower ? " lower" : " upper") << (colored ? " coloured" : " plain"));
            body(lower, colored);
        }
}

TEST_F(MenuTagCommands, WrappersStandAroundTheSelectionOrTheCaret) {
    for (const TagRow& row : wrappers)
        UnderAllSettings(row.name, [&](bool lower, bool colored) {
            Use(lower, colored);
            const QString written = Latin(lower ? row.lower : row.upper);
            Put(Latin("a|b"));
            EXPECT_EQ(After(row.name), u'a' + written + u'b');
            Put(Latin("a[X y]b"));
            EXPECT_EQ(After(row.name), u'a' + QString(written).replace(u'|', Latin("X y|")) + u'b');
            EXPECT_EQ(frame.Box().SelLength(), 0);
        });
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(MenuTagCommands, SingleStringsStandInFrontOfTheSelection) {
    for (const TagRow& row : singles)
        UnderAllSettings(row.name, [&](bool lower, bool colored) {
            Use(lower, colored);
            const QString written = Latin(lower ? row.lower : row.upper);
            Put(Latin("a|b"));
            EXPECT_EQ(After(row.name), u'a' + written + u'b');
            Put(Latin("a[X y]b"));
            EXPECT_EQ(After(row.name), u'a' + QString(written).replace(u'|', Latin("X y|")) + u'b');
        });
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(MenuTagCommands, AttributesAskForTheirValue) {
    for (const AskingRow& row : askingRows)
        UnderAllSettings(row.name, [&](bool lower, bool colored) {
            Use(lower, colored);
            Put(Latin("a|b"));
            frame.prompts.asked.clear();
            frame.prompts.inputAnswers = {Latin("Ab 1")};
            EXPECT_EQ(After(row.name), u'a' + Latin(lower ? row.answeredLower : row.answered) + u'b');
            ASSERT_EQ(frame.prompts.asked.size(), 1);
            EXPECT_EQ(frame.prompts.asked[0].kind, Asked::Input);
            EXPECT_EQ(frame.prompts.asked[0].text, Latin(row.prompt));
            EXPECT_EQ(frame.prompts.asked[0].title, Latin(row.title));
        });
}

TEST_F(MenuTagCommands, CancelCountsAsAnEmptyValue) {
    for (const AskingRow& row : askingRows)
        UnderAllSettings(row.name, [&](bool lower, bool colored) {
            Use(lower, colored);
            Put(Latin("a|b"));
            frame.active->modified = false;
            frame.prompts.inputAnswers = {QString()};
            const QString written = Latin(row.cancelled);
            EXPECT_EQ(After(row.name), u'a' + (lower ? written.toLower() : written) + u'b');
        });
}

TEST_F(MenuTagCommands, ImageMapWithoutANameChangesNothing) {
    Put(Latin("a[X]b"));
    frame.prompts.inputAnswers = {QString()};
    After("mnuImageMap");
    EXPECT_EQ(frame.Box().Text(), Latin("aXb"));
    EXPECT_EQ(frame.Box().SelText(), Latin("X"));
    EXPECT_FALSE(frame.active->modified);
}

TEST_F(MenuTagCommands, TagsTakeTheirColorAndTheSelectionItsOwn) {
    Put(Latin("a[x<!--c-->]b"));
    After("mnuBold");
    const std::vector<std::pair<QString, int>> coloured = {
        {Latin("a"), 0},           {Latin("<B>"), 16711680}, {Latin("x"), 0}, {Latin("<!--c-->"), 8421504},
        {Latin("</B>"), 16711680}, {Latin("b"), 0},
    };
    EXPECT_EQ(frame.Colors(), coloured);
}

TEST_F(MenuTagCommands, WithColoringOffTagsAreTypedInTheColorAtTheCaret) {
    Use(false, false);
    Put(Latin("a[x]b"));
    After("mnuBold");
    EXPECT_EQ(frame.Colors(), (std::vector<std::pair<QString, int>>{{Latin("a<B>x</B>b"), 0}}));
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
        UnderAllSettings(row.before, [&](bool lower, bool colored) {
            // Neither setting changes anything: the list is plain text.
            Use(lower, colored);
            Put(Latin(row.before));
            frame.prompts.asked.clear();
            EXPECT_EQ(After("mnuDef"), Latin(row.after));
            ASSERT_EQ(frame.prompts.Messages(), QStringList{Latin("Finished!")});
            EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Information);
            EXPECT_EQ(frame.Colors(), (std::vector<std::pair<QString, int>>{{frame.Box().Text(), 0}}));
        });
}

TEST_F(MenuTagCommands, DefinitionListOfNothingShowsTheListsDialog) {
    Put(Latin("a|b"));
    frame.Commands().Run(Latin("mnuDef"));
    auto* dialog = qobject_cast<frmBulletList*>(frame.LoadedForms().Find(Latin("frmBulletList")));
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->isModal());
    EXPECT_EQ(dialog->Tag(), Latin("D"));
    EXPECT_EQ(frame.Box().Text(), Latin("ab"));
}

TEST(LongDate, TwoDigitsForTheDayAndTheLocalesWords) {
    EXPECT_EQ(LongDate(QDate(2023, 3, 5), QLocale::c()), Latin("Sunday, March 05, 2023"));
    EXPECT_EQ(LongDate(QDate(1999, 12, 31), QLocale::c()), Latin("Friday, December 31, 1999"));
    EXPECT_EQ(LongDate(QDate(2023, 3, 5), QLocale(QLocale::German)), Latin("Sonntag, M\xE4rz 05, 2023"));
}

TEST_F(MenuTagCommands, TheDateIsTodays) {
    UnderAllSettings("mnuTimeDate", [&](bool lower, bool colored) {
        Use(lower, colored);
        Put(Latin("a[x]b"));
        const QDate before = QDate::currentDate();
        const QString written = After("mnuTimeDate");
        const auto expected = [&](const QDate& date) {
            const QString text = LongDate(date, QLocale());
            return u'a' + (lower ? text.toLower() : text) + Latin("x|b");
        };
        EXPECT_THAT((QStringList{expected(before), expected(QDate::currentDate())}),
                    testing::Contains(written));
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
            Put(Latin("|"));
            frame.prompts.inputAnswers = {Latin(row.answer)};
            EXPECT_EQ(After("mnuBGSOUND"), Latin(colored ? row.colored : row.plain));
        }
}

TEST_F(MenuTagCommands, LoneLineEndsInTheSelectionStay) {
    Put(Latin("[a\rb\nc\r\nd]"));
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

// The time of a selection four times as long grows about fourfold; a pass over the text for each line or tag
// would make it sixteenfold.
TEST_F(MenuTagCommands, LongSelectionsTakeTimeInProportion) {
    const QString line = Latin("<P>some text and a <A HREF=\"x.htm\">link</A></P>\r\n");
    for (const char* command : {"mnuBold", "mnuDef"}) {
        double spent[2];
        for (const int turn : {0, 1}) {
            frame.SetText(line.repeated((turn == 0 ? 1'000'000 : 4'000'000) / static_cast<int>(line.size())));
            frame.Box().SetSelStart(0);
            frame.Box().SetSelLength(frame.Box().TextLength());
            const std::clock_t start = std::clock();
            frame.Commands().Run(Latin(command));
            spent[turn] = double(std::clock() - start) / CLOCKS_PER_SEC;
        }
        EXPECT_LT(spent[1], 8 * spent[0] + 0.2) << command;
    }
}

} // namespace
