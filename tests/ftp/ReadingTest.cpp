// What the client reads: its command line, scripts, bytes, answers of servers.
#include "ftp/Answers.h"
#include "ftp/Arguments.h"
#include "ftp/LineEnds.h"
#include "ftp/Script.h"
#include "ftp/TextBytes.h"

#include <gtest/gtest.h>

namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST(Arguments, TheScriptAndTheServer) {
    const Arguments a = ReadArguments({Q("-s:/home/jo/my files/send.out"), Q("ftp.example.org")});
    EXPECT_EQ(a.script, Q("/home/jo/my files/send.out"));
    EXPECT_EQ(a.server.host, Q("ftp.example.org"));
    EXPECT_EQ(a.server.port, 21);
    EXPECT_EQ(ReadArguments({Q("-s:\"a b\"")}).script, Q("a b"));
    EXPECT_TRUE(ReadArguments({Q("--help")}).help);
    EXPECT_TRUE(ReadArguments({Q("--version")}).version);
    EXPECT_EQ(ReadArguments({Q("-x"), Q("-y")}).unknown, Q("-x"));
    EXPECT_EQ(ReadArguments({}).server.host, QString());
}

TEST(ServerAddress, InEveryForm) {
    const struct {
        const char *words, *host;
        int port;
        const char* text;
    } rows[] = {
        {"", "", 21, ""},
        {"host", "host", 21, "host"},
        {"host:2121", "host", 2121, "host:2121"},
        {"host 2121", "host", 2121, "host:2121"},
        {"host:x", "host:x", 21, "[host:x]"},
        {"host 99999", "host", 21, "host"},
        {"host -1", "host", 21, "host"},
        {"[::1]:2121", "::1", 2121, "[::1]:2121"},
        {"::1", "::1", 21, "[::1]"},
        {"ftp://host/", "host", 21, "host"},
        {"FTP://host:7/a/b", "host", 7, "host:7"},
    };
    for (const auto& row : rows) {
        const ServerAddress address = ReadAddress(Q(row.words).split(u' ', Qt::SkipEmptyParts));
        EXPECT_EQ(address.host, Q(row.host)) << row.words;
        EXPECT_EQ(address.port, row.port) << row.words;
        EXPECT_EQ(address.Text(), Q(row.text)) << row.words;
    }
}

TEST(Script, UserPasswordAndCommands) {
    const Script script = ReadScript("jo\r\n se cret \r\ncd www\r\nput \"a  \" a\r\nls\r\n");
    EXPECT_EQ(script.user, Q("jo"));
    EXPECT_EQ(script.password, Q(" se cret "));
    EXPECT_EQ(script.commands, (QStringList{Q("cd www"), Q("put \"a  \" a"), Q("ls")}));
}

TEST(Script, MayBeShortOrHaveOtherLineEnds) {
    EXPECT_EQ(ReadScript("").user, QString());
    EXPECT_EQ(ReadScript("jo").user, Q("jo"));
    EXPECT_EQ(ReadScript("jo\n").commands, QStringList());
    EXPECT_EQ(ReadScript("\r\n\r\n\r\nls").commands, (QStringList{QString(), Q("ls")}));
    EXPECT_EQ(ReadScript("a\nb\nc\nd\n").commands, (QStringList{Q("c"), Q("d")}));
}

TEST(TextBytes, ScriptsAreInTheCodePageUnlessTheyCannotBe) {
    EXPECT_EQ(FromScript("caf\xE9 \x80"), Q("caf\u00E9 \u20AC"));
    EXPECT_EQ(FromScript("\xE2\x98\x83\xC3\xA9"), Q("\u2603\u00E9"));
    // Two characters of the code page, though UTF-8 could read one.
    EXPECT_EQ(FromScript("\xC3\xA9"), Q("\u00C3\u00A9"));
    EXPECT_EQ(FromScript("\x81\x9D"), Q("\u0081\u009D"));
}

