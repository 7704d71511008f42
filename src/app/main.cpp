// The program: one frame, one copy for each user, one event loop.
#include "app/frmSplash.h"
#include "app/frmTarnwick.h"
#include "app/Icons.h"
#include "app/SingleInstance.h"
#include "app/Startup.h"
#include "app/TerminalAnswer.h"
#include "platform/CommandLine.h"
#include "platform/DesktopPrompts.h"
#include "platform/Settings.h"

#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QSessionManager>

namespace {

void NameTheApplication() {
    QCoreApplication::setApplicationName(QStringLiteral("tarnwick"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tarnwick"));
    // The frame ends the process when it is unloaded; no other window does.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

// At the end of the session the documents ask as they do when the frame closes, as long as the session lets
// them.
void AskAtSessionEnd(frmTarnwick& frame, QSessionManager& session) {
    if (!session.allowsInteraction())
        return;
    if (!frame.close())
        session.cancel();
    session.release();
}

void ConnectFrame(frmTarnwick& frame, SingleInstance& instance) {
    QObject::connect(&frame, &frmTarnwick::Stopped, qApp, &QCoreApplication::quit);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &frame,
                     [&frame](QSessionManager& session) { AskAtSessionEnd(frame, session); });
    QObject::connect(&instance, &SingleInstance::Arrived, &frame, [&frame](const QString& commandLine) {
        frame.ComeToFront();
        if (!commandLine.isEmpty())
            frame.OpenArrivals({commandLine});
    });
}

/// The start screen is only looked at: it must not take the focus, which the document needs when the frame is up.
void ShowStartScreen(frmTarnwick& frame) {
    auto& splash = frame.LoadedForms().Load<frmSplash>(QStringLiteral("frmSplash"), frame);
    splash.setAttribute(Qt::WA_ShowWithoutActivating);
    splash.setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    splash.show();
}

} // namespace

int main(int argc, char* argv[]) {
    if (const std::string answer = TerminalAnswer(argc, argv); !answer.empty()) {
        std::fputs(answer.c_str(), stdout);
        return 0;
    }
    // The browser view is loaded later, when it is first asked for, and needs this from the start.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    NameTheApplication();

    Settings store;
    DesktopPrompts ask;
    SingleInstance instance;
    frmTarnwick frame(store, ask);
    const QString commandLine = CommandLine(QCoreApplication::arguments().mid(1), QDir::currentPath());
    Startup startup(frame, commandLine, [&] { return !instance.IsFirst(); });
    if (instance.IsFirst()) {
        QApplication::setWindowIcon(ProgramIcon());
        ShowStartScreen(frame);
    }
    if (!startup.Run()) {
        instance.HandOver(commandLine);
        return 0;
    }
    ConnectFrame(frame, instance);
    frame.show();
    return QApplication::exec();
}
