#include "app/run/StandingNotice.h"

#include "app/window/StatusPanels.h"

#include <QApplication>
#include <QEvent>

namespace {

bool IsAnAct(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::MouseButtonPress;
}

} // namespace

StandingNotice::StandingNotice(StatusBar& bar, const QString& text) : QObject(&bar), bar_(bar), text_(text) {
    bar_.SetPanel3(text_);
    // The application sees an event before anyone else does, and tells of a new focus when all have seen it.
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*before*/, const QWidget* now) { TellAgain(now); });
}

bool StandingNotice::eventFilter(QObject* watched, QEvent* event) {
    const bool overwritten =
        event->type() == QEvent::FocusIn && watched->isWidgetType() && bar_.Panel3() != text_;
    if (overwritten || IsAnAct(event->type()))
        End();
    return false;
}

void StandingNotice::TellAgain(const QWidget* focus) {
    if (focus)
        bar_.SetPanel3(text_);
}

void StandingNotice::End() {
    qApp->removeEventFilter(this);
    disconnect(qApp, nullptr, this, nullptr);
    deleteLater();
}
