#include "platform/store/InterruptedSave.h"

#ifdef Q_OS_UNIX

#include "platform/store/FileCalls.h"
#include "platform/store/OpenFile.h"

#include <algorithm>
#include <cerrno>
#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

namespace {

const QByteArray mark = QByteArrayLiteral("Tarnwick save 1\n");

QByteArray Sum(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

enum class Kind { Plain, Missing, Other, Unknown };

Kind KindOf(const QByteArray& path, struct stat& status) {
    if (Calls().lstat(path.constData(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? Kind::Missing : Kind::Unknown;
    return S_ISREG(status.st_mode) ? Kind::Plain : Kind::Other;
}

} // namespace

InterruptedSave InterruptedSave::OfNewFile(const QByteArray& path, ino_t number) {
    InterruptedSave save;
    save.path_ = path;
    save.number_ = number;
    return save;
}

InterruptedSave InterruptedSave::OfOverwriting(const QByteArray& path, const QByteArray& old,
                                               const QByteArray& content) {
    InterruptedSave save;
    save.overwrites_ = true;
    save.path_ = path;
    save.old_ = old;
    save.content_ = content;
    return save;
}

QByteArray InterruptedSave::Bytes() const {
    QByteArray fields, bytes;
    QDataStream(&fields, QIODevice::WriteOnly) << overwrites_ << path_ << number_ << old_ << content_;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << Sum(fields) << fields;
    return mark + bytes;
}

std::optional<InterruptedSave> InterruptedSave::FromBytes(const QByteArray& bytes) {
    std::optional<InterruptedSave> last;
    QDataStream stream(bytes);
    QByteArray begin(mark.size(), '\0'), sum, fields;
    while (stream.readRawData(begin.data(), int(begin.size())) == begin.size() && begin == mark) {
        stream >> sum >> fields;
        if (stream.status() != QDataStream::Ok || Sum(fields) != sum)
            break;
        InterruptedSave& save = last.emplace();
        QDataStream(fields) >> save.overwrites_ >> save.path_ >> save.number_ >> save.old_ >> save.content_;
    }
    return last;
}

bool InterruptedSave::IsBegunBy(const QByteArray& bytes) {
    return bytes.startsWith(mark) || mark.startsWith(bytes);
}

bool InterruptedSave::Settle() const {
    return overwrites_ ? Finish() : TakeAway();
}

bool InterruptedSave::TakeAway() const {
    struct stat status = {};
    const Kind kind = KindOf(path_, status);
    if (kind != Kind::Plain)
        return kind != Kind::Unknown;
    // Before its number was known nothing was written into it.
    const bool isOurs =
        number_ != 0 ? status.st_ino == number_ : status.st_size == 0 && status.st_uid == ::geteuid();
    return !isOurs || Calls().unlink(path_.constData()) == 0;
}

bool InterruptedSave::Finish() const {
    struct stat status = {};
    const Kind kind = KindOf(path_, status);
    if (kind != Kind::Plain)
        return kind != Kind::Unknown;
    const OpenFile reading(path_, O_RDONLY | O_NOFOLLOW);
    const std::optional<QByteArray> now = reading.IsOpen() ? reading.Read() : std::nullopt;
    if (!now)
        return false;
    if (*now == content_)
        return reading.Flush();
    if (!IsHalfWritten(*now))
        return true;
    const OpenFile file(path_, O_WRONLY | O_NOFOLLOW);
    return file.IsOpen() && file.Write(content_) && Calls().ftruncate(file.Number(), content_.size()) == 0 &&
           file.Flush();
}

/// Each byte is the old one or the new one, or room that was taken behind the old content.
bool InterruptedSave::IsHalfWritten(const QByteArray& now) const {
    const auto [shorter, longer] = std::minmax({old_.size(), content_.size()});
    if (now == old_ || now.size() < shorter || now.size() > longer)
        return false;
    for (qsizetype at = 0; at < now.size(); ++at) {
        const bool isNew = at < content_.size() && now[at] == content_[at];
        const bool isOld = at < old_.size() ? now[at] == old_[at] : now[at] == '\0';
        if (!isNew && !isOld)
            return false;
    }
    return true;
}

#endif
