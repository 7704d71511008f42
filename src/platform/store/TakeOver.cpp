#include "platform/store/TakeOver.h"

#ifdef Q_OS_UNIX

#include "platform/store/FileCalls.h"
#include "platform/store/OpenFile.h"

#include <cerrno>
#include <QList>

namespace {

#ifdef Q_OS_LINUX

bool CopyAttribute(const QByteArray& from, const QByteArray& name, const OpenFile& to) {
    const ssize_t length = Calls().getxattr(from.constData(), name.constData(), nullptr, 0);
    if (length < 0)
        return false;
    QByteArray value(length, '\0');
    return Calls().getxattr(from.constData(), name.constData(), value.data(), static_cast<size_t>(length)) ==
               length &&
           Calls().fsetxattr(to.Number(), name.constData(), value.constData(), static_cast<size_t>(length),
                             0) == 0;
}

/// Access lists and the like: without them the mode bits alone could let others in.
bool CopyAttributes(const QByteArray& from, const OpenFile& to) {
    const ssize_t size = Calls().listxattr(from.constData(), nullptr, 0);
    if (size <= 0)
        return size == 0 || errno == ENOTSUP;
    QByteArray names(size, '\0');
    if (Calls().listxattr(from.constData(), names.data(), static_cast<size_t>(size)) != size)
        return false;
    for (const QByteArray& name : names.split('\0')) {
        // Labels are the system's own to give.
        if (!name.isEmpty() && !name.startsWith("security.") && !CopyAttribute(from, name, to))
            return false;
    }
    return true;
}

#else

bool CopyAttributes(const QByteArray&, const OpenFile&) {
    return true;
}

#endif

} // namespace

bool TakeOver(const QByteArray& path, const struct stat& old, const OpenFile& file) {
    const std::optional<struct stat> fresh = file.Status();
    if (!fresh)
        return false;
    const bool sameOwner = old.st_uid == fresh->st_uid && old.st_gid == fresh->st_gid;
    return (sameOwner || Calls().fchown(file.Number(), old.st_uid, old.st_gid) == 0) &&
           CopyAttributes(path, file) && Calls().fchmod(file.Number(), old.st_mode & 07777) == 0;
}

#endif
