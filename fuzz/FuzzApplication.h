// The application that a fuzz target of widgets needs.
#pragma once

#include "support/FreshUser.h"

#include <gtest/gtest.h>
#include <QApplication>

/// Starts the application at the first call, offscreen and with the settings of a fresh user; later calls do
/// nothing. It is never taken down: at the process's end Qt's own statics go before an application that is
/// one.
///
/// From then on a failure in what the tests lend, as a prompt that has no answer, is an exception that no one
/// catches: the run ends with it.
inline void StartFuzzApplication() {
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    [[maybe_unused]] static const QApplication* const application = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        FreshUser();
        GTEST_FLAG_SET(throw_on_failure, true);
        return new QApplication(argc, argv);
    }();
}
