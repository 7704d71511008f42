#include "platform/store/SavedFile.h"

#ifdef Q_OS_UNIX

#include "platform/store/FileCalls.h"
#include "platform/store/OpenFile.h"
#include "platform/store/SaveRecord.h"
#include "platform/store/TakeOver.h"

#include <cerrno>
#include <climits>
#include <QRandomGenerator>

namespace {

constexpr int longestChain = 40; // of symbolic links: the system's own limit

std::optional<QByteArray> LinkTarget(const QByteArray& link, const struct stat& status) {
    QByteArray target(PATH_MAX, '\0');
    const ssize_t size =
        Calls().readlink(link.constData(), target.data(), static_cast<size_t>(target.size()));
    // Some links of the system's own say nothing of their size.
    if (size <= 0 || size == target.size() || (status.st_size != 0 && size != status.st_size)) {
        errno = size < 0 ? errno : EIO;
        return std::nullopt;
    }
    target.truncate(size);
    return target.startsWith('/') ? target : FolderOf(link) + target;
}

/// False with the reason in errno.
bool MayWrite(const QByteArray& path, const struct stat& status) {
    if (S_ISREG(status.st_mode))
        return Calls().access(path.constData(), W_OK) == 0;
    errno = S_ISDIR(status.st_mode) ? EISDIR : EOPNOTSUPP;
    return false;
}

/// Short, as the file's own name may be as long as a name can be.
QByteArray NameBeside(const QByteArray& path) {
    return FolderOf(path) + ".tarnwick-" + QByteArray::number(QRandomGenerator::system()->generate64(), 16);
}

/// Takes its file away again, unless it got the name that it was made for.
class NewFile {
  public:
    NewFile(const QByteArray& path, mode_t mode)
        : path_(path), record_(SaveRecord::OfNewFile(path)),
          file_(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode), isThere_(file_.IsOpen()) {}
    ~NewFile() {
        if (isThere_ && Calls().unlink(path_.constData()) != 0 && record_)
            record_->Leave();
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    const QByteArray& Path() const { return path_; }
    OpenFile& File() { return file_; }
    SaveRecord* Record() { return record_.get(); }
    void SetNamed() { isThere_ = false; }

  private:
    QByteArray path_;
    std::unique_ptr<SaveRecord> record_;
    OpenFile file_;
    bool isThere_;
};

} // namespace

std::optional<SavedFile> SavedFile::At(const QByteArray& path) {
    QByteArray real = path;
    for (int links = 0; links <= longestChain; ++links) {
        struct stat status = {};
        if (Calls().lstat(real.constData(), &status) != 0)
            return errno == ENOENT ? std::optional(SavedFile(real, std::nullopt)) : std::nullopt;
        if (S_ISLNK(status.st_mode)) {
            const std::optional<QByteArray> target = LinkTarget(real, status);
            if (!target)
                return std::nullopt;
            real = *target;
            continue;
        }
        return MayWrite(real, status) ? std::optional(SavedFile(real, status)) : std::nullopt;
    }
    errno = ELOOP;
    return std::nullopt;
}

/// Before anything is cleared up, which makes further calls.
template <typename Result> Result SavedFile::WithError(Result result) {
    error_ = errno;
    return result;
}

SavedFile::Outcome SavedFile::Replace(QByteArrayView content, mode_t mode, Wait wait) {
    if (old_ && old_->st_nlink > 1)
        return Outcome::NotReplaceable;
    // With the old file's rights, or none for others until it has these.
    NewFile fresh(NameBeside(path_), old_ ? 0600 : mode);
    if (!fresh.File().IsOpen())
        return WithError(Outcome::NotReplaceable);
    if (const Outcome filled = Fill(fresh.File(), fresh.Record(), content, wait); filled != Outcome::Written)
        return filled;
    // The content is on the disk: what fails now is the name. It may be in the way itself (a mount of its
    // own).
    if (!GiveName(fresh.Path()))
        return WithError(Outcome::NotReplaceable);
    fresh.SetNamed();
    return wait == Wait::No || FlushFolderOf(path_) ? Outcome::Written : WithError(Outcome::Failed);
}

SavedFile::Outcome SavedFile::Fill(OpenFile& file, SaveRecord* record, QByteArrayView content, Wait wait) {
    const std::optional<struct stat> status = file.Status();
    if (!status || (record && !record->SetFile(*status)) || (old_ && !TakeOver(path_, *old_, file)))
        return WithError(Outcome::NotReplaceable);
    const bool isThere = file.Write(content) && (wait == Wait::No || file.Flush()) && file.Close();
    return isThere ? Outcome::Written : WithError(Outcome::Failed);
}

/// A file that was not there must not be replaced if it is there after all: nothing is known of it.
bool SavedFile::GiveName(const QByteArray& from) const {
#ifdef Q_OS_LINUX
    if (!old_) {
        if (Calls().renameat2(AT_FDCWD, from.constData(), AT_FDCWD, path_.constData(), RENAME_NOREPLACE) == 0)
            return true;
        // Not every disk knows of it.
        if (errno != EINVAL && errno != ENOSYS)
            return false;
    }
#endif
    return Calls().rename(from.constData(), path_.constData()) == 0;
}

bool SavedFile::Overwrite(QByteArrayView content) {
    if (!old_)
        return false;
    const OpenFile reading(path_, O_RDONLY | O_NOFOLLOW);
    const std::optional<QByteArray> old = reading.IsOpen() ? reading.Read() : std::nullopt;
    const OpenFile file(path_, O_WRONLY | O_NOFOLLOW);
    if (!old || !file.IsOpen())
        return WithError(false);
    const std::unique_ptr<SaveRecord> record = SaveRecord::OfOverwriting(path_, *old, content);
    return record ? WriteOver(file, *old, content, *record) : WithError(false);
}

bool SavedFile::WriteOver(const OpenFile& file, const QByteArray& old, QByteArrayView content,
                          SaveRecord& record) {
    // Room comes first, behind the old content, so that a full disk is found out while that still stands.
    const int noRoom =
        content.size() > old.size() ? Calls().posix_fallocate(file.Number(), 0, content.size()) : 0;
    if (noRoom != 0)
        errno = noRoom;
    else if (file.Write(content) && Calls().ftruncate(file.Number(), content.size()) == 0) {
        if (file.Flush())
            return true;
        // Whole as far as anyone can see: a disk that takes no more must not get the chance to spoil it.
        record.Leave();
        return WithError(false);
    }
    error_ = errno;
    if ((noRoom == 0 && !file.Write(old)) || Calls().ftruncate(file.Number(), old.size()) != 0 ||
        !file.Flush())
        record.Leave();
    return false;
}

#endif
