#include "platform/store/ProgramFolder.h"

#include "platform/values/Path.h"

#include <QDir>
#include <QStandardPaths>

namespace {

/// Makes a folder that only its user can look into; one that is there keeps its mode.
QString Ensure(const QString& folder) {
    QDir().mkpath(QFileInfo(folder).absolutePath());
    QDir().mkdir(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return folder;
}

QString PerUser(QStandardPaths::StandardLocation location) {
    return QStandardPaths::writableLocation(location) + QStringLiteral("/tarnwick");
}

} // namespace

QString ProgramFolder() {
    const QString chosen = qEnvironmentVariable("TARNWICK_HOME");
    const QString folder =
        chosen.isEmpty() ? PerUser(QStandardPaths::GenericDataLocation) : QDir(chosen).absolutePath();
    return QDir::toNativeSeparators(Ensure(folder));
}

QString SettingsFolder() {
    return QDir::toNativeSeparators(Ensure(PerUser(QStandardPaths::GenericConfigLocation)));
}

QString InProgramFolder(const QString& name) {
    return Path::Join(ProgramFolder(), name);
}
