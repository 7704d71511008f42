// The commands that live only in the toolbar.
#include "app/surface/ToolbarCommands.h"

#include "app/run/ProgramState.h"
#include "builders/lists/frmBulletList.h"
#include "support/CommandTest.h"
#include "support/FreshUser.h"
#include "tools/upload/frmFTP.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QtTest/QTest>

namespace {

class ToolbarCommandsTest : public CommandTest {
  protected:
    ToolbarCommandsTest() { FillToolbarCommands(frame); }
};

TEST_F(ToolbarCommandsTest, PairsStandAroundTheSelectionOrTheCaret) {
    struct Row {
        const char* name;
        const char* upper;
        const char* lower;
    };
    const Row rows[] = {
        {"tb_bold", "<B>|</B>", "<b>|</b>"},
        {"tb_italic", "<I>|</I>", "<i>|</i>"},
        {"tb_underline", "<U>|</U>", "<u>|</u>"},
        {"tb_break", "<BR>|", "<br>|"},
        {"tb_para", "<P>|</P>", "<p>|</p>"},
        {"tb_pre", "<PRE>|</PRE>", "<pre>|</pre>"},
        {"tb_center", "<CENTER>|</CENTER>", "<center>|</center>"},
        {"tb_h1", "<H1>|</H1>", "<h1>|</h1>"},
        {"tb_h2", "<H2>|</H2>", "<h2>|</h2>"},
        {"tb_h3", "<H3>|</H3>", "<h3>|</h3>"},
        {"tb_h4", "<H4>|</H4>", "<h4>|</h4>"},
        {"tb_h5", "<H5>|</H5>", "<h5>|</h5>"},
        {"tb_h6", "<H6>|</H6>", "<h6>|</h6>"},
    };
    for (const Row& row : rows)
        UnderAllSettings(row.name, [&](bool lower, bool /*colored*/) {
            ExpectWraps(row.name, Latin(lower ? row.lower : row.upper));
        });
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(ToolbarCommandsTest, ButtonsOfMenuCommandsFollowThem) {
    const char* const rows[][2] = {{"tb_open", "mnuOpen"},
                                   {"tb_save", "mnuSave"},
                                   {"tb_print", "mnuPrint"},
                                   {"tb_spell", "mnuSpellCheck"}};
    for (const auto& row : rows) {
        EXPECT_FALSE(frame.Commands().Has(Latin(row[0]))) << row[0];
        int ran = 0;
        frame.Commands().Set(Latin(row[1]), [&ran] { ++ran; });
        EXPECT_TRUE(frame.Commands().Has(Latin(row[0]))) << row[0];
        Run(row[0]);
        EXPECT_EQ(ran, 1) << row[0];
    }
}

TEST_F(ToolbarCommandsTest, EditingGoesToTheTextAsFromTheKeyboard) {
    Put("a[bc]d");
    Run("tb_copy");
    EXPECT_EQ(Marked(), Latin("a[bc]d"));
    Run("tb_cut");
    EXPECT_EQ(Marked(), Latin("a|d"));
    Run("tb_paste");
    EXPECT_EQ(Marked(), Latin("abc|d"));
    Run("tb_undo");
    EXPECT_EQ(frame.Box().Text(), Latin("ad"));
    Put("a[bc]d");
    Run("tb_delete");
    EXPECT_EQ(Marked(), Latin("a|d"));
    Run("tb_delete");
    EXPECT_EQ(Marked(), Latin("a|d"));
}

TEST_F(ToolbarCommandsTest, PreviewShowsTheActiveDocument) {
    Run("tb_preview");
    EXPECT_EQ(frame.previewed, QStringList{QString()});
}

TEST_F(ToolbarCommandsTest, NewGivesASkeletonThatCountsAsUnchanged) {
    QStringList ran;
    for (const char* name : {"mnuNew", "mnuDefault", "mnuUserTemplate"})
        frame.Commands().Set(Latin(name), [&, name] {
            ran << Latin(name);
            frame.active->modified = true;
        });
    Run("tb_new");
    EXPECT_EQ(ran, (QStringList{Latin("mnuNew"), Latin("mnuDefault")}));
    EXPECT_FALSE(frame.active->modified);
    ran.clear();
    frame.State<ProgramState>().UserTemplate = Latin("<HTML>");
    Run("tb_new");
    EXPECT_EQ(ran, (QStringList{Latin("mnuNew"), Latin("mnuUserTemplate")}));
    EXPECT_FALSE(frame.active->modified);
}

TEST_F(ToolbarCommandsTest, AnEmptyTemplateWindowNeedsNoDocumentToStartFrom) {
    frame.CloseDocument();
    frame.Commands().Set(Latin("mnuNew"), [this] { frame.NewDocument(); });
    Run("tb_new");
    ASSERT_TRUE(frame.ActiveForm());
    EXPECT_FALSE(frame.active->modified);
}

TEST_F(ToolbarCommandsTest, ACommentStandsAroundTheSelectionInItsColor) {
    Put("a[<B>x\r\ny</B>]b");
    Run("tb_balloon");
    EXPECT_EQ(Marked(), Latin("a<!-- <B>x\r\ny</B> -->|b"));
    EXPECT_EQ(frame.Colors(),
              (Stretches{{Latin("a"), 0}, {Latin("<!-- <B>x\r\ny</B> -->"), 8421504}, {Latin("b"), 0}}));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());

    frame.Store().WriteNumber(Keys::TextColor[5], 255);
    Put("[x]");
    Run("tb_balloon");
    EXPECT_EQ(frame.Colors(), (Stretches{{Latin("<!-- x -->"), 255}}));
}

TEST_F(ToolbarCommandsTest, ACommentKeepsItsCaseAndHasItsColorWhileColoringIsOn) {
    UnderAllSettings("tb_balloon", [&](bool /*lower*/, bool colored) {
        Put("a[X]b");
        Run("tb_balloon");
        EXPECT_EQ(Marked(), Latin("a<!-- X -->|b"));
        EXPECT_EQ(frame.Colors(),
                  (colored ? Stretches{{Latin("a"), 0}, {Latin("<!-- X -->"), commentColor}, {Latin("b"), 0}}
                           : Stretches{{Latin("a<!-- X -->b"), 0}}));
        Put("a|b");
        frame.prompts.inputAnswers = {Latin("Y")};
        Run("tb_balloon");
        EXPECT_EQ(Marked(), Latin("a<!-- Y -->|b"));
        EXPECT_EQ(frame.Box().ColorAt(1), colored ? commentColor : textColor);
        EXPECT_EQ(frame.Box().ColorAt(10), colored ? commentColor : textColor);
    });
}

TEST_F(ToolbarCommandsTest, ACommentIsColoredAtExactlyOne) {
    frame.Store().Write(Keys::ColoredTags, Latin("2"));
    Put("[x]");
    Run("tb_balloon");
    EXPECT_EQ(frame.Colors(), (Stretches{{Latin("<!-- x -->"), 0}}));
}

TEST_F(ToolbarCommandsTest, WithNothingSelectedTheCommentIsAskedFor) {
    Put("a|b");
    frame.prompts.inputAnswers = {Latin("caf\xE9 \\b{c} \x80")};
    Run("tb_balloon");
    EXPECT_EQ(Marked(), Latin("a<!-- caf\xE9 \\b{c} \x80 -->|b"));
    EXPECT_EQ(
        frame.Colors(),
        (Stretches{{Latin("a"), 0}, {Latin("<!-- caf\xE9 \\b{c} \x80 -->"), 8421504}, {Latin("b"), 0}}));
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].text, Latin("Add Comment:"));
    EXPECT_EQ(frame.prompts.asked[0].title, Latin("The Tarnwick"));

    Put("a|b");
    frame.prompts.inputAnswers = {QString()};
    Run("tb_balloon");
    EXPECT_EQ(Marked(), Latin("a|b"));
    EXPECT_FALSE(frame.active->modified);
}

