// An open file, read and written whole.
#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <optional>
#include <QByteArray>
#include <sys/stat.h>

/// Closed with its object.
class OpenFile {
  public:
    /// Opens with the flags of the system's open; the file is not handed on to other programs.
    OpenFile(const QByteArray& path, int flags, mode_t mode = 0);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    /// Nothing where the system can't tell.
    std::optional<struct stat> Status() const;
    /// All bytes; nothing where they can't be had.
    std::optional<QByteArray> Read() const;
    /// Writes from the file's beginning on; what lies behind stays. False with the reason in errno.
    bool Write(QByteArrayView content) const;
    /// Whether what was written has reached the disk; where flushing is not known, it counts as done.
    bool Flush() const;
    /// Locks it until it is closed, or its process ends in whatever way. False where it is locked already,
    /// and where its name went before it was locked: nobody else would meet the lock.
    bool Lock() const;
    /// False where the system finds out only now that what was written could not be kept.
    bool Close();

  private:
    int number_;
};

/// Flushes the folder that a file lies in: a new name is on the disk only when its folder is. A folder that
/// may not be opened counts as done.
bool FlushFolderOf(const QByteArray& path);

/// The folder of a path, with the separator at its end; empty for a bare name.
QByteArray FolderOf(const QByteArray& path);

#endif
