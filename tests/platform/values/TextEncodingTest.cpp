#include "platform/values/TextEncoding.h"

#include "platform/values/DeclaredEncoding.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using namespace Qt::StringLiterals;
using enum TextEncoding;

/// Bytes, NULs included.
template <std::size_t size> QByteArray B(const char (&literal)[size]) {
    return {literal, static_cast<qsizetype>(size) - 1};
}

QByteArray Padded(const QByteArray& text, qsizetype end) {
    return QByteArray(end - text.size(), ' ') + text;
}

struct Row {
    const char* name;
    QByteArray bytes;
    TextEncoding encoding;
};

const std::vector<Row>& Rows() {
    static const QByteArray meta = B("<meta charset=utf-8>");
    static const std::vector<Row> rows = {
        {"nothing", B(""), Ascii},
        {"ASCII", B("<p>plain\r\n"), Ascii},
        {"mark alone", B("\xEF\xBB\xBF"), Utf8WithMark},
        {"mark and ASCII", B("\xEF\xBB\xBF<p>"), Utf8WithMark},
        {"mark and more", B("\xEF\xBB\xBF\xC5\xBC"), Utf8WithMark},
        {"two marks", B("\xEF\xBB\xBF\xEF\xBB\xBF"), Utf8WithMark},
        {"half a mark", B("\xEF\xBB"), CodePage1252},
        {"a mark in the middle",
         B("a\xEF\xBB\xBF"
           "b"),
         Utf8},
        {"two bytes", B("Caf\xC3\xA9"), Utf8},
        {"three bytes", B("\xE2\x82\xAC"), Utf8},
        {"four bytes", B("\xF0\x9F\x98\x80"), Utf8},
        {"the last character of all", B("\xF4\x8F\xBF\xBF"), Utf8},
        {"behind the last", B("\xF4\x90\x80\x80"), CodePage1252},
        {"no character", B("\xEF\xBF\xBE \xEF\xBF\xBF \xEF\xB7\x90"), Utf8},
        {"NULs", B("\0\xC5\xBC\0"), Utf8},
        {"NULs alone", B("\0\0"), Ascii},
        {"code page 1252", B("Caf\xE9"), CodePage1252},
        {"code page 1252 with a stretch that is valid", B("Caf\xC3\xA9 caf\xE9"), CodePage1252},
        {"cut in a character of two bytes", B("ab\xC3"), CodePage1252},
        {"cut in a character of three", B("\xC5\xBC\xE2\x82"), CodePage1252},
        {"cut in a character of four", B("\xC5\xBC\xF0\x9F\x98"), CodePage1252},
        {"the end of a character alone", B("\xA9"), CodePage1252},
        {"overlong slash", B("\xC0\xAF"), CodePage1252},
        {"overlong NUL", B("\xC0\x80"), CodePage1252},
        {"overlong in three bytes", B("\xE0\x80\xAF"), CodePage1252},
        {"overlong in four", B("\xF0\x80\x80\xAF"), CodePage1252},
        {"half a pair", B("\xED\xA0\xBD"), CodePage1252},
        {"a pair as two characters", B("\xED\xA0\xBD\xED\xB8\x80"), CodePage1252},
        {"mark and bytes that are none",
         B("\xEF\xBB\xBF"
           "Caf\xE9"),
         CodePage1252},
        {"UTF-16", B("\xFF\xFE<\0p\0"), CodePage1252},
        {"declared", meta, Utf8},
        {"declared, and 1252", meta + B("\xE9"), CodePage1252},
        {"declared within reach", Padded(meta, declarationReach), Utf8},
        {"declared with its name at the edge", Padded(B("<meta charset=utf-8"), declarationReach) + '>',
         Utf8},
        {"declared behind it", Padded(B("<meta charset=utf-8"), declarationReach + 1), Ascii},
        {"declares another, but is UTF-8", B("<meta charset=windows-1252>\xC5\xBC"), Utf8},
        {"declares another", B("<meta charset=iso-8859-2>"), Ascii},
    };
    return rows;
}

TEST(TextEncoding, IsFoundFromTheBytes) {
    for (const Row& row : Rows())
        EXPECT_EQ(EncodingOf(row.bytes), row.encoding) << row.name;
}

