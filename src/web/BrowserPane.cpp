// The browser control: shows a page's file and follows its links.
#include "web/BrowserPane.h"

#include <QFileInfo>
#include <QUrl>
#include <QWebEnginePage>

bool BrowserPane::Navigate(const QString& path) {
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isFile() || !file.isReadable())
        return false;
    if (!Page())
        ShowPage(std::make_unique<QWebEnginePage>(&Profile()));
    Page()->load(QUrl::fromLocalFile(file.absoluteFilePath()));
    return true;
}
