#include "platform/store/ProcessLock.h"

#ifdef Q_OS_UNIX
#include "platform/store/FileCalls.h"
#include "platform/store/OpenFile.h"

#include <QFile>
#else
#include <QLockFile>
#endif

namespace {

#ifdef Q_OS_UNIX

class SystemLock final : public ProcessLock {
  public:
    explicit SystemLock(const QByteArray& name)
        : name_(name), file_(name, O_RDWR | O_CREAT | O_NOFOLLOW, 0600),
          isHeld_(file_.IsOpen() && file_.Lock()) {}
    ~SystemLock() override {
        if (isHeld_)
            Calls().unlink(name_.constData());
    }
    bool IsHeld() const { return isHeld_; }

  private:
    QByteArray name_;
    OpenFile file_;
    bool isHeld_;
};

std::unique_ptr<SystemLock> LockOf(const QString& path) {
    return std::make_unique<SystemLock>(QFile::encodeName(path));
}

#else

class SystemLock final : public ProcessLock {
  public:
    explicit SystemLock(const QString& path) : lock_(path) {
        // Only the end of the process that holds it makes a lock stale, never its age.
        lock_.setStaleLockTime(0);
        lock_.tryLock(0);
    }
    bool IsHeld() const { return lock_.isLocked(); }

  private:
    QLockFile lock_;
};

std::unique_ptr<SystemLock> LockOf(const QString& path) {
    return std::make_unique<SystemLock>(path);
}

#endif

} // namespace

std::unique_ptr<ProcessLock> ProcessLock::Take(const QString& path) {
    std::unique_ptr<SystemLock> lock = LockOf(path);
    if (!lock->IsHeld())
        lock.reset();
    return lock;
}
