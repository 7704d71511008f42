// The words of the question about pages that were not saved.
#include "app/recovery/RecoverQuestion.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

QStringList Pages(int count) {
    QStringList paths;
    for (int n = 1; n <= count; ++n)
        paths << QStringLiteral("/site/%1.htm").arg(n);
    return paths;
}

struct Row {
    QStringList paths;
    const char* question;
};

TEST(RecoverQuestions, NameThePages) {
    const Row rows[] = {
        {Pages(1), "Recover a page that was not saved?\r\n\r\n/site/1.htm\r\n\r\n"
                   "No gives its changes up for good."},
        {{QString()},
         "Recover a page that was not saved?\r\n\r\na page without a file\r\n\r\n"
         "No gives its changes up for good."},
        {{QStringLiteral("C:\\site\\a.htm"), QString()},
         "Recover 2 pages that were not saved?\r\n\r\nC:\\site\\a.htm\r\na page without a file\r\n\r\n"
         "No gives their changes up for good."},
        {Pages(6), "Recover 6 pages that were not saved?\r\n\r\n/site/1.htm\r\n/site/2.htm\r\n/site/3.htm\r\n"
                   "/site/4.htm\r\n/site/5.htm\r\n/site/6.htm\r\n\r\nNo gives their changes up for good."},
        {Pages(30),
         "Recover 30 pages that were not saved?\r\n\r\n/site/1.htm\r\n/site/2.htm\r\n/site/3.htm\r\n"
         "/site/4.htm\r\n/site/5.htm\r\nand 25 more\r\n\r\nNo gives their changes up for good."},
    };
    for (const Row& row : rows)
        EXPECT_EQ(RecoverQuestion(row.paths), QString::fromLatin1(row.question));
}

TEST(RecoverQuestions, CutALongPathInTheMiddle) {
    const QString longest = u'/' + QStringLiteral("x").repeated(55);
    EXPECT_TRUE(RecoverQuestion({longest}).contains(longest));
    const QString path = QStringLiteral("/home/somebody/site/with/") + QStringLiteral("deep/").repeated(30) +
                         QStringLiteral("page.htm");
    const QString line = RecoverQuestion({path}).split(QStringLiteral("\r\n")).at(2);
    EXPECT_EQ(line.size(), 56);
    EXPECT_TRUE(line.startsWith(QStringLiteral("/home/somebody/s\u2026"))) << line.toStdString();
    EXPECT_TRUE(line.endsWith(QStringLiteral("deep/page.htm")));
}

} // namespace
