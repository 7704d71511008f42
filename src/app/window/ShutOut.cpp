#include "app/window/ShutOut.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

namespace {

/// A window that belongs to the modal one, at any depth, is free.
bool IsBlocked(const QWidget* widget) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal || !widget)
        return false;
    const QWidget* window = widget->window();
    while (window && window != modal)
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    return !window;
}

/// Actions and shortcuts belong to the window of the control that has them.
const QWidget* ControlOf(const QObject* object) {
    while (object && !object->isWidgetType())
        object = object->parent();
    return static_cast<const QWidget*>(object);
}

class Watch final : public QObject {
  public:
    explicit Watch(QWidget& window) : QObject(&window), window_(window) { qApp->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        // The timer goes on, so that the click comes with its first turn behind the box.
        if (event->type() == QEvent::Timer)
            return IsBlocked(qobject_cast<QAbstractButton*>(watched));
        if (event->type() == QEvent::Shortcut)
            return IsBlocked(ControlOf(watched));
        if (event->type() == QEvent::WindowBlocked && watched == &window_)
            for (QAbstractButton* button : window_.findChildren<QAbstractButton*>())
                button->setDown(false);
        return false;
    }

  private:
    QWidget& window_;
};

} // namespace

void KeepShutOutWindowsStill(QWidget& window) {
    new Watch(window);
}
