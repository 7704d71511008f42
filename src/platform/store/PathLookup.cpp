#include "platform/store/PathLookup.h"

#include <mutex>
#include <thread>
#include <utility>

struct PathLookup::Asked {
    Question question;
    std::mutex mutex;
    Receiver receiver; ///< none once the lookup is gone

    void Answer(const QString& path) {
        const bool answer = question(path);
        const std::lock_guard lock(mutex);
        if (receiver)
            receiver(path, answer);
    }
};

PathLookup::PathLookup(Question question, Receiver receiver) : asked_(std::make_shared<Asked>()) {
    asked_->question = std::move(question);
    asked_->receiver = std::move(receiver);
}

PathLookup::~PathLookup() {
    const std::lock_guard lock(asked_->mutex);
    asked_->receiver = nullptr;
}

void PathLookup::Ask(const QString& path) {
    // Not one of a pool's: the program's end would wait for it.
    std::thread([asked = asked_, path] { asked->Answer(path); }).detach();
}
