// The Window menu: arranging the document windows, and the list of them at its end.
#pragma once

class CommandSet;
class Frame;
class QMdiArea;
class QMenu;

/// Registers mnuCascade, mnuTile and mnuArrangeIcons.
void FillWindowCommands(CommandSet& commands, QMdiArea& area);

/// Keeps the list of document windows at the end of the menu: it is made anew each time the menu drops.
void ListWindows(QMenu& mnuWindow, Frame& frame, QMdiArea& area);
