#include "dialogs/FieldFrame.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

QWidget* FieldFrame::Field() const {
    // An edit box within a combo box is no child of the frame's own.
    if (auto* edit = findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly))
        return edit;
    return findChild<QComboBox*>(QString(), Qt::FindDirectChildrenOnly);
}

bool FieldFrame::event(QEvent* event) {
    QWidget* const field = event->type() == QEvent::Shortcut ? Field() : nullptr;
    if (!field)
        return QGroupBox::event(event);
    field->setFocus(Qt::ShortcutFocusReason);
    return true;
}
