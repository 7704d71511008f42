#include "platform/desktop/FileRequest.h"

#include "platform/values/Path.h"

QStringList FileAnswer::Paths() const {
    QStringList paths;
    if (Cancelled())
        return paths;
    paths.reserve(names.size());
    for (const QString& name : names)
        paths += Path::Join(folder, name);
    return paths;
}

QString FileAnswer::Path() const {
    return Cancelled() ? QString() : Path::Join(folder, names.first());
}
