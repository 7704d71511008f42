// Code page 1252: all 256 bytes both ways, and what happens to characters from outside it.
#include "platform/values/Cp1252.h"

#include "support/Text.h"

#include <gtest/gtest.h>

TEST(Cp1252, AllBytesBothWays) {
    QByteArray all;
    for (int code = 0; code < 256; ++code)
        all.append(static_cast<char>(code));
    const QString text = Cp1252::FromBytes(all);
    ASSERT_EQ(text.size(), 256);
    EXPECT_EQ(Cp1252::ToBytes(text), all);
    for (int code = 0; code < 256; ++code) {
        EXPECT_EQ(Cp1252::FromCode(code), text[code]) << code;
        EXPECT_EQ(Cp1252::ToCode(text[code]), code);
    }
}

TEST(Cp1252, HoldsItsOwnCharactersAlone) {
    EXPECT_TRUE(Cp1252::Holds(u""));
    EXPECT_TRUE(Cp1252::Holds(u"caf\u00e9 \u20ac\u0081"));
    EXPECT_FALSE(Cp1252::Holds(u"a\u0141"));
    EXPECT_FALSE(Cp1252::Holds(u"\U0001F600"));
}

TEST(Cp1252, BytesFromTheMiddleHaveTheirOwnCharacters) {
    struct Row {
        int code;
        char16_t character;
    };
    const Row rows[] = {{0x41, u'A'},   {0x80, 0x20AC}, {0x82, 0x201A}, {0x83, 0x0192}, {0x85, 0x2026},
                        {0x8A, 0x0160}, {0x8C, 0x0152}, {0x8E, 0x017D}, {0x91, 0x2018}, {0x92, 0x2019},
                        {0x93, 0x201C}, {0x94, 0x201D}, {0x96, 0x2013}, {0x97, 0x2014}, {0x99, 0x2122},
                        {0x9F, 0x0178}, {0xA0, 0x00A0}, {0xE9, 0x00E9}, {0xFF, 0x00FF}};
    for (const Row& row : rows)
        EXPECT_EQ(Cp1252::FromCode(row.code).unicode(), row.character) << std::hex << row.code;
}

TEST(Cp1252, UnassignedBytesAreTheirControls) {
    for (const int code : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        EXPECT_EQ(Cp1252::FromCode(code).unicode(), code);
}

TEST(Cp1252, OutsideCharacterHasNoCodeAndBecomesAQuestionMark) {
    EXPECT_EQ(Cp1252::ToCode(QChar(0x2603)), -1);
    EXPECT_EQ(Cp1252::ToCode(QChar(0x0080)), -1) << "byte 80 is the euro";
    EXPECT_EQ(Cp1252::ToBytes(u"a\u2603b"), QByteArray("a?b"));
}

TEST(Cp1252, AcceptWritesOutsideCharactersAsReferences) {
    EXPECT_EQ(Cp1252::Accept(u"caf\u00e9 \u20ac"), QStringLiteral("caf\u00e9 \u20ac"));
    EXPECT_EQ(Cp1252::Accept(u"a\u2603b"), QStringLiteral("a&#9731;b"));
    EXPECT_EQ(Cp1252::Accept(u"\U0001F600!"), QStringLiteral("&#128512;!"));
    EXPECT_EQ(Cp1252::Accept(QString(QChar(0xD83D))), QStringLiteral("&#55357;"));
    EXPECT_EQ(Cp1252::Accept(QString(QChar(0xD83D)) + u'a'), QStringLiteral("&#55357;a"));
    EXPECT_EQ(Cp1252::Accept(u""), QString());
    EXPECT_EQ(Cp1252::Accept(QString(QChar(u'\0')) + u'\u2603'),
              QString(QChar(u'\0')) + QStringLiteral("&#9731;"));
}
