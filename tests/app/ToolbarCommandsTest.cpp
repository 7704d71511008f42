// The commands that live only in the toolbar.
#include "app/ToolbarCommands.h"

#include "app/ProgramState.h"
#include "builders/frmBulletList.h"
#include "platform/Cp1252.h"
#include "support/FreshUser.h"
#include "support/TestFrame.h"

#include <ctime>
#include <gtest/gtest.h>
#include <QFile>
#include <QtTest/QTest>

namespace {

/// The bytes of a literal as characters of code page 1252.
QString Text(const char* text) {
    return Cp1252::FromBytes(text);
}

class ToolbarCommandsTest : public testing::Test {
  protected:
    ToolbarCommandsTest() { FillToolbarCommands(frame); }

    void Use(bool lower, bool colored) {
        frame.Store().WriteFlag(Keys::LowerCaseTags, lower);
        frame.Store().WriteFlag(Keys::ColoredTags, colored);
    }
    /// "[" and "]" mark the selection, "|" the caret.
    void Put(const char* marked) {
        QString text = Text(marked);
        const auto caret = static_cast<int>(text.indexOf(u'|'));
        const auto start = static_cast<int>(text.indexOf(u'['));
        const auto end = static_cast<int>(text.indexOf(u']')) - 1;
        frame.SetText(text.remove(u'|').remove(u'[').remove(u']'));
        frame.Box().SetSelStart(caret >= 0 ? caret : start);
        if (start >= 0)
            frame.Box().SetSelLength(end - start);
    }
    void Run(const char* command) { frame.Commands().Run(Text(command)); }
    /// The text with "|" at the caret.
    QString Marked() { return frame.Box().Text().insert(frame.Box().SelStart(), u'|'); }

    TestFrame frame;
};

using Stretches = std::vector<std::pair<QString, int>>;

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
        for (const bool lower : {false, true})
            for (const bool colored : {false, true}) {
                SCOPED_TRACE(testing::Message() << row.name << lower << colored);
                Use(lower, colored);
                const QString written = Text(lower ? row.lower : row.upper);
                Put("a|b");
                Run(row.name);
                EXPECT_EQ(Marked(), u'a' + written + u'b');
                Put("a[X y]b");
                Run(row.name);
                EXPECT_EQ(Marked(), u'a' + QString(written).replace(u'|', Text("X y|")) + u'b');
            }
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(ToolbarCommandsTest, ButtonsOfMenuCommandsFollowThem) {
    const char* const rows[][2] = {{"tb_open", "mnuOpen"},
                                   {"tb_save", "mnuSave"},
                                   {"tb_print", "mnuPrint"},
                                   {"tb_spell", "mnuSpellCheck"}};
    for (const auto& row : rows) {
        EXPECT_FALSE(frame.Commands().Has(Text(row[0]))) << row[0];
        int ran = 0;
        frame.Commands().Set(Text(row[1]), [&ran] { ++ran; });
        EXPECT_TRUE(frame.Commands().Has(Text(row[0]))) << row[0];
        Run(row[0]);
        EXPECT_EQ(ran, 1) << row[0];
    }
}

TEST_F(ToolbarCommandsTest, EditingGoesToTheTextAsFromTheKeyboard) {
    Put("a[bc]d");
    Run("tb_copy");
    EXPECT_EQ(Marked(), Text("a|bcd"));
    Run("tb_cut");
    EXPECT_EQ(Marked(), Text("a|d"));
    Run("tb_paste");
    EXPECT_EQ(Marked(), Text("abc|d"));
    Run("tb_undo");
    EXPECT_EQ(frame.Box().Text(), Text("ad"));
    Put("a[bc]d");
    Run("tb_delete");
    EXPECT_EQ(Marked(), Text("a|d"));
    Run("tb_delete");
    EXPECT_EQ(Marked(), Text("a|d"));
}

TEST_F(ToolbarCommandsTest, PreviewShowsTheActiveDocument) {
    Run("tb_preview");
    EXPECT_EQ(frame.previewed, QStringList{QString()});
}

TEST_F(ToolbarCommandsTest, NewGivesASkeletonThatCountsAsUnchanged) {
    QStringList ran;
    for (const char* name : {"mnuNew", "mnuDefault", "mnuUserTemplate"})
        frame.Commands().Set(Text(name), [&, name] {
            ran << Text(name);
            frame.active->modified = true;
        });
    Run("tb_new");
    EXPECT_EQ(ran, (QStringList{Text("mnuNew"), Text("mnuDefault")}));
    EXPECT_FALSE(frame.active->modified);
    ran.clear();
    frame.State<ProgramState>().UserTemplate = Text("<HTML>");
    Run("tb_new");
    EXPECT_EQ(ran, (QStringList{Text("mnuNew"), Text("mnuUserTemplate")}));
    EXPECT_FALSE(frame.active->modified);
}

TEST_F(ToolbarCommandsTest, AnEmptyTemplateWindowNeedsNoDocumentToStartFrom) {
    frame.CloseDocument();
    frame.Commands().Set(Text("mnuNew"), [this] { frame.NewDocument(); });
    Run("tb_new");
    ASSERT_TRUE(frame.ActiveForm());
    EXPECT_FALSE(frame.active->modified);
}

TEST_F(ToolbarCommandsTest, ACommentStandsAroundTheSelectionInItsColor) {
    Put("a[<B>x\r\ny</B>]b");
    Run("tb_balloon");
    EXPECT_EQ(Marked(), Text("a<!-- <B>x\r\ny</B> -->|b"));
    EXPECT_EQ(frame.Colors(),
              (Stretches{{Text("a"), 0}, {Text("<!-- <B>x\r\ny</B> -->"), 8421504}, {Text("b"), 0}}));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());

