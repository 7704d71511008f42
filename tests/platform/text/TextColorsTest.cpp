// Colours that come in with a text, follow the caret and come back with undo.
#include "platform/text/TextParts.h"

namespace {

using namespace Qt::StringLiterals;

constexpr ColorNumber red = 0xff;
constexpr ColorNumber blue = 0xff0000;

class TextColorsTest : public TextParts {
  protected:
    ColorNumber ColorAt(int byte) const { return colors.ColorOf(colors.StyleAt(byte)); }
    StyleRuns Runs(int length, ColorNumber color) { return StyleRuns(length, colors.StyleFor(color)); }
};

TEST_F(TextColorsTest, AStyleIsOfOneColorWhateverTheControlKeeps) {
    const QByteArray words = QByteArray("one two/three\"four ").repeated(200);
    StyleRuns styles = Runs(1000, red);
    styles.Append(static_cast<int>(words.size()) - 1000, colors.StyleFor(blue));
    editing.Replace(buffer.Whole(), words, styles);
    EXPECT_EQ(colors.StylesOf(buffer.Whole()), styles);
    EXPECT_EQ(ColorAt(999), red);
    EXPECT_EQ(ColorAt(1000), blue);
}

TEST_F(TextColorsTest, UndoAndRedoBringTheColorsBack) {
    editing.Replace(buffer.Whole(), QByteArrayLiteral("abc"), Runs(3, red));
    editing.Replace({0, 3}, QByteArrayLiteral("xy"), Runs(2, blue));
    Send(Control::SCI_UNDO);
    EXPECT_EQ(Text(), u"abc"_s);
    EXPECT_EQ(colors.StylesOf(buffer.Whole()), Runs(3, red));
    Send(Control::SCI_REDO);
    EXPECT_EQ(Text(), u"xy"_s);
    EXPECT_EQ(colors.StylesOf(buffer.Whole()), Runs(2, blue));
}

TEST_F(TextColorsTest, WhatIsTypedTakesTheColorBeforeItOrTheOneThatIsKept) {
    editing.Replace(buffer.Whole(), QByteArrayLiteral("ab"), Runs(2, red));
    editing.MoveCaret(1);
    editing.Type(QByteArrayLiteral("1"));
    EXPECT_EQ(ColorAt(1), red);
    colors.KeepForTyping(colors.StyleFor(blue), 2);
    editing.Type(QByteArrayLiteral("2"));
    EXPECT_EQ(ColorAt(2), blue);
}

TEST_F(TextColorsTest, AKeptColorGoesWithTheCaretOverEditsAndIsLostByMoves) {
    Put(u"ab"_s);
    colors.KeepForTyping(colors.StyleFor(red), 1);
    colors.CaretStandsAt({2, 2}, true);
    EXPECT_EQ(colors.ColorOf(colors.StyleAtCaret({2, 2})), red);
    colors.CaretStandsAt({1, 1}, false);
    EXPECT_EQ(colors.ColorOf(colors.StyleAtCaret({1, 1})), 0);
}

} // namespace
