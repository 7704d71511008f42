// Files read and written whole: a save either replaces the old file or leaves it as it was.
#include "platform/WholeFile.h"

#include <limits>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

namespace {

enum class Outcome { Written, Failed, NotReplaceable };

#ifdef Q_OS_UNIX

/// A write past the user's file size limit raises a signal that would end the program; without it the write
/// fails like any other.
class NoSizeSignal {
  public:
    NoSizeSignal() {
        struct sigaction ignore = {};
        ignore.sa_handler = SIG_IGN;
        sigaction(SIGXFSZ, &ignore, &before_);
    }
    ~NoSizeSignal() { sigaction(SIGXFSZ, &before_, nullptr); }
    NoSizeSignal(const NoSizeSignal&) = delete;
    NoSizeSignal& operator=(const NoSizeSignal&) = delete;

  private:
    struct sigaction before_ = {};
};

class FileDescriptor {
  public:
    explicit FileDescriptor(int number) : number_(number) {}
    ~FileDescriptor() {
        if (number_ >= 0)
            ::close(number_);
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    int Number() const { return number_; }

  private:
    int number_;
};

/// Whether what was written has reached the disk; where flushing is not known, it counts as done.
bool Flush(int file) {
    return ::fsync(file) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
}

bool WriteAt(int file, QByteArrayView content) {
    qsizetype done = 0;
    while (done < content.size()) {
        const ssize_t count =
            ::pwrite(file, content.data() + done, static_cast<size_t>(content.size() - done), done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

bool HasStatus(const QString& path, struct stat& status) {
    return ::stat(QFile::encodeName(path).constData(), &status) == 0;
}

#ifdef Q_OS_LINUX
/// Access lists and the like: without them the mode bits alone could let others in.
bool CopyAttributes(const QByteArray& from, int to) {
    const ssize_t size = ::listxattr(from.constData(), nullptr, 0);
    if (size <= 0)
        return true;
    QByteArray names(size, '\0');
    names.truncate(
        std::max<ssize_t>(0, ::listxattr(from.constData(), names.data(), static_cast<size_t>(size))));
    for (const QByteArray& name : names.split('\0')) {
        if (name.isEmpty() || name.startsWith("security."))
            continue; // labels are the system's own to give
        const ssize_t length = ::getxattr(from.constData(), name.constData(), nullptr, 0);
        QByteArray value(std::max<ssize_t>(0, length), '\0');
        if (length < 0 ||
            ::getxattr(from.constData(), name.constData(), value.data(), value.size()) != length ||
            ::fsetxattr(to, name.constData(), value.constData(), static_cast<size_t>(length), 0) != 0)
            return false;
    }
    return true;
}
#else
bool CopyAttributes(const QByteArray&, int) {
    return true;
}
#endif

/// Gives the new file what makes the old one the same file to everyone else. False where it can't be had.
bool TakeOver(const QString& path, int file) {
    struct stat old = {};
    if (!HasStatus(path, old))
        return true;
    struct stat fresh = {};
    if (::fstat(file, &fresh) != 0)
        return false;
    if ((old.st_uid != fresh.st_uid || old.st_gid != fresh.st_gid) &&
        ::fchown(file, old.st_uid, old.st_gid) != 0)
        return false;
    return CopyAttributes(QFile::encodeName(path), file) && ::fchmod(file, old.st_mode & 07777) == 0;
}

/// A rename is on the disk only when its folder is.
void FlushFolder(const QString& path) {
    const QString folder = QFileInfo(QFileInfo(path).canonicalFilePath()).path();
    const FileDescriptor file(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file.Number() >= 0)
        Flush(file.Number());
}

Outcome Replace(const QString& path, QByteArrayView content) {
    struct stat old = {};
    if (HasStatus(path, old) && old.st_nlink > 1)
        return Outcome::NotReplaceable;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Outcome::NotReplaceable;
    if (!TakeOver(path, file.handle())) {
        file.cancelWriting();
        return Outcome::NotReplaceable;
    }
    if (file.write(content.data(), content.size()) != content.size() || !file.flush() ||
        !Flush(file.handle())) {
        file.cancelWriting();
        return Outcome::Failed;
    }
    // The content is on the disk: what fails now is the name. It may be in the way itself (a mount of its
    // own), or too long for one beside it.
    if (!file.commit())
        return Outcome::NotReplaceable;
    FlushFolder(path);
    return Outcome::Written;
}

/// Room for the content is taken first, behind the old content, so that a full disk is found out while the
/// old content still stands; should the disk fail later, the old content is put back.
bool WriteInPlace(const QString& path, QByteArrayView content) {
    const QByteArray name = QFile::encodeName(path);
    const bool existed = QFileInfo::exists(path);
    const int access = existed ? O_WRONLY : O_WRONLY | O_CREAT | O_EXCL;
    const FileDescriptor file(::open(name.constData(), access | O_CLOEXEC | O_NOCTTY, 0666));
    struct stat status = {};
    if (file.Number() < 0 || ::fstat(file.Number(), &status) != 0)
        return false;
    const std::optional<QByteArray> old = WholeFile::Read(path);
    const off_t size = content.size();
    const bool hasRoom = size <= status.st_size || ::posix_fallocate(file.Number(), 0, size) == 0;
    if (hasRoom && WriteAt(file.Number(), content) && ::ftruncate(file.Number(), size) == 0 &&
        Flush(file.Number()))
        return true;
    if (!existed) {
        ::unlink(name.constData());
        return false;
    }
    if (hasRoom && old)
        WriteAt(file.Number(), *old);
    // Nothing is left to do about a disk that does not even take its own content back.
    [[maybe_unused]] const int result = ::ftruncate(file.Number(), status.st_size);
    return false;
}

#else

struct NoSizeSignal {};

Outcome Replace(const QString& path, QByteArrayView content) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Outcome::Failed;
    if (file.write(content.data(), content.size()) != content.size())
        file.cancelWriting();
    return file.commit() ? Outcome::Written : Outcome::Failed;
}

bool WriteInPlace(const QString&, QByteArrayView) {
    return false;
}

#endif

} // namespace

namespace WholeFile {

qint64 Size(const QString& path) {
    const QFileInfo file(path);
    return file.isFile() ? file.size() : -1;
}

std::optional<QByteArray> Read(const QString& path) {
    const qint64 size = Size(path);
    if (size < 0 || size > std::numeric_limits<int>::max() / 2)
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return content;
}

bool Write(const QString& path, QByteArrayView content) {
    const QFileInfo target(path);
    if (path.isEmpty() || (target.exists() && (!target.isFile() || !target.isWritable())))
        return false;
    [[maybe_unused]] const NoSizeSignal noSignal;
    const Outcome outcome = Replace(path, content);
    return outcome == Outcome::Written || (outcome == Outcome::NotReplaceable && WriteInPlace(path, content));
}

} // namespace WholeFile
