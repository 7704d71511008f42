// Ctrl+Tab: which document it goes to, and what is seen on the way.
#include "app/window/WindowChooser.h"

#include "app/RealFrame.h"
#include "app/window/DocumentTabs.h"
#include "app/window/WindowChooserList.h"

#include <QDebug>

namespace {

class WindowChooserTest : public FrameTest {
  protected:
    WindowChooserTest() : before(QApplication::keyboardInputInterval()) {}
    ~WindowChooserTest() override { QApplication::setKeyboardInputInterval(before); }
    /// Documents a.htm, b.htm, c.htm and one without a file, the last one active.
    void Start() {
        run.emplace();
        ASSERT_TRUE(run->Start());
        for (const char* name : {"a.htm", "b.htm", "c.htm"})
            run->frame->OpenDocumentFile(MakeFile(QString::fromLatin1(name), "<P>page"));
        run->New();
        QCoreApplication::processEvents();
    }
    QWidget& Text() { return run->Active().txtInput(); }
    /// One event: the test library's own clicks press and release Ctrl with each key.
    void Send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(&Text(), &event);
    }
    void PressCtrl() { Send(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier); }
    void ReleaseCtrl() {
        Send(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier);
        QCoreApplication::processEvents();
    }
    void Tab(int step = 1) {
        const Qt::Key key = step > 0 ? Qt::Key_Tab : Qt::Key_Backtab;
        const auto modifiers = Qt::ControlModifier | (step > 0 ? Qt::NoModifier : Qt::ShiftModifier);
        Send(QEvent::KeyPress, key, modifiers);
        Send(QEvent::KeyRelease, key, modifiers);
    }
    /// Who holds Ctrl for longer than a moment: here that is over at once.
    void HoldCtrl() {
        QApplication::setKeyboardInputInterval(0);
        PressCtrl();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    WindowChooserList* List() { return run->frame->findChild<WindowChooserList*>(); }
    QString Chosen() { return List()->currentItem()->text(); }
    QMdiSubWindow* InFront() { return run->frame->Area().subWindowList(QMdiArea::StackingOrder).constLast(); }
    /// The documents by the first letters of their names, "-" for the one without a file.
    QString Letters(QMdiArea::WindowOrder order) {
        QString letters;
        for (QMdiSubWindow* window : run->frame->Area().subWindowList(order))
            letters += Letter(window);
        return letters;
    }
    static QChar Letter(QMdiSubWindow* window) {
        const QString path = dynamic_cast<frmTemplate&>(*window).Caption();
        return path.isEmpty() ? QChar(u'-') : path[path.size() - 5];
    }
    QString Places() {
        QString places;
        for (const QMdiSubWindow* window : run->frame->Area().subWindowList())
            QDebug(&places) << window->geometry() << window->windowState();
        return places;
    }
    QChar Active() { return Letter(&run->Active()); }
    std::optional<ProgramRun> run;
    const int before;
};

TEST_F(WindowChooserTest, ShowsTheNamesAndTheChosenOneInFrontWhileCtrlIsHeld) {
    Start();
    HoldCtrl();
    EXPECT_EQ(List(), nullptr);
    Tab();
    ASSERT_TRUE(List());
    EXPECT_TRUE(List()->isVisible());
    QStringList rows;
    for (int row = 0; row < List()->count(); ++row)
        rows << List()->item(row)->text();
    EXPECT_EQ(rows, QStringList({QStringLiteral("a.htm - ") + TestFolder(),
                                 QStringLiteral("b.htm - ") + TestFolder(),
                                 QStringLiteral("c.htm - ") + TestFolder(), QStringLiteral("Untitled 1")}));
    EXPECT_EQ(Chosen()[0], u'a');
    EXPECT_EQ(Letter(InFront()), u'a');
    // Nothing is activated yet, and the keys stay with the text.
    EXPECT_EQ(Active(), u'-');
    EXPECT_TRUE(run->Active().txtInput().hasFocus());
    Tab();
    EXPECT_EQ(Chosen()[0], u'b');
    EXPECT_EQ(Letter(InFront()), u'b');
    Tab(-1);
    Tab(-1);
    EXPECT_EQ(Chosen(), QStringLiteral("Untitled 1"));
    Tab(-1);
    EXPECT_EQ(Chosen()[0], u'c');
    ReleaseCtrl();
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Active(), u'c');
    EXPECT_TRUE(run->Active().txtInput().hasFocus());
    EXPECT_EQ(run->frame->TabStrip2().currentIndex(), 2);
}

TEST_F(WindowChooserTest, StandsInsideTheAreaHoweverLongTheNames) {
    Start();
    run->frame->resize(500, 500);
    QCoreApplication::processEvents();
    HoldCtrl();
    Tab();
    EXPECT_TRUE(run->frame->Area().geometry().contains(List()->geometry()));
    ReleaseCtrl();
}

