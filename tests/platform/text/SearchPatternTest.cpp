// What a search takes for the same: characters by their folded case.
#include "platform/text/SearchPattern.h"

#include "platform/values/Cp1252.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

enum class Case { Matters, Ignored };

/// Where a text is found, and its bytes; {-1, 0} where it isn't.
std::pair<qsizetype, qsizetype> Match(const QString& wanted, const QString& text,
                                      Case letters = Case::Ignored) {
    const SearchPattern pattern(wanted, letters == Case::Matters);
    const auto match = pattern.FirstIn(pattern.Comparable(text.toUtf8()));
    return match ? std::pair(match->at, match->size) : std::pair<qsizetype, qsizetype>(-1, 0);
}

qsizetype Find(const QString& wanted, const QString& text, Case letters = Case::Ignored) {
    return Match(wanted, text, letters).first;
}

TEST(SearchPatternTest, TheTwoCasesOfALetterMatchInCodePage1252) {
    for (int a = 0; a < 256; ++a) {
        for (int b = 0; b < 256; ++b) {
            const QChar one = Cp1252::FromCode(a);
            const QChar other = Cp1252::FromCode(b);
            EXPECT_EQ(Find(one, other, Case::Matters), a == b ? 0 : -1) << a << ' ' << b;
            EXPECT_EQ(Find(one, other), one.toLower() == other.toLower() ? 0 : -1) << a << ' ' << b;
        }
    }
}

TEST(SearchPatternTest, LettersOfOtherScriptsHaveCasesToo) {
    EXPECT_EQ(Find(u"ЖΣ"_s, u"xжς"_s), 1);
    EXPECT_EQ(Find(u"жσ"_s, u"xЖΣ"_s), 1);
    EXPECT_EQ(Find(u"ж"_s, u"Ж"_s, Case::Matters), -1);
    // Deseret, beyond the first plane.
    EXPECT_EQ(Find(u"\U00010428"_s, u"x\U00010400"_s), 1);
    EXPECT_EQ(Find(u"😀"_s, u"x😀"_s), 1);
    EXPECT_EQ(Find(u"😀"_s, u"😁"_s), -1);
}

TEST(SearchPatternTest, CasesOfDifferentLengthMatchAndTellTheirOwnBytes) {
    const std::pair<qsizetype, qsizetype> kelvin(2, 3);
    EXPECT_EQ(Match(u"k"_s, u"é\u212a"_s), kelvin);
    EXPECT_EQ(Match(u"\u212a"_s, u"ék"_s), (std::pair<qsizetype, qsizetype>(2, 1)));
    EXPECT_EQ(Match(u"akb"_s, u"\u212aA\u212ab"_s), (std::pair<qsizetype, qsizetype>(3, 5)));
    EXPECT_EQ(Match(u"b"_s, u"\u212a\u212akB"_s), (std::pair<qsizetype, qsizetype>(7, 1)));
    // The folded one is the longer: U+023A has two bytes, U+2C65 three.
    EXPECT_EQ(Match(u"\u2c65x"_s, u"\u023a\u023aX"_s), (std::pair<qsizetype, qsizetype>(2, 3)));
    EXPECT_EQ(Find(u"İ"_s, u"İ"_s), 0);
    EXPECT_EQ(Find(u"i"_s, u"İ"_s), -1);
}

TEST(SearchPatternTest, TheNextMatchMayOverlapTheOneBefore) {
    const SearchPattern pattern(u"kk"_s, false);
    const auto stretch = pattern.Comparable(u"\u212akK"_s.toUtf8());
    const auto first = pattern.FirstIn(stretch);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->at, 0);
    EXPECT_EQ(first->size, 4);
    const auto second = pattern.FirstIn(stretch, first->next);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->at, 3);
    EXPECT_EQ(second->size, 2);
    EXPECT_FALSE(pattern.FirstIn(stretch, second->next));
}

TEST(SearchPatternTest, AStretchMayBeginAndEndWithinACharacter) {
    const SearchPattern pattern(u"é"_s, false);
    const QByteArray text = u"€É€"_s.toUtf8();
    for (qsizetype from = 0; from < text.size(); ++from) {
        for (qsizetype to = from; to <= text.size(); ++to) {
            const auto match =
                pattern.FirstIn(pattern.Comparable(QByteArrayView(text).sliced(from, to - from)));
            EXPECT_EQ(match ? match->at : -1, from <= 3 && to >= 5 ? 3 - from : -1) << from << ' ' << to;
        }
    }
}

TEST(SearchPatternTest, NoFoldedCharacterNeedsMoreRoomThanItGets) {
    for (char32_t code = 0x80; code <= QChar::LastValidCodePoint; ++code) {
        const auto bytes = [](char32_t one) {
            return one < 0x80 ? 1 : one < 0x800 ? 2 : one < 0x10000 ? 3 : 4;
        };
        ASSERT_LE(2 * bytes(QChar::toCaseFolded(code)), 3 * bytes(code)) << static_cast<unsigned>(code);
    }
}

} // namespace
