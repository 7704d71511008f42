// Lines of scripts and of the prompt, taken apart.
#include "ftp/Command.h"

#include <gtest/gtest.h>

namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST(Command, AWordAndTheRest) {
    const struct {
        const char *line, *word, *rest;
    } rows[] = {{"", "", ""},
                {"  ", "", ""},
                {"ls", "ls", ""},
                {" LS ", "ls", ""},
                {"cd a  b ", "cd", "a  b"},
                {"put\t\"a\" b", "put", "\"a\" b"}};
    for (const auto& row : rows) {
        EXPECT_EQ(ReadCommand(Q(row.line)).word, Q(row.word)) << row.line;
        EXPECT_EQ(ReadCommand(Q(row.line)).rest, Q(row.rest)) << row.line;
    }
}

TEST(Command, WordsBetweenBlanksAndInQuotes) {
    EXPECT_EQ(Words(Q("a  b")), (QStringList{Q("a"), Q("b")}));
    EXPECT_EQ(Words(Q("\"a b\" c")), (QStringList{Q("a b"), Q("c")}));
    EXPECT_EQ(Words(Q("\"a b")), QStringList{Q("a b")});
    EXPECT_EQ(Words(Q("")), QStringList());
    EXPECT_EQ(NameIn(Q("\"a b\"")), Q("a b"));
    EXPECT_EQ(NameIn(Q("a \"b\"")), Q("a \"b\""));
    EXPECT_EQ(NameIn(Q("\"")), Q("\""));
}

TEST(Command, TheNamesOfAFileToSend) {
    const struct {
        const char *rest, *local, *remote;
    } rows[] = {
        {"a.htm", "a.htm", "a.htm"},
        {"/x/a.htm", "/x/a.htm", "a.htm"},
        {"/x/a.htm b.htm", "/x/a.htm", "b.htm"},
        {"a.htm my name", "a.htm", "my name"},
        {"\"/x/a b.htm\" a b.htm", "/x/a b.htm", "a b.htm"},
        {"\"/x/a b.htm\"", "/x/a b.htm", "a b.htm"},
        {"\"/x/a b.htm\" ", "/x/a b.htm", "a b.htm"},
        {"\"/x/a.htm\" \"c d\"", "/x/a.htm", "c d"},
        {"\"/x/a.htm   \" a.htm", "/x/a.htm", "a.htm"},
        {"\"/x/a.htm   \" b.htm", "/x/a.htm", "b.htm"},
        {"\"/x/a\"b.htm\" a\"b.htm", "/x/a\"b.htm", "a\"b.htm"},
        {"\"/x/say \"hi\" now.htm\" say \"hi\" now.htm", "/x/say \"hi\" now.htm", "say \"hi\" now.htm"},
        {"\"/x/say \"hi\" now.htm   \" say \"hi\" now.htm", "/x/say \"hi\" now.htm", "say \"hi\" now.htm"},
        {"\"/x/\"q\"\" \"q\"", "/x/\"q\"", "\"q\""},
        {"\"/x \"y\" z\" other", "/x \"y", "z\" other"},
        {"\"/x/a", "/x/a", "a"},
        {"\"\" ", "", ""},
        {"\"", "", ""},
        {"\"C:\\site\\a.htm\"", "C:\\site\\a.htm", "a.htm"},
    };
    for (const auto& row : rows) {
        const PutNames names = ReadPutNames(Q(row.rest));
        EXPECT_EQ(names.local, Q(row.local)) << row.rest;
        EXPECT_EQ(names.remote, Q(row.remote)) << row.rest;
    }
}

} // namespace
