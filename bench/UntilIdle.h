// Work that goes on behind the call that asked for it: painting, and wrapping lines in turns of the event
// loop.
#pragma once

#include <ctime>
#include <QCoreApplication>

/// Runs the event loop until there is nothing left to do but to let the caret blink. The control does not say
/// when it has wrapped its last line, but a turn in which it wraps some takes its time.
inline void RunUntilIdle() {
    constexpr double nextToNothing = 1e-4;
    constexpr int turnsToBeSure = 20;
    const auto seconds = [] {
        timespec now = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
    };
    for (int quiet = 0; quiet < turnsToBeSure;) {
        const double before = seconds();
        QCoreApplication::processEvents();
        quiet = seconds() - before < nextToNothing ? quiet + 1 : 0;
    }
}
