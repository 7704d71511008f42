#include "app/window/FrameFocus.h"

#include "app/documents/EncodingNote.h"
#include "app/documents/frmTemplate.h"
#include "app/window/OpenDocuments.h"
#include "editor/frame/Frame.h"

#include <QGuiApplication>
#include <QMdiArea>
#include <QMenu>
#include <QMouseEvent>

FrameFocus::FrameFocus(Frame& frame, QMdiArea& area, OpenDocuments& documents)
    : QObject(frame.Window()), frame_(frame), area_(area), documents_(documents) {
    frame_.Window()->installEventFilter(this);
    area_.viewport()->installEventFilter(this);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (activationHook_ && state == Qt::ApplicationActive)
            FocusDocument();
    });
}

void FrameFocus::FocusDocument() {
    documents_.FocusText();
}

void FrameFocus::FocusForm(QWidget& form) {
    auto* document = qobject_cast<frmTemplate*>(&form);
    if (!document) {
        form.raise();
        form.activateWindow();
        return;
    }
    if (document->isMinimized())
        document->showNormal();
    frame_.ActivateDocument(*document);
    FocusDocument();
}

void FrameFocus::FrameActivated() {
    // Who comes back from a dialog comes back to the document: it takes the background just chosen.
    if (frmTemplate* document = documents_.Active())
        document->TakeBackground();
    FocusDocument();
    // A document that was opened before the frame was on the screen is none of the area's active ones yet,
    // and the area wakes up behind this event.
    QMetaObject::invokeMethod(&documents_, &OpenDocuments::Wake, Qt::QueuedConnection);
    // The text gets the focus behind this event, and tells its line then.
    QMetaObject::invokeMethod(this, &FrameFocus::TellDocument, Qt::QueuedConnection);
}

void FrameFocus::TellDocument() {
    if (const frmTemplate* document = documents_.Active())
        TellEncoding(frame_, *document);
}

void FrameFocus::AreaReleased(const QMouseEvent& release) {
    if (release.button() == Qt::RightButton)
        frame_.Window()
            ->findChild<QMenu*>(QStringLiteral("mnuFile"))
            ->popup(release.globalPosition().toPoint());
}

bool FrameFocus::eventFilter(QObject* watched, QEvent* event) {
    const bool inArea = watched == area_.viewport();
    if (event->type() == QEvent::WindowActivate && !inArea)
        FrameActivated();
    if (event->type() == QEvent::MouseButtonPress)
        FocusDocument();
    if (event->type() == QEvent::MouseButtonRelease && inArea)
        AreaReleased(static_cast<const QMouseEvent&>(*event));
    return QObject::eventFilter(watched, event);
}