TEST(TextBytes, WhatServersSayIsFitToBeShown) {
    EXPECT_EQ(FromServer("220 caf\xC3\xA9\r\n"), Q("220 caf\u00E9"));
    EXPECT_EQ(FromServer("220 caf\xE9\r\n"), Q("220 caf\u00E9"));
    EXPECT_EQ(FromServer("a\x1b[2J\tb\x07"), Q("a\uFFFD[2J b\uFFFD"));
    EXPECT_EQ(FromServer("\xE2\x80\xAE"
                         "abc"),
              Q("\uFFFD"
                "abc"));
    EXPECT_EQ(FromServer(QByteArray(5000, 'x')).size(), 2001);
    EXPECT_TRUE(CanBeSent(Q("caf\u00E9 \u2603\"")));
    for (const char* bad : {"a\rb", "a\nb", "\x01", "\x7F"})
        EXPECT_FALSE(CanBeSent(Q(bad)));
    EXPECT_FALSE(CanBeSent(QString(QChar(0))));
}

TEST(Answers, TheFolderThatAServerNames) {
    const struct {
        const char *line, *folder;
    } rows[] = {
        {"257 \"/www\" is it\r\n", "/www"},
        {"257 \"/a \"\"b\"\" c\" is it", "/a \"b\" c"},
        {"257 \"/a\"", "/a"},
        {"257 /www\r\n", ""},
        {"257 \"/www", ""},
        {"257 \"\"", ""},
        {"250 \"/www\"", ""},
        {"257", ""},
        {"257 \"a\x01\"", ""},
        {"257 \"\"\"", ""},
        {"257 \"/caf\xE9\"", "/caf\xE9"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(FolderIn({"220 x", row.line, "226 y"}), QByteArray(row.folder)) << row.line;
    EXPECT_EQ(FolderIn({"257 \"/a\"", "257 \"/b\""}), QByteArray("/b"));
    EXPECT_EQ(FolderIn({}), QByteArray());
}

TEST(Answers, AreToldFromOtherText) {
    const struct {
        QList<QByteArray> lines;
        bool taken;
    } rows[] = {
        {{"220 a\r\n", "331 b\r\n"}, true},
        {{"220-a\r\n", "anything\r\n", "230 x\r\n", "220-\r\n", "220 b\r\n", "331 c\r\n"}, true},
        {{"220-a\r\n", "220 b\r\n", "c\r\n"}, false},
        {{"HTTP/1.1 200 OK\r\n"}, false},
        {{"22 a\r\n"}, false},
        {{"\r\n"}, false},
        {{""}, false},
        {{"220\r\n"}, true},
    };
    for (const auto& row : rows) {
        AnswerForm form;
        bool taken = true;
        for (const QByteArray& line : row.lines)
            taken = form.Takes(line);
        EXPECT_EQ(taken, row.taken) << row.lines.last().constData();
    }
}

TEST(Answers, OnlySomeFailuresMeanThatTheServerTakesNoConnection) {
    EXPECT_TRUE(RefusesPassive(CURLE_FTP_WEIRD_PASV_REPLY, {}));
    EXPECT_TRUE(RefusesPassive(CURLE_COULDNT_CONNECT, {"229 (|||1|)"}));
    EXPECT_FALSE(RefusesPassive(CURLE_COULDNT_CONNECT, {}));
    EXPECT_FALSE(RefusesPassive(CURLE_UPLOAD_FAILED, {"227 (1,2,3,4,5,6)"}));
    EXPECT_FALSE(RefusesPassive(CURLE_OK, {"229 (|||1|)"}));
}

TEST(LineEnds, AreCutAtAnyPlace) {
    const std::pair<const char*, const char*> rows[] = {
        {"a\r\nb\nc\rd", "a\nb\nc\rd"}, {"\r\r\n\n\r", "\r\n\n\r"}, {"", ""}, {"\r", "\r"}, {"\r\n", "\n"}};
    for (const auto& [from, to] : rows)
        for (qsizetype size = 1; size < 5; ++size) {
            LineEnds ends;
            QByteArray out;
            const QByteArray whole(from);
            for (qsizetype at = 0; at < whole.size(); at += size)
                out += ends.Take(whole.mid(at, size));
            EXPECT_EQ(out + ends.End(), QByteArray(to)) << from << size;
        }
}

} // namespace
