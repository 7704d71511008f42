// The word in the status bar on a save that failed.
#pragma once

#include <QString>

class Frame;

/// Tells in panel 3 that a file could not be saved, and why; nothing with TellFailedSaves off.
void TellFailedSave(Frame& frame, const QString& path, const QString& reason);

/// What a run over many files could not write.
struct FailedSaves {
    int count = 0;
    QString first;  ///< the path of the first one
    QString reason; ///< why that could not be written

    void Add(const QString& path, const QString& why);
};

/// Tells of a whole run in one notice; nothing where no file failed.
void TellFailedSaves(Frame& frame, const FailedSaves& failed);
