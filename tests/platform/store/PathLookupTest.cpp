// Questions about paths on threads of their own.
#include "platform/store/PathLookup.h"

#include "support/Text.h"

#include <atomic>
#include <gtest/gtest.h>
#include <map>
#include <QSemaphore>
#include <QTest>
#include <thread>

namespace {

const QString dead = QStringLiteral("//dead/share");

/// A disk that keeps one path's answer back until it is told to go on.
struct Disk {
    QSemaphore asked;
    QSemaphore goOn;

    static PathLookup::Question Question(const std::shared_ptr<Disk>& disk) {
        return [disk](const QString& path) {
            if (path == dead) {
                disk->asked.release();
                disk->goOn.acquire();
            }
            return path.size() > 1;
        };
    }
};

class PathLookupTest : public testing::Test {
  protected:
    PathLookup::Receiver Receiver() {
        return [this](const QString& path, bool answer) {
            answers[path] = answer;
            come.release();
        };
    }

    const std::shared_ptr<Disk> disk = std::make_shared<Disk>();
    std::map<QString, bool> answers;
    QSemaphore come;
};

TEST_F(PathLookupTest, EachPathHasItsAnswer) {
    PathLookup lookup(Disk::Question(disk), Receiver());
    for (const QString& path : {QStringLiteral("ab"), QStringLiteral("c"), QStringLiteral("de")})
        lookup.Ask(path);
    come.acquire(3);
    EXPECT_EQ(answers,
              (std::map<QString, bool>{
                  {QStringLiteral("ab"), true}, {QStringLiteral("c"), false}, {QStringLiteral("de"), true}}));
}

TEST_F(PathLookupTest, OneThatDoesNotAnswerKeepsBackNoOther) {
    PathLookup lookup(Disk::Question(disk), Receiver());
    lookup.Ask(dead);
    disk->asked.acquire();
    lookup.Ask(QStringLiteral("ab"));
    come.acquire();
    EXPECT_EQ(answers, (std::map<QString, bool>{{QStringLiteral("ab"), true}}));
    disk->goOn.release();
    come.acquire();
    EXPECT_TRUE(answers.at(dead));
}

TEST_F(PathLookupTest, WhatIsAnsweredWhenTheAskerIsGoneIsDropped) {
    {
        PathLookup lookup(Disk::Question(disk), Receiver());
        lookup.Ask(dead);
        disk->asked.acquire();
    }
    disk->goOn.release();
    // The thread has let go of all that it held: it is at its end.
    EXPECT_TRUE(QTest::qWaitFor([this] { return disk.use_count() == 1; }));
    EXPECT_TRUE(answers.empty());
}

TEST_F(PathLookupTest, AReceiverAtWorkIsWaitedFor) {
    std::atomic<bool> done = false;
    {
        PathLookup lookup(Disk::Question(disk), [&](const QString&, bool) {
            come.release();
            for (int n = 0; n < 10'000; ++n)
                std::this_thread::yield();
            done = true;
        });
        lookup.Ask(QStringLiteral("ab"));
        come.acquire();
    }
    EXPECT_TRUE(done);
}

} // namespace
