// Whose copies are whose: those of a program that runs are taken by no other, and those of one that is over
// by one alone.
#include "app/recovery/RunCopies.h"

#include "app/recovery/RecoveryFolder.h"
#include "support/Files.h"
#include "support/FreshUser.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Runs : public testing::Test {
  protected:
    Runs() { FreshUser(); }
    static QStringList InFolder() {
        return QDir(RecoveryFolder()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// A process of its own that begins a run, leaves copies, and then waits for its end.
    static pid_t Begin(int copies) {
        int pipes[2];
        EXPECT_EQ(::pipe(pipes), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            const auto run = RunCopies::Begin();
            for (int n = 0; n < copies; ++n)
                WriteFile(run->NewFile(), QByteArray::number(n));
            EXPECT_EQ(::write(pipes[1], "x", 1), 1);
            ::pause();
            ::_exit(0);
        }
        char ready = 0;
        EXPECT_EQ(::read(pipes[0], &ready, 1), 1);
        ::close(pipes[0]);
        ::close(pipes[1]);
        return child;
    }
    static void Kill(pid_t child) {
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }
};

TEST_F(Runs, NothingIsThereBeforeTheFirst) {
    EXPECT_TRUE(RunCopies::TakeLeft().empty());
    EXPECT_FALSE(QDir(RecoveryFolder()).exists());
}

TEST_F(Runs, FolderAndLockAreTheUsersAlone) {
    const auto run = RunCopies::Begin();
    ASSERT_TRUE(run);
    ASSERT_EQ(InFolder().size(), 1);
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(RecoveryFolder()), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
    ASSERT_EQ(::stat(QFile::encodeName(RecoveryFolder() + u'/' + InFolder().first()), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(Runs, RunThatKeepsNothingLeavesNothing) {
    RunCopies::Begin().reset();
    EXPECT_TRUE(InFolder().isEmpty());
}

TEST_F(Runs, CopiesHaveNamesOfTheirOwn) {
    const auto one = RunCopies::Begin(), other = RunCopies::Begin();
    const QStringList files{one->NewFile(), one->NewFile(), other->NewFile()};
    EXPECT_EQ(QSet<QString>(files.begin(), files.end()).size(), 3);
    EXPECT_TRUE(one->Files().isEmpty());
    WriteFile(files[0]);
    WriteFile(files[1]);
    EXPECT_EQ(one->Files(), (QStringList{files[0], files[1]}));
    EXPECT_TRUE(other->Files().isEmpty());
}

TEST_F(Runs, CopiesOfOneThatRunsAreNotTaken) {
    const pid_t child = Begin(2);
    EXPECT_TRUE(RunCopies::TakeLeft().empty());
    EXPECT_EQ(InFolder().size(), 3);
    Kill(child);
    EXPECT_EQ(RunCopies::TakeLeft().size(), 1u);
}

TEST_F(Runs, CopiesOfThisVeryProgramAreNotTaken) {
    const auto run = RunCopies::Begin();
    WriteFile(run->NewFile());
    EXPECT_TRUE(RunCopies::TakeLeft().empty());
}

TEST_F(Runs, OfTwoStartsOneGetsThem) {
    Kill(Begin(2));
    const auto first = RunCopies::TakeLeft();
    ASSERT_EQ(first.size(), 1u);
    EXPECT_EQ(first.front()->Files().size(), 2);
    EXPECT_TRUE(RunCopies::TakeLeft().empty());
}

TEST_F(Runs, OfManyStartsAtOnceEachRunComesToOne) {
    constexpr int runs = 6, starts = 8;
    for (int n = 0; n < runs; ++n)
        Kill(Begin(1));
    std::vector<pid_t> children;
    int gate[2], results[2];
    ASSERT_EQ(::pipe(gate), 0);
    ASSERT_EQ(::pipe(results), 0);
    for (int n = 0; n < starts; ++n) {
        const pid_t child = ::fork();
        if (child == 0) {
            char go = 0;
            ::close(gate[1]);
            EXPECT_EQ(::read(gate[0], &go, 1), 0);
            const auto left = RunCopies::TakeLeft();
            const auto taken = static_cast<char>(left.size());
            EXPECT_EQ(::write(results[1], &taken, 1), 1);
            ::pause();
            ::_exit(0);
        }
        children.push_back(child);
    }
    ::close(gate[0]);
    ::close(gate[1]);
    int taken = 0;
    for (int n = 0; n < starts; ++n) {
        char one = 0;
        ASSERT_EQ(::read(results[0], &one, 1), 1);
        taken += one;
    }
    EXPECT_EQ(taken, runs);
    for (const pid_t child : children)
        Kill(child);
    ::close(results[0]);
    ::close(results[1]);
}

TEST_F(Runs, ThoseThatAreLeftAgainAreFoundAgain) {
    Kill(Begin(2));
    ASSERT_EQ(RunCopies::TakeLeft().size(), 1u);
    const auto again = RunCopies::TakeLeft();
    ASSERT_EQ(again.size(), 1u);
    EXPECT_EQ(again.front()->Files().size(), 2);
}

TEST_F(Runs, NumbersGoOnInATakenRun) {
    Kill(Begin(12));
    const auto left = RunCopies::TakeLeft();
    ASSERT_EQ(left.size(), 1u);
    const QStringList files = left.front()->Files();
    ASSERT_EQ(files.size(), 12);
    EXPECT_TRUE(files[9].endsWith(QStringLiteral("-10.copy")));
    EXPECT_TRUE(left.front()->NewFile().endsWith(QStringLiteral("-13.copy")));
}

TEST_F(Runs, LockAloneIsTidiedAway) {
    Kill(Begin(0));
    ASSERT_EQ(InFolder().size(), 1);
    EXPECT_TRUE(RunCopies::TakeLeft().empty());
    EXPECT_TRUE(InFolder().isEmpty());
}

TEST_F(Runs, CopiesWithoutTheirLockAreFound) {
    WriteFile(MakeRecoveryFolder() + QStringLiteral("/run-0123456789abcdef-3.copy"));
    EXPECT_EQ(RunCopies::TakeLeft().size(), 1u);
}

TEST_F(Runs, OtherFilesAreNoCopies) {
    for (const char* name : {"kept-1-run-0123456789abcdef-1.copy", "run-0123456789abcdef-0.copy",
                             "run-0123456789abcdef-1.copy~", "run-0123456789ABCDEF-1.copy", "run-1.copy",
                             "run-0123456789abcdef-99999999999.copy", ".tarnwick-0123456789abcdef"})
        WriteFile(MakeRecoveryFolder() + u'/' + QString::fromLatin1(name));
    const QStringList before = InFolder();
    EXPECT_TRUE(RunCopies::TakeLeft().empty());
    EXPECT_EQ(InFolder(), before);
}

TEST_F(Runs, FolderThatCannotBeMadeTakesNoRun) {
    WriteFile(RecoveryFolder(), "a file in its place");
    EXPECT_FALSE(RunCopies::Begin());
    EXPECT_TRUE(RunCopies::TakeLeft().empty());
}

} // namespace
