// The settings and program folder of a user who never ran the program.
#include "support/FreshUser.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

QTemporaryDir& Root() {
    static QTemporaryDir root;
    return root;
}

/// A folder for the settings that none has used before. QSettings remembers by its path what a file could not
/// take: the next user would find it there.
void FreshSettings() {
    static int users = 0;
    const auto path = [] { return Root().filePath(QStringLiteral("config%1").arg(users)); };
    QDir(path()).removeRecursively();
    ++users;
    QDir().mkpath(path());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(path()));
}

} // namespace

void FreshUser() {
    FreshSettings();
    for (const char* name : {"data", "runtime", "home", "files"}) {
        const QString path = Root().filePath(QString::fromLatin1(name));
        QDir(path).removeRecursively();
        QDir().mkpath(path);
    }
    QFile::setPermissions(Root().filePath(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const auto set = [](const char* variable, const char* name) {
        qputenv(variable, QFile::encodeName(Root().filePath(QString::fromLatin1(name))));
    };
    set("XDG_DATA_HOME", "data");
    set("XDG_RUNTIME_DIR", "runtime");
    set("TARNWICK_HOME", "home");
}

QString TestFolder() {
    return Root().filePath(QStringLiteral("files"));
}
