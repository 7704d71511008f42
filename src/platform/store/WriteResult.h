// What became of a save.
#pragma once

#include <QString>

/// True where the file was written; else it tells why not.
class WriteResult {
  public:
    WriteResult() = default;
    /// The reason is in words that a person reads: "No space left on device".
    static WriteResult Failed(const QString& reason) {
        WriteResult result;
        result.reason_ = reason.isEmpty() ? QStringLiteral("Unknown error") : reason;
        return result;
    }

    operator bool() const { return reason_.isEmpty(); }
    /// Empty where the file was written.
    const QString& Reason() const { return reason_; }

  private:
    QString reason_;
};
