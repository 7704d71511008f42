// The last events, told when the process crashes or hangs, so that the one behind it is known.
#pragma once

#include <array>
#include <atomic>
#include <QString>
#include <thread>

/// While it lives, a crash prints the last events and the stack to the standard error, and so does an event
/// that takes long, each once. One that takes hangSeconds ends the process. Only one lives at a time.
class EventLog {
  public:
    static constexpr int hangSeconds = 120;

    explicit EventLog(quint64 seed);
    ~EventLog();
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;

    /// An event is about to happen. Also the sign of life that is waited for.
    void Note(const QString& event);
    /// The last so many events, the newest last.
    QString Last(int count) const;
    int Count() const { return count_.load(); }
    quint64 Seed() const { return seed_; }

    /// Calls nothing that a signal's handler may not.
    void Print() const;

  private:
    static constexpr int lines = 256;
    static constexpr int width = 240;

    void Watch();

    quint64 seed_;
    std::atomic<int> count_ = 0;
    std::array<std::array<char, width>, lines> ring_{};
    std::atomic<bool> ends_ = false;
    pthread_t watched_;
    std::thread watch_;
};
