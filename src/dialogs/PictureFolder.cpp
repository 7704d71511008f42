#include "dialogs/PictureFolder.h"

#include "platform/store/WholeFile.h"

#include <QDir>

QVector<PictureEntry> PicturesOf(const QString& folder) {
    const QDir dir(folder);
    QVector<PictureEntry> entries;
    if (!dir.isRoot())
        entries.push_back({QStringLiteral(".."), true});
    const auto order = QDir::Name | QDir::IgnoreCase;
    for (const QString& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, order))
        entries.push_back({name, true});
    const QStringList pictures = {QStringLiteral("*.jpg"), QStringLiteral("*.gif"), QStringLiteral("*.png"),
                                  QStringLiteral("*.bmp")};
    for (const QString& name : dir.entryList(pictures, QDir::Files, order))
        if (WholeFile::Size(dir.filePath(name)) >= 0)
            entries.push_back({name, false});
    return entries;
}
