// The frame's load: its steps in their order, and what each takes from the settings.
#include "app/run/Startup.h"

#include "app/documents/DocumentPaths.h"
#include "app/options/frmExternal.h"
#include "app/RealFrame.h"
#include "app/surface/UserButtons.h"
#include "app/window/DocumentTabs.h"
#include "app/window/KnownForms.h"
#include "dialogs/DialogState.h"

#include <QScreen>
#include <QTimer>

namespace {

class StartupOf : public FrameTest {
  protected:
    /// A run with one value stored.
    static std::unique_ptr<ProgramRun> With(const SettingsKey& key, const char* text) {
        Write(key, text);
        auto run = std::make_unique<ProgramRun>();
        EXPECT_TRUE(run->Start());
        return run;
    }
    static void WriteGeometry(const char* height, const char* width, const char* left, const char* top) {
        Write(Keys::MainFormHeight, height);
        Write(Keys::MainFormWidth, width);
        Write(Keys::MainFormLeft, left);
        Write(Keys::MainFormTop, top);
    }
    static QPoint Centre(const QWidget& frame) {
        const QSize screen = frame.screen()->size();
        return {screen.width() / 2 - frame.width() / 2, screen.height() / 2 - frame.height() / 2};
    }
};

TEST_F(StartupOf, StepsComeInTheirOrder) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    const QStringList expected = {"CentreFrame",
                                  "SetCaption",
                                  "HookActivation",
                                  "AcceptDroppedFiles",
                                  "SetFindMode",
                                  "ReadUseAutoFill",
                                  "EndIfAnotherCopyRuns",
                                  "ResetDocumentCount",
                                  "ReadGeometry",
                                  "ShowStrips",
                                  "MoveFrame",
                                  "ReadDictionaries",
                                  "ReadEditorValues",
                                  "ReadLastDir",
                                  "ReadProgramValues",
                                  "ReadLists",
                                  "MaximiseFrame",
                                  "ShowRecentFiles",
                                  "ShowOptionsOnFirstRun",
                                  "RemoveTabs",
                                  "OpenCommandLine",
                                  "CaptionUserButtons",
                                  "TellOfSettings"};
    EXPECT_EQ(run.steps, expected);
}

TEST_F(StartupOf, FreshStoreGivesTheDefaults) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.frame->windowTitle(), QStringLiteral("The Tarnwick Pro 3.0"));
    EXPECT_EQ(run.frame->ActiveForm(), nullptr);
    EXPECT_EQ(run.Program().DocumentCount, 0);
    EXPECT_EQ(run.Program().FindMode, 1);
    EXPECT_EQ(run.Program().TemplateWindowState, QStringLiteral("2"));
    EXPECT_EQ(run.Program().LinkColor, QStringLiteral("8421376"));
    EXPECT_TRUE(run.Program().LocalPreview);
    EXPECT_TRUE(run.Program().LocalFTP);
    EXPECT_FALSE(run.Program().ReloadFlag);
    EXPECT_TRUE(run.Editor().UseAutoFill);
    EXPECT_EQ(run.Editor().Background2, 16777215);
    EXPECT_EQ(run.Editor().ColorTable[4], QStringLiteral("\\red255\\green127\\blue0"));
    EXPECT_TRUE(run.VSSpell1().property("StandardDic").toString().endsWith(QStringLiteral("american.vtd")));
    EXPECT_TRUE(run.VSSpell1().property("CustomDic").toString().endsWith(QStringLiteral("custom.vtc")));
    EXPECT_EQ(run.frame->State<DialogState>().LastDir, qEnvironmentVariable("TARNWICK_HOME"));
    EXPECT_FALSE(run.frame->isMaximized());
    const QRect place(run.frame->pos(), run.frame->size());
    // With a title bar above, which the desktop draws, and edges.
    EXPECT_TRUE(run.frame->screen()->availableGeometry().contains(place.adjusted(-2, -18, 2, 2)))
        << place.width();
    EXPECT_FALSE(run.frame->Picture4().isVisible());
    EXPECT_FALSE(run.frame->Picture2().isVisible());
}

