// The web timer's windows: ticks, pause, the log and when it is written.
#include "tools/timer/frmTime.h"

#include "platform/values/Dates.h"
#include "tools/timer/DateLog.h"
#include "tools/timer/frmInfo.h"
#include "tools/ToolTest.h"

#include <QClipboard>
#include <QDate>
#include <QGuiApplication>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

namespace {

class frmTimeTest : public ToolTest {
  protected:
    frmTime& Timer() {
        ShowWebTimer(frame);
        return *Form<frmTime>();
    }
    QTimer& Timer1() { return Control<QTimer>(Timer(), u"Timer1"); }
    QString Time() { return Control<QLabel>(Timer(), u"lblTime").text(); }
    /// Lets so many intervals pass, of which a paused timer hears nothing.
    void Tick(int times) {
        for (int i = 0; i < times && Timer1().isActive(); ++i)
            QMetaObject::invokeMethod(&Timer1(), "timeout", Qt::DirectConnection);
    }
    void CloseTimer() { frame.LoadedForms().Unload<frmTime>(); }
    QString& Log() { return frame.State<WebTimerState>().DateList; }
    static QString Stored() { return Settings().Read(Keys::DateList); }
    QString StoredNow() {
        frame.Store().Sync();
        return Stored();
    }
    static QString Today(const char16_t* time) { return LogLine(QDate::currentDate(), QLocale(), T(time)); }

    frmInfo& Info() {
        Press(Timer(), u"cmdInfo");
        return *Form<frmInfo>();
    }
    QPlainTextEdit& txtInfo() { return Control<QPlainTextEdit>(*Form<frmInfo>(), u"txtInfo"); }
};

TEST_F(frmTimeTest, ComesUpAtZeroAndRunning) {
    frmTime& timer = Timer();
    EXPECT_TRUE(timer.isVisible());
    EXPECT_FALSE(timer.isModal());
    EXPECT_EQ(timer.parentWidget(), frame.Window());
    EXPECT_EQ(timer.windowTitle(), T(u"Web Timer"));
    EXPECT_EQ(Control<QLabel>(timer, u"lblTimeIs").text(), T(u"Total Time:"));
    EXPECT_EQ(Time(), T(u"0 Hrs 0 Mins 0 Secs"));
    EXPECT_EQ(Control<QPushButton>(timer, u"cmdPause").text(), T(u"&Pause"));
    EXPECT_EQ(Control<QPushButton>(timer, u"cmdInfo").text(), T(u"&Info"));
    EXPECT_EQ(Timer1().interval(), 10000);
    EXPECT_TRUE(Timer1().isActive());
    EXPECT_FALSE(Timer1().isSingleShot());
}

TEST_F(frmTimeTest, WaitsForAFrameThatIsNotThereYet) {
    frame.window->hide();
    frmTime& timer = Timer();
    QCoreApplication::processEvents();
    EXPECT_FALSE(timer.isVisible());
    EXPECT_TRUE(Timer1().isActive());
    frame.window->show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return timer.isVisible(); }));
}

TEST_F(frmTimeTest, StandsInTheLowerRightCornerOfTheFrame) {
    const QRect place = Timer().geometry();
    EXPECT_TRUE(frame.window->geometry().contains(place));
    EXPECT_GT(place.left(), frame.window->geometry().center().x());
    EXPECT_GT(place.top(), frame.window->geometry().center().y());
}

TEST_F(frmTimeTest, StaysOnTheScreenWithAFrameThatIsPartlyOffIt) {
    const QRect screen = frame.window->screen()->availableGeometry();
    frame.window->move(screen.bottomRight() - QPoint(frame.window->width(), frame.window->height()) / 2);
    EXPECT_TRUE(screen.contains(Timer().geometry()));
    EXPECT_TRUE(frame.window->geometry().contains(Timer().geometry()));
}

