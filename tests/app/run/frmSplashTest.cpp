// The start screen: what it shows, and what takes it down.
#include "app/run/frmSplash.h"

#include "app/RealFrame.h"

#include <QLabel>
#include <QScreen>

namespace {

class Splash : public FrameTest {
  protected:
    frmSplash& Show() { return run.frame->LoadedForms().Show<frmSplash>(*run.frame); }
    bool Loaded() { return run.frame->LoadedForms().Find<frmSplash>() != nullptr; }
    static QLabel& Label(frmSplash& splash, const char* name) {
        return *splash.findChild<QLabel*>(QString::fromLatin1(name));
    }
    ProgramRun run;
};

TEST_F(Splash, ShowsPictureAndVersion) {
    frmSplash& splash = Show();
    EXPECT_EQ(Label(splash, "lblVersion").text(), QStringLiteral("Version 3.0.6"));
    EXPECT_EQ(Label(splash, "lblMessage").text(), QString());
    EXPECT_GT(Label(splash, "Image1").pixmap().toImage().pixelColor(10, 10).blue(), 0);
}

TEST_F(Splash, ClickOnFormPictureOrMessageUnloadsIt) {
    for (const char* target : {"", "Image1", "lblMessage"}) {
        frmSplash& splash = Show();
        splash.SetMessage(QStringLiteral("More"));
        QWidget& widget = *target ? static_cast<QWidget&>(Label(splash, target)) : splash;
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(2, 2));
        EXPECT_FALSE(Loaded()) << target;
    }
}

TEST_F(Splash, ClickOnTheVersionDoesNothing) {
    QTest::mouseClick(&Label(Show(), "lblVersion"), Qt::LeftButton);
    EXPECT_TRUE(Loaded());
}

TEST_F(Splash, ButtonLetGoOutsideIsNoClick) {
    frmSplash& splash = Show();
    QTest::mousePress(&splash, Qt::LeftButton, {}, QPoint(2, 2));
    QTest::mouseRelease(&splash, Qt::LeftButton, {}, QPoint(-2, 2));
    EXPECT_TRUE(Loaded());
}

TEST_F(Splash, StandsInTheMiddleOfTheScreen) {
    const frmSplash& splash = Show();
    const QPoint off = splash.geometry().center() - splash.screen()->geometry().center();
    EXPECT_LE(off.manhattanLength(), 2) << off.x() << ' ' << off.y();
}

TEST_F(Splash, KeyUnloadsIt) {
    QTest::keyClick(&Show(), Qt::Key_Escape);
    EXPECT_FALSE(Loaded());
}

TEST_F(Splash, ClosingItByTheWindowManagerUnloadsIt) {
    ASSERT_TRUE(run.Start());
    Show().close();
    EXPECT_FALSE(Loaded());
}

TEST_F(Splash, UnloadingItBringsUpTheFrame) {
    Show();
    EXPECT_FALSE(run.frame->isVisible());
    run.frame->LoadedForms().Unload<frmSplash>();
    EXPECT_TRUE(run.frame->isVisible());
}

TEST_F(Splash, FirstResizeOfTheFrameTakesItDown) {
    Show();
    ASSERT_TRUE(run.Start());
    EXPECT_FALSE(Loaded());
    EXPECT_TRUE(run.frame->isVisible());
}

} // namespace
