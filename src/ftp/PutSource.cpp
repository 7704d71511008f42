#include "ftp/PutSource.h"

#include <algorithm>
#include <QFileInfo>

namespace {

constexpr qint64 blockSize = 16384;

} // namespace

PutSource::PutSource(const QString& path, FileType type) : file_(path), type_(type) {}

bool PutSource::Open() {
    const QFileInfo info(file_.fileName());
    if (!info.exists())
        problem_ = QStringLiteral("there is no such file");
    else if (!info.isFile())
        problem_ = QStringLiteral("it is no file");
    else if (!file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        problem_ = file_.errorString();
    return file_.isOpen();
}

void PutSource::Rewind() {
    file_.seek(0);
    lineEnds_ = {};
    waiting_.clear();
    done_ = 0;
    atEnd_ = false;
}

qint64 PutSource::Read(char* buffer, qint64 size) {
    while (waiting_.isEmpty() && !atEnd_)
        if (!Refill())
            return -1;
    const qint64 taken = std::min<qint64>(size, waiting_.size());
    std::copy_n(waiting_.constData(), taken, buffer);
    waiting_.remove(0, taken);
    return taken;
}

bool PutSource::Refill() {
    QByteArray block(blockSize, Qt::Uninitialized);
    const qint64 length = file_.read(block.data(), blockSize);
    if (length < 0)
        return false;
    block.truncate(length);
    atEnd_ = length == 0;
    if (type_ == FileType::Binary)
        waiting_ = block;
    else
        waiting_ = atEnd_ ? lineEnds_.End() : lineEnds_.Take(block);
    done_ += length;
    if (advanced && length > 0)
        advanced();
    return true;
}
