// The recent files at the end of the File menu: entries mnuFileArray_0 to 7, the newest first.
#pragma once

#include <QString>

class Frame;

namespace RecentFiles {

inline constexpr int Count = 8;

/// The path of entry n, 0 to 7; empty for a free entry, and for a frame that has no such entry.
QString Caption(Frame& frame, int n);

/// Gives entry n a path, as it is read from the settings: the entry is shown exactly if the path is not
/// empty, and a path in entry 0 brings up the separator above the list.
void SetCaption(Frame& frame, int n, const QString& path);

} // namespace RecentFiles

/// Puts the active document's path at the front of the list, unless it is in the list already: an entry keeps
/// its place. The oldest of the eight falls off.
void AddToRecentFiles(Frame& frame);
