// Replacing from left to right: rows, and long texts against Qt's own.
#include "platform/values/ReplaceAll.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char16_t* text;
    const char16_t* find;
    const char16_t* replacement;
    const char16_t* result;
};

const Row rows[] = {
    {u"", u"a", u"b", u""},
    {u"abc", u"", u"x", u"abc"},
    {u"abc", u"d", u"x", u"abc"},
    {u"abcabc", u"b", u"", u"acac"},
    {u"aaa", u"aa", u"b", u"ba"},
    {u"aaa", u"a", u"aa", u"aaaaaa"},
    {u"a\r\nb\r\n", u"\r\n", u"\r\n<LI>", u"a\r\n<LI>b\r\n<LI>"},
    {u"abAB", u"ab", u"x", u"xAB"},
};

TEST(ReplaceAll, Rows) {
    for (const Row& row : rows)
        EXPECT_EQ(ReplaceAll(QString::fromUtf16(row.text), QString::fromUtf16(row.find),
                             QString::fromUtf16(row.replacement)),
                  QString::fromUtf16(row.result));
}

TEST(ReplaceAll, CaseIsIgnoredWhereAskedFor) {
    const QString text = QStringLiteral("abABaB\u00c9\u00e9");
    EXPECT_EQ(ReplaceAll(text, QStringLiteral("ab"), QStringLiteral("x"), Qt::CaseInsensitive),
              QStringLiteral("xxx\u00c9\u00e9"));
    EXPECT_EQ(ReplaceAll(text, QStringLiteral("\u00e9"), QStringLiteral("x"), Qt::CaseInsensitive),
              QStringLiteral("abABaBxx"));
}

TEST(ReplaceAll, ManyMatchesAreReplacedAsFew) {
    QString text;
    for (int i = 0; i < 20'000; ++i)
        text += QStringLiteral("line %1\r\n").arg(i % 7);
    for (const QString& replacement :
         {QStringLiteral("\n"), QStringLiteral("<BR>\r\n"), QStringLiteral("xy")})
        EXPECT_TRUE(ReplaceAll(text, QStringLiteral("\r\n"), replacement) ==
                    QString(text).replace(QStringLiteral("\r\n"), replacement));
}

} // namespace
