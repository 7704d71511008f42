#include "app/documents/RecentFiles.h"

#include "app/surface/MenuEntry.h"
#include "editor/frame/Document.h"

#include <QVariant>

namespace {

// The menu text doubles each "&", which would be a mnemonic; the path itself stands beside it.
constexpr char captionProperty[] = "Caption";

QAction* Entry(Frame& frame, int n) {
    return MenuEntry(frame, QStringLiteral("mnuFileArray_%1").arg(n));
}

void Write(QAction& entry, const QString& path) {
    entry.setProperty(captionProperty, path);
    QString shown = path;
    entry.setText(shown.replace(QLatin1Char('&'), QStringLiteral("&&")));
}

void ShowSeparator(Frame& frame) {
    if (QAction* separator = MenuEntry(frame, QStringLiteral("mnuSep10")))
        separator->setVisible(true);
}

} // namespace

namespace RecentFiles {

QString Caption(Frame& frame, int n) {
    const QAction* entry = Entry(frame, n);
    return entry ? entry->property(captionProperty).toString() : QString();
}

void SetCaption(Frame& frame, int n, const QString& path) {
    if (QAction* entry = Entry(frame, n)) {
        Write(*entry, path);
        entry->setVisible(!path.isEmpty());
    }
    if (n == 0 && !path.isEmpty())
        ShowSeparator(frame);
}

} // namespace RecentFiles

void AddToRecentFiles(Frame& frame) {
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    const QString path = document->Caption();
    for (int n = 0; n < RecentFiles::Count; ++n) {
        if (RecentFiles::Caption(frame, n) == path)
            return;
    }
    for (int n = RecentFiles::Count - 1; n > 0; --n)
        RecentFiles::SetCaption(frame, n, RecentFiles::Caption(frame, n - 1));
    RecentFiles::SetCaption(frame, 0, path);
}
