// A lock file that no other process has as long as this one lives.
#pragma once

#include <memory>
#include <QString>

/// The system frees the lock with the process, however that ends: who gets the lock knows that whoever had it
/// before is gone. The file goes with the object.
class ProcessLock {
  public:
    /// Makes the file (mode 0600) where it is missing, and locks it. Null where another has it, in this
    /// process too, or where it can't be locked at all.
    static std::unique_ptr<ProcessLock> Take(const QString& path);
    virtual ~ProcessLock() = default;
    ProcessLock(const ProcessLock&) = delete;
    ProcessLock& operator=(const ProcessLock&) = delete;

  protected:
    ProcessLock() = default;
};
