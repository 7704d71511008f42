#include "tools/timer/DateLog.h"

#include "platform/values/Dates.h"

QString LogLine(const QDate& date, const QLocale& locale, const QString& time) {
    return ShortDate(date, locale) + QStringLiteral(" - ") + time;
}

QString WithLine(const QString& log, const QString& line) {
    return log.isEmpty() ? line : log + QStringLiteral("\r\n") + line;
}
