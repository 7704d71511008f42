#include "platform/desktop/EscapeKey.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

EscapeKey::EscapeKey(QWidget& window, QObject* parent) : QObject(parent), window_(window) {
    qApp->installEventFilter(this);
}

bool EscapeKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return QObject::eventFilter(watched, event);
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return false;
    if (const QWidget* active = QApplication::activeWindow(); active && active != &window_)
        return false;
    Q_EMIT Pressed();
    return true;
}
