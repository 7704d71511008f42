// Project files: fixed records, byte by byte, and whatever may stand where one is expected.
#include "tools/projects/ProjectFile.h"

#include "platform/store/ProgramFolder.h"
#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/NoPlainFile.h"
#include "support/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

QByteArray Record(const char* bytes) {
    return QByteArray(bytes).leftJustified(256, ' ');
}

QString Line(const QString& path) {
    return path.leftJustified(256);
}

class ProjectFileTest : public testing::Test {
  protected:
    void SetUp() override { FreshUser(); }

    QStringList LoadOf(const QByteArray& bytes) {
        WriteFile(path, bytes);
        return LoadProjectFile(path);
    }
    QByteArray SavedOf(const QStringList& lines) {
        WriteFile(path);
        EXPECT_TRUE(SaveProjectFile(path, lines));
        return ReadFile(path);
    }

    const QString path = TestFolder() + u"/site.tnw"_s;
};

TEST_F(ProjectFileTest, IsNamedFromItsProjectInTheProgramsFolder) {
    EXPECT_EQ(ProjectPath(u"My site"_s), ProgramFolder() + u"/My site.tnw"_s);
    EXPECT_EQ(ProjectPath(QString()), QString());
    // No name is refused.
    EXPECT_EQ(ProjectPath(u"../x"_s), ProgramFolder() + u"/../x.tnw"_s);
}

TEST_F(ProjectFileTest, ALineIsARecordWithItsPadding) {
    EXPECT_THAT(LoadOf(Record("/home/u/a.htm") + Record("C:\\site\\b.htm")),
                ElementsAre(Line(u"/home/u/a.htm"_s), Line(u"C:\\site\\b.htm"_s)));
    EXPECT_THAT(LoadOf(Record("")), ElementsAre(Line({})));
    EXPECT_THAT(LoadOf({}), IsEmpty());
}

TEST_F(ProjectFileTest, ACutRecordIsNoLine) {
    const QByteArray one(256, 'x');
    EXPECT_THAT(LoadOf(one.first(255)), IsEmpty());
    EXPECT_EQ(LoadOf(one).size(), 1);
    EXPECT_EQ(LoadOf(one + QByteArray(44, 'y')), QStringList(QString(256, u'x')));
    EXPECT_EQ(LoadOf(one + one.first(255)).size(), 1);
    EXPECT_EQ(LoadOf(one + one).size(), 2);
}

TEST_F(ProjectFileTest, AByteIsACharacter) {
    QByteArray all;
    for (int code = 0; code < 256; ++code)
        all += static_cast<char>(code);
    const QStringList lines = LoadOf(all);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines[0].size(), 256);
    EXPECT_EQ(lines[0][0xE9], QChar(u'é'));
    EXPECT_EQ(lines[0][0x80], QChar(u'€'));
    EXPECT_EQ(SavedOf(lines), all);
    EXPECT_EQ(SavedOf({u"/é€.htm"_s}), Record("/\xE9\x80.htm"));
}

TEST_F(ProjectFileTest, APathWithOtherCharactersIsFoundAgain) {
    const QString path = u"/home/u/日本/☃.htm"_s;
    const QByteArray bytes = SavedOf({path, u"/é.htm"_s});
    EXPECT_EQ(bytes, Record("/home/u/日本/☃.htm") + Record("/\xE9.htm"));
    EXPECT_THAT(LoadOf(bytes), ElementsAre(Line(path), Line(u"/é.htm"_s)));
    // A cut takes no character apart.
    const QByteArray cut = SavedOf({u"/"_s + QString(300, u'☃')});
    EXPECT_EQ(cut, "/" + QByteArray("☃").repeated(85));
    EXPECT_EQ(SavedOf({u"//"_s + QString(300, u'☃')}), "//" + QByteArray("☃").repeated(84) + "  ");
}

TEST_F(ProjectFileTest, APathIsCutBehind256Characters) {
    for (const int length : {1, 255, 256, 257, 4000}) {
        const QString path = u'/' + QString(length - 1, u'x');
        const QByteArray bytes = SavedOf({path});
        ASSERT_EQ(bytes.size(), 256) << length;
        EXPECT_THAT(LoadOf(bytes), ElementsAre(Line(path.left(256)))) << length;
    }
}

TEST_F(ProjectFileTest, TheFileIsAsLongAsItsLines) {
    EXPECT_EQ(SavedOf({u"a"_s, u"b"_s, u""_s}), Record("a") + Record("b") + Record(""));
    EXPECT_EQ(SavedOf({}), QByteArray());
    // What was longer before leaves nothing behind.
    WriteFile(path, QByteArray(1000, 'x'));
    EXPECT_TRUE(SaveProjectFile(path, {u"a"_s}));
    EXPECT_EQ(ReadFile(path), Record("a"));
}

TEST_F(ProjectFileTest, LoadingAndSavingIsStable) {
    const QByteArray bytes = Record("/a.htm  ") + Record("  /b.htm") + Record("");
    EXPECT_EQ(SavedOf(LoadOf(bytes)), bytes);
}

TEST_F(ProjectFileTest, ALookAtAMissingFileCreatesIt) {
    EXPECT_THAT(LoadProjectFile(path), IsEmpty());
    EXPECT_EQ(ReadFile(path), QByteArray());
    EXPECT_THAT(LoadProjectFile(TestFolder() + u"/no folder/x.tnw"_s), IsEmpty());
    EXPECT_THAT(LoadProjectFile(TestFolder() + u'/' + QString(300, u'x')), IsEmpty());
    EXPECT_THAT(LoadProjectFile({}), IsEmpty());
}

TEST_F(ProjectFileTest, SavingCreatesNone) {
    EXPECT_FALSE(SaveProjectFile(path, {u"a"_s}));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_FALSE(SaveProjectFile({}, {u"a"_s}));
}

TEST_F(ProjectFileTest, WhatIsNoPlainFileIsLeftAlone) {
    const QStringList files = NoPlainFiles();
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        EXPECT_THAT(LoadProjectFile(file), IsEmpty()) << file.toStdString();
        EXPECT_FALSE(SaveProjectFile(file, {u"a"_s})) << file.toStdString();
        EXPECT_FALSE(QFileInfo(file).isFile()) << file.toStdString();
    }
}

TEST_F(ProjectFileTest, ModeAndLinkStay) {
    const QString link = TestFolder() + u"/link.tnw"_s;
    WriteFile(path, Record("old"));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    ASSERT_TRUE(QFile::link(path, link));
    EXPECT_TRUE(SaveProjectFile(link, {u"new"_s}));
    EXPECT_EQ(ReadFile(path), Record("new"));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(path), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640u);
}

TEST_F(ProjectFileTest, MoreRecordsThanCanBeCountedAreNone) {
    constexpr int most = 32767;
    WriteFile(path);
    ASSERT_TRUE(QFile::resize(path, 256 * most + 255));
    EXPECT_EQ(LoadProjectFile(path).size(), most);
    ASSERT_TRUE(QFile::resize(path, 256 * (most + 1)));
    EXPECT_THAT(LoadProjectFile(path), IsEmpty());
    EXPECT_EQ(QFileInfo(path).size(), 256 * (most + 1));
    // So no more are written than can be read.
    EXPECT_EQ(SavedOf(QStringList(most + 5, u"a"_s)).size(), 256 * most);
}

} // namespace
