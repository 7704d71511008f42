// When a changed document has a copy, and when it has none.
#include "app/recovery/Recovery.h"

#include "app/RealFrame.h"
#include "app/recovery/LeftCopies.h"
#include "app/recovery/RecoveryFolder.h"
#include "editor/frame/Commands.h"
#include "editor/views/Modes.h"
#include "support/FakeWebControls.h"
#include "support/Files.h"

#include <sys/stat.h>

using namespace std::chrono_literals;

namespace {

/// All copies that lie in the folder, whoever holds their lock.
std::vector<DocumentCopy> CopiesThere() {
    std::vector<DocumentCopy> copies;
    const QDir folder(RecoveryFolder());
    for (const QString& name : folder.entryList({QStringLiteral("*.copy")}, QDir::Files))
        if (const auto copy = CopyFromBytes(ReadFile(folder.filePath(name))))
            copies.push_back(*copy);
    return copies;
}

QStringList FilesThere() {
    return QDir(RecoveryFolder()).entryList(QDir::Files | QDir::Hidden);
}

class Recovering : public FrameTest {
  protected:
    /// A run whose rounds follow each other quickly; not started, so that nothing else is going on.
    static std::unique_ptr<ProgramRun> NewRun() {
        auto run = std::make_unique<ProgramRun>();
        run->frame->State<RecoveryPace>() = {.settling = 1ms, .shortest = 2ms, .timesTheCost = 0};
        return run;
    }
    static void Until(const std::function<bool()>& condition) {
        EXPECT_TRUE(QTest::qWaitFor(condition, 20'000));
    }
    static bool IsThere(const char* text) {
        return std::ranges::any_of(CopiesThere(),
                                   [text](const DocumentCopy& copy) { return copy.content.utf8 == text; });
    }
    static void UntilCopied(const char* text) {
        Until([text] { return IsThere(text); });
    }
    static void UntilNoCopy() {
        Until([] { return FilesThere().isEmpty(); });
    }
    static void SetTo(frmTemplate& document, const char* text) {
        document.txtInput().SetText(QString::fromUtf8(text));
    }
    /// What the next start would be offered once the program is gone.
    static std::vector<DocumentCopy> Offered() {
        std::vector<DocumentCopy> copies;
        for (const LeftCopy& left : TakeLeftCopies().copies)
            copies.push_back(left.copy);
        return copies;
    }

    std::unique_ptr<ProgramRun> run = NewRun();
};

TEST_F(Recovering, ChangedDocumentIsCopiedUntilItIsSaved) {
    const QString path = MakeFile(QStringLiteral("a.htm"), "old");
    run->frame->OpenDocumentFile(path);
    SetTo(run->Active(), "<P>new");
    run->Active().txtInput().SetSelStart(2);
    UntilCopied("<P>new");
    const FileMark read = *FileMark::FromText(FileMark::Of(path).ToText());
    EXPECT_EQ(CopiesThere().front(),
              (DocumentCopy{.path = path, .caret = 2, .content = {.utf8 = "<P>new", .mark = read}}));
    EXPECT_EQ(ReadFile(path), "old");
    run->frame->SaveActiveDocument();
    UntilNoCopy();
    EXPECT_EQ(ReadFile(path), "<P>new\r\n");
}

TEST_F(Recovering, CopyIsTheUsersAlone) {
    SetTo(run->New(), "secret");
    UntilCopied("secret");
    for (const QString& name : FilesThere()) {
        struct stat status = {};
        ASSERT_EQ(::stat(QFile::encodeName(RecoveryFolder() + u'/' + name), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0600u) << name.toStdString();
    }
}

TEST_F(Recovering, CopyFollowsTheText) {
    frmTemplate& document = run->New();
    for (const char* text : {"one", "two", "three"}) {
        SetTo(document, text);
        UntilCopied(text);
        EXPECT_EQ(CopiesThere().size(), 1u);
    }
}

TEST_F(Recovering, NothingIsThereWhileNothingIsChanged) {
    run->frame->OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "<B>a</B>"));
    run->New();
    run->frame->Commands().Run(QStringLiteral("tb_new"));
    EXPECT_FALSE(run->frame->Copies().IsWaiting());
    QCoreApplication::processEvents();
    EXPECT_FALSE(QDir(RecoveryFolder()).exists());
}

TEST_F(Recovering, NoRoundIsToComeOnceAllIsCopied) {
    SetTo(run->New(), "text");
    EXPECT_TRUE(run->frame->Copies().IsWaiting());
    Until([&] { return !run->frame->Copies().IsWaiting(); });
    EXPECT_TRUE(IsThere("text"));
}

TEST_F(Recovering, ManyDocumentsEachHaveOne) {
    for (const char* text : {"one", "two", "three"})
        SetTo(run->New(), text);
    for (const char* text : {"one", "two", "three"})
        UntilCopied(text);
    EXPECT_EQ(CopiesThere().size(), 3u);
    run->prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_TRUE(run->Active().Unload());
    Until([] { return CopiesThere().size() == 2; });
    EXPECT_FALSE(IsThere("three"));
}

TEST_F(Recovering, ChangeThatIsSavedBeforeItsCopyLeavesNone) {
    run->frame->State<RecoveryPace>().settling = 1h;
    run->frame->OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "old"));
    SetTo(run->Active(), "new");
    EXPECT_TRUE(run->frame->Copies().IsWaiting());
    run->frame->SaveActiveDocument();
    EXPECT_FALSE(run->frame->Copies().IsWaiting());
    EXPECT_FALSE(QDir(RecoveryFolder()).exists());
}

