// One copy at a time: who is first, what is handed over, and what dead or hung copies leave behind.
#include "app/run/SingleInstance.h"

#include "support/FreshUser.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTest>

namespace {

class SingleInstanceTest : public testing::Test {
  protected:
    SingleInstanceTest() { FreshUser(); }
    static QString FileOf(const char* ending) {
        const QDir folder(SingleInstance::Folder());
        const QStringList names =
            folder.entryList({u'*' + QString::fromLatin1(ending)}, QDir::AllEntries | QDir::System);
        return names.isEmpty() ? QString() : folder.filePath(names.first());
    }
};

TEST_F(SingleInstanceTest, FirstCopyIsFirstAndTheNextIsNot) {
    auto first = std::make_unique<SingleInstance>();
    EXPECT_TRUE(first->IsFirst());
    EXPECT_FALSE(SingleInstance().IsFirst());
    EXPECT_FALSE(SingleInstance().IsFirst());
    first.reset();
    EXPECT_TRUE(SingleInstance().IsFirst());
}

TEST_F(SingleInstanceTest, CommandLineReachesTheFirstCopy) {
    SingleInstance first;
    QSignalSpy arrived(&first, &SingleInstance::Arrived);
    for (const QString& line :
         {QStringLiteral("/site/a b \u00e9\u2603.htm"), QString(), QStringLiteral("\"quoted\"\nline")}) {
        arrived.clear();
        SingleInstance second;
        EXPECT_TRUE(second.HandOver(line));
        ASSERT_TRUE(arrived.wait(5000));
        EXPECT_EQ(arrived[0][0].toString(), line);
    }
}

TEST_F(SingleInstanceTest, ManyCopiesAtOnceAllArrive) {
    SingleInstance first;
    QSignalSpy arrived(&first, &SingleInstance::Arrived);
    for (int n = 0; n < 10; ++n)
        EXPECT_TRUE(SingleInstance().HandOver(QString::number(n)));
    while (arrived.size() < 10)
        ASSERT_TRUE(arrived.wait(5000));
    QStringList lines;
    for (const auto& arguments : arrived)
        lines << arguments[0].toString();
    lines.sort();
    EXPECT_EQ(lines.join(QString()), QStringLiteral("0123456789"));
}

TEST_F(SingleInstanceTest, CopyThatHangsHoldsNobodyUpAndHearsOfItLater) {
    SingleInstance first;
    QSignalSpy arrived(&first, &SingleInstance::Arrived);
    // No event of the first copy runs here: to the second it hangs.
    EXPECT_TRUE(SingleInstance().HandOver(QStringLiteral("/a.htm")));
    EXPECT_TRUE(arrived.isEmpty());
    ASSERT_TRUE(arrived.wait(5000));
    EXPECT_EQ(arrived[0][0].toString(), QStringLiteral("/a.htm"));
}

TEST_F(SingleInstanceTest, DeadSocketIsReplaced) {
    QString socket;
    {
        SingleInstance first;
        socket = FileOf(".socket");
    }
    ASSERT_FALSE(socket.isEmpty());
    QFile left(socket);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.close();
    SingleInstance next;
    EXPECT_TRUE(next.IsFirst());
    QSignalSpy arrived(&next, &SingleInstance::Arrived);
    EXPECT_TRUE(SingleInstance().HandOver(QStringLiteral("x")));
    EXPECT_TRUE(arrived.wait(5000));
}

TEST_F(SingleInstanceTest, LockOfADeadProcessIsReplaced) {
    QString lock;
    {
        SingleInstance first;
        lock = FileOf(".lock");
    }
    ASSERT_FALSE(lock.isEmpty());
    QFile left(lock);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    // No process has a number that large.
    left.write("999999999\ntarnwick\n" + QSysInfo::machineHostName().toUtf8() + '\n');
    left.close();
    EXPECT_TRUE(SingleInstance().IsFirst());
}

TEST_F(SingleInstanceTest, LockOfThisVeryNumberThatNobodyHoldsIsNoLock) {
    QString lock;
    {
        SingleInstance first;
        lock = FileOf(".lock");
    }
    // Numbers come again: in a container, the same at every start.
    QFile left(lock);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.write(QByteArray::number(QCoreApplication::applicationPid()) + '\n' +
               QCoreApplication::applicationName().toUtf8() + '\n' + QSysInfo::machineHostName().toUtf8() +
               '\n' + QSysInfo::machineUniqueId() + '\n' + QSysInfo::bootUniqueId() + '\n');
    left.close();
    SingleInstance first;
    EXPECT_TRUE(first.IsFirst());
    EXPECT_FALSE(SingleInstance().IsFirst()) << "that one is held";
    EXPECT_FALSE(SingleInstance().IsFirst()) << "and stays so";
}

TEST_F(SingleInstanceTest, LockOfALivingProcessHoldsHoweverOldItIs) {
    SingleInstance first;
    QFile lock(FileOf(".lock"));
    ASSERT_TRUE(lock.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        lock.setFileTime(QDateTime::currentDateTime().addYears(-1), QFileDevice::FileModificationTime));
    lock.close();
    EXPECT_FALSE(SingleInstance().IsFirst());
}

TEST_F(SingleInstanceTest, SocketIsClosedToOthers) {
    SingleInstance first;
    const auto mode = QFile::permissions(FileOf(".socket"));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                        QFile::WriteOther | QFile::ExeOther;
    EXPECT_TRUE(mode & QFile::WriteOwner);
    EXPECT_FALSE(mode & others);
}

TEST_F(SingleInstanceTest, UsersWithOtherProgramFoldersAreStrangers) {
    SingleInstance first;
    qputenv("TARNWICK_HOME", QFile::encodeName(TestFolder()));
    EXPECT_TRUE(SingleInstance().IsFirst());
}

TEST_F(SingleInstanceTest, FolderThatCannotBeWrittenStopsNobody) {
    EXPECT_TRUE(SingleInstance(QStringLiteral("/nowhere/at/all")).IsFirst());
}

TEST_F(SingleInstanceTest, WhatIsNoCopyOfOursIsNotHeard) {
    SingleInstance first;
    QSignalSpy arrived(&first, &SingleInstance::Arrived);
    QLocalSocket stranger;
    stranger.connectToServer(FileOf(".socket"));
    ASSERT_TRUE(stranger.waitForConnected(5000));
    stranger.write("GET / HTTP/1.1\r\n");
    ASSERT_TRUE(stranger.waitForBytesWritten(5000));
    stranger.disconnectFromServer();
    EXPECT_TRUE(SingleInstance().HandOver(QStringLiteral("x")));
    ASSERT_TRUE(arrived.wait(5000));
    EXPECT_EQ(arrived.size(), 1);
    EXPECT_EQ(arrived[0][0].toString(), QStringLiteral("x"));
}

TEST_F(SingleInstanceTest, WhoNeverStopsTalkingIsHungUpOn) {
    constexpr qint64 megabyte = 1 << 20;
    SingleInstance first;
    QSignalSpy arrived(&first, &SingleInstance::Arrived);
    QLocalSocket stranger;
    stranger.connectToServer(FileOf(".socket"));
    ASSERT_TRUE(stranger.waitForConnected(5000));
    stranger.write("tarnwick 1\n" + QByteArray(6 * megabyte, 'x'));
    const auto hungUp = [&] { return stranger.state() == QLocalSocket::UnconnectedState; };
    EXPECT_TRUE(QTest::qWaitFor(hungUp, 20'000));
    EXPECT_TRUE(SingleInstance().HandOver(QStringLiteral("x")));
    ASSERT_TRUE(arrived.wait(5000));
    EXPECT_EQ(arrived.size(), 1);
    EXPECT_EQ(arrived[0][0].toString(), QStringLiteral("x"));
}

TEST_F(SingleInstanceTest, LongCommandLineArrivesWhole) {
    SingleInstance first;
    QSignalSpy arrived(&first, &SingleInstance::Arrived);
    // As long as the system lets one be, and more than goes through a socket at once. It is written in turns
    // with the reading, which a copy in this process cannot do.
    const QByteArray line = QByteArray(2'000'000, 'x') + "end";
    QLocalSocket copy;
    copy.connectToServer(FileOf(".socket"));
    ASSERT_TRUE(copy.waitForConnected(5000));
    copy.write("tarnwick 1\n" + line);
    copy.disconnectFromServer();
    ASSERT_TRUE(arrived.wait(20'000));
    EXPECT_EQ(arrived[0][0].toString().size(), line.size());
    EXPECT_TRUE(arrived[0][0].toString().endsWith(QStringLiteral("end")));
}

} // namespace
