// Rounds of random events, each on a fresh user's folders, and what must hold behind each and all of them.
//
// TARNWICK_EVENTS=100000 plays as many; TARNWICK_SEED=n begins with the round of that seed, which is how a
// failure is had again. TARNWICK_EVENT_LOG names a file that takes every event.
#pragma once

#include "app/events/Census.h"
#include "app/events/RandomUser.h"
#include "app/events/Reached.h"
#include "app/events/Warnings.h"

#include <gtest/gtest.h>
#include <QList>
#include <QSet>

class RandomRounds : public testing::Test {
  protected:
    struct Length {
        int events;
        int eventsOfARound;
        quint64 firstSeed;
        /// So many more at most, for as long as a form or a command is missed.
        int moreRounds = 0;
    };

    /// Plays all rounds, with real boxes and with answered prompts by turns, then the first once more:
    /// nothing may be there that was not there before it. Longer runs must not hold more of anything in the
    /// end, either.
    void Play(Length length);

    LivingObjects living;
    Warnings warnings;
    Reached reached;
    RandomUser::Views views;

  private:
    void Round(quint64 seed, int events);
    void ExpectNoGrowth() const;

    QList<Census> behind_;
    QSet<QString> asked_;
    int played_ = 0;
    double dearest_ = 0;
};
