// main() of every test binary: one application, offscreen unless told otherwise, and a user of its own.
#include "support/FreshUser.h"

#include <gmock/gmock.h>
#include <QApplication>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    FreshUser();
    QApplication application(argc, argv);
    // As in the program. Otherwise the last window that a test closes ends every event loop of the tests
    // behind it.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
