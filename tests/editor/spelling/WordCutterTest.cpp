// What counts for a word in a page's text.
#include "editor/spelling/WordCutter.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <QStringList>

namespace {

QStringList WordsOf(const QString& text) {
    QStringList words;
    WordCutter cutter(text);
    while (const auto word = cutter.Next())
        words << word->letters;
    return words;
}

struct CutRow {
    const char16_t* text;
    const char16_t* words; ///< a blank between them
};

const CutRow rows[] = {
    {u"", u""},
    {u"  \r\n\t ", u""},
    {u"The quick, brown fox.", u"The quick brown fox"},
    {u"one\r\ntwo\nthree\rfour", u"one two three four"},
    // Apostrophes inside, straight or curved, written out or as an entity.
    {u"don't won\u2019t can&rsquo;t isn&#39;t it&#8217;s we&apos;ll I&#146;m o&#x2019;clock",
     u"don't won't can't isn't it's we'll I'm o'clock"},
    {u"'quoted' the dogs' rock'n'roll ''", u"quoted the dogs rock'n'roll"},
    {u"&lsquo;so&rsquo;", u"so"},
    // No numbers.
    {u"1 3.14 3rd mp3 x86 2nd-hand 1,000 \u00bdway", u"hand"},
    // No addresses.
    {u"see http://www.example.org/pgae?x=y#z, please", u"see please"},
    {u"(https://exmple.org/a_b) or ftp://x", u"or"},
    {u"mail me@exmple.org or <me@x.org>", u"mail or"},
    {u"mailto:me@exmple.org WWW.Exmple.Com www.exmple", u""},
    {u"in /usr/share/dcot or ~/.zshrc or ./cnf or ../cnf or C:\\site\\indx", u"in or or or or"},
    {u"open indx.html, README.TXT and exmple.org.", u"open and"},
    {u"&quot;http://exmple.org&quot; teh&nbsp;http://exmple.org", u"teh"},
    // Text with the marks of addresses.
    {u"and/or yes/no", u"and or yes no"},
    {u"End.Start of U.S.A. wait...then", u"End Start of wait then"},
    {u"a @ b 5@home", u"a b"},
    // Entities are their letters, and part words where they are none.
    {u"caf&eacute; &Eacute;tude na&#239;ve stra&szlig;e &#x153;uvre",
     u"caf\u00e9 \u00c9tude na\u00efve stra\u00dfe \u0153uvre"},
    {u"a&nbsp;b&lt;c&gt;d&amp;e&mdash;f&nosuch;g&#0;h&#1114112;i", u"a b c d e f g h i"},
    {u"R&D fish & chips &eacute x &; &#; &#x; &a b;", u"R D fish chips eacute x a b"},
    {u"dis&shy;cover zero&zwnj;width", u"discover zerowidth"},
    {u"&alpha;&beta; &#945;", u"\u03b1\u03b2 \u03b1"},
    // Letters of all kinds, with their marks; scripts without blanks between words have none.
    {u"caf\u00e9 \u0434\u043e\u043c cafe\u0301 \U00010400\U00010401",
     u"caf\u00e9 \u0434\u043e\u043c cafe\u0301 \U00010400\U00010401"},
    {u"\u65e5\u672c\u8a9e \u0e20\u0e32\u0e29\u0e32 word", u"word"},
    // Hyphens part, names of a machine's making are none.
    {u"well-known e-mail re-&shy;do", u"well known e mail re do"},
    {u"foo_bar __init__ snake_case9 word", u"word"},
    {u"a > b [c] {d} \"e\"", u"a b c d e"},
};

TEST(WordCutter, TakesWhatAReaderTakesForWords) {
    for (const CutRow& row : rows) {
        const QString expected = QString::fromUtf16(row.words);
        EXPECT_EQ(WordsOf(QString::fromUtf16(row.text)).join(u' '), expected)
            << QString::fromUtf16(row.text).toStdString();
    }
}

TEST(WordCutter, TellsWhereAWordIsWritten) {
    const QString text = QStringLiteral("A caf&eacute;, na&iuml;ve don&rsquo;t.");
    QStringList written;
    WordCutter cutter(text);
    while (const auto word = cutter.Next())
        written << QString::number(word->start) + u':' + text.mid(word->start, word->length);
    EXPECT_EQ(written.join(u' '), QStringLiteral("0:A 2:caf&eacute; 15:na&iuml;ve 26:don&rsquo;t"));
}

TEST(WordCutter, ARunOfMoreLettersThanAnyWordHasIsNone) {
    EXPECT_EQ(WordsOf(QString(100, u'a')).size(), 1);
    EXPECT_EQ(WordsOf(QString(101, u'a')).size(), 0);
    EXPECT_EQ(WordsOf(QString(100'000, u'a') + QStringLiteral(" b")), QStringList{QStringLiteral("b")});
}

TEST(WordCutter, AHalfOfAPairOfSurrogatesIsNoLetter) {
    EXPECT_EQ(WordsOf(QString(QChar(0xd801)) + u'a' + QChar(0xdc00)), QStringList{QStringLiteral("a")});
}

} // namespace
