// Searching in bytes.
#include "platform/text/TextSearch.h"
#include "platform/text/TextParts.h"

namespace {

using namespace Qt::StringLiterals;

class TextSearchTest : public TextParts {
  protected:
    std::optional<ByteRange> Find(const QString& text, int options = 0) {
        return search.Forward(text, buffer.Whole(), options);
    }

    TextSearch search{buffer};
};

TEST_F(TextSearchTest, AMatchIsAStretchOfBytes) {
    Put(u"\u00e9 Caf\u00c9 caf\u00e9"_s);
    EXPECT_EQ(Find(u"caf\u00e9"_s), (ByteRange{3, 8}));
    EXPECT_EQ(Find(u"caf\u00e9"_s, TextSearch::MatchCase), (ByteRange{9, 14}));
    EXPECT_EQ(Find(u"cafe"_s), std::nullopt);
}

TEST_F(TextSearchTest, AMatchLiesInTheRangeWhole) {
    Put(u"abcabc"_s);
    EXPECT_EQ(search.Forward(u"abc"_s, {1, 6}, 0), (ByteRange{3, 6}));
    EXPECT_EQ(search.Forward(u"abc"_s, {1, 5}, 0), std::nullopt);
}

TEST_F(TextSearchTest, AWholeWordHasNoLetterDigitOrUnderscoreBesideIt) {
    Put(u"cats cat_ 1cat \u00e9cat <cat>"_s);
    EXPECT_EQ(Find(u"cat"_s, TextSearch::WholeWord), (ByteRange{22, 25}));
    Put(u"cats"_s);
    EXPECT_EQ(Find(u"cat"_s, TextSearch::WholeWord), std::nullopt);
}

TEST_F(TextSearchTest, ItFindsWhatLiesAcrossTheEdgesOfWhatItReadsAtATime) {
    for (const int before : {500, 510, 511, 512, 1533, 1535, 1536, 3000}) {
        Put(QString(before, u'x') + u"needle"_s);
        EXPECT_EQ(Find(u"NEEDLE"_s), (ByteRange{before, before + 6})) << before;
    }
}

TEST_F(TextSearchTest, CaseIsIgnoredInAllScripts) {
    const QString rows[][2] = {
        {u"Za\u017c\u00f3\u0142\u0107"_s, u"ZA\u017b\u00d3\u0141\u0106"_s},
        {u"\u03b5\u03bb\u03bb\u03b7\u03bd\u03b9\u03ba\u03cc\u03c2"_s,
         u"\u0395\u039b\u039b\u0397\u039d\u0399\u039a\u038c\u03a3"_s},
        {u"\u0441\u043b\u043e\u0432\u043e"_s, u"\u0421\u041b\u041e\u0412\u041e"_s},
        {u"\u03c3"_s, u"\u03c2"_s},
        {u"\u00df"_s, u"\u1e9e"_s},
        {u"k\u00e5"_s, u"\u212a\u212b"_s},
        {u"\u2c65x"_s, u"\u023aX"_s},
        {u"\U00010428"_s, u"\U00010400"_s},
    };
    for (const auto& [one, other] : rows) {
        for (const auto& [wanted, text] : {std::pair(one, other), std::pair(other, one)}) {
            Put(u"<p>\u65e5"_s + text + u"!"_s);
            const auto size = static_cast<int>(text.toUtf8().size());
            EXPECT_EQ(Find(wanted), (ByteRange{6, 6 + size})) << wanted.toStdString();
            EXPECT_EQ(Find(wanted, TextSearch::MatchCase), std::nullopt) << wanted.toStdString();
            EXPECT_EQ(Find(text, TextSearch::MatchCase), (ByteRange{6, 6 + size})) << text.toStdString();
        }
    }
}

TEST_F(TextSearchTest, CharactersBeyondTheFirstPlaneAreFoundWhole) {
    Put(u"A\U0001F600\U0001F601b"_s);
    EXPECT_EQ(Find(u"\U0001F601B"_s), (ByteRange{5, 10}));
    EXPECT_EQ(Find(u"a\U0001F600"_s), (ByteRange{0, 5}));
    EXPECT_EQ(Find(u"\U0001F602"_s), std::nullopt);
}

TEST_F(TextSearchTest, AMarkBelongsToTheWordBeforeIt) {
    Put(u"cafe\u0301 \U00010428cafe cafe"_s);
    EXPECT_EQ(Find(u"cafe"_s, TextSearch::WholeWord), (ByteRange{16, 20}));
}

TEST_F(TextSearchTest, MatchesOfOtherLengthsAreFoundAcrossTheEdgesToo) {
    for (int before = 505; before <= 515; ++before) {
        Put(QString(before, u'x') + u"\u212a\u212a\u212a"_s);
        EXPECT_EQ(Find(u"kkk"_s), (ByteRange{before, before + 9})) << before;
        Put(QString(before, u'x') + u"kkk"_s);
        EXPECT_EQ(Find(u"\u212a\u212a\u212a"_s), (ByteRange{before, before + 3})) << before;
    }
}

TEST_F(TextSearchTest, EachMatchComesOnceAndBehindTheGap) {
    using Ranges = std::vector<ByteRange>;
    const auto each = [&](const QString& wanted, int gap, int options = 0) {
        return search.Each(wanted, buffer.Whole(), gap, options);
    };
    Put(u"aaaaa"_s);
    EXPECT_EQ(each(u"aa"_s, 0), (Ranges{{0, 2}, {2, 4}}));
    EXPECT_EQ(each(u"aa"_s, 1), (Ranges{{0, 2}, {3, 5}}));
    EXPECT_EQ(each(u"aa"_s, 99), (Ranges{{0, 2}}));
    EXPECT_EQ(each(u"b"_s, 0), Ranges{});
    Put(u"aéaa€😀a\r\na"_s);
    EXPECT_EQ(each(u"a"_s, 1), (Ranges{{0, 1}, {3, 4}, {12, 13}, {15, 16}}));
    EXPECT_EQ(each(u"€"_s, 1), (Ranges{{5, 8}}));
    EXPECT_EQ(each(u"\n"_s, 0), (Ranges{{14, 15}}));
    // The gap takes a CR and leaves its LF.
    Put(u"\n\r\n"_s);
    EXPECT_EQ(each(u"\n"_s, 1), (Ranges{{0, 1}, {2, 3}}));
    Put(u"a cat a"_s);
    EXPECT_EQ(each(u"a"_s, 0, TextSearch::WholeWord), (Ranges{{0, 1}, {6, 7}}));
}

} // namespace
