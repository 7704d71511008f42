// The program as a whole, started and ended as its user does: start screen, later copies, and settings that
// can't be had.
#include "app/run/RunProgram.h"

#include "app/options/frmExternal.h"
#include "app/RealFrame.h"
#include "app/recovery/DocumentCopy.h"
#include "app/recovery/RecoveryFolder.h"
#include "app/run/frmSplash.h"
#include "app/run/SingleInstance.h"
#include "app/window/DocumentTabs.h"
#include "platform/store/ProgramFolder.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

namespace {

/// Notes the start screens that come to sight, whether they leave the focus where it is, and whether one was
/// painted before the first document came.
class SplashWatch : public QObject {
  public:
    SplashWatch() { qApp->installEventFilter(this); }
    QList<QPointer<QWidget>> seen;
    bool focusLeft = true;
    bool painted = false;
    bool paintedFirst = false;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (auto* splash = qobject_cast<frmSplash*>(watched); splash && event->type() == QEvent::Show) {
            seen << splash;
            focusLeft &= splash->testAttribute(Qt::WA_ShowWithoutActivating) &&
                         splash->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus);
        }
        painted |= watched->objectName() == QStringLiteral("frmSplash") && event->type() == QEvent::Paint;
        if (watched->objectName() == QStringLiteral("frmTemplate") && event->type() == QEvent::ShowToParent)
            paintedFirst |= painted;
        return false;
    }
};

class Program : public FrameTest {
  protected:
    /// What is done with the frame while it is up; called again and again until it is true.
    using WhileUp = std::function<bool(frmTarnwick&)>;

