// The program's own icons, drawn in the colours of the palette.
#pragma once

#include <QIcon>
#include <QString>

/// The icon of a toolbar button's key. Its lines take the palette's button text colour at the moment they are
/// painted, so it reads on light and dark desktops; nothing is read or rendered before that.
QIcon ToolbarIcon(const QString& key);

/// The program's icon.
QIcon ProgramIcon();
