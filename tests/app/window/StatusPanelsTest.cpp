// The status bar's three panels.
#include "app/window/StatusPanels.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>

namespace {

QString PanelText(const StatusBar& bar, const char* name) {
    return bar.findChild<QLabel*>(QString::fromLatin1(name))->text();
}

TEST(StatusPanels, DateAndTimeStandThereFromTheStart) {
    const QLocale locale;
    const QDateTime before = QDateTime::currentDateTime();
    const StatusBar bar;
    const QDateTime after = QDateTime::currentDateTime();
    EXPECT_EQ(bar.objectName(), QStringLiteral("StatusBar"));
    const auto date = [&](const QDateTime& at) { return locale.toString(at.date(), QLocale::ShortFormat); };
    const auto time = [&](const QDateTime& at) {
        return locale.toString(at.time(), QStringLiteral("HH:mm"));
    };
    EXPECT_TRUE(PanelText(bar, "Panel1") == date(before) || PanelText(bar, "Panel1") == date(after));
    EXPECT_TRUE(PanelText(bar, "Panel2") == time(before) || PanelText(bar, "Panel2") == time(after));
    EXPECT_EQ(bar.Panel3(), QString());
}

TEST(StatusPanels, TheClockIsTheDesktopsShortForm) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    StatusBar bar;
    bar.ShowMoment(QDateTime(QDate(2023, 3, 5), QTime(14, 7, 59)));
    EXPECT_EQ(PanelText(bar, "Panel1"), QStringLiteral("05/03/2023"));
    EXPECT_EQ(PanelText(bar, "Panel2"), QStringLiteral("14:07"));
    // No seconds, also where the short form has them: they would stand still.
    QLocale::setDefault(QLocale::c());
    bar.ShowMoment(QDateTime(QDate(2023, 3, 5), QTime(14, 7, 59)));
    EXPECT_EQ(PanelText(bar, "Panel2"), QStringLiteral("14:07"));
}

TEST(StatusPanels, TheNextLookIsAtTheFullMinute) {
    const auto until = [](int hour, int minute, int second, int ms) {
        return StatusBar::UntilNextMinute(QDateTime(QDate(2023, 3, 5), QTime(hour, minute, second, ms)));
    };
    EXPECT_EQ(until(0, 0, 0, 0), 60'000);
    EXPECT_EQ(until(14, 7, 59, 999), 1);
    EXPECT_EQ(until(23, 59, 30, 0), 30'000);
}

TEST(StatusPanels, TheClockRunsByItself) {
    const StatusBar bar;
    const auto* minute = bar.findChild<QTimer*>(QStringLiteral("minute"));
    ASSERT_TRUE(minute);
    EXPECT_TRUE(minute->isActive());
    EXPECT_LE(minute->interval(), 60'000);
}

TEST(StatusPanels, PanelThreeIsTheProgramsAndTakesAnyTextAsItStands) {
    StatusBar bar;
    bar.SetPanel3(QStringLiteral("Coloring HTML tags, please wait . . . "), true);
    EXPECT_EQ(bar.Panel3(), QStringLiteral("Coloring HTML tags, please wait . . . "));
    bar.SetPanel3(QStringLiteral("<B>Line</B> 3"));
    EXPECT_EQ(PanelText(bar, "Panel3"), QStringLiteral("<B>Line</B> 3"));
    EXPECT_EQ(bar.findChild<QLabel*>(QStringLiteral("Panel3"))->textFormat(), Qt::PlainText);
}

TEST(StatusPanels, ANoticeStandsBeforeWhatIsSaidWhenThereIsNothingToTell) {
    StatusBar bar;
    bar.SetIdle(QStringLiteral("Line 1"));
    EXPECT_EQ(bar.Panel3(), QStringLiteral("Line 1"));
    bar.ShowNotice(QStringLiteral("told"));
    bar.SetIdle(QStringLiteral("Line 2"));
    EXPECT_EQ(bar.Panel3(), QStringLiteral("told"));
    bar.ShowNotice(QStringLiteral("told later"));
    EXPECT_EQ(bar.Panel3(), QStringLiteral("told later"));
    bar.SetPanel3(QStringLiteral("something else"));
    bar.SetIdle(QStringLiteral("Line 3"));
    EXPECT_EQ(bar.Panel3(), QStringLiteral("Line 3")) << "it has ended";
}

TEST(StatusPanels, AnActShowsWhatWasSaidBehindANotice) {
    StatusBar bar;
    bar.SetIdle(QStringLiteral("Line 1"));
    bar.ShowNotice(QStringLiteral("told"));
    bar.SetIdle(QStringLiteral("Line 2"));
    QTest::keyClick(&bar, Qt::Key_A);
    EXPECT_EQ(bar.Panel3(), QStringLiteral("Line 2"));
    bar.SetIdle(QStringLiteral("Line 3"));
    EXPECT_EQ(bar.Panel3(), QStringLiteral("Line 3"));
}

TEST(StatusPanels, ALongStepOnlyCoversANotice) {
    StatusBar bar;
    bar.ShowNotice(QStringLiteral("told"));
    bar.SetPanel3(QStringLiteral("Coloring HTML tags, please wait . . . "), true);
    EXPECT_EQ(bar.Panel3(), QStringLiteral("Coloring HTML tags, please wait . . . "));
    bar.SetPanel3(QString());
    EXPECT_EQ(bar.Panel3(), QStringLiteral("told"));
    QTest::keyClick(&bar, Qt::Key_A);
    bar.SetPanel3(QStringLiteral("Coloring HTML tags, please wait . . . "), true);
    bar.SetPanel3(QString());
    EXPECT_EQ(bar.Panel3(), QString());
}

TEST(StatusPanels, ALongTextDoesNotWidenTheWindow) {
    QMainWindow window;
    auto* bar = new StatusBar;
    window.setStatusBar(bar);
    window.show();
    const int narrow = window.minimumSizeHint().width(), width = window.width();
    bar->SetPanel3(QString(2000, u'x'));
    QCoreApplication::processEvents();
    EXPECT_EQ(window.minimumSizeHint().width(), narrow);
    EXPECT_EQ(window.width(), width);
}

} // namespace
