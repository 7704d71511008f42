#include "app/surface/ShownTextMenu.h"

#include <QAction>
#include <QStyleOptionMenuItem>

namespace {

constexpr char shownProperty[] = "ShownText";

} // namespace

void ShownTextMenu::SetShownText(QAction& entry, const QString& text) {
    entry.setProperty(shownProperty, text);
}

void ShownTextMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* entry) const {
    QMenu::initStyleOption(option, entry);
    if (const QVariant shown = entry->property(shownProperty); shown.isValid())
        option->text = shown.toString();
}
