// Source to page and back: encodings, line ends, and what of the source is kept.
#include "web/PageSource.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

struct EncodingRow {
    QByteArray bytes;
    const char* name;
};

TEST(PageEncoding, IsTheMarksOrTheMetaTagsOrWindows1252) {
    const EncodingRow rows[] = {
        {"<p>caf\xE9", "windows-1252"},
        {"\xEF\xBB\xBF<p>caf\xC3\xA9", "utf-8"},
        {QByteArray("\xFF\xFE<\0p\0>\0", 8), "utf-16le"},
        {QByteArray("\xFE\xFF\0<\0p\0>", 8), "utf-16be"},
        {"<meta charset=utf-8><p>caf\xC3\xA9", "utf-8"},
        {"<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\"><p>\xC3\xA9", "utf-8"},
        {"<meta charset='iso-8859-1'><p>caf\xE9", "windows-1252"},
        {"<meta charset=\"utf-16\"><p>caf\xC3\xA9", "utf-8"},
        {"<meta charset=koi8-r><p>\xC1", "koi8-r"},
        {"<!-- <meta charset=utf-8> --><p>caf\xC3\xA9", "windows-1252"},
        {"<meta charset=utf-8><p>caf\xE9", "windows-1252"}, // its bytes are not UTF-8
        {"<meta charset=no-such-thing><p>caf\xE9", "windows-1252"},
        {"<meta name=description content=x><meta charset=utf-8>", "utf-8"},
        {"", "windows-1252"},
    };
    for (const EncodingRow& row : rows) {
        const PageEncoding encoding = PageEncoding::Of(row.bytes);
        EXPECT_EQ(encoding.Name(), QString::fromLatin1(row.name)) << row.bytes.constData();
        EXPECT_EQ(encoding.Encode(encoding.Decode(row.bytes)), row.bytes) << row.bytes.constData();
    }
}

TEST(PageEncoding, IsTheDocumentsWhereThatIsUtf8) {
    const QByteArray pages[] = {
        "<p>caf\xC3\xA9",  "<meta charset=iso-8859-2><p>caf\xC3\xA9",
        "\xEF\xBB\xBF<p>", "\xEF\xBB\xBF\xEF\xBB\xBF<p>",
        "<p>\xEF\xBB\xBF",
    };
    for (const QByteArray& bytes : pages) {
        const PageEncoding encoding = PageEncoding::Of(bytes, EncodingOf(bytes));
        EXPECT_EQ(encoding.Name(), QStringLiteral("utf-8")) << bytes.constData();
        EXPECT_EQ(encoding.Encode(encoding.Decode(bytes)), bytes) << bytes.constData();
        EXPECT_EQ(encoding.Decode(bytes), Decode(bytes, EncodingOf(bytes))) << bytes.constData();
    }
    EXPECT_EQ(PageEncoding::Of("<p>\xE9", TextEncoding::Utf8).Name(), QStringLiteral("windows-1252"))
        << "the file has been changed behind the document's back";
}

TEST(PageEncoding, EveryByteComesBack) {
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    const PageEncoding encoding = PageEncoding::Of(all);
    EXPECT_EQ(encoding.Encode(encoding.Decode(all)), all);
}

TEST(PageEncoding, CharactersThatItLacksBecomeReferences) {
    const QString snowman = QString::fromUtf8("\xE2\x98\x83 \xC3\xA9 \xF0\x9F\x98\x80");
    EXPECT_EQ(PageEncoding::Of("<p>").Encode(snowman), QByteArray("&#9731; \xE9 &#128512;"));
    EXPECT_EQ(PageEncoding::Of("<meta charset=utf-8>").Encode(snowman), snowman.toUtf8());
    EXPECT_EQ(PageEncoding::Of("<meta charset=koi8-r>").Encode(snowman),
              QByteArray("&#9731; &#233; &#128512;"));
}

struct BodyRow {
    const char* source;
    const char* edited; ///< with "new" as the body's content; null where the body is not found
};

