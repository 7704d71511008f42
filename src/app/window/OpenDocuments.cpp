#include "app/window/OpenDocuments.h"

#include "app/documents/frmTemplate.h"
#include "platform/text/RichTextBox.h"

#include <QApplication>
#include <QMdiArea>

namespace {

frmTemplate* OpenOne(QWidget* window) {
    auto* document = qobject_cast<frmTemplate*>(window);
    return document && document->IsOpen() ? document : nullptr;
}

} // namespace

OpenDocuments::OpenDocuments(QMdiArea& area, QObject* parent) : QObject(parent), area_(area) {
    connect(&area, &QMdiArea::subWindowActivated, this, &OpenDocuments::Follow);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        for (; now; now = now->parentWidget())
            Follow(now);
    });
}

void OpenDocuments::Follow(QWidget* widget) {
    frmTemplate* document = OpenOne(widget);
    if (!document || document == latest_ || document->mdiArea() != &area_)
        return;
    latest_ = document;
    Q_EMIT Activated(*document);
}

frmTemplate* OpenDocuments::Active() const {
    if (latest_ && latest_->IsOpen())
        return latest_;
    const QList<QMdiSubWindow*> windows = area_.subWindowList(QMdiArea::ActivationHistoryOrder);
    for (auto window = windows.rbegin(); window != windows.rend(); ++window)
        if (frmTemplate* document = OpenOne(*window))
            return document;
    return nullptr;
}

QList<frmTemplate*> OpenDocuments::All() const {
    QList<frmTemplate*> all;
    for (QMdiSubWindow* window : area_.subWindowList(QMdiArea::CreationOrder))
        if (frmTemplate* document = OpenOne(window))
            all << document;
    return all;
}

void OpenDocuments::Activate(Document& document) {
    frmTemplate* window = OpenOne(&document.Window());
    if (!window)
        return;
    area_.setActiveSubWindow(window);
    // Also where the area takes it for the active one already, and doesn't tell.
    Follow(window);
}

void OpenDocuments::FocusText() {
    frmTemplate* document = Active();
    if (document && !document->txtInput().isHidden())
        document->txtInput().SetFocus();
}

void OpenDocuments::FocusView() {
    if (frmTemplate* document = Active())
        document->FocusFront(Qt::TabFocusReason);
}

void OpenDocuments::Wake() {
    frmTemplate* document = Active();
    if (document && area_.activeSubWindow() != document)
        area_.setActiveSubWindow(document);
    if (area_.isActiveWindow())
        FocusText();
}
