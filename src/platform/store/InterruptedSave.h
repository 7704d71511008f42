// A save that was under way when its process ended, and how it is settled.
#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <optional>
#include <QByteArray>
#include <sys/types.h>

class InterruptedSave {
  public:
    /// A new file was being written that was to replace another. Its number is 0 until it is known.
    static InterruptedSave OfNewFile(const QByteArray& path, ino_t number);
    /// A file that held the old content was being overwritten.
    static InterruptedSave OfOverwriting(const QByteArray& path, const QByteArray& old,
                                         const QByteArray& content);

    /// As it is kept on the disk, and back. Of several behind each other the last whole one counts; nothing
    /// where none is whole.
    QByteArray Bytes() const;
    static std::optional<InterruptedSave> FromBytes(const QByteArray& bytes);
    /// Whether the bytes may be the first ones of a record: what is something else is not ours.
    static bool IsBegunBy(const QByteArray& bytes);

    const QByteArray& Path() const { return path_; }
    /// True when nothing of it is left to do. A file that was only half overwritten gets its new content; one
    /// that is whole, or that somebody has changed meanwhile, stays as it is.
    bool Settle() const;

  private:
    bool TakeAway() const;
    bool Finish() const;
    bool IsHalfWritten(const QByteArray& content) const;

    bool overwrites_ = false;
    QByteArray path_;
    quint64 number_ = 0;
    QByteArray old_, content_;
};

#endif
