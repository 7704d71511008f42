// What a file dialog can give and no program can read to its end.
#pragma once

#include "support/FreshUser.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <sys/stat.h>
#include <unistd.h>

/// A device, a pipe that nobody writes into, and a folder, made below the test's own folder. Reading the pipe
/// as a file would wait for ever.
inline QStringList NoPlainFiles() {
    const QString device = TestFolder() + QStringLiteral("/device.bmp");
    const QString pipe = TestFolder() + QStringLiteral("/pipe.bmp");
    const QString folder = TestFolder() + QStringLiteral("/folder.bmp");
    const bool made = ::symlink("/dev/null", QFile::encodeName(device)) == 0 &&
                      ::mkfifo(QFile::encodeName(pipe), 0600) == 0 && QDir().mkdir(folder);
    return made ? QStringList{device, pipe, folder} : QStringList();
}
