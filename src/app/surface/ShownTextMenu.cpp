#include "app/surface/ShownTextMenu.h"

#include "app/surface/ShownTextEntry.h"

#include <QStyleOptionMenuItem>

void ShownTextMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* entry) const {
    QMenu::initStyleOption(option, entry);
    if (const auto* shown = qobject_cast<const ShownTextEntry*>(entry))
        option->text = shown->Shown();
}