TEST_F(frmTimeTest, EachTickShowsTenSecondsMore) {
    Tick(1);
    EXPECT_EQ(Time(), T(u"0 Hrs 0 Mins 10 Secs"));
    EXPECT_EQ(Timer().windowTitle(), T(u"Web Timer - 0 Hrs 0 Mins 10 Secs"));
    Tick(365);
    EXPECT_EQ(Timer().windowTitle(), T(u"Web Timer - 1 Hrs 1 Mins 0 Secs"));
}

TEST_F(frmTimeTest, PauseStopsItAndResumeLetsItGoOn) {
    Tick(2);
    Press(Timer(), u"cmdPause");
    EXPECT_EQ(Control<QPushButton>(Timer(), u"cmdPause").text(), T(u"&Resume"));
    EXPECT_FALSE(Timer1().isActive());
    Tick(5);
    EXPECT_EQ(Time(), T(u"0 Hrs 0 Mins 20 Secs"));
    Press(Timer(), u"cmdPause");
    EXPECT_EQ(Control<QPushButton>(Timer(), u"cmdPause").text(), T(u"&Pause"));
    EXPECT_TRUE(Timer1().isActive());
    Tick(1);
    EXPECT_EQ(Time(), T(u"0 Hrs 0 Mins 30 Secs"));
}

TEST_F(frmTimeTest, ClosingItLogsItsTime) {
    Tick(359);
    CloseTimer();
    EXPECT_EQ(Form<frmTime>(), nullptr);
    EXPECT_EQ(StoredNow(), Today(u"0 Hrs 59 Mins 50 Secs"));
    // The next one starts from zero, and its line stands below.
    EXPECT_EQ(Time(), T(u"0 Hrs 0 Mins 0 Secs"));
    CloseTimer();
    EXPECT_EQ(StoredNow(), Today(u"0 Hrs 59 Mins 50 Secs") + T(u"\r\n") + Today(u"0 Hrs 0 Mins 0 Secs"));
}

TEST_F(frmTimeTest, APausedOneLogsTheTimeOfThePause) {
    Tick(3);
    Press(Timer(), u"cmdPause");
    Tick(3);
    CloseTimer();
    EXPECT_EQ(Log(), Today(u"0 Hrs 0 Mins 30 Secs"));
}

TEST_F(frmTimeTest, ItsCloseButtonLogsToo) {
    Tick(1);
    Timer().close();
    EXPECT_EQ(Form<frmTime>(), nullptr);
    EXPECT_EQ(Log(), Today(u"0 Hrs 0 Mins 10 Secs"));
}

TEST_F(frmTimeTest, EscLeavesItRunningAndGivesTheKeysBack) {
    Timer().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Timer()));
    QTest::keyClick(&Timer(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return frame.window->isActiveWindow(); }));
    EXPECT_TRUE(Timer().isVisible());
    EXPECT_TRUE(Timer1().isActive());
    EXPECT_EQ(Log(), QString());
}

TEST_F(frmTimeTest, GoesOnWithTheLogThatIsStored) {
    frame.Store().Write(Keys::DateList, T(u"first\r\nsecond \u00e9"));
    Timer();
    EXPECT_EQ(Log(), T(u"first\r\nsecond \u00e9"));
    CloseTimer();
    EXPECT_EQ(StoredNow(), T(u"first\r\nsecond \u00e9\r\n") + Today(u"0 Hrs 0 Mins 0 Secs"));
}

TEST_F(frmTimeTest, ALaterDocumentFindsItUp) {
    Tick(2);
    const frmTime* timer = Form<frmTime>();
    ShowWebTimer(frame);
    EXPECT_EQ(Form<frmTime>(), timer);
    EXPECT_EQ(Time(), T(u"0 Hrs 0 Mins 20 Secs"));
}