TEST_F(ToolbarCommandsTest, AnAnchorKeepsItsBlank) {
    UnderAllSettings("tb_anchor", [&](bool lower, bool /*colored*/) {
        frame.prompts.asked.clear();
        frame.prompts.inputAnswers = {Latin("Top"), Latin("Top")};
        ExpectWraps("tb_anchor", Latin(lower ? "<a name= \"top\">|</a>" : "<A NAME= \"Top\">|</A>"),
                    linkColor);
        ASSERT_EQ(frame.prompts.asked.size(), 2);
        EXPECT_EQ(frame.prompts.asked[0].kind, Asked::Input);
        EXPECT_EQ(frame.prompts.asked[0].text, Latin("Enter An Anchor Name"));
        EXPECT_EQ(frame.prompts.asked[0].title, Latin("Anchor"));
    });
}

// Answers are not escaped: a backslash word and braces vanish, as in any RTF text, and stay where the
// colouring is off.
TEST_F(ToolbarCommandsTest, AnswersGoIntoTheStreamAsTheyStand) {
    for (const bool colored : {true, false}) {
        Use(false, colored);
        Put("|");
        frame.prompts.inputAnswers = {Latin("a\\b{c} \"\xE9\x80")};
        Run("tb_anchor");
        EXPECT_EQ(Marked(), Latin(colored ? "<A NAME= \"ac \"\xE9\x80\">|</A>"
                                          : "<A NAME= \"a\\b{c} \"\xE9\x80\">|</A>"));
        Put("<HEAD>|</HEAD>and a text behind it that takes the caret");
        frame.prompts.inputAnswers = {Latin("{x}\xE9"), QString()};
        Run("tb_meta");
        // The caret goes as far as the tag was meant to be long.
        EXPECT_EQ(Marked(),
                  Latin(colored
                            ? "<HEAD>\r\n<meta name=\"description\" content=\"x\xE9\"></|HEAD>and a text "
                              "behind it that takes the caret"
                            : "<HEAD>\r\n<meta name=\"description\" content=\"{x}\xE9\">|</HEAD>and a text "
                              "behind it that takes the caret"));
    }
}

