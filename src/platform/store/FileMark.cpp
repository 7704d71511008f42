#include "platform/store/FileMark.h"

#include "platform/store/WholeFile.h"

#include <algorithm>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

constexpr qint64 coarsestTime = 2000;
constexpr qsizetype digestBytes = 32;
constexpr QByteArrayView nothingSeen = "unknown";
constexpr QByteArrayView noFile = "none";

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

std::optional<FileMark> FileMark::FromText(QByteArrayView text) {
    FileMark mark;
    if (text == nothingSeen)
        return mark;
    mark.isSet_ = true;
    if (text == noFile)
        return mark;
    const qsizetype blank = text.indexOf(' ');
    bool isNumber = false;
    mark.status_.size = text.first(std::max<qsizetype>(blank, 0)).toLongLong(&isNumber);
    mark.digest_ = QByteArray::fromHex(text.sliced(blank + 1).toByteArray());
    // Only what ToText writes, to the letter.
    const bool isMark = isNumber && mark.status_.IsThere() && mark.digest_.size() == digestBytes;
    return isMark && mark.ToText() == text ? std::optional(mark) : std::nullopt;
}

QByteArray FileMark::ToText() const {
    if (!isSet_)
        return nothingSeen.toByteArray();
    return status_.IsThere() ? QByteArray::number(status_.size) + ' ' + digest_.toHex()
                             : noFile.toByteArray();
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
