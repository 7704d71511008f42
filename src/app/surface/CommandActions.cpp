#include "app/surface/CommandActions.h"

#include "editor/frame/Commands.h"

#include <QAction>
#include <QWidget>

namespace {

// Marks the actions that stand for a command; the frame has others (the list of open documents).
constexpr char isCommand[] = "isCommand";

} // namespace

QAction* MakeCommandAction(const QString& name, const QString& caption, CommandSet& commands,
                           QObject* parent) {
    auto* action = new QAction(caption, parent);
    action->setObjectName(name);
    // Captions such as "&Options..." must not be taken for an application menu's entries.
    action->setMenuRole(QAction::NoRole);
    action->setProperty(isCommand, true);
    QObject::connect(action, &QAction::triggered, action, [&commands, name] { commands.Run(name); });
    return action;
}

void EnableCommands(QWidget& window, const CommandSet& commands) {
    const auto actions = window.findChildren<QAction*>();
    for (QAction* action : actions)
        if (action->property(isCommand).toBool())
            action->setEnabled(commands.Has(action->objectName()));
}
