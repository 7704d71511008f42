// Whole files kept aside: each under a name of its own, for the user alone.
#include "app/recovery/KeepAside.h"

#include "platform/store/ProgramFolder.h"
#include "support/Files.h"
#include "support/FreshUser.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

mode_t ModeOf(const QString& path) {
    struct stat status = {};
    EXPECT_EQ(::stat(QFile::encodeName(path), &status), 0);
    return status.st_mode & 0777;
}

class KeptAside : public testing::Test {
  protected:
    KeptAside() { FreshUser(); }
    QString folder = InProgramFolder(QStringLiteral("recovery"));
};

TEST_F(KeptAside, FileLiesWholeInTheRecoveryFolderForTheUserAlone) {
    const QByteArray bytes("a\x1a\0b\r\n", 6);
    const std::optional<QString> kept = KeepAside(QStringLiteral("/home/u/site/index.htm"), bytes);
    ASSERT_EQ(kept, folder + QStringLiteral("/kept-1-index.htm"));
    EXPECT_EQ(ReadFile(*kept), bytes);
    EXPECT_EQ(ModeOf(*kept), 0600u);
    EXPECT_EQ(ModeOf(folder), 0700u);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(KeptAside, FilesOfOneNameStandBesideEachOther) {
    const QString first = QStringLiteral("/one/page.htm"), second = QStringLiteral("/two/page.htm");
    EXPECT_EQ(KeepAside(first, "1"), folder + QStringLiteral("/kept-1-page.htm"));
    EXPECT_EQ(KeepAside(second, "2"), folder + QStringLiteral("/kept-2-page.htm"));
    EXPECT_EQ(KeepAside(first, "3"), folder + QStringLiteral("/kept-3-page.htm"));
    EXPECT_EQ(ReadFile(folder + QStringLiteral("/kept-1-page.htm")), "1");
    EXPECT_EQ(ReadFile(folder + QStringLiteral("/kept-2-page.htm")), "2");
}

TEST_F(KeptAside, FreeNumberIsTakenAndALinkIsNotFollowed) {
    ASSERT_TRUE(KeepAside(QStringLiteral("/p.htm"), "1"));
    const QString target = TestFolder() + QStringLiteral("/target");
    ASSERT_TRUE(QFile::link(target, folder + QStringLiteral("/kept-2-p.htm")));
    EXPECT_EQ(KeepAside(QStringLiteral("/p.htm"), "3"), folder + QStringLiteral("/kept-3-p.htm"));
    EXPECT_FALSE(QFile::exists(target));
}

struct NameRow {
    QString path;
    QString name;
};

TEST_F(KeptAside, NameIsThatOfTheFileOrItsEnd) {
    const QString a = QStringLiteral("a"), accented = QStringLiteral("\u00e9");
    const NameRow rows[] = {
        {QStringLiteral("C:\\site\\a page.htm"), QStringLiteral("kept-1-a page.htm")},
        {QStringLiteral("bare.htm"), QStringLiteral("kept-1-bare.htm")},
        {QStringLiteral("/x/") + a.repeated(250) + QStringLiteral(".htm"),
         QStringLiteral("kept-1-") + a.repeated(196) + QStringLiteral(".htm")},
        {QStringLiteral("/x/") + accented.repeated(120) + QStringLiteral(".htm"),
         QStringLiteral("kept-1-") + accented.repeated(98) + QStringLiteral(".htm")},
        {QString(), QStringLiteral("kept-1-")},
    };
    for (const NameRow& row : rows)
        EXPECT_EQ(KeepAside(row.path, "x"), folder + u'/' + row.name) << row.path.toStdString();
}

TEST_F(KeptAside, FolderThatCannotBeMadeKeepsNothing) {
    WriteFile(folder, "a file in its place");
    EXPECT_EQ(KeepAside(QStringLiteral("/p.htm"), "1"), std::nullopt);
    EXPECT_EQ(ReadFile(folder), "a file in its place");
}

} // namespace
