// Open, Save, Save As and Insert Contents: what they ask, what they write, and what they leave alone.
#include "app/documents/FileCommands.h"

#include "app/documents/FilesFrame.h"
#include "app/documents/RecentFiles.h"
#include "dialogs/DialogState.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

const QString filter = QStringLiteral(
    "All Files (*.*)|*.*|HTML Files (*.htm);(*.html);(*.shtml)|*.htm;*.html;*.shtml|"
    "MS Files (*.htx);(*.asp);(*.idc)|*.htx;*.asp;*.idc|Server Files (*.cgi);(*.pl)|*.cgi;*.pl|"
    "Text Files (*.txt)|*.txt|");

class FileCommands : public testing::Test {
  protected:
    QString& LastDir() { return frame.State<DialogState>().LastDir; }
    static QString Folder() { return TestFolder() + u'/'; }
    /// A typed text in a document of a file that is as given before.
    QString Edited(const QByteArray& before, const QString& text) {
        const QString path = FilesFrame::Make(QStringLiteral("a.htm"), before);
        frame.SetText(text);
        frame.active->SetCaption(path);
        frame.active->SetModified(true);
        return path;
    }
    FilesFrame frame;
};

// Open

TEST_F(FileCommands, OpenAsksForManyHtmlFilesInTheLastFolder) {
    LastDir() = QStringLiteral("/some/where");
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled()};
    frame.Run("mnuOpen");
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    const FileRequest& request = frame.prompts.asked.first().request;
    EXPECT_EQ(request.filter, filter);
    EXPECT_EQ(request.filterIndex, 2);
    EXPECT_EQ(request.folder, QStringLiteral("/some/where"));
    EXPECT_EQ(request.fileName, QString());
    EXPECT_TRUE(request.multiSelect);
}

TEST_F(FileCommands, OpenCancelledChangesNothing) {
    LastDir() = QStringLiteral("/some/where");
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled()};
    frame.Run("mnuOpen");
    EXPECT_EQ(LastDir(), QStringLiteral("/some/where"));
    EXPECT_EQ(frame.forms->Count(), 1);
}

TEST_F(FileCommands, OpenOpensEachInOrder) {
    FilesFrame::Make(QStringLiteral("a.htm"), "a");
    FilesFrame::Make(QStringLiteral("b.htm"), "b");
    frame.prompts.openAnswers = {{Folder(), {QStringLiteral("b.htm"), QStringLiteral("a.htm")}}};
    frame.Run("mnuOpen");
    EXPECT_EQ(frame.opened,
              (QStringList{Folder() + QStringLiteral("b.htm"), Folder() + QStringLiteral("a.htm")}));
    EXPECT_EQ(frame.tabs, frame.opened);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("a"));
    EXPECT_EQ(LastDir(), Folder());
}

TEST_F(FileCommands, OpenGoesOnBehindAFileThatIsOpenAlready) {
    const QString a = FilesFrame::Make(QStringLiteral("a.htm"), "a");
    FilesFrame::Make(QStringLiteral("b.htm"), "b");
    OpenDocumentFile(frame, a);
    frame.prompts.openAnswers = {{Folder(), {QStringLiteral("a.htm"), QStringLiteral("b.htm")}}};
    frame.Run("mnuOpen");
    EXPECT_EQ(frame.prompts.Messages().size(), 1);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("b"));
}

TEST_F(FileCommands, OpenWorksWithNoDocument) {
    frame.CloseDocument();
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(FilesFrame::Make(QStringLiteral("a.htm"), "a"))};
    frame.Run("mnuOpen");
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("a"));
}

// Save

struct Saving {
    QString text;
    QByteArray bytes;
};

class SavedBytes : public testing::TestWithParam<Saving> {};

TEST_P(SavedBytes, AreTheTrimmedTextAndALineEnd) {
    FilesFrame frame;
    frame.SetText(GetParam().text);
    frame.active->SetCaption(FilesFrame::At(QStringLiteral("a.htm")));
    frame.active->SetModified(true);
    frame.Run("mnuSave");
    EXPECT_EQ(FilesFrame::Content(frame.active->Caption()), GetParam().bytes);
    EXPECT_EQ(frame.Box().Text(), GetParam().text);
    EXPECT_FALSE(frame.active->Modified());
}