TEST(TextEncoding, EveryFileComesBack) {
    for (const Row& row : Rows()) {
        const TextEncoding encoding = EncodingOf(row.bytes);
        EXPECT_EQ(Encode(Decode(row.bytes, encoding), encoding), row.bytes) << row.name;
        EXPECT_EQ(Encode(Decode(row.bytes, CodePage1252), CodePage1252), row.bytes) << row.name;
    }
}

TEST(TextEncoding, EveryCharacterComesBack) {
    QByteArray all;
    for (char32_t character = 0; character <= QChar::LastValidCodePoint; ++character) {
        if (!QChar::isSurrogate(character))
            all += QStringView(QChar::fromUcs4(character)).toUtf8();
    }
    ASSERT_EQ(EncodingOf(all), Utf8);
    const QString text = Decode(all, Utf8);
    EXPECT_EQ(text.size(), 0x10000 - 0x800 + 2 * 0x100000);
    EXPECT_EQ(Encode(text, Utf8), all);
}

TEST(TextEncoding, AMarkIsNoPartOfTheText) {
    EXPECT_EQ(Decode(B("\xEF\xBB\xBF"
                       "a"),
                     Utf8WithMark),
              u"a"_s);
    EXPECT_EQ(Decode(B("\xEF\xBB\xBF\xEF\xBB\xBF"
                       "a"),
                     Utf8WithMark),
              u"\uFEFFa"_s);
    EXPECT_EQ(Encode(u"a"_s, Utf8WithMark), B("\xEF\xBB\xBF"
                                              "a"));
}

TEST(TextEncoding, CodePage1252WritesReferences) {
    EXPECT_EQ(Encode(u"\u00e9\u0142\U0001F600"_s, CodePage1252), B("\xE9&#322;&#128512;"));
    EXPECT_EQ(Encode(u"\u00e9\u0142"_s, Ascii), B("\xE9&#322;"));
}

TEST(TextEncoding, CharactersOfAnEncoding) {
    EXPECT_EQ(CharactersOf(Ascii), CharacterSet::CodePage1252);
    EXPECT_EQ(CharactersOf(CodePage1252), CharacterSet::CodePage1252);
    EXPECT_EQ(CharactersOf(Utf8), CharacterSet::Unicode);
    EXPECT_EQ(CharactersOf(Utf8WithMark), CharacterSet::Unicode);
}

TEST(TextEncoding, OnlyAsciiTakesWhatItsHeadDeclaresAtEachSave) {
    const QString declared = u"<meta charset='UTF-8'>"_s;
    for (const TextEncoding before : {Ascii, CodePage1252, Utf8}) {
        EXPECT_EQ(EncodingToSave(before, declared), Utf8);
        EXPECT_EQ(EncodingToSave(before, u"plain"_s), Ascii);
        EXPECT_EQ(EncodingToSave(before, QString()), Ascii);
    }
    EXPECT_EQ(EncodingToSave(Utf8WithMark, u"plain"_s), Utf8WithMark);
    EXPECT_EQ(EncodingToSave(Utf8WithMark, declared), Utf8WithMark);
}

TEST(TextEncoding, WhatStandsBeyondAsciiInTheFileDecidesForGood) {
    const QString declared = u"<meta charset=utf-8>\u00e9"_s;
    EXPECT_EQ(EncodingToSave(CodePage1252, declared), CodePage1252);
    EXPECT_EQ(EncodingToSave(CodePage1252, u"\u0142"_s), CodePage1252);
    EXPECT_EQ(EncodingToSave(Utf8, u"\u00e9"_s), Utf8);
    EXPECT_EQ(EncodingToSave(Utf8WithMark, u"\u00e9"_s), Utf8WithMark);
}

TEST(TextEncoding, AFileOfAsciiIsStillFreeToChoose) {
    EXPECT_EQ(EncodingToSave(Ascii, u"\u00e9"_s), CodePage1252);
    EXPECT_EQ(EncodingToSave(Ascii, u"<meta charset=utf-8>\u00e9"_s), Utf8);
    // Undo brings such characters back behind a save without them.
    EXPECT_EQ(EncodingToSave(Ascii, u"\u0142"_s), Utf8);
}

} // namespace
