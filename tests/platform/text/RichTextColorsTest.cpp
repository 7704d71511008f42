// One colour a character: what sets it, what text takes it, how it is shown.
#include "platform/text/RichTextFixture.h"

#include "platform/text/RtfReader.h"

#include <functional>
#include <QScrollBar>

namespace {

using RichTextColorsTest = RichTextFixture;
using namespace Qt::StringLiterals;

const QString table =
    u"{{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green255\\blue0;\\red0\\green0\\blue255;}"_s;

TEST_F(RichTextColorsTest, SelRtfWritesColoredTextAtTheSelection) {
    box.SetText(u"[sel]"_s);
    Select(1, 3);
    box.SetSelRTF(table + u"\\cf1 <B>\\cf0 x\\cf3 é\\cf2 </B>}"_s);
    EXPECT_EQ(box.Text(), u"[<B>xé</B>]"_s);
    EXPECT_EQ(Colors(), u"krrrkbggggk"_s);
    EXPECT_EQ(box.SelStart(), 10);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(RichTextColorsTest, RawLineEndsInRtfFollowTheMode) {
#ifdef Q_OS_WIN
    EXPECT_EQ(box.RawLineEndMode(), RawLineEnds::Skip);
#else
    EXPECT_EQ(box.RawLineEndMode(), RawLineEnds::Keep);
#endif
    box.SetRawLineEndMode(RawLineEnds::Keep);
    box.SetSelRTF(table + u"a\nb\\par c}"_s);
    EXPECT_EQ(box.Text(), u"a\nb\r\nc"_s);
    box.SetText(QString());
    box.SetRawLineEndMode(RawLineEnds::Skip);
    box.SetSelRTF(table + u"a\nb\\par c}"_s);
    EXPECT_EQ(box.Text(), u"ab\r\nc"_s);
}

TEST_F(RichTextColorsTest, RtfThatHoldsNothingDeletesTheSelection) {
    box.SetText(u"abc"_s);
    Select(1, 1);
    Signalled();
    box.SetSelRTF(table + u"\\cf1 }"_s);
    EXPECT_EQ(box.Text(), u"ac"_s);
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s}));
    box.SetSelRTF(table + u"\\cf1 }"_s);
    EXPECT_EQ(Signalled(), QStringList());
}

TEST_F(RichTextColorsTest, SelRtfReadsBackWhatItGives) {
    for (const RawLineEnds mode : {RawLineEnds::Keep, RawLineEnds::Skip}) {
        box.SetRawLineEndMode(mode);
        Put(u"a\\{é}\r\n€\nx"_s, u"krgbrrgkbb"_s);
        Select(0, 10);
        const QString rtf = box.SelRTF();
        Select(3, 5);
        const QString part = box.SelRTF();
        box.SetText(QString());
        box.SetSelRTF(rtf);
        EXPECT_EQ(box.Text(), u"a\\{é}\r\n€\nx"_s);
        EXPECT_EQ(Colors(), u"krgbrrgkbb"_s);
        box.SetText(QString());
        box.SetSelRTF(part);
        EXPECT_EQ(box.Text(), u"é}\r\n€"_s);
        EXPECT_EQ(Colors(), u"brrgk"_s);
    }
}

TEST_F(RichTextColorsTest, TextRtfIsTheWholeTextWhateverIsSelected) {
    Put(u"ab\r\né"_s, u"rgbbk"_s);
    Select(1, 1);
    const QString rtf = box.TextRTF();
    EXPECT_EQ(box.SelText(), u"b"_s);
    box.SetText(u"other text"_s);
    Select(2, 3);
    box.EmptyUndoBuffer();
    Signalled();
    box.SetTextRTF(rtf);
    EXPECT_EQ(box.Text(), u"ab\r\né"_s);
    EXPECT_EQ(Colors(), u"rgbbk"_s);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s}));
    Undo();
    EXPECT_EQ(box.Text(), u"other text"_s);
    EXPECT_FALSE(CanUndo());
}

TEST_F(RichTextColorsTest, SelColorIsThatOfTheSelectionsFirstCharacter) {
    Put(u"abc"_s, u"rgb"_s);
    Select(1, 2);
    EXPECT_EQ(box.SelColor(), green);
    box.SetSelColor(red);
    EXPECT_EQ(Colors(), u"rrr"_s);
    EXPECT_EQ(box.SelText(), u"bc"_s);
}