TEST_F(ToolbarCommandsTest, LoneLineEndsInTheSelectionStay) {
    const char* const rows[][2] = {{"tb_bold", "<B>a\rb\nc\r\nd|</B>"},
                                   {"tb_break", "<BR>a\rb\nc\r\nd|"},
                                   {"tb_balloon", "<!-- a\rb\nc\r\nd -->|"},
                                   {"tb_anchor", "<A NAME= \"x\">a\rb\nc\r\nd|</A>"}};
    for (const auto& row : rows)
        for (const bool colored : {true, false}) {
            Use(false, colored);
            Put("[a\rb\nc\r\nd]");
            frame.prompts.inputAnswers = {Latin("x")};
            Run(row[0]);
            EXPECT_EQ(Marked(), Latin(row[1])) << row[0] << colored;
        }
}

TEST_F(ToolbarCommandsTest, AnAnchorWithoutANameIsRefused) {
    Put("a[T]b");
    frame.prompts.inputAnswers = {QString()};
    Run("tb_anchor");
    EXPECT_EQ(Marked(), Latin("a[T]b"));
    ASSERT_EQ(frame.prompts.asked.size(), 2);
    EXPECT_EQ(frame.prompts.asked[1].text, Latin("No Data or Cancel Button Pressed!"));
    EXPECT_EQ(frame.prompts.asked[1].title, Latin("The Tarnwick"));
    EXPECT_EQ(frame.prompts.asked[1].icon, MsgIcon::Critical);
    EXPECT_EQ(frame.prompts.asked[1].buttons, MsgButtons::OK);
}

