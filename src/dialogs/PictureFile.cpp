#include "dialogs/PictureFile.h"

#include "platform/store/WholeFile.h"

#include <QImageReader>
#include <QPixmap>

QPixmap ReadPicture(const QString& path) {
    if (WholeFile::Size(path) < 0)
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return QPixmap::fromImageReader(&reader);
}
