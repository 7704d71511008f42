// Mouse, drag and drop, and the menu key.
#include "platform/text/RichTextFixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace {

using namespace Qt::StringLiterals;

class RichTextMouseTest : public RichTextFixture {
  protected:
    RichTextMouseTest() {
        QObject::connect(&box, &RichTextBox::MouseDown, &box, [this](int button, int shift, QPoint at) {
            told << u"down %1 %2 %3,%4"_s.arg(button).arg(shift).arg(at.x()).arg(at.y());
        });
        QObject::connect(&box, &RichTextBox::MouseUp, &box, [this](int button, int shift, QPoint at) {
            told << u"up %1 %2 %3,%4"_s.arg(button).arg(shift).arg(at.x()).arg(at.y());
        });
        QObject::connect(&box, &RichTextBox::DblClick, &box, [this] { told << u"double"_s; });
    }

    /// The middle of the left edge of a character.
    QPoint At(int position) const {
        const QRect place = box.CharacterRect(position);
        return {place.left() + 1, place.center().y()};
    }

    /// A double click up to where its button is still down.
    void DoubleClick(QPointF at) {
        QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, at.toPoint());
        QMouseEvent second(QEvent::MouseButtonDblClick, at, box.viewport()->mapToGlobal(at), Qt::LeftButton,
                           Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &second);
    }

    QStringList Told() { return std::exchange(told, {}); }

    /// Drags something in from outside and lets it go; true if the control took it.
    bool Drop(const QMimeData& data, QPoint at) {
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &enter);
        QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &move);
        EXPECT_EQ(enter.isAccepted(), move.isAccepted());
        showsPlace = move.isAccepted();
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        drop.ignore();
        QApplication::sendEvent(box.viewport(), &drop);
        return move.isAccepted() && drop.isAccepted();
    }

    QStringList told;
    bool showsPlace = false; ///< the last thing dragged over the text was shown a place there
};

TEST_F(RichTextMouseTest, AClickPutsTheCaretThere) {
    box.SetText(u"abcd\r\néfgh"_s);
    Signalled();
    QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, At(8));
    EXPECT_EQ(box.SelStart(), 8);
    EXPECT_EQ(Signalled(), QStringList{u"SelChange"_s});
    EXPECT_EQ(Told().size(), 2);
}

TEST_F(RichTextMouseTest, ButtonsAreToldByNumberWithTheKeysHeld) {
    box.SetText(u"abcd"_s);
    QTest::mouseClick(box.viewport(), Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier,
                      QPoint(30, 12));
    EXPECT_EQ(Told(), (QStringList{u"down 2 3 30,12"_s, u"up 2 3 30,12"_s}));
    QTest::mouseClick(box.viewport(), Qt::MiddleButton, Qt::AltModifier, QPoint(30, 12));
    EXPECT_EQ(Told(), (QStringList{u"down 4 4 30,12"_s, u"up 4 4 30,12"_s}));
    QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 12));
    EXPECT_EQ(Told(), (QStringList{u"down 1 0 30,12"_s, u"up 1 0 30,12"_s}));
    QTest::mouseClick(box.viewport(), Qt::BackButton, Qt::NoModifier, QPoint(30, 12));
    EXPECT_EQ(Told(), (QStringList{u"down 0 0 30,12"_s, u"up 0 0 30,12"_s})) << "no number of its own";
}

TEST_F(RichTextMouseTest, OnlyTheLeftButtonDoubleClicks) {
    box.SetText(u"one two"_s);
    QTest::mouseClick(box.viewport(), Qt::RightButton, Qt::NoModifier, At(5));
    Told();
    const QPointF at = At(5);
    QMouseEvent second(QEvent::MouseButtonDblClick, at, box.viewport()->mapToGlobal(at), Qt::RightButton,
                       Qt::RightButton, Qt::NoModifier);
    QApplication::sendEvent(box.viewport(), &second);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].startsWith(u"down 2"_s)) << "another press";
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(RichTextMouseTest, AClickTakesTheFocus) {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        for (const bool on : {true, false}) {
            box.SetEnabled(on);
            box.clearFocus();
            ASSERT_NE(box.focusWidget(), &box);
            QTest::mouseClick(box.viewport(), button, Qt::NoModifier, QPoint(30, 12));
            EXPECT_EQ(box.focusWidget(), &box) << button << on;
        }
    }
}

TEST_F(RichTextMouseTest, TheRightButtonKeepsTheSelection) {
    box.SetText(u"abcd"_s);
    Select(1, 2);
    QTest::mouseClick(box.viewport(), Qt::RightButton, Qt::NoModifier, At(2));
    EXPECT_EQ(box.SelText(), u"bc"_s);
}

TEST_F(RichTextMouseTest, DraggingTheMouseSelectsAndTells) {
    box.SetText(u"abcdefgh"_s);
    Signalled();
    QTest::mousePress(box.viewport(), Qt::LeftButton, Qt::NoModifier, At(1));
    QTest::mouseMove(box.viewport(), At(4));
    QTest::mouseRelease(box.viewport(), Qt::LeftButton, Qt::NoModifier, At(5));
    EXPECT_EQ(box.SelText(), u"bcde"_s);
    EXPECT_GE(Signalled().count(u"SelChange"_s), 2);
}

