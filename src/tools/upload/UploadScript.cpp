#include "tools/upload/UploadScript.h"

#include "platform/values/Cp1252.h"
#include "platform/values/Path.h"

namespace {

QByteArray Line(QString text) {
    // A name with a line end would become a command.
    text.removeIf([](QChar c) { return c == u'\r' || c == u'\n' || c == u'\0'; });
    return (Cp1252::Holds(text) ? Cp1252::ToBytes(text) : text.toUtf8()) + "\r\n";
}

/// The plain name of a file as the disk has it; empty where there is none. Padding is no part of it.
QString PlainName(QString path) {
    while (path.endsWith(u' '))
        path.chop(1);
    return Path::NameOnDisk(path);
}

} // namespace

QByteArray UploadScript(const Upload& upload) {
    QByteArray script = Line(upload.user) + Line(upload.password);
    if (!upload.folder.isEmpty())
        script += Line(QStringLiteral("cd ") + upload.folder);
    script += Line(QStringLiteral("hash"));
    script += Line(upload.ascii ? QStringLiteral("ascii") : QStringLiteral("bin"));
    for (const QString& file : upload.files)
        script += Line(QStringLiteral("put \"") + file + QStringLiteral("\" ") + PlainName(file));
    return script + Line(QStringLiteral("ls"));
}
