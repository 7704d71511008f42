// Buttons of windows that a box shuts out.
#include "app/RealFrame.h"

#include <QPushButton>

namespace {

class ReleaseButtons : public FrameTest {
  protected:
    ReleaseButtons() { EXPECT_TRUE(run.Start()); }
    ProgramRun run;
};

TEST_F(ReleaseButtons, StandUpAgainInEachWindow) {
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
TEST_F(ReleaseButtons, AKeysClickWaitsForTheEndOfTheBox) {
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

} // namespace
