// Stopping: what goes in which order, who is asked, and what is written.
#include "app/run/Shutdown.h"

#include "app/documents/RecentFiles.h"
#include "app/RealFrame.h"
#include "app/surface/UserButtons.h"
#include "app/window/DocumentTabs.h"
#include "app/window/KnownForms.h"
#include "dialogs/DialogState.h"
#include "dialogs/frmImage.h"
#include "platform/store/ProgramFolder.h"

#include <QDialog>
#include <QSettings>
#include <QSignalSpy>

namespace {

class ShutdownOf : public FrameTest {
  protected:
    static QStringList Order(ProgramRun& run) {
        QStringList order;
        Shutdown shutdown(*run.frame);
        shutdown.watch = [&order](const char* name) { order << QString::fromLatin1(name); };
        EXPECT_TRUE(shutdown.Run());
        return order;
    }
};

TEST_F(ShutdownOf, FormsThenStepsGoInTheirOrder) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    QStringList expected = {"frmBody",        "frmEmbed",    "frmFont",       "frmForm",      "frmFrame",
                            "frmGraphicLink", "frmHRInput",  "frmInfo",       "frmJava",      "frmLinks",
                            "frmParam",       "frmTable",    "frmTime",       "frmFTP",       "frmSplash",
                            "frmSpacer",      "frmExternal", "frmBulletList", "frmGridInput", "frmImage",
                            "frmMulti",       "frmTools",    "VisFrame"};
    // Forms that came later have no turn of their own.
    for (const FormRow& row : KnownForms())
        if (row.reach.unload == FormReach::Last)
            expected << QString::fromLatin1(row.name);
    expected << QStringList{"UnhookWindow",        "KeepWindowState",   "KeepRecentFiles",
                            "WriteFirstTimeAgain", "WriteDictionaries", "WriteTextColors",
                            "WriteEditorValues",   "WriteGeometry",     "WriteMainWindowState",
                            "WriteUseDDE",         "WriteRecentFiles",  "WriteUserButtons",
                            "UnloadImageDialog"};
    EXPECT_EQ(Order(run), expected);
}

TEST_F(ShutdownOf, EveryFormOfTheListIsUnloaded) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    Forms& forms = run.frame->LoadedForms();
    for (const char* form : Shutdown::UnloadedForms())
        run.ShowStandIn(form);
    run.ShowStandIn("frmElse");
    EXPECT_TRUE(run.Stop());
    for (const char* form : Shutdown::UnloadedForms())
        EXPECT_EQ(forms.Find(QString::fromLatin1(form)), nullptr) << form;
    EXPECT_NE(forms.Find(QStringLiteral("frmElse")), nullptr);
}

TEST_F(ShutdownOf, TheImageDialogGoesLastWhereverItCameFrom) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    Forms& forms = run.frame->LoadedForms();
    bool stillThere = false;
    Shutdown shutdown(*run.frame);
    shutdown.watch = [&](const char* name) {
        // Behind the forms' own turn.
        if (QByteArray(name) == "UnhookWindow")
            forms.Load<frmImage>(*run.frame);
        if (QByteArray(name) == "UnloadImageDialog")
            stillThere = forms.Find<frmImage>() != nullptr;
    };
    EXPECT_TRUE(shutdown.Run());
    EXPECT_TRUE(stillThere);
    EXPECT_EQ(forms.Find<frmImage>(), nullptr);
}

TEST_F(ShutdownOf, FirstRunLeavesOneFinishedRun) {
    Write(Keys::FirstTimeAgain, "0");
    {
        ProgramRun first;
        ASSERT_TRUE(first.Start());
        EXPECT_EQ(first.optionsShown, 1);
        EXPECT_TRUE(first.Stop());
    }
    EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("1"));
    ProgramRun second;
    ASSERT_TRUE(second.Start());
    EXPECT_EQ(second.optionsShown, 0);
}

