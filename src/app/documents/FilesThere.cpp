#include "app/documents/FilesThere.h"

#include "platform/store/WholeFile.h"

#include <mutex>
#include <thread>

struct FilesThere::Receiver {
    std::mutex mutex;
    FilesThere* there; ///< null once it is gone
};

FilesThere::FilesThere(QObject* parent) : QObject(parent), receiver_(std::make_shared<Receiver>()) {
    receiver_->there = this;
}

FilesThere::~FilesThere() {
    const std::lock_guard lock(receiver_->mutex);
    receiver_->there = nullptr;
}

void FilesThere::Ask(const QString& path) {
    if (asked_.contains(path))
        return;
    asked_ << path;
    const auto ask = [receiver = receiver_, path] {
        const bool there = WholeFile::Size(path) > 0;
        const std::lock_guard lock(receiver->mutex);
        if (FilesThere* asker = receiver->there)
            QMetaObject::invokeMethod(
                asker, [asker, path, there] { asker->Take(path, there); }, Qt::QueuedConnection);
    };
    // Not one of a pool's: the program's end would wait for it.
    std::thread(ask).detach();
}

void FilesThere::Take(const QString& path, bool there) {
    asked_.remove(path);
    Q_EMIT Answered(path, there);
}
