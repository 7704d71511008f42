// Searching bytes: every match, and no text that makes it slow.
#include "platform/text/ByteSearch.h"

#include <gtest/gtest.h>
#include <random>

namespace {

qsizetype Find(const QByteArray& wanted, const QByteArray& bytes, qsizetype from = 0) {
    return ByteSearch(wanted).IndexIn(bytes, from);
}

TEST(ByteSearchTest, TellsWhereTheFirstMatchBegins) {
    EXPECT_EQ(Find("b", "abcb"), 1);
    EXPECT_EQ(Find("b", "abcb", 1), 1);
    EXPECT_EQ(Find("b", "abcb", 2), 3);
    EXPECT_EQ(Find("b", "abcb", 4), -1);
    EXPECT_EQ(Find("abcd", "abc"), -1);
    EXPECT_EQ(Find("abc", "abc"), 0);
    EXPECT_EQ(Find("a", ""), -1);
    EXPECT_EQ(Find("ab", "aab"), 1);
    EXPECT_EQ(Find(QByteArray("\0x", 2), QByteArray("a\0\0x", 4)), 2);
    EXPECT_EQ(ByteSearch("abc").Size(), 3);
}

TEST(ByteSearchTest, FindsWhatAPlainSearchFinds) {
    std::mt19937 random(15);
    const auto text = [&](unsigned longest) {
        QByteArray bytes(1 + random() % longest, 'a');
        for (char& byte : bytes)
            byte = static_cast<char>('a' + random() % 2);
        return bytes;
    };
    for (int run = 0; run < 5000; ++run) {
        const QByteArray wanted = text(8);
        const QByteArray bytes = text(60);
        for (qsizetype from = 0; from <= bytes.size(); ++from)
            ASSERT_EQ(Find(wanted, bytes, from), bytes.indexOf(wanted, from))
                << wanted.toStdString() << " in " << bytes.toStdString() << " from " << from;
    }
}

// A search that began anew at each byte would take hours here.
TEST(ByteSearchTest, ManyBeginningsOfAMatchCostNoMore) {
    const QByteArray same(1 << 20, 'a');
    EXPECT_EQ(Find(same + 'b', same + same + same), -1);
    EXPECT_EQ(Find(same + 'b', same + same + 'b'), same.size());
}

} // namespace
