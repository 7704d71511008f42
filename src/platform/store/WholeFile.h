// Files read and written whole: a save either replaces the old file or leaves it as it was.
#pragma once

#include "platform/store/WriteResult.h"

#include <optional>
#include <QByteArray>
#include <QString>

namespace WholeFile {

/// Who may read a file that is created; one that is there keeps its mode.
enum class Readers { AsTheUsersMaskAsks, TheUserAlone };

/// When a new content reaches the disk: before Write returns, or when the system comes to it, as the files of
/// most programs do. Until then a power cut may leave the old content, or on some disks none. To wait for
/// each of a thousand files takes many times as long as to write them.
enum class Flush { Now, Later };

/// The size in bytes; -1 where there is no plain file of that path.
qint64 Size(const QString& path);

/// All bytes of a file; nothing where it can't be opened or read, is no plain file (a folder, a device, a
/// pipe, which could block for ever), or is too large for a document's 32-bit positions.
std::optional<QByteArray> Read(const QString& path);

/// Replaces a file's content, or creates it. The new content is written beside the old file, flushed and
/// renamed into place; the file keeps its mode bits, owner and extended attributes, and a symbolic link stays
/// one: what it points to is written. A file that a rename would tear from its other names, that would not
/// stay what it is, or whose folder takes no new files, is written in place, once the old content and the new
/// one have been brought to the disk in the program's folder.
///
/// On failure it tells the system's reason: the old file then stands as it was, or, where the disk failed too
/// late to tell, holds the new content whole. Nothing else is left behind. What a save leaves whose process
/// is killed is settled by the next one, and by SettleInterrupted().
WriteResult Write(const QString& path, QByteArrayView content, Readers readers = Readers::AsTheUsersMaskAsks,
                  Flush flush = Flush::Now);

/// Settles the saves whose process was killed: their new files are taken away, and a file that was half
/// overwritten gets its new content.
void SettleInterrupted();

} // namespace WholeFile
