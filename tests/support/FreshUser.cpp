// The settings and program folder of a user who never ran the program.
#include "support/FreshUser.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

QTemporaryDir& Root() {
    static QTemporaryDir root;
    return root;
}

} // namespace

void FreshUser() {
    for (const char* name : {"config", "data", "runtime", "home", "files"}) {
        const QString path = Root().filePath(QString::fromLatin1(name));
        QDir(path).removeRecursively();
        QDir().mkpath(path);
    }
    QFile::setPermissions(Root().filePath(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const auto set = [](const char* variable, const char* name) {
        qputenv(variable, QFile::encodeName(Root().filePath(QString::fromLatin1(name))));
    };
    set("XDG_CONFIG_HOME", "config");
    set("XDG_DATA_HOME", "data");
    set("XDG_RUNTIME_DIR", "runtime");
    set("TARNWICK_HOME", "home");
}

QString TestFolder() {
    return Root().filePath(QStringLiteral("files"));
}
