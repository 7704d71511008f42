// Replacing over files: what each holds afterwards, whatever fails.
#include "tools/find/ReplaceInFiles.h"

#include "editor/frame/TellFailedSave.h"
#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/NoPlainFile.h"
#include "tools/find/BytesReplacement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class ReplaceInFilesTest : public testing::Test {
  protected:
    void SetUp() override { FreshUser(); }

    static QString At(const char* name) { return TestFolder() + u'/' + QString::fromLatin1(name); }
    static QString Make(const char* name, const QByteArray& content) {
        WriteFile(At(name), content);
        return At(name);
    }
    void Run(const QStringList& paths, const QString& find = u"a"_s, const QString& replacement = u"b"_s) {
        numbers.clear();
        failed = ReplaceInFiles(paths, BytesReplacement(find, replacement, Compare::Exact),
                                [&](int number) { numbers.push_back(number); });
    }

    std::vector<int> numbers;
    FailedSaves failed;
};

TEST_F(ReplaceInFilesTest, EachFileGetsALineEnd) {
    const QString one = Make("one", "cat\r\n");
    const QString none = Make("none", "x");
    const QString empty = Make("empty", "");
    Run({one, none, empty});
    EXPECT_EQ(ReadFile(one), "cbt\r\n\r\n");
    EXPECT_EQ(ReadFile(none), "x\r\n");
    EXPECT_EQ(ReadFile(empty), "\r\n");
    EXPECT_THAT(numbers, ElementsAre(1, 2, 3));
    EXPECT_EQ(failed.count, 0);
    Run({});
    EXPECT_THAT(numbers, ElementsAre());
}

TEST_F(ReplaceInFilesTest, AnEmptySearchTextIsFoundNowhere) {
    const QString one = Make("one", "cat");
    Run({one}, QString(), u"x"_s);
    EXPECT_EQ(ReadFile(one), "cat\r\n");
}

TEST_F(ReplaceInFilesTest, AFileListedTwiceIsTakenTwice) {
    const QString one = Make("one", "a");
    Run({one, one}, u"a"_s, u"aa"_s);
    EXPECT_EQ(ReadFile(one), "aaaa\r\n\r\n");
}

TEST_F(ReplaceInFilesTest, BytesStandAsTheyAre) {
    QByteArray all;
    for (int code = 255; code >= 0; --code)
        all += static_cast<char>(code);
    const QString file = Make("bytes", all + "\x1A\n\r");
    Run({file}, u"nowhere"_s);
    EXPECT_EQ(ReadFile(file), all + "\x1A\n\r\r\n");
}

TEST_F(ReplaceInFilesTest, AFileThatCannotBeReadGetsTheTextOfTheOneBefore) {
    const QString one = Make("one", "a1");
    Run({At("first"), one, At("second"), At("third")}, u"a"_s, u"aa"_s);
    EXPECT_EQ(ReadFile(At("first")), "\r\n");
    EXPECT_EQ(ReadFile(one), "aa1\r\n");
    // It is scanned again.
    EXPECT_EQ(ReadFile(At("second")), "aaaa1\r\n");
    EXPECT_EQ(ReadFile(At("third")), "aaaaaaaa1\r\n");
}

TEST_F(ReplaceInFilesTest, WhatCannotBeWrittenStays) {
    const QString one = Make("one", "a");
    const QStringList files = NoPlainFiles();
    ASSERT_FALSE(files.isEmpty());
    Run(QStringList{one} + files + QStringList{At("no folder/x"), QString(), At("new")});
    for (const QString& file : files)
        EXPECT_FALSE(QFileInfo(file).isFile()) << file.toStdString();
    EXPECT_FALSE(QFileInfo::exists(At("no folder")));
    EXPECT_EQ(ReadFile(At("new")), "b\r\n");
    EXPECT_EQ(failed.count, files.size() + 2);
    EXPECT_EQ(failed.first, files.first());
    EXPECT_EQ(failed.reason, u"Operation not supported"_s);
}

TEST_F(ReplaceInFilesTest, AReadOnlyFileStaysWhole) {
    const QString file = Make("fixed", "a");
    ASSERT_EQ(::chmod(QFile::encodeName(file), 0444), 0);
    Run({file});
    // Nothing keeps the superuser from writing.
    EXPECT_EQ(ReadFile(file), ::geteuid() == 0 ? "b\r\n" : "a");
}

TEST_F(ReplaceInFilesTest, ModeAndLinkStay) {
    const QString file = Make("real", "a");
    const QString link = At("link");
    ASSERT_EQ(::chmod(QFile::encodeName(file), 0750), 0);
    ASSERT_TRUE(QFile::link(file, link));
    Run({link});
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(file), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0750u);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(ReadFile(file), "b\r\n");
}

} // namespace
