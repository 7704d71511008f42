// Saves over files that others changed, saves that fail, and files of which only a part was read.
#include "app/documents/SaveOver.h"

#include "app/documents/FilesFrame.h"
#include "app/documents/RecentFiles.h"
#include "support/NoPlainFile.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString question =
    QStringLiteral("\"a.htm\" has changed on disk since it was opened or saved here. Overwrite it?");

class SaveOverTest : public testing::Test {
  protected:
    /// A page that is open, and changed by the user.
    void Open(const QByteArray& content = "old") {
        FilesFrame::Make(QStringLiteral("a.htm"), content);
        OpenDocumentFile(frame, path);
        Edit(QStringLiteral("mine"));
    }
    void Edit(const QString& text) {
        frame.SetText(text);
        frame.active->SetModified(true);
        frame.statuses.clear();
        frame.prompts.asked.clear();
    }
    static void OthersWrite(const QByteArray& content = "theirs") {
        FilesFrame::Make(QStringLiteral("a.htm"), content);
    }
    SaveResult Save() { return mnuSave_Click(frame); }
    QByteArray Content() { return FilesFrame::Content(path); }
    /// What lies in the recovery folder.
    static QStringList Kept() {
        return QDir(FilesFrame::Recovery()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static QByteArray KeptContent(const QString& name) {
        return FilesFrame::Content(FilesFrame::Recovery() + u'/' + name);
    }
    QStringList Asked() { return frame.prompts.Messages(); }

    const QString path = FilesFrame::At(QStringLiteral("a.htm"));
    FilesFrame frame;
};

// Changed by others

TEST_F(SaveOverTest, AFileThatNobodyElseWroteIsNotAskedAbout) {
    Open();
    for (const char* text : {"one", "two", "three"}) {
        Edit(QString::fromLatin1(text));
        EXPECT_EQ(Save(), SaveResult::Saved);
        EXPECT_EQ(Content(), QByteArray(text) + "\r\n");
    }
    EXPECT_EQ(Asked(), QStringList());
    EXPECT_EQ(frame.statuses, QStringList());
}

TEST_F(SaveOverTest, NoLeavesEverything) {
    Open();
    OthersWrite();
    frame.prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_EQ(Save(), SaveResult::Refused);
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    const auto& box = frame.prompts.asked.first();
    EXPECT_EQ(box.text, question);
    EXPECT_EQ(box.title, QStringLiteral("The Tarnwick"));
    EXPECT_EQ(box.buttons, MsgButtons::YesOrNoByDefault);
    EXPECT_EQ(box.icon, MsgIcon::Exclamation);
    EXPECT_EQ(box.owner, frame.Window());
    EXPECT_EQ(Content(), "theirs");
    EXPECT_EQ(frame.active->Caption(), path);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("mine"));
    EXPECT_TRUE(frame.active->Modified());
    EXPECT_EQ(frame.statuses, QStringList());
    // The next save asks again.
    frame.prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_EQ(Save(), SaveResult::Refused);
}

TEST_F(SaveOverTest, YesOverwritesAndTheNextSaveAsksNothing) {
    Open();
    OthersWrite();
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Content(), "mine\r\n");
    EXPECT_FALSE(frame.active->Modified());
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Asked(), QStringList{question});
    OthersWrite();
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Asked().size(), 2);
}

TEST_F(SaveOverTest, AnUnchangedDocumentAsksToo) {
    Open();
    frame.active->SetModified(false);
    OthersWrite();
    frame.prompts.messageAnswers = {MsgAnswer::No};
    PreviewInBrowser(frame);
    EXPECT_EQ(Asked(), QStringList{question});
    EXPECT_EQ(Content(), "theirs");
}

TEST_F(SaveOverTest, TheSameBytesAreNotAskedAbout) {
    Open();
    OthersWrite("old");
    EXPECT_EQ(Save(), SaveResult::Saved);
    OthersWrite("mine\r\n");
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Asked(), QStringList());
}

TEST_F(SaveOverTest, AFileThatVanishedIsWrittenAnew) {
    Open();
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Content(), "mine\r\n");
    EXPECT_EQ(Asked(), QStringList());
}

