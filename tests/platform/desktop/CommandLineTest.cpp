// The one path that the program is started with.
#include "platform/desktop/CommandLine.h"

#include "support/FreshUser.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>

namespace {

QString Here(const char* name) {
    return TestFolder() + u'/' + QString::fromLatin1(name);
}

void Touch(const QString& path) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

} // namespace

TEST(CommandLine, ExistingNameBecomesAFullPathAllElseStays) {
    FreshUser();
    Touch(Here("a.htm"));
    Touch(Here("two words.htm"));
    ASSERT_TRUE(QDir(TestFolder()).mkdir(QStringLiteral("sub")));
    Touch(Here("sub/b.htm"));
    struct Row {
        QStringList arguments;
        QString line;
    };
    const QString working = TestFolder();
    const Row rows[] = {
        {{}, QString()},
        {{QStringLiteral("a.htm")}, Here("a.htm")},
        {{QStringLiteral("./a.htm")}, Here("a.htm")},
        {{QStringLiteral("sub/../a.htm")}, Here("a.htm")},
        {{QStringLiteral("sub/b.htm")}, Here("sub/b.htm")},
        {{QStringLiteral("two words.htm")}, Here("two words.htm")},
        {{QStringLiteral("two"), QStringLiteral("words.htm")}, Here("two words.htm")},
        {{QStringLiteral("none.htm")}, QStringLiteral("none.htm")},
        {{QStringLiteral("sub")}, QStringLiteral("sub")},
        {{QStringLiteral("\"a.htm\"")}, QStringLiteral("\"a.htm\"")},
        {{QStringLiteral("a.htm"), QStringLiteral("none.htm")}, QStringLiteral("a.htm none.htm")},
        {{QStringLiteral("/no/such//file.htm")}, QStringLiteral("/no/such//file.htm")},
        {{Here("a.htm")}, Here("a.htm")},
    };
    for (const Row& row : rows)
        EXPECT_EQ(CommandLine(row.arguments, working), row.line) << row.arguments.join(u'|').toStdString();
}
