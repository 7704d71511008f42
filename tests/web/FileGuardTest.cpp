// What a page from the disk may frame.
#include "web/FileGuard.h"

#include "web/PageFiles.h"

#include <QDir>

namespace {

struct Row {
    const char* page;
    const char* file;
    bool shown;
};

const Row rows[] = {
    {"site/a.htm", "site/b.htm", true},
    {"site/a.htm", "site/sub/b.htm", true},
    {"site/a.htm", "site/sub/../b.htm", true},
    {"site/a.htm", "site/missing.htm", false},
    // Openly above or aside, as a browser does.
    {"site/sub/a.htm", "site/b.htm", true},
    {"site/sub/a.htm", "site/sub/../b.htm", true},
    {"site/a.htm", "other/b.htm", true},
    // Lists of folders.
    {"site/a.htm", "site/sub", false},
    {"site/a.htm", "site/sub/", false},
    {"site/a.htm", "other", false},
    // Hidden files and folders.
    {"site/a.htm", "site/.b.htm", false},
    {"site/a.htm", "site/.git/b.htm", false},
    {"site/a.htm", ".hidden/b.htm", false},
    {".hidden/a.htm", ".hidden/b.htm", true},
    // Links that lead out of what the two addresses have in common, and links that stay within.
    {"site/a.htm", "site/out.htm", false},
    {"site/a.htm", "site/outside/b.htm", false},
    {"site/a.htm", "site/outside/sub/../b.htm", false},
    {"site/a.htm", "site/hidden.htm", false},
    {"site/a.htm", "site/within.htm", true},
    {"site/sub/a.htm", "site/out.htm", false},
    {"alias/a.htm", "alias/b.htm", true},
    {"alias/sub/a.htm", "alias/b.htm", true},
    {"alias/a.htm", "site/b.htm", true},
};

void MakeSite() {
    FreshUser();
    const QDir folder(TestFolder());
    for (const char* name : {"site/sub", "site/.git", "other/sub", ".hidden"})
        ASSERT_TRUE(folder.mkpath(QString::fromLatin1(name)));
    for (const char* name :
         {"site/b.htm", "site/sub/b.htm", "site/.b.htm", "site/.git/b.htm", "other/b.htm", ".hidden/b.htm"})
        PageFiles::Write(QString::fromLatin1(name), "x");
    for (const auto& [link, target] : {std::pair{"site/out.htm", "other/b.htm"},
                                       {"site/outside", "other"},
                                       {"site/hidden.htm", "site/.b.htm"},
                                       {"site/within.htm", "site/sub/b.htm"},
                                       {"alias", "site"}})
        ASSERT_TRUE(QFile::link(folder.filePath(QString::fromLatin1(target)),
                                folder.filePath(QString::fromLatin1(link))));
}

TEST(FileGuard, AFrameShowsFilesOfTheSiteAndNoneByAWayRound) {
    MakeSite();
    const QString folder = TestFolder() + u'/';
    for (const Row& row : rows)
        EXPECT_EQ(FileGuard::MayShow(folder + QLatin1String(row.page), folder + QLatin1String(row.file)),
                  row.shown)
            << row.page << " " << row.file;
    EXPECT_FALSE(FileGuard::MayShow(QString(), folder + QStringLiteral("site/b.htm")));
}

} // namespace
