#include "styles/sheet/SheetFile.h"

#include "dialogs/DialogState.h"
#include "styles/sheet/SheetTest.h"
#include "support/Files.h"
#include "support/Site.h"

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

const QString sheet = QStringLiteral("H1 { a: b;  }\r\n");
const QByteArray bytes = "H1 { a: b;  }\r\n\r\n";

class SheetFileTest : public SheetTest {
  protected:
    QString Here(const char* name) { return TestFolder() + u'/' + QString::fromLatin1(name); }
    /// Presses Save; the file dialogs answer with those paths.
    void Save(const QStringList& paths) {
        for (const QString& path : paths)
            frame.prompts.saveAnswers.push_back(ScriptedPrompts::Picked(path));
        Put(sheet);
        Tool(u"tb_Save");
    }
    void Import(const FileAnswer& answer) {
        frame.prompts.openAnswers = {answer};
        Tool(u"tb_Import");
    }
};

TEST_F(SheetFileTest, SavesUnderTheNameAskedFor) {
    frame.State<DialogState>().LastDir = T(u"/last");
    Save({Here("new.css")});
    EXPECT_EQ(ReadFile(Here("new.css")), bytes);
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    const Asked& asked = frame.prompts.asked.first();
    EXPECT_EQ(asked.kind, Asked::Save);
    EXPECT_EQ(asked.owner, form);
    EXPECT_EQ(asked.request.filter, T(u"CSS Files (*.css)|*.css|All files (*.*)|*.*"));
    EXPECT_EQ(asked.request.filterIndex, 1);
    EXPECT_EQ(asked.request.fileName, QString());
    EXPECT_EQ(asked.request.defaultExtension, T(u"css"));
    EXPECT_EQ(asked.request.folder, T(u"/last"));
    EXPECT_EQ(frame.State<DialogState>().LastDir, TestFolder() + u'/');
    EXPECT_FALSE(Loaded(T(u"frmCSS")));
}

TEST_F(SheetFileTest, ASaveThatFailsTellsWhy) {
    Save({Here("gone/a.css")});
    EXPECT_EQ(frame.statuses, QStringList{T(u"Could not save a.css: No such file or directory")});
    OpenSheet();
    Save({Here("a.css")});
    EXPECT_EQ(frame.statuses.size(), 1);
}

TEST_F(SheetFileTest, ACancelKeepsTheForm) {
    frame.State<DialogState>().LastDir = T(u"/last");
    frame.prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
    Tool(u"tb_Save");
    EXPECT_TRUE(Loaded(T(u"frmCSS")));
    EXPECT_EQ(frame.State<DialogState>().LastDir, T(u"/last"));
}

TEST_F(SheetFileTest, TrimsBlanksAndWritesOneLineMore) {
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(Here("a.css"))};
    Put(T(u"  H1 { a: \"b\";  }\n  "));
    Tool(u"tb_Save");
    EXPECT_EQ(ReadFile(Here("a.css")), QByteArray("H1 { a: \"b\";  }\r\n\r\n"));
    OpenSheet();
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(Here("b.css"))};
    Tool(u"tb_Save");
    EXPECT_EQ(ReadFile(Here("b.css")), QByteArray("\r\n")) << "an empty sheet";
}

// A file of 32,768 bytes or more counts as empty: its length does not fit into 16 bits.
TEST_F(SheetFileTest, AsksBeforeItOverwritesByTheSixteenBitsOfTheLength) {
    const std::pair<int, bool> rows[] = {{0, false},     {1, false},     {2, true},      {100, true},
                                         {32767, true},  {32768, false}, {65535, false}, {65536, false},
                                         {65538, false}, {200000, false}};
    for (const auto& [size, asks] : rows) {
        WriteFile(Here("old.css"), QByteArray(size, 'x'));
        frame.prompts.asked.clear();
        if (asks)
            frame.prompts.messageAnswers = {MsgAnswer::Yes};
        OpenSheet();
        Save({Here("old.css")});
        EXPECT_EQ(frame.prompts.asked.size(), asks ? 2 : 1) << size;
        EXPECT_EQ(ReadFile(Here("old.css")), bytes) << size;
        EXPECT_FALSE(Loaded(T(u"frmCSS"))) << size;
    }
}

TEST_F(SheetFileTest, ANoAsksForAnotherFile) {
    WriteFile(Here("old.css"), "old one");
    frame.prompts.messageAnswers = {MsgAnswer::No, MsgAnswer::No};
    Save({Here("old.css"), Here("old.css"), Here("other.css")});
    ASSERT_EQ(frame.prompts.asked.size(), 5);
    const Asked& question = frame.prompts.asked[1];
    EXPECT_EQ(question.title, T(u"Overwrite"));
    EXPECT_EQ(question.text, T(u"Overwrite File?"));
    EXPECT_EQ(question.buttons, MsgButtons::YesNo);
    EXPECT_EQ(question.icon, MsgIcon::Question);
    EXPECT_EQ(ReadFile(Here("old.css")), QByteArray("old one"));
    EXPECT_EQ(ReadFile(Here("other.css")), bytes);
}

