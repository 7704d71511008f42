#include "app/window/WindowChooser.h"

#include "app/window/WindowChooserList.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace {

/// The next one that isn't hidden, around the ends; null where there is no other.
QMdiSubWindow* NextShown(const QList<QMdiSubWindow*>& windows, QMdiSubWindow* from, int step) {
    const qsizetype count = windows.size();
    qsizetype at = windows.indexOf(from);
    for (qsizetype tried = 1; at >= 0 && tried < count; ++tried) {
        at = (at + step + count) % count;
        if (!windows[at]->isHidden())
            return windows[at];
    }
    return nullptr;
}

} // namespace

WindowChooser::WindowChooser(QMdiArea& area) : QObject(&area), area_(area) {
    moment_.setSingleShot(true);
    connect(&moment_, &QTimer::timeout, this, &WindowChooser::Show);
    // The area watches the whole application for these keys, and this has to come ahead of it.
    qApp->installEventFilter(this);
}

bool WindowChooser::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::WindowDeactivate && watched == area_.window())
        Close();
    if ((type != QEvent::KeyPress && type != QEvent::KeyRelease) || !watched->isWidgetType() ||
        !area_.isAncestorOf(static_cast<QWidget*>(watched)))
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (type == QEvent::KeyPress)
        return Pressed(key);
    Released(key);
    return false;
}

bool WindowChooser::Pressed(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_Control:
        if (!key.isAutoRepeat())
            moment_.start(QApplication::keyboardInputInterval());
        return false;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (!key.modifiers().testFlag(Qt::ControlModifier))
            return false;
        Choose(key.key() == Qt::Key_Tab ? 1 : -1);
        return true;
    case Qt::Key_Escape:
        Close();
        return false;
    default:
        return false;
    }
}

void WindowChooser::Released(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Control && (chosen_ || list_))
        Activate();
}

void WindowChooser::Choose(int step) {
    QMdiSubWindow* from = chosen_ ? chosen_.data() : area_.currentSubWindow();
    if (QMdiSubWindow* next = NextShown(area_.subWindowList(), from, step))
        chosen_ = next;
    if (!moment_.isActive())
        Show();
}

void WindowChooser::Show() {
    if (!chosen_)
        return;
    if (!list_) {
        for (QMdiSubWindow* window : area_.subWindowList(QMdiArea::StackingOrder))
            lay_ << window;
        list_ = new WindowChooserList(area_);
    }
    RaiseChosen();
    list_->Choose(*chosen_);
}

void WindowChooser::RaiseChosen() {
    PutBack();
    const QMdiSubWindow* active = area_.currentSubWindow();
    // Beside one that fills the area the others have the sizes that they had before, or none that one could
    // see.
    const QFlags<Qt::WindowState> ownSize =
        chosen_->windowState() & (Qt::WindowMaximized | Qt::WindowMinimized);
    if (active && active->isMaximized() && !ownSize) {
        enlarged_ = chosen_;
        place_ = chosen_->geometry();
        chosen_->setGeometry(area_.viewport()->rect());
    }
    chosen_->raise();
}

void WindowChooser::PutBack() {
    if (enlarged_)
        enlarged_->setGeometry(place_);
    enlarged_ = nullptr;
}

void WindowChooser::Close() {
    chosen_ = nullptr;
    if (!list_)
        return;
    delete list_;
    PutBack();
    for (const QPointer<QMdiSubWindow>& window : std::exchange(lay_, {}))
        if (window)
            window->raise();
}

void WindowChooser::Activate() {
    const QPointer<QMdiSubWindow> next = moment_.isActive() ? ActiveBefore() : chosen_.data();
    Close();
    if (next)
        area_.setActiveSubWindow(next);
}

QMdiSubWindow* WindowChooser::ActiveBefore() const {
    return NextShown(area_.subWindowList(QMdiArea::ActivationHistoryOrder), area_.currentSubWindow(), -1);
}
