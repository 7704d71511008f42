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

} // namespace