TEST_F(Recovering, SavedPageHasNoCopyEvenWhereOneIsBeingWritten) {
    run->frame->OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "old"));
    for (int n = 0; n < 20; ++n) {
        SetTo(run->Active(), "new");
        Until([] { return !FilesThere().isEmpty(); });
        run->frame->SaveActiveDocument();
        UntilNoCopy();
    }
    run.reset();
    EXPECT_TRUE(FilesThere().isEmpty());
}

// Rounds

TEST_F(Recovering, RoundComesNoSoonerThanThePauseAfterTheLast) {
    run->frame->State<RecoveryPace>() = {.settling = 1ms, .shortest = 1h, .timesTheCost = 0};
    frmTemplate& document = run->New();
    SetTo(document, "one");
    UntilCopied("one");
    Until([&] { return !run->frame->Copies().IsWaiting(); });
    SetTo(document, "two");
    const auto wait = run->frame->Copies().UntilNextRound();
    EXPECT_GT(wait, 50min);
    EXPECT_LE(wait, 1h);
}

TEST_F(Recovering, PauseIsAMultipleOfTheCost) {
    // A copy is flushed to the disk: that takes more than 50 microseconds.
    run->frame->State<RecoveryPace>() = {.settling = 1ms, .shortest = 1ms, .timesTheCost = 100'000};
    frmTemplate& document = run->New();
    SetTo(document, "one");
    UntilCopied("one");
    Until([&] { return !run->frame->Copies().IsWaiting(); });
    SetTo(document, "two");
    EXPECT_GT(run->frame->Copies().UntilNextRound(), 5s);
}

TEST_F(Recovering, PaceIsFiveSecondsAndTwoPercent) {
    const RecoveryPace pace;
    EXPECT_EQ(pace.settling, 1s);
    EXPECT_EQ(pace.shortest, 5s);
    EXPECT_EQ(pace.timesTheCost, 50);
}

TEST_F(Recovering, CopyThatCannotBeWrittenIsTriedAgain) {
    WriteFile(RecoveryFolder(), "a file in its place");
    SetTo(run->New(), "text");
    // The next round is called for, time and again.
    for (int n = 0; n < 3; ++n)
        Until([&] { return run->frame->Copies().IsWaiting(); });
    ASSERT_TRUE(QFile::remove(RecoveryFolder()));
    UntilCopied("text");
}

// Ways of a document

TEST_F(Recovering, CopyFollowsTheDocumentToANewPath) {
    const QString path = TestFolder() + QStringLiteral("/missing/b.htm");
    SetTo(run->New(), "text");
    UntilCopied("text");
    // Such a save fails, and gives the document its path all the same.
    run->prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    run->frame->Commands().Run(QStringLiteral("mnuSaveAs"));
    ASSERT_EQ(run->Active().Caption(), path);
    Until([&] { return CopiesThere().size() == 1 && CopiesThere().front().path == path; });
    run->prompts.saveAnswers = {ScriptedPrompts::Picked(TestFolder() + QStringLiteral("/c.htm"))};
    run->frame->Commands().Run(QStringLiteral("mnuSaveAs"));
    UntilNoCopy();
}

TEST_F(Recovering, NoEndsItAndCancelKeepsIt) {
    SetTo(run->New(), "text");
    UntilCopied("text");
    run->prompts.messageAnswers = {MsgAnswer::Cancel};
    EXPECT_FALSE(run->Active().Unload());
    EXPECT_TRUE(IsThere("text"));
    run->prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_TRUE(run->Active().Unload());
    UntilNoCopy();
}

TEST_F(Recovering, NoAtTheEndOfTheSessionEndsIt) {
    SetTo(run->New(), "text");
    UntilCopied("text");
    run->prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_TRUE(run->Active().SaveAtSessionEnd());
    UntilNoCopy();
}

TEST_F(Recovering, SaveThatFailsWhileClosingLeavesTheCopy) {
    const QString path = TestFolder() + QStringLiteral("/sub/a.htm");
    WriteFile(path, "old");
    run->frame->OpenDocumentFile(path);
    SetTo(run->Active(), "new");
    UntilCopied("new");
    ASSERT_TRUE(QDir(TestFolder() + QStringLiteral("/sub")).removeRecursively());
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_TRUE(run->Active().Unload());
    EXPECT_EQ(run->frame->ActiveForm(), nullptr);
    EXPECT_TRUE(Offered().empty()) << "as long as the program runs it is this program's";
    run.reset();
    ASSERT_EQ(Offered().size(), 1u);
    EXPECT_EQ(Offered().front().path, path);
}

TEST_F(Recovering, SaveThatFailsAtTheEndLeavesACopyThatWasNotThereYet) {
    run->frame->State<RecoveryPace>().settling = 1h;
    for (const char* text : {"one", "two"})
        SetTo(run->New(), text);
    run->prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::Yes};
    run->prompts.saveAnswers = {ScriptedPrompts::Cancelled(), ScriptedPrompts::Cancelled()};
    EXPECT_TRUE(run->Stop());
    run.reset();
    ASSERT_EQ(Offered().size(), 2u);
    EXPECT_TRUE(IsThere("one"));
    EXPECT_TRUE(IsThere("two"));
}

