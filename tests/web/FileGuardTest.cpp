// What a page from the disk may frame.
#include "web/FileGuard.h"

#include <gtest/gtest.h>

TEST(FileGuard, BesideIsTheFolderAndBelow) {
    struct Row {
        const char* page;
        const char* file;
        bool beside;
    };
    const Row rows[] = {
        {"/site/a.htm", "/site/b.htm", true},        {"/site/a.htm", "/site/sub/b.htm", true},
        {"/site/a.htm", "/site/sub/../b.htm", true}, {"/site/a.htm", "/b.htm", false},
        {"/site/a.htm", "/site/../b.htm", false},    {"/site/a.htm", "/sites/b.htm", false},
        {"/site/a.htm", "/site/.b.htm", false},      {"/site/a.htm", "/site/.git/config", false},
        {"/site/a.htm", "/etc/passwd", false},       {"", "/etc/passwd", false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(FileGuard::LiesBeside(QString::fromLatin1(row.page), QString::fromLatin1(row.file)),
                  row.beside)
            << row.page << " " << row.file;
}