    /// A run of the program from its start to its exit code. The frame is closed once whileUp is true; the
    /// Options dialog goes as soon as mayDismiss lets it.
    int Run(
        const QString& commandLine, const WhileUp& whileUp = [](frmTarnwick&) { return true; }) {
        Settings store;
        SingleInstance instance;
        QObject::connect(&instance, &SingleInstance::Arrived, &instance, [this] { ++arrived; });
        frmTarnwick frame(store, prompts);
        QDeadlineTimer patience(10'000);
        bool closed = false;
        QTimer turn;
        QObject::connect(&turn, &QTimer::timeout, &turn, [&] {
            if (patience.hasExpired()) {
                turn.stop();
                ADD_FAILURE() << "waited in vain";
                QCoreApplication::exit(1);
            } else if (frame.LoadedForms().Find<frmExternal>()) {
                if (!mayDismiss || mayDismiss()) {
                    ++optionsShown;
                    frame.LoadedForms().Unload<frmExternal>();
                }
            } else if (!closed && frame.isVisible() && whileUp(frame)) {
                closed = true;
                frame.close();
            }
        });
        turn.start(0);
        const int code = RunProgram(frame, instance, commandLine);
        TakeBackTheExit();
        return code;
    }
    /// A run that ends outside its event loop leaves its exit behind, at which every later loop of this
    /// process would end at once.
    static void TakeBackTheExit() {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }
    /// Opens a page, types into it, saves it: the work that a person comes for.
    void ExpectThatWorkGoesOn(const char* what) {
        const QString path = MakeFile(QStringLiteral("page.htm"), "<B>page</B>");
        EXPECT_EQ(Run(path,
                      [&](frmTarnwick& frame) {
                          Document& document = *frame.ActiveForm();
                          EXPECT_EQ(document.txtInput().Text(), QStringLiteral("<B>page</B>")) << what;
                          document.txtInput().SetSelText(QStringLiteral("my "));
                          frame.SaveActiveDocument();
                          ExpectDefaults(frame, what);
                          return true;
                      }),
                  0)
            << what;
        EXPECT_EQ(Content(path), "my <B>page</B>\r\n") << what;
        EXPECT_TRUE(prompts.asked.isEmpty()) << what;
    }
    static void ExpectDefaults(frmTarnwick& frame, const char* what) {
        EXPECT_EQ(frame.windowTitle().left(20), QStringLiteral("The Tarnwick Pro 3.0")) << what;
        EXPECT_EQ(frame.State<EditorOptions>().ColorTable[4], QStringLiteral("\\red255\\green127\\blue0"))
            << what;
        EXPECT_EQ(frame.State<EditorOptions>().Background2, 16777215) << what;
        EXPECT_TRUE(frame.State<EditorOptions>().UseAutoFill) << what;
        EXPECT_TRUE(frame.State<ProgramState>().LocalPreview) << what;
        EXPECT_TRUE(frame.Store().ReadFlag(Keys::ColoredTags)) << what;
        EXPECT_TRUE(frame.ActiveForm()->Window().isMaximized()) << what;
    }
    static QString SettingsFile() { return SettingsFolder() + QStringLiteral("/The Tarnwick.ini"); }
    static QByteArray Content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    static void Overwrite(const QString& path, const QByteArray& content) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    ScriptedPrompts prompts;
    std::function<bool()> mayDismiss;
    int optionsShown = 0;
    int arrived = 0;
};

// Start screen

TEST_F(Program, StartScreenIsGoneForGoodOnceTheFrameIsUp) {
    SplashWatch watch;
    EXPECT_EQ(Run(QString(),
                  [&](frmTarnwick&) {
                      if (watch.seen.isEmpty() || watch.seen.first())
                          return false;
                      // A screen reader finds the frame alone.
                      EXPECT_EQ(QAccessible::queryAccessibleInterface(qApp)->childCount(), 1);
                      return true;
                  }),
              0);
    EXPECT_EQ(watch.seen.size(), 1);
    EXPECT_TRUE(watch.focusLeft);
}

TEST_F(Program, WindowsCarryTheProgramsIcon) {
    QApplication::setWindowIcon(QIcon());
    EXPECT_EQ(Run(QString(),
                  [](frmTarnwick& frame) {
                      EXPECT_FALSE(frame.windowIcon().isNull());
                      return true;
                  }),
              0);
}

TEST_F(Program, StartScreenIsPaintedBeforeTheLoad) {
    SplashWatch watch;
    EXPECT_EQ(Run(MakeFile(QStringLiteral("page.htm"), "x")), 0);
    EXPECT_TRUE(watch.paintedFirst);
}

TEST_F(Program, StartScreenStaysWhileTheFirstRunAsksForTheOptions) {
    Write(Keys::FirstTimeAgain, "0");
    SplashWatch watch;
    mayDismiss = [&] {
        EXPECT_TRUE(!watch.seen.isEmpty() && watch.seen.first() && watch.seen.first()->isVisible());
        return true;
    };
    EXPECT_EQ(Run(QString()), 0);
    EXPECT_EQ(optionsShown, 1);
}

// The end

class Stubborn : public QWidget {
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

TEST_F(Program, NoWindowThatIsLeftKeepsTheProcessAlive) {
    Stubborn window;
    EXPECT_EQ(Run(QString(),
                  [&](frmTarnwick&) {
                      window.show();
                      return true;
                  }),
              0);
    EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("2"));
}

TEST_F(Program, EndOfTheSessionIsStoppedByADialogThatIsUp) {
    EXPECT_EQ(Run(QString(),
                  [](frmTarnwick& frame) {
                      QDialog question(&frame);
                      question.setModal(true);
                      question.show();
                      EXPECT_FALSE(SaveAtSessionEnd(frame));
                      question.hide();
                      EXPECT_TRUE(SaveAtSessionEnd(frame));
                      EXPECT_TRUE(frame.isVisible());
                      return true;
                  }),
              0);
    EXPECT_TRUE(prompts.asked.isEmpty());
}

TEST_F(Program, EndOfTheSessionAsksTheChangedDocumentsFromTheActiveOneOnAndLetsTheFrameStand) {
    const QString active = MakeFile(QStringLiteral("active.htm"), "active");
    const QString same = MakeFile(QStringLiteral("same.htm"), "same");
    const QString other = MakeFile(QStringLiteral("other.htm"), "other");
    EXPECT_EQ(Run(other,
                  [&](frmTarnwick& frame) {
                      frame.ActiveForm()->txtInput().SetSelText(QStringLiteral("my "));
                      frame.OpenDocumentFile(same);
                      frame.OpenDocumentFile(active);
                      frame.ActiveForm()->txtInput().SetSelText(QStringLiteral(" page"));

                      prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::Cancel};
                      EXPECT_FALSE(SaveAtSessionEnd(frame));
                      EXPECT_EQ(prompts.asked.size(), 2);
                      EXPECT_EQ(Content(active), "active page\r\n");
                      EXPECT_EQ(frame.Area().subWindowList().size(), 3);

                      prompts.messageAnswers = {MsgAnswer::No};
                      EXPECT_TRUE(SaveAtSessionEnd(frame));
                      EXPECT_EQ(prompts.asked.size(), 3);
                      EXPECT_EQ(Content(other), "other");
                      EXPECT_EQ(frame.Area().subWindowList().size(), 2);
                      EXPECT_TRUE(frame.isVisible());
                      return true;
                  }),
              0);
    // Nothing is asked twice.
    EXPECT_EQ(prompts.asked.size(), 3);
}

