// The program's own icons, drawn in the colours of the palette.
#pragma once

#include <QIcon>
#include <QString>

/// The drawing of that name in resources/icons. Its lines take the palette's button text colour at the moment
/// they are painted, or that of selected text where it is drawn on a selection, so it reads on light and dark
/// desktops; nothing is read or rendered before that.
QIcon LineIcon(const QString& name);

/// The icon of a toolbar button's key.
QIcon ToolbarIcon(const QString& key);

/// The program's icon.
QIcon ProgramIcon();
/// The same with a dot, for a document whose text changed.
QIcon ModifiedIcon();