INSTANTIATE_TEST_SUITE_P(Savings, SavedBytes,
                         testing::Values(Saving{QStringLiteral("x"), "x\r\n"}, Saving{QString(), "\r\n"},
                                         Saving{QStringLiteral("   "), "\r\n"},
                                         Saving{QStringLiteral("  a b  "), "a b\r\n"},
                                         Saving{QStringLiteral(" \ta\t "), "\ta\t\r\n"},
                                         Saving{QStringLiteral(" a \r\n "), "a \r\n\r\n"},
                                         Saving{QStringLiteral("a\nb\n"), "a\nb\n\r\n"},
                                         Saving{QStringLiteral("a\r"), "a\r\r\n"},
                                         Saving{QStringLiteral("\u00a0a\u00a0"), "\xa0"
                                                                                 "a\xa0\r\n"},
                                         Saving{QStringLiteral("\u20ac\u0081\u00e9"), "\x80\x81\xe9\r\n"}));

TEST_F(FileCommands, SaveAsksNothingAndLeavesTheListsAlone) {
    Edited("old", QStringLiteral("new"));
    frame.Run("mnuSave");
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_TRUE(frame.tabs.isEmpty());
    EXPECT_TRUE(frame.Recent().isEmpty());
    EXPECT_EQ(LastDir(), QString());
}

TEST_F(FileCommands, FiveSavesAndReloadsAddFiveLineEnds) {
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "<P>\r\nx");
    for (int n = 0; n < 5; ++n) {
        OpenDocumentFile(frame, path);
        frame.Run("mnuSave");
        frame.CloseDocument();
    }
    EXPECT_EQ(FilesFrame::Content(path), "<P>\r\nx\r\n\r\n\r\n\r\n\r\n");
}

TEST_F(FileCommands, SaveThatFailsSaysNothingAndKeepsTheFlag) {
    for (const QString& path :
         {FilesFrame::At(QStringLiteral("gone/a.htm")), TestFolder(), QStringLiteral("/dev/full")}) {
        frame.SetText(QStringLiteral("new"));
        frame.active->SetCaption(path);
        frame.active->SetModified(true);
        frame.Run("mnuSave");
        EXPECT_TRUE(frame.active->Modified()) << path.toStdString();
        EXPECT_TRUE(frame.prompts.asked.isEmpty());
    }
    EXPECT_TRUE(QDir(TestFolder()).isEmpty());
}

TEST_F(FileCommands, SaveOfANewDocumentGoesThroughSaveAs) {
    frame.SetText(QStringLiteral("x"));
    frame.active->SetModified(true);
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(FilesFrame::At(QStringLiteral("n.htm")))};
    frame.Run("mnuSave");
    EXPECT_EQ(FilesFrame::Content(FilesFrame::At(QStringLiteral("n.htm"))), "x\r\n");
    EXPECT_FALSE(frame.active->Modified());
    EXPECT_EQ(frame.tabs, QStringList{FilesFrame::At(QStringLiteral("n.htm"))});
}

// Save As

TEST_F(FileCommands, SaveAsAsksForAnHtmlFileInTheLastFolder) {
    LastDir() = QStringLiteral("/some/where");
    for (const auto& [useHtm, extension] :
         {std::pair("1", "htm"), std::pair("0", "html"), std::pair("2", "html")}) {
        frame.Store().Write(Keys::UseHTM, QString::fromLatin1(useHtm));
        frame.prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
        frame.Run("mnuSaveAs");
        const FileRequest& request = frame.prompts.asked.last().request;
        EXPECT_EQ(request.filter, filter);
        EXPECT_EQ(request.filterIndex, 2);
        EXPECT_EQ(request.folder, QStringLiteral("/some/where"));
        EXPECT_EQ(request.fileName, QString());
        EXPECT_EQ(request.defaultExtension, QString::fromLatin1(extension));
        EXPECT_FALSE(request.multiSelect);
    }
}

TEST_F(FileCommands, SaveAsCancelledChangesNothing) {
    const QString path = Edited("old", QStringLiteral("new"));
    for (const FileAnswer& none : {ScriptedPrompts::Cancelled(), FileAnswer{Folder(), {QString()}}}) {
        frame.prompts.saveAnswers = {none};
        frame.Run("mnuSaveAs");
        EXPECT_EQ(FilesFrame::Content(path), "old");
        EXPECT_EQ(frame.active->Caption(), path);
        EXPECT_TRUE(frame.active->Modified());
        EXPECT_EQ(LastDir(), QString());
    }
}

