// Windows that a box shuts out.
#include "app/RealFrame.h"

#include <QPushButton>

namespace {

class ShutOut : public FrameTest {
  protected:
    ShutOut() { EXPECT_TRUE(run.Start()); }
    ProgramRun run;
};

TEST_F(ShutOut, ButtonsStandUpAgainInEachWindow) {
    QDialog form(run.frame.get());
    QPushButton inForm(&form);
    QPushButton inFrame(run.frame.get());
    form.show();
    inForm.setDown(true);
    inFrame.setDown(true);
    QDialog box(&form);
    box.open();
    EXPECT_FALSE(inForm.isDown());
    EXPECT_FALSE(inFrame.isDown());
}

// By its key a button is pressed for a moment, and a box may come up meanwhile: a form that closed then would
// take away the box that it owns, and who waits for the box's answer.
TEST_F(ShutOut, AKeysClickWaitsForTheEndOfTheBox) {
    QDialog form(run.frame.get());
    QPushButton cancel(&form);
    int clicks = 0;
    QObject::connect(&cancel, &QPushButton::clicked, &cancel, [&] { ++clicks; });
    form.show();
    QDialog box(&form);
    QPushButton ok(&box);
    int clicksByThen = -1;
    QObject::connect(&ok, &QPushButton::clicked, &box, [&] {
        clicksByThen = clicks;
        box.accept();
    });
    cancel.animateClick();
    // Pressed later, it comes up later.
    ok.animateClick();
    box.exec();
    EXPECT_EQ(clicksByThen, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clicks == 1; }));
}

// The desktop may take its time to make a box active, and keys still go to the window that was. Closed under
// it, the document would be missed by who asked.
TEST_F(ShutOut, ShortcutsDoNothing) {
    run.New();
    QDialog box(run.frame.get());
    box.setModal(true);
    box.setAttribute(Qt::WA_ShowWithoutActivating);
    box.show();
    run.frame->activateWindow();
    ASSERT_EQ(QApplication::activeWindow(), run.frame.get());
    const auto documents = [this] { return run.frame->Area().subWindowList().size(); };
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_W, Qt::Key_F4})
        QTest::keyClick(run.frame->windowHandle(), key, Qt::ControlModifier);
    EXPECT_EQ(documents(), 1);
    box.close();
    QTest::keyClick(run.frame->windowHandle(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(documents(), 2);
}

} // namespace
