// Undo and redo, and the colours that they bring back.
#include "platform/text/RichTextFixture.h"

#include <algorithm>

namespace {

using RichTextUndoTest = RichTextFixture;
using namespace Qt::StringLiterals;

const QString table =
    u"{{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green255\\blue0;\\red0\\green0\\blue255;}"_s;

TEST_F(RichTextUndoTest, EveryAssignmentIsOneUndoStepWithItsColors) {
    box.SetSelRTF(table + u"\\cf1 aaa\\cf2 bbb}"_s);
    Select(2, 2);
    box.SetSelColor(blue);
    box.SetSelText(u"Xé"_s);
    EXPECT_EQ(Colors(), u"rrbbgg"_s);
    box.SetText(u"all"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"aaXébb"_s);
    EXPECT_EQ(Colors(), u"rrbbgg"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"aaabbb"_s);
    EXPECT_EQ(Colors(), u"rrbbgg"_s) << "colouring is no undo step";
    Undo();
    EXPECT_EQ(box.Text(), QString());
    EXPECT_FALSE(CanUndo());
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"aaabbb"_s);
    EXPECT_EQ(Colors(), u"rrbbgg"_s) << "as it was when it was undone";
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(box.Text(), u"aaXébb"_s);
    EXPECT_EQ(Colors(), u"rrbbgg"_s);
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"all"_s);
}

TEST_F(RichTextUndoTest, TypedTextIsOneStepALineAndComesBackInColor) {
    box.SetSelColor(red);
    Type("abc");
    Press(Qt::Key_Return);
    box.SetSelColor(green);
    Type("de");
    EXPECT_EQ(Colors(), u"rrrrrgg"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"abc\r\n"_s);
    Undo();
    EXPECT_EQ(box.Text(), QString());
    Press(Qt::Key_Y, Qt::ControlModifier);
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"abc\r\nde"_s);
    EXPECT_EQ(Colors(), u"rrrrrgg"_s);
    Press(Qt::Key_Return);
    box.SetSelText(u"f"_s);
    box.SetSelText(u"g"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"abc\r\nde\r\nf"_s) << "what comes after a line's end is not part of it";
}

TEST_F(RichTextUndoTest, WhatIsTypedBesideAnAssignmentIsAStepOfItsOwn) {
    box.SetSelText(u"ab"_s);
    Type("c");
    Undo();
    EXPECT_EQ(box.Text(), u"ab"_s);
    Type("d");
    box.SetSelText(u"e"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"abd"_s);
    box.SetSelText(u"f"_s);
    box.SetSelRTF(table + u"\\cf1 g}"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"abdf"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"abd"_s);
    Type("h");
    box.SetSelText(QString());
    Type("i");
    Undo();
    EXPECT_EQ(box.Text(), u"abd"_s) << "nothing put in place of nothing parts no row of typing";
}

TEST_F(RichTextUndoTest, DeletedTextComesBackInItsColors) {
    Put(u"aébc"_s, u"rgbr"_s);
    for (int i = 0; i < 4; ++i)
        Press(Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), QString());
    while (CanUndo())
        Undo();
    EXPECT_EQ(box.Text(), u"aébc"_s);
    EXPECT_EQ(Colors(), u"rgbr"_s);
}

TEST_F(RichTextUndoTest, ColorsComeBackHoweverOftenItGoesBackAndForth) {
    Put(u"aébc"_s, u"rgbr"_s);
    Select(1, 2);
    box.SetSelRTF(table + u"\\cf3 x\\cf1 y}"_s);
    for (int turn = 0; turn < 3; ++turn) {
        Undo();
        EXPECT_EQ(box.Text(), u"aébc"_s);
        EXPECT_EQ(Colors(), u"rgbr"_s) << turn;
        Press(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(box.Text(), u"axyc"_s);
        EXPECT_EQ(Colors(), u"rbrr"_s) << turn;
    }
}

TEST_F(RichTextUndoTest, TypingAfterUndoForgetsWhatCouldBeRedone) {
    box.SetSelText(u"a"_s);
    box.SetSelText(u"b"_s);
    Undo();
    box.SetSelColor(red);
    Type("x");
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"ax"_s);
    Undo();
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"ax"_s);
    EXPECT_EQ(Colors(), u"kr"_s);
}

TEST_F(RichTextUndoTest, AnInsertionInPlaceOfAnUndoneDeletionKeepsItsColors) {
    Put(u"abc"_s, u"rgb"_s);
    box.SetSelStart(0);
    Press(Qt::Key_Delete);
    Undo();
    box.SetSelStart(3);
    box.SetSelColor(red);
    Type("x");
    Undo();
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"abcx"_s);
    EXPECT_EQ(Colors(), u"rgbr"_s);
}

TEST_F(RichTextUndoTest, EmptyUndoBufferEndsUndoHere) {
    box.SetSelText(u"a"_s);
    box.EmptyUndoBuffer();
    EXPECT_FALSE(CanUndo());
    box.SetSelColor(red);
    box.SetSelText(u"b"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"a"_s);
    EXPECT_FALSE(CanUndo());
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Colors(), u"kr"_s);
}

/// Edits of every kind in an order that looks random but is always the same, then undo to the start and redo
/// to the end: each state on the way has the text and the colours that it had before.
TEST_F(RichTextUndoTest, UndoAndRedoWalkThroughTheSameStates) {
    unsigned seed = 12345;
    const auto next = [&seed](int below) {
        seed = seed * 1103515245U + 12345U;
        return static_cast<int>(seed >> 16 & 0x7fff) % below;
    };
    struct State {
        QString text;
        QString colors;
        bool operator==(const State&) const = default;
    };
    const auto now = [&] { return State{box.Text(), Colors()}; };
    std::vector<State> states{now()};
    for (int i = 0; i < 200; ++i) {
        box.SetSelStart(next(box.TextLength() + 1));
        box.SetSelLength(next(4));
        const QString before = box.Text();
        const ColorNumber colors[] = {0, red, green, blue};
        switch (next(4)) {
        case 0:
            box.SetSelText(u"é<b>\r\n"_s.left(next(7)));
            break;
        case 1:
            box.SetSelRTF(table + u"\\cf1 a\\cf2 €\\cf3 c}"_s);
            break;
        case 2:
            if (box.SelLength() == 0)
                box.SetSelColor(colors[next(4)]);
            Type("t");
            box.SetSelStart(0);
            break;
        default:
            Press(Qt::Key_Delete);
        }
        if (box.Text() != before || box.Send(RichTextBox::Message::CanUndo) == 0)
            states.push_back(now());
        // A step of its own, even where two deletions stand side by side.
        box.SendScintilla(QsciScintillaBase::SCI_BEGINUNDOACTION);
        box.SendScintilla(QsciScintillaBase::SCI_ENDUNDOACTION);
    }
    std::vector<State> back{now()};
    while (CanUndo()) {
        Undo();
        if (!(now().text == back.back().text))
            back.push_back(now());
    }
    for (const State& state : back) {
        EXPECT_TRUE(std::ranges::find(states, state) != states.end())
            << state.text.toStdString() << " " << state.colors.toStdString();
    }
    EXPECT_EQ(box.Text(), QString());
    for (std::size_t i = back.size() - 1; i > 0; --i) {
        QString text = box.Text();
        while (box.Text() == text)
            Press(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(box.Text(), back[i - 1].text);
        EXPECT_EQ(Colors(), back[i - 1].colors);
    }
}

} // namespace
