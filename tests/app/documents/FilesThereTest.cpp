// Looking files up on threads of their own.
#include "app/documents/FilesThere.h"

#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/NoPlainFile.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTest>

namespace {

class FilesThereTest : public testing::Test {
  protected:
    FilesThereTest() { FreshUser(); }
    /// The answer about a path.
    bool Answer(const QString& path) {
        answers.clear();
        files.Ask(path);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !answers.isEmpty(); }));
        EXPECT_EQ(answers.value(0).value(0).toString(), path);
        return answers.value(0).value(1).toBool();
    }
    FilesThere files;
    QSignalSpy answers{&files, &FilesThere::Answered};
};

TEST_F(FilesThereTest, AFileWithSomethingInItIsThere) {
    const QString full = TestFolder() + QStringLiteral("/full.htm");
    const QString empty = TestFolder() + QStringLiteral("/empty.htm");
    WriteFile(full, "x");
    WriteFile(empty);
    EXPECT_TRUE(Answer(full));
    EXPECT_FALSE(Answer(empty));
    EXPECT_FALSE(Answer(TestFolder() + QStringLiteral("/none.htm")));
    for (const QString& path : NoPlainFiles())
        EXPECT_FALSE(Answer(path)) << path.toStdString();
}

TEST_F(FilesThereTest, WhatIsAskedAlreadyIsNotAskedTwice) {
    const QString path = TestFolder() + QStringLiteral("/a.htm");
    for (int n = 0; n < 5; ++n)
        files.Ask(path);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !answers.isEmpty(); }));
    EXPECT_FALSE(Answer(path));
    QCoreApplication::processEvents();
    EXPECT_EQ(answers.size(), 1);
}

TEST_F(FilesThereTest, AnswersToOneThatIsGoneAreDropped) {
    for (int n = 0; n < 50; ++n) {
        FilesThere gone;
        gone.Ask(TestFolder() + QStringLiteral("/a.htm"));
    }
    EXPECT_FALSE(Answer(TestFolder() + QStringLiteral("/b.htm")));
}

} // namespace
