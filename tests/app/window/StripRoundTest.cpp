// F6 and Shift+F6 through the strips, and the keys of the modes.
#include "app/window/StripRound.h"

#include "app/RealFrame.h"
#include "app/surface/Toolbar.h"
#include "app/surface/UserButtons.h"
#include "app/window/DocumentTabs.h"
#include "app/window/EmptyFrameText.h"
#include "app/window/ModeStrip.h"

#include <QTabBar>

namespace {

using namespace Qt::StringLiterals;

class StripRoundTest : public FrameTest {
  protected:
    void Start(const QString& commandLine = QString()) {
        run.emplace();
        ASSERT_TRUE(run->Start(commandLine));
        QCoreApplication::processEvents();
    }
    /// The station that has the focus.
    QString At() {
        const QWidget* focus = QApplication::focusWidget();
        for (const char* name :
             {"txtInput", "EmptyFrameText", "TabStrip3", "TabStrip2", "Toolbar1", "Picture2"}) {
            const QWidget* place = run->frame->findChild<QWidget*>(QString::fromLatin1(name));
            if (focus && place && (place == focus || place->isAncestorOf(focus)))
                return QString::fromLatin1(name);
        }
        return focus ? focus->objectName() : u"nowhere"_s;
    }
    QStringList Round(int keys, Qt::KeyboardModifiers modifiers = {}) {
        QStringList stations;
        for (int n = 0; n < keys; ++n) {
            QTest::keyClick(run->frame.get(), Qt::Key_F6, modifiers);
            stations << At();
        }
        return stations;
    }
    QString Mode() {
        auto& tabs = run->Find<QTabBar>("TabStrip3");
        return tabs.tabText(tabs.currentIndex());
    }
    std::optional<ProgramRun> run;
};

TEST_F(StripRoundTest, F6GoesThroughAllStripsAndBackToTheText) {
    Write(Keys::UseMSIE, "1");
    Write(Keys::ShowUserButtons, "1");
    Start(MakeFile(u"a.htm"_s, "<P>a"));
    ASSERT_EQ(At(), u"txtInput"_s);
    EXPECT_EQ(Round(5),
              QStringList({u"TabStrip3"_s, u"TabStrip2"_s, u"Toolbar1"_s, u"Picture2"_s, u"txtInput"_s}));
    EXPECT_EQ(Round(5, Qt::ShiftModifier),
              QStringList({u"Picture2"_s, u"Toolbar1"_s, u"TabStrip2"_s, u"TabStrip3"_s, u"txtInput"_s}));
}

TEST_F(StripRoundTest, EveryStationShowsThatItHasTheFocus) {
    Write(Keys::UseMSIE, "1");
    Write(Keys::ShowUserButtons, "1");
    Start(MakeFile(u"a.htm"_s, "<P>a"));
    for (int station = 1; station <= 4; ++station) {
        Round(1);
        QWidget* focused = QApplication::focusWidget();
        const QImage with = focused->grab().toImage();
        run->Active().txtInput().SetFocus();
        EXPECT_NE(focused->grab().toImage(), with) << focused->objectName().toStdString();
        focused->setFocus();
    }
}

TEST_F(StripRoundTest, PassesOverWhatIsNotShown) {
    Start();
    run->New();
    ASSERT_EQ(At(), u"txtInput"_s);
    // No modes, no user buttons, and a document that has no tab.
    EXPECT_EQ(Round(2), QStringList({u"Toolbar1"_s, u"txtInput"_s}));
    EXPECT_EQ(Round(2, Qt::ShiftModifier), QStringList({u"Toolbar1"_s, u"txtInput"_s}));
}

TEST_F(StripRoundTest, TheEmptyFramesTextStandsForTheDocuments) {
    Start();
    run->Find<Toolbar1>("Toolbar1").TakeFocus();
    EXPECT_EQ(Round(2), QStringList({u"EmptyFrameText"_s, u"Toolbar1"_s}));
}

TEST_F(StripRoundTest, WithNothingButTheToolbarItStaysThere) {
    Write(Keys::EmptyFrameText, "0");
    Start();
    EXPECT_EQ(Round(2), QStringList({u"Toolbar1"_s, u"Toolbar1"_s}));
    EXPECT_EQ(Round(2, Qt::ShiftModifier), QStringList({u"Toolbar1"_s, u"Toolbar1"_s}));
}

TEST_F(StripRoundTest, TheSecondPageOfUserButtonsIsEnteredAtItsFirst) {
    Write(Keys::ShowUserButtons, "1");
    Start();
    run->New();
    EXPECT_EQ(Round(2), QStringList({u"Toolbar1"_s, u"Picture2"_s}));
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"Command1_0"_s);
    run->Find<QTabBar>("TabStrip1").setCurrentIndex(1);
    Round(2, Qt::ShiftModifier);
    run->Active().txtInput().SetFocus();
    EXPECT_EQ(Round(1, Qt::ShiftModifier), QStringList(u"Picture2"_s));
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"Command1_15"_s);
}

TEST_F(StripRoundTest, EscGoesBackToTheTextFromEveryStation) {
    Write(Keys::UseMSIE, "1");
    Write(Keys::ShowUserButtons, "1");
    Start(MakeFile(u"a.htm"_s, "<P>a"));
    for (int station = 1; station <= 4; ++station) {
        Round(station);
        ASSERT_NE(At(), u"txtInput"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_EQ(At(), u"txtInput"_s) << station;
    }
}

TEST_F(StripRoundTest, CtrlPageDownAndUpClickThroughTheModes) {
    Write(Keys::UseMSIE, "1");
    const QString path = MakeFile(u"a.htm"_s, "<P>a");
    Start(path);
    QStringList clicked;
    QObject::connect(&static_cast<ModeStrip&>(run->frame->Picture4()), &ModeStrip::Click, run->frame.get(),
                     [&](const QString& mode) { clicked << mode; });
    run->prompts.messageAnswers = {MsgAnswer::No, MsgAnswer::No, MsgAnswer::No};
    for (int n = 0; n < 3; ++n)
        QTest::keyClick(&run->Active().txtInput(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(clicked, QStringList({u"Design"_s, u"View"_s, u"Edit"_s}));
    clicked.clear();
    QTest::keyClick(run->frame.get(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(clicked, QStringList(u"View"_s));
    EXPECT_EQ(Mode(), u"View"_s);
}

TEST_F(StripRoundTest, WithoutModesTheirKeysDoNothing) {
    Start(MakeFile(u"a.htm"_s, "<P>a"));
    QTest::keyClick(&run->Active().txtInput(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Mode(), u"Edit"_s);
    EXPECT_TRUE(run->prompts.asked.isEmpty());
}

TEST_F(StripRoundTest, WithoutTheSettingF6GoesToTheToolbarAlone) {
    Write(Keys::StripKeys, "0");
    Write(Keys::UseMSIE, "1");
    Start(MakeFile(u"a.htm"_s, "<P>a"));
    EXPECT_EQ(Round(2), QStringList({u"Toolbar1"_s, u"Toolbar1"_s}));
    run->Active().txtInput().SetFocus();
    EXPECT_EQ(Round(1, Qt::ShiftModifier), QStringList(u"txtInput"_s));
    QTest::keyClick(&run->Active().txtInput(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Mode(), u"Edit"_s);
}

} // namespace
