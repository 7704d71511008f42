// The word in the status bar on a save that failed.
#pragma once

#include <QString>

class Frame;

/// Tells in panel 3 that a file could not be saved, and why; nothing with TellFailedSaves off.
void TellFailedSave(Frame& frame, const QString& path, const QString& reason);