TEST_F(RichTextMouseTest, AMoveWithTheButtonDownSelectsWhileTheControlIsOn) {
    box.SetText(u"abcdefgh"_s);
    const auto moveTo = [&](int position) {
        const QPointF at = At(position);
        // Not each of a hand's many moves is acted on.
        for (int turn = 0; turn < 4; ++turn) {
            QMouseEvent move(QEvent::MouseMove, at, box.viewport()->mapToGlobal(at), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(box.viewport(), &move);
        }
    };
    QTest::mousePress(box.viewport(), Qt::LeftButton, Qt::NoModifier, At(1));
    moveTo(4);
    EXPECT_EQ(box.SelText(), u"bcd"_s);
    box.SetEnabled(false);
    moveTo(6);
    EXPECT_EQ(box.SelText(), u"bcd"_s);
    box.SetEnabled(true);
    moveTo(6);
    EXPECT_EQ(box.SelText(), u"bcdef"_s);
    QTest::mouseRelease(box.viewport(), Qt::LeftButton, Qt::NoModifier, At(4));
}

TEST_F(RichTextMouseTest, AButtonUpByTheProgramIsWhereTheMouseIs) {
    box.SetText(u"abcdefgh"_s);
    QTest::mousePress(box.viewport(), Qt::LeftButton, Qt::NoModifier, At(5));
    box.Send(RichTextBox::Message::LeftButtonUp);
    EXPECT_EQ(box.SelStart(), 5);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(RichTextMouseTest, CtrlAndAltSelectNoRectangles) {
    box.SetText(u"abcdefgh\r\nabcdefgh"_s);
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier}) {
        box.SetSelStart(0);
        QTest::mousePress(box.viewport(), Qt::LeftButton, modifier, At(1));
        QTest::mouseRelease(box.viewport(), Qt::LeftButton, modifier, At(14));
        EXPECT_EQ(box.SelText(), u"bcdefgh\r\nabcd"_s);
    }
}

TEST_F(RichTextMouseTest, ADoubleClickSelectsTheWordAndTellsAfterwards) {
    box.SetText(u"one two three"_s);
    QString selected;
    QObject::connect(&box, &RichTextBox::DblClick, &box, [&] { selected = box.SelText(); });
    DoubleClick(At(5));
    EXPECT_EQ(selected, u"two"_s);
    EXPECT_TRUE(Told().contains(u"double"_s));
}

TEST_F(RichTextMouseTest, AButtonUpEndsTheDoubleClicksSelecting) {
    box.SetText(u"one two three four"_s);
    QObject::connect(&box, &RichTextBox::DblClick, &box,
                     [this] { box.Send(RichTextBox::Message::LeftButtonUp); });
    DoubleClick(At(5));
    const QPointF away = At(15);
    QMouseEvent move(QEvent::MouseMove, away, box.viewport()->mapToGlobal(away), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(box.viewport(), &move);
    EXPECT_EQ(box.SelText(), u"two"_s) << "a move with the button still down extends nothing";
}

TEST_F(RichTextMouseTest, TheMenuKeyAsksForTheMenuAtTheCaret) {
    box.SetText(u"ab\r\ncd"_s);
    box.SetSelStart(5);
    const QPoint caret = box.CaretPixel();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(&box, &key);
    EXPECT_EQ(Told(), QStringList{u"up 2 0 %1,%2"_s.arg(caret.x()).arg(caret.y())});
    QContextMenuEvent mouse(QContextMenuEvent::Mouse, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(&box, &mouse);
    EXPECT_EQ(Told(), QStringList()) << "the mouse has told of itself";
}

TEST_F(RichTextMouseTest, ATextDroppedTakesThePlacesColorAndTheDocumentsLineEnds) {
    Put(u"abc\ndxef"_s, u"rrrrgggg"_s);
    Select(5, 1);
    box.SetSelText(QString());
    box.EmptyUndoBuffer();
    Signalled();
    QMimeData data;
    data.setText(u"1\r\n☃"_s);
    EXPECT_TRUE(Drop(data, At(5)));
    EXPECT_EQ(box.Text(), u"abc\nd1\n&#9731;ef"_s);
    EXPECT_EQ(Colors(), u"rrrrgggggggggggg"_s);
    EXPECT_EQ(Signalled().count(u"Change"_s), 1);
    Undo();
    EXPECT_EQ(box.Text(), u"abc\ndef"_s);
    EXPECT_EQ(Colors(), u"rrrrggg"_s);
    EXPECT_FALSE(CanUndo());
}

TEST_F(RichTextMouseTest, ATextDroppedTakesEachDocumentsLineEnd) {
    QMimeData data;
    data.setText(u"1\r\n2\n3\r4"_s);
    for (const QString& end : {u"\r\n"_s, u"\n"_s, u"\r"_s}) {
        box.SetText(u"ab"_s + end);
        EXPECT_TRUE(Drop(data, At(1)));
        EXPECT_EQ(box.Text(), u"a1%12%13%14b%1"_s.replace(u"%1"_s, end));
    }
}

TEST_F(RichTextMouseTest, FilesAreLeftToTheFrame) {
    QMimeData data;
    data.setUrls({QUrl(u"file:///tmp/a.htm"_s)});
    data.setText(u"file:///tmp/a.htm"_s);
    EXPECT_FALSE(Drop(data, QPoint(5, 5)));
    EXPECT_FALSE(showsPlace);
    EXPECT_EQ(box.Text(), QString());
}

TEST_F(RichTextMouseTest, OffItTakesNoMouseAndNoDrop) {
    box.SetText(u"abcd efgh"_s);
    Signalled();
    box.SetEnabled(false);
    QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, At(3));
    QTest::mouseDClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, At(3));
    QTest::mouseClick(box.viewport(), Qt::RightButton, Qt::NoModifier, At(3));
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(&box, &key);
    QMimeData data;
    data.setText(u"x"_s);
    EXPECT_FALSE(Drop(data, At(2)));
    EXPECT_FALSE(showsPlace);
    EXPECT_EQ(box.Text(), u"abcd efgh"_s);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_EQ(Told(), QStringList());
    EXPECT_EQ(Signalled(), QStringList());
}

} // namespace
