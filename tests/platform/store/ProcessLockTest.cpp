// A lock that goes with its process.
#include "platform/store/ProcessLock.h"

#include "support/Files.h"
#include "support/FreshUser.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class ProcessLocks : public testing::Test {
  protected:
    ProcessLocks() { FreshUser(); }
    QString path = TestFolder() + QStringLiteral("/a.lock");
};

TEST_F(ProcessLocks, OneHasItAndTheFileGoesWithIt) {
    auto lock = ProcessLock::Take(path);
    ASSERT_TRUE(lock);
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(path), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    EXPECT_FALSE(ProcessLock::Take(path));
    EXPECT_TRUE(QFile::exists(path)) << "who gets no lock leaves the file";
    lock.reset();
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(ProcessLock::Take(path));
}

TEST_F(ProcessLocks, FileOfADeadProcessIsAnyonesToTake) {
    int pipes[2];
    ASSERT_EQ(::pipe(pipes), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const auto lock = ProcessLock::Take(path);
        EXPECT_EQ(::write(pipes[1], lock ? "y" : "n", 1), 1);
        ::pause();
        ::_exit(0);
    }
    char held = 0;
    ASSERT_EQ(::read(pipes[0], &held, 1), 1);
    EXPECT_EQ(held, 'y');
    EXPECT_FALSE(ProcessLock::Take(path));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_TRUE(ProcessLock::Take(path));
    ::close(pipes[0]);
    ::close(pipes[1]);
}

TEST_F(ProcessLocks, ThereIsNoneWithoutAFolderAndNoneThroughALink) {
    EXPECT_FALSE(ProcessLock::Take(TestFolder() + QStringLiteral("/missing/a.lock")));
    const QString target = TestFolder() + QStringLiteral("/target");
    ASSERT_TRUE(QFile::link(target, path));
    EXPECT_FALSE(ProcessLock::Take(path));
    EXPECT_FALSE(QFile::exists(target));
}

} // namespace
