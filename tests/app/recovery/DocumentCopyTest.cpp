// The bytes in which a changed document is kept.
#include "app/recovery/DocumentCopy.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <QCryptographicHash>

namespace {

TEST(DocumentCopies, BytesAreLinesThatAPersonReadsAndTheTextAsItIs) {
    const DocumentCopy copy{.path = QStringLiteral("/site/caf\u00e9.htm"),
                            .caret = 7,
                            .content = {"<P>\r\n\xc3\xa9", TextEncoding::CodePage1252}};
    EXPECT_EQ(BytesOf(copy).toStdString(), "Tarnwick copy 1\n"
                                           "sum: cad5cf199f630111f8f6fa713e07efd31e1540ca\n"
                                           "path: /site/caf\xc3\xa9.htm\n"
                                           "encoding: windows-1252\n"
                                           "caret: 7\n"
                                           "\n"
                                           "<P>\r\n\xc3\xa9");
}

TEST(DocumentCopies, ComeBackAsTheyWere) {
    const DocumentCopy copies[] = {
        {},
        {.path = QStringLiteral("/a"), .content = {"", TextEncoding::Ascii}},
        {.path = QStringLiteral("C:\\site\\a b.htm"), .caret = 1, .content = {"x", TextEncoding::Utf8}},
        {.path = QStringLiteral("/100%0A%25/%\n\r\n: x"), .content = {"\n\n", TextEncoding::Utf8WithMark}},
        {.path = QStringLiteral("\ufeff\u2603"), .content = {"\xef\xbb\xbf", TextEncoding::Utf8}},
        {.caret = 2147483647, .content = {QByteArray("a\0b\x1a\r\n\xff", 7), TextEncoding::CodePage1252}},
    };
    for (const DocumentCopy& copy : copies)
        EXPECT_EQ(CopyFromBytes(BytesOf(copy)), copy) << BytesOf(copy).constData();
}

TEST(DocumentCopies, DamageIsFoundWhereverItIs) {
    const QByteArray whole = BytesOf({.path = QStringLiteral("/site/a.htm"), .content = {"<P>text", {}}});
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
        {"path: ", "file: "},       {"path: /a\n", ""},          {"ascii", "latin-1"},
        {"caret: 0", "caret: "},    {"caret: 0", "caret: one"},  {"caret: 0", "caret: 99999999999"},
        {"caret: 0\n", "caret: 0"}, {"encoding: ", "encoding "},
    };
    for (const auto& [from, to] : changes)
        EXPECT_FALSE(CopyFromBytes(sealed(QByteArray(body).replace(from, to)))) << to;
    EXPECT_FALSE(CopyFromBytes(sealed(body.chopped(1))));
    EXPECT_FALSE(CopyFromBytes(sealed("")));
}

} // namespace