TEST_F(ToolbarCommandsTest, MetaTagsGoBehindTheHead) {
    struct Row {
        const char* before;
        const char* description;
        const char* keywords;
        const char* after;
    };
    const Row rows[] = {
        {"<HEAD>\r\n</HEAD>|", "D", "K",
         "<HEAD>\r\n<meta name=\"description\" content=\"D\">\r\n<meta name=\"keywords\" "
         "content=\"K\">\r\n</HEAD>|"},
        {"<head></head>|x", "D", "", "<head>\r\n<meta name=\"description\" content=\"D\"></head>|x"},
        {"<HEAD></HEAD>|", "", "K", "<HEAD>\r\n\r\n<meta name=\"keywords\" content=\"K\"></HEAD>|"},
        {"<HEAD></HEAD>|", "", "", "<HEAD>\r\n</HEAD>|"},
        // The caret moves on by as much wherever it stood, in front of the place as well.
        {"a|b<HEAD></HEAD>", "D", "", "ab<HEAD>\r\n<meta name=\"description\" conte|nt=\"D\"></HEAD>"},
        // Without such a tag the text goes in at 5.
        {"01234567|", "", "", "01234\r\n567|"},
        {"012|", "D", "", "012\r\n<meta name=\"description\" content=\"D\">|"},
        // With something selected the search goes no further than that.
        {"[0123456]7<HEAD></HEAD>", "", "", "01|234\r\n567<HEAD></HEAD>"},
    };
    for (const Row& row : rows)
        UnderAllSettings(row.before, [&](bool /*lower*/, bool colored) {
            // These tags keep their case whatever the setting.
            Put(row.before);
            frame.prompts.asked.clear();
            frame.prompts.inputAnswers = {Latin(row.description), Latin(row.keywords)};
            Run("tb_meta");
            EXPECT_EQ(Marked(), Latin(row.after));
            ASSERT_EQ(frame.prompts.asked.size(), 2);
            EXPECT_EQ(frame.prompts.asked[0].text, Latin("Enter META description:"));
            EXPECT_EQ(frame.prompts.asked[0].title, Latin("META Description"));
            EXPECT_EQ(frame.prompts.asked[1].text, Latin("Enter META keywords:"));
            EXPECT_EQ(frame.prompts.asked[1].title, Latin("META Keywords"));
            // Their colour is that of comments; a line end alone has none to show.
            const auto tag = static_cast<int>(frame.Box().Text().indexOf(QStringLiteral("<meta")));
            const bool written = *row.description || *row.keywords;
            ASSERT_EQ(tag >= 0, written);
            EXPECT_EQ(frame.Box().ColorAt(std::max(tag, 0)), colored && written ? commentColor : textColor);
        });
}

TEST_F(ToolbarCommandsTest, SelectedLinesBecomeAList) {
    struct Row {
        const char* name;
        const char* before;
        const char* after;
    };
    const Row rows[] = {
        {"tb_dots", "[one]", "<UL>\r\n<LI>one</UL>|"},
        {"tb_onetwothree", "[one]", "<OL>\r\n<LI>one</OL>|"},
        {"tb_dots", "a[one\r\ntwo]b", "a<UL>\r\n<LI>one\r\n<LI>two</UL>|b"},
        {"tb_onetwothree", "[one\r\n]", "<OL>\r\n<LI>one\r\n<LI></OL>|"},
        {"tb_dots", "[a\rb\nc]", "<UL>\r\n<LI>a\rb\nc</UL>|"},
        {"tb_dots", "[\xE9{\\cf1 }\x80]", "<UL>\r\n<LI>\xE9{\\cf1 }\x80</UL>|"},
    };
    for (const Row& row : rows)
        UnderAllSettings(row.before, [&](bool /*lower*/, bool /*colored*/) {
            Put(row.before);
            frame.prompts.asked.clear();
            Run(row.name);
            EXPECT_EQ(Marked(), Latin(row.after));
            EXPECT_EQ(frame.Colors(), (Stretches{{frame.Box().Text(), 0}}));
            EXPECT_EQ(frame.prompts.Messages(), QStringList{Latin("Finished!")});
        });
}

TEST_F(ToolbarCommandsTest, AListOfNothingShowsTheListsDialog) {
    for (const auto& [name, kind] : {std::pair("tb_dots", "U"), std::pair("tb_onetwothree", "O")}) {
        Put("a|b");
        Run(name);
        auto* dialog = frame.LoadedForms().Find<frmBulletList>();
        ASSERT_TRUE(dialog);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_FALSE(dialog->isModal());
        EXPECT_EQ(dialog->Tag(), Latin(kind));
        EXPECT_EQ(Marked(), Latin("a|b"));
    }
}

class UploadTest : public ToolbarCommandsTest {
  protected:
    UploadTest() {
        frame.Commands().Set(Latin("mnuWebBrowser"), [this] { ++options; });
        frame.State<ProgramState>().LocalFTP = false;
    }
    /// A program that writes its arguments into a file.
    QString Program(const QString& name) {
        const QString path = TestFolder() + u'/' + name;
        QFile script(path);
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho \"started $*\" > \"" + Started().toUtf8() + ".part\" && mv \"" +
                     Started().toUtf8() + ".part\" \"" + Started().toUtf8() + "\"\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }
    QString Started() const { return TestFolder() + QStringLiteral("/started"); }
    QByteArray WaitForStart() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(Started()); }));
        QFile file(Started());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    int options = 0;
};

