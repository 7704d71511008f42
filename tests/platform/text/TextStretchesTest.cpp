// How text is cut into short stretches.
#include "platform/text/TextStretches.h"

#include "platform/text/RichTextFixture.h"

#include <set>

namespace {

using namespace Qt::StringLiterals;

/// A text as it is cut: a bar wherever a stretch ends.
QByteArray Cut(const CellText& text) {
    QByteArray shown;
    for (qsizetype i = 0; i < text.text.size(); ++i) {
        if (i > 0 && text.cells[i] != text.cells[i - 1])
            shown += '|';
        shown += text.text[i];
    }
    return shown;
}

QByteArray Cut(const QByteArray& text) {
    QByteArray cells;
    StretchCutter().Append(text, 0, cells);
    return Cut(CellText{text, cells});
}

TEST(StyleCells, EachStyleHasTwoOfItsOwnOutsideTheControlsOwn) {
    std::set<int> seen;
    for (int style = 0; style < StyleCells::styles; ++style) {
        const char first = StyleCells::First(style);
        const char twin = StyleCells::Twin(first);
        EXPECT_TRUE(StyleCells::SameStyle(first, twin));
        EXPECT_EQ(StyleCells::Twin(twin), first);
        for (const char cell : {first, twin}) {
            EXPECT_EQ(StyleCells::StyleOf(cell), style);
            const int number = static_cast<unsigned char>(cell);
            EXPECT_TRUE(number < 32 || number > 39) << number;
            seen.insert(number);
        }
        if (style > 0) {
            EXPECT_FALSE(StyleCells::SameStyle(first, StyleCells::First(style - 1)));
        }
    }
    EXPECT_EQ(seen.size(), 2U * StyleCells::styles);
}

struct CutRow {
    const char* name;
    QByteArray cut;
};

class StretchCutterTest : public testing::TestWithParam<CutRow> {};

TEST_P(StretchCutterTest, EndsStretchesWhereItMay) {
    const QByteArray& cut = GetParam().cut;
    QByteArray text = cut;
    text.replace("|", "");
    EXPECT_EQ(Cut(text), cut);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, StretchCutterTest,
    testing::Values(CutRow{"Empty", ""}, CutRow{"BehindBlanks", "some |words,  |a \t|tab"},
                    CutRow{"BehindLineEnds", "one\r\n|two\n|three\r|four"},
                    CutRow{"BehindMarks", "<td |id=|\"b\"|>a</|td>|x"},
                    CutRow{"NotBehindALoneMark", "/a/|b=|c"}, CutRow{"LongWords", "abcdefgh|ijklmnop|q"},
                    CutRow{"ManyBlanks", "        |  |x"},
                    CutRow{"NeverBesideOtherThanAscii", "\xd7\xa9\xd7\x9c \xd7\xa9 |a |b\xcc\x81 \xc3\xa9"},
                    CutRow{"LongForeignWords", QByteArray("\xd8\xa7").repeated(40) + "a|b"},
                    CutRow{"WordsBeyondAscii", QByteArray("\xce\xb1").repeated(4) + " |" +
                                                   QByteArray("\xce\xb2").repeated(12) + "|" +
                                                   QByteArray("\xce\xb3").repeated(3)},
                    CutRow{"LongLinesWithoutABlank", QByteArray("\xe6\x97\xa5").repeated(8) + "|" +
                                                         QByteArray("\xe6\x9c\xac").repeated(8) +
                                                         "|\xe6\x97\xa5"},
                    CutRow{"LongWordsBeforeACombiningMark", "abcdefgh\xcc\x81y|z"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(StretchCutter, GoesOnAcrossPieces) {
    const QByteArray text("a word and then one of more than fourty letters: " + QByteArray(50, 'y'));
    QByteArray whole;
    StretchCutter().Append(text, 3, whole);
    QByteArray pieces;
    StretchCutter cutter;
    for (const char byte : text)
        cutter.Append(QByteArrayView(&byte, 1), 3, pieces);
    EXPECT_EQ(pieces, whole);
    // The same behind what stands there already.
    for (qsizetype split = 0; split < text.size(); ++split) {
        QByteArray rest = whole.first(split);
        StretchCutter({text.first(split), rest}).Append(QByteArrayView(text).sliced(split), 3, rest);
        EXPECT_EQ(Cut({text, rest}), Cut({text, whole})) << split;
    }
}

TEST(StretchCutter, EachStyleBeginsAStretchWithItsFirstCell) {
    QByteArray cells;
    StretchCutter cutter;
    cutter.Append("a b", 0, cells);
    cutter.Append("", 9, cells);
    cutter.Append("<b>", 20, cells);
    cutter.Append("c", 0, cells);
    const char other = StyleCells::First(20);
    const char expected[] = {0, 0, 1, other, other, other, 0};
    EXPECT_EQ(cells, QByteArray(expected, sizeof expected));
}

TEST(PartToTurn, IsTheMiddleOfAStretchThatGrewTooLong) {
    const auto part = [](int length, int place) {
        return PartToTurn({QByteArray(length, 'x'), QByteArray(length, '\2')}, place);
    };
    EXPECT_EQ(part(16, 5), (TextPart{5, 5}));
    EXPECT_EQ(part(60, 20), (TextPart{20, 40}));
    EXPECT_EQ(part(60, 60), (TextPart{20, 40})) << "the end belongs to what stands in front";
    EXPECT_EQ(part(0, 0), (TextPart{0, 0}));
    // Only the stretch that the place is in counts.
    EXPECT_EQ(PartToTurn({QByteArray(80, 'x'), QByteArray(16, '\2') + QByteArray(64, '\3')}, 30),
              (TextPart{37, 59}));
    EXPECT_EQ(PartToTurn({QByteArray(80, 'x'), QByteArray(16, '\2') + QByteArray(64, '\3')}, 10),
              (TextPart{10, 10}));
}

TEST(PartToTurn, IsCutBetweenAsciiOnly) {
    const QByteArray foreign = QByteArray("\xd8\xa7").repeated(40);
    EXPECT_EQ(PartToTurn({foreign, QByteArray(80, '\0')}, 40), (TextPart{40, 40}));
    QByteArray mixed = foreign;
    mixed.replace(22, 4, "abcd");
    mixed.replace(58, 4, "abcd");
    EXPECT_EQ(PartToTurn({mixed, QByteArray(80, '\0')}, 40), (TextPart{25, 59}));
}

/// What edits do to the stretches of a control.
class TextStretchesTest : public RichTextFixture {
  protected:
    /// The length of the longest stretch.
    int Longest() const {
        int longest = 0;
        int start = 0;
        const int length = box.TextLength();
        for (int i = 1; i <= length; ++i) {
            if (i < length && Cell(i) == Cell(start))
                continue;
            longest = std::max(longest, i - start);
            start = i;
        }
        return longest;
    }

    long Cell(int position) const {
        return box.SendScintilla(QsciScintillaBase::SCI_GETSTYLEAT, static_cast<unsigned long>(position));
    }

    static constexpr int twice = 2 * StretchCutter::longest;
};

TEST_F(TextStretchesTest, WhatIsAssignedComesInShortStretches) {
    box.SetText(QString(500'000, u'<'));
    EXPECT_EQ(Longest(), StretchCutter::longest);
    EXPECT_EQ(box.ColorAt(100'000), 0);
    box.SetSelStart(100);
    box.SetSelLength(1000);
    box.SetSelColor(red);
    EXPECT_LE(Longest(), StretchCutter::longest);
    EXPECT_EQ(box.ColorAt(99), 0);
    EXPECT_EQ(box.ColorAt(100), red);
    EXPECT_EQ(box.ColorAt(124), red);
    EXPECT_EQ(box.ColorAt(1100), 0);
}

TEST_F(TextStretchesTest, TypingInOnePlaceKeepsThemShort) {
    box.SetText(u"ab"_s);
    for (int i = 0; i < 2000; ++i) {
        box.SetSelStart(1 + i);
        box.SetSelText(u"x"_s);
    }
    EXPECT_LE(Longest(), twice);
    for (int i = 0; i < 2000; ++i) {
        box.SetSelStart(1);
        box.SetSelText(u"y"_s);
    }
    EXPECT_LE(Longest(), twice);
    for (int i = 0; i < 1000; ++i) {
        box.SetSelStart(i % 2 == 0 ? 500 : 501);
        box.SetSelText(u"zz"_s);
    }
    EXPECT_LE(Longest(), twice);
}

TEST_F(TextStretchesTest, DeletingBetweenThemKeepsThemShort) {
    box.SetText(QString(20'000, u'x'));
    // Every other stretch goes, so that those of one cell meet.
    for (int i = 0; i < 400; ++i) {
        box.SetSelStart(StretchCutter::longest * (i + 1));
        box.SetSelLength(StretchCutter::longest);
        box.SetSelText(QString());
    }
    EXPECT_LE(Longest(), twice);
}

TEST_F(TextStretchesTest, UndoAndRedoBringShortStretchesBack) {
    const QString text(5000, u'x');
    box.SetText(text);
    box.SetSelStart(10);
    box.SetSelLength(4000);
    box.SetSelText(QString());
    Undo();
    EXPECT_EQ(box.Text(), text);
    EXPECT_LE(Longest(), twice);
    Undo();
    EXPECT_EQ(box.Text(), QString());
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.TextLength(), 5000);
    EXPECT_LE(Longest(), twice);
}

TEST_F(TextStretchesTest, LinesWrapWhereTheyWouldInOneStretch) {
    const QString word = u"documentation<"_s;
    box.resize(300, 200);
    box.SetText((word + u" "_s).repeated(20));
    box.grab();
    int rows = 1;
    for (int i = 1; i < box.TextLength(); ++i) {
        if (box.CharacterRect(i).y() == box.CharacterRect(i - 1).y())
            continue;
        ++rows;
        EXPECT_EQ(box.CharAt(i - 1), u' ') << "a word was cut at " << i;
    }
    EXPECT_GT(rows, 3);
}

TEST_F(TextStretchesTest, NoTextWaitsForStylesAfterAnEdit) {
    box.SetText(u"some words in a row"_s);
    int asked = 0;
    QObject::connect(&box, &RichTextBox::SCN_STYLENEEDED, &box, [&] { ++asked; });
    const auto expectStyled = [&](const char* after) {
        EXPECT_EQ(box.SendScintilla(RichTextBox::SCI_GETENDSTYLED), box.TextLength()) << after;
        box.viewport()->repaint();
        EXPECT_EQ(asked, 0) << after;
    };
    box.show();
    expectStyled("an assignment");
    Select(5, 0);
    Type("x");
    expectStyled("a key");
    Press(Qt::Key_Backspace);
    expectStyled("a deletion");
    box.Send(RichTextBox::Message::Undo);
    expectStyled("undo");
    Select(0, 4);
    box.SetSelColor(0xff);
    expectStyled("a colour");
    box.SetSelText(u"no"_s);
    expectStyled("an assignment to the selection");
}

TEST_F(TextStretchesTest, RtfKnowsNothingOfThem) {
    Put(u"one two three"_s, u"kkkkkkkkrrrrr"_s);
    EXPECT_EQ(box.TextRTF(), u"{{\\colortbl ;\\red255\\green0\\blue0;}\\cf0 one two \\cf1 three}"_s);
}

} // namespace
