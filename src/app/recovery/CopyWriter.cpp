#include "app/recovery/CopyWriter.h"

#include "platform/store/WholeFile.h"

#include <QElapsedTimer>
#include <QFile>

namespace {

constexpr int longestIdleMilliseconds = 100;

} // namespace

CopyWriter::CopyWriter() {
    thread_.setMaxThreadCount(1);
    thread_.setExpiryTimeout(longestIdleMilliseconds);
}

CopyWriter::~CopyWriter() {
    thread_.waitForDone();
}

void CopyWriter::Write(std::shared_ptr<RunCopies> run, const QString& file, DocumentCopy copy) {
    thread_.start([this, run = std::move(run), file, copy = std::move(copy)] {
        QElapsedTimer timer;
        timer.start();
        const bool done = WholeFile::Write(file, BytesOf(copy), WholeFile::Readers::TheUserAlone);
        // To the thread of the documents.
        QMetaObject::invokeMethod(
            this,
            [this, file, done, took = std::chrono::nanoseconds(timer.nsecsElapsed())] {
                Q_EMIT Written(file, done, took);
            },
            Qt::QueuedConnection);
    });
}

void CopyWriter::Remove(std::shared_ptr<RunCopies> run, const QString& file) {
    thread_.start([run = std::move(run), file] { QFile::remove(file); });
}
