#include "dialogs/ClickLabel.h"

#include <QMouseEvent>

void ClickLabel::SetForeColor(const QColor& color) {
    QPalette colored = palette();
    colored.setColor(QPalette::WindowText, color);
    setPalette(colored);
}

void ClickLabel::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    event->setAccepted(pressed_);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
    const bool click =
        pressed_ && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    pressed_ = false;
    if (click)
        emit Click();
}

void ClickLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    // The release that follows belongs to this event: it is no click of its own.
    pressed_ = false;
    if (event->button() == Qt::LeftButton)
        emit DblClick();
}
