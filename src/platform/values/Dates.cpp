#include "platform/values/Dates.h"

#include <QDate>
#include <QLocale>

QString LongDate(const QDate& date, const QLocale& locale) {
    return locale.toString(date, QStringLiteral("dddd, MMMM dd, yyyy"));
}

QString ShortDate(const QDate& date, const QLocale& locale) {
    return locale.toString(date, QLocale::ShortFormat);
}
