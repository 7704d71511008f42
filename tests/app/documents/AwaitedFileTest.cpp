// A path that can't be read: its window waits, and the program goes on.
#include "app/documents/AwaitedFile.h"

#include "app/documents/FilesFrame.h"
#include "app/RealFrame.h"
#include "app/window/DocumentTabs.h"

#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QTest>

using namespace std::chrono_literals;

namespace {

class AwaitedFiles : public testing::Test {
  protected:
    qsizetype Waiting() { return frame.window->findChildren<AwaitedFile*>().size(); }
    /// The pause before the second try is longer.
    bool FirstTryIsOver() { return frame.window->findChild<AwaitedFile*>()->Pause() > 100ms; }
    static QString WaitingFor(const QString& path) { return QStringLiteral("Waiting for ") + path; }
    /// Lets the event loop run until the condition holds; fails the test when it never does.
    template <typename Condition> static void Until(Condition condition) {
        EXPECT_TRUE(QTest::qWaitFor(condition, 20'000));
    }
    QString path = FilesFrame::At(QStringLiteral("late.htm"));
    FilesFrame frame;
};

TEST_F(AwaitedFiles, LeavesABlankWindowAndNamesThePath) {
    OpenDocumentFile(frame, path);
    EXPECT_EQ(frame.forms->Count(), 2);
    EXPECT_EQ(frame.active->Caption(), QString());
    EXPECT_EQ(frame.Box().Text(), QString());
    EXPECT_EQ(frame.statuses, QStringList{WaitingFor(path)});
    EXPECT_TRUE(frame.tabs.isEmpty());
    EXPECT_TRUE(frame.Recent().isEmpty());
    EXPECT_EQ(Waiting(), 1);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(AwaitedFiles, TakesInAFileThatBecomesReadable) {
    OpenDocumentFile(frame, path);
    FilesFrame::Make(QStringLiteral("late.htm"), "x<B>\r\n");
    Until([&] { return !frame.tabs.isEmpty(); });
    EXPECT_EQ(frame.active->Caption(), path);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("x<B>\r\n"));
    EXPECT_EQ(frame.Colors().size(), 3u);
    EXPECT_FALSE(frame.active->Modified());
    EXPECT_EQ(frame.Recent(), QStringList{path});
    EXPECT_EQ(frame.tabs, QStringList{path});
    EXPECT_EQ(frame.forms->Count(), 2);
    Until([&] { return Waiting() == 0 && frame.statuses.last().isEmpty(); });
}

TEST_F(AwaitedFiles, AFolderAndAPipeAreAwaitedToo) {
    QDir().mkdir(path);
    OpenDocumentFile(frame, path);
    EXPECT_EQ(Waiting(), 1);
    QDir().rmdir(path);
    FilesFrame::Make(QStringLiteral("late.htm"), "x");
    Until([&] { return frame.Box().Text() == QStringLiteral("x"); });
}

TEST_F(AwaitedFiles, AnEmptyPathIsNotAwaited) {
    frame.CloseDocument();
    OpenDocumentFile(frame, QString());
    EXPECT_EQ(frame.forms->Count(), 1);
    EXPECT_EQ(Waiting(), 0);
    EXPECT_TRUE(frame.statuses.isEmpty());
}

TEST_F(AwaitedFiles, ClosingTheWindowEndsTheWait) {
    OpenDocumentFile(frame, path);
    frame.CloseDocument();
    EXPECT_EQ(Waiting(), 0);
    Until([&] { return frame.statuses.last().isEmpty(); });
}

TEST_F(AwaitedFiles, StoppingTheProgramEndsTheWait) {
    auto stopping = std::make_unique<FilesFrame>();
    OpenDocumentFile(*stopping, path);
    stopping.reset();
    // Whatever was left to be done for the frame that is gone would be done now.
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(frame.statuses.isEmpty());
}

TEST_F(AwaitedFiles, SeveralComeInEachInItsOwnWindow) {
    TestDocument* typing = frame.active;
    const QString second = FilesFrame::At(QStringLiteral("second.htm"));
    OpenDocumentFile(frame, path);
    TestDocument* first = frame.active;
    OpenDocumentFile(frame, second);
    TestDocument* other = frame.active;
    EXPECT_EQ(Waiting(), 2);
    // The user works on in a third window, which stays the active one.
    frame.ActivateDocument(*typing);
    FilesFrame::Make(QStringLiteral("second.htm"), "two");
    Until([&] { return other->Caption() == second; });
    EXPECT_EQ(first->Caption(), QString());
    EXPECT_EQ(frame.active, typing);
    FilesFrame::Make(QStringLiteral("late.htm"), "one");
    Until([&] { return first->Caption() == path; });
    EXPECT_EQ(first->input->Text(), QStringLiteral("one"));
    EXPECT_EQ(other->input->Text(), QStringLiteral("two"));
    EXPECT_EQ(typing->input->Text(), QString());
    EXPECT_EQ(frame.active, typing);
    EXPECT_EQ(frame.Recent(), (QStringList{path, second}));
    Until([&] { return Waiting() == 0; });
}

TEST_F(AwaitedFiles, NamesThePathAgainWhileItsWindowIsTheActiveOne) {
    OpenDocumentFile(frame, path);
    frame.SetStatusPanel(QStringLiteral("Line 1"), false);
    Until([&] { return frame.statuses.last() == WaitingFor(path); });
}

TEST_F(AwaitedFiles, NamesNoPathWhileAnotherWindowIsTheActiveOne) {
    TestDocument* other = frame.active;
    OpenDocumentFile(frame, path);
    frame.ActivateDocument(*other);
    frame.statuses.clear();
    Until([&] { return FirstTryIsOver(); });
    EXPECT_TRUE(frame.statuses.isEmpty());
}

TEST_F(AwaitedFiles, AWindowThatIsOnItsWayOutTakesNothingIn) {
    OpenDocumentFile(frame, path);
    FilesFrame::Make(QStringLiteral("late.htm"), "x");
    // As a closed one stands until the event loop lets it go.
    frame.active->hide();
    Until([&] { return Waiting() == 0; });
    EXPECT_EQ(frame.Box().Text(), QString());
    EXPECT_TRUE(frame.tabs.isEmpty());
}

TEST_F(AwaitedFiles, WhatWasTypedMeanwhileStillCountsAsChanged) {
    OpenDocumentFile(frame, path);
    frame.Box().SetSelText(QStringLiteral("typed"));
    ASSERT_TRUE(frame.active->Modified());
    FilesFrame::Make(QStringLiteral("late.htm"), "x");
    Until([&] { return frame.active->Caption() == path; });
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("typedx"));
    EXPECT_TRUE(frame.active->Modified());
}

TEST_F(AwaitedFiles, AWindowSavedUnderANameOfItsOwnWaitsNoMore) {
    OpenDocumentFile(frame, path);
    frame.Box().SetSelText(QStringLiteral("typed"));
    const QString own = FilesFrame::At(QStringLiteral("own.htm"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(own)};
    frame.Run("mnuSave");
    Until([&] { return Waiting() == 0; });
    EXPECT_EQ(frame.active->Caption(), own);
}

TEST_F(AwaitedFiles, AFileThatWasOpenedElsewhereMeanwhileStaysOpenOnce) {
    OpenDocumentFile(frame, path);
    TestDocument* waiting = frame.active;
    OpenDocumentFile(frame, path);
    EXPECT_EQ(Waiting(), 2);
    FilesFrame::Make(QStringLiteral("late.htm"), "x");
    Until([&] { return Waiting() == 0; });
    EXPECT_EQ(frame.tabs, QStringList{path});
    EXPECT_NE(waiting->Caption() == path, frame.active->Caption() == path);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(AwaitedFiles, WaitsUntilAQuestionIsAnswered) {
    OpenDocumentFile(frame, path);
    FilesFrame::Make(QStringLiteral("late.htm"), "x");
    QDialog question(frame.Window());
    question.setModal(true);
    question.show();
    Until([&] { return FirstTryIsOver(); });
    EXPECT_EQ(frame.active->Caption(), QString());
    question.close();
    Until([&] { return frame.active->Caption() == path; });
}

TEST_F(AwaitedFiles, WaitsUntilAMenuIsClosed) {
    OpenDocumentFile(frame, path);
    FilesFrame::Make(QStringLiteral("late.htm"), "x");
    QMenu menu(frame.Window());
    menu.addAction(QStringLiteral("Any"));
    menu.popup(QPoint(0, 0));
    Until([&] { return FirstTryIsOver(); });
    EXPECT_EQ(frame.active->Caption(), QString());
    menu.close();
    Until([&] { return frame.active->Caption() == path; });
}

// The program's own frame: windows, tabs and status bar as they really are.
class AwaitedFileInTheFrame : public FrameTest {};

TEST_F(AwaitedFileInTheFrame, ComesInWhileTheUserWorksElsewhere) {
    ProgramRun run;
    const QString path = FilesFrame::At(QStringLiteral("late.htm"));
    ASSERT_TRUE(run.Start(path));
    frmTemplate& waiting = run.Active();
    // The caret's line comes there too; the path is named again at the next try.
    const auto named = [&] {
        return run.Find<QLabel>("Panel3").text() == QStringLiteral("Waiting for ") + path;
    };
    EXPECT_TRUE(QTest::qWaitFor(named, 20'000));
    EXPECT_EQ(waiting.Caption(), QString());
    frmTemplate& working = run.New();
    working.txtInput().SetSelText(QStringLiteral("work"));
    run.frame->TabStrip2().setFocus();
    FilesFrame::Make(QStringLiteral("late.htm"), "x<B>");
    EXPECT_TRUE(QTest::qWaitFor([&] { return waiting.Caption() == path; }, 20'000));
    EXPECT_EQ(waiting.txtInput().Text(), QStringLiteral("x<B>"));
    EXPECT_FALSE(waiting.Modified());
    EXPECT_EQ(working.txtInput().Text(), QStringLiteral("work"));
    EXPECT_EQ(&run.Active(), &working);
    EXPECT_EQ(run.frame->focusWidget(), &run.frame->TabStrip2());
    EXPECT_EQ(run.Find<DocumentTabs>("TabStrip2").count(), 1);
    working.SetModified(false);
    EXPECT_TRUE(run.Stop());
}

TEST_F(AwaitedFileInTheFrame, ClosingItsWindowOrStoppingTheProgramEndsIt) {
    ProgramRun run;
    ASSERT_TRUE(run.Start(FilesFrame::At(QStringLiteral("late.htm"))));
    run.frame->Commands().Run(QStringLiteral("mnuClose"));
    const auto waiting = [&] { return run.frame->findChildren<AwaitedFile*>().size(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return waiting() == 0; }, 20'000));
    run.frame->OpenDocumentFile(FilesFrame::At(QStringLiteral("later.htm")));
    EXPECT_EQ(waiting(), 1);
    EXPECT_TRUE(run.Stop());
    EXPECT_TRUE(run.prompts.asked.isEmpty());
    run.frame.reset();
    QCoreApplication::sendPostedEvents();
}

TEST(AwaitedFilePause, DoublesUpToTwoSeconds) {
    EXPECT_EQ(AwaitedFile::NextPause(100ms), 200ms);
    EXPECT_EQ(AwaitedFile::NextPause(800ms), 1600ms);
    EXPECT_EQ(AwaitedFile::NextPause(1600ms), 2000ms);
    EXPECT_EQ(AwaitedFile::NextPause(2000ms), 2000ms);
}

} // namespace
