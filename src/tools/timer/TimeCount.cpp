#include "tools/timer/TimeCount.h"

void TimeCount::Tick() {
    seconds_ = static_cast<std::int16_t>(seconds_ + step);
    if (seconds_ >= 60) {
        seconds_ = 0;
        ++minutes_;
    }
    if (minutes_ >= 60) {
        minutes_ = 0;
        ++hours_;
    }
}

QString TimeCount::Text() const {
    return QStringLiteral("%1 Hrs %2 Mins %3 Secs").arg(hours_).arg(minutes_).arg(seconds_);
}
