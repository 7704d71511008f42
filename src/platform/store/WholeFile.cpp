#include "platform/store/WholeFile.h"

#include <limits>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include "platform/store/FileCalls.h"
#include "platform/store/OpenFile.h"
#include "platform/store/SavedFile.h"
#include "platform/store/SaveRecord.h"

#include <cerrno>
#include <csignal>
#include <mutex>
#else
#include <QSaveFile>
#endif

namespace WholeFile {

qint64 Size(const QString& path) {
    const QFileInfo file(path);
    return file.isFile() ? file.size() : -1;
}

#ifdef Q_OS_UNIX

namespace {

/// A write past the user's file size limit raises a signal that would end the program; without it the write
/// fails like any other. The signal is the process's: the last of several threads that write brings it back.
class NoSizeSignal {
  public:
    NoSizeSignal() {
        const std::lock_guard lock(mutex);
        if (count++ > 0)
            return;
        struct sigaction ignore = {};
        ignore.sa_handler = SIG_IGN;
        sigaction(SIGXFSZ, &ignore, &before);
    }
    ~NoSizeSignal() {
        const std::lock_guard lock(mutex);
        if (--count == 0)
            sigaction(SIGXFSZ, &before, nullptr);
    }
    NoSizeSignal(const NoSizeSignal&) = delete;
    NoSizeSignal& operator=(const NoSizeSignal&) = delete;

  private:
    static inline std::mutex mutex;
    static inline int count = 0;
    static inline struct sigaction before = {};
};

WriteResult Failed(int error) {
    return WriteResult::Failed(qt_error_string(error));
}

bool Save(SavedFile& file, QByteArrayView content, Readers readers, Flush flush) {
    const mode_t mode = readers == Readers::TheUserAlone ? 0600 : 0666;
    const auto wait = flush == Flush::Now ? SavedFile::Wait::ForTheDisk : SavedFile::Wait::No;
    const SavedFile::Outcome outcome = file.Replace(content, mode, wait);
    return outcome == SavedFile::Outcome::Written ||
           (outcome == SavedFile::Outcome::NotReplaceable && file.Overwrite(content));
}

} // namespace

std::optional<QByteArray> Read(const QString& path) {
    const qint64 size = Size(path);
    if (size < 0 || size > std::numeric_limits<int>::max() / 2)
        return std::nullopt;
    const OpenFile file(QFile::encodeName(path), O_RDONLY);
    return file.IsOpen() ? file.Read() : std::nullopt;
}

WriteResult Write(const QString& path, QByteArrayView content, Readers readers, Flush flush) {
    if (path.isEmpty())
        return Failed(ENOENT);
    const NoSizeSignal noSignal;
    std::optional<SavedFile> file = SavedFile::At(QFile::encodeName(path));
    if (!file)
        return Failed(errno);
    const QList<QByteArray> unsettled = SaveRecord::SettleAll(file->Path());
    if (!Save(*file, content, readers, flush))
        return Failed(file->Error());
    // What could not be finished is now out of date.
    for (const QByteArray& record : unsettled)
        Calls().unlink(record.constData());
    return {};
}

void SettleInterrupted() {
    const NoSizeSignal noSignal;
    SaveRecord::SettleAll();
}

#else

std::optional<QByteArray> Read(const QString& path) {
    const qint64 size = Size(path);
    QFile file(path);
    if (size < 0 || size > std::numeric_limits<int>::max() / 2 || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray content = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(content) : std::nullopt;
}

WriteResult Write(const QString& path, QByteArrayView content, Readers, Flush) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return WriteResult::Failed(file.errorString());
    if (file.write(content.data(), content.size()) != content.size())
        file.cancelWriting();
    return file.commit() ? WriteResult() : WriteResult::Failed(file.errorString());
}

void SettleInterrupted() {}

#endif

} // namespace WholeFile