TEST_F(ShutdownOf, ValuesGoToTheStore) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.Editor().ColorTable[3] = QStringLiteral("\\red9\\green9\\blue9");
    run.Editor().Background2 = 1193046;
    run.Program().LinkColor = QStringLiteral("77");
    run.Program().UserTemplate = QStringLiteral("<P>\r\nx\r\n");
    run.Program().TemplateWindowState = QStringLiteral("0");
    run.Program().ReloadFlag = true;
    run.Program().TheOpenFile = QStringLiteral("/o.htm");
    run.VSSpell1().setProperty("StandardDic", QStringLiteral("/s.dic"));
    run.VSSpell1().setProperty("CustomDic", QStringLiteral("/c.dic"));
    run.frame->State<DialogState>().LastDir = QStringLiteral("/site");
    run.Buttons().FirstBut[29] = QStringLiteral("<X>");
    run.Buttons().SecondBut[29] = QStringLiteral("</X>");
    run.frame->Picture2().SetCaption(29, QStringLiteral("X"));
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("2"));
    EXPECT_EQ(Read(Keys::EdTextColor[3]), QStringLiteral("\\red9\\green9\\blue9"));
    EXPECT_EQ(Read(Keys::Background2), QStringLiteral("1193046"));
    EXPECT_EQ(Read(Keys::LinkColor), QStringLiteral("77"));
    EXPECT_EQ(Read(Keys::UserTemplate), QStringLiteral("<P>\r\nx\r\n"));
    EXPECT_EQ(Read(Keys::TemplateWindowState), QStringLiteral("0"));
    EXPECT_EQ(Read(Keys::ReloadFlag), QStringLiteral("True"));
    EXPECT_EQ(Read(Keys::TheOpenFile), QStringLiteral("/o.htm"));
    EXPECT_EQ(Read(Keys::StandardDic()), QStringLiteral("/s.dic"));
    EXPECT_EQ(Read(Keys::CustomDic()), QStringLiteral("/c.dic"));
    EXPECT_EQ(Read(Keys::LastDir()), QStringLiteral("/site"));
    EXPECT_EQ(Read(Keys::FirstBut(29)), QStringLiteral("<X>"));
    EXPECT_EQ(Read(Keys::SecondBut(29)), QStringLiteral("</X>"));
    EXPECT_EQ(Read(Keys::ButCap(29)), QStringLiteral("X"));
}

TEST_F(ShutdownOf, FlagThatIsOffIsWrittenAsAWordToo) {
    Write(Keys::ReloadFlag, "True");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.Program().ReloadFlag = false;
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(Read(Keys::ReloadFlag), QStringLiteral("False"));
}

TEST_F(ShutdownOf, SettingsAreOnTheDiskOnceTheFrameIsGone) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(run.Stop());
    QFile file(SettingsFolder() + QStringLiteral("/The Tarnwick.ini"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("FirstTimeAgain=2"));
}

TEST_F(ShutdownOf, EveryPlaceOfAListComesInAndGoesOut) {
    const auto entry = [](const char* what, int n) { return QByteArray(what) + QByteArray::number(n); };
    const auto color = [](int red, size_t slot) {
        return QStringLiteral("\\red%1\\green%2\\blue0").arg(red).arg(slot);
    };
    for (int n = 0; n < 8; ++n)
        Write(Keys::MenuArray(n), entry("/in", n));
    for (int n = 0; n < 30; ++n) {
        Write(Keys::FirstBut(n), entry("<in", n));
        Write(Keys::SecondBut(n), entry("</in", n));
        Write(Keys::ButCap(n), entry("in", n));
    }
    for (size_t slot = 0; slot < 6; ++slot)
        Write(Keys::EdTextColor[slot], color(1, slot).toLatin1());
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    for (int n = 0; n < 8; ++n) {
        EXPECT_EQ(RecentFiles::Caption(*run.frame, n).toLatin1(), entry("/in", n));
        EXPECT_TRUE(run.Entry(entry("mnuFileArray_", n)).isVisible()) << n;
        RecentFiles::SetCaption(*run.frame, n, QString::fromLatin1(entry("/out", n)));
    }
    for (int n = 0; n < 30; ++n) {
        QString& first = run.Buttons().FirstBut[static_cast<size_t>(n)];
        QString& second = run.Buttons().SecondBut[static_cast<size_t>(n)];
        EXPECT_EQ(first.toLatin1(), entry("<in", n));
        EXPECT_EQ(second.toLatin1(), entry("</in", n));
        EXPECT_EQ(run.frame->Picture2().Caption(n).toLatin1(), entry("in", n));
        first = QString::fromLatin1(entry("<out", n));
        second = QString::fromLatin1(entry("</out", n));
        run.frame->Picture2().SetCaption(n, QString::fromLatin1(entry("out", n)));
    }
    for (size_t slot = 0; slot < 6; ++slot) {
        EXPECT_EQ(run.Editor().ColorTable[slot], color(1, slot));
        run.Editor().ColorTable[slot] = color(2, slot);
    }
    EXPECT_TRUE(run.Stop());
    for (int n = 0; n < 8; ++n)
        EXPECT_EQ(Read(Keys::MenuArray(n)).toLatin1(), entry("/out", n));
    for (int n = 0; n < 30; ++n) {
        EXPECT_EQ(Read(Keys::FirstBut(n)).toLatin1(), entry("<out", n));
        EXPECT_EQ(Read(Keys::SecondBut(n)).toLatin1(), entry("</out", n));
        EXPECT_EQ(Read(Keys::ButCap(n)).toLatin1(), entry("out", n));
    }
    for (size_t slot = 0; slot < 6; ++slot)
        EXPECT_EQ(Read(Keys::EdTextColor[slot]), color(2, slot));
}

