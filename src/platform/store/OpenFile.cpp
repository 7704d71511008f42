#include "platform/store/OpenFile.h"

#ifdef Q_OS_UNIX

#include "platform/store/FileCalls.h"

#include <cerrno>
#include <limits>

OpenFile::OpenFile(const QByteArray& path, int flags, mode_t mode)
    : number_(Calls().open(path.constData(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, mode)) {}

OpenFile::~OpenFile() {
    Close();
}

bool OpenFile::Close() {
    const int number = std::exchange(number_, -1);
    return number < 0 || Calls().close(number) == 0;
}

std::optional<struct stat> OpenFile::Status() const {
    struct stat status = {};
    return Calls().fstat(number_, &status) == 0 ? std::optional(status) : std::nullopt;
}

std::optional<QByteArray> OpenFile::Read() const {
    const std::optional<struct stat> status = Status();
    if (!status || status->st_size > std::numeric_limits<int>::max())
        return std::nullopt;
    // Some files of the system say nothing of their size, and a file may grow meanwhile.
    constexpr qsizetype step = 4096;
    QByteArray content(status->st_size + step, Qt::Uninitialized);
    qsizetype done = 0;
    while (true) {
        const ssize_t count =
            Calls().pread(number_, content.data() + done, static_cast<size_t>(content.size() - done), done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 || done > std::numeric_limits<int>::max())
            return std::nullopt;
        if (count == 0)
            break;
        done += count;
        if (done == content.size())
            content.resize(2 * done);
    }
    content.truncate(done);
    return content;
}

bool OpenFile::Write(QByteArrayView content) const {
    qsizetype done = 0;
    while (done < content.size()) {
        const ssize_t count =
            Calls().pwrite(number_, content.data() + done, static_cast<size_t>(content.size() - done), done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            // A disk that takes nothing without a word has no room.
            errno = count < 0 ? errno : ENOSPC;
            return false;
        }
        done += count;
    }
    return true;
}

bool OpenFile::Flush() const {
    return Calls().fsync(number_) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
}

bool OpenFile::Lock() const {
    if (Calls().flock(number_, LOCK_EX | LOCK_NB) != 0)
        return false;
    const std::optional<struct stat> status = Status();
    return status && status->st_nlink > 0;
}

bool FlushFolderOf(const QByteArray& path) {
    const OpenFile folder(FolderOf(path) + '.', O_RDONLY | O_DIRECTORY);
    return !folder.IsOpen() || folder.Flush();
}

QByteArray FolderOf(const QByteArray& path) {
    return path.first(path.lastIndexOf('/') + 1);
}

#endif
