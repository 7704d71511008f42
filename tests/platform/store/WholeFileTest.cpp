// Reading and saving whole files: whatever fails, the old file stands and nothing is left beside it.
#include "platform/store/WholeFile.h"

#include "platform/store/FileCalls.h"
#include "support/FreshUser.h"
#include "support/Text.h"

#include <csignal>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <latch>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>

namespace {

using testing::IsEmpty;

constexpr int nobody = 65534;
constexpr int cannotTell = 77;

class WholeFileTest : public testing::Test {
  protected:
    void SetUp() override { FreshUser(); }

    static QString At(const char* name) { return TestFolder() + u'/' + QString::fromLatin1(name); }
    static QByteArray Encoded(const QString& path) { return QFile::encodeName(path); }

    /// Writes without any help of what is under test.
    static QString Make(const char* name, const QByteArray& content, mode_t mode = 0644) {
        QFile file(At(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        EXPECT_EQ(::chmod(Encoded(At(name)).constData(), mode), 0);
        return At(name);
    }
    static QByteArray Content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    static struct stat Status(const QString& path) {
        struct stat status = {};
        EXPECT_EQ(::stat(Encoded(path).constData(), &status), 0);
        return status;
    }
    static mode_t Mode(const QString& path) { return Status(path).st_mode & 07777; }
    static QStringList Listing() {
        return QDir(TestFolder())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot | QDir::System);
    }

    /// Runs a step in a process of its own, which may give up rights for good, and returns its answer.
    static int InChild(const std::function<int()>& step) {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(step());
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
        return WEXITSTATUS(status);
    }
    /// The step sees the test folder as its working folder: the folders above it belong to this user alone.
    static int AsNobody(const std::function<bool()>& step) {
        return InChild([&] {
            if (::chdir(Encoded(TestFolder()).constData()) != 0)
                return cannotTell;
            const QTemporaryDir home;
            qputenv("TARNWICK_HOME", Encoded(home.path()));
            if (::getuid() == 0 && (::chown(Encoded(home.path()).constData(), nobody, nobody) != 0 ||
                                    ::setgid(nobody) != 0 || ::setuid(nobody) != 0))
                return cannotTell;
            return step() ? 1 : 0;
        });
    }
    static int WithSizeLimit(rlim_t limit, const std::function<bool()>& step) {
        return InChild([&] {
            const rlimit both = {limit, limit};
            if (::setrlimit(RLIMIT_FSIZE, &both) != 0)
                return cannotTell;
            return step() ? 1 : 0;
        });
    }
};

TEST_F(WholeFileTest, ReadsEveryByte) {
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(WholeFile::Read(Make("a.htm", all)), all);
    EXPECT_EQ(WholeFile::Read(Make("empty.htm", "")), QByteArray());
}

TEST_F(WholeFileTest, ReadsNothingWhereThereIsNoPlainFile) {
    EXPECT_EQ(WholeFile::Read(At("missing.htm")), std::nullopt);
    EXPECT_EQ(WholeFile::Read(TestFolder()), std::nullopt);
    EXPECT_EQ(WholeFile::Read(QString()), std::nullopt);
    EXPECT_EQ(WholeFile::Read(QStringLiteral("/dev/zero")), std::nullopt);
}

TEST_F(WholeFileTest, ReadingAPipeDoesNotBlock) {
    ASSERT_EQ(::mkfifo(Encoded(At("pipe")).constData(), 0600), 0);
    EXPECT_EQ(WholeFile::Read(At("pipe")), std::nullopt);
    EXPECT_FALSE(WholeFile::Write(At("pipe"), "x"));
}

TEST_F(WholeFileTest, ReadsNothingOfAFileThatMayNotBeRead) {
    const QString path = Make("a.htm", "x", 0);
    const auto read = [] { return WholeFile::Read(QStringLiteral("a.htm")).has_value(); };
    EXPECT_EQ(AsNobody(read), 0);
    ASSERT_EQ(::chmod(Encoded(path).constData(), 0644), 0);
    EXPECT_EQ(AsNobody(read), 1);
}

TEST_F(WholeFileTest, SizeIsThatOfAPlainFile) {
    EXPECT_EQ(WholeFile::Size(Make("a.htm", "12345")), 5);
    EXPECT_EQ(WholeFile::Size(At("missing.htm")), -1);
    EXPECT_EQ(WholeFile::Size(TestFolder()), -1);
}

TEST_F(WholeFileTest, CreatesAFileAsTheUsersMaskAsks) {
    const mode_t mask = ::umask(027);
    EXPECT_TRUE(WholeFile::Write(At("new.htm"), "abc"));
    ::umask(mask);
    EXPECT_EQ(Content(At("new.htm")), "abc");
    EXPECT_EQ(Mode(At("new.htm")), 0640u);
    EXPECT_EQ(Listing(), QStringList{QStringLiteral("new.htm")});
}

TEST_F(WholeFileTest, ReplacesByRename) {
    const QString path = Make("a.htm", "the old text, longer");
    const ino_t before = Status(path).st_ino;
    const QByteArray large(3'000'000, 'x');
    EXPECT_TRUE(WholeFile::Write(path, large));
    EXPECT_EQ(Content(path), large);
    EXPECT_NE(Status(path).st_ino, before);
    EXPECT_TRUE(WholeFile::Write(path, ""));
    EXPECT_EQ(Content(path), "");
    EXPECT_EQ(Listing(), QStringList{QStringLiteral("a.htm")});
}

TEST_F(WholeFileTest, KeepsModeBits) {
    for (const mode_t mode : {0600u, 0640u, 0664u, 0755u, 02664u}) {
        const QString path = Make("a.htm", "old", mode);
        EXPECT_TRUE(WholeFile::Write(path, "new"));
        EXPECT_EQ(Mode(path), mode);
        EXPECT_EQ(Content(path), "new");
    }
}

TEST_F(WholeFileTest, KeepsTheOwner) {
    const QString path = Make("a.htm", "old", 0640);
    if (::chown(Encoded(path).constData(), nobody, nobody) != 0)
        GTEST_SKIP() << "may not give files away";
    EXPECT_TRUE(WholeFile::Write(path, "new"));
    EXPECT_EQ(Status(path).st_uid, static_cast<uid_t>(nobody));
    EXPECT_EQ(Status(path).st_gid, static_cast<gid_t>(nobody));
    EXPECT_EQ(Mode(path), 0640u);
}

TEST_F(WholeFileTest, KeepsExtendedAttributes) {
    const QString path = Make("a.htm", "old");
    if (::setxattr(Encoded(path).constData(), "user.note", "kept", 4, 0) != 0)
        GTEST_SKIP() << "this disk has no extended attributes";
    EXPECT_TRUE(WholeFile::Write(path, "new"));
    char value[16] = {};
    EXPECT_EQ(::getxattr(Encoded(path).constData(), "user.note", value, sizeof value), 4);
    EXPECT_STREQ(value, "kept");
}

TEST_F(WholeFileTest, FollowsASymbolicLink) {
    const QString path = Make("real.htm", "old", 0640);
    ASSERT_TRUE(QFile::link(QStringLiteral("real.htm"), At("link.htm")));
    ASSERT_TRUE(QFile::link(QStringLiteral("link.htm"), At("second.htm")));
    EXPECT_TRUE(WholeFile::Write(At("second.htm"), "new"));
    EXPECT_TRUE(QFileInfo(At("second.htm")).isSymLink());
    EXPECT_TRUE(QFileInfo(At("link.htm")).isSymLink());
    EXPECT_FALSE(QFileInfo(path).isSymLink());
    EXPECT_EQ(Content(path), "new");
    EXPECT_EQ(Mode(path), 0640u);
}

TEST_F(WholeFileTest, WritesWhatADanglingLinkPointsTo) {
    ASSERT_TRUE(QFile::link(QStringLiteral("real.htm"), At("link.htm")));
    EXPECT_TRUE(WholeFile::Write(At("link.htm"), "new"));
    EXPECT_TRUE(QFileInfo(At("link.htm")).isSymLink());
    EXPECT_EQ(Content(At("real.htm")), "new");
}

TEST_F(WholeFileTest, AFileOfTwoNamesStaysOneFile) {
    const QString path = Make("a.htm", "the old text");
    ASSERT_EQ(::link(Encoded(path).constData(), Encoded(At("b.htm")).constData()), 0);
    EXPECT_TRUE(WholeFile::Write(path, "new"));
    EXPECT_EQ(Content(At("b.htm")), "new");
    EXPECT_EQ(Status(path).st_nlink, 2u);
}

TEST_F(WholeFileTest, AReadOnlyFileStaysAsItWas) {
    const QString path = Make("a.htm", "old", 0444);
    ASSERT_EQ(::chmod(Encoded(TestFolder()).constData(), 0777), 0);
    const auto write = [] { return WholeFile::Write(QStringLiteral("a.htm"), "new"); };
    EXPECT_EQ(AsNobody(write), 0);
    EXPECT_EQ(Content(path), "old");
    EXPECT_EQ(Listing(), QStringList{QStringLiteral("a.htm")});
    // The mode bits alone were in the way.
    ASSERT_EQ(::chmod(Encoded(path).constData(), 0666), 0);
    EXPECT_EQ(AsNobody(write), 1);
    EXPECT_EQ(Content(path), "new");
}

TEST_F(WholeFileTest, AWritableFileInAFolderThatIsNotIsWritten) {
    const QString path = Make("a.htm", "the old text, longer", 0666);
    ASSERT_EQ(::chmod(Encoded(TestFolder()).constData(), 0755), 0);
    const ino_t before = Status(path).st_ino;
    EXPECT_EQ(AsNobody([] { return WholeFile::Write(QStringLiteral("a.htm"), "new"); }), 1);
    EXPECT_EQ(Content(path), "new");
    EXPECT_EQ(Status(path).st_ino, before);
    EXPECT_EQ(Mode(path), 0666u);
    EXPECT_EQ(Listing(), QStringList{QStringLiteral("a.htm")});
}

/// A folder below which other users get as far as its mode lets them.
class OpenFolder {
  public:
    explicit OpenFolder(mode_t mode) {
        EXPECT_EQ(::chmod(QFile::encodeName(folder_.path()).constData(), mode), 0);
    }
    QString Make(const char* name, const QByteArray& content, mode_t mode) const {
        const QString path = folder_.filePath(QString::fromLatin1(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        EXPECT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
        return path;
    }
    QStringList Listing() const {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

  private:
    QTemporaryDir folder_;
};

TEST_F(WholeFileTest, AFileOfSomeoneElseIsWrittenInPlaceAndStaysTheirs) {
    if (::getuid() != 0)
        GTEST_SKIP() << "may not become another user here";
    // With the sticky bit not even a rename over it is allowed.
    for (const mode_t mode : {0777u, 01777u}) {
        const OpenFolder folder(mode);
        const QString path = folder.Make("a.htm", "the old text, longer", 0666);
        const ino_t before = Status(path).st_ino;
        EXPECT_EQ(AsNobody([&] { return WholeFile::Write(path, "new"); }), 1);
        EXPECT_EQ(Content(path), "new");
        EXPECT_EQ(Status(path).st_ino, before);
        EXPECT_EQ(Status(path).st_uid, ::getuid());
        EXPECT_EQ(folder.Listing(), QStringList{QStringLiteral("a.htm")});
    }
}

TEST_F(WholeFileTest, AReadOnlyFileInOnesOwnFolderStaysAsItWas) {
    if (::getuid() != 0)
        GTEST_SKIP() << "may not become another user here";
    const OpenFolder folder(0777);
    const QString path = folder.Make("a.htm", "old", 0444);
    ASSERT_EQ(::chown(Encoded(path).constData(), nobody, nobody), 0);
    EXPECT_EQ(AsNobody([&] { return WholeFile::Write(path, "new"); }), 0);
    EXPECT_EQ(Content(path), "old");
    ASSERT_EQ(::chmod(Encoded(path).constData(), 0644), 0);
    const ino_t before = Status(path).st_ino;
    EXPECT_EQ(AsNobody([&] { return WholeFile::Write(path, "new"); }), 1);
    EXPECT_EQ(Content(path), "new");
    EXPECT_NE(Status(path).st_ino, before) << "by rename";
    EXPECT_EQ(folder.Listing(), QStringList{QStringLiteral("a.htm")});
}

TEST_F(WholeFileTest, ANameAsLongAsNamesCanBeIsReplacedLikeAnyOther) {
    const QByteArray name(255, 'n');
    const QString path = At(name.constData());
    const QByteArray large(100'000, 'x');
    EXPECT_EQ(WithSizeLimit(10'000, [&] { return WholeFile::Write(path, large); }), 0);
    EXPECT_THAT(Listing(), IsEmpty());
    EXPECT_TRUE(WholeFile::Write(path, "new"));
    EXPECT_EQ(Content(path), "new");
    EXPECT_TRUE(WholeFile::Write(path, "newer"));
    EXPECT_EQ(Content(path), "newer");
    EXPECT_EQ(Listing().size(), 1);
}

TEST_F(WholeFileTest, AFileThatIsAMountOfItsOwnIsWrittenInPlace) {
    const QString path = Make("a.htm", "below");
    const QString mounted = Make("b.htm", "the old text");
    const int answer = InChild([&] {
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount(Encoded(mounted).constData(), Encoded(path).constData(), nullptr, MS_BIND, nullptr) != 0)
            return cannotTell;
        return WholeFile::Write(path, "new") && Content(path) == "new" ? 1 : 0;
    });
    if (answer == cannotTell)
        GTEST_SKIP() << "may not mount here";
    EXPECT_EQ(answer, 1);
    EXPECT_EQ(Content(mounted), "new");
    EXPECT_EQ(Content(path), "below");
    EXPECT_EQ(Listing().size(), 2);
}

TEST_F(WholeFileTest, AFileTooLargeForADocumentIsNotRead) {
    const QString path = Make("a.htm", "");
    // A file of holes: it takes no room on the disk.
    ASSERT_EQ(::truncate(Encoded(path).constData(), off_t{1} << 32), 0);
    EXPECT_EQ(WholeFile::Size(path), qint64{1} << 32);
    EXPECT_EQ(WholeFile::Read(path), std::nullopt);
}

TEST_F(WholeFileTest, AFolderThatTakesNoFilesTakesNoNewOne) {
    ASSERT_EQ(::chmod(Encoded(TestFolder()).constData(), 0755), 0);
    const auto write = [] { return WholeFile::Write(QStringLiteral("new.htm"), "new"); };
    EXPECT_EQ(AsNobody(write), 0);
    EXPECT_THAT(Listing(), IsEmpty());
    ASSERT_EQ(::chmod(Encoded(TestFolder()).constData(), 0777), 0);
    EXPECT_EQ(AsNobody(write), 1);
}

TEST_F(WholeFileTest, AVanishedFolderIsAFailure) {
    EXPECT_FALSE(WholeFile::Write(At("gone/a.htm"), "new"));
    EXPECT_THAT(Listing(), IsEmpty());
    EXPECT_FALSE(WholeFile::Write(QString(), "new"));
}

TEST_F(WholeFileTest, FoldersAndDevicesAreNoFilesToWrite) {
    EXPECT_FALSE(WholeFile::Write(TestFolder(), "new"));
    EXPECT_FALSE(WholeFile::Write(QStringLiteral("/dev/full"), "new"));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), At("full.htm")));
    EXPECT_FALSE(WholeFile::Write(At("full.htm"), "new"));
    EXPECT_TRUE(QFileInfo(At("full.htm")).isSymLink());
    EXPECT_TRUE(S_ISCHR(Status(QStringLiteral("/dev/full")).st_mode));
}

TEST_F(WholeFileTest, AFailureTellsItsReason) {
    const QString pipe = At("pipe");
    ASSERT_EQ(::mkfifo(Encoded(pipe).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(At("loop.htm"), At("loop.htm")));
    const std::pair<QString, int> rows[] = {
        {At("gone/a.htm"), ENOENT},  {QString(), ENOENT},
        {TestFolder(), EISDIR},      {QStringLiteral("/dev/full"), EOPNOTSUPP},
        {pipe, EOPNOTSUPP},          {At("loop.htm"), ELOOP},
        {At("pipe/a.htm"), ENOTDIR}, {At(QByteArray(300, 'x').constData()), ENAMETOOLONG},
    };
    for (const auto& [path, error] : rows)
        EXPECT_EQ(WholeFile::Write(path, "new").Reason(), qt_error_string(error)) << path.toStdString();
    EXPECT_EQ(WholeFile::Write(At("a.htm"), "new").Reason(), QString());
}

TEST_F(WholeFileTest, AFailureOfTheDiskTellsItsReason) {
    const QByteArray large(100'000, 'x');
    const auto reasonOf = [](const QString& path, const QByteArray& bytes) {
        return WholeFile::Write(path, bytes).Reason();
    };
    const auto isTooLarge = [&](const QString& path) {
        return reasonOf(path, large) == qt_error_string(EFBIG);
    };
    const QString path = Make("a.htm", "old");
    EXPECT_EQ(WithSizeLimit(10'000, [&] { return isTooLarge(path); }), 1);
    EXPECT_EQ(WithSizeLimit(10'000, [&] { return isTooLarge(At("new.htm")); }), 1);
    ASSERT_EQ(::link(Encoded(path).constData(), Encoded(At("twin.htm")).constData()), 0);
    EXPECT_EQ(WithSizeLimit(10'000, [&] { return isTooLarge(path); }), 1) << "written in place";
    Make("b.htm", "old", 0444);
    EXPECT_EQ(AsNobody([&] {
                  return reasonOf(QStringLiteral("b.htm"), "new") == qt_error_string(EACCES) &&
                         reasonOf(QStringLiteral("new.htm"), "new") == qt_error_string(EACCES);
              }),
              1);
}

TEST_F(WholeFileTest, AWriteThatFailsHalfwayLeavesTheOldFileAndNoLitter) {
    const QString path = Make("a.htm", "old");
    const QByteArray large(100'000, 'x');
    EXPECT_EQ(WithSizeLimit(10'000, [&] { return WholeFile::Write(path, large); }), 0);
    EXPECT_EQ(Content(path), "old");
    EXPECT_EQ(WithSizeLimit(10'000, [&] { return WholeFile::Write(At("new.htm"), large); }), 0);
    EXPECT_EQ(Listing(), QStringList{QStringLiteral("a.htm")});
}

TEST_F(WholeFileTest, AWriteInPlaceThatFailsLeavesTheOldContent) {
    const QString path = Make("a.htm", "old");
    ASSERT_EQ(::link(Encoded(path).constData(), Encoded(At("b.htm")).constData()), 0);
    const QByteArray large(100'000, 'x');
    EXPECT_EQ(WithSizeLimit(10'000, [&] { return WholeFile::Write(path, large); }), 0);
    EXPECT_EQ(Content(path), "old");
    EXPECT_EQ(Content(At("b.htm")), "old");
}

TEST_F(WholeFileTest, TheSignalOfTheSizeLimitIsGivenBack) {
    EXPECT_TRUE(WholeFile::Write(At("a.htm"), "x"));
    struct sigaction now = {};
    ASSERT_EQ(::sigaction(SIGXFSZ, nullptr, &now), 0);
    EXPECT_EQ(now.sa_handler, SIG_DFL);
}

TEST_F(WholeFileTest, WhatOnlyLooksLikeTheFileOfAKilledSaveStays) {
    Make("a.htm", "old");
    for (const char* name : {".tarnwick-0123456789abcdef", "a.htm.abcdef", ".tarnwick-empty"})
        Make(name, name == QByteArray(".tarnwick-empty") ? "" : "mine");
    const QStringList before = Listing();
    EXPECT_TRUE(WholeFile::Write(At("a.htm"), "new"));
    WholeFile::SettleInterrupted();
    EXPECT_EQ(Listing(), before);
}

int toParent[2], toChild[2];

TEST_F(WholeFileTest, TheFileOfASaveThatGoesOnIsLeftToIt) {
    Make("a.htm", "old");
    ASSERT_EQ(::pipe(toParent) | ::pipe(toChild), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(toChild[1]);
        // It waits in the middle of its save, for the parent to close its end.
        Calls().fsync = [](int) {
            char byte = 0;
            return int(::write(toParent[1], &byte, 1) - 1 + ::read(toChild[0], &byte, 1));
        };
        ::_exit(WholeFile::Write(At("a.htm"), "new") ? 1 : 0);
    }
    char byte = 0;
    ASSERT_EQ(::read(toParent[0], &byte, 1), 1);
    EXPECT_EQ(Listing().size(), 2);
    WholeFile::SettleInterrupted();
    EXPECT_TRUE(WholeFile::Write(At("b.htm"), "other"));
    EXPECT_EQ(Listing().size(), 3) << "its new file is still there";
    ::close(toChild[1]);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(Content(At("a.htm")), "new");
    EXPECT_EQ(Listing().size(), 2);
    for (const int end : {toParent[0], toParent[1], toChild[0]})
        ::close(end);
}

TEST_F(WholeFileTest, AFileThatSomebodyChangedAfterAKilledSaveIsTheirs) {
    const QString path = Make("a.htm", "the old text");
    ASSERT_EQ(::link(Encoded(path).constData(), Encoded(At("b.htm")).constData()), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        Calls().ftruncate = [](int, off_t) { return ::raise(SIGKILL); };
        WholeFile::Write(path, "new");
        ::_exit(0);
    }
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    ASSERT_EQ(Content(path), "new old text") << "half overwritten";
    Make("a.htm", "written by hand");
    WholeFile::SettleInterrupted();
    EXPECT_EQ(Content(path), "written by hand");
}

/// A disk of 64 kilobytes of its own, seen by one child process alone.
int OnSmallDisk(const QString& folder, const std::function<int()>& step) {
    if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("none", QFile::encodeName(folder).constData(), "tmpfs", 0, "size=64k") != 0)
        return cannotTell;
    return step();
}

TEST_F(WholeFileTest, AFullDiskLeavesTheOldFileAndNoLitter) {
    const int answer = InChild([] {
        return OnSmallDisk(TestFolder(), [] {
            const QString path = Make("a.htm", QByteArray(20'000, 'o'));
            const QString twin = Make("b.htm", "twin");
            if (::link(Encoded(twin).constData(), Encoded(At("c.htm")).constData()) != 0)
                return cannotTell;
            const QByteArray large(100'000, 'x');
            // Each fault that shows adds a digit of its own to the answer.
            return (WholeFile::Write(path, large) ? 1 : 0) + (WholeFile::Write(twin, large) ? 2 : 0) +
                   (WholeFile::Write(At("new.htm"), large) ? 4 : 0) +
                   (Content(path) != QByteArray(20'000, 'o') ? 8 : 0) + (Content(twin) != "twin" ? 16 : 0) +
                   (Listing().size() != 3 ? 32 : 0);
        });
    });
    if (answer == cannotTell)
        GTEST_SKIP() << "may not mount a small disk here";
    EXPECT_EQ(answer, 0);
}

TEST_F(WholeFileTest, WhatMayReachTheDiskLaterIsNotWaitedFor) {
    static int flushes = 0;
    flushes = 0;
    Calls().fsync = [](int) {
        ++flushes;
        return 0;
    };
    using enum WholeFile::Readers;
    const QString path = Make("page", "old", 0640);
    EXPECT_TRUE(WholeFile::Write(path, "new", AsTheUsersMaskAsks, WholeFile::Flush::Later));
    EXPECT_EQ(flushes, 0);
    EXPECT_EQ(Content(path), "new");
    EXPECT_EQ(Mode(path), 0640u);
    EXPECT_EQ(Listing(), QStringList(QStringLiteral("page")));
    EXPECT_TRUE(WholeFile::Write(path, "newer"));
    EXPECT_EQ(flushes, 2) << "the file and its folder";
    Calls() = FileCalls();
}

// Two threads

/// Two saves that overlap: the one that begins first ends first, while the other still writes.
TEST_F(WholeFileTest, SizeSignalStaysAwayUntilTheLastThreadHasWritten) {
    static std::latch otherWrites(1), oneIsDone(1);
    static std::function<void()> writeOther;
    static std::thread::id other;
    static bool ignoredInOther = false;
    const auto ignored = [] {
        struct sigaction now = {};
        EXPECT_EQ(sigaction(SIGXFSZ, nullptr, &now), 0);
        return now.sa_handler == SIG_IGN;
    };
    ASSERT_FALSE(ignored());
    std::thread thread;
    writeOther = [&] {
        thread = std::thread([&] { EXPECT_TRUE(WholeFile::Write(At("other"), "2")); });
        otherWrites.wait();
    };
    const FileCalls system = Calls();
    // The record and the content of one file are written: the first write of each thread counts.
    Calls().pwrite = [](int file, const void* bytes, size_t count, off_t at) {
        if (auto start = std::exchange(writeOther, {})) {
            start();
        } else if (!otherWrites.try_wait()) {
            other = std::this_thread::get_id();
            otherWrites.count_down();
            oneIsDone.wait();
            struct sigaction now = {};
            sigaction(SIGXFSZ, nullptr, &now);
            ignoredInOther = now.sa_handler == SIG_IGN;
        }
        return ::pwrite(file, bytes, count, at);
    };
    EXPECT_TRUE(WholeFile::Write(At("one"), "1"));
    oneIsDone.count_down();
    thread.join();
    Calls() = system;
    EXPECT_NE(other, std::this_thread::get_id());
    EXPECT_TRUE(ignoredInOther);
    EXPECT_FALSE(ignored());
}

} // namespace
