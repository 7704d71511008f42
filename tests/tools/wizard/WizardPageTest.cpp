// The parts of the wizard's page, to the letter.
#include "tools/wizard/WizardPage.h"

#include "support/Text.h"
#include "tools/wizard/Paragraphs.h"

#include <gtest/gtest.h>
#include <QDate>
#include <QLocale>

namespace {

QString T(const char16_t* text) {
    return QString::fromUtf16(text);
}

TEST(WizardPage, Parts) {
    const std::pair<QString, const char16_t*> rows[] = {
        {WizardPage::Head(T(u"My page")), u"<!--This document was created with The "
                                          u"Tarnwick-->\r\n<HTML>\r\n<HEAD>\r\n<TITLE>My page</TITLE>\r\n"
                                          u"</HEAD>"},
        {WizardPage::Head(QString()), u"<!--This document was created with The "
                                      u"Tarnwick-->\r\n<HTML>\r\n<HEAD>\r\n<TITLE></TITLE>\r\n</HEAD>"},
        {WizardPage::Body(T(u"<BODY TEXT=\"x\">")), u"\r\n<BODY TEXT=\"x\">\r\n"},
        {WizardPage::Body(QString()), u"\r\n<BODY>\r\n"},
        {WizardPage::Heading(T(u"Hello")), u"<CENTER><H1>Hello</H1>\r\n<BR>\r\n"},
        {WizardPage::Heading(QString()), u"<CENTER>\r\n < BR > \r\n"},
        {WizardPage::Picture(T(u"<IMG>")), u"<IMG>\r\n<BR>\r\n"},
        {WizardPage::Picture(QString()), u"\r\n<BR>\r\n"},
        {WizardPage::Caption(T(u"Me")), u"Me\r\n</CENTER>\r\n\r\n"},
        {WizardPage::Caption(QString()), u"\r\n</CENTER>\r\n\r\n"},
        {WizardPage::End(T(u"<H3>a</H3>\r\n\r\n"), QDate(2023, 3, 5), QLocale::c()),
         u"<H3>a</H3>\r\n\r\n\r\n\r\n</H5>Created: Sunday, March 05, 2023</H5>\r\n</BODY>\r\n\r\n</HTML>"},
        {WizardPage::End(QString(), QDate(2023, 3, 5), QLocale(QLocale::German)),
         u"\r\n\r\n</H5>Created: Sonntag, M\u00e4rz 05, 2023</H5>\r\n</BODY>\r\n\r\n</HTML>"},
        // Whether a letter can be held is for the document to say.
        {WizardPage::End(QString(), QDate(2023, 3, 5), QLocale(QLocale::Greek)),
         u"\r\n\r\n</H5>Created: \u039a\u03c5\u03c1\u03b9\u03b1\u03ba\u03ae, "
         u"\u039c\u03b1\u03c1\u03c4\u03af\u03bf\u03c5 05, 2023</H5>\r\n</BODY>\r\n\r\n</HTML>"},
    };
    for (const auto& [part, text] : rows)
        EXPECT_EQ(part, T(text));
}

TEST(Paragraphs, AreThirdLevelHeadingsAndEmptyOnesAddNothing) {
    Paragraphs paragraphs;
    EXPECT_EQ(paragraphs.Text(), QString());
    paragraphs.Add(T(u"a"));
    paragraphs.Add(QString());
    paragraphs.Add(T(u"b"));
    EXPECT_EQ(paragraphs.Text(), T(u"<H3>a</H3>\r\n\r\n<H3>b</H3>\r\n\r\n"));
}

} // namespace
