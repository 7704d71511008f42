#include "tools/wizard/WizardPage.h"

#include "platform/values/Dates.h"

#include <QDate>

namespace WizardPage {

namespace {

const QString& LineEnd() {
    static const QString lineEnd = QStringLiteral("\r\n");
    return lineEnd;
}

} // namespace

QString Head(const QString& title) {
    return QStringLiteral(
               "<!--This document was created with The Tarnwick-->\r\n<HTML>\r\n<HEAD>\r\n<TITLE>") +
           title + QStringLiteral("</TITLE>\r\n</HEAD>");
}

QString Body(const QString& tag) {
    return LineEnd() + (tag.isEmpty() ? QStringLiteral("<BODY>") : tag) + LineEnd();
}

QString Heading(const QString& heading) {
    if (heading.isEmpty())
        return QStringLiteral("<CENTER>\r\n < BR > \r\n");
    return QStringLiteral("<CENTER><H1>") + heading + QStringLiteral("</H1>\r\n<BR>\r\n");
}

QString Picture(const QString& tag) {
    return tag + QStringLiteral("\r\n<BR>\r\n");
}

QString Caption(const QString& caption) {
    return caption + QStringLiteral("\r\n</CENTER>\r\n\r\n");
}

QString End(const QString& paragraphs, const QDate& date, const QLocale& locale) {
    return paragraphs + QStringLiteral("\r\n\r\n</H5>Created: ") + LongDate(date, locale) +
           QStringLiteral("</H5>\r\n</BODY>\r\n\r\n</HTML>");
}

} // namespace WizardPage
