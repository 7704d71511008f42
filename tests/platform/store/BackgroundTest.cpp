// Work beside the event loop, and what follows it.
#include "platform/store/Background.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <QSemaphore>
#include <QStringList>
#include <QTest>

namespace {

/// Work that goes on until it is let go on.
class BackgroundTest : public testing::Test {
  protected:
    void Run(const QString& name) {
        background->Run(
            [this] {
                worker = QThread::currentThread();
                begun.release();
                goOn.acquire();
                finished = true;
            },
            [this, name] {
                EXPECT_TRUE(finished);
                EXPECT_EQ(QThread::currentThread(), qApp->thread());
                followed << name;
            });
        begun.acquire();
    }
    bool Followed(const QStringList& names) {
        return QTest::qWaitFor([&] { return followed == names; });
    }

    std::unique_ptr<Background> background = std::make_unique<Background>();
    QSemaphore begun;
    QSemaphore goOn;
    std::atomic<bool> finished = false;
    QThread* worker = nullptr;
    QStringList followed;
};

TEST_F(BackgroundTest, WorkIsDoneOnAThreadOfItsOwnAndFollowedOnThisOne) {
    EXPECT_FALSE(background->Busy());
    Run(QStringLiteral("one"));
    EXPECT_NE(worker, QThread::currentThread());
    EXPECT_TRUE(background->Busy());
    goOn.release();
    EXPECT_TRUE(Followed({QStringLiteral("one")}));
    EXPECT_FALSE(background->Busy());
    Run(QStringLiteral("two"));
    goOn.release();
    EXPECT_TRUE(Followed({QStringLiteral("one"), QStringLiteral("two")}));
}

TEST_F(BackgroundTest, WhatFollowsMayBeginTheNext) {
    background->Run([] {},
                    [this] {
                        EXPECT_FALSE(background->Busy());
                        goOn.release();
                        Run(QStringLiteral("next"));
                    });
    EXPECT_TRUE(Followed({QStringLiteral("next")}));
}

TEST_F(BackgroundTest, ItsEndWaitsForTheWorkAndNothingFollows) {
    Run(QStringLiteral("one"));
    goOn.release();
    background.reset();
    EXPECT_TRUE(finished);
    QCoreApplication::processEvents();
    EXPECT_TRUE(followed.isEmpty());
}

} // namespace
