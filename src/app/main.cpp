// The program: one frame, one copy for each user, one event loop.
#include "app/documents/DialogFolders.h"
#include "app/run/DisplayGuard.h"
#include "app/run/RunProgram.h"
#include "app/run/SingleInstance.h"
#include "app/run/TerminalAnswer.h"
#include "app/window/frmTarnwick.h"
#include "app/window/WindowButtonStyle.h"
#include "platform/desktop/CommandLine.h"
#include "platform/desktop/DesktopPrompts.h"
#include "platform/store/Settings.h"

#include <cstdio>
#include <optional>
#include <QApplication>
#include <QDir>

namespace {

void NameTheApplication() {
    QCoreApplication::setApplicationName(QStringLiteral("tarnwick"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tarnwick.editor"));
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
    ask.folders = [&frame] { return DialogFolders(frame); };
    ask.wide = [&store] { return store.ReadFlag(Keys::WideBoxes); };
    const QString commandLine = CommandLine(QCoreApplication::arguments().mid(1), QDir::currentPath());
    return RunProgram(frame, instance, commandLine);
}
