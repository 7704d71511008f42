// The file that a save is about to write, and the two ways to write it.
#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <optional>
#include <QByteArray>
#include <sys/stat.h>

class OpenFile;
class SaveRecord;

class SavedFile {
  public:
    enum class Outcome { Written, Failed, NotReplaceable };
    enum class Wait { ForTheDisk, No };

    /// The file of a path, or the one that its symbolic links lead to; it need not be there yet. Nothing,
    /// with the reason in errno, where that can't be learnt, is no plain file, or may not be written.
    static std::optional<SavedFile> At(const QByteArray& path);

    /// Its real path.
    const QByteArray& Path() const { return path_; }

    /// Puts a new file in its place. One that is not there yet gets the mode, less the user's mask.
    Outcome Replace(QByteArrayView content, mode_t mode, Wait wait = Wait::ForTheDisk);
    /// Writes over the old content. Should the disk fail in the middle of it, the old content is put back.
    bool Overwrite(QByteArrayView content);
    /// The system's error number of what went wrong last.
    int Error() const { return error_; }

  private:
    SavedFile(QByteArray path, std::optional<struct stat> old) : path_(std::move(path)), old_(old) {}

    Outcome Fill(OpenFile& file, SaveRecord* record, QByteArrayView content, Wait wait);
    bool GiveName(const QByteArray& from) const;
    template <typename Result> Result WithError(Result result);
    bool WriteOver(const OpenFile& file, const QByteArray& old, QByteArrayView content, SaveRecord& record);

    QByteArray path_;
    std::optional<struct stat> old_;
    int error_ = 0;
};

#endif