TEST_F(SaveOverTest, WithTheSettingOffItIsOverwritten) {
    frame.Store().WriteFlag(Keys::AskBeforeOverwrite, false);
    Open();
    OthersWrite();
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Content(), "mine\r\n");
    EXPECT_EQ(Asked(), QStringList());
}

TEST_F(SaveOverTest, NothingIsLookedAtWhereNoSettingAsksForIt) {
    frame.Store().WriteFlag(Keys::AskBeforeOverwrite, false);
    frame.Store().WriteFlag(Keys::TellChangedFiles, false);
    Open();
    EXPECT_EQ(frame.active->OnDisk().mark, FileMark());
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(frame.active->OnDisk().mark, FileMark());
    // Turned on, it knows nothing yet that could have changed.
    frame.Store().WriteFlag(Keys::AskBeforeOverwrite, true);
    OthersWrite();
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Asked(), QStringList());
}

TEST_F(SaveOverTest, OneOfTheRecentFilesIsWatchedToo) {
    FilesFrame::Make(QStringLiteral("a.htm"), "old");
    RecentFiles::SetCaption(frame, 0, path);
    frame.Run("mnuFileArray_0");
    OthersWrite();
    frame.prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_EQ(Save(), SaveResult::Refused);
}

TEST_F(SaveOverTest, AFileBehindALinkIsWatched) {
    const QString target = FilesFrame::Make(QStringLiteral("target.htm"), "old");
    ASSERT_TRUE(QFile::link(target, path));
    OpenDocumentFile(frame, path);
    FilesFrame::Make(QStringLiteral("target.htm"), "theirs");
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Asked(), QStringList{question});
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(FilesFrame::Content(target), "old\r\n");
}

TEST_F(SaveOverTest, TheSameFileOpenedTwiceDoesNotOverwriteItself) {
    Open();
    TestDocument* first = frame.active;
    OpenDocumentFile(frame, FilesFrame::At(QStringLiteral("./a.htm")));
    Edit(QStringLiteral("second"));
    EXPECT_EQ(Save(), SaveResult::Saved);
    frame.ActivateDocument(*first);
    frame.prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_EQ(Save(), SaveResult::Refused);
    EXPECT_EQ(Content(), "second\r\n");
}

TEST_F(SaveOverTest, ADocumentThatGoesWhileItIsAskedAboutIsNotMissed) {
    Open();
    OthersWrite();
    frame.prompts.whileAsked = [&] { frame.CloseDocument(); };
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_EQ(Save(), SaveResult::Cancelled);
    EXPECT_EQ(Content(), "theirs");
}

TEST_F(SaveOverTest, WhatIsNoPlainFileFailsWithoutAQuestion) {
    Open();
    for (const QString& other : NoPlainFiles()) {
        frame.active->SetCaption(other);
        EXPECT_EQ(Save(), SaveResult::Failed);
    }
    EXPECT_EQ(Asked(), QStringList());
}

// Save As

TEST_F(SaveOverTest, SaveAsAsksItsOwnQuestionOnly) {
    Open();
    OthersWrite();
    const QString other = FilesFrame::Make(QStringLiteral("b.htm"), "theirs too");
    for (const QString& to : {path, other}) {
        frame.prompts.asked.clear();
        frame.prompts.saveAnswers = {ScriptedPrompts::Picked(to)};
        frame.prompts.messageAnswers = {MsgAnswer::Yes};
        EXPECT_EQ(mnuSaveAs_Click(frame), SaveResult::Saved);
        EXPECT_EQ(Asked(), QStringList{QStringLiteral("Overwrite File?")});
        EXPECT_EQ(FilesFrame::Content(to), "mine\r\n");
    }
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Asked().size(), 1);
}

TEST_F(SaveOverTest, ASaveAsThatFailedKnowsWhatStandsUnderItsNewName) {
    Open();
    const QString folder = FilesFrame::At(QStringLiteral("later"));
    const QString later = folder + QStringLiteral("/a.htm");
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(later)};
    EXPECT_EQ(mnuSaveAs_Click(frame), SaveResult::Failed);
    ASSERT_TRUE(QDir().mkdir(folder));
    EXPECT_EQ(Save(), SaveResult::Saved) << "nothing stands there";
    EXPECT_EQ(Asked(), QStringList());
}

