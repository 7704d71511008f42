// The entries of menu and toolbar as actions, each tied to a command by its name.
#pragma once

#include <QString>

class CommandSet;
class QAction;
class QObject;
class QWidget;

/// An action of that name and caption, owned by parent. Triggering it runs the command of the same name.
QAction* MakeCommandAction(const QString& name, const QString& caption, CommandSet& commands,
                           QObject* parent);

/// Enables every such action below window whose command is there, and disables the others. Called once all
/// command sets are filled, and again when one is added.
void EnableCommands(QWidget& window, const CommandSet& commands);
