// A local file on its way to the server.
#pragma once

#include "ftp/LineEnds.h"

#include <functional>
#include <QByteArray>
#include <QFile>
#include <QString>

enum class FileType { Binary, Ascii };

class PutSource {
  public:
    PutSource(const QString& path, FileType type);

    /// False where the file can't be read or is no plain file (a pipe could block for ever).
    bool Open();
    /// Why Open failed.
    QString Problem() const { return problem_; }
    /// From the start again.
    void Rewind();

    /// Fills a buffer; 0 at the end, -1 where the disk fails.
    qint64 Read(char* buffer, qint64 size);

    qint64 Done() const { return done_; }
    qint64 Total() const { return file_.size(); }

    /// Called whenever another part of the file was handed over.
    std::function<void()> advanced;

  private:
    bool Refill();

    QFile file_;
    FileType type_;
    LineEnds lineEnds_;
    QByteArray waiting_;
    qint64 done_ = 0;
    bool atEnd_ = false;
    QString problem_;
};
