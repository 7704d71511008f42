// Panel 3 tells of the files that others changed when the program comes to the front.
#include "app/window/ChangedFiles.h"

#include "app/RealFrame.h"
#include "support/NoPlainFile.h"

#include <QLabel>

namespace {

using namespace Qt::StringLiterals;

class ChangedFilesTest : public FrameTest {
  protected:
    void Start(bool tells = true) {
        Write(Keys::TellChangedFiles, tells ? "1" : "0");
        run = std::make_unique<ProgramRun>();
        ASSERT_TRUE(run->Start());
    }
    QString Open(const QString& name, const QByteArray& content = "old") {
        const QString path = MakeFile(name, content);
        run->frame->OpenDocumentFile(path);
        Settle();
        run->frame->SetIdlePanel(u"Line 1"_s);
        return path;
    }
    /// Lets a look that is under way come to its end.
    void Settle() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !run->frame->ChangedByOthers().IsLooking(); }, 20'000));
        QCoreApplication::processEvents();
    }
    void ComeToFront() {
        QEvent activate(QEvent::WindowActivate);
        QCoreApplication::sendEvent(run->frame.get(), &activate);
        Settle();
    }
    QString Panel3() { return run->Find<QLabel>("Panel3").text(); }
    /// Nothing is told any more.
    void Act() { QTest::keyClick(run->frame.get(), Qt::Key_Escape); }

    std::unique_ptr<ProgramRun> run;
};

TEST_F(ChangedFilesTest, TellsOfEachChangeOnce) {
    Start();
    Open(u"a.htm"_s);
    Open(u"b.htm"_s);
    Open(u"c.htm"_s);
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
    MakeFile(u"c.htm"_s, "theirs");
    MakeFile(u"a.htm"_s, "theirs");
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Changed on disk: a.htm, c.htm"_s);
    Act();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
    MakeFile(u"a.htm"_s, "theirs again");
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Changed on disk: a.htm"_s);
}

TEST_F(ChangedFilesTest, TellsOfFilesThatVanishedAndCameBack) {
    Start();
    const QString a = Open(u"a.htm"_s);
    Open(u"b.htm"_s);
    QFile::remove(a);
    MakeFile(u"b.htm"_s, "theirs");
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Changed on disk: b.htm; No longer on disk: a.htm"_s);
    Act();
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
    MakeFile(u"a.htm"_s, "theirs");
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Changed on disk: a.htm"_s);
}

TEST_F(ChangedFilesTest, TellsNothingOfTheSameBytesOrOfItsOwnSaves) {
    Start();
    Open(u"a.htm"_s);
    MakeFile(u"a.htm"_s, "old");
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
    run->frame->SaveActiveDocument();
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
}

TEST_F(ChangedFilesTest, TellsOfNoFileThatHasNone) {
    Start();
    run->New();
    ComeToFront();
    EXPECT_FALSE(run->frame->ChangedByOthers().IsLooking());
    EXPECT_EQ(Panel3(), u"Line 1"_s);
}

TEST_F(ChangedFilesTest, IsSilentBehindTheQuestionThatTold) {
    Start();
    Open(u"a.htm"_s);
    run->Active().txtInput().SetSelText(u"mine"_s);
    MakeFile(u"a.htm"_s, "theirs");
    run->prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_EQ(run->frame->SaveActiveDocument(), SaveResult::Refused);
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
}

TEST_F(ChangedFilesTest, TheCaretsLineDoesNotWipeItAwayAndAClickIsSpared) {
    Start();
    Open(u"a.htm"_s, "one\r\ntwo");
    MakeFile(u"a.htm"_s, "theirs");
    ComeToFront();
    RichTextBox& text = run->Active().txtInput();
    text.SetSelStart(5);
    text.clearFocus();
    text.SetFocus();
    EXPECT_EQ(Panel3(), u"Changed on disk: a.htm"_s);
    QTest::mouseClick(text.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(Panel3(), u"Changed on disk: a.htm"_s);
    QTest::mouseClick(text.viewport(), Qt::LeftButton, {}, QPoint(9, 5));
    EXPECT_EQ(Panel3(), u"Line 1"_s);
}

TEST_F(ChangedFilesTest, ASaveOrACloseThatCameMeanwhileIsNotTold) {
    Start();
    Open(u"a.htm"_s);
    frmTemplate& a = run->Active();
    Open(u"b.htm"_s);
    MakeFile(u"a.htm"_s, "theirs");
    MakeFile(u"b.htm"_s, "theirs");
    run->frame->ChangedByOthers().Look();
    EXPECT_TRUE(run->frame->ChangedByOthers().IsLooking());
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_EQ(run->frame->SaveActiveDocument(), SaveResult::Saved);
    EXPECT_TRUE(a.Unload());
    Settle();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
}

TEST_F(ChangedFilesTest, AFrameThatGoesDoesNotMissItsLook) {
    Start();
    Open(u"a.htm"_s);
    run->frame->ChangedByOthers().Look();
    run.reset();
    QCoreApplication::processEvents();
}

TEST_F(ChangedFilesTest, APipeInItsPlaceIsNotWaitedFor) {
    Start();
    const QString path = Open(u"pipe.bmp"_s);
    QFile::remove(path);
    ASSERT_FALSE(NoPlainFiles().isEmpty());
    ComeToFront();
    EXPECT_EQ(Panel3(), u"No longer on disk: pipe.bmp"_s);
}

TEST_F(ChangedFilesTest, WithTheSettingOffNothingIsLookedAt) {
    Start(false);
    Open(u"a.htm"_s);
    MakeFile(u"a.htm"_s, "theirs");
    run->frame->ChangedByOthers().Look();
    EXPECT_FALSE(run->frame->ChangedByOthers().IsLooking());
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
}

// The other notices, in the frame that tells them.

TEST_F(ChangedFilesTest, ASaveThatFailedIsToldWhenItsDocumentHasGone) {
    Start();
    run->New();
    Open(u"a.htm"_s);
    run->Active().SetCaption(TestFolder() + u"/gone/a.htm"_s);
    run->Active().txtInput().SetSelText(u"mine"_s);
    run->prompts.messageAnswers = {MsgAnswer::Yes};
    EXPECT_TRUE(run->Active().Unload());
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Could not save a.htm: No such file or directory"_s);
    EXPECT_TRUE(run->Active().Unload());
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Could not save a.htm: No such file or directory"_s);
}

TEST_F(ChangedFilesTest, APageThatIsOpenedMeanwhileOnlyCoversANotice) {
    Start();
    run->frame->ShowNotice(u"Could not save a.htm: why"_s);
    Open(u"b.htm"_s, "<P>b");
    ComeToFront();
    EXPECT_EQ(Panel3(), u"Could not save a.htm: why"_s);
    Act();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
}

TEST_F(ChangedFilesTest, ACutPageIsToldOfWhenItStandsThere) {
    Start();
    Open(u"a.htm"_s, "<P>\xC5\xBC\x1arest");
    ComeToFront();
    EXPECT_EQ(Panel3(), u"a.htm holds an end-of-text byte: what follows it was not read"_s);
    Act();
    EXPECT_EQ(Panel3(), u"UTF-8"_s);
}

} // namespace