TEST_F(SheetFileTest, ANoAndThenACancelWritesNothing) {
    WriteFile(Here("old.css"), "old one");
    frame.prompts.messageAnswers = {MsgAnswer::No};
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(Here("old.css")), ScriptedPrompts::Cancelled()};
    Tool(u"tb_Save");
    EXPECT_EQ(ReadFile(Here("old.css")), QByteArray("old one"));
    EXPECT_TRUE(Loaded(T(u"frmCSS")));
}

// No message tells of a write that fails: the form goes as after any other, and nothing is harmed.
TEST_F(SheetFileTest, WhereNoFileCanBeWrittenTheFormGoesAllTheSame) {
    QDir(TestFolder()).mkdir(QStringLiteral("folder.css"));
    WriteFile(Here("folder.css/inside"), "kept");
    for (const QString& path : {Here("folder.css"), Here("missing/a.css"), T(u"/proc/version")}) {
        OpenSheet();
        frame.prompts.asked.clear();
        Save({path});
        EXPECT_EQ(frame.prompts.asked.size(), 1) << path.toStdString();
        EXPECT_FALSE(Loaded(T(u"frmCSS"))) << path.toStdString();
    }
    EXPECT_EQ(ReadFile(Here("folder.css/inside")), QByteArray("kept"));
    EXPECT_FALSE(QFile::exists(Here("missing/a.css")));
}

#ifdef Q_OS_UNIX
TEST_F(SheetFileTest, OnAFullDiskTheOldFileStandsWhole) {
    // A device that is full takes no byte; nothing beside it does either.
    ASSERT_EQ(::symlink("/dev/full", QFile::encodeName(Here("full.css"))), 0);
    Save({Here("full.css")});
    EXPECT_FALSE(Loaded(T(u"frmCSS")));
    EXPECT_EQ(QFile::symLinkTarget(Here("full.css")), T(u"/dev/full"));
}

TEST_F(SheetFileTest, AnOverwrittenFileKeepsItsModeBits) {
    WriteFile(Here("old.css"), "o");
    ::chmod(QFile::encodeName(Here("old.css")), 0640);
    Save({Here("old.css")});
    EXPECT_EQ(ReadFile(Here("old.css")), bytes);
    struct ::stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(Here("old.css")), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
}
#endif

TEST_F(SheetFileTest, SavesWithoutADocument) {
    frame.CloseDocument();
    Save({Here("new.css")});
    EXPECT_EQ(ReadFile(Here("new.css")), bytes);
    EXPECT_FALSE(Loaded(T(u"frmCSS")));
}

TEST(LinkTag, HasNoBlankBeforeItsTitleAndOneInIt) {
    Check({
        {[](TagCase tagCase) { return LinkTag(T(u"a/b.css"), tagCase); },
         u"<LINK rel=\"stylesheet\" type=\"text/css\" href=\"a/b.css\"title=\" style1\">\r\n",
         u"<link rel=\"stylesheet\" type=\"text/css\" href=\"a/b.css\"title=\" style1\">\r\n"},
        {[](TagCase tagCase) { return LinkTag(QString(), tagCase); },
         u"<LINK rel=\"stylesheet\" type=\"text/css\" href=\"\"title=\" style1\">\r\n",
         u"<link rel=\"stylesheet\" type=\"text/css\" href=\"\"title=\" style1\">\r\n"},
        {[](TagCase tagCase) { return LinkTag(T(u"B\u2603.CSS"), tagCase); },
         u"<LINK rel=\"stylesheet\" type=\"text/css\" href=\"B\u2603.CSS\"title=\" style1\">\r\n",
         u"<link rel=\"stylesheet\" type=\"text/css\" href=\"B\u2603.CSS\"title=\" style1\">\r\n"},
    });
}

QString Link(const char* target) {
    return LinkTag(QString::fromLatin1(target), TagCase::AsWritten);
}

TEST_F(SheetFileTest, LinksThePageToASheetBesideAboveAndBelow) {
    const Site site;
    WriteFile(site.Path(T(u"pages/beside.css")));
    WriteFile(site.Path(T(u"above.css")));
    WriteFile(site.Path(T(u"pages/below/b.css")));
    const std::pair<const char16_t*, const char*> rows[] = {{u"pages/beside.css", "beside.css"},
                                                            {u"above.css", "../above.css"},
                                                            {u"pages/below/b.css", "below/b.css"}};
    frame.State<DialogState>().LastDir = T(u"/last");
    frame.active->caption = site.Path(T(u"pages/a.htm"));
    for (const auto& [file, target] : rows) {
        frame.SetMarked("<HEAD>\r\n</HEAD>|");
        frame.prompts.asked.clear();
        Import(ScriptedPrompts::Picked(site.Path(T(file))));
        EXPECT_EQ(Text(), T(u"<HEAD>\r\n") + Link(target) + T(u"</HEAD>"));
        ASSERT_EQ(frame.prompts.asked.size(), 1);
        const FileRequest& request = frame.prompts.asked.first().request;
        EXPECT_EQ(frame.prompts.asked.first().kind, Asked::Open);
        EXPECT_EQ(frame.prompts.asked.first().owner, form);
        EXPECT_EQ(request.filter, T(u"CSS Files (*.css)|*.css|All files (*.*)|*.*"));
        EXPECT_EQ(request.filterIndex, 1);
        EXPECT_EQ(request.folder, T(u"/last"));
    }
    EXPECT_EQ(frame.State<DialogState>().LastDir, T(u"/last"));
    EXPECT_TRUE(Loaded(T(u"frmCSS")));
}

