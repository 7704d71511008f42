// Replacing over a list of files on the disk.
#pragma once

#include <functional>
#include <QStringList>

class BytesReplacement;
struct FailedSaves;

/// Goes over the files in their order, one that is listed twice twice: reads each, replaces in it, and writes
/// it back with a CR LF more at its end, match or not.
///
/// Nothing that fails ends the run. A file that can't be read is written with what the one before it became,
/// or with nothing but the CR LF where it is the first; one that is missing is created so. A file that can't
/// be written stays as it is: those are returned. next is called before each file with its number, from 1.
FailedSaves ReplaceInFiles(const QStringList& paths, const BytesReplacement& replacement,
                           const std::function<void(int)>& next);
