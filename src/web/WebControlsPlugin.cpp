#include "web/WebControlsPlugin.h"

#include "web/BrowserPane.h"
#include "web/DesignPane.h"
#include "web/Sandbox.h"

#include <QGuiApplication>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

/// The engine draws through shared OpenGL contexts, on a desktop; elsewhere it would end the program.
bool EngineCanRun() {
    const QString platform = QGuiApplication::platformName();
    return QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts) &&
           platform != QStringLiteral("offscreen") && platform != QStringLiteral("minimal");
}

} // namespace

WebControlsPlugin::WebControlsPlugin() {
#ifdef Q_OS_UNIX
    DoWithoutSandboxAsRoot(::geteuid());
#endif
}

DesignControl* WebControlsPlugin::MakeDesign(QWidget* parent) {
    return EngineCanRun() ? new DesignPane(parent) : nullptr;
}

BrowserControl* WebControlsPlugin::MakeBrowser(QWidget* parent) {
    return EngineCanRun() ? new BrowserPane(parent) : nullptr;
}