TEST_F(RichTextColorsTest, TextTakesTheColorInFrontOfTheCaret) {
    Put(u"ab"_s, u"rg"_s);
    box.SetSelStart(1);
    EXPECT_EQ(box.SelColor(), red);
    box.SetSelText(u"é"_s);
    EXPECT_EQ(Colors(), u"rrg"_s);
    box.SetSelStart(0);
    EXPECT_EQ(box.SelColor(), red) << "at the start that of the character behind the caret";
    box.SetText(QString());
    EXPECT_EQ(box.SelColor(), 0) << "in an empty text the control's own";
    Put(u"ab"_s, u"rr"_s);
    box.SetSelColor(blue);
    box.SetText(QString());
    EXPECT_EQ(box.SelColor(), 0) << "whatever was chosen elsewhere";
}

TEST_F(RichTextColorsTest, ReplacedTextKeepsTheColorOfTheSelectionsStart) {
    Put(u"abcd"_s, u"rgbk"_s);
    Select(1, 2);
    box.SetSelText(u"xyz"_s);
    EXPECT_EQ(Colors(), u"rgggk"_s);
}

TEST_F(RichTextColorsTest, ColorAtTheCaretHoldsUntilTheCaretMovesAway) {
    Put(u"ab"_s, u"rr"_s);
    box.SetSelColor(blue);
    EXPECT_EQ(box.SelColor(), blue);
    Type("x");
    box.SetSelText(u"y"_s);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    Type("z");
    EXPECT_EQ(box.Text(), u"az"_s);
    EXPECT_EQ(Colors(), u"rb"_s) << "held over typing, assigning and deleting";
    box.SetSelColor(green);
    Press(Qt::Key_Left);
    Press(Qt::Key_Right);
    EXPECT_EQ(box.SelColor(), blue) << "gone once the caret moved";
}

TEST_F(RichTextColorsTest, ColorsWrittenTakeThePlaceOfTheOneAtTheCaret) {
    Put(u"ab"_s, u"gg"_s);
    box.SetSelColor(blue);
    box.SetSelRTF(table + u"\\cf1 x}"_s);
    EXPECT_EQ(box.SelColor(), red);
    Type("y");
    EXPECT_EQ(Colors(), u"ggrr"_s);
}

TEST_F(RichTextColorsTest, AssigningTheTextWritesInTheColorAtTheCaret) {
    Put(u"abc"_s, u"rgb"_s);
    box.SetSelStart(2);
    box.SetText(u"new"_s);
    EXPECT_EQ(Colors(), u"ggg"_s);
    box.SetSelColor(blue);
    box.SetText(u"é"_s);
    EXPECT_EQ(Colors(), u"b"_s);
}

TEST_F(RichTextColorsTest, AColorIsItsThreeLowBytes) {
    box.SetSelColor(0x7f000000 | red);
    EXPECT_EQ(box.SelColor(), red);
    box.SetSelColor(-1);
    EXPECT_EQ(box.SelColor(), 0) << "a negative one is the control's own";
}

TEST_F(RichTextColorsTest, ColorsOutsideTheTextAreNone) {
    box.SetText(u"a"_s);
    EXPECT_EQ(box.ColorAt(-1), -1);
    EXPECT_EQ(box.ColorAt(1), -1);
    EXPECT_EQ(box.ColorAt(0), 0);
}

TEST_F(RichTextColorsTest, HundredsOfColorsEndInTheNearestOne) {
    QString text;
    for (int i = 0; i < 400; ++i) {
        box.SetSelColor(i * 7);
        box.SetSelText(u"x"_s);
    }
    EXPECT_EQ(box.ColorAt(0), 0);
    EXPECT_EQ(box.ColorAt(123), 123 * 7);
    // 123 colours fit beside black; the rest is shown in one that exists.
    const int last = box.ColorAt(399);
    EXPECT_EQ(last % 7, 0);
    EXPECT_LE(last, 123 * 7);
    EXPECT_GT(last, 0);
}

TEST(StyleTable, BeyondItsRoomTheNearestColorServes) {
    StyleTable styles;
    const int blueStyle = styles.StyleFor(blue).style;
    const int redStyle = styles.StyleFor(red).style;
    std::vector<int> greens;
    while (styles.End() < StyleTable::count) {
        greens.push_back(styles.StyleFor(static_cast<int>(greens.size() + 1) << 8).style);
    }
    const struct {
        ColorNumber color;
        int style;
    } rows[] = {{0xf00101, blueStyle},
                {0x0101f0, redStyle},
                {100 << 8 | 9, greens[99]},
                {blue, blueStyle},
                {0x010000, 0},
                {-1, 0},
                {0, 0},
                {0x7f000000 | red, redStyle}};
    for (const auto& [color, style] : rows) {
        EXPECT_EQ(styles.StyleFor(color).style, style) << color;
        EXPECT_FALSE(styles.StyleFor(color).isNew);
    }
}

