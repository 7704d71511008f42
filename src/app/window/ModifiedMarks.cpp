#include "app/window/ModifiedMarks.h"

#include "app/documents/DocumentPaths.h"
#include "app/documents/frmTemplate.h"
#include "app/window/DocumentTabs.h"
#include "app/window/OpenDocuments.h"
#include "dialogs/Icons.h"
#include "editor/frame/Frame.h"

#include <QMdiArea>
#include <utility>

ModifiedMarks::ModifiedMarks(Frame& frame, QMdiArea& area, OpenDocuments& documents, DocumentTabs& tabs)
    : QObject(&area), area_(area), tabs_(tabs) {
    // Every document becomes the active one as it is born.
    connect(&documents, &OpenDocuments::Activated, this, &ModifiedMarks::Follow);
    const auto& paths = frame.State<DocumentPaths>();
    connect(&paths, &DocumentPaths::Taken, this, &ModifiedMarks::Schedule);
    connect(&paths, &DocumentPaths::Left, this, &ModifiedMarks::Schedule);
}

void ModifiedMarks::Follow(frmTemplate& document) {
    connect(&document, &frmTemplate::ModifiedChanged, this, &ModifiedMarks::Schedule, Qt::UniqueConnection);
}

void ModifiedMarks::Schedule() {
    if (!std::exchange(scheduled_, true))
        QMetaObject::invokeMethod(this, &ModifiedMarks::Update, Qt::QueuedConnection);
}

void ModifiedMarks::Update() {
    scheduled_ = false;
    QStringList paths;
    for (QMdiSubWindow* window : area_.subWindowList())
        if (auto* document = qobject_cast<frmTemplate*>(window)) {
            Mark(*document);
            if (document->Modified())
                paths << document->Caption();
        }
    tabs_.SetMarked(paths);
}

void ModifiedMarks::Mark(frmTemplate& document) {
    const QString description = document.Modified() ? tr("Modified") : QString();
    if (document.accessibleDescription() == description)
        return;
    document.setAccessibleDescription(description);
    document.setWindowIcon(document.Modified() ? ModifiedIcon() : ProgramIcon());
}
