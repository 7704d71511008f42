// Dates as people write them.
#pragma once

#include <QString>

class QDate;
class QLocale;

/// The weekday and month in full, in a locale's words, the day in two digits and the year in four
/// ("Sunday, March 05, 2023").
QString LongDate(const QDate& date, const QLocale& locale);

/// The short form of a locale ("3/5/23", "05.03.23").
QString ShortDate(const QDate& date, const QLocale& locale);
