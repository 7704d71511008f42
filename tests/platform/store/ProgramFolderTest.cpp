// The folders of a user who never ran the program.
#include "platform/store/ProgramFolder.h"

#include "support/FreshUser.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr auto OnlyTheUser = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner |
                             QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ExeUser;

} // namespace

TEST(ProgramFolder, EnvironmentNamesItAndItIsMade) {
    FreshUser();
    const QString home = qEnvironmentVariable("TARNWICK_HOME");
    QDir(home).removeRecursively();
    EXPECT_EQ(ProgramFolder(), home);
    EXPECT_TRUE(QFileInfo(home).isDir());
    EXPECT_EQ(QFile::permissions(home), OnlyTheUser);
    EXPECT_EQ(InProgramFolder(QStringLiteral("send.out")), home + QStringLiteral("/send.out"));
    qputenv("TARNWICK_HOME", QFile::encodeName(home + u'/'));
    EXPECT_EQ(ProgramFolder(), home) << "no separator at its end";
    qputenv("TARNWICK_HOME", QFile::encodeName(home + QStringLiteral("/far/below")));
    EXPECT_EQ(ProgramFolder(), home + QStringLiteral("/far/below"));
    EXPECT_TRUE(QFileInfo(home + QStringLiteral("/far/below")).isDir());
    FreshUser();
}

TEST(ProgramFolder, OtherwiseItLiesInTheUsersData) {
    FreshUser();
    qunsetenv("TARNWICK_HOME");
    const QString expected = qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/tarnwick");
    EXPECT_EQ(ProgramFolder(), expected);
    EXPECT_EQ(QFile::permissions(expected), OnlyTheUser);
    FreshUser();
}

TEST(ProgramFolder, SettingsFolderLiesInTheUsersConfiguration) {
    FreshUser();
    const QString expected = qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/tarnwick");
    ASSERT_FALSE(QFileInfo::exists(expected));
    EXPECT_EQ(SettingsFolder(), expected);
    EXPECT_EQ(QFile::permissions(expected), OnlyTheUser);
}