TEST_F(Program, PageThatFoundNoPlaceAtTheEndOfTheSessionIsKeptAndAskedAboutAgain) {
    EXPECT_EQ(Run(QString(),
                  [&](frmTarnwick& frame) {
                      frame.NewDocument();
                      frame.ActiveForm()->txtInput().SetSelText(QStringLiteral("words"));
                      prompts.messageAnswers = {MsgAnswer::Yes};
                      prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
                      EXPECT_TRUE(SaveAtSessionEnd(frame));
                      EXPECT_TRUE(frame.ActiveForm() && frame.ActiveForm()->Modified());
                      prompts.messageAnswers = {MsgAnswer::No};
                      return true;
                  }),
              0);
    EXPECT_TRUE(prompts.messageAnswers.empty());
}

TEST_F(Program, FrameThatIsClosedInItsLoadNeverComesUp) {
    Write(Keys::FirstTimeAgain, "0");
    mayDismiss = [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (qobject_cast<frmTarnwick*>(window))
                window->close();
        return true;
    };
    bool cameUp = false;
    EXPECT_EQ(Run(QString(), [&](frmTarnwick&) { return cameUp = true; }), 0);
    EXPECT_FALSE(cameUp);
    EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("1"));
}

// Later copies

TEST_F(Program, LaterCopyHandsItsPageOverAndTheFrameComesToFront) {
    const QString page = MakeFile(QStringLiteral("late.htm"), "late");
    bool handedOver = false;
    EXPECT_EQ(Run(QString(),
                  [&](frmTarnwick& frame) {
                      if (!handedOver) {
                          frame.showMinimized();
                          handedOver = SingleInstance().HandOver(page);
                      }
                      if (!frame.ActiveForm())
                          return false;
                      EXPECT_EQ(frame.ActiveForm()->Caption(), page);
                      EXPECT_FALSE(frame.isMinimized());
                      return true;
                  }),
              0);
}

TEST_F(Program, LaterCopyWithoutAPageOpensNone) {
    bool handedOver = false;
    EXPECT_EQ(Run(QString(),
                  [&](frmTarnwick& frame) {
                      if (!handedOver) {
                          frame.showMinimized();
                          handedOver = SingleInstance().HandOver(QString());
                      }
                      if (arrived == 0)
                          return false;
                      EXPECT_FALSE(frame.isMinimized());
                      EXPECT_EQ(frame.ActiveForm(), nullptr);
                      return true;
                  }),
              0);
}

TEST_F(Program, LaterCopyThatComesWhileTheFirstRunAsksIsHeardAfterwards) {
    Write(Keys::FirstTimeAgain, "0");
    const QString page = MakeFile(QStringLiteral("late.htm"), "late");
    bool handedOver = false;
    mayDismiss = [&] {
        if (!handedOver)
            handedOver = SingleInstance().HandOver(page);
        return arrived == 1;
    };
    EXPECT_EQ(
        Run(QString(),
            [&](frmTarnwick& frame) { return frame.ActiveForm() && frame.ActiveForm()->Caption() == page; }),
        0);
}

