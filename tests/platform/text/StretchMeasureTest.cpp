#include "platform/text/StretchMeasure.h"
#include "platform/text/RichTextFixture.h"

#include <algorithm>
#include <QFontMetricsF>

namespace {

using namespace Qt::StringLiterals;

TEST(StretchMeasureTest, TellsScriptsFromRightToLeft) {
    for (const QString& text : {u"שלום"_s, u"a مرحبا"_s, u"\U0001E900"_s})
        EXPECT_TRUE(HasRightToLeft(text)) << text.toStdString();
    for (const QString& text : {u""_s, u"abc"_s, u"żπж"_s, u"日本"_s, u"١"_s, u"😀"_s, u"\xD83A"_s})
        EXPECT_FALSE(HasRightToLeft(text)) << text.toStdString();
}

TEST(StretchMeasureTest, CharactersEndOneBehindTheOther) {
    const QFont font(u"DejaVu Sans"_s, 12);
    for (const QString& text : {u"שלום"_s, u"مرحبا"_s, u"abc שלום"_s, u"> שלום x"_s, u"של12 abc"_s, u"שָׁל"_s,
                                u"\U0001E900ש"_s, u"لا"_s}) {
        const QList<qreal> ends = EndsFromTheLeft(text, font);
        ASSERT_EQ(ends.size(), text.size());
        EXPECT_TRUE(std::is_sorted(ends.begin(), ends.end())) << text.toStdString();
        EXPECT_GT(ends.first(), 0);
        EXPECT_NEAR(ends.last(), QFontMetricsF(font).horizontalAdvance(text), 0.5) << text.toStdString();
    }
}

class StretchInTheControlTest : public RichTextFixture {
  protected:
    StretchInTheControlTest() {
        box.SetFont(QFont(u"DejaVu Sans"_s, 12));
        box.SetHolds(CharacterSet::Unicode);
    }

    int Left(qsizetype position) const { return box.CharacterRect(static_cast<int>(position)).left(); }
};

TEST_F(StretchInTheControlTest, WhatFollowsAWordFromTheRightStandsBehindIt) {
    for (const QString& word : {u"שלום"_s, u"مرحبا"_s, u"(שלום"_s, u"abc שלום"_s,
                                u"שלום עולם, מה שלומך היום?"_s, u"مرحبا بالعالم ١٢٣"_s, u"בשנת 1948 abc"_s}) {
        const QString all = u"<b>"_s + word + u"</b>"_s;
        Put(all, QString(3, u'r') + QString(word.size(), u'k') + QString(4, u'b'));
        const double advance = QFontMetricsF(box.Font()).horizontalAdvance(word);
        EXPECT_NEAR(Left(3 + word.size()) - Left(3), advance, 2) << word.toStdString();
        for (qsizetype i = 3; i < 3 + word.size(); ++i)
            EXPECT_LE(Left(i), Left(i + 1)) << word.toStdString() << " at " << i;
    }
}

TEST_F(StretchInTheControlTest, ItGrowsAsItIsTyped) {
    int last = box.CaretPixel().x();
    for (const QChar letter : u"שלום"_s) {
        PressText(QString(letter));
        EXPECT_GT(box.CaretPixel().x(), last);
        last = box.CaretPixel().x();
    }
}

TEST_F(StretchInTheControlTest, APlaceOnTheScreenIsThatOfTheCharacterSetThere) {
    const QString text = u"<b>שלום עולם</b>"_s;
    Put(text, QString(3, u'r') + QString(9, u'k') + QString(4, u'r'));
    for (int i = 0; i < text.size(); ++i)
        EXPECT_EQ(box.PositionAt(box.CharacterRect(i).topLeft() + QPoint(1, 3)), i);
}

} // namespace
