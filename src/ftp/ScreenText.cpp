#include "ftp/ScreenText.h"

#include <utility>

bool ScreenText::Add(std::unique_lock<std::mutex>& lock, const QString& text) {
    taken_.wait(lock, [this] { return closed_ || held_.text.size() < Most; });
    if (closed_)
        return false;
    held_.text += text;
    return !std::exchange(news_, true);
}

bool ScreenText::AddLine(const QString& line) {
    std::unique_lock lock(mutex_);
    const bool behindMarks = std::exchange(marks_, 0) > 0;
    return Add(lock, (behindMarks ? QStringLiteral("\n") : QString()) + line + u'\n');
}

bool ScreenText::AddMark() {
    std::unique_lock lock(mutex_);
    const bool full = ++marks_ == MarksInALine;
    if (full)
        marks_ = 0;
    return Add(lock, full ? QStringLiteral("#\n") : QStringLiteral("#"));
}

bool ScreenText::Set(const Progress& progress) {
    const std::unique_lock lock(mutex_);
    held_.progress = progress;
    return !std::exchange(news_, true);
}

ScreenText::Taken ScreenText::Take() {
    const std::unique_lock lock(mutex_);
    news_ = false;
    Taken taken = held_;
    held_.text.clear();
    taken_.notify_all();
    return taken;
}

void ScreenText::Close() {
    const std::unique_lock lock(mutex_);
    closed_ = true;
    taken_.notify_all();
}