    frame.Store().WriteNumber(Keys::TextColor[5], 255);
    Put("[x]");
    Run("tb_balloon");
    EXPECT_EQ(frame.Colors(), (Stretches{{Text("<!-- x -->"), 255}}));
}

TEST_F(ToolbarCommandsTest, WithColoringOffACommentIsPlainText) {
    Use(true, false);
    Put("a[X]b");
    Run("tb_balloon");
    EXPECT_EQ(frame.Colors(), (Stretches{{Text("a<!-- X -->b"), 0}}));
}

TEST_F(ToolbarCommandsTest, WithNothingSelectedTheCommentIsAskedFor) {
    Put("a|b");
    frame.prompts.inputAnswers = {Text("caf\xE9 \\b{c} \x80")};
    Run("tb_balloon");
    EXPECT_EQ(Marked(), Text("a<!-- caf\xE9 \\b{c} \x80 -->|b"));
    EXPECT_EQ(frame.Colors(),
              (Stretches{{Text("a"), 0}, {Text("<!-- caf\xE9 \\b{c} \x80 -->"), 8421504}, {Text("b"), 0}}));
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].text, Text("Add Comment:"));
    EXPECT_EQ(frame.prompts.asked[0].title, Text("The Tarnwick"));

    Put("a|b");
    frame.prompts.inputAnswers = {QString()};
    Run("tb_balloon");
    EXPECT_EQ(Marked(), Text("a|b"));
    EXPECT_FALSE(frame.active->modified);
}

TEST_F(ToolbarCommandsTest, AnAnchorKeepsItsBlank) {
    for (const bool colored : {false, true}) {
        Use(false, colored);
        Put("a[T]b");
        frame.prompts.inputAnswers = {Text("x")};
        Run("tb_anchor");
        EXPECT_EQ(Marked(), Text("a<A NAME= \"x\">T|</A>b"));
        Use(true, colored);
        Put("|");
        frame.prompts.inputAnswers = {Text("Top")};
        Run("tb_anchor");
        EXPECT_EQ(Marked(), Text("<a name= \"top\">|</a>"));
    }
    EXPECT_EQ(frame.prompts.asked[0].text, Text("Enter An Anchor Name"));
    EXPECT_EQ(frame.prompts.asked[0].title, Text("Anchor"));
}

