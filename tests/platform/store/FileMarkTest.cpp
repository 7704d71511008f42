// Whether a file is still the one that was seen.
#include "platform/store/FileMark.h"

#include "platform/store/WholeFile.h"
#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/NoPlainFile.h"

#include <array>
#include <fcntl.h>

namespace {

using Now = FileMark::Now;

class FileMarkTest : public testing::Test {
  protected:
    FileMarkTest() {
        FreshUser();
        WriteFile(path, "old");
        mark = FileMark::Of(path);
    }
    /// Gives a file the times that another has, as a copying program may.
    static void TakeTimes(const QString& file, const struct stat& from) {
        const std::array times{from.st_atim, from.st_mtim};
        ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(file).constData(), times.data(), 0), 0);
    }
    static struct stat Status(const QString& file) {
        struct stat status = {};
        EXPECT_EQ(::stat(QFile::encodeName(file).constData(), &status), 0);
        return status;
    }
    const QString path = TestFolder() + QStringLiteral("/a.htm");
    FileMark mark;
};

TEST_F(FileMarkTest, AFileThatNobodyTouchedIsTheSame) {
    EXPECT_EQ(mark.Compare(path), Now::Same);
    EXPECT_EQ(mark.Compare(path), Now::Same);
}

TEST_F(FileMarkTest, WhatWasNeverSeenIsNeverChanged) {
    FileMark none;
    EXPECT_EQ(none.Compare(path), Now::Same);
    EXPECT_EQ(none.Compare(TestFolder() + QStringLiteral("/none.htm")), Now::Same);
}

TEST_F(FileMarkTest, ALaterRunKnowsTheBytes) {
    FileMark later = FileMark::FromText(mark.ToText()).value();
    EXPECT_EQ(later.Compare(path), Now::Same);
    WriteFile(path, "new");
    EXPECT_EQ(later.Compare(path), Now::Changed);
    QFile::remove(path);
    EXPECT_EQ(later.Compare(path), Now::Gone);

    FileMark gone = FileMark::FromText(FileMark::Of(path).ToText()).value();
    EXPECT_EQ(gone.Compare(path), Now::Same);
    WriteFile(path, "new");
    EXPECT_EQ(gone.Compare(path), Now::Changed);
    EXPECT_EQ(FileMark::FromText(FileMark().ToText()).value(), FileMark());
}

TEST_F(FileMarkTest, ATextThatIsNoMarkIsNone) {
    const QByteArray good = mark.ToText();
    ASSERT_TRUE(FileMark::FromText(good));
    for (const QByteArray& bad :
         {QByteArray(), QByteArray("3"), QByteArray("-1 ab"), " " + good, good + "ab", good.chopped(1),
          "x" + good, "-" + good, good.toUpper(), QByteArray("None")})
        EXPECT_FALSE(FileMark::FromText(bad)) << bad.constData();
}

TEST_F(FileMarkTest, OtherBytesAreAChangeWhateverTheirNumber) {
    for (const char* bytes : {"new", "longer", "", "x"}) {
        WriteFile(path, bytes);
        EXPECT_EQ(mark.Compare(path), Now::Changed) << bytes;
    }
    WriteFile(path, "old");
    EXPECT_EQ(mark.Compare(path), Now::Same);
}

TEST_F(FileMarkTest, TheSameBytesAreNoChangeWhoeverWroteThem) {
    WriteFile(path, "old");
    EXPECT_EQ(mark.Compare(path), Now::Same);
    ASSERT_TRUE(WholeFile::Write(path, "old"));
    EXPECT_EQ(mark.Compare(path), Now::Same);
    // A year ago, and in fifty years.
    for (const time_t seconds : {time_t(31'000'000), time_t(3'000'000'000)}) {
        struct stat other = Status(path);
        other.st_mtim = {seconds, 0};
        TakeTimes(path, other);
        EXPECT_EQ(mark.Compare(path), Now::Same);
    }
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(mark.Compare(path), Now::Same);
}

TEST_F(FileMarkTest, AChangeWithTheOldTimeAndSizeShows) {
    const struct stat old = Status(path);
    WriteFile(path, "new");
    TakeTimes(path, old);
    EXPECT_EQ(mark.Compare(path), Now::Changed);
}

TEST_F(FileMarkTest, AnotherFileInItsPlaceShows) {
    const struct stat old = Status(path);
    const QString other = TestFolder() + QStringLiteral("/b.htm");
    WriteFile(other, "new");
    TakeTimes(other, old);
    ASSERT_EQ(::rename(QFile::encodeName(other).constData(), QFile::encodeName(path).constData()), 0);
    EXPECT_EQ(mark.Compare(path), Now::Changed);
}

// Within one tick of the disk's clock the status stays what it was.
TEST_F(FileMarkTest, AChangeAtTheSameMomentShows) {
    for (int n = 0; n < 200; ++n) {
        WriteFile(path, "one");
        FileMark seen = FileMark::Of(path);
        WriteFile(path, "two");
        ASSERT_EQ(seen.Compare(path), Now::Changed) << n;
    }
}

TEST_F(FileMarkTest, AStatusIsTrustedOnceItsTimeIsTwoSecondsOld) {
    EXPECT_FALSE(FileMark::IsSettled(10'000, 10'000));
    EXPECT_FALSE(FileMark::IsSettled(10'000, 12'000));
    EXPECT_TRUE(FileMark::IsSettled(10'000, 12'001));
    EXPECT_FALSE(FileMark::IsSettled(10'000, 9'000)) << "a clock that was set back";
}

TEST_F(FileMarkTest, AFileThatVanishedIsGoneAndMayComeBack) {
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(mark.Compare(path), Now::Gone);
    WriteFile(path, "old");
    EXPECT_EQ(mark.Compare(path), Now::Same);
}

TEST_F(FileMarkTest, AFileThatComesWhereNoneWasIsAChange) {
    ASSERT_TRUE(QFile::remove(path));
    FileMark none = FileMark::Of(path);
    EXPECT_EQ(none.Compare(path), Now::Same);
    WriteFile(path, "");
    EXPECT_EQ(none.Compare(path), Now::Changed);
}

TEST_F(FileMarkTest, WhatIsNoPlainFileIsGoneAndIsNotWaitedFor) {
    for (const QString& other : NoPlainFiles()) {
        EXPECT_EQ(mark.Compare(other), Now::Gone) << other.toStdString();
        FileMark none = FileMark::Of(other);
        EXPECT_EQ(none.Compare(other), Now::Same);
    }
}

TEST_F(FileMarkTest, FollowsALinkToItsFile) {
    const QString link = TestFolder() + QStringLiteral("/link.htm");
    ASSERT_TRUE(QFile::link(path, link));
    FileMark seen = FileMark::Of(link);
    EXPECT_EQ(seen.Compare(link), Now::Same);
    WriteFile(path, "new");
    EXPECT_EQ(seen.Compare(link), Now::Changed);
}

TEST_F(FileMarkTest, BytesThatGrewWhileTheyWereReadAreNoChange) {
    const FileStatus before = FileStatus::Of(path);
    WriteFile(path, "old and new");
    FileMark seen(before, "old and new");
    EXPECT_EQ(seen.Compare(path), Now::Same);
}

} // namespace