TEST_F(frmTimeTest, InfoShowsTheLog) {
    frame.Store().Write(Keys::DateList, T(u"a\r\nb"));
    frmInfo& info = Info();
    EXPECT_TRUE(info.isVisible());
    EXPECT_FALSE(info.isModal());
    EXPECT_EQ(info.parentWidget(), Form<frmTime>());
    EXPECT_EQ(info.windowTitle(), T(u"Web Timer - Info"));
    EXPECT_EQ(txtInfo().toPlainText(), T(u"a\nb"));
    EXPECT_FALSE(txtInfo().isReadOnly());
    const std::pair<const char16_t*, const char16_t*> buttons[] = {{u"cmdClearData", u"Clear &Data"},
                                                                   {u"cmdCopy", u"&Copy"},
                                                                   {u"cmdSave", u"&Save Chages"},
                                                                   {u"cmdClose", u"C&lose"}};
    for (const auto& [name, caption] : buttons)
        EXPECT_EQ(Control<QPushButton>(info, name).text(), T(caption));
}

TEST_F(frmTimeTest, InfoPressedAgainShowsTheLogAnew) {
    frame.Store().Write(Keys::DateList, T(u"a"));
    const frmInfo* info = &Info();
    txtInfo().setPlainText(T(u"edited"));
    EXPECT_EQ(&Info(), info);
    EXPECT_EQ(txtInfo().toPlainText(), T(u"a"));
}

TEST_F(frmTimeTest, ClearAndEditsTakeEffectWithSave) {
    frame.Store().Write(Keys::DateList, T(u"a\r\nb"));
    frmInfo& info = Info();
    Press(info, u"cmdClearData");
    EXPECT_EQ(txtInfo().toPlainText(), QString());
    EXPECT_EQ(Log(), T(u"a\r\nb"));
    txtInfo().setPlainText(T(u"c\nd"));
    Press(info, u"cmdSave");
    EXPECT_EQ(Log(), T(u"c\r\nd"));
    EXPECT_EQ(StoredNow(), T(u"c\r\nd"));
    EXPECT_NE(Form<frmInfo>(), nullptr);
    Press(info, u"cmdClearData");
    Press(info, u"cmdSave");
    EXPECT_EQ(StoredNow(), QString());
    // With an empty log the first line has no line end before it.
    CloseTimer();
    EXPECT_EQ(StoredNow(), Today(u"0 Hrs 0 Mins 0 Secs"));
}

TEST_F(frmTimeTest, CloseLeavesTheLogAlone) {
    frame.Store().Write(Keys::DateList, T(u"a"));
    frmInfo& info = Info();
    txtInfo().setPlainText(T(u"edited"));
    Press(info, u"cmdClose");
    EXPECT_EQ(Form<frmInfo>(), nullptr);
    EXPECT_EQ(Log(), T(u"a"));
    EXPECT_EQ(StoredNow(), T(u"a"));
    Info();
    QTest::keyClick(&txtInfo(), Qt::Key_Escape);
    EXPECT_EQ(Form<frmInfo>(), nullptr);
}

TEST_F(frmTimeTest, CopyPutsWhatStandsThereOnTheClipboard) {
    frame.Store().Write(Keys::DateList, T(u"a"));
    frmInfo& info = Info();
    txtInfo().setPlainText(T(u"one\ntwo"));
    Press(info, u"cmdCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), T(u"one\ntwo"));
}

TEST_F(frmTimeTest, InfoGoesWithTheTimer) {
    Info();
    CloseTimer();
    EXPECT_EQ(Form<frmInfo>(), nullptr);
}

TEST_F(frmTimeTest, EnterInTheLogIsALineEnd) {
    frmInfo& info = Info();
    info.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&info));
    txtInfo().setFocus();
    QTest::keyClicks(&txtInfo(), T(u"a"));
    QTest::keyClick(&txtInfo(), Qt::Key_Return);
    EXPECT_EQ(txtInfo().toPlainText(), T(u"a\n"));
    EXPECT_NE(Form<frmInfo>(), nullptr);
}

} // namespace
