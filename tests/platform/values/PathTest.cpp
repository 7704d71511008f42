// Paths in both forms.
#include "platform/values/Path.h"

#include "support/FreshUser.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>

namespace {

void Touch(const QString& path) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

} // namespace

TEST(Path, PartsInBothForms) {
    struct Row {
        QStringView path;
        char16_t separator;
        int root;
        QStringView folder;
        QStringView name;
    };
    const Row rows[] = {
        {u"C:\\site\\a.htm", u'\\', 3, u"C:\\site\\", u"a.htm"},
        {u"/home/u/site/a.htm", u'/', 1, u"/home/u/site/", u"a.htm"},
        {u"/a.htm", u'/', 1, u"/", u"a.htm"},
        {u"/odd\\name", u'/', 1, u"/", u"odd\\name"},
        {u"C:\\a.htm", u'\\', 3, u"C:\\", u"a.htm"},
        {u"site\\a.htm", u'\\', 0, u"site\\", u"a.htm"},
        {u"C:\\site\\", u'\\', 3, u"C:\\site\\", u""},
        {u"C:\\a/b", u'\\', 3, u"C:\\", u"a/b"},
    };
    for (const Row& row : rows) {
        const QString path = row.path.toString();
        SCOPED_TRACE(path.toStdString());
        EXPECT_EQ(Path::Separator(path), QChar(row.separator));
        EXPECT_EQ(Path::RootLength(path), row.root);
        EXPECT_EQ(Path::Folder(path), row.folder.toString());
        EXPECT_EQ(Path::FileName(path), row.name.toString());
    }
}

TEST(Path, BareNameHasTheSystemsSeparatorAndNoFolder) {
    EXPECT_EQ(Path::Separator(QStringLiteral("a.htm")), QDir::separator());
    EXPECT_EQ(Path::RootLength(QStringLiteral("a.htm")), 0);
    EXPECT_EQ(Path::RootLength(QString()), 0);
    EXPECT_EQ(Path::Folder(QStringLiteral("a.htm")), QString());
    EXPECT_EQ(Path::FileName(QStringLiteral("a.htm")), QStringLiteral("a.htm"));
}

TEST(Path, JoinPutsASeparatorOfTheFoldersFormWhereItLacksOne) {
    EXPECT_EQ(Path::Join(QStringLiteral("C:\\site"), QStringLiteral("a.htm")),
              QStringLiteral("C:\\site\\a.htm"));
    EXPECT_EQ(Path::Join(QStringLiteral("C:\\site\\"), QStringLiteral("a.htm")),
              QStringLiteral("C:\\site\\a.htm"));
    EXPECT_EQ(Path::Join(QStringLiteral("/home/u"), QStringLiteral("a.htm")),
              QStringLiteral("/home/u/a.htm"));
    EXPECT_EQ(Path::Join(QStringLiteral("/"), QStringLiteral("a.htm")), QStringLiteral("/a.htm"));
    EXPECT_EQ(Path::Join(QString(), QStringLiteral("a.htm")), QStringLiteral("a.htm"));
}

TEST(Path, NameOnDiskIsTheBareNameOrNothing) {
    FreshUser();
    const QString folder = TestFolder();
    Touch(folder + QStringLiteral("/Page.htm"));
    Touch(folder + QStringLiteral("/.hidden"));
    ASSERT_TRUE(QDir(folder).mkdir(QStringLiteral("Sub")));
    EXPECT_EQ(Path::NameOnDisk(folder + QStringLiteral("/Page.htm")), QStringLiteral("Page.htm"));
    EXPECT_EQ(Path::NameOnDisk(folder + QStringLiteral("/.hidden")), QStringLiteral(".hidden"));
    EXPECT_EQ(Path::NameOnDisk(folder + QStringLiteral("/Sub")), QStringLiteral("Sub"));
    EXPECT_EQ(Path::NameOnDisk(folder + QStringLiteral("/none.htm")), QString());
    EXPECT_EQ(Path::NameOnDisk(QString()), QString());
}

TEST(Path, FindNameIgnoresCaseButPrefersTheExactOne) {
    FreshUser();
    const QString folder = TestFolder();
    Touch(folder + QStringLiteral("/Logo.GIF"));
    EXPECT_EQ(Path::FindName(folder, QStringLiteral("logo.gif")), QStringLiteral("Logo.GIF"));
    Touch(folder + QStringLiteral("/LOGO.gif"));
    EXPECT_EQ(Path::FindName(folder, QStringLiteral("logo.gif")), QStringLiteral("LOGO.gif"))
        << "first in order";
    EXPECT_EQ(Path::FindName(folder, QStringLiteral("Logo.GIF")), QStringLiteral("Logo.GIF"));
    EXPECT_EQ(Path::FindName(folder, QStringLiteral("other.gif")), QString());
    EXPECT_EQ(Path::FindName(folder, QString()), QString());
    EXPECT_EQ(Path::FindName(folder + QStringLiteral("/gone"), QStringLiteral("logo.gif")), QString());
}
