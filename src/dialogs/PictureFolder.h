// What a person picks a picture from: a folder of the disk.
#pragma once

#include <QString>
#include <QVector>

struct PictureEntry {
    QString name;
    bool isFolder;
    bool operator==(const PictureEntry&) const = default;
};

/// The way up (".."), the folders, and the pictures, each sorted by name. Hidden entries are left out, and
/// what is no plain file; of a folder that can't be read the way up is all there is.
QVector<PictureEntry> PicturesOf(const QString& folder);
