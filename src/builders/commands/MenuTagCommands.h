// The small commands of the Tags and Edit menus that write HTML without a dialog of their own.
#pragma once

#include <QString>

class Frame;

/// Registers the wrappers, single tags, character entities and attributes of the Tags menu, with mnuImageMap,
/// mnuDef and mnuTimeDate. Each of them writes through InsertTag under the case rule; with no document open
/// it returns at once and asks nothing.
void FillMenuTagCommands(Frame& frame);

/// Turns the selection into a list: the opening tag and a line end in front, the closing tag behind, and
/// "<LI>" behind each line end of the whole. Written in the colour at the caret, as it stands, without the
/// case rule; says "Finished!".
void WrapSelectionAsList(Frame& frame, const QString& open, const QString& close, bool ignoreCase);
