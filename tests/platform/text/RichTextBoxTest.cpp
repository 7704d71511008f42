// The text control's properties and signals, as the program uses them.
#include "platform/text/RichTextFixture.h"
#include "platform/values/Cp1252.h"

#include <QVariant>

namespace {

using RichTextBoxTest = RichTextFixture;
using namespace Qt::StringLiterals;

const QString table =
    u"{{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green255\\blue0;\\red0\\green0\\blue255;}"_s;

QString AllOfCodePage() {
    QString all;
    for (int code = 0; code < 256; ++code)
        all += Cp1252::FromCode(code);
    return all;
}

TEST_F(RichTextBoxTest, TextIsWhatWasAssignedAndTheCaretIsAtItsStart) {
    const QString text = AllOfCodePage();
    box.SetText(text);
    EXPECT_EQ(box.Text(), text);
    EXPECT_EQ(box.TextLength(), text.size());
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
    Press(Qt::Key_A, Qt::ControlModifier);
    const QString rtf = box.SelRTF();
    box.SetSelText(QString());
    box.SetSelRTF(rtf);
    EXPECT_EQ(box.Text(), text) << "as RTF too, down to the byte 0 and the end-of-text byte";
}

TEST_F(RichTextBoxTest, PositionsCountCharactersWhateverTheyAre) {
    const QString text = u"aé\r\n€€b\nÿ\r\r\n–c"_s;
    box.SetText(text);
    EXPECT_EQ(box.TextLength(), text.size());
    for (int start = 0; start <= text.size(); ++start) {
        EXPECT_EQ(box.CharAt(start), start < text.size() ? text[start] : QChar()) << start;
        box.SetSelStart(start);
        EXPECT_EQ(box.SelStart(), start);
        for (int length = 0; length <= text.size() - start; ++length) {
            box.SetSelLength(length);
            EXPECT_EQ(box.SelStart(), start);
            EXPECT_EQ(box.SelLength(), length);
            EXPECT_EQ(box.SelText(), text.mid(start, length));
            EXPECT_EQ(box.TextRange(start, length), text.mid(start, length));
        }
    }
    EXPECT_TRUE(box.CharAt(-1).isNull());
}

/// Edits that take CR LF pairs apart and join them, on text with characters of one, two and three bytes.
TEST_F(RichTextBoxTest, PositionsHoldWhereLineEndsAreTakenApartAndJoined) {
    const QString pieces[] = {u"\r"_s, u"\n"_s, u"\r\n"_s, u"é"_s, u"€x"_s, QString()};
    QString text = u"é\r\n€\r\n"_s;
    box.SetText(text);
    unsigned seed = 7;
    const auto next = [&seed](int below) {
        seed = seed * 1103515245U + 12345U;
        return static_cast<int>(seed >> 16 & 0x7fff) % below;
    };
    for (int i = 0; i < 2000; ++i) {
        const int start = next(static_cast<int>(text.size()) + 1);
        const int length = std::min(next(3), static_cast<int>(text.size()) - start);
        const QString& piece = pieces[text.size() > 60 ? 5 : next(6)];
        Select(start, length);
        box.SetSelText(piece);
        text.replace(start, length, piece);
        ASSERT_EQ(box.TextLength(), text.size());
        const int probe = next(static_cast<int>(text.size()) + 1);
        ASSERT_EQ(box.CharAt(probe), probe < text.size() ? text[probe] : QChar()) << i;
        ASSERT_EQ(box.SelStart(), start + piece.size());
        ASSERT_EQ(box.TextRange(probe, 3), text.mid(probe, 3));
    }
    EXPECT_EQ(box.Text(), text);
}

TEST_F(RichTextBoxTest, TextRangeIsCutToWhatThereIs) {
    box.SetText(u"abc"_s);
    EXPECT_EQ(box.TextRange(-5, 7), u"ab"_s);
    EXPECT_EQ(box.TextRange(1, 100), u"bc"_s);
    EXPECT_EQ(box.TextRange(3, 1), QString());
    EXPECT_EQ(box.TextRange(9, 1), QString());
    EXPECT_EQ(box.TextRange(1, -1), QString());
}

TEST_F(RichTextBoxTest, SelectionIsCutToTheTextAndRefusesNegatives) {
    box.SetText(u"abc"_s);
    box.SetSelStart(99);
    EXPECT_EQ(box.SelStart(), 3);
    box.SetSelStart(1);
    box.SetSelLength(99);
    EXPECT_EQ(box.SelText(), u"bc"_s);
    box.SetSelStart(-1);
    EXPECT_EQ(box.SelText(), u"bc"_s);
    box.SetSelLength(-1);
    EXPECT_EQ(box.SelText(), u"bc"_s);
}

TEST_F(RichTextBoxTest, AssigningSelStartTakesTheSelectionAway) {
    box.SetText(u"abc"_s);
    Select(0, 3);
    box.SetSelStart(0);
    EXPECT_EQ(box.SelLength(), 0);
    Select(1, 2);
    box.SetSelLength(0);
    EXPECT_EQ(box.SelStart(), 1) << "a length of none leaves the caret at the selection's start";
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(RichTextBoxTest, TheCaretStandsBehindTheSelection) {
    box.SetText(u"abc"_s);
    Select(1, 2);
    EXPECT_EQ(box.CaretPosition(), 3);
    Press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(box.SelText(), u"b"_s);
}

TEST_F(RichTextBoxTest, SelTextReplacesTheSelection) {
    box.SetText(u"a[x]b"_s);
    Select(1, 3);
    box.SetSelText(u"é\r\n"_s);
    EXPECT_EQ(box.Text(), u"aé\r\nb"_s);
    EXPECT_EQ(box.SelStart(), 4);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(RichTextBoxTest, LinesEndWithAnyOfTheThreeEnds) {
    box.SetText(u"é\r\nb\nc\rd\r\r\n\n"_s);
    const int lines[] = {0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 6};
    for (int i = 0; i < 13; ++i)
        EXPECT_EQ(box.GetLineFromChar(i), lines[i]) << i;
    EXPECT_EQ(box.GetLineFromChar(-1), 0);
    EXPECT_EQ(box.GetLineFromChar(99), 6);
    EXPECT_EQ(box.LineStart(4), 3);
    EXPECT_EQ(box.NextLineStart(4), 5);
    EXPECT_EQ(box.NextLineStart(99), 12);
    box.SetText(u"\na"_s);
    EXPECT_EQ(box.GetLineFromChar(0), 0);
    EXPECT_EQ(box.GetLineFromChar(1), 1);
}

TEST_F(RichTextBoxTest, LineEndIsThatOfTheFirstLine) {
    EXPECT_EQ(box.LineEnd(), u"\r\n"_s);
    for (const QString& end : {u"\r\n"_s, u"\n"_s, u"\r"_s}) {
        box.SetText(u"a"_s + end + u"b\r\nc\nd\r"_s);
        EXPECT_EQ(box.LineEnd(), end);
    }
    box.SetText(u"one line"_s);
    EXPECT_EQ(box.LineEnd(), u"\r\n"_s);
}

TEST_F(RichTextBoxTest, PropertiesAreReachedByTheirNames) {
    box.setProperty("Text", u"abc"_s);
    box.setProperty("SelStart", 1);
    box.setProperty("SelLength", 1);
    box.setProperty("SelColor", red);
    EXPECT_EQ(box.property("SelColor").toInt(), red);
    EXPECT_EQ(box.property("SelText").toString(), u"b"_s);
    box.setProperty("SelText", u"X"_s);
    EXPECT_EQ(box.property("Text").toString(), u"aXc"_s);
    box.setProperty("TextRTF", table + u"\\cf1 x}"_s);
    EXPECT_EQ(box.property("Text").toString(), u"x"_s);
    EXPECT_EQ(box.property("TextRTF").toString(), u"{{\\colortbl ;\\red255\\green0\\blue0;}\\cf1 x}"_s);
    box.setProperty("BackColor", 0x102030);
    EXPECT_EQ(box.property("BackColor").toInt(), 0x102030);
    box.setProperty("RightMargin", 65000);
    EXPECT_EQ(box.property("RightMargin").toInt(), 65000);
    box.setProperty("Enabled", false);
    EXPECT_FALSE(box.property("Enabled").toBool());
    QFont font(u"Courier"_s, 14);
    box.setProperty("Font", font);
    EXPECT_EQ(box.property("Font").value<QFont>(), font);
}

TEST_F(RichTextBoxTest, OneAssignmentTellsOnceInOrder) {
    Signalled();
    box.SetSelText(u"abc"_s);
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s}));
    box.SetSelStart(1);
    EXPECT_EQ(Signalled(), QStringList{u"SelChange"_s});
    box.SetSelStart(1);
    EXPECT_EQ(Signalled(), QStringList());
    box.SetSelText(QString());
    EXPECT_EQ(Signalled(), QStringList()) << "nothing replaced by nothing is no change";
    box.SetSelColor(red);
    EXPECT_EQ(Signalled(), QStringList()) << "the colour of what is typed next is no change yet";
    box.SetSelLength(1);
    Signalled();
    box.SetSelColor(red);
    EXPECT_EQ(Signalled(), QStringList{u"Change"_s}) << "colouring what stands there is one";
    box.SetSelText(u"b"_s);
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s})) << "the same text again is a change";
    box.SetText(u"abc"_s);
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s}));
    box.SetSelRTF(table + u"\\cf1 a\\cf2 b\\cf1 c}"_s);
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s}));
    Undo();
    EXPECT_EQ(Signalled(), (QStringList{u"Change"_s, u"SelChange"_s}));
}

