// Keeps the scripts of pages away from the user's files.
#include "web/FileGuard.h"

#include <QDir>
#include <QFileInfo>

bool FileGuard::LiesBeside(const QString& page, const QString& file) {
    const QString way = QFileInfo(page).dir().relativeFilePath(QDir::cleanPath(file));
    // The way up is "..", a hidden file or folder begins with a dot as well; another drive has no way at all.
    return !QDir::isAbsolutePath(way) && !way.startsWith(u'.') && !way.contains(QStringLiteral("/."));
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
        request.block(!LiesBeside(request.firstPartyUrl().toLocalFile(), request.requestUrl().toLocalFile()));
        break;
    default:
        break;
    }
}
