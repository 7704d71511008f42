// Starting other programs.
#include "platform/desktop/StartProgram.h"

#include "support/Files.h"
#include "support/FreshUser.h"

#include <gtest/gtest.h>
#include <QTest>

namespace {

class StartProgramTest : public testing::Test {
  protected:
    void SetUp() override { FreshUser(); }
    /// What a shell's script leaves in a file.
    QByteArray Told(const char* script, const QStringList& arguments) {
        const QString told = TestFolder() + QStringLiteral("/told");
        EXPECT_TRUE(StartProgram(
            QStringLiteral("/bin/sh"),
            QStringList{
                QStringLiteral("-c"),
                QStringLiteral("{ %1; } > %2.part; mv %2.part %2").arg(QString::fromLatin1(script), told)} +
                arguments));
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(told); }));
        return ReadFile(told);
    }
};

TEST_F(StartProgramTest, EachArgumentArrivesAsItIs) {
    EXPECT_EQ(Told("printf '%s|' \"$@\"",
                   {QStringLiteral("sh"), QStringLiteral("a b"), QStringLiteral("$HOME `x` \"y\"")}),
              QByteArray("a b|$HOME `x` \"y\"|"));
}

TEST_F(StartProgramTest, ItHasNothingToReadFromOrToWriteTo) {
    EXPECT_EQ(Told("readlink /proc/self/fd/0; readlink /proc/$$/fd/2", {}),
              QByteArray("/dev/null\n/dev/null\n"));
}

TEST_F(StartProgramTest, TellsWhenThereIsNoSuchProgram) {
    EXPECT_FALSE(StartProgram(QStringLiteral("/nowhere/program"), {}));
    EXPECT_FALSE(StartProgram(QString(), {}));
}

} // namespace
