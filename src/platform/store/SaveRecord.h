// What a save is about to do, written down in the program's folder until it is done.
#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include "platform/store/OpenFile.h"

#include <memory>
#include <QByteArray>
#include <QList>

/// A save that is killed leaves its record, and whoever saves or starts next settles it: takes away the file
/// that was to replace another, or finishes one that was being overwritten. The record is locked for as long
/// as its save goes on, in a way that ends with the process. It is removed with its object.
class SaveRecord {
  public:
    /// Of a new file that is about to be created under this path. Null where it can't be kept.
    static std::unique_ptr<SaveRecord> OfNewFile(const QByteArray& path);
    /// Of a file that is about to be overwritten, with a copy of what it holds and of what it will hold. Null
    /// where these could not be brought to the disk.
    static std::unique_ptr<SaveRecord> OfOverwriting(const QByteArray& path, const QByteArray& old,
                                                     QByteArrayView content);
    ~SaveRecord();
    SaveRecord(const SaveRecord&) = delete;
    SaveRecord& operator=(const SaveRecord&) = delete;

    /// The new file is there. From now on it is known by its number: no other will be taken for it.
    bool SetFile(const struct stat& status);
    /// The record stays, for the next save or start to settle.
    void Leave() { isLeft_ = true; }

    /// Settles what no process is at work on any more. Returns the records that can't be settled yet and are
    /// of this path.
    static QList<QByteArray> SettleAll(const QByteArray& path = {});

  private:
    explicit SaveRecord(const QByteArray& path);
    bool Keep(const QByteArray& content) const;

    QByteArray path_, name_;
    OpenFile file_;
    bool isLeft_ = false;
};

#endif
