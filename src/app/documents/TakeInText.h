// A file's text, just read, becomes the content of a document window.
#pragma once

#include "app/documents/DocumentFiles.h"

#include <QString>

class Frame;

/// Makes a file's text the content of the active window and gives it the path and the encoding: coloured when
/// ColoredTags is 1, with an entry in the recent files and a document tab. Nothing is changed since, and
/// nothing can be undone.
void TakeInText(Frame& frame, const QString& path, FileText file);

/// The same for a recent file: coloured whatever ColoredTags says, and the recent files stay as they are.
void TakeInRecentText(Frame& frame, const QString& path, FileText file);

/// The same for a text that was never saved, as it stood in its window to the character: its file need not be
/// there, or it has none, with an empty path. It counts as changed.
void TakeInRecovered(Frame& frame, const QString& path, const FileText& file);