TEST_F(FileCommands, DocumentThatGoesWhileItsDialogIsUpIsNotMissed) {
    frame.prompts.whileOpen = [&](const FileRequest&) { frame.CloseDocument(); };
    const QString written = FilesFrame::At(QStringLiteral("n.htm"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(written)};
    frame.Run("mnuSaveAs");
    EXPECT_FALSE(QFileInfo::exists(written));
    EXPECT_EQ(LastDir(), QString());
    frame.NewDocument();
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(FilesFrame::Make(QStringLiteral("i.htm"), "x"))};
    frame.Run("mnuInsertContents");
    EXPECT_EQ(frame.prompts.asked.size(), 2);
    EXPECT_EQ(frame.forms->Count(), 0);
}

TEST_F(FileCommands, SaveAsMovesTheDocumentToItsNewFile) {
    const QString a = FilesFrame::Make(QStringLiteral("a.htm"), "old");
    OpenDocumentFile(frame, a);
    frame.SetText(QStringLiteral(" new "));
    const QString b = FilesFrame::At(QStringLiteral("b.htm"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(b)};
    frame.Run("mnuSaveAs");
    EXPECT_EQ(FilesFrame::Content(a), "old");
    EXPECT_EQ(FilesFrame::Content(b), "new\r\n");
    EXPECT_EQ(frame.active->Caption(), b);
    EXPECT_FALSE(frame.active->Modified());
    EXPECT_EQ(LastDir(), Folder());
    EXPECT_EQ(frame.tabs, QStringList{b});
    EXPECT_EQ(frame.tabCaptions.last(), QStringLiteral("b.htm"));
    EXPECT_EQ(frame.Recent(), (QStringList{b, a}));
}

TEST_F(FileCommands, TwoNewDocumentsOfWhichOneIsSavedHaveOneTab) {
    frame.NewDocument();
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(FilesFrame::At(QStringLiteral("n.htm")))};
    frame.Run("mnuSaveAs");
    EXPECT_EQ(frame.tabs, QStringList{FilesFrame::At(QStringLiteral("n.htm"))});
}

struct Overwriting {
    int size;
    bool asked;
};

class OverwritePrompt : public testing::TestWithParam<Overwriting> {};

TEST_P(OverwritePrompt, ComesForSizesThatAreSixteenBitNumbersFromTwoOn) {
    FilesFrame frame;
    frame.SetText(QStringLiteral("new"));
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), QByteArray(GetParam().size, 'o'));
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    if (GetParam().asked)
        frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Run("mnuSaveAs");
    EXPECT_EQ(frame.prompts.Messages().size(), GetParam().asked ? 1 : 0);
    EXPECT_EQ(FilesFrame::Content(path), "new\r\n");
}

INSTANTIATE_TEST_SUITE_P(Sizes, OverwritePrompt,
                         testing::Values(Overwriting{0, false}, Overwriting{1, false}, Overwriting{2, true},
                                         Overwriting{32767, true}, Overwriting{32768, false},
                                         Overwriting{40000, false}, Overwriting{65540, false}));