TEST_F(SaveOverTest, AFileThatCameAfterASaveAsThatFailedIsAskedAbout) {
    Open();
    const QString folder = FilesFrame::At(QStringLiteral("later"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(folder + QStringLiteral("/a.htm"))};
    EXPECT_EQ(mnuSaveAs_Click(frame), SaveResult::Failed);
    ASSERT_TRUE(QDir().mkdir(folder));
    FilesFrame::Make(QStringLiteral("later/a.htm"), "theirs");
    frame.prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_EQ(Save(), SaveResult::Refused);
}

TEST_F(SaveOverTest, WhatCameOfSavingANewDocumentIsTold) {
    frame.SetText(QStringLiteral("x"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
    EXPECT_EQ(Save(), SaveResult::Cancelled);
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    EXPECT_EQ(Save(), SaveResult::Saved);
    frame.CloseDocument();
    EXPECT_EQ(Save(), SaveResult::Cancelled);
}

// Saves that fail

TEST_F(SaveOverTest, ASaveThatFailsTellsWhy) {
    Open();
    frame.active->SetCaption(FilesFrame::At(QStringLiteral("gone/100%1.htm")));
    EXPECT_EQ(Save(), SaveResult::Failed);
    frame.active->SetCaption(QStringLiteral("/dev/full"));
    EXPECT_EQ(Save(), SaveResult::Failed);
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(FilesFrame::At(QStringLiteral("gone/b.htm")))};
    EXPECT_EQ(mnuSaveAs_Click(frame), SaveResult::Failed);
    EXPECT_EQ(frame.statuses,
              (QStringList{QStringLiteral("Could not save 100%1.htm: No such file or directory"),
                           QStringLiteral("Could not save full: Operation not supported"),
                           QStringLiteral("Could not save b.htm: No such file or directory")}));
    EXPECT_EQ(Asked(), QStringList());
}

TEST_F(SaveOverTest, WithTheSettingOffAFailureIsSilent) {
    frame.Store().WriteFlag(Keys::TellFailedSaves, false);
    Open();
    frame.active->SetCaption(FilesFrame::At(QStringLiteral("gone/a.htm")));
    EXPECT_EQ(Save(), SaveResult::Failed);
    EXPECT_EQ(frame.statuses, QStringList());
}

// Files of which a part was read

TEST_F(SaveOverTest, APageCutAtAnEndOfTextIsToldOfAndKeptWhole) {
    FilesFrame::Make(QStringLiteral("a.htm"), "<B>x\x1arest");
    OpenDocumentFile(frame, path);
    EXPECT_EQ(frame.statuses.last(),
              QStringLiteral("a.htm holds an end-of-text byte: what follows it was not read"));
    EXPECT_EQ(Kept(), QStringList());
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Content(), "<B>x\r\n");
    ASSERT_EQ(Kept().size(), 1);
    EXPECT_TRUE(Kept().first().endsWith(QStringLiteral("a.htm")));
    EXPECT_EQ(KeptContent(Kept().first()), "<B>x\x1arest");
    const QFileInfo kept(FilesFrame::Recovery() + u'/' + Kept().first());
    EXPECT_EQ(kept.permissions() & ~QFile::Permissions(0x7000), QFile::ReadUser | QFile::WriteUser);
    EXPECT_EQ(frame.statuses.last(), QStringLiteral("What a.htm held is kept in ") + kept.absoluteFilePath());
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Kept().size(), 1) << "it is kept before the first save";
}

TEST_F(SaveOverTest, ARecentFileWithAnEndOfTextIsKeptToo) {
    FilesFrame::Make(QStringLiteral("a.htm"), "<B>x\x1a");
    RecentFiles::SetCaption(frame, 0, path);
    frame.Run("mnuFileArray_0");
    EXPECT_EQ(frame.statuses,
              QStringList{QStringLiteral("a.htm holds an end-of-text byte: nothing of it was read")});
    EXPECT_EQ(Save(), SaveResult::Saved);
    ASSERT_EQ(Kept().size(), 1);
    EXPECT_EQ(KeptContent(Kept().first()), "<B>x\x1a");
}

