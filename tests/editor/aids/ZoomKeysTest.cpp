#include "editor/aids/ZoomKeys.h"

#include "editor/aids/TextZoom.h"
#include "editor/autofill/frmDropDown.h"
#include "support/TypingFrame.h"

#include <gtest/gtest.h>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr auto ctrl = Qt::ControlModifier;
constexpr auto keypad = Qt::KeypadModifier;

class ZoomKeysTest : public testing::Test {
  protected:
    ZoomKeysTest() : zoom(frame, *frame.active, frame.active) {}

    /// Whether the text took the key.
    bool Press(int key, Qt::KeyboardModifiers modifiers, const char* text = "", quint32 scan = 0) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, scan, 0, 0, QString::fromLatin1(text));
        QApplication::sendEvent(&frame.Box(), &event);
        return event.isAccepted();
    }
    void Wheel(int angle, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(QPointF(10, 10), QPointF(10, 10), {}, {0, angle}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(frame.Box().viewport(), &event);
    }

    TypingFrame frame;
    ZoomKeys zoom;
};

} // namespace

TEST_F(ZoomKeysTest, KeysZoom) {
    struct Row {
        const char* name;
        int key;
        Qt::KeyboardModifiers modifiers;
        int percent; ///< of a text at 120
    };
    const Row rows[] = {
        {"plus", Qt::Key_Plus, ctrl | Qt::ShiftModifier, 130},
        {"plus of its own key", Qt::Key_Plus, ctrl, 130},
        {"its key without Shift", Qt::Key_Equal, ctrl, 130},
        {"plus of the keypad", Qt::Key_Plus, ctrl | keypad, 130},
        {"minus", Qt::Key_Minus, ctrl, 110},
        {"minus of the keypad", Qt::Key_Minus, ctrl | keypad, 110},
        {"0 of the keypad", Qt::Key_0, ctrl | keypad, 100},
        {"0 among the digits is a button's", Qt::Key_0, ctrl, 120},
        {"without Ctrl", Qt::Key_Minus, Qt::NoModifier, 120},
        {"with Alt too", Qt::Key_Minus, ctrl | Qt::AltModifier, 120},
        {"minus with Shift", Qt::Key_Underscore, ctrl | Qt::ShiftModifier, 120},
        {"0 of the keypad without Ctrl", Qt::Key_0, keypad, 120},
        {"Insert, which the 0 is without NumLock", Qt::Key_Insert, ctrl | keypad, 120},
    };
    for (const Row& row : rows) {
        frame.State<TextZoom>().Set(frame, 120);
        const bool taken = Press(row.key, row.modifiers);
        EXPECT_TRUE(taken || row.percent == 120) << row.name;
        EXPECT_EQ(frame.Box().Zoom(), row.percent) << row.name;
    }
}

TEST_F(ZoomKeysTest, TheTenthButtonKeepsItsKey) {
    frame.Buttons().FirstBut[9] = QStringLiteral("<X>");
    frame.State<TextZoom>().Set(frame, 120);
    Press(Qt::Key_0, ctrl);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<X>"));
    EXPECT_EQ(frame.Box().Zoom(), 120);
    // On some layouts the minus is typed by the key of a digit: that is a button's, too.
    frame.Buttons().FirstBut[5] = QStringLiteral("<Y>");
    Press(Qt::Key_Minus, ctrl, "", 15);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<X><Y>"));
    EXPECT_EQ(frame.Box().Zoom(), 120);
}

TEST_F(ZoomKeysTest, WheelWithCtrlZooms) {
    Wheel(120, ctrl);
    EXPECT_EQ(frame.Box().Zoom(), 110);
    Wheel(240, ctrl);
    EXPECT_EQ(frame.Box().Zoom(), 130);
    Wheel(-120, ctrl);
    EXPECT_EQ(frame.Box().Zoom(), 120);
    for (int i = 0; i < 8; ++i)
        Wheel(15, ctrl); // a fine wheel
    EXPECT_EQ(frame.Box().Zoom(), 130);
    Wheel(0, ctrl);
    EXPECT_EQ(frame.Box().Zoom(), 130);
    EXPECT_EQ(frame.statuses.last(), QStringLiteral("Zoom 130 %"));
}

TEST_F(ZoomKeysTest, WheelWithoutCtrlScrolls) {
    frame.SetText(QStringLiteral("line\r\n").repeated(300));
    frame.Box().SetSelStart(0);
    for (const auto& modifiers : {Qt::KeyboardModifiers(), Qt::ControlModifier | Qt::ShiftModifier}) {
        Wheel(-120, modifiers);
        EXPECT_GT(frame.Box().verticalScrollBar()->value(), 0);
        EXPECT_EQ(frame.Box().Zoom(), 100);
        frame.Box().verticalScrollBar()->setValue(0);
    }
    Wheel(-120, ctrl);
    EXPECT_EQ(frame.Box().verticalScrollBar()->value(), 0);
    EXPECT_EQ(frame.Box().Zoom(), 90);
}

TEST_F(ZoomKeysTest, IsThatOfAllDocumentsAndRemembered) {
    TestDocument& first = *frame.active;
    Press(Qt::Key_Plus, ctrl);
    frame.NewDocument();
    ASSERT_NE(frame.active, &first);
    const ZoomKeys second(frame, *frame.active, frame.active);
    EXPECT_EQ(frame.Box().Zoom(), 110) << "of a document that opens later";
    Press(Qt::Key_Plus, ctrl);
    EXPECT_EQ(frame.Box().Zoom(), 120);
    EXPECT_EQ(first.input->Zoom(), 120);
    EXPECT_EQ(Settings().Read(Keys::Zoom), QStringLiteral("120"));
}

TEST_F(ZoomKeysTest, TypesNothingAndChangesNothing) {
    frame.SetText(QStringLiteral("<B>x</B>"));
    frame.active->modified = false;
    frame.Box().EmptyUndoBuffer();
    const QFont font = frame.Box().Font();
    const QString rtf = frame.Box().TextRTF();
    Press(Qt::Key_Plus, ctrl | Qt::ShiftModifier, "+");
    Press(Qt::Key_Minus, ctrl, "-");
    Press(Qt::Key_Minus, ctrl, "-");
    EXPECT_EQ(frame.Box().Zoom(), 90);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<B>x</B>"));
    EXPECT_EQ(frame.Box().TextRTF(), rtf);
    EXPECT_EQ(frame.Box().Font(), font);
    EXPECT_FALSE(frame.active->modified);
    EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0);
}

TEST_F(ZoomKeysTest, TheListStaysAtTheCaret) {
    frame.Box().resize(600, 400);
    frame.SetText(QString());
    frame.Type("<img");
    frame.Type(" ");
    frame.Pause();
    ASSERT_TRUE(frame.ListShown());
    const QRect before = frame.List()->geometry();
    for (int i = 0; i < 6; ++i)
        Press(Qt::Key_Plus, ctrl);
    const QRect behind = frame.List()->geometry();
    EXPECT_GT(behind.left(), before.left());
    EXPECT_GT(behind.top(), before.top());
    const QPoint caret = frame.Box().viewport()->mapTo(frame.Window(), frame.Box().CaretPixel());
    EXPECT_EQ(behind.top(), caret.y() + frame.Box().LineHeight());
}