/// Another copy comes by as soon as a start screen is up.
class EarlyCopy : public QObject {
  public:
    explicit EarlyCopy(const QString& page) : page_(page) { qApp->installEventFilter(this); }
    bool handedOver = false;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!handedOver && qobject_cast<frmSplash*>(watched) && event->type() == QEvent::Show)
            handedOver = SingleInstance().HandOver(page_);
        return false;
    }

  private:
    QString page_;
};

TEST_F(Program, LaterCopyThatComesBeforeTheLoadIsHeardBehindIt) {
    const QString page = MakeFile(QStringLiteral("late.htm"), "late");
    EarlyCopy early(page);
    EXPECT_EQ(Run(QString(),
                  [&](frmTarnwick& frame) {
                      if (!frame.ActiveForm())
                          return false;
                      // Ahead of the load it would have been counted and put into the tabs in vain.
                      EXPECT_EQ(frame.State<ProgramState>().DocumentCount, 1);
                      EXPECT_EQ(frame.TabStrip2().count(), 1);
                      return true;
                  }),
              0);
    EXPECT_TRUE(early.handedOver);
}

TEST_F(Program, SecondCopyShowsAndWritesNothing) {
    const QByteArray before = Content(SettingsFile());
    SingleInstance running;
    QStringList lines;
    QObject::connect(&running, &SingleInstance::Arrived, &running,
                     [&](const QString& line) { lines << line; });
    SplashWatch watch;
    EXPECT_EQ(Run(QStringLiteral("/site/a page.htm")), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !lines.isEmpty(); }, 20'000));
    EXPECT_EQ(lines, QStringList(QStringLiteral("/site/a page.htm")));
    EXPECT_TRUE(watch.seen.isEmpty());
    EXPECT_EQ(Content(SettingsFile()), before);
}

// Settings that can't be had

TEST_F(Program, DamagedSettingsFileLeavesTheDefaultsAndIsWrittenAnew) {
    const QByteArray damages[] = {
        QByteArray(),
        QByteArray("\0\1\2\377\376garbage\n[[[\n=\n\n\0", 22),
        QByteArray(100'000, '\xff'),
        QByteArray("[Window%20Options\nUseAutoFill\nEdTextColor4=\\red255\\gre"),
        QByteArray("[Window%20Options]\nBackground2=@Variant(\\0\\0\\0\\x7f)\nEdTextColor4=\\red1\n"
                   "TemplateWindowState=@Invalid()\nMainFormWidth=1e300\nFirstTimeAgain=many\n"),
    };
    for (const QByteArray& damage : damages) {
        FreshUser();
        Overwrite(SettingsFile(), damage);
        Overwrite(SettingsFolder() + QStringLiteral("/Web Timer.ini"), "[Dates]\nDate%20List=mine\n");
        optionsShown = 0;
        ExpectThatWorkGoesOn(damage.left(20).constData());
        EXPECT_EQ(optionsShown, 1);
        EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("1"));
        EXPECT_EQ(Read(Keys::MenuArray(0)), TestFolder() + QStringLiteral("/page.htm"));
        EXPECT_EQ(Read(Keys::DateList), QStringLiteral("mine"));
    }
}

TEST_F(Program, SettingsFileCutOffAnywhereKeepsWhatStandsBeforeTheCut) {
    Write(Keys::Server(2), "ftp.site");
    Write(Keys::UserTemplate, "<P>\r\n, \"mine\"\r\n");
    ASSERT_EQ(Run(MakeFile(QStringLiteral("page.htm"), "<B>page</B>")), 0);
    const QByteArray whole = Content(SettingsFile());
    ASSERT_GT(whole.size(), 1000);
    for (qsizetype size = 0; size < whole.size(); size += 113) {
        Overwrite(SettingsFile(), whole.left(size));
        const QString server = Read(Keys::Server(2)), recent = Read(Keys::MenuArray(0));
        const QString page = Read(Keys::UserTemplate);
        ExpectThatWorkGoesOn(std::to_string(size).c_str());
        EXPECT_EQ(Read(Keys::Server(2)), server) << size;
        EXPECT_EQ(Read(Keys::UserTemplate), page) << size;
        EXPECT_TRUE(recent.isEmpty() || Read(Keys::MenuArray(1)) == recent ||
                    Read(Keys::MenuArray(0)) == recent)
            << size;
        EXPECT_EQ(Content(SettingsFile()).count("FirstTimeAgain="), 1) << size;
    }
}

