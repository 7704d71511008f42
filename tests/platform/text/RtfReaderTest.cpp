// Every rule of reading RTF, one row each.
#include "platform/text/RtfReader.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

const QString table = QStringLiteral("{{\\colortbl ;\\red1\\green2\\blue3;\\red255\\green0\\blue0;}");
constexpr ColorNumber first = 0x030201;
constexpr ColorNumber red = 255;

struct Row {
    const char* name;
    QString rtf;
    RawLineEnds lineEnds;
    QString text;
    std::vector<RtfRun> runs;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

class RtfReaderTest : public testing::TestWithParam<Row> {};

TEST_P(RtfReaderTest, Reads) {
    const Row& row = GetParam();
    const RtfText read = ReadRtf(row.rtf, row.lineEnds);
    EXPECT_EQ(QString::fromUtf8(read.text), row.text);
    ASSERT_EQ(read.runs.size(), row.runs.size());
    for (std::size_t i = 0; i < row.runs.size(); ++i) {
        EXPECT_EQ(read.runs[i].length, row.runs[i].length) << "run " << i;
        EXPECT_EQ(read.runs[i].color, row.runs[i].color) << "run " << i;
    }
}

constexpr RawLineEnds keep = RawLineEnds::Keep;
constexpr RawLineEnds skip = RawLineEnds::Skip;

QString S(const char* utf8) {
    return QString::fromUtf8(utf8);
}

const Row rows[] = {
    {"nothing", S(""), keep, S(""), {}},
    {"colour word alone", table + S("\\cf1 }"), keep, S(""), {}},
    {"colours of stretches",
     table + S("\\cf1 \\cf2 <B>\\cf1 x\\cf2 </B>\\cf1 }"),
     keep,
     S("<B>x</B>"),
     {{3, red}, {1, first}, {4, red}}},
    {"text without a word has the control's colour", table + S("ab}"), keep, S("ab"), {{2, -1}}},
    {"cf0 is the empty entry", table + S("\\cf2 a\\cf0 b}"), keep, S("ab"), {{1, red}, {1, -1}}},
    {"cf without a number is cf0", table + S("\\cf2 a\\cf b}"), keep, S("ab"), {{1, red}, {1, -1}}},
    {"a number outside the table is cf0",
     table + S("\\cf2 a\\cf9 b\\cf-1 c}"),
     keep,
     S("abc"),
     {{1, red}, {2, -1}}},
    {"equal neighbours are one run", table + S("\\cf2 a\\cf2 b}"), keep, S("ab"), {{2, red}}},
    {"a closing brace gives the colour back",
     table + S("\\cf1 a{\\cf2 b}c}"),
     keep,
     S("abc"),
     {{1, first}, {1, red}, {1, first}}},
    {"opening word of a whole document",
     S("{\\rtf1\\ansi{\\colortbl;\\red255\\green0\\blue0;}\\cf1 x}"),
     keep,
     S("x"),
     {{1, red}}},
    {"table with blanks and raw line ends",
     S("{{\\colortbl ;\r\n\\red255 \\green0 \\blue0 ;}\\cf1 x}"),
     keep,
     S("x"),
     {{1, red}}},
    {"table entry with one part", S("{{\\colortbl;\\green128;}\\cf1 x}"), keep, S("x"), {{1, 0x8000}}},
    {"table with unknown words",
     S("{{\\colortbl;\\red255\\cshade7\\blue1;}\\cf1 x}"),
     keep,
     S("x"),
     {{1, 0x100ff}}},
    {"table parts without a number", S("{{\\colortbl;\\red\\green2;}\\cf1 x}"), keep, S("x"), {{1, 0x200}}},
    {"a second table takes the first one's place",
     S("{{\\colortbl;\\red9;\\red255}{\\colortbl ;\\green255;}\\cf1 x\\cf0 y}"),
     keep,
     S("xy"),
     {{1, 0xff00}, {1, -1}}},
    {"a colour word without a table", S("{\\cf3 x}"), keep, S("x"), {{1, -1}}},
    {"table values are cut to a byte",
     S("{{\\colortbl;\\red999\\green-5\\blue0;}\\cf1 x}"),
     keep,
     S("x"),
     {{1, 255}}},
    {"table without an empty entry",
     S("{{\\colortbl\\red255;\\green1;}\\cf1 x\\cf0 y}"),
     keep,
     S("xy"),
     {{1, 256}, {1, 255}}},
    {"par and line", table + S("a\\par b\\line c}"), keep, S("a\r\nb\r\nc"), {{7, -1}}},
    {"par at the end of a word", table + S("a\\par}"), keep, S("a\r\n"), {{3, -1}}},
    {"only one blank belongs to a word", table + S("\\par  b}"), keep, S("\r\n b"), {{4, -1}}},
    {"tab, word and raw", table + S("a\\tab b\tc}"), keep, S("a\tb\tc"), {{5, -1}}},
    {"escapes", table + S("\\\\ \\{ \\}}"), keep, S("\\ { }"), {{5, -1}}},
    {"escapes in colour", table + S("\\cf1 a\\{\\cf2 \\}\\}b}"), keep, S("a{}}b"), {{2, first}, {3, red}}},
    {"escape in a fallback", table + S("\\uc2\\u8364\\{\\}\\{}"), keep, S("€{"), {{4, -1}}},
    {"escape in a group that holds no text", S("{\\rtf1{\\*\\x \\{}\\{}"), keep, S("{"), {{1, -1}}},
    {"escape behind half a pair", table + S("\\uc0\\u-10179\\{}"), keep, S("&#55357;{"), {{9, -1}}},
    {"hex", table + S("\\'e9\\'80\\'41}"), keep, S("é€A"), {{6, -1}}},
    {"hex of all letters", table + S("\\'af\\'fa\\'AF\\'FA\\'0a\\'9f}"), keep, S("¯ú¯ú\nŸ"), {{11, -1}}},
    {"hex that is none", table + S("\\'zz}"), keep, S("zz"), {{2, -1}}},
    {"hex at the end", table + S("a\\'e9"), keep, S("aé"), {{3, -1}}},
    {"half a hex at the end", table + S("a\\'e"), keep, S("ae"), {{2, -1}}},
    {"unicode inside the code page", table + S("\\u8364?x}"), keep, S("€x"), {{4, -1}}},
    {"unicode outside the code page", table + S("\\u9731?x}"), keep, S("&#9731;x"), {{8, -1}}},
    {"unicode as a negative number", table + S("\\u-3913?x}"), keep, S("&#61623;x"), {{9, -1}}},
    {"unicode with a fallback in hex", table + S("\\u8364\\'80x}"), keep, S("€x"), {{4, -1}}},
    {"unicode with another fallback length",
     table + S("\\uc2\\u8364??x\\uc0\\u8364y}"),
     keep,
     S("€x€y"),
     {{8, -1}}},
    {"fallback ends with its group", table + S("{\\u8364}x}"), keep, S("€x"), {{4, -1}}},
    {"surrogate pair is one character",
     table + S("\\u-10179?\\u-8704?x}"),
     keep,
     S("&#128512;x"),
     {{10, -1}}},
    {"half a pair ends at a word",
     table + S("\\uc0\\u-10179\\cf2 \\u-8704 x}"),
     keep,
     S("&#55357;&#56832;x"),
     {{8, -1}, {9, red}}},
    {"the second half alone", table + S("\\u-8704?x}"), keep, S("&#56832;x"), {{9, -1}}},
    {"the first half in front of a whole one",
     table + S("\\uc0\\u-10179\\u233 x}"),
     keep,
     S("&#55357;éx"),
     {{11, -1}}},
    {"the second half behind a whole one",
     table + S("\\uc0\\u233\\u-8704 x}"),
     keep,
     S("é&#56832;x"),
     {{11, -1}}},
    {"uc without a number is one", table + S("\\uc0\\uc\\u233?x}"), keep, S("éx"), {{3, -1}}},
    {"u without a number is a word like others", table + S("a\\u b}"), keep, S("ab"), {{2, -1}}},
    {"a negative number at the end", table + S("a\\b-3"), keep, S("a"), {{1, -1}}},
    {"a sign without a digit is text", table + S("a\\b-c}"), keep, S("a-c"), {{3, -1}}},
    {"a symbol at a group's start", table + S("{\\~a}b}"), keep, S("ab"), {{2, -1}}},
    {"half a pair at the end", table + S("\\uc0\\u-10179"), keep, S("&#55357;"), {{8, -1}}},
    {"half a pair stays in its group",
     table + S("\\cf1\\uc0\\u-10179{\\cf2\\u-8704 x}}"),
     keep,
     S("&#55357;&#56832;x"),
     {{8, first}, {9, red}}},
    {"half a pair is no part of what follows its group",
     table + S("\\uc0{\\cf2\\u-10179}\\u-8704 x}"),
     keep,
     S("&#55357;&#56832;x"),
     {{8, red}, {9, -1}}},
    {"unknown words go with one blank", table + S("a\\foo b\\bar12 c\\b-3  d}"), keep, S("abc d"), {{5, -1}}},
    {"unknown symbols go", table + S("a\\~b\\_c\\-d}"), keep, S("abcd"), {{4, -1}}},
    {"words of the last letters", table + S("a\\z b\\Z c\\zZ1 d}"), keep, S("abcd"), {{4, -1}}},
    {"words of groups amid text are unknown ones",
     table + S("a\\info b\\*c\\pict d}"),
     keep,
     S("abcd"),
     {{4, -1}}},
    {"words count case", table + S("a\\PAR b}"), keep, S("ab"), {{2, -1}}},
    {"a word in front of text without a blank", table + S("\\cf2<B>}"), keep, S("<B>"), {{3, red}}},
    {"groups that hold no text",
     S("{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\*\\generator Me;}{\\info{\\title t}}x}"),
     keep,
     S("x"),
     {{1, -1}}},
    {"raw line ends kept", table + S("a\r\nb\nc\rd}"), keep, S("a\r\nb\nc\rd"), {{8, -1}}},
    {"raw line ends skipped", table + S("a\r\nb\nc\rd}"), skip, S("abcd"), {{4, -1}}},
    {"par stands in both modes", table + S("a\\par \nb}"), skip, S("a\r\nb"), {{4, -1}}},
    {"escaped raw line end kept", table + S("a\\\nb}"), keep, S("a\nb"), {{3, -1}}},
    {"escaped raw line end is a par", table + S("a\\\r\nb\\\nc}"), skip, S("a\r\nb\r\nc"), {{7, -1}}},
    {"the outermost group's brace ends the document", table + S("a}b}"), keep, S("a"), {{1, -1}}},
    {"a brace that closes nothing ends the document", S("a}b"), keep, S("a"), {{1, -1}}},
    {"a missing brace loses nothing", table + S("\\cf2 a{b"), keep, S("ab"), {{2, red}}},
    {"a backslash at the end", table + S("a\\"), keep, S("a"), {{1, -1}}},
    {"a colour word at the end", table + S("a\\cf2"), keep, S("a"), {{1, -1}}},
    {"text without any group", S("plain"), keep, S("plain"), {{5, -1}}},
    {"characters above 127 as they stand", table + S("é€Ÿ}"), keep, S("é€Ÿ"), {{7, -1}}},
    {"characters from outside the code page", table + S("a☃b}"), keep, S("a&#9731;b"), {{9, -1}}},
    {"a number without an end", table + S("\\cf99999999999999999999 a}"), keep, S("a"), {{1, -1}}},
};

INSTANTIATE_TEST_SUITE_P(Rules, RtfReaderTest, testing::ValuesIn(rows));

TEST(RtfReader, RunsCoverALongTextWithoutAGap) {
    QString rtf = table;
    for (int i = 0; i < 5000; ++i)
        rtf += i % 2 == 0 ? QStringLiteral("\\cf1 ab") : QStringLiteral("\\cf2 c\\par ");
    const RtfText read = ReadRtf(rtf, keep);
    int covered = 0;
    for (std::size_t i = 0; i < read.runs.size(); ++i) {
        EXPECT_GT(read.runs[i].length, 0);
        covered += read.runs[i].length;
        if (i > 0) {
            EXPECT_NE(read.runs[i].color, read.runs[i - 1].color);
        }
    }
    EXPECT_EQ(covered, read.text.size());
    EXPECT_EQ(read.runs.size(), 5000U);
}

TEST(RtfReader, ATextMayBecomeLongerThanItsRtf) {
    // A character of three bytes, one of one, and a reference longer than the word it stands for.
    for (const char* piece : {"€", "€a", "☃", "\\u9731", "a\\u9731\\'e9"}) {
        QString rtf = table + QStringLiteral("\\uc0\\cf2 ");
        for (int i = 0; i < 1000; ++i)
            rtf += S(piece);
        const RtfText read = ReadRtf(rtf, keep);
        QString expected = S(piece);
        expected.replace(S("☃"), S("&#9731;"))
            .replace(S("\\u9731"), S("&#9731;"))
            .replace(S("\\'e9"), S("é"));
        EXPECT_EQ(QString::fromUtf8(read.text), expected.repeated(1000)) << piece;
        ASSERT_EQ(read.runs.size(), 1U);
        EXPECT_EQ(read.runs[0].length, read.text.size());
    }
}

} // namespace
