#include "app/events/Hand.h"

#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <QWheelEvent>

namespace {

constexpr int longPause = 1000;
constexpr int quick = 10;

int KeyOf(QChar c) {
    if (c == u'\r' || c == u'\n')
        return Qt::Key_Return;
    if (c == u'\t')
        return Qt::Key_Tab;
    return c.unicode() >= 0x20 && c.unicode() < 0x100 ? int(c.toUpper().unicode()) : int(Qt::Key_unknown);
}

bool HasKey(QChar c) {
    return c.unicode() < 0x100 && c != u'\n';
}

} // namespace

void Hand::Key(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    if (QGuiApplication::focusWindow())
        qt_handleKeyEvent(QGuiApplication::focusWindow(), QEvent::KeyPress, key, modifiers, text);
    if (QGuiApplication::focusWindow())
        qt_handleKeyEvent(QGuiApplication::focusWindow(), QEvent::KeyRelease, key, modifiers, text);
}

void Hand::Type(const QString& text) {
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text.at(at);
        if (HasKey(c)) {
            Key(KeyOf(c), c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, c);
            continue;
        }
        const qsizetype length = c.isHighSurrogate() ? 2 : 1;
        QInputMethodEvent event;
        event.setCommitString(text.mid(at, length));
        at += length - 1;
        if (QGuiApplication::focusObject())
            QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    }
}

void Hand::PointTo(QWidget& at, QPoint place) {
    QWidget* top = at.window();
    window_ = top->windowHandle();
    place_ = at.mapTo(top, place);
}

void Hand::Send(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    if (window_)
        qt_handleMouseEvent(window_, place_, window_->mapToGlobal(place_), button_, button, type, modifiers,
                            time_);
}

void Hand::Press(QWidget& at, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    MoveTo(at, place);
    time_ += longPause;
    button_ = button;
    Send(QEvent::MouseButtonPress, button, modifiers);
}

void Hand::MoveTo(QWidget& at, QPoint place) {
    PointTo(at, place);
    time_ += quick;
    Send(QEvent::MouseMove, Qt::NoButton, {});
}

void Hand::Release() {
    const Qt::MouseButton button = std::exchange(button_, Qt::NoButton);
    time_ += quick;
    if (button == Qt::NoButton)
        return;
    // Where its window is gone, the button comes up over another.
    if (!window_)
        window_ = QGuiApplication::topLevelWindows().value(0);
    Send(QEvent::MouseButtonRelease, button, {});
}

void Hand::Click(QWidget& at, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    Press(at, place, button, modifiers);
    Release();
}

void Hand::DoubleClick(QWidget& at, QPoint place) {
    Click(at, place, Qt::LeftButton);
    button_ = Qt::LeftButton;
    time_ += quick;
    Send(QEvent::MouseButtonPress, Qt::LeftButton, {});
    Release();
}

void Hand::Wheel(QWidget& at, QPoint place, int delta, Qt::KeyboardModifiers modifiers) {
    PointTo(at, place);
    if (!window_)
        return;
    QWheelEvent event(place_, window_->mapToGlobal(place_), {}, QPoint(0, delta), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window_, &event);
}

void Hand::Drop(QWidget& at, QPoint place, const QMimeData& data) {
    PointTo(at, place);
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    const auto send = [&](QDropEvent&& event) {
        if (window_)
            QCoreApplication::sendEvent(window_, &event);
    };
    send(QDragEnterEvent(place_.toPoint(), actions, &data, Qt::LeftButton, {}));
    send(QDragMoveEvent(place_.toPoint(), actions, &data, Qt::LeftButton, {}));
    send(QDropEvent(place_, actions, &data, Qt::LeftButton, {}));
}