TEST_F(Program, SettingsFileThatCannotBeReadIsLeftAlone) {
    FreshUser();
    QDir(SettingsFolder()).mkdir(QStringLiteral("The Tarnwick.ini"));
    Overwrite(SettingsFile() + QStringLiteral("/inside"), "kept");
    ExpectThatWorkGoesOn("a folder in its place");
    EXPECT_EQ(Content(SettingsFile() + QStringLiteral("/inside")), "kept");
}

TEST_F(Program, SettingsThatCannotBeReadAreToldOfUntilTheUserActs) {
    FreshUser();
    ASSERT_EQ(::mkfifo(QFile::encodeName(SettingsFile()), 0600), 0);
    const QString told =
        QStringLiteral("The settings can't be read, nor will they be kept: ") + SettingsFile();
    EXPECT_EQ(Run(MakeFile(QStringLiteral("page.htm"), "<B>page</B>"),
                  [&](frmTarnwick& frame) {
                      const QLabel& panel = *frame.findChild<QLabel*>(QStringLiteral("Panel3"));
                      RichTextBox& text = frame.ActiveForm()->txtInput();
                      if (!text.hasFocus())
                          return false;
                      EXPECT_EQ(panel.text(), told);
                      // The desktop takes the focus away and gives it back: nobody has told anything else.
                      text.clearFocus();
                      text.SetFocus();
                      EXPECT_EQ(panel.text(), told);

                      QTest::keyClick(&text, Qt::Key_Right);
                      EXPECT_EQ(panel.text(), QStringLiteral("Line 1"));
                      frame.SetStatusPanel(QString());
                      text.clearFocus();
                      text.SetFocus();
                      EXPECT_EQ(panel.text(), QStringLiteral("Line 1"));
                      return true;
                  }),
              0);
}

TEST_F(Program, WhatIsToldLaterThanTheSettingsStands) {
    FreshUser();
    ASSERT_EQ(::mkfifo(QFile::encodeName(SettingsFile()), 0600), 0);
    EXPECT_EQ(Run(MakeFile(QStringLiteral("page.htm"), "<B>page</B>"),
                  [&](frmTarnwick& frame) {
                      RichTextBox& text = frame.ActiveForm()->txtInput();
                      if (!text.hasFocus())
                          return false;
                      frame.SetStatusPanel(QStringLiteral("something else"));
                      text.clearFocus();
                      text.SetFocus();
                      EXPECT_EQ(frame.findChild<QLabel*>(QStringLiteral("Panel3"))->text(),
                                QStringLiteral("Line 1"));
                      return true;
                  }),
              0);
}

TEST_F(Program, SettingsFolderThatCannotBeMadeStopsNobody) {
    FreshUser();
    const QString folder = SettingsFolder();
    ASSERT_TRUE(QDir(folder).removeRecursively());
    Overwrite(folder, "a file in its place");
    ExpectThatWorkGoesOn("a file in the folder's place");
    EXPECT_EQ(Content(folder), "a file in its place");
    QFile::remove(folder);
}

TEST_F(Program, ProgramFolderThatCannotBeMadeStopsNobody) {
    const QString blocker = TestFolder() + QStringLiteral("/blocker");
    Overwrite(blocker, "a file where a folder would have to be");
    qputenv("TARNWICK_HOME", QFile::encodeName(blocker + QStringLiteral("/home")));
    ExpectThatWorkGoesOn("no program folder");
    EXPECT_EQ(Read(Keys::FirstTimeAgain), QStringLiteral("2"));
}

