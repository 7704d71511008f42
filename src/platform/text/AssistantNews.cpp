#include "platform/text/AssistantNews.h"

#include <QAccessible>
#include <utility>

bool AssistantNews::Wanted() const {
    return hears || QAccessible::isActive();
}

void AssistantNews::Tell(QAccessibleEvent& event) const {
    if (hears)
        hears(event);
    else
        QAccessible::updateAccessibility(&event);
}

void AssistantNews::TellChanges() {
    for (const Change& change : std::exchange(changes_, {})) {
        if (change.inserted) {
            QAccessibleTextInsertEvent event(&control_, change.position, change.text);
            Tell(event);
        } else {
            QAccessibleTextRemoveEvent event(&control_, change.position, change.text);
            Tell(event);
        }
    }
}

void AssistantNews::TellCaret(int selStart, int selLength, int caret) {
    QAccessibleTextSelectionEvent selection(&control_, selStart, selStart + selLength);
    selection.setCursorPosition(caret);
    Tell(selection);
    QAccessibleTextCursorEvent moved(&control_, caret);
    Tell(moved);
}
