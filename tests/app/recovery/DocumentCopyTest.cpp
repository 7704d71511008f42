// The bytes in which a changed document is kept.
#include "app/recovery/DocumentCopy.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <QCryptographicHash>

namespace {

TEST(DocumentCopies, BytesAreLinesThatAPersonReadsAndTheTextAsItIs) {
    const DocumentCopy copy{.path = QStringLiteral("/site/caf\u00e9.htm"),
                            .caret = 7,
                            .content = {.utf8 = "<P>\r\n\xc3\xa9",
                                        .encoding = TextEncoding::CodePage1252,
                                        .mark = FileMark({.size = 3}, "<P>")}};
    EXPECT_EQ(BytesOf(copy).toStdString(),
              "Tarnwick copy 1\n"
              "sum: d450ab1d15f73e7bc6f3c5261c5a7dfba56adab9\n"
              "path: /site/caf\xc3\xa9.htm\n"
              "encoding: windows-1252\n"
              "caret: 7\n"
              "file: 3 0a9327a88a4b1832e2a5bd86dafdaa8a622a5e1bb3cffdaaf9956be0c56f5041\n"
              "read: whole\n"
              "\n"
              "<P>\r\n\xc3\xa9");
}

TEST(DocumentCopies, ComeBackAsTheyWere) {
    const DocumentCopy copies[] = {
        {},
        {.path = QStringLiteral("/a"), .content = {.utf8 = "", .mark = {}}},
        {.path = QStringLiteral("C:\\site\\a b.htm"),
         .caret = 1,
         .content = {.utf8 = "x", .encoding = TextEncoding::Utf8, .mark = {}}},
        {.path = QStringLiteral("/100%0A%25/%\n\r\n: x"),
         .content = {.utf8 = "\n\n", .encoding = TextEncoding::Utf8WithMark, .mark = {}}},
        {.path = QStringLiteral("\ufeff\u2603"),
         .content = {.utf8 = "\xef\xbb\xbf", .encoding = TextEncoding::Utf8, .mark = {}}},
        {.caret = 2147483647,
         .content = {.utf8 = QByteArray("a\0b\x1a\r\n\xff", 7),
                     .encoding = TextEncoding::CodePage1252,
                     .mark = {},
                     .wasReadWhole = false}},
        {.path = QStringLiteral("/gone"), .content = {.utf8 = "x", .mark = *FileMark::FromText("none")}},
    };
    for (const DocumentCopy& copy : copies)
        EXPECT_EQ(CopyFromBytes(BytesOf(copy)), copy) << BytesOf(copy).constData();
}

TEST(DocumentCopies, DamageIsFoundWhereverItIs) {
    const QByteArray whole =
        BytesOf({.path = QStringLiteral("/site/a.htm"), .content = {.utf8 = "<P>text", .mark = {}}});
    ASSERT_TRUE(CopyFromBytes(whole));
    for (qsizetype at = 0; at < whole.size(); ++at) {
        EXPECT_FALSE(CopyFromBytes(whole.left(at))) << at;
        QByteArray other = whole;
        other[at] = static_cast<char>(other[at] ^ 1);
        EXPECT_FALSE(CopyFromBytes(other)) << at;
    }
    EXPECT_FALSE(CopyFromBytes(whole + '\n'));
    EXPECT_FALSE(CopyFromBytes("\n" + whole));
}

/// Lines with the right sum that make no copy.
TEST(DocumentCopies, LinesOfAnotherKindAreNoCopy) {
    const QByteArray good = BytesOf({.path = QStringLiteral("/a")});
    const QByteArray body = good.sliced(good.indexOf("path: "));
    const auto sealed = [](const QByteArray& lines) {
        const QByteArray sum = QCryptographicHash::hash(lines, QCryptographicHash::Sha1).toHex();
        return "Tarnwick copy 1\nsum: " + sum + '\n' + lines;
    };
    ASSERT_TRUE(CopyFromBytes(sealed(body)));
    const std::pair<const char*, const char*> changes[] = {
        {"path: ", "file: "},          {"path: /a\n", ""},
        {"ascii", "latin-1"},          {"caret: 0", "caret: "},
        {"caret: 0", "caret: one"},    {"caret: 0", "caret: 99999999999"},
        {"caret: 0\n", "caret: 0"},    {"encoding: ", "encoding "},
        {"file: unknown", "file: "},   {"unknown", "3 ab"},
        {"read: whole", "read: half"},
    };
    for (const auto& [from, to] : changes)
        EXPECT_FALSE(CopyFromBytes(sealed(QByteArray(body).replace(from, to)))) << to;
    EXPECT_FALSE(CopyFromBytes(sealed(body.chopped(1))));
    EXPECT_FALSE(CopyFromBytes(sealed("")));
}

} // namespace
