// The counters of the web timer.
#pragma once

#include <cstdint>
#include <QString>

/// Counts in steps of ten seconds, from zero.
class TimeCount {
  public:
    static constexpr int step = 10; ///< in seconds

    void Tick();
    /// "0 Hrs 0 Mins 0 Secs", without leading zeros.
    QString Text() const;

  private:
    std::int16_t seconds_ = 0;
    std::int32_t minutes_ = 0;
    std::int32_t hours_ = 0;
};
