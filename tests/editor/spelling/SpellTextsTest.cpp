// The small texts of the spell check: sentence, correction as written, report; and the dialog's place.
#include "editor/spelling/Sentence.h"
#include "editor/spelling/SpelledAs.h"
#include "editor/spelling/SpellPlace.h"
#include "editor/spelling/SpellReport.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

struct SentenceRow {
    const char* text; ///< the word in brackets
    const char* sentence;
};

const SentenceRow sentences[] = {
    {"[teh]", "[teh]"},
    {"One. Two [teh] three. Four.", "Two [teh] three."},
    {"Really? [Teh] end! So", "[Teh] end!"},
    {"Version 1.5 has\r\n  [teh]   file.\r\n", "Version 1.5 has [teh] file."},
    {"Head\r\n\r\nA [teh] b\r\n\r\nnext", "A [teh] b"},
    {"Head\n\nA [teh] b\n\nnext", "A [teh] b"},
    {"a [teh], b", "a [teh], b"},
    {"a [teh]. b", "a [teh]."},
};

TEST(Sentence, IsTheOneAroundTheWord) {
    for (const SentenceRow& row : sentences) {
        QString text = QString::fromLatin1(row.text);
        const auto start = text.indexOf(u'[');
        const auto length = text.indexOf(u']') - start - 1;
        text.remove(u'[').remove(u']');
        const Sentence sentence = SentenceAround(text, start, length);
        QString marked = sentence.text;
        marked.insert(sentence.wordStart + sentence.wordLength, u']').insert(sentence.wordStart, u'[');
        EXPECT_EQ(marked, QString::fromLatin1(row.sentence)) << row.text;
    }
}

TEST(Sentence, IsCutWhereItGetsLong) {
    const QString many = QStringLiteral("word ").repeated(100'000);
    const Sentence sentence = SentenceAround(many, 250'000, 4);
    EXPECT_LT(sentence.text.size(), 400);
    EXPECT_EQ(sentence.text.mid(sentence.wordStart, sentence.wordLength), QStringLiteral("word"));
    EXPECT_LT(SentenceAround(QString(100'000, u'x'), 50'000, 10).text.size(), 1000);
}

struct SpelledRow {
    const char16_t* written;
    const char16_t* correction;
    const char16_t* spelled;
};

const SpelledRow spellings[] = {
    {u"teh", u"the", u"the"},
    {u"cafe", u"caf\u00e9", u"caf\u00e9"},
    {u"caff&eacute;", u"caf\u00e9", u"caf&eacute;"},
    {u"caff&#233;", u"caf\u00e9s", u"caf&eacute;s"},
    {u"&eacute;", u"\u0439", u"&#1081;"},
    {u"dont\u2019", u"don't", u"don\u2019t"},
    {u"dno&rsquo;t", u"don't", u"don&rsquo;t"},
    {u"dno&#39;t", u"don't", u"don&#39;t"},
    {u"dno't", u"don't", u"don't"},
    {u"dont", u"don't", u"don't"},
    {u"x", u"\U0001f600", u"\U0001f600"},
};

TEST(SpelledAs, KeepsTheWritersWayOfWriting) {
    for (const SpelledRow& row : spellings)
        EXPECT_EQ(SpelledAs(QString::fromUtf16(row.written), QString::fromUtf16(row.correction)),
                  QString::fromUtf16(row.spelled));
}

TEST(SpellReport, HasABlankBeforeEachNumber) {
    EXPECT_EQ(SpellReport(0, 0), QStringLiteral("Spellcheck complete!\n 0 Words Checked\n 0 Words Replaced"));
    EXPECT_EQ(SpellReport(1234, 5),
              QStringLiteral("Spellcheck complete!\n 1234 Words Checked\n 5 Words Replaced"));
}

TEST(SpellPlace, LeavesTheWordToBeSeen) {
    const QRect screen(0, 0, 1024, 768);
    const QSize dialog(420, 260);
    const QRect words[] = {{10, 10, 40, 16},  {500, 380, 60, 16}, {980, 740, 40, 16}, {10, 740, 40, 16},
                           {980, 10, 40, 16}, {300, 300, 40, 16}, {0, 400, 1024, 16}, {500, 250, 20, 260}};
    for (const QRect& word : words)
        for (const QPoint at : {QPoint(0, 0), QPoint(300, 250), QPoint(2000, 2000), QPoint(-50, 700)}) {
            const QRect place(PlaceBesideWord(at, dialog, word, screen), dialog);
            EXPECT_FALSE(place.intersects(word)) << word.x() << ' ' << word.y() << " from " << at.x();
            EXPECT_TRUE(screen.contains(place)) << word.x() << ' ' << word.y() << " from " << at.x();
        }
}

TEST(SpellPlace, StaysWhereItCoversNothing) {
    EXPECT_EQ(PlaceBesideWord({100, 400}, {420, 260}, {100, 100, 40, 16}, {0, 0, 1024, 768}),
              QPoint(100, 400));
}

TEST(SpellPlace, ADialogAsLargeAsTheScreenCoversTheWordAndStaysOnTheScreen) {
    EXPECT_EQ(PlaceBesideWord({5, 5}, {1024, 768}, {100, 100, 40, 16}, {0, 0, 1024, 768}), QPoint(0, 0));
    EXPECT_EQ(PlaceBesideWord({5, 5}, {2000, 900}, {100, 100, 40, 16}, {0, 0, 1024, 768}), QPoint(0, 0));
}

} // namespace