TEST(PageSource, KeepsWhatStandsAroundTheBody) {
    const BodyRow rows[] = {
        {"<!doctype HTML>\r\n<HTML><HEAD>\r\n<TITLE>a<b</TITLE></HEAD>\r\n<BODY "
         "bgcolor=red>old</BODY>\r\n</HTML>\r\n",
         "<!doctype HTML>\r\n<HTML><HEAD>\r\n<TITLE>a<b</TITLE></HEAD>\r\n<BODY "
         "bgcolor=red>new</BODY>\r\n</HTML>\r\n"},
        {"<!-- <body> --><script>'<body>'</script><style>a>b{}</style><body title=\"a>b\">old</body>",
         "<!-- <body> --><script>'<body>'</script><style>a>b{}</style><body title=\"a>b\">new</body>"},
        {"<body>old", "<body>new"},
        {"<body>a</body>b</body> ", "<body>new</body> "},
        {"<body>old</body>stray", "<body>new"},
        {"<body>old</body>\r\n</html>\r\n<!-- mine -->\r\n",
         "<body>new</body>\r\n</html>\r\n<!-- mine -->\r\n"},
        {"<body>old</body><!-- </body>\n --> </html>", "<body>new</body><!-- </body>\n --> </html>"},
        {"<body>a</body><!-- x -->b</body></html>", "<body>new</body></html>"},
        {"<body>a</BODY\t>\n</HTML >\n", "<body>new</BODY\t>\n</HTML >\n"},
        {"<body>a</html></body>", "<body>new</body>"},
        {"<body>a</body></html></html>", "<body>new"},
        {"<body>a</body></html></body>", "<body>new</body>"},
        {"<body>a</body", "<body>new"},
        {"<body>a</body><!-- open", "<body>new"},
        {"<body>a</body><!-->", "<body>new"},
        {"<body>a</body><!-->-->", "<body>new</body><!-->-->"},
        {"<body>a<!-- </body> -->", "<body>new"},
        {"<body>a<!-- </body> --></body>", "<body>new</body>"},
        {"<body>a<!-- </body><!-- -->", "<body>new</body><!-- -->"},
        {"<head><noscript><link href=a.css></noscript></head><body>old",
         "<head><noscript><link href=a.css></noscript></head><body>new"},
        {"<p>old</p>", nullptr},
        {"<p>first<body>old</body>", nullptr},
        {"text<body>old</body>", nullptr},
        {"\xA0<body>old</body>", nullptr},
        {"<body>old</body>\xA0", "<body>new"},
        {"<frameset><frame></frameset>", nullptr},
        {"<script>open <body>", nullptr},
        {"<!-- open <body>", nullptr},
        {"<body title=\"open", nullptr},
        {"", nullptr},
    };
    for (const BodyRow& row : rows) {
        const PageSource source{QByteArray(row.source)};
        EXPECT_EQ(source.BodyBegin() >= 0, row.edited != nullptr) << row.source;
        if (row.edited && source.BodyBegin() >= 0) {
            EXPECT_EQ(source.WithBody(QStringLiteral("new")), QByteArray(row.edited)) << row.source;
        }
    }
}

/// A megabyte of one text, behind a beginning.
QByteArray Megabyte(const QByteArray& beginning, const QByteArray& text) {
    constexpr qsizetype size = 1 << 20;
    return beginning + text.repeated(size / text.size());
}

TEST(PageSource, IsReadOnceHoweverManyCommentsStayOpen) {
    const QByteArray head = "<html><body>old";
    for (const char* text : {"</body><!--", "</body><!-- --><!--</body><!-- -->", "</body><!-- a></html>"}) {
        const PageSource open(Megabyte(head, text) + "x");
        EXPECT_EQ(open.WithBody(QStringLiteral("new")), QByteArray("<html><body>new")) << text;
    }
    const PageSource closed(Megabyte(head, "</body><!--") + "-->");
    EXPECT_EQ(closed.BodyEnd(), head.size());
    const QByteArray openComments = Megabyte({}, "<!-- a>");
    EXPECT_EQ(PageSource(openComments + "<p>old").WithDocument(QStringLiteral("<html>")),
              openComments + "<html>\r\n");
}

TEST(PageSource, LineEndsAreTheFilesOwn) {
    const std::pair<const char*, const char*> rows[] = {
        {"<html>\r\n<body>old", "<html>\r\n<body>a\r\nb"},
        {"<html>\n<body>old", "<html>\n<body>a\nb"},
        {"<html>\r<body>old", "<html>\r<body>a\rb"},
        {"<body>old", "<body>a\r\nb"},
    };
    for (const auto& [source, edited] : rows)
        EXPECT_EQ(PageSource(source).WithBody(QStringLiteral("a\nb")), QByteArray(edited)) << source;
}

TEST(PageSource, AWholeDocumentKeepsWhatStoodBeforeItsTag) {
    const QString html = QStringLiteral("<html><head></head><body>\nnew</body></html>");
    const std::pair<const char*, const char*> rows[] = {
        {"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\"\r\n \"x.dtd\">\r\n<!-- mine -->\r\n<p>old",
         "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\"\r\n \"x.dtd\">\r\n<!-- mine -->\r\n"
         "<html><head></head><body>\r\nnew</body></html>\r\n"},
        {"<p>old", "<html><head></head><body>\r\nnew</body></html>\r\n"},
        {"\n\xA0<p>old", "\n<html><head></head><body>\nnew</body></html>\n"},
        {"\xEF\xBB\xBF<p>old", "\xEF\xBB\xBF<html><head></head><body>\r\nnew</body></html>\r\n"},
    };
    for (const auto& [source, whole] : rows)
        EXPECT_EQ(PageSource(source).WithDocument(html), QByteArray(whole)) << source;
}

} // namespace