TEST_F(StartupOf, ValuesComeFromTheStore) {
    Write(Keys::FirstTimeAgain, "41");
    Write(Keys::EdTextColor[2], "\\red1\\green2\\blue3");
    Write(Keys::UserTemplate, "<P>\r\nmine, yours\r\n");
    Write(Keys::LinkColor, "12");
    Write(Keys::TemplateWindowState, "0");
    Write(Keys::Background2, "255");
    Write(Keys::ReloadFlag, "True");
    Write(Keys::TheOpenFile, "/x.htm");
    Write(Keys::Web, "/usr/bin/browser");
    Write(Keys::FTP, "/usr/bin/ftp");
    Write(Keys::LocalPreview, "False");
    Write(Keys::LocalFTP, "false");
    Write(Keys::UseAutoFill, "0");
    Write(Keys::StandardDic(), "/a.dic");
    Write(Keys::CustomDic(), "/b.dic");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.Program().FirstTimeAgain, 41);
    EXPECT_EQ(run.Editor().ColorTable[2], QStringLiteral("\\red1\\green2\\blue3"));
    EXPECT_EQ(run.Program().UserTemplate, QStringLiteral("<P>\r\nmine, yours\r\n"));
    EXPECT_EQ(run.Program().LinkColor, QStringLiteral("12"));
    EXPECT_EQ(run.Program().TemplateWindowState, QStringLiteral("0"));
    EXPECT_EQ(run.Editor().Background2, 255);
    EXPECT_TRUE(run.Program().ReloadFlag);
    EXPECT_EQ(run.Program().TheOpenFile, QStringLiteral("/x.htm"));
    EXPECT_EQ(run.Program().WebPath, QStringLiteral("/usr/bin/browser"));
    EXPECT_EQ(run.Program().FtpPath, QStringLiteral("/usr/bin/ftp"));
    EXPECT_FALSE(run.Program().LocalPreview);
    EXPECT_FALSE(run.Program().LocalFTP);
    EXPECT_FALSE(run.Editor().UseAutoFill);
    EXPECT_EQ(run.VSSpell1().property("StandardDic").toString(), QStringLiteral("/a.dic"));
    EXPECT_EQ(run.VSSpell1().property("CustomDic").toString(), QStringLiteral("/b.dic"));
}

TEST_F(StartupOf, AutoFillIsOnForAnyNumberButZero) {
    EXPECT_TRUE(With(Keys::UseAutoFill, "2")->Editor().UseAutoFill);
    EXPECT_FALSE(With(Keys::UseAutoFill, "0")->Editor().UseAutoFill);
}

TEST_F(StartupOf, ValueThatFailsToConvertIsPassedOver) {
    Write(Keys::Background2, "white");
    Write(Keys::UseAutoFill, "maybe");
    Write(Keys::LocalPreview, "perhaps");
    Write(Keys::MainFormWidth, "wide");
    Write(Keys::MainWindowState, "big");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.Editor().Background2, 16777215);
    EXPECT_TRUE(run.Editor().UseAutoFill);
    EXPECT_TRUE(run.Program().LocalPreview);
    EXPECT_EQ(run.frame->pos(), Centre(*run.frame));
    EXPECT_FALSE(run.frame->isMaximized());
}

TEST_F(StartupOf, EachStripShowsOnlyWhereItsOwnSettingIsExactlyOne) {
    const struct {
        const char* stored;
        bool shown;
    } rows[] = {{"0", false}, {"1", true}, {"2", false}, {"-1", false}, {"True", false}, {"1.0", true}};
    for (const auto& row : rows) {
        Write(Keys::UseMSIE, row.stored);
        Write(Keys::ShowUserButtons, row.shown ? "0" : "1");
        ProgramRun modes;
        ASSERT_TRUE(modes.Start());
        EXPECT_EQ(modes.frame->Picture4().isVisible(), row.shown) << row.stored;
        EXPECT_EQ(modes.frame->Picture2().isVisible(), !row.shown) << row.stored;
        Write(Keys::UseMSIE, row.shown ? "0" : "1");
        Write(Keys::ShowUserButtons, row.stored);
        ProgramRun buttons;
        ASSERT_TRUE(buttons.Start());
        EXPECT_EQ(buttons.frame->Picture4().isVisible(), !row.shown) << row.stored;
        EXPECT_EQ(buttons.frame->Picture2().isVisible(), row.shown) << row.stored;
    }
}

TEST_F(StartupOf, StoredGeometryMovesTheFrame) {
    WriteGeometry("7500", "9000", "450", "300");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.frame->size(), QSize(600, 500));
    EXPECT_EQ(run.frame->pos(), QPoint(30, 20));
}

TEST_F(StartupOf, TheWidthAloneTellsWhetherAPlaceWasStored) {
    const struct {
        const char *height, *width;
        bool moved;
    } rows[] = {
        {"7500", "0", false},  {"7500", "-9000", false}, {"7500", "", false},
        {"7500", "0.5", true}, {"0", "9000", true},
    };
    for (const auto& row : rows) {
        WriteGeometry(row.height, row.width, "450", "300");
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        EXPECT_EQ(run.frame->pos(), row.moved ? QPoint(30, 20) : Centre(*run.frame)) << row.width;
        EXPECT_EQ(run.frame->height() == 500, row.moved && QByteArray(row.height) == "7500") << row.width;
    }
}