TEST_F(SaveOverTest, EachPageThatWasCutIsKeptUnderANameOfItsOwn) {
    for (const char* content : {"one\x1a", "two\x1a", "three\x1a"}) {
        frame.CloseDocument();
        FilesFrame::Make(QStringLiteral("a.htm"), content);
        OpenDocumentFile(frame, path);
        EXPECT_EQ(Save(), SaveResult::Saved);
    }
    ASSERT_EQ(Kept().size(), 3);
    QByteArrayList contents;
    for (const QString& name : Kept())
        contents << KeptContent(name);
    EXPECT_TRUE(contents.contains("one\x1a") && contents.contains("two\x1a") &&
                contents.contains("three\x1a"));
}

TEST_F(SaveOverTest, WhatCannotBeKeptIsNotOverwritten) {
    FilesFrame::Make(QStringLiteral("a.htm"), "x\x1arest");
    OpenDocumentFile(frame, path);
    Edit(QStringLiteral("mine"));
    // A file in the folder's place: nothing can be put into it.
    FilesFrame::MakeAt(FilesFrame::Recovery(), "in the way");
    EXPECT_EQ(Save(), SaveResult::Refused);
    EXPECT_EQ(Content(), "x\x1arest");
    EXPECT_TRUE(frame.active->Modified());
    EXPECT_EQ(frame.statuses,
              QStringList{QStringLiteral("Could not save a.htm: what it holds could not be kept")});
    ASSERT_TRUE(QFile::remove(FilesFrame::Recovery()));
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Kept().size(), 1);
}

TEST_F(SaveOverTest, APageThatWasCutIsKeptFromSaveAsOntoItself) {
    FilesFrame::Make(QStringLiteral("a.htm"), "x\x1arest");
    OpenDocumentFile(frame, path);
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(FilesFrame::At(QStringLiteral("./a.htm")))};
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_EQ(mnuSaveAs_Click(frame), SaveResult::Saved);
    ASSERT_EQ(Kept().size(), 1);
    EXPECT_EQ(KeptContent(Kept().first()), "x\x1arest");
}

TEST_F(SaveOverTest, SavedUnderAnotherNameItLeavesTheFileAsItIs) {
    FilesFrame::Make(QStringLiteral("a.htm"), "x\x1arest");
    OpenDocumentFile(frame, path);
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(FilesFrame::At(QStringLiteral("b.htm")))};
    EXPECT_EQ(mnuSaveAs_Click(frame), SaveResult::Saved);
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_EQ(Content(), "x\x1arest");
    EXPECT_EQ(Kept(), QStringList());
}

TEST_F(SaveOverTest, WithTheSettingOffNothingIsToldOrKept) {
    frame.Store().WriteFlag(Keys::KeepCutPages, false);
    FilesFrame::Make(QStringLiteral("a.htm"), "x\x1arest");
    OpenDocumentFile(frame, path);
    EXPECT_EQ(frame.statuses.last(), QString());
    EXPECT_EQ(Save(), SaveResult::Saved);
    EXPECT_FALSE(QFileInfo::exists(FilesFrame::Recovery()));
}

// What writes the file by itself

TEST_F(SaveOverTest, ADocumentThatGoesWhileAStepWritesIsNotMissed) {
    Open();
    const auto write = [&] {
        frame.CloseDocument();
        return WriteResult();
    };
    EXPECT_EQ(WriteOver(frame, *frame.active, write), SaveResult::Saved);
}

TEST_F(SaveOverTest, AnotherStepAsksAndTellsAsWell) {
    Open();
    int steps = 0;
    const auto write = [&] {
        ++steps;
        OthersWrite("from Design");
        return WriteResult();
    };
    EXPECT_EQ(WriteOver(frame, *frame.active, write), SaveResult::Saved);
    EXPECT_EQ(Save(), SaveResult::Saved) << "it knows what the step wrote";
    OthersWrite();
    frame.prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_EQ(WriteOver(frame, *frame.active, write), SaveResult::Refused);
    EXPECT_EQ(steps, 1);
    frame.prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_EQ(WriteOver(frame, *frame.active, [] { return WriteResult::Failed(QStringLiteral("why")); }),
              SaveResult::Failed);
    EXPECT_EQ(frame.statuses, QStringList{QStringLiteral("Could not save a.htm: why")});
}

} // namespace