TEST_F(SheetFileTest, ALinkTurnsBackslashes) {
    frame.active->caption = T(u"C:\\site\\pages\\a.htm");
    frame.SetMarked("</HEAD>|");
    Import(ScriptedPrompts::Picked(T(u"C:\\site\\css\\b.css")));
    EXPECT_EQ(Text(), Link("../css/b.css") + T(u"</HEAD>"));
}

TEST_F(SheetFileTest, ALinkHoldsWhatThePageHolds) {
    frame.active->caption = T(u"C:\\site\\a.htm");
    const std::pair<CharacterSet, const char16_t*> rows[] = {{CharacterSet::CodePage1252, u"&#9731;.css"},
                                                             {CharacterSet::Unicode, u"\u2603.css"}};
    for (const auto& [holds, target] : rows) {
        frame.SetMarked("</HEAD>|");
        frame.Box().SetHolds(holds);
        Import(ScriptedPrompts::Picked(T(u"C:\\site\\\u2603.css")));
        EXPECT_TRUE(Text().contains(T(u"href=\"%1\"title").arg(T(target)))) << Text().toStdString();
    }
}

TEST_F(SheetFileTest, ACancelledImportLinksToNothing) {
    frame.SetMarked("<head></head>|");
    Import(ScriptedPrompts::Cancelled());
    EXPECT_EQ(Text(), T(u"<head>") + Link("") + T(u"</head>"));
    EXPECT_TRUE(Loaded(T(u"frmCSS")));
    EXPECT_TRUE(frame.prompts.Messages().isEmpty());
}

TEST_F(SheetFileTest, WithoutAHeadEndSevenCharactersFollowTheLink) {
    const std::pair<const char*, QString> rows[] = {
        {"ab|cdefghijkl", T(u"ab") + Link("") + T(u"cdefghi|jkl")},
        {"ab|cd", T(u"ab") + Link("") + T(u"cd|")},
        {"abcd|", T(u"abcd") + Link("") + T(u"|")},
        // Only a selection is searched where there is one.
        {"a[bcd]efghijk</HEAD>", T(u"a") + Link("") + T(u"bcdefgh|ijk</HEAD>")},
    };
    for (const auto& [before, after] : rows) {
        frame.SetMarked(before);
        Import(ScriptedPrompts::Cancelled());
        EXPECT_EQ(frame.Marked(), after) << before;
    }
}

TEST_F(SheetFileTest, ALinkIsColouredAndOneUndoStep) {
    frame.SetMarked("x</HEAD>|");
    frame.Box().EmptyUndoBuffer();
    Import(ScriptedPrompts::Cancelled());
    EXPECT_EQ(frame.Box().ColorAt(1), 32768) << "it holds an href";
    frame.Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(Text(), T(u"x</HEAD>"));
    EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0);
}

TEST_F(SheetFileTest, AnUnsavedPageGetsTheBoxAndTheLink) {
    frame.active->caption.clear();
    frame.SetMarked("</HEAD>|");
    Import(ScriptedPrompts::Picked(T(u"C:\\site\\b.css")));
    ASSERT_EQ(frame.prompts.Messages().size(), 1);
    EXPECT_TRUE(frame.prompts.Messages().first().startsWith(T(u"I am unable to complete")));
    EXPECT_EQ(frame.prompts.asked.last().owner, form);
    EXPECT_EQ(Text(), Link("site/b.css") + T(u"</HEAD>"));
}

TEST_F(SheetFileTest, AnImportWithoutADocumentIsSilentAndKeepsTheForm) {
    frame.CloseDocument();
    Import(ScriptedPrompts::Picked(T(u"/site/b.css")));
    EXPECT_TRUE(frame.prompts.Messages().isEmpty());
    EXPECT_TRUE(Loaded(T(u"frmCSS")));
}

TEST_F(SheetFileTest, ALinkTakesTheCaseOfTheSetting) {
    LowerCaseTags();
    frame.SetMarked("</HEAD>|");
    Import(ScriptedPrompts::Cancelled());
    EXPECT_TRUE(Text().startsWith(T(u"<link rel=")));
}

} // namespace