TEST_F(FileCommands, NoToOverwritingShowsTheDialogAnew) {
    frame.SetText(QStringLiteral("new"));
    const QString a = FilesFrame::Make(QStringLiteral("a.htm"), "kept");
    const QString b = FilesFrame::At(QStringLiteral("b.htm"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(a), ScriptedPrompts::Picked(b)};
    frame.prompts.messageAnswers = {MsgAnswer::No};
    frame.Run("mnuSaveAs");
    ASSERT_EQ(frame.prompts.asked.size(), 3);
    const Asked& question = frame.prompts.asked[1];
    EXPECT_EQ(question.text, QStringLiteral("Overwrite File?"));
    EXPECT_EQ(question.title, QStringLiteral("Overwrite"));
    EXPECT_EQ(question.buttons, MsgButtons::YesNo);
    EXPECT_EQ(question.icon, MsgIcon::Question);
    EXPECT_EQ(frame.prompts.asked[2].request.fileName, QString());
    EXPECT_EQ(FilesFrame::Content(a), "kept");
    EXPECT_EQ(FilesFrame::Content(b), "new\r\n");
}

TEST_F(FileCommands, NoAndThenCancelLeavesEverything) {
    const QString a = FilesFrame::Make(QStringLiteral("a.htm"), "kept");
    frame.SetText(QStringLiteral("new"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(a), ScriptedPrompts::Cancelled()};
    frame.prompts.messageAnswers = {MsgAnswer::No};
    frame.Run("mnuSaveAs");
    EXPECT_EQ(FilesFrame::Content(a), "kept");
    EXPECT_EQ(frame.active->Caption(), QString());
}

TEST_F(FileCommands, SaveAsThatFailsMovesOnButKeepsTheFlag) {
    const QString path = FilesFrame::At(QStringLiteral("gone/b.htm"));
    for (const bool modified : {true, false}) {
        Edited("old", QStringLiteral("new"));
        frame.active->SetModified(modified);
        frame.prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
        frame.Run("mnuSaveAs");
        EXPECT_EQ(frame.active->Modified(), modified);
        EXPECT_EQ(frame.active->Caption(), path);
        EXPECT_EQ(LastDir(), FilesFrame::At(QStringLiteral("gone/")));
        EXPECT_TRUE(frame.prompts.Messages().isEmpty());
        EXPECT_EQ(FilesFrame::Content(FilesFrame::At(QStringLiteral("a.htm"))), "old");
        // The name is the one on the disk, and there is none.
        EXPECT_EQ(frame.tabs, QStringList{path});
        EXPECT_EQ(frame.tabCaptions, QStringList{QString()});
    }
}

TEST_F(FileCommands, SaveAsOntoItsOwnFileKeepsOneTabAndOneEntry) {
    const QString a = FilesFrame::Make(QStringLiteral("a.htm"), "old");
    const QString b = FilesFrame::Make(QStringLiteral("b.htm"), "b");
    OpenDocumentFile(frame, b);
    OpenDocumentFile(frame, a);
    frame.SetText(QStringLiteral("new"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(a)};
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    frame.Run("mnuSaveAs");
    EXPECT_EQ(FilesFrame::Content(a), "new\r\n");
    EXPECT_EQ(frame.tabs, (QStringList{b, a}));
    EXPECT_EQ(frame.Recent(), (QStringList{a, b}));
    EXPECT_FALSE(frame.active->Modified());
}

// Insert Contents

TEST_F(FileCommands, InsertContentsPutsAFileInPlaceOfTheSelection) {
    frame.SetText(QStringLiteral("abc"));
    frame.Box().SetSelStart(1);
    frame.Box().SetSelLength(1);
    LastDir() = QStringLiteral("/some/where");
    frame.prompts.openAnswers = {
        ScriptedPrompts::Picked(FilesFrame::Make(QStringLiteral("i.htm"), "<B>{\\x}\n\xe9</B>"))};
    frame.Run("mnuInsertContents");
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("a<B>{\\x}\n\u00e9</B>c"));
    EXPECT_EQ(frame.Colors().size(), 1u);
    EXPECT_TRUE(frame.active->Modified());
    EXPECT_EQ(frame.active->Caption(), QString());
    EXPECT_TRUE(frame.tabs.isEmpty());
    EXPECT_TRUE(frame.Recent().isEmpty());
    EXPECT_EQ(LastDir(), QStringLiteral("/some/where"));
    const FileRequest& request = frame.prompts.asked.first().request;
    EXPECT_EQ(request.filter, filter);
    EXPECT_EQ(request.filterIndex, 2);
    EXPECT_EQ(request.folder, QString());
    EXPECT_FALSE(request.multiSelect);
}

TEST_F(FileCommands, InsertContentsThatCannotBeReadInOneGoInsertsNothing) {
    for (const QString& path :
         {FilesFrame::Make(QStringLiteral("i.htm"), "x\x1ay"), FilesFrame::At(QStringLiteral("gone.htm"))}) {
        frame.SetText(QStringLiteral("abc"));
        frame.Box().SetSelStart(0);
        frame.Box().SetSelLength(3);
        frame.prompts.openAnswers = {ScriptedPrompts::Picked(path)};
        frame.Run("mnuInsertContents");
        EXPECT_EQ(frame.Box().Text(), QStringLiteral("abc"));
        EXPECT_FALSE(frame.active->Modified());
    }
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled()};
    frame.Run("mnuInsertContents");
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("abc"));
}

// Close, Exit, no document

TEST_F(FileCommands, WithNoDocumentNothingIsAskedOrWritten) {
    frame.CloseDocument();
    for (const char* command : {"mnuSave", "mnuSaveAs", "mnuInsertContents", "mnuClose"})
        frame.Run(command);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(frame.forms->Count(), 0);
}

TEST_F(FileCommands, CloseUnloadsTheActiveDocument) {
    frame.Run("mnuClose");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(frame.forms->Count(), 0);
    frame.active = nullptr;
}

TEST_F(FileCommands, ExitClosesTheFrame) {
    ASSERT_TRUE(frame.window->isVisible());
    frame.Run("mnuExit");
    EXPECT_FALSE(frame.window->isVisible());
}

} // namespace
