#include "tools/upload/UploadClient.h"

#include "platform/desktop/StartProgram.h"
#include "platform/store/ProgramFolder.h"
#include "platform/store/WholeFile.h"

#include <QCoreApplication>
#include <QFile>

namespace {

/// An old script, and how it may be read, are gone first: its password was for another upload.
bool WriteScript(const QByteArray& script) {
    const QString path = UploadScriptPath();
    QFile::remove(path);
    return WholeFile::Write(path, script, WholeFile::Readers::TheUserAlone);
}

} // namespace

QString UploadClientProgram() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/tarnwick-ftp");
}

QString UploadScriptPath() {
    return ProgramFolder() + QStringLiteral("/send.out");
}

QStringList UploadCommandLine(const QString& server) {
    return QStringList{QStringLiteral("-s:") + UploadScriptPath()} +
           server.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

UploadError StartUpload(const QString& client, const QByteArray& script, const QString& server) {
    const bool written = WriteScript(script);
    if (!StartProgram(client, UploadCommandLine(server)))
        return UploadError::NoClient;
    return written ? UploadError::None : UploadError::ScriptNotWritten;
}
