// The page that the wizard writes, part by part: each a plain text from what was asked or built.
#pragma once

#include <QString>

class QDate;
class QLocale;

namespace WizardPage {

/// From the comment that names the program through the end of the head.
QString Head(const QString& title);
/// The body tag that was built, or a plain one where there is none.
QString Body(const QString& tag);
/// The opening of the centred part, with the top heading. Where there is no heading its break is written with
/// blanks inside, which a browser shows as text: that is what this part is.
QString Heading(const QString& heading);
QString Picture(const QString& tag);
/// What stands below the picture, and the end of the centred part.
QString Caption(const QString& caption);
/// The paragraphs and the end of the page. The date stands between two closing tags: no tag opens it.
QString End(const QString& paragraphs, const QDate& date, const QLocale& locale);

} // namespace WizardPage
