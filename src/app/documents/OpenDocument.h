// The roads by which a file becomes a document window.
#pragma once

#include <QString>

class Frame;

/// Reads a file into a new window, coloured when ColoredTags is 1, and puts it into the recent files and the
/// document tabs. A path that a loaded form has for its caption is refused with a message. A path that can't
/// be read leaves the window blank; the file comes in as soon as it can be read, for as long as the window
/// stands (AwaitedFile).
void OpenDocumentFile(Frame& frame, const QString& path);

/// Reads the file of the recent entry n, 0 to 7: refused with a message when it is empty or missing; coloured
/// whatever ColoredTags says; empty when it holds an end-of-text byte; the list stays as it is.
void OpenRecentFile(Frame& frame, int n);