TEST_F(WindowChooserTest, AWindowBesideAMaximisedOneIsSeenWhole) {
    Start();
    ASSERT_TRUE(run->Active().isMaximized());
    HoldCtrl();
    for (const char* name : {"a", "b", "c"}) {
        Tab();
        ASSERT_EQ(Letter(InFront()), QChar::fromLatin1(*name));
        EXPECT_EQ(InFront()->geometry(), run->frame->Area().viewport()->rect()) << name;
    }
    Tab();
    EXPECT_TRUE(InFront()->isMaximized());
    const auto windows = run->frame->Area().subWindowList();
    EXPECT_NE(windows[2]->geometry(), run->frame->Area().viewport()->rect());
    ReleaseCtrl();
}

TEST_F(WindowChooserTest, EscLeavesEverythingAsItWas) {
    Start();
    const QString lay = Letters(QMdiArea::StackingOrder);
    HoldCtrl();
    Tab();
    Tab();
    Send(QEvent::KeyPress, Qt::Key_Escape, Qt::ControlModifier);
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Letters(QMdiArea::StackingOrder), lay);
    ReleaseCtrl();
    EXPECT_EQ(Active(), u'-');
    EXPECT_EQ(Letters(QMdiArea::StackingOrder), lay);
}

TEST_F(WindowChooserTest, LeavingTheFrameEndsIt) {
    Start();
    HoldCtrl();
    Tab();
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Active(), u'-');
    run->frame->activateWindow();
    QCoreApplication::processEvents();
    ReleaseCtrl();
    EXPECT_EQ(Active(), u'-');
}

TEST_F(WindowChooserTest, AChosenDocumentThatGoesIsNotActivated) {
    Start();
    HoldCtrl();
    Tab();
    delete InFront();
    ReleaseCtrl();
    EXPECT_EQ(List(), nullptr);
    EXPECT_EQ(Active(), u'-');
}

TEST_F(WindowChooserTest, OneDocumentOrNoneShowsNoList) {
    Write(Keys::EmptyFrameText, "0");
    run.emplace();
    ASSERT_TRUE(run->Start());
    run->New();
    QCoreApplication::processEvents();
    HoldCtrl();
    Tab();
    EXPECT_EQ(List(), nullptr);
    ReleaseCtrl();
    EXPECT_EQ(run->Active().txtInput().Text(), QString());
}

TEST_F(WindowChooserTest, TabWithoutCtrlIsTheTextsOwn) {
    Start();
    QTest::keyClick(&Text(), Qt::Key_Tab);
    EXPECT_EQ(run->Active().txtInput().Text(), QStringLiteral("\t"));
}

// What the keys end with is the area's own rule, with the list and without.
struct Press {
    const char* keys; ///< "+" is Tab, "-" Shift+Tab
    bool held;
    const char* layout = "2"; ///< of the windows: "0" normal, "2" maximised
};

class WindowChooserOutcome : public WindowChooserTest, public testing::WithParamInterface<Press> {
  protected:
    /// The active document, and the order in which the windows lie, after each of three such presses.
    QStringList Outcomes(bool withList) {
        Write(Keys::WindowChooser, withList ? "1" : "0");
        Write(Keys::TemplateWindowState, GetParam().layout);
        Start();
        QStringList outcomes;
        for (int turn = 0; turn < 3; ++turn) {
            if (GetParam().held) {
                HoldCtrl();
            } else {
                QApplication::setKeyboardInputInterval(60'000);
                PressCtrl();
            }
            for (const char* key = GetParam().keys; *key; ++key)
                Tab(*key == '+' ? 1 : -1);
            EXPECT_EQ(List() != nullptr, withList && GetParam().held);
            ReleaseCtrl();
            outcomes << QString(Active()) + u' ' + Letters(QMdiArea::StackingOrder) + u' ' +
                            Letters(QMdiArea::ActivationHistoryOrder) + Places();
        }
        run.reset();
        return outcomes;
    }
};

TEST_P(WindowChooserOutcome, IsTheSameWithTheListAndWithout) {
    const QStringList without = Outcomes(false);
    EXPECT_EQ(Outcomes(true), without);
    EXPECT_NE(without.first()[0], u'-');
}

INSTANTIATE_TEST_SUITE_P(Presses, WindowChooserOutcome,
                         testing::Values(Press{"+", false}, Press{"+", true}, Press{"++", false},
                                         Press{"++", true}, Press{"-", true}, Press{"-", false},
                                         Press{"+++++", true}, Press{"+--", true}, Press{"+", true, "0"},
                                         Press{"++", true, "0"}));

} // namespace
