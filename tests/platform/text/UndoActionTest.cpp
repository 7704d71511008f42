// Several steps that undo takes back together.
#include "platform/text/RichTextFixture.h"

#include "platform/text/UndoAction.h"

namespace {

using namespace Qt::StringLiterals;

class UndoActionTest : public RichTextFixture {
  protected:
    void Write(ColorNumber color, const QString& text) {
        box.SetSelColor(color);
        box.SetSelText(text);
    }
    void Undo() { box.Send(RichTextBox::Message::Undo); }
    void Redo() { QTest::keyClick(&box, Qt::Key_Y, Qt::ControlModifier); }
};

TEST_F(UndoActionTest, WhatItHoldsIsOneStepWithItsColors) {
    Put(u"abc"_s, u"rgb"_s);
    {
        const UndoAction step(box);
        box.SetText(QString());
        Write(green, u"xy"_s);
        {
            const UndoAction within(box);
            Write(blue, u"z"_s);
        }
        Write(red, u"w"_s);
    }
    EXPECT_EQ(box.Text(), u"xyzw"_s);
    EXPECT_EQ(Colors(), u"ggbr"_s);
    Undo();
    EXPECT_EQ(box.Text(), u"abc"_s);
    EXPECT_EQ(Colors(), u"rgb"_s);
    EXPECT_EQ(box.Send(RichTextBox::Message::CanUndo), 0);
    Redo();
    EXPECT_EQ(box.Text(), u"xyzw"_s);
    EXPECT_EQ(Colors(), u"ggbr"_s);
}

TEST_F(UndoActionTest, NeighboursStaySteps) {
    Put(u""_s, u""_s);
    QTest::keyClicks(&box, u"a"_s);
    {
        const UndoAction step(box);
        Write(red, u"b"_s);
        Write(red, u"c"_s);
    }
    QTest::keyClicks(&box, u"d"_s);
    for (const QString& text : {u"abc"_s, u"a"_s, u""_s}) {
        Undo();
        EXPECT_EQ(box.Text(), text);
    }
}

TEST_F(UndoActionTest, AnEmptyOneIsNoStep) {
    Put(u"a"_s, u"r"_s);
    { const UndoAction step(box); }
    EXPECT_EQ(box.Send(RichTextBox::Message::CanUndo), 0);
}

TEST_F(UndoActionTest, OutlivesItsControl) {
    auto gone = std::make_unique<RichTextBox>();
    const UndoAction step(*gone);
    gone->SetSelText(u"a"_s);
    gone.reset();
}

} // namespace
