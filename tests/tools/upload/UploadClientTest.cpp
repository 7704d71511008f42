// Writing the script and starting the client.
#include "tools/upload/UploadClient.h"

#include "platform/store/ProgramFolder.h"
#include "support/Files.h"
#include "support/FreshUser.h"

#include <gtest/gtest.h>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class UploadClientTest : public testing::Test {
  protected:
    void SetUp() override { FreshUser(); }

    /// A client that writes its arguments into a file.
    QString Client() const {
        const QString path = TestFolder() + QStringLiteral("/client");
        WriteFile(path, "#!/bin/sh\nprintf '%s|' \"$@\" > '" + Told().toUtf8() + ".part'; mv '" +
                            Told().toUtf8() + ".part' '" + Told().toUtf8() + "'\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }
    QString Told() const { return TestFolder() + QStringLiteral("/told"); }
    QByteArray WaitForStart() const {
        EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(Told()); }));
        return ReadFile(Told());
    }
    static mode_t ModeOf(const QString& path) {
        struct stat file = {};
        EXPECT_EQ(stat(QFile::encodeName(path).constData(), &file), 0);
        return file.st_mode & 07777;
    }
};

TEST_F(UploadClientTest, TheScriptLiesInTheProgramsFolder) {
    EXPECT_EQ(UploadScriptPath(), ProgramFolder() + QStringLiteral("/send.out"));
}

TEST_F(UploadClientTest, TheClientGetsTheScriptAndTheServer) {
    const QString option = QStringLiteral("-s:") + UploadScriptPath();
    EXPECT_EQ(UploadCommandLine(QStringLiteral("ftp.example.org")),
              (QStringList{option, QStringLiteral("ftp.example.org")}));
    EXPECT_EQ(UploadCommandLine(QStringLiteral("host 2121")),
              (QStringList{option, QStringLiteral("host"), QStringLiteral("2121")}));
    EXPECT_EQ(UploadCommandLine(QString()), QStringList{option});
    EXPECT_EQ(UploadCommandLine(QStringLiteral("; rm -r $HOME")).size(), 5);
}

TEST_F(UploadClientTest, WritesTheScriptAndStartsTheClient) {
    EXPECT_EQ(StartUpload(Client(), "u\r\np\r\n", QStringLiteral("host")), UploadError::None);
    EXPECT_EQ(WaitForStart(), "-s:" + UploadScriptPath().toUtf8() + "|host|");
    EXPECT_EQ(ReadFile(UploadScriptPath()), QByteArray("u\r\np\r\n"));
    EXPECT_EQ(ModeOf(UploadScriptPath()), 0600u);
}

TEST_F(UploadClientTest, AnOldScriptGivesWayWithItsModeAndItsLink) {
    const QString other = TestFolder() + QStringLiteral("/other");
    for (const bool link : {false, true}) {
        QFile::remove(UploadScriptPath());
        WriteFile(other, "mine");
        if (link) {
            ASSERT_EQ(symlink(QFile::encodeName(other), QFile::encodeName(UploadScriptPath())), 0);
        } else {
            WriteFile(UploadScriptPath(), "old");
            ASSERT_EQ(chmod(QFile::encodeName(UploadScriptPath()), 0644), 0);
        }
        EXPECT_EQ(StartUpload(Client(), "new", QString()), UploadError::None);
        EXPECT_EQ(ReadFile(UploadScriptPath()), QByteArray("new"));
        EXPECT_EQ(ModeOf(UploadScriptPath()), 0600u);
        EXPECT_EQ(ReadFile(other), QByteArray("mine"));
    }
}

TEST_F(UploadClientTest, AClientThatIsNotThereIsTold) {
    EXPECT_EQ(StartUpload(QStringLiteral("/nowhere/client"), "s", QStringLiteral("host")),
              UploadError::NoClient);
    // The script stands all the same.
    EXPECT_EQ(ReadFile(UploadScriptPath()), QByteArray("s"));
}

TEST_F(UploadClientTest, AScriptThatCannotBeWrittenIsToldAndTheClientStarted) {
    ASSERT_TRUE(QDir().mkpath(UploadScriptPath() + QStringLiteral("/in the way")));
    EXPECT_EQ(StartUpload(Client(), "s", QStringLiteral("host")), UploadError::ScriptNotWritten);
    EXPECT_EQ(WaitForStart(), "-s:" + UploadScriptPath().toUtf8() + "|host|");
    EXPECT_EQ(StartUpload(QStringLiteral("/nowhere"), "s", QString()), UploadError::NoClient);
}

} // namespace
