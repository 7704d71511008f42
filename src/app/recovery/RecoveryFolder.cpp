#include "app/recovery/RecoveryFolder.h"

#include "platform/store/ProgramFolder.h"

#include <QDir>

QString RecoveryFolder() {
    return InProgramFolder(QStringLiteral("recovery"));
}

QString MakeRecoveryFolder() {
    const QString folder = RecoveryFolder();
    QDir().mkdir(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return folder;
}
