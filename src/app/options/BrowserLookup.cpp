#include "app/options/BrowserLookup.h"

#include <QStandardPaths>

namespace BrowserLookup {

QString Find(const QStringList& folders) {
    // The user's own choice comes first, where the system knows one.
    static const char* const usual[] = {
        "x-www-browser", "sensible-browser", "firefox", "firefox-esr", "chromium", "google-chrome",
        "epiphany",      "konqueror",        "falkon",  "opera",       "msedge",   "xdg-open"};
    for (const char* name : usual) {
        const QString found = QStandardPaths::findExecutable(QString::fromLatin1(name), folders);
        if (!found.isEmpty())
            return found;
    }
    return QString();
}

} // namespace BrowserLookup
