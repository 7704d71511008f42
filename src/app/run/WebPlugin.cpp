#include "app/run/WebPlugin.h"

#include "editor/views/WebControls.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

QStringList WebPluginFolders() {
    const QDir program(QCoreApplication::applicationDirPath());
    return {program.path(), QDir::cleanPath(program.filePath(QStringLiteral("../lib/tarnwick/plugins")))};
}

WebControlsFactory* LoadWebPlugin(const QStringList& folders) {
    for (const QString& folder : folders) {
        // The loader adds the system's own ending of plugins.
        QPluginLoader loader(QDir(folder).filePath(QStringLiteral("tarnwick_web")));
        loader.setLoadHints(QLibrary::PreventUnloadHint);
        if (auto* factory = qobject_cast<WebControlsFactory*>(loader.instance()))
            return factory;
    }
    return nullptr;
}

void UseWebPlugin(WebControls& controls) {
    controls.Load = [] { return LoadWebPlugin(WebPluginFolders()); };
}
