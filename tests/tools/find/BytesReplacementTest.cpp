// Replacing in bytes: which matches there are, and what stands there afterwards.
#include "tools/find/BytesReplacement.h"

#include "platform/text/RichTextBox.h"
#include "platform/values/Cp1252.h"

#include <gtest/gtest.h>
#include <random>

namespace {

using namespace Qt::StringLiterals;

struct Row {
    const char* text;
    QString find;
    QString replacement;
    Compare compare;
    const char* result;
};

const Row rows[] = {
    {"abcabc", u"b"_s, u"x"_s, Compare::Exact, "axcaxc"},
    {"abc", u"x"_s, u"y"_s, Compare::Exact, "abc"},
    {"", u"x"_s, u"y"_s, Compare::Exact, ""},
    {"abc", u""_s, u"y"_s, Compare::Exact, "abc"},
    {"abcabc", u"b"_s, u""_s, Compare::Exact, "acac"},
    {"abc", u"abcd"_s, u"y"_s, Compare::Exact, "abc"},
    // At the very start, and touching: all of them.
    {"aaaa", u"aa"_s, u"b"_s, Compare::Exact, "bb"},
    {"aaaaa", u"aa"_s, u"b"_s, Compare::Exact, "bba"},
    // What came in is not searched.
    {"a", u"a"_s, u"aa"_s, Compare::Exact, "aa"},
    {"xab", u"ab"_s, u"xabab"_s, Compare::Exact, "xxabab"},
    {"aab", u"ab"_s, u""_s, Compare::Exact, "a"},
    {"xaabb", u"ab"_s, u""_s, Compare::Exact, "xab"},
    {"Abc aBC abc", u"abc"_s, u"New"_s, Compare::IgnoreCase, "New New New"},
    {"Abc aBC abc", u"ABC"_s, u"New"_s, Compare::IgnoreCase, "New New New"},
    {"Abc aBC abc", u"abc"_s, u"New"_s, Compare::Exact, "Abc aBC New"},
    // A byte is a character.
    {"\xE9\x80\xC3\xA9", u"é"_s, u"€"_s, Compare::Exact, "\x80\x80\xC3\xA9"},
    {"\xC9\x9F\x8A", u"éÿš"_s, u"x"_s, Compare::IgnoreCase, "x"},
    {"\xC9", u"é"_s, u"x"_s, Compare::Exact, "\xC9"},
    {"&#9731;", u"☃"_s, u"😀"_s, Compare::Exact, "&#128512;"},
    // Line ends, as they stand and as a field takes a pasted one.
    {"a\r\nb", u"\n"_s, u"|"_s, Compare::Exact, "a\r|b"},
    {"a\r\nb\r\n", u"a\nb"_s, u"c\nd"_s, Compare::Exact, "c\r\nd\r\n"},
    {"a\nb\n", u"a\nb"_s, u"c\nd"_s, Compare::Exact, "c\nd\n"},
    {"a\r\nb", u"a\r\nb"_s, u"c\nd"_s, Compare::Exact, "c\nd"},
    {"a\r\nb", u"A\nB"_s, u"c\r\nd"_s, Compare::IgnoreCase, "c\r\nd"},
    {"a\nb", u"a\r\nb"_s, u"c"_s, Compare::Exact, "a\nb"},
};

TEST(BytesReplacementTest, Rows) {
    for (const Row& row : rows)
        EXPECT_EQ(BytesReplacement(row.find, row.replacement, row.compare).In(row.text), row.result)
            << row.text << ": " << row.find.toStdString() << " by " << row.replacement.toStdString();
}

TEST(BytesReplacementTest, EveryByteStaysWhatItIs) {
    QByteArray all;
    for (int code = 0; code < 256; ++code)
        all += static_cast<char>(code);
    for (const Compare compare : {Compare::Exact, Compare::IgnoreCase}) {
        EXPECT_EQ(BytesReplacement(u"nowhere"_s, u"x"_s, compare).In(all), all);
        EXPECT_EQ(BytesReplacement(u"\x01\x02"_s, u"x"_s, compare).In(all), all.left(1) + 'x' + all.mid(3));
    }
}

// The letters of files match as those of documents do.
TEST(BytesReplacementTest, IgnoresCaseAsADocumentDoes) {
    RichTextBox box;
    for (int a = 0; a < 256; ++a) {
        const QChar wanted = Cp1252::FromCode(a);
        const BytesReplacement replacement(wanted, u"!"_s, Compare::IgnoreCase);
        for (int b = 0; b < 256; ++b) {
            const QByteArray one(1, static_cast<char>(b));
            box.SetText(Cp1252::FromBytes(one));
            const bool matches = box.Find(wanted) == 0;
            ASSERT_EQ(replacement.In(one), matches ? QByteArray("!") : one) << a << ' ' << b;
        }
    }
}

/// Character by character, as the rule is told.
QByteArray Plain(QByteArray text, const QByteArray& find, const QByteArray& replacement) {
    qsizetype p = text.indexOf(find);
    while (p >= 0) {
        text = text.left(p) + replacement + text.mid(p + find.size());
        p = text.indexOf(find, p + replacement.size());
    }
    return text;
}

TEST(BytesReplacementTest, DoesWhatThePlainRuleDoes) {
    std::mt19937 random(5);
    const auto text = [&](unsigned longest) {
        QByteArray bytes(random() % (longest + 1), 'a');
        for (char& byte : bytes)
            byte = static_cast<char>('a' + random() % 3);
        return bytes;
    };
    for (int run = 0; run < 5000; ++run) {
        const QByteArray find = text(2) + 'a';
        const QByteArray replacement = text(4);
        const QByteArray whole = text(40);
        ASSERT_EQ(
            BytesReplacement(QString::fromLatin1(find), QString::fromLatin1(replacement), Compare::Exact)
                .In(whole),
            Plain(whole, find, replacement))
            << whole.toStdString() << ": " << find.toStdString() << " by " << replacement.toStdString();
    }
}

TEST(BytesReplacementTest, LongTextsCostNoMoreThanTheirLength) {
    const QByteArray same(1 << 20, 'a');
    const QString almost = QString::fromLatin1(same) + u'b';
    EXPECT_EQ(BytesReplacement(almost, u"x"_s, Compare::IgnoreCase).In(same + same), same + same);
    EXPECT_EQ(BytesReplacement(almost, u"x"_s, Compare::IgnoreCase).In(same + "aB"), "ax");
    EXPECT_EQ(BytesReplacement(u"a"_s, u"bb"_s, Compare::Exact).In(same), QByteArray(2 << 20, 'b'));
}

} // namespace
