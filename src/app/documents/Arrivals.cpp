#include "app/documents/Arrivals.h"

#include "editor/frame/Frame.h"

#include <QApplication>

Arrivals::Arrivals(Frame& frame, QObject* parent) : QObject(parent), frame_(frame) {}

void Arrivals::Open(const QStringList& paths) {
    waiting_ += paths;
    if (opening_)
        return;
    opening_ = true;
    while (!waiting_.isEmpty() && !stopped_ && !QApplication::activeModalWidget()) {
        frame_.OpenDocumentFile(waiting_.takeFirst());
        QCoreApplication::processEvents();
    }
    opening_ = false;
}

void Arrivals::Resume() {
    if (!opening_)
        QMetaObject::invokeMethod(
            this, [this] { Open({}); }, Qt::QueuedConnection);
}
