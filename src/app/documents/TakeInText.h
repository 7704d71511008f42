// A file's text, just read, becomes the content of a document window.
#pragma once

#include <QString>

class Frame;

/// Whether a loaded form, document or dialog, has the path for its caption.
bool IsLoaded(Frame& frame, const QString& path);

/// Makes a text the content of the active window and gives it the path: coloured when ColoredTags is 1, with
/// an entry in the recent files and a document tab. Nothing is changed since, and nothing can be undone.
void TakeInText(Frame& frame, const QString& path, QString text);

/// The same for a recent file: coloured whatever ColoredTags says, and the recent files stay as they are.
void TakeInRecentText(Frame& frame, const QString& path, QString text);
