#include "platform/desktop/Asker.h"

#include <QApplication>
#include <QWindow>

namespace {

bool Belongs(const QWidget* window, const QWidget* owner) {
    while (window && window != owner)
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    return window != nullptr;
}

} // namespace

LastAsker::LastAsker() {
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &context_, [this](const QWindow* window) {
        if (window)
            window_.clear();
    });
}

QWidget* LastAsker::ActiveWindow() const {
    // The box that has just gone may count as active for as long as the desktop has not said otherwise.
    QWidget* active = QApplication::activeWindow();
    if (!active || !active->isVisible())
        active = window_;
    return active && active->isVisible() ? active : nullptr;
}

Asker::Asker(QWidget* owner, LastAsker& last) : window_(owner ? owner->window() : nullptr), last_(last) {
    if (QWidget* active = last.ActiveWindow(); active && Belongs(active, window_))
        window_ = active;
}

Asker::~Asker() {
    // Activating a minimised window would open it.
    if (!window_ || !window_->isVisible() || window_->isMinimized())
        return;
    last_.Remember(window_);
    window_->activateWindow();
}
