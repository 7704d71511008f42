// The log of the web timer: a line for each closing of it.
#pragma once

#include <QString>

class QDate;
class QLocale;

/// Program-wide values of the timer.
struct WebTimerState {
    /// The log. Lines end with CR LF but for the last, the oldest comes first.
    QString DateList;
};

/// The date in the short form of a locale, " - " and the time counted.
QString LogLine(const QDate& date, const QLocale& locale, const QString& time);

/// A log with a line more.
QString WithLine(const QString& log, const QString& line);
