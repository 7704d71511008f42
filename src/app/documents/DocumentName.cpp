#include "app/documents/DocumentName.h"

#include "app/documents/frmTemplate.h"
#include "platform/values/Path.h"

#include <QMdiArea>
#include <QSet>

namespace {

// The window remembers it.
constexpr char numberProperty[] = "UntitledNumber";

int NumberOf(const frmTemplate& document) {
    return document.property(numberProperty).toInt();
}

QList<frmTemplate*> Untitled(const QMdiArea& area) {
    QList<frmTemplate*> untitled;
    for (QMdiSubWindow* window : area.subWindowList())
        if (auto* document = qobject_cast<frmTemplate*>(window); document && document->Caption().isEmpty())
            untitled << document;
    return untitled;
}

/// Those that came since the last time get theirs, in the order in which they came.
void NumberUntitled(const QMdiArea& area) {
    const QList<frmTemplate*> untitled = Untitled(area);
    QSet<int> taken;
    for (const frmTemplate* document : untitled)
        taken << NumberOf(*document);
    int next = 1;
    for (frmTemplate* document : untitled) {
        if (NumberOf(*document) != 0)
            continue;
        while (taken.contains(next))
            ++next;
        document->setProperty(numberProperty, next++);
    }
}

} // namespace

QString DocumentName(const frmTemplate& document) {
    if (!document.Caption().isEmpty())
        return document.Caption();
    if (const QMdiArea* area = document.mdiArea())
        NumberUntitled(*area);
    return frmTemplate::tr("Untitled %1").arg(NumberOf(document));
}

QString FolderOf(const QString& path) {
    const QString folder = Path::Folder(path);
    return folder.size() > Path::RootLength(path) ? folder.chopped(1) : folder;
}