TEST_F(ToolbarCommandsTest, AnAnchorWithoutANameIsRefused) {
    Put("a[T]b");
    frame.prompts.inputAnswers = {QString()};
    Run("tb_anchor");
    EXPECT_EQ(frame.Box().Text(), Text("aTb"));
    EXPECT_EQ(frame.Box().SelText(), Text("T"));
    ASSERT_EQ(frame.prompts.asked.size(), 2);
    EXPECT_EQ(frame.prompts.asked[1].text, Text("No Data or Cancel Button Pressed!"));
    EXPECT_EQ(frame.prompts.asked[1].title, Text("The Tarnwick"));
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
        for (const bool lower : {false, true})
            for (const bool colored : {false, true}) {
                SCOPED_TRACE(testing::Message() << row.before << lower << colored);
                // These tags keep their case whatever the setting.
                Use(lower, colored);
                Put(row.before);
                frame.prompts.asked.clear();
                frame.prompts.inputAnswers = {Text(row.description), Text(row.keywords)};
                Run("tb_meta");
                EXPECT_EQ(Marked(), Text(row.after));
                ASSERT_EQ(frame.prompts.asked.size(), 2);
                EXPECT_EQ(frame.prompts.asked[0].text, Text("Enter META description:"));
                EXPECT_EQ(frame.prompts.asked[0].title, Text("META Description"));
                EXPECT_EQ(frame.prompts.asked[1].text, Text("Enter META keywords:"));
                EXPECT_EQ(frame.prompts.asked[1].title, Text("META Keywords"));
            }
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
        for (const bool lower : {false, true})
            for (const bool colored : {false, true}) {
                SCOPED_TRACE(testing::Message() << row.name << row.before << lower << colored);
                Use(lower, colored);
                Put(row.before);
                frame.prompts.asked.clear();
                Run(row.name);
                EXPECT_EQ(Marked(), Text(row.after));
                EXPECT_EQ(frame.Box().SelLength(), 0);
                EXPECT_EQ(frame.Colors(), (Stretches{{frame.Box().Text(), 0}}));
                EXPECT_EQ(frame.prompts.Messages(), QStringList{Text("Finished!")});
            }
}

TEST_F(ToolbarCommandsTest, AListOfNothingShowsTheListsDialog) {
    for (const auto& [name, kind] : {std::pair("tb_dots", "U"), std::pair("tb_onetwothree", "O")}) {
        Put("a|b");
        Run(name);
        auto* dialog = qobject_cast<frmBulletList*>(frame.LoadedForms().Find(Text("frmBulletList")));
        ASSERT_TRUE(dialog);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_FALSE(dialog->isModal());
        EXPECT_EQ(dialog->Tag(), Text(kind));
        EXPECT_EQ(Marked(), Text("a|b"));
    }
}

class UploadTest : public ToolbarCommandsTest {
  protected:
    UploadTest() {
        frame.Commands().Set(Text("mnuWebBrowser"), [this] { ++options; });
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
    int shown = 0;
    frame.Commands().Set(Text("frmFTP"), [&shown] { ++shown; });
    Run("tb_ftp");
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(options, 0);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(UploadTest, TheUsersOwnProgramIsStarted) {
    frame.State<ProgramState>().FtpPath = Program(Text("my upload"));
    Run("tb_ftp");
    EXPECT_EQ(WaitForStart(), QByteArray("started \n"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(options, 0);
}

TEST_F(UploadTest, TheUsersOwnProgramMayHaveArguments) {
    frame.State<ProgramState>().FtpPath = Program(Text("upload")) + Text(" --site home");
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
            frame.State<ProgramState>().FtpPath = Text(path);
            Run("tb_ftp");
            EXPECT_EQ(options, 1);
            ASSERT_EQ(frame.prompts.asked.size(), 1);
            EXPECT_EQ(frame.prompts.asked[0].text, Text("The FTP Program was not found."));
            EXPECT_EQ(frame.prompts.asked[0].title, Text("File not Found"));
            EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Critical);
            EXPECT_EQ(frame.prompts.asked[0].buttons, MsgButtons::OKCancel);
        }
}

TEST_F(ToolbarCommandsTest, WithoutADocumentNothingIsAskedShownOrSaid) {
    frame.CloseDocument();
    const QStringList names = frame.Commands().Names();
    EXPECT_EQ(names.size(), 26);
    for (const QString& name : names)
        if (name != Text("tb_ftp"))
            frame.Commands().Run(name);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(frame.prompts.beeps, 0);
    EXPECT_EQ(frame.LoadedForms().Count(), 0);
    EXPECT_FALSE(frame.ActiveForm());
}

// The time of a selection four times as long grows about fourfold.
TEST_F(ToolbarCommandsTest, LongSelectionsTakeTimeInProportion) {
    const QString line = Text("<P>some text and a <A HREF=\"x.htm\">link</A></P>\r\n");
    for (const char* command : {"tb_bold", "tb_balloon", "tb_dots"}) {
        double spent[2];
        for (const int turn : {0, 1}) {
            frame.SetText(line.repeated((turn == 0 ? 1'000'000 : 4'000'000) / static_cast<int>(line.size())));
            frame.Box().SetSelStart(0);
            frame.Box().SetSelLength(frame.Box().TextLength());
            const std::clock_t start = std::clock();
            Run(command);
            spent[turn] = double(std::clock() - start) / CLOCKS_PER_SEC;
        }
        EXPECT_LT(spent[1], 8 * spent[0] + 0.2) << command;
    }
}

} // namespace
