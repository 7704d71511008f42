// Anything at any time: random events over every dialog, menu and box, and what they leave behind.
#include "app/events/RandomRounds.h"
#include "support/FakeWebControls.h"
#include "support/Text.h"

namespace {

/// The views that a display without an engine has: they note what is asked of them.
class RandomEvents : public RandomRounds {
  protected:
    RandomEvents() {
        views.load = [this] { return &fakes; };
    }

    FakeFactory fakes;
};

TEST_F(RandomEvents, LeaveNothingBehind) {
    Play({.events = 3000, .eventsOfARound = 1000, .firstSeed = 1, .moreRounds = 6});
    EXPECT_EQ(reached.MissedCommands(), QStringList());
    EXPECT_EQ(reached.MissedForms(), QStringList());
}

} // namespace
