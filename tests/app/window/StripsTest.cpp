// The frame's strips as they stand on the screen, in the first start and those that follow it.
#include "app/RealFrame.h"
#include "app/window/DocumentTabs.h"

#include <QMenuBar>
#include <QStatusBar>

namespace {

struct Look {
    bool maximised, userButtons, modes;
};

class Strips : public FrameTest, public testing::WithParamInterface<Look> {
  protected:
    Strips() {
        Write(Keys::UseMSIE, GetParam().modes ? "1" : "0");
        Write(Keys::ShowUserButtons, GetParam().userButtons ? "1" : "0");
    }
    /// All that are to be seen, from top to bottom.
    static QList<QWidget*> Shown(ProgramRun& run) {
        QList<QWidget*> strips = {run.frame->menuBar(), &run.Find<QWidget>("Picture3")};
        if (GetParam().userButtons)
            strips << &run.Find<QWidget>("Picture2");
        strips << &run.frame->TabStrip2() << &run.frame->Area();
        if (GetParam().modes)
            strips << &run.Find<QWidget>("TabStrip3");
        return strips << run.frame->statusBar();
    }
    static void ExpectEachInItsPlace(ProgramRun& run) {
        int above = 0;
        for (QWidget* strip : Shown(run)) {
            SCOPED_TRACE(strip->objectName().toStdString() + strip->metaObject()->className());
            const QRect place(strip->mapTo(run.frame.get(), QPoint()), strip->size());
            EXPECT_TRUE(strip->isVisible());
            EXPECT_GE(place.height(), 15);
            EXPECT_TRUE(strip == &run.frame->Area() || place.height() >= strip->minimumSizeHint().height());
            EXPECT_GE(place.top(), above);
            EXPECT_TRUE(run.frame->rect().contains(place));
            above = place.bottom() + 1;
        }
    }
};

TEST_P(Strips, EachHasItsHeightInEveryStart) {
    const QString path = MakeFile(QStringLiteral("a.htm"), "<P>a");
    for (int start = 1; start <= 3; ++start) {
        SCOPED_TRACE(start);
        ProgramRun run;
        ASSERT_TRUE(run.Start(path));
        run.frame->setWindowState(GetParam().maximised ? Qt::WindowMaximized : Qt::WindowNoState);
        QCoreApplication::processEvents();
        ExpectEachInItsPlace(run);
        ASSERT_TRUE(run.Stop());
        // A run that ends in the normal state leaves a place for the next.
        Write(Keys::MainFormWidth, "12000");
        Write(Keys::MainFormHeight, "9000");
    }
}

TEST_P(Strips, TabsComeWithTheFirstDocumentAndGoWithTheLast) {
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    const auto stands = [&run] { return run.frame->TabStrip2().height() >= 15; };
    EXPECT_FALSE(stands());
    run.frame->OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "a"));
    EXPECT_TRUE(QTest::qWaitFor(stands));
    ExpectEachInItsPlace(run);
    EXPECT_TRUE(run.Active().Unload());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !stands(); }));
}

INSTANTIATE_TEST_SUITE_P(OnTheScreen, Strips,
                         testing::Values(Look{.maximised = false, .userButtons = false, .modes = false},
                                         Look{.maximised = false, .userButtons = true, .modes = true},
                                         Look{.maximised = true, .userButtons = false, .modes = true},
                                         Look{.maximised = true, .userButtons = true, .modes = false}));

} // namespace
