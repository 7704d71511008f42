// Writes copies of documents to the disk while the user goes on.
#pragma once

#include "app/recovery/DocumentCopy.h"
#include "app/recovery/RunCopies.h"

#include <chrono>
#include <memory>
#include <QObject>
#include <QString>
#include <QThreadPool>

/// What it is told is done in a thread of its own, one after the other, and done to its end when the object
/// goes. The run that a file belongs to lives as long. With nothing to do there is no thread.
class CopyWriter final : public QObject {
    Q_OBJECT

  public:
    CopyWriter();
    ~CopyWriter() override;

    /// The file is replaced whole, or made (mode 0600), and flushed to the disk.
    void Write(std::shared_ptr<RunCopies> run, const QString& file, DocumentCopy copy);
    void Remove(std::shared_ptr<RunCopies> run, const QString& file);

  Q_SIGNALS:
    /// A copy is on the disk, or, with done false, could not be brought there.
    void Written(const QString& file, bool done, std::chrono::nanoseconds took);

  private:
    QThreadPool thread_;
};