TEST_F(RichTextBoxTest, AHandlerMeetsTheTextAsItIsThen) {
    QString seen;
    QString colors;
    QObject::connect(&box, &RichTextBox::Change, &box, [&] {
        seen = box.Text();
        colors = Colors();
    });
    box.SetSelRTF(table + u"\\cf1 ab\\cf2 c}"_s);
    EXPECT_EQ(seen, u"abc"_s);
    EXPECT_EQ(colors, u"rrg"_s);
}

TEST_F(RichTextBoxTest, AHandlerMayChangeTheTextItself) {
    bool done = false;
    QObject::connect(&box, &RichTextBox::Change, &box, [&] {
        if (std::exchange(done, true))
            return;
        box.SetSelText(u"!"_s);
    });
    box.SetSelText(u"a"_s);
    EXPECT_EQ(box.Text(), u"a!"_s);
    EXPECT_EQ(Signalled().count(u"Change"_s), 2);
}

TEST_F(RichTextBoxTest, FocusIsTold) {
    QStringList told;
    QObject::connect(&box, &RichTextBox::GotFocus, &box, [&] { told << u"got"_s; });
    QObject::connect(&box, &RichTextBox::LostFocus, &box, [&] { told << u"lost"_s; });
    QFocusEvent out(QEvent::FocusOut);
    QFocusEvent in(QEvent::FocusIn);
    const auto showsCaret = [&] { return box.SendScintilla(QsciScintillaBase::SCI_GETFOCUS) != 0; };
    QApplication::sendEvent(&box, &out);
    EXPECT_FALSE(showsCaret());
    QApplication::sendEvent(&box, &in);
    EXPECT_TRUE(showsCaret());
    EXPECT_EQ(told, (QStringList{u"lost"_s, u"got"_s}));
    box.clearFocus();
    ASSERT_NE(box.focusWidget(), &box);
    box.SetFocus();
    EXPECT_EQ(box.focusWidget(), &box);
}

