// What was seen of a file, to know later whether it is still the same.
#pragma once

#include <optional>
#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// What the system tells of a file without reading it.
struct FileStatus {
    qint64 size = -1; ///< in bytes; -1 where there is no plain file
    qint64 written = 0,
           changed = 0; ///< when its content was, and when anything of it, in milliseconds since 1970
    quint64 device = 0, number = 0; ///< which file it is; 0 where the system has no numbers for files

    /// Follows symbolic links, and never waits for what stands there.
    static FileStatus Of(const QString& path);
    bool IsThere() const { return size >= 0; }
    bool operator==(const FileStatus&) const = default;
};

/// A file as it was read or written. Before anything was seen nothing counts as a change.
class FileMark {
  public:
    enum class Now { Same, Changed, Gone };

    FileMark() = default;
    /// A file whose bytes were read after its status was asked for, or were written before.
    FileMark(const FileStatus& status, QByteArrayView bytes);
    /// What stands there now; also that nothing does.
    static FileMark Of(const QString& path);
    /// The mark that ToText wrote, by which only the bytes tell a change; nothing where the text is no mark.
    static std::optional<FileMark> FromText(QByteArrayView text);
    /// One line of ASCII for a later run: how many bytes the file has and their digest, or that there was no
    /// file, or that nothing was seen.
    QByteArray ToText() const;

    /// Whether other bytes stand there than were seen. The file is read only where its status has changed, or
    /// was so young when it was seen that a further change need not show in it; where the bytes turn out to
    /// be the same, the mark takes the new status over. What can't be read counts as changed. What is no
    /// plain file counts as gone; a file that was gone already is the same.
    Now Compare(const QString& path);
    /// Whether a change made at once would show in the status: times are as coarse as two seconds on some
    /// disks. Both in milliseconds since 1970.
    static bool IsSettled(qint64 changed, qint64 now);

    bool operator==(const FileMark&) const = default;

  private:
    void Take(const FileStatus& status);

    bool isSet_ = false;
    bool isSettled_ = false;
    FileStatus status_;
    QByteArray digest_;
};
