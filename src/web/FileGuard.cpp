#include "web/FileGuard.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// The folder that the addresses of a page and a file have in common.
QString CommonFolder(const QString& page, const QString& file) {
    QString folder = QFileInfo(page).path();
    while (QDir(folder).relativeFilePath(file).startsWith(QStringLiteral("../")) &&
           !QFileInfo(folder).isRoot())
        folder = QFileInfo(folder).path();
    return folder;
}

/// Whether a resolved way leads down only, and past nothing that is hidden. The way up is "..", a hidden file
/// or folder begins with a dot as well; another drive has no way at all.
bool LeadsDown(const QString& way) {
    return !QDir::isAbsolutePath(way) && !way.startsWith(u'.') && !way.contains(QStringLiteral("/."));
}

} // namespace

bool FileGuard::MayShow(const QString& page, const QString& file) {
    const QString address = QDir::cleanPath(file);
    const QFileInfo shown(address);
    if (page.isEmpty() || !shown.isFile())
        return false;
    const QDir common(QFileInfo(CommonFolder(QDir::cleanPath(page), address)).canonicalFilePath());
    return LeadsDown(common.relativeFilePath(shown.canonicalFilePath()));
}

void FileGuard::interceptRequest(QWebEngineUrlRequestInfo& request) {
    if (!request.requestUrl().isLocalFile())
        return;
    switch (request.resourceType()) {
    case QWebEngineUrlRequestInfo::ResourceTypeXhr:
        request.block(true);
        break;
    case QWebEngineUrlRequestInfo::ResourceTypeSubFrame:
    case QWebEngineUrlRequestInfo::ResourceTypeObject:
    case QWebEngineUrlRequestInfo::ResourceTypePluginResource:
        request.block(!MayShow(request.firstPartyUrl().toLocalFile(), request.requestUrl().toLocalFile()));
        break;
    default:
        break;
    }
}
