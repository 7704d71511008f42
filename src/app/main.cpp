// The program: one frame, one copy for each user, one event loop.
#include "app/DisplayGuard.h"
#include "app/frmTarnwick.h"
#include "app/RunProgram.h"
#include "app/SingleInstance.h"
#include "app/TerminalAnswer.h"
#include "app/WindowButtonStyle.h"
#include "platform/CommandLine.h"
#include "platform/DesktopPrompts.h"
#include "platform/Settings.h"

#include <cstdio>
#include <optional>
#include <QApplication>
#include <QDir>

namespace {

void NameTheApplication() {
    QCoreApplication::setApplicationName(QStringLiteral("tarnwick"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tarnwick"));
    // The frame ends the process when it is unloaded; no other window does.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

} // namespace

int main(int argc, char* argv[]) {
    if (const std::string answer = TerminalAnswer(argc, argv); !answer.empty()) {
        std::fputs(answer.c_str(), stdout);
        return 0;
    }
    // The browser view is loaded later, when it is first asked for, and needs this from the start.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    std::optional<DisplayGuard> guard(std::in_place);
    QApplication application(argc, argv);
    guard.reset();
    QApplication::setStyle(new WindowButtonStyle);
    NameTheApplication();

    Settings store;
    DesktopPrompts ask;
    SingleInstance instance;
    frmTarnwick frame(store, ask);
    const QString commandLine = CommandLine(QCoreApplication::arguments().mid(1), QDir::currentPath());
    return RunProgram(frame, instance, commandLine);
}
