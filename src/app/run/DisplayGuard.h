// A start without a display.
#pragma once

/// Stands around the construction of the application object. Where no display can be opened the toolkit has a
/// page of advice for developers and aborts: the process then says one sentence on the standard error and
/// ends with 1 instead. What the toolkit has to say about a display that works comes out when the guard goes.
class DisplayGuard {
  public:
    DisplayGuard();
    ~DisplayGuard();
    DisplayGuard(const DisplayGuard&) = delete;
    DisplayGuard& operator=(const DisplayGuard&) = delete;
};
