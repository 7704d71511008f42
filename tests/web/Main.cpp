// main() of the engine's tests: like that of all others, but on a real display, with shared OpenGL contexts.
#include "support/FreshUser.h"

#include <gmock/gmock.h>
#include <QApplication>

int main(int argc, char** argv) {
    FreshUser();
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
