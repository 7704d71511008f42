// The client at real servers, well-behaved and other ones. All of them are on the loopback address.
#include "ftp/Client.h"

#include "ftp/TestScreen.h"
#include "ftp/TestServer.h"
#include "support/Files.h"
#include "support/FreshUser.h"

#include <curl/curl.h>
#include <gtest/gtest.h>
#include <new>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <sys/stat.h>

namespace {

const QString user = QStringLiteral("jo");
const QString password = QStringLiteral("se cret");

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

class ClientTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { curl_global_init(CURL_GLOBAL_DEFAULT); }
    void SetUp() override { FreshUser(); }

    /// A local file, by its path.
    QString File(const QString& name, const QByteArray& content) const {
        const QString path = TestFolder() + u'/' + name;
        WriteFile(path, content);
        return path;
    }
    /// The line that sends a local file, as scripts have it.
    static QString PutLine(const QString& path) {
        return QStringLiteral("put \"%1\" %2").arg(path, QFileInfo(path).fileName());
    }
    /// Runs a script to its end; true when everything went up.
    bool Run(const TestServer& server, const QStringList& commands) {
        Client client({QStringLiteral("127.0.0.1"), server.Port()}, screen, cancel);
        client.Run(Script{user, password, commands});
        return client.AllWentUp();
    }

    /// The same at a server of the other make, where whoever has no name writes below "in".
    bool RunAs(const TestServer& server, bool other, QStringList commands) {
        if (!other)
            return Run(server, commands);
        Client client({QStringLiteral("127.0.0.1"), server.Port()}, screen, cancel);
        commands.prepend(QStringLiteral("cd in"));
        client.Run(Script{QString(), password, commands});
        return client.AllWentUp();
    }
    /// Runs a script against a server that never comes to an end of its own, and closes as soon as a text was
    /// shown, or the server has told something.
    void RunAndClose(TestServer& server, const QStringList& commands, const char* when) {
        screen.shown = [&, when](const QString& line) {
            if (line.contains(QLatin1String(when)))
                cancel.Close();
        };
        EXPECT_FALSE(Run(server, commands));
    }

    TestScreen screen;
    Cancel cancel;
};