TEST_F(ShutdownOf, UseDdeIsEmptiedAndTheDeadKeysStayUnwritten) {
    Write(Keys::UseDDE, "yes");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(Read(Keys::UseDDE), QString());
    EXPECT_TRUE(IsStored(Keys::UseDDE));
    EXPECT_FALSE(IsStored(Keys::WebTimer));
    EXPECT_FALSE(IsStored(Keys::TabOption));
    EXPECT_FALSE(IsStored(Keys::Web));
}

TEST_F(ShutdownOf, RecentFilesAreTheMenusCaptions) {
    const QString path = MakeFile(QStringLiteral("a & b.htm"), "x");
    Write(Keys::MenuArray(0), "/old.htm");
    ProgramRun run;
    ASSERT_TRUE(run.Start(path));
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(Read(Keys::MenuArray(0)), path);
    EXPECT_EQ(Read(Keys::MenuArray(1)), QStringLiteral("/old.htm"));
    EXPECT_TRUE(IsStored(Keys::MenuArray(7)));
}

TEST_F(ShutdownOf, NormalFrameLeavesItsGeometry) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.frame->setGeometry(40, 30, 640, 480);
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(Read(Keys::MainFormWidth), QStringLiteral("9600"));
    EXPECT_EQ(Read(Keys::MainFormHeight), QStringLiteral("7200"));
    EXPECT_EQ(Read(Keys::MainFormLeft), QString::number(15 * run.frame->x()));
    EXPECT_EQ(Read(Keys::MainFormTop), QString::number(15 * run.frame->y()));
    EXPECT_EQ(Read(Keys::MainWindowState), QStringLiteral("0"));
}

TEST_F(ShutdownOf, GeometrySurvivesManyRunsUnchanged) {
    Write(Keys::MainFormWidth, "9000");
    Write(Keys::MainFormHeight, "7500");
    Write(Keys::MainFormLeft, "450");
    Write(Keys::MainFormTop, "300");
    for (int n = 0; n < 3; ++n) {
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        EXPECT_TRUE(run.Stop());
    }
    EXPECT_EQ(Read(Keys::MainFormWidth), QStringLiteral("9000"));
    EXPECT_EQ(Read(Keys::MainFormHeight), QStringLiteral("7500"));
    EXPECT_EQ(Read(Keys::MainFormLeft), QStringLiteral("450"));
    EXPECT_EQ(Read(Keys::MainFormTop), QStringLiteral("300"));
}

TEST_F(ShutdownOf, MaximisedOrMinimisedFrameKeepsTheOldGeometry) {
    const struct {
        Qt::WindowStates state;
        const char* digit;
    } rows[] = {{Qt::WindowMaximized, "2"},
                {Qt::WindowMinimized, "1"},
                {Qt::WindowMinimized | Qt::WindowMaximized, "1"}};
    for (const auto& row : rows) {
        Write(Keys::MainFormWidth, "9000");
        Write(Keys::MainWindowState, "0");
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        run.frame->resize(run.frame->width() + 20, run.frame->height());
        run.frame->setWindowState(row.state);
        EXPECT_TRUE(run.Stop());
        EXPECT_EQ(Read(Keys::MainFormWidth), QStringLiteral("9000")) << row.digit;
        EXPECT_EQ(Read(Keys::MainWindowState), QString::fromLatin1(row.digit));
    }
}

TEST_F(ShutdownOf, UnchangedDocumentsGoWithoutAQuestion) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.New();
    run.New();
    EXPECT_TRUE(run.Stop());
    EXPECT_TRUE(run.prompts.asked.isEmpty());
    EXPECT_EQ(run.Program().DocumentCount, 0);
    EXPECT_EQ(run.frame->ActiveForm(), nullptr);
}

