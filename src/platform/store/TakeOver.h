// What makes a new file the same file to everyone else as the one that it replaces.
#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QByteArray>
#include <sys/stat.h>

class OpenFile;

/// Gives a new file the owner, the extended attributes and the mode bits of the file of a path, whose status
/// is at hand. False where one of them can't be learnt or given: the new file is then no substitute.
bool TakeOver(const QByteArray& path, const struct stat& old, const OpenFile& file);

#endif