TEST_F(ClientTest, SendsAFileAndShowsWhatWasSaid) {
    TestServer server("plain");
    const QByteArray content(200'000, 'x');
    EXPECT_TRUE(Run(server, {Q("hash"), Q("bin"), PutLine(File(Q("a.htm"), content)), Q("ls")}));
    EXPECT_EQ(server.File(Q("a.htm")), content);
    EXPECT_EQ(screen.marks, 3);
    EXPECT_TRUE(screen.Has("ftp> hash\n"));
    EXPECT_TRUE(screen.Has("ftp> put \""));
    EXPECT_TRUE(screen.Has("230 Login successful."));
    EXPECT_TRUE(screen.Has("200000 bytes sent."));
    // The listing comes last.
    EXPECT_LT(screen.Text().lastIndexOf(Q("ftp> ls")), screen.Text().lastIndexOf(Q("a.htm")));
    ASSERT_GT(screen.steps.size(), 3u);
    EXPECT_EQ(screen.steps.front().file, Q("a.htm"));
    EXPECT_EQ(screen.steps.front().total, 200'000);
    EXPECT_EQ(screen.steps[screen.steps.size() - 2].done, 200'000);
    EXPECT_EQ(screen.steps.back().file, QString());
}

TEST_F(ClientTest, TellsThatThePasswordGoesInTheClearAndNeverShowsIt) {
    TestServer server("plain");
    EXPECT_TRUE(Run(server, {Q("ls")}));
    EXPECT_EQ(screen.lines.filter(Q("the password goes in the clear")).size(), 1);
    EXPECT_FALSE(screen.Text().contains(password));
    // It was told before the password went.
    EXPECT_LT(screen.Text().indexOf(Q("in the clear")), screen.Text().indexOf(Q("331 ")));
}

TEST_F(ClientTest, WithoutHashThereAreNoMarksAndASecondOneTakesThemAway) {
    TestServer server("plain");
    const QString put = PutLine(File(Q("a.htm"), QByteArray(200'000, 'x')));
    EXPECT_TRUE(Run(server, {put, Q("hash"), Q("hash"), put}));
    EXPECT_EQ(screen.marks, 0);
}

TEST_F(ClientTest, TextArrivesWithTheServersLineEnds) {
    const std::pair<const char*, const char*> rows[] = {
        {"a\nb\n", "a\nb\n"}, {"a\r\nb\r\n", "a\nb\n"}, {"a\r\nb\nc\rd", "a\nb\nc\rd"},
        {"a\rb", "a\rb"},     {"a\r\r\nb", "a\r\nb"},   {"", ""},
    };
    for (const char* kind : {"plain", "other"}) {
        TestServer server(kind);
        const bool other = QByteArray(kind) == "other";
        for (const auto& [local, remote] : rows) {
            const QString path = File(Q("a.txt"), local);
            EXPECT_TRUE(RunAs(server, other, {Q("ascii"), PutLine(path)})) << screen.Text().toStdString();
            const QByteArray got = server.File(other ? Q("in/a.txt") : Q("a.txt"));
            EXPECT_EQ(got, QByteArray(remote)) << kind << ' ' << local;
            ASSERT_TRUE(QFile::remove(server.Folder() + (other ? Q("/in/a.txt") : Q("/a.txt"))));
        }
    }
}

TEST_F(ClientTest, BinaryArrivesToTheByte) {
    QByteArray every;
    for (int i = 0; i < 70'000; ++i)
        every += static_cast<char>(i % 256);
    for (const char* kind : {"plain", "tls", "other", "other-tls", "active"}) {
        TestServer server(kind);
        const bool other = QByteArray(kind).startsWith("other");
        screen = {};
        screen.trusts = true;
        EXPECT_TRUE(RunAs(server, other,
                          {Q("bin"), PutLine(File(Q("a.bin"), every)), PutLine(File(Q("b.bin"), "b\r\n"))}))
            << kind << screen.Text().toStdString();
        const QString folder = other ? Q("in/") : QString();
        EXPECT_EQ(server.File(folder + Q("a.bin")), every) << kind;
        EXPECT_EQ(server.File(folder + Q("b.bin")), QByteArray("b\r\n")) << kind;
        EXPECT_EQ(screen.Has("The connection is encrypted."), QByteArray(kind).contains("tls")) << kind;
        EXPECT_EQ(screen.Has("in the clear"), !QByteArray(kind).contains("tls")) << kind;
    }
}

TEST_F(ClientTest, AServerThatTakesNoConnectionsIsAskedToMakeThem) {
    TestServer server("active");
    EXPECT_TRUE(Run(server, {PutLine(File(Q("a.htm"), "a")), PutLine(File(Q("b.htm"), "b")), Q("ls")}));
    EXPECT_EQ(screen.lines.filter(Q("it is asked to make one")).size(), 1);
    EXPECT_EQ(server.File(Q("a.htm")), QByteArray("a"));
    EXPECT_EQ(server.File(Q("b.htm")), QByteArray("b"));
    EXPECT_TRUE(server.Tells("got EPRT"));
}

// Whether an encrypted connection for files comes about can hang on a moment: more tries are worth it.
TEST_F(ClientTest, AnEncryptedConnectionThatDoesNotComeAboutIsTriedAgain) {
    TestServer server("tls-late");
    screen.trusts = true;
    EXPECT_TRUE(Run(server, {PutLine(File(Q("a.htm"), "a")), Q("ls")})) << screen.Text().toStdString();
    EXPECT_EQ(server.File(Q("a.htm")), QByteArray("a"));
    EXPECT_FALSE(screen.Has("Not listed")) << screen.Text().toStdString();
    EXPECT_EQ(server.Told().count("got PASS"), 3);
}

TEST_F(ClientTest, TheTriesForAnEncryptedConnectionHaveAnEnd) {
    TestServer server("tls-active");
    screen.trusts = true;
    EXPECT_FALSE(Run(server, {PutLine(File(Q("a.htm"), "a"))}));
    EXPECT_EQ(screen.lines.filter(Q("Not sent: ")).size(), 1) << screen.Text().toStdString();
    EXPECT_EQ(server.Told().count("got PASS"), 4);
    EXPECT_FALSE(server.Told().contains("got EPRT")) << "files would go in the clear";
}

TEST_F(ClientTest, AStrangeCertificateIsAskedAboutBeforeThePasswordGoes) {
    TestServer server("tls");
    const QString put = PutLine(File(Q("a.htm"), "a"));
    EXPECT_FALSE(Run(server, {put}));
    ASSERT_EQ(screen.asked.size(), 1u);
    EXPECT_TRUE(screen.asked[0].lines.contains(Q("Issued to: CN = test server")))
        << screen.asked[0].lines.join(u'\n').toStdString();
    EXPECT_EQ(screen.asked[0].fingerprint.size(), 95);
    EXPECT_TRUE(screen.Has(screen.asked[0].fingerprint.toLatin1().constData()));
    EXPECT_TRUE(screen.Has("no name and no password was sent"));
    EXPECT_FALSE(server.Told().contains("USER"));
    EXPECT_FALSE(server.Told().contains("PASS"));
    EXPECT_FALSE(QFile::exists(server.Folder() + Q("/a.htm")));

    screen = {};
    screen.trusts = true;
    EXPECT_TRUE(Run(server, {put}));
    EXPECT_EQ(screen.asked.size(), 1u);
    EXPECT_EQ(server.File(Q("a.htm")), QByteArray("a"));
    EXPECT_FALSE(screen.Text().contains(password));
}

TEST_F(ClientTest, AWrongPasswordIsNotTriedTwice) {
    TestServer server("plain");
    const QString put = PutLine(File(Q("a.htm"), "a"));
    Client client({Q("127.0.0.1"), server.Port()}, screen, cancel);
    client.Run(Script{user, Q("wrong"), {put, put, Q("ls")}});
    EXPECT_FALSE(client.AllWentUp());
    EXPECT_EQ(screen.lines.filter(Q("Not sent: not connected.")).size(), 2);
    EXPECT_TRUE(screen.lines.contains(Q("Not connected.")));
    EXPECT_EQ(server.Told().count("got PASS"), 1);
    EXPECT_FALSE(screen.Has("wrong"));
}

TEST_F(ClientTest, AServerThatRepeatsThePasswordDoesNotBringItToTheScreen) {
    TestServer server("refuse");
    EXPECT_FALSE(Run(server, {}));
    EXPECT_TRUE(screen.Has("530 no: 'PASS ********'")) << screen.Text().toStdString();
    EXPECT_FALSE(screen.Text().contains(password));
}

TEST_F(ClientTest, WithoutAUserItIsAnonymous) {
    TestServer server("plain");
    Client client({Q("127.0.0.1"), server.Port()}, screen, cancel);
    client.Run(Script{QString(), QString(), {}});
    EXPECT_TRUE(client.AllWentUp());
    EXPECT_TRUE(server.Tells("got USER anonymous"));
}

TEST_F(ClientTest, GoesToTheFolderAndNowhereElse) {
    TestServer server("plain");
    const QString put = PutLine(File(Q("a.htm"), "a"));
    EXPECT_FALSE(Run(server, {Q("cd nowhere"), put}));
    EXPECT_TRUE(screen.Has("Not sent: its folder could not be reached."));
    EXPECT_FALSE(QFile::exists(server.Folder() + Q("/a.htm")));

    ASSERT_TRUE(QDir(server.Folder()).mkpath(Q("my \"site\"/caf\u00E9")));
    EXPECT_TRUE(
        Run(server, {Q("cd my \"site\""), put, Q("cd caf\u00E9"), put, Q("cd .."), Q("pwd"), Q("ls")}))
        << screen.Text().toStdString();
    EXPECT_EQ(server.File(Q("my \"site\"/a.htm")), QByteArray("a"));
    EXPECT_EQ(server.File(Q("my \"site\"/caf\u00E9/a.htm")), QByteArray("a"));
}

TEST_F(ClientTest, AServerThatDoesNotTellItsFolderIsFollowed) {
    TestServer server("nowhere");
    ASSERT_TRUE(QDir(server.Folder()).mkpath(Q("www/sub")));
    const QString put = PutLine(File(Q("a.htm"), "a"));
    EXPECT_TRUE(Run(server, {Q("cd www"), Q("cd sub"), put})) << screen.Text().toStdString();
    EXPECT_EQ(server.File(Q("www/sub/a.htm")), QByteArray("a"));
}

TEST_F(ClientTest, GoesOnAfterAFileThatFails) {
    TestServer server("plain");
    const QString folder = TestFolder();
    const QString pipe = TestFolder() + Q("/pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(Run(server, {Q("put \"/nowhere/gone.htm\" "), Q("put \"%1\" folder").arg(folder),
                              Q("put \"%1\" pipe").arg(pipe), Q("put \"\" "), Q("put"),
                              PutLine(File(Q("a.htm"), "a"))}));
    EXPECT_TRUE(screen.Has("Not sent: there is no such file."));
    EXPECT_EQ(screen.lines.filter(Q("Not sent: it is no file.")).size(), 3);
    EXPECT_EQ(server.File(Q("a.htm")), QByteArray("a"));
}

TEST_F(ClientTest, AFileThatVanishesBeforeItsTurnCounts) {
    TestServer server("plain");
    const QString a = File(Q("a.htm"), "a"), b = File(Q("b.htm"), "b"), c = File(Q("c.htm"), "c");
    screen.shown = [&](const QString& line) {
        if (line.startsWith(Q("226")))
            QFile::remove(b);
    };
    EXPECT_FALSE(Run(server, {PutLine(a), PutLine(b), PutLine(c)}));
    EXPECT_EQ(server.File(Q("a.htm")), QByteArray("a"));
    EXPECT_FALSE(QFile::exists(server.Folder() + Q("/b.htm")));
    EXPECT_EQ(server.File(Q("c.htm")), QByteArray("c"));
}

TEST_F(ClientTest, AFullDiskAtTheServerIsTold) {
    TestServer server("full");
    const QString next = PutLine(File(Q("b.htm"), "b"));
    EXPECT_FALSE(Run(server, {PutLine(File(Q("a.htm"), QByteArray(5'000, 'a'))), next}));
    EXPECT_TRUE(screen.Has("Not sent: server did not report OK, got 426.")) << screen.Text().toStdString();
    EXPECT_EQ(server.File(Q("b.htm")), QByteArray("b"));

    // Of a large file the server drops what it did not take: its answer may come behind the break of the
    // connection, and then it is the break that is told.
    screen = {};
    EXPECT_FALSE(Run(server, {PutLine(File(Q("a.htm"), QByteArray(500'000, 'a'))), next}));
    EXPECT_EQ(screen.lines.filter(Q("Not sent: ")).size(), 1) << screen.Text().toStdString();
    EXPECT_EQ(screen.lines.filter(Q(" bytes sent.")).size(), 1);
}

TEST_F(ClientTest, AConnectionThatIsLostIsMadeAgainForTheNextFile) {
    TestServer server("leaves");
    ASSERT_TRUE(QDir(server.Folder()).mkpath(Q("www")));
    EXPECT_FALSE(Run(server, {Q("cd www"), PutLine(File(Q("a.htm"), "a")), PutLine(File(Q("b.htm"), "b")),
                              PutLine(File(Q("c.htm"), "c"))}));
    EXPECT_EQ(screen.lines.filter(Q("Not sent: ")).size(), 1) << screen.Text().toStdString();
    EXPECT_EQ(server.File(Q("www/a.htm")), QByteArray("a"));
    EXPECT_EQ(server.File(Q("www/c.htm")), QByteArray("c"));
}

TEST_F(ClientTest, NamesHoldWhatTheyLike) {
    for (const char* kind : {"plain", "other"}) {
        TestServer server(kind);
        const bool other = QByteArray(kind) == "other";
        for (const char* name :
             {"my file.htm", "say \"hi\" there.htm", "\"x\"", "caf\xC3\xA9.htm", "\xE2\x98\x83.htm",
              "50%2F off?#;type=a.htm", "-a.htm", "~.htm", "a'b`c$d.htm"}) {
            const QString path = File(Q(name), name);
            EXPECT_TRUE(RunAs(server, other, {PutLine(path)})) << name << screen.Text().toStdString();
            EXPECT_EQ(server.File((other ? Q("in/") : QString()) + Q(name)), QByteArray(name));
        }
    }
}

TEST_F(ClientTest, ALocalNameEndsAtItsPadding) {
    TestServer server("plain");
    const QString path = File(Q("a b.htm"), "a");
    EXPECT_TRUE(Run(server, {Q("put \"%1\" a b.htm").arg(path.leftJustified(256))}));
    EXPECT_EQ(server.File(Q("a b.htm")), QByteArray("a"));
    EXPECT_TRUE(screen.lines.contains(Q("ftp> put \"%1\" a b.htm").arg(path)));
}

TEST_F(ClientTest, TheCommandsOfThePrompt) {
    TestServer server("plain");
    Client client({Q("127.0.0.1"), server.Port()}, screen, cancel);
    client.LogIn(user, password);
    const auto folder = QDir(server.Folder());
    EXPECT_TRUE(client.Run(Q("mkdir my folder")));
    EXPECT_TRUE(folder.exists(Q("my folder")));
    WriteFile(server.Folder() + Q("/a.txt"), "one\ntwo\n");
    EXPECT_TRUE(client.Run(Q("lcd ") + TestFolder()));
    EXPECT_TRUE(client.Run(Q("get a.txt")));
    EXPECT_EQ(ReadFile(TestFolder() + Q("/a.txt")), QByteArray("one\ntwo\n"));
    EXPECT_TRUE(client.Run(Q("ASCII")));
    EXPECT_TRUE(client.Run(Q("get a.txt \"b c.txt\"")));
    EXPECT_EQ(ReadFile(TestFolder() + Q("/b c.txt")), QByteArray("one\ntwo\n"));
    EXPECT_TRUE(client.Run(Q("rename a.txt \"my folder/z.txt\"")));
    EXPECT_TRUE(folder.exists(Q("my folder/z.txt")));
    EXPECT_TRUE(client.Run(Q("cd \"my folder\"")));
    EXPECT_TRUE(client.Run(Q("put \"b c.txt\"")));
    EXPECT_TRUE(folder.exists(Q("my folder/b c.txt")));
    EXPECT_TRUE(client.Run(Q("delete b c.txt")));
    EXPECT_FALSE(folder.exists(Q("my folder/b c.txt")));
    screen.lines.clear();
    EXPECT_TRUE(client.Run(Q("pwd")));
    EXPECT_TRUE(screen.Has("\"/my folder\""));
    EXPECT_TRUE(client.Run(Q("help")));
    for (const char* word : {"ascii", "bin", "bye", "cd", "delete", "get", "hash", "help", "lcd", "ls",
                             "mkdir", "put", "pwd", "quit", "rename"})
        EXPECT_EQ(screen.lines.filter(QRegularExpression(Q("^%1 ").arg(Q(word)))).size(), 1) << word;
    EXPECT_TRUE(client.AllWentUp());
}

TEST_F(ClientTest, AnUnknownWordIsInvalidAndNoOrder) {
    Client client({}, screen, cancel);
    for (const char* line : {"frob", "puts a", "open x", "!ls", "."}) {
        screen.lines.clear();
        EXPECT_TRUE(client.Run(Q(line)));
        EXPECT_EQ(screen.lines, QStringList{Q("?Invalid command.")}) << line;
    }
    screen.lines.clear();
    EXPECT_TRUE(client.Run(Q("  ")));
    EXPECT_EQ(screen.lines, QStringList());
    EXPECT_FALSE(client.Run(Q("quit")));
    EXPECT_FALSE(client.Run(Q(" BYE ")));
}

TEST_F(ClientTest, WithoutAConnectionNothingIsDoneAndFilesCount) {
    Client client({}, screen, cancel);
    for (const char* line : {"cd x", "ls", "get a", "pwd", "mkdir a", "delete a", "rename a b"}) {
        screen.lines.clear();
        EXPECT_TRUE(client.Run(Q(line)));
        EXPECT_EQ(screen.lines, QStringList{Q("Not connected.")}) << line;
    }
    EXPECT_TRUE(client.AllWentUp());
    EXPECT_TRUE(client.Run(PutLine(File(Q("a"), "a"))));
    EXPECT_FALSE(client.AllWentUp());
}

TEST_F(ClientTest, ACommandThatLacksItsNameIsTold) {
    TestServer server("plain");
    EXPECT_TRUE(Run(server, {Q("cd"), Q("put"), Q("get"), Q("mkdir"), Q("delete"), Q("rename a")}));
    EXPECT_EQ(screen.lines.filter(Q("A name is missing")).size(), 6);
}

TEST_F(ClientTest, WhatIsFetchedStaysInTheLocalFolder) {
    TestServer server("plain");
    ASSERT_TRUE(QDir(server.Folder()).mkpath(Q("sub")));
    WriteFile(server.Folder() + Q("/sub/a.txt"), "new");
    ASSERT_TRUE(QDir().mkpath(TestFolder() + Q("/here")));
    EXPECT_TRUE(Run(server, {Q("lcd %1/here").arg(TestFolder()), Q("get /sub/../sub/a.txt")}));
    EXPECT_EQ(ReadFile(TestFolder() + Q("/here/a.txt")), QByteArray("new"));
}

TEST_F(ClientTest, AFetchThatFailsLeavesTheOldFile) {
    TestServer server("plain");
    const QString old = File(Q("a.txt"), "old");
    EXPECT_TRUE(Run(server, {Q("lcd ") + TestFolder(), Q("get a.txt"), Q("get a.txt /nowhere/b.txt")}));
    EXPECT_EQ(ReadFile(old), QByteArray("old"));
    EXPECT_EQ(screen.lines.filter(Q("Not received: ")).size(), 2);
}

TEST_F(ClientTest, ControlCharactersAreNotSent) {
    TestServer server("plain");
    EXPECT_TRUE(Run(server, {Q("mkdir a\x01"
                               "b"),
                             Q("delete a\rDELE b")}));
    EXPECT_EQ(screen.lines.filter(Q("it holds control characters")).size(), 2);
    EXPECT_FALSE(server.Told().contains("got DELE"));
}

TEST_F(ClientTest, NoServerIsNamed) {
    Client client({}, screen, cancel);
    client.Run(Script{user, password, {}});
    EXPECT_FALSE(client.AllWentUp());
    EXPECT_TRUE(screen.lines.contains(Q("Not connected: no server is named.")));
}

TEST_F(ClientTest, AServerThatIsNotThereIsTold) {
    for (const char* host : {"127.0.0.1", "127.0.0.1/x", "a b", "%41", "http://x", "::1::"}) {
        screen.lines.clear();
        Client client({Q(host), 1}, screen, cancel);
        client.Run(Script{user, password, {}});
        EXPECT_FALSE(client.AllWentUp());
        EXPECT_EQ(screen.lines.filter(Q("Not connected: ")).size(), 1) << host;
    }
}

TEST_F(ClientTest, AServerThatClosesOrTalksNonsenseIsTold) {
    for (const char* kind : {"close", "nonsense"}) {
        TestServer server(kind);
        screen.lines.clear();
        EXPECT_FALSE(Run(server, {PutLine(File(Q("a.htm"), "a"))}));
        EXPECT_EQ(screen.lines.filter(Q("Not connected: ")).size(), 1) << kind << screen.Text().toStdString();
        EXPECT_TRUE(screen.Has("Not sent: not connected."));
        for (const QChar character : screen.Text())
            EXPECT_TRUE(character >= u' ' || character == u'\n') << kind << int{character.unicode()};
    }
}

TEST_F(ClientTest, AServerThatFloodsIsGivenUp) {
    for (const char* kind : {"flood", "flood-later", "list-flood"}) {
        TestServer server(kind);
        screen = {};
        Run(server, {Q("cd x"), Q("ls")});
        EXPECT_TRUE(screen.Has("the server's answer does not end"))
            << kind << screen.Text().right(500).toStdString();
        for (const QString& line : screen.lines)
            ASSERT_LE(line.size(), 2001);
    }
}

TEST_F(ClientTest, AServerThatHangsCanBeLeft) {
    TestServer hangs("hang-later");
    RunAndClose(hangs, {Q("cd x"), PutLine(File(Q("a.htm"), "a"))}, "ftp> cd x");
    EXPECT_TRUE(screen.Has("1 files were not sent"));
    for (const char* kind : {"hang", "flood-line"}) {
        cancel.~Cancel();
        new (&cancel) Cancel;
        TestServer server(kind);
        RunAndClose(server, {}, "Connecting");
        EXPECT_TRUE(screen.Has("Not connected: stopped.")) << kind;
    }
}

TEST_F(ClientTest, AStopEndsTheScriptAndNotTheSession) {
    TestServer server("plain");
    const QString a = File(Q("a.htm"), "a"), b = File(Q("b.htm"), "b");
    screen.shown = [&](const QString& line) {
        if (line.startsWith(Q("226")))
            cancel.Stop();
    };
    Client client({Q("127.0.0.1"), server.Port()}, screen, cancel);
    client.Run(Script{user, password, {PutLine(a), PutLine(b), PutLine(b), Q("ls")}});
    EXPECT_FALSE(client.AllWentUp());
    EXPECT_FALSE(QFile::exists(server.Folder() + Q("/b.htm")));
    EXPECT_TRUE(screen.Has("Stopped; "));
    screen.shown = {};
    cancel.Reset();
    EXPECT_TRUE(client.Run(PutLine(b)));
    EXPECT_EQ(server.File(Q("b.htm")), QByteArray("b"));
}

} // namespace
