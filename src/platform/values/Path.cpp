#include "platform/values/Path.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

bool HasDrive(const QString& path) {
    return path.size() >= 2 && path[0].isLetter() && path[1] == u':';
}

} // namespace

namespace Path {

QChar Separator(const QString& path) {
    if (path.startsWith(u'/'))
        return u'/';
    if (path.contains(u'\\'))
        return u'\\';
    return QDir::separator();
}

int RootLength(const QString& path) {
    if (path.startsWith(u'/'))
        return 1;
    return HasDrive(path) && path.size() >= 3 && path[2] == u'\\' ? 3 : 0;
}

QString FileName(const QString& path) {
    return path.mid(path.lastIndexOf(Separator(path)) + 1);
}

QString Folder(const QString& path) {
    return path.left(path.lastIndexOf(Separator(path)) + 1);
}

QString Join(const QString& folder, const QString& name) {
    const QChar separator = Separator(folder);
    if (folder.isEmpty() || folder.endsWith(separator))
        return folder + name;
    return folder + separator + name;
}

QString NameOnDisk(const QString& path) {
    const QFileInfo info(path);
    return !path.isEmpty() && info.exists() ? FindName(info.absolutePath(), info.fileName()) : QString();
}

QString FindName(const QString& folder, const QString& name) {
    if (name.isEmpty())
        return {};
#if !defined(Q_OS_WIN) && !defined(Q_OS_MACOS)
    // Where case counts, a name that is there is spelled right: no need to read the whole folder.
    if (QFileInfo::exists(QDir(folder).filePath(name)))
        return name;
#endif
    QString anyCase;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString entry = entries.fileName();
        if (entry == name)
            return entry;
        // Of several that differ in case alone the first in order, whatever order the folder is read in.
        if (entry.compare(name, Qt::CaseInsensitive) == 0 && (anyCase.isEmpty() || entry < anyCase))
            anyCase = entry;
    }
    return anyCase;
}

} // namespace Path
