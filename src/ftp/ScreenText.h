// What the working thread has to show, on its way to the window.
#pragma once

#include "ftp/Screen.h"

#include <condition_variable>
#include <mutex>
#include <QString>

/// Holds a bounded amount: a server that floods makes its own thread wait, and not the window swell.
class ScreenText {
  public:
    /// In characters.
    static constexpr qsizetype Most = 1 << 18;
    static constexpr int MarksInALine = 64;

    struct Taken {
        QString text; ///< lines with their ends, and marks
        Progress progress;
    };

    /// These three tell whether there was nothing to take before. They wait while there is too much.
    bool AddLine(const QString& line);
    bool AddMark();
    bool Set(const Progress& progress);
    /// Everything since the last time.
    Taken Take();
    /// From now on nobody waits, and nothing more is kept.
    void Close();

  private:
    bool Add(std::unique_lock<std::mutex>& lock, const QString& text);

    std::mutex mutex_;
    std::condition_variable taken_;
    Taken held_;
    bool news_ = false;
    bool closed_ = false;
    int marks_ = 0;
};
