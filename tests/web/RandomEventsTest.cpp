// Random events as in the offscreen tests, with the engine's own views on a display with a window manager.
#include "app/events/RandomRounds.h"
#include "app/run/WebPlugin.h"
#include "web/WatchedViews.h"

#include <QProcess>

namespace {

class RandomEventsInViews : public RandomRounds {
  protected:
    RandomEventsInViews() {
        manager.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
        EXPECT_TRUE(manager.waitForStarted());
        views.load = [this] { return &watched; };
        views.isBusy = [this] { return watched.Saving(); };
        views.isLoading = &WatchedViews::Loading;
    }
    ~RandomEventsInViews() override {
        manager.terminate();
        manager.waitForFinished();
    }

    QProcess manager;
    WatchedViews watched{*LoadWebPlugin({QStringLiteral(TARNWICK_PLUGIN_FOLDER)})};
};

TEST_F(RandomEventsInViews, LeaveNothingBehind) {
    Play({.events = 600, .eventsOfARound = 300, .firstSeed = 1});
    EXPECT_TRUE(reached.Forms().contains(QStringLiteral("DesignPane")));
    EXPECT_TRUE(reached.Forms().contains(QStringLiteral("BrowserPane")));
}

} // namespace
