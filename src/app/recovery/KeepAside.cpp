#include "app/recovery/KeepAside.h"

#include "app/recovery/RecoveryFolder.h"
#include "platform/store/WholeFile.h"
#include "platform/values/Path.h"

#include <QFile>
#include <QFileInfo>

namespace {

// File systems take names of 255 bytes; the number stands in front.
constexpr qsizetype longestName = 200;
constexpr int mostOfOneName = 10'000;

/// The name, or as much of its end as fits: there stands what tells its kind.
QString ShortName(const QString& path) {
    QString name = Path::FileName(path);
    while (QFile::encodeName(name).size() > longestName)
        name.remove(0, name.front().isHighSurrogate() ? 2 : 1);
    return name;
}

/// Whether anything has the name, be it a link that leads nowhere.
bool IsTaken(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

} // namespace

std::optional<QString> KeepAside(const QString& path, QByteArrayView bytes) {
    const QString folder = MakeRecoveryFolder();
    const QString name = ShortName(path);
    for (int n = 1; n <= mostOfOneName; ++n) {
        QString kept = Path::Join(folder, QStringLiteral("kept-%1-").arg(n) + name);
        if (IsTaken(kept))
            continue;
        if (WholeFile::Write(kept, bytes, WholeFile::Readers::TheUserAlone))
            return kept;
        // Another program may have been quicker; else it is the folder or the disk that won't have it.
        if (!IsTaken(kept))
            return std::nullopt;
    }
    return std::nullopt;
}