TEST_F(ShutdownOf, CancelStopsIt) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.New().SetModified(true);
    run.prompts.messageAnswers = {MsgAnswer::Cancel};
    QSignalSpy stopped(run.frame.get(), &frmTarnwick::Stopped);
    run.ShowStandIn("frmBody");
    run.ShowStandIn("VisFrame");
    EXPECT_FALSE(run.Stop());
    EXPECT_TRUE(stopped.isEmpty());
    EXPECT_TRUE(run.frame->isVisible());
    // The dialogs went before the question was asked.
    EXPECT_EQ(run.frame->LoadedForms().Find(QStringLiteral("frmBody")), nullptr);
    EXPECT_EQ(run.frame->LoadedForms().Find(QStringLiteral("VisFrame")), nullptr);
    EXPECT_EQ(run.Program().DocumentCount, 1);
    EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("1"));
    run.prompts.messageAnswers = {MsgAnswer::No};
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(stopped.size(), 1);
}

TEST_F(ShutdownOf, EachChangedDocumentIsAskedOnce) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    QStringList asked;
    for (const char* name : {"a.htm", "b.htm", "c.htm"}) {
        run.frame->OpenDocumentFile(MakeFile(QString::fromLatin1(name), "<P>old"));
        run.Active().txtInput().SetSelText(QStringLiteral("new "));
    }
    run.prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Yes};
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(run.prompts.asked.size(), 3);
    const auto content = [](const char* name) {
        QFile file(TestFolder() + u'/' + QString::fromLatin1(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    // The active document first; each Yes saved the window that asked.
    EXPECT_EQ(content("c.htm"), QByteArray("new <P>old\r\n"));
    int changed = 0;
    for (const char* name : {"a.htm", "b.htm"})
        changed += content(name) == "new <P>old\r\n";
    EXPECT_EQ(changed, 1);
}

TEST_F(ShutdownOf, LastOfThreeMaximisedWindowsStoresTheirState) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    for (int n = 0; n < 3; ++n)
        EXPECT_TRUE(run.New().isMaximized());
    run.Program().TemplateWindowState = QStringLiteral("0");
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(Read(Keys::TemplateWindowState), QStringLiteral("2"));
}

TEST_F(ShutdownOf, CancelInADocumentBehindStopsItToo) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.New().SetModified(true);
    run.New();
    run.prompts.messageAnswers = {MsgAnswer::Cancel};
    EXPECT_FALSE(run.Stop());
    EXPECT_EQ(run.Program().DocumentCount, 1);
    EXPECT_TRUE(run.Active().Modified());
    EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("1"));
}

TEST_F(ShutdownOf, CountOfRunsStaysAtTheGreatestNumber) {
    Write(Keys::FirstTimeAgain, "2147483647");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("2147483647"));
}

TEST_F(ShutdownOf, TemplateComesBackWithItsLineEndsInTheNextRun) {
    const QString page = QStringLiteral("<P>\r\n\r\n\"mine\", \\ @\r\n</P>\r\n");
    {
        ProgramRun first;
        ASSERT_TRUE(first.Start(MakeFile(QStringLiteral("a.htm"), page.toLatin1())));
        first.Entry("mnuSetUserTemplate").trigger();
        EXPECT_TRUE(first.Stop());
    }
    ProgramRun second;
    ASSERT_TRUE(second.Start());
    second.New();
    second.Entry("mnuUserTemplate").trigger();
    EXPECT_EQ(second.Active().txtInput().Text(), page);
    EXPECT_TRUE(second.prompts.asked.isEmpty());
}

TEST_F(ShutdownOf, ApplicationActivationIsHeardFromTheLoadToTheUnload) {
    ProgramRun run;
    const auto focusAfterActivation = [&run] {
        run.frame->TabStrip2().setFocus();
        Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
        return run.frame->focusWidget();
    };
    run.New();
    EXPECT_EQ(focusAfterActivation(), &run.frame->TabStrip2());
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(focusAfterActivation(), &run.Active().txtInput());
    EXPECT_TRUE(run.Stop());
    run.New();
    EXPECT_EQ(focusAfterActivation(), &run.frame->TabStrip2());
}

TEST_F(ShutdownOf, ExitEntryStops) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    QSignalSpy stopped(run.frame.get(), &frmTarnwick::Stopped);
    run.Entry("mnuExit").trigger();
    EXPECT_EQ(stopped.size(), 1);
    EXPECT_FALSE(run.frame->isVisible());
}

} // namespace