TEST_F(StartupOf, FrameStoredOffAllScreensComesWithinReach) {
    WriteGeometry("7500", "9000", "300000", "-90000");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.frame->size(), QSize(600, 500));
    const QRect place(run.frame->pos(), run.frame->size());
    EXPECT_TRUE(run.frame->screen()->availableGeometry().contains(place)) << place.x() << ' ' << place.y();
}

TEST_F(StartupOf, OnlyTheMaximisedStateComesBack) {
    const struct {
        const char* stored;
        bool maximised;
    } rows[] = {{"0", false},   {"1", false},   {"2", true},  {"2.0", true},
                {"1.6", false}, {"2.4", false}, {"3", false}, {"-2", false}};
    for (const auto& row : rows) {
        const auto run = With(Keys::MainWindowState, row.stored);
        EXPECT_EQ(run->frame->isMaximized(), row.maximised) << row.stored;
        EXPECT_FALSE(run->frame->isMinimized()) << row.stored;
    }
}

TEST_F(StartupOf, LastDirLosesExactlyOneSeparator) {
    const struct {
        const char* stored;
        const char* kept;
    } rows[] = {
        {"C:\\site\\\\", "C:\\site\\"}, {"C:\\site\\", "C:\\site"}, {"C:\\site", "C:\\site"}, {"C:\\", "C:"},
        {"/home/u//", "/home/u/"},      {"/home/u/", "/home/u"},    {"/home/u", "/home/u"},   {"/", "/"},
        {"/odd\\", "/odd\\"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(With(Keys::LastDir(), row.stored)->frame->State<DialogState>().LastDir,
                  QString::fromLatin1(row.kept))
            << row.stored;
}

TEST_F(StartupOf, RecentFilesFillTheMenu) {
    Write(Keys::MenuArray(0), "/a & b.htm");
    Write(Keys::MenuArray(3), "/d.htm");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(run.Entry("mnuFileArray_0").isVisible());
    EXPECT_FALSE(run.Entry("mnuFileArray_1").isVisible());
    EXPECT_TRUE(run.Entry("mnuFileArray_3").isVisible());
    EXPECT_TRUE(run.Entry("mnuSep10").isVisible());
    EXPECT_EQ(run.Program().MenuArray[3], QStringLiteral("/d.htm"));
}

TEST_F(StartupOf, SeparatorFollowsTheFirstRecentFileAlone) {
    const auto run = With(Keys::MenuArray(1), "/b.htm");
    EXPECT_TRUE(run->Entry("mnuFileArray_1").isVisible());
    EXPECT_FALSE(run->Entry("mnuSep10").isVisible());
}

TEST_F(StartupOf, ColourThatIsNoneLeavesTheDefault) {
    const struct {
        const char* stored;
        bool taken;
    } rows[] = {
        {"\\red1\\green2\\blue3", true},
        {"\\red1\\green2\\blue", false},
        {"\\red1\\gre", false},
        {"", false},
        {"}", false},
        {"\\red1\\green2\\blue3;", false},
        {"x\\red1\\green2\\blue3", false},
        {"\\red1\\green2\\blue3\n", false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(With(Keys::EdTextColor[5], row.stored)->Editor().ColorTable[5],
                  row.taken ? QString::fromLatin1(row.stored) : QStringLiteral("\\red128\\green128\\blue128"))
            << row.stored;
}

TEST_F(StartupOf, DamagedColourSpoilsNoPage) {
    const QString path = MakeFile(QStringLiteral("a.htm"), "<B>x</B>{y}");
    Write(Keys::EdTextColor[1], "}");
    ProgramRun run;
    ASSERT_TRUE(run.Start(path));
    EXPECT_EQ(run.Active().txtInput().Text(), QStringLiteral("<B>x</B>{y}"));
}

TEST_F(StartupOf, UserButtonsGetTheirCaptionsAndTags) {
    Write(Keys::ButCap(17), "Big");
    Write(Keys::FirstBut(17), "<BIG>");
    Write(Keys::SecondBut(17), "</BIG>");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.frame->Picture2().Caption(17), QStringLiteral("Big"));
    EXPECT_EQ(run.frame->Picture2().Caption(16), QString());
    EXPECT_EQ(run.Buttons().FirstBut[17], QStringLiteral("<BIG>"));
    EXPECT_EQ(run.Buttons().SecondBut[17], QStringLiteral("</BIG>"));
}

TEST_F(StartupOf, OptionsComeOnTheFirstRunOnly) {
    const struct {
        const char* stored;
        int runs;
    } rows[] = {
        // Halves go to the even number, as wherever a text becomes a whole number.
        {"0", 0},
        {"1", 1},
        {"2", 2},
        {"-1", -1},
        {"0.5", 0},
        {"0.6", 1},
        {"1.5", 2},
        {"2.5", 2},
        {"-1.6", -2},
        // What no count can hold leaves it at the start value.
        {"2147483648", 0},
        {"-2147483649", 0},
        {"-2147483648", -2147483647 - 1},
    };
    for (const auto& row : rows) {
        const auto run = With(Keys::FirstTimeAgain, row.stored);
        EXPECT_EQ(run->Program().FirstTimeAgain, row.runs) << row.stored;
        EXPECT_EQ(run->optionsShown, row.runs == 0 ? 1 : 0) << row.stored;
    }
}

TEST_F(StartupOf, TheLoadWaitsForTheOptionsDialog) {
    Write(Keys::FirstTimeAgain, "0");
    const QString path = MakeFile(QStringLiteral("a.htm"), "a");
    ProgramRun run;
    bool modal = false, openedMeanwhile = true;
    FillFormCommands(*run.frame, AppForms());
    QTimer::singleShot(0, run.frame.get(), [&] {
        QWidget* options = run.frame->LoadedForms().Find<frmExternal>();
        modal = options && options->isModal();
        openedMeanwhile = run.frame->ActiveForm() != nullptr;
        run.frame->LoadedForms().Unload<frmExternal>();
    });
    ASSERT_TRUE(run.Start(path));
    EXPECT_TRUE(modal);
    EXPECT_FALSE(openedMeanwhile);
    EXPECT_NE(run.frame->ActiveForm(), nullptr);
}

TEST_F(StartupOf, CommandLineOpensItsFile) {
    const QString path = MakeFile(QStringLiteral("my page.htm"), "<B>x</B>");
    ProgramRun run;
    ASSERT_TRUE(run.Start(path));
    EXPECT_EQ(run.Active().Caption(), path);
    EXPECT_EQ(run.Active().txtInput().Text(), QStringLiteral("<B>x</B>"));
    EXPECT_FALSE(run.Active().Modified());
    EXPECT_EQ(run.frame->TabStrip2().count(), 1);
    EXPECT_EQ(run.Program().DocumentCount, 1);
}

TEST_F(StartupOf, QuotedPathStaysQuotedAndIsAwaited) {
    const QString path = MakeFile(QStringLiteral("a.htm"), "x");
    ProgramRun run;
    ASSERT_TRUE(run.Start(u'"' + path + u'"'));
    EXPECT_EQ(run.Active().Caption(), QString());
    EXPECT_EQ(run.Active().txtInput().Text(), QString());
    EXPECT_EQ(run.frame->TabStrip2().count(), 0);
}

TEST_F(StartupOf, LoadBeginsWithNoDocumentsAndNoTabs) {
    ProgramRun run;
    run.Program().DocumentCount = 5;
    run.Program().FindMode = 3;
    Q_EMIT run.frame->State<DocumentPaths>().Taken(QStringLiteral("/old.htm"), QStringLiteral("old.htm"));
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.Program().DocumentCount, 0);
    EXPECT_EQ(run.Program().FindMode, 1);
    EXPECT_EQ(run.frame->TabStrip2().count(), 0);
}

TEST_F(StartupOf, DeadKeysAreOfNoEffectWhateverTheyHold) {
    Write(Keys::WebTimer, "True");
    Write(Keys::UseDDE, "1");
    Write(Keys::TabOption, "True");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(run.Stop());
    EXPECT_EQ(Read(Keys::WebTimer), QStringLiteral("True"));
    EXPECT_EQ(Read(Keys::TabOption), QStringLiteral("True"));
    EXPECT_EQ(Read(Keys::UseDDE), QString());
}

TEST_F(StartupOf, AnotherCopyEndsTheLoadAtOnce) {
    const QString path = MakeFile(QStringLiteral("a.htm"), "x");
    Write(Keys::Background2, "1");
    ProgramRun run;
    EXPECT_FALSE(run.Start(path, true));
    EXPECT_EQ(run.steps.last(), QStringLiteral("EndIfAnotherCopyRuns"));
    EXPECT_EQ(run.frame->ActiveForm(), nullptr);
    EXPECT_FALSE(run.frame->isVisible());
    EXPECT_EQ(run.Editor().Background2, 16777215);
    run.frame.reset();
    EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("1"));
    EXPECT_FALSE(IsStored(Keys::LinkColor));
}

} // namespace
