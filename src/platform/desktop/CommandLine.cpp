#include "platform/desktop/CommandLine.h"

#include <QDir>
#include <QFileInfo>

QString CommandLine(const QStringList& arguments, const QString& workingFolder) {
    const QString whole = arguments.join(u' ');
    if (QDir::isAbsolutePath(whole))
        return whole;
    // A shell hands over names relative to where it stands; documents are known by their full path.
    const QString full = QDir::cleanPath(QDir(workingFolder).absoluteFilePath(whole));
    return QFileInfo(full).isFile() ? QDir::toNativeSeparators(full) : whole;
}