TEST(StyleRuns, NeighboursOfOneStyleMelt) {
    StyleRuns runs;
    runs.Append(0, 3);
    runs.Append(-1, 3);
    EXPECT_TRUE(runs.Empty());
    runs.Append(2, 3);
    runs.Append(1, 3);
    runs.Append(0, 4);
    runs.Append(1, 255);
    ASSERT_EQ(runs.Count(), 2U);
    EXPECT_EQ(runs.LengthOf(0), 3);
    EXPECT_EQ(runs.StyleOf(0), 3);
    EXPECT_EQ(runs.LengthOf(1), 1);
    EXPECT_EQ(runs.StyleOf(1), 255);
}

TEST(StyleRuns, AStretchOfManyMegabytesIsKeptInParts) {
    constexpr int most = 0xffffff;
    StyleRuns runs(2 * most + 5, 7);
    runs.Append(most, 7);
    ASSERT_EQ(runs.Count(), 4U);
    EXPECT_EQ(runs.LengthOf(0), most);
    EXPECT_EQ(runs.LengthOf(1), most);
    EXPECT_EQ(runs.LengthOf(2), most);
    EXPECT_EQ(runs.LengthOf(3), 5);
    EXPECT_EQ(runs.StyleOf(3), 7);
}

TEST_F(RichTextColorsTest, DeletedStretchesOfAnyLengthComeBackInTheirColors) {
    // The colours are fetched in pieces of this many bytes.
    constexpr int piece = 1 << 16;
    box.SetSelRTF(table + u"\\cf1 "_s + QString(piece - 1, u'x') + u"\\cf2 ab\\cf3 "_s +
                  QString(piece, u'y') + u"}"_s);
    const int length = box.TextLength();
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    Undo();
    ASSERT_EQ(box.TextLength(), length);
    for (const auto& [at, color] :
         {std::pair(0, red), std::pair(piece - 2, red), std::pair(piece - 1, green), std::pair(piece, green),
          std::pair(piece + 1, blue), std::pair(length - 1, blue)})
        EXPECT_EQ(box.ColorAt(at), color) << at;
}

TEST_F(RichTextColorsTest, CharactersArePaintedInTheirColors) {
    QFont font = box.Font();
    font.setPointSize(40);
    box.SetFont(font);
    Put(u"MMMM"_s, u"rrrr"_s);
    box.clearFocus();
    const QImage image = box.viewport()->grab().toImage();
    const QRect letter = box.CharacterRect(1);
    int reds = 0;
    for (int x = letter.left(); x < letter.right(); ++x) {
        for (int y = letter.top(); y < letter.bottom(); ++y)
            reds += image.pixelColor(x, y) == QColor(255, 0, 0) ? 1 : 0;
    }
    EXPECT_GT(reds, 20);
}

TEST_F(RichTextColorsTest, BackColorFillsTheControl) {
    EXPECT_EQ(box.BackColor(), 0xffffff);
    box.SetBackColor(0x804020);
    const QImage image = box.viewport()->grab().toImage();
    EXPECT_EQ(image.pixelColor(300, 300), QColor(0x20, 0x40, 0x80));
}

