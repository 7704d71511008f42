#include "app/documents/FilesThere.h"

#include "platform/store/WholeFile.h"

FilesThere::FilesThere(QObject* parent)
    : QObject(parent),
      lookup_([](const QString& path) { return WholeFile::Size(path) > 0; },
              [this](const QString& path, bool there) {
                  QMetaObject::invokeMethod(
                      this, [this, path, there] { Take(path, there); }, Qt::QueuedConnection);
              }) {}

void FilesThere::Ask(const QString& path) {
    if (asked_.contains(path))
        return;
    asked_ << path;
    lookup_.Ask(path);
}

void FilesThere::Take(const QString& path, bool there) {
    asked_.remove(path);
    Q_EMIT Answered(path, there);
}