TEST_F(Recovering, CopyOfAProgramThatEndsWithoutAskingStays) {
    SetTo(run->New(), "text");
    UntilCopied("text");
    run.reset();
    EXPECT_EQ(Offered().size(), 1u);
}

TEST_F(Recovering, DesignThatCannotBeSavedLeavesItsPage) {
    FakeFactory factory;
    run->frame->State<WebControls>().Load = [&factory] { return &factory; };
    Write(Keys::UseMSIE, "1");
    const QString path = MakeFile(QStringLiteral("a.htm"), "<P>\xe9 old");
    run->frame->OpenDocumentFile(path);
    ModeStrip_Click(*run->frame, QStringLiteral("Design"));
    auto* design = dynamic_cast<FakeDesign*>(run->Active().findChild<QWidget*>(QStringLiteral("DHTMLEdit")));
    ASSERT_TRUE(design);
    design->unsaved = QByteArray("<P>\xe9 new");
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    ModeStrip_Click(*run->frame, QStringLiteral("Edit"));
    EXPECT_EQ(run->Active().txtInput().Text(), QStringLiteral("<P>\u00e9 old\r\n"));
    run.reset();
    const std::vector<DocumentCopy> offered = Offered();
    ASSERT_EQ(offered.size(), 1u);
    EXPECT_EQ(offered.front(),
              (DocumentCopy{.path = path, .content = {"<P>\xc3\xa9 new", TextEncoding::CodePage1252}}));
}

// The setting

class RecoveringOff : public Recovering {
  protected:
    RecoveringOff() { FrameTest::Write(Keys::Recovery, "0"); }
};

TEST_F(RecoveringOff, NothingIsEverThere) {
    run->frame->OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "old"));
    SetTo(run->Active(), "new");
    EXPECT_FALSE(run->frame->Copies().IsWaiting());
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    run->prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
    run->Active().SetCaption(QString());
    EXPECT_TRUE(run->Active().Unload());
    run->frame->Copies().Leave(QStringLiteral("/a"), "design");
    run.reset();
    EXPECT_FALSE(QDir(RecoveryFolder()).exists());
}

TEST_F(Recovering, SettingTurnedOffBetweenChangeAndCopyMakesNone) {
    SetTo(run->New(), "text");
    run->store.Write(Keys::Recovery, QStringLiteral("0"));
    Until([&] { return !run->frame->Copies().IsWaiting(); });
    run.reset();
    EXPECT_FALSE(QDir(RecoveryFolder()).exists());
}

} // namespace