TEST_F(RichTextColorsTest, WhatIsAssignedAgainIsNotDrawnAgain) {
    class Paints final : public QObject {
      public:
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    box.clearFocus(); // no caret blinks
    QCoreApplication::processEvents();
    Paints paints;
    box.viewport()->installEventFilter(&paints);
    const auto drawnAfter = [&](const std::function<void()>& change) {
        paints.count = 0;
        change();
        QCoreApplication::processEvents();
        return paints.count > 0;
    };
    EXPECT_TRUE(drawnAfter([&] { box.SetBackColor(0x804020); }));
    EXPECT_FALSE(drawnAfter([&] { box.SetBackColor(0x804020); }));
    EXPECT_TRUE(drawnAfter([&] { box.SetFont(QFont(u"Courier"_s, 20)); }));
    EXPECT_FALSE(drawnAfter([&] { box.SetFont(QFont(u"Courier"_s, 20)); }));
}

TEST_F(RichTextColorsTest, TheSelectionHasTheDesktopsColors) {
    const auto backgroundPixels = [&](QColor color) {
        const QRect letters = box.CharacterRect(0) | box.CharacterRect(3);
        const QImage image = box.viewport()->grab().toImage();
        int count = 0;
        for (int x = letters.left(); x < letters.right(); ++x) {
            for (int y = letters.top(); y < letters.bottom(); ++y)
                count += image.pixelColor(x, y) == color ? 1 : 0;
        }
        return count;
    };
    box.SetText(u"iiii"_s);
    Select(0, 4);
    const QColor desktop = box.palette().color(QPalette::Active, QPalette::Highlight);
    EXPECT_GT(backgroundPixels(desktop), 20);
    QPalette other = box.palette();
    other.setColor(QPalette::Highlight, QColor(1, 99, 33));
    box.setPalette(other);
    EXPECT_GT(backgroundPixels(QColor(1, 99, 33)), 20);
    EXPECT_EQ(backgroundPixels(desktop), 0);
    QFont large = box.Font();
    large.setPointSize(40);
    box.SetFont(large);
    box.SetText(u"MMMM"_s);
    Select(0, 4);
    other.setColor(QPalette::HighlightedText, QColor(200, 7, 100));
    box.setPalette(other);
    EXPECT_GT(backgroundPixels(QColor(200, 7, 100)), 20) << "the letters too";
}

TEST_F(RichTextColorsTest, CaretStandsOutFromTheBackground) {
    const auto caret = [&] { return box.SendScintilla(QsciScintillaBase::SCI_GETCARETFORE); };
    box.SetBackColor(0);
    EXPECT_EQ(caret(), 0xffffff);
    box.SetBackColor(0xffffff);
    EXPECT_EQ(caret(), 0);
}

TEST_F(RichTextColorsTest, ANewFontKeepsTheColors) {
    Put(u"abc"_s, u"rgb"_s);
    box.SetFont(QFont(u"Courier"_s, 20));
    EXPECT_EQ(Colors(), u"rgb"_s);
    const long style = box.SendScintilla(QsciScintillaBase::SCI_GETSTYLEAT, 0);
    EXPECT_EQ(box.SendScintilla(QsciScintillaBase::SCI_STYLEGETFORE, style), red);
    EXPECT_EQ(box.SendScintilla(QsciScintillaBase::SCI_STYLEGETSIZE, style), 20);
}

TEST_F(RichTextColorsTest, TheFontIsTheOneOfAllText) {
    const auto style = [&](unsigned int message, int number = QsciScintillaBase::STYLE_DEFAULT) {
        return box.SendScintilla(message, number);
    };
    const auto family = [&] {
        QByteArray name(100, '\0');
        box.SendScintilla(QsciScintillaBase::SCI_STYLEGETFONT, 0UL, name.data());
        return QString::fromUtf8(name.constData());
    };
    EXPECT_EQ(box.Font(), QFont(u"Arial"_s, 10));
    EXPECT_EQ(family(), u"Arial"_s);
    EXPECT_EQ(style(QsciScintillaBase::SCI_STYLEGETSIZEFRACTIONAL), 1000);
    QFont font(u"Courier"_s);
    font.setPointSizeF(9.5);
    font.setBold(true);
    font.setItalic(true);
    font.setUnderline(true);
    box.SetFont(font);
    EXPECT_EQ(family(), u"Courier"_s);
    EXPECT_EQ(style(QsciScintillaBase::SCI_STYLEGETSIZEFRACTIONAL), 950);
    EXPECT_TRUE(style(QsciScintillaBase::SCI_STYLEGETBOLD, 0));
    EXPECT_TRUE(style(QsciScintillaBase::SCI_STYLEGETITALIC, 0));
    EXPECT_TRUE(style(QsciScintillaBase::SCI_STYLEGETUNDERLINE, 0));
    QFont inPixels(u"Courier"_s);
    inPixels.setPixelSize(30);
    box.SetFont(inPixels);
    EXPECT_EQ(style(QsciScintillaBase::SCI_STYLEGETSIZEFRACTIONAL), 1000) << "a size in points or none";
    EXPECT_FALSE(style(QsciScintillaBase::SCI_STYLEGETBOLD, 0));
}

TEST_F(RichTextColorsTest, TheTextBeginsAtTheControlsEdge) {
    box.SetText(u"a"_s);
    box.grab();
    EXPECT_LT(box.CharacterRect(0).left(), 3) << "a margin would stand in between";
}

TEST_F(RichTextColorsTest, TheScrollBarGoesAsFarAsTheLongestLine) {
    box.SetRightMargin(65000);
    box.SetText(u"short"_s);
    box.grab();
    EXPECT_EQ(box.horizontalScrollBar()->maximum(), 0);
    box.SetText(QString(1000, u'm'));
    box.grab();
    EXPECT_GT(box.horizontalScrollBar()->maximum(), 2000);
    EXPECT_GE(box.horizontalScrollBar()->maximum() + box.viewport()->width(), box.CharacterRect(999).right());
}

TEST_F(RichTextColorsTest, RightMarginSwitchesWrapping) {
    box.SetText(QString(400, u'x') + u" "_s + QString(400, u'y'));
    box.SetSelStart(801);
    box.grab();
    EXPECT_GT(box.CaretPixel().y(), 0) << "wrapped at the window's edge";
    box.SetRightMargin(65000);
    box.grab();
    EXPECT_EQ(box.CaretPixel().y(), 0);
    box.SetRightMargin(0);
    box.grab();
    EXPECT_GT(box.CaretPixel().y(), 0);
}

} // namespace
