// What ends a notice in the status bar, and what does not.
#include "app/window/StandingNotice.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTest>
#include <QWidget>

namespace {

class StandingNoticeTest : public testing::Test {
  protected:
    StandingNoticeTest() {
        QObject::connect(&notice, &StandingNotice::Ended, &notice, [this] { ++ended; });
    }
    void Begin(StandingNotice::Ends ends = StandingNotice::Ends::AtFirstAct) {
        notice.Begin(QStringLiteral("told"), ends);
    }
    /// A press as the desktop tells it: of the window, and of each widget that passes it on.
    void Press(QEvent::Type type, quint64 at) {
        for (QWidget* one : {&window, &text}) {
            QMouseEvent press(type, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            press.setTimestamp(at);
            QCoreApplication::sendEvent(one, &press);
        }
    }
    void Press(Qt::Key key, QEvent::Type type) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&text, &event);
    }
    QWidget window;
    QWidget text{&window};
    StandingNotice notice;
    int ended = 0;
};

TEST_F(StandingNoticeTest, EndsWithTheFirstKey) {
    Begin();
    EXPECT_EQ(notice.Text(), QStringLiteral("told"));
    QTest::keyPress(&text, Qt::Key_A);
    EXPECT_FALSE(notice.Stands());
    QTest::keyRelease(&text, Qt::Key_A);
    EXPECT_EQ(ended, 1);
}

TEST_F(StandingNoticeTest, EndsWithAKeyThatIsACommands) {
    Begin();
    Press(Qt::Key_S, QEvent::ShortcutOverride);
    EXPECT_FALSE(notice.Stands());
}

TEST_F(StandingNoticeTest, OutlastsKeysThatChangeOthersAndWhatIsNoAct) {
    Begin();
    for (const auto key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta})
        for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress})
            Press(key, type);
    QTest::mouseMove(&text);
    for (const auto type : {QEvent::FocusIn, QEvent::WindowActivate, QEvent::WindowDeactivate}) {
        QEvent event(type);
        if (type != QEvent::FocusIn)
            QCoreApplication::sendEvent(&window, &event);
    }
    EXPECT_TRUE(notice.Stands());
    EXPECT_EQ(ended, 0);
}

TEST_F(StandingNoticeTest, EndsWithTheFirstClick) {
    Begin();
    Press(QEvent::MouseButtonPress, 100);
    EXPECT_FALSE(notice.Stands());
    EXPECT_EQ(ended, 1);
}

TEST_F(StandingNoticeTest, SparesTheClickThatBroughtTheWindowToTheFront) {
    Begin(StandingNotice::Ends::SparesAClick);
    Press(QEvent::MouseButtonPress, 100);
    EXPECT_TRUE(notice.Stands());
    Press(QEvent::MouseButtonPress, 101);
    EXPECT_FALSE(notice.Stands());
    EXPECT_EQ(ended, 1);
}

TEST_F(StandingNoticeTest, SparesNoDoubleClickAndNoKey) {
    Begin(StandingNotice::Ends::SparesAClick);
    Press(QEvent::MouseButtonPress, 100);
    Press(QEvent::MouseButtonDblClick, 150);
    EXPECT_FALSE(notice.Stands());
    Begin(StandingNotice::Ends::SparesAClick);
    QTest::keyClick(&text, Qt::Key_A);
    EXPECT_FALSE(notice.Stands());
    // The next one begins anew, also where the last one spared a click.
    Begin();
    Press(QEvent::MouseButtonPress, 200);
    EXPECT_FALSE(notice.Stands());
}

TEST_F(StandingNoticeTest, HearsNothingOnceItHasEnded) {
    Begin();
    notice.End();
    QTest::keyClick(&text, Qt::Key_A);
    EXPECT_EQ(ended, 0);
}

} // namespace
