// One piece of work at a time beside the event loop.
#pragma once

#include <functional>
#include <memory>
#include <QObject>
#include <QThread>

/// Its end waits for the work; what was to follow it then does not come any more.
class Background final : public QObject {
  public:
    using QObject::QObject;
    ~Background() override {
        if (thread_)
            thread_->wait();
    }

    bool Busy() const { return thread_ != nullptr; }
    /// Does the work in a thread of its own, and what follows it in this one, in a later turn of the event
    /// loop. No one may touch what the work touches meanwhile. Not while busy.
    void Run(std::function<void()> work, std::function<void()> then) {
        thread_.reset(QThread::create(std::move(work)));
        connect(thread_.get(), &QThread::finished, this, [this, then = std::move(then)] {
            thread_->wait();
            // Kept until this handler, which belongs to its connection, has run.
            thread_.release()->deleteLater();
            then();
        });
        thread_->start();
    }

  private:
    std::unique_ptr<QThread> thread_;
};