TEST_F(UploadTest, TheBuiltInWindowIsShown) {
    frame.State<ProgramState>().LocalFTP = true;
    Run("tb_ftp");
    const auto* form = frame.LoadedForms().Find<frmFTP>();
    ASSERT_TRUE(form);
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(form->parentWidget(), frame.Window());
    const int forms = frame.LoadedForms().Count();
    Run("tb_ftp");
    EXPECT_EQ(frame.LoadedForms().Count(), forms) << "showing it again raises it";
    EXPECT_EQ(options, 0);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(UploadTest, TheUsersOwnProgramIsStarted) {
    frame.State<ProgramState>().FtpPath = Program(Latin("my upload"));
    Run("tb_ftp");
    EXPECT_EQ(WaitForStart(), QByteArray("started \n"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(options, 0);
}

TEST_F(UploadTest, TheUsersOwnProgramMayHaveArguments) {
    frame.State<ProgramState>().FtpPath = Program(Latin("upload")) + Latin(" --site home");
    Run("tb_ftp");
    EXPECT_EQ(WaitForStart(), QByteArray("started --site home\n"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(UploadTest, AProgramThatCannotBeStartedLeadsToTheOptions) {
    for (const char* path : {"/nowhere/upload", "", "   "})
        for (const MsgAnswer answer : {MsgAnswer::OK, MsgAnswer::Cancel}) {
            options = 0;
            frame.prompts.asked.clear();
            frame.prompts.messageAnswers = {answer};
            frame.State<ProgramState>().FtpPath = Latin(path);
            Run("tb_ftp");
            EXPECT_EQ(options, 1);
            ASSERT_EQ(frame.prompts.asked.size(), 1);
            EXPECT_EQ(frame.prompts.asked[0].text, Latin("The FTP Program was not found."));
            EXPECT_EQ(frame.prompts.asked[0].title, Latin("File not Found"));
            EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Critical);
            EXPECT_EQ(frame.prompts.asked[0].buttons, MsgButtons::OKCancel);
        }
}

TEST_F(ToolbarCommandsTest, WithoutADocumentNothingIsAskedShownOrSaid) {
    frame.CloseDocument();
    const QStringList names = frame.Commands().Names();
    EXPECT_EQ(names.size(), 26);
    for (const QString& name : names)
        if (name != Latin("tb_ftp"))
            frame.Commands().Run(name);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(frame.prompts.beeps, 0);
    EXPECT_EQ(frame.LoadedForms().Count(), 0);
    EXPECT_FALSE(frame.ActiveForm());
}

using Expected = QString (*)(const QString& selection);

QString AsList(const QString& open, const QString& text, const QString& close) {
    const QString lineEnd = QStringLiteral("\r\n");
    QString lines = lineEnd + text;
    return open + lines.replace(lineEnd, lineEnd + QStringLiteral("<LI>")) + close;
}

struct LongRow {
    const char* name;
    Expected expected;
};

class LongToolbarSelection : public ToolbarCommandsTest, public testing::WithParamInterface<LongRow> {};

TEST_P(LongToolbarSelection, IsDoneWhole) {
    QApplication::clipboard()->setText(Latin("pasted"));
    ExpectOnLongSelection(GetParam().name, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    OneOfEachKind, LongToolbarSelection,
    testing::Values(
        LongRow{"tb_h1",
                [](const QString& text) { return QStringLiteral("<H1>") + text + QStringLiteral("</H1>"); }},
        LongRow{"tb_balloon",
                [](const QString& text) { return QStringLiteral("<!-- ") + text + QStringLiteral(" -->"); }},
        LongRow{"tb_anchor",
                [](const QString& text) {
                    return QStringLiteral("<A NAME= \"x\">") + text + QStringLiteral("</A>");
                }},
        // The search is for nothing, and lets the selection go.
        LongRow{"tb_meta",
                [](const QString& text) {
                    return QString(text).insert(
                        5, QStringLiteral("\r\n<meta name=\"description\" content=\"x\">\r\n"
                                          "<meta name=\"keywords\" content=\"x\">"));
                }},
        LongRow{"tb_dots",
                [](const QString& text) {
                    return AsList(QStringLiteral("<UL>"), text, QStringLiteral("</UL>"));
                }},
        LongRow{"tb_cut", [](const QString&) { return QString(); }},
        LongRow{"tb_paste", [](const QString&) { return QStringLiteral("pasted"); }},
        LongRow{"tb_delete", [](const QString&) { return QString(); }}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
