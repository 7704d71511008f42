#include "platform/store/FileMark.h"

#include "platform/store/WholeFile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

constexpr qint64 coarsestTime = 2000;

QByteArray Digest(QByteArrayView bytes) {
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    hash.addData(bytes);
    return hash.result();
}

} // namespace

FileStatus FileStatus::Of(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile())
        return {};
    FileStatus status{.size = file.size(),
                      .written = file.lastModified().toMSecsSinceEpoch(),
                      .changed = file.metadataChangeTime().toMSecsSinceEpoch()};
#ifdef Q_OS_UNIX
    struct stat numbers = {};
    if (::stat(QFile::encodeName(path).constData(), &numbers) == 0) {
        status.device = numbers.st_dev;
        status.number = numbers.st_ino;
    }
#endif
    return status;
}

FileMark::FileMark(const FileStatus& status, QByteArrayView bytes) : digest_(Digest(bytes)) {
    Take(status);
    // What was read may be more or less than it was a moment ago.
    status_.size = bytes.size();
}

FileMark FileMark::Of(const QString& path) {
    const FileStatus status = FileStatus::Of(path);
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    FileMark mark = bytes ? FileMark(status, *bytes) : FileMark();
    if (!bytes)
        mark.Take(status);
    return mark;
}

void FileMark::Take(const FileStatus& status) {
    isSet_ = true;
    status_ = status;
    isSettled_ = IsSettled(std::max(status.written, status.changed), QDateTime::currentMSecsSinceEpoch());
}

bool FileMark::IsSettled(qint64 changed, qint64 now) {
    return now - changed > coarsestTime;
}

FileMark::Now FileMark::Compare(const QString& path) {
    const FileStatus now = FileStatus::Of(path);
    if (!isSet_ || (now == status_ && (isSettled_ || !now.IsThere())))
        return Now::Same;
    if (!now.IsThere())
        return Now::Gone;
    const std::optional<QByteArray> bytes = now.size == status_.size ? WholeFile::Read(path) : std::nullopt;
    if (!bytes || Digest(*bytes) != digest_)
        return Now::Changed;
    Take(now);
    return Now::Same;
}