/// A disk of its own in a folder's place, seen by this process alone and gone with the object.
class SmallDisk {
  public:
    explicit SmallDisk(const QString& folder) : folder_(QFile::encodeName(folder)) {
        mounted_ = ::unshare(CLONE_NEWNS) == 0 &&
                   ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                   ::mount("none", folder_.constData(), "tmpfs", 0, "size=64k") == 0;
    }
    ~SmallDisk() {
        if (mounted_)
            ::umount2(folder_.constData(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool Mounted() const { return mounted_; }
    bool MakeReadOnly() const {
        return ::mount("none", folder_.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k") == 0;
    }
    /// Takes all the room there is.
    void Fill() const {
        QFile filler(QFile::decodeName(folder_) + QStringLiteral("/filler"));
        ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) > 0) {
        }
    }

  private:
    QByteArray folder_;
    bool mounted_ = false;
};

TEST_F(Program, FullOrReadOnlyDiskOfTheSettingsLeavesTheOldOnes) {
    for (const bool full : {true, false}) {
        FreshUser();
        const SmallDisk disk(SettingsFolder());
        if (!disk.Mounted())
            GTEST_SKIP() << "may not mount a small disk here";
        Write(Keys::FirstTimeAgain, "7");
        Write(Keys::Server(2), "ftp.site");
        const QByteArray before = Content(SettingsFile());
        if (full)
            disk.Fill();
        else
            ASSERT_TRUE(disk.MakeReadOnly());
        ExpectThatWorkGoesOn(full ? "full" : "read-only");
        EXPECT_EQ(Content(SettingsFile()), before);
        EXPECT_EQ(optionsShown, 0);
    }
}

// What an earlier run did not save

class LeftPage : public Program {
  protected:
    void Leave(const QString& path, const QByteArray& text) {
        Overwrite(MakeRecoveryFolder() + QStringLiteral("/run-00000000000000aa-1.copy"),
                  BytesOf({.path = path, .content = {text, TextEncoding::Ascii}}));
    }
};

TEST_F(LeftPage, IsOfferedOnceTheFrameIsOnTheScreen) {
    const QString path = MakeFile(QStringLiteral("page.htm"), "old");
    Leave(path, "new");
    prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::No};
    prompts.whileAsked = [&] { EXPECT_TRUE(prompts.asked.last().owner->isVisible()); };
    EXPECT_EQ(Run(QString(),
                  [&](frmTarnwick& frame) {
                      if (prompts.asked.isEmpty())
                          return false;
                      EXPECT_TRUE(frame.ActiveForm() && frame.ActiveForm()->Modified());
                      EXPECT_EQ(frame.ActiveForm()->txtInput().Text(), QStringLiteral("new"));
                      return true;
                  }),
              0);
    EXPECT_EQ(Content(path), "old");
    ASSERT_EQ(prompts.asked.size(), 2);
    EXPECT_EQ(prompts.asked.last().text, QStringLiteral("Do you want to save?"));
    EXPECT_TRUE(QDir(RecoveryFolder()).isEmpty(QDir::Files));
}

TEST_F(LeftPage, IsNoAffairOfALaterCopy) {
    Leave(QStringLiteral("/page.htm"), "new");
    SingleInstance running;
    EXPECT_EQ(Run(QString()), 0);
    EXPECT_TRUE(prompts.asked.isEmpty());
    EXPECT_EQ(QDir(RecoveryFolder()).entryList(QDir::Files).size(), 1);
}

TEST_F(LeftPage, StandsOpenOnceWhereTheCommandLineNamesIt) {
    const QString path = MakeFile(QStringLiteral("page.htm"), "old");
    Leave(path, "new");
    prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::No};
    bool handedOver = false;
    EXPECT_EQ(Run(path,
                  [&](frmTarnwick& frame) {
                      if (prompts.asked.isEmpty())
                          return false;
                      EXPECT_EQ(frame.Area().subWindowList().size(), 1);
                      // And so where a later copy brings it.
                      if (!handedOver)
                          handedOver = SingleInstance().HandOver(path);
                      return arrived == 1 && prompts.asked.size() == 2;
                  }),
              0);
    EXPECT_TRUE(prompts.asked[1].text.endsWith(QStringLiteral("Duplicate copies not allowed.")));
}

} // namespace