TEST_F(RichTextBoxTest, PaintingWaitsWhileAHoldLives) {
    {
        const RichTextBox::PaintHold outer(box);
        EXPECT_FALSE(box.updatesEnabled());
        {
            const RichTextBox::PaintHold inner(box);
            EXPECT_FALSE(box.updatesEnabled());
        }
        EXPECT_FALSE(box.updatesEnabled());
        EXPECT_TRUE(box.isVisible());
    }
    EXPECT_TRUE(box.updatesEnabled());
}

TEST_F(RichTextBoxTest, ScrollingWaitsForTheEndOfAHoldAndGoesToTheCaretsLastPlace) {
    const QString page = u"line\r\n"_s.repeated(500);
    const auto inView = [&] { return box.viewport()->rect().contains(box.CaretPixel()); };
    box.SetText(page);
    const int first = box.PositionAt(QPoint(1, 1));
    {
        const RichTextBox::PaintHold hold(box);
        box.SetSelStart(box.TextLength());
        EXPECT_FALSE(inView());
        box.SetSelLength(0);
        EXPECT_EQ(box.PositionAt(QPoint(1, 1)), first) << "nothing moves during the hold";
    }
    EXPECT_TRUE(inView());
    EXPECT_EQ(box.SelStart(), box.TextLength());
    {
        const RichTextBox::PaintHold hold(box);
        box.SetSelText(page);
        box.SetSelStart(0);
    }
    EXPECT_EQ(box.PositionAt(QPoint(1, 1)), first);
    EXPECT_EQ(box.SelStart(), 0);
    { const RichTextBox::PaintHold hold(box); }
    EXPECT_EQ(box.PositionAt(QPoint(1, 1)), first);
}

} // namespace
