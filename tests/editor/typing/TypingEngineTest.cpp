// Keys, caret, focus and mouse in a document: everything but the tag close and the auto-fill lists.
#include "editor/typing/TypingEngine.h"

#include "editor/autofill/frmDropDown.h"
#include "support/TypingFrame.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QTest>

namespace {

TEST(TypingEngine, TypedTextIsPlain) {
    TypingFrame frame;
    frame.Type("a<B c=\"d\"/(&'%.\r");
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("a<B c=\"d\"/(&'%.\r\n"));
    for (int i = 0; i < frame.Box().TextLength(); ++i)
        EXPECT_EQ(frame.Box().ColorAt(i), 0) << i;
}

TEST(TypingEngine, TypedTextTakesTheStoredTextColor) {
    TypingFrame frame;
    frame.SetText(QStringLiteral("a"));
    frame.Store().WriteNumber(Keys::TextColor[0], 255);
    frame.Type("b");
    EXPECT_EQ(frame.Box().ColorAt(0), 0);
    EXPECT_EQ(frame.Box().ColorAt(1), 255);
    frame.Store().Write(Keys::TextColor[0], QStringLiteral("nonsense"));
    frame.Type("c");
    EXPECT_EQ(frame.Box().ColorAt(2), 0);
}

TEST(TypingEngine, KeysThatDoNoMoreAreTypedPlainToo) {
    TypingFrame frame;
    frame.Store().WriteNumber(Keys::TextColor[0], 4711);
    frame.SetMarked("[ab]");
    frame.Box().SetSelColor(255);
    frame.Box().SetSelStart(1);
    frame.Type("=");
    EXPECT_EQ(frame.Marked(), QStringLiteral("a=|b"));
    EXPECT_EQ(frame.Box().ColorAt(0), 255);
    EXPECT_EQ(frame.Box().ColorAt(1), 4711);
    EXPECT_EQ(frame.Box().ColorAt(2), 255);
}

TEST(TypingEngine, BehindATakenRowTheTextColorHolds) {
    TypingFrame frame;
    frame.Type("<img al\r");
    frame.Pause();
    frame.Type("l");
    frame.Store().WriteNumber(Keys::TextColor[0], 4711);
    frame.Type("\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img ALIGN=\"LEFT|\""));
    EXPECT_EQ(frame.Box().ColorAt(14), 0);
    EXPECT_EQ(frame.Box().SelColor(), 4711);
}

TEST(TypingEngine, ABlankInAnOpenValueListForgetsIt) {
    TypingFrame frame;
    frame.Type("<img al\r");
    frame.Pause();
    ASSERT_TRUE(frame.Lists().ValueList());
    frame.Type(" ");
    EXPECT_FALSE(frame.Lists().ValueList());
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img ALIGN=\" |\""));
}

TEST(TypingEngine, ASelectionIsNotRecolored) {
    TypingFrame frame;
    frame.SetText(QStringLiteral("abc"));
    frame.Box().SetSelStart(0);
    frame.Box().SetSelLength(3);
    frame.Box().SetSelColor(255);
    frame.Type("=");
    // The key itself is typed by the control; nothing of the engine has coloured what was selected.
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("="));
    EXPECT_EQ(frame.Box().ColorAt(0), 255);
}

TEST(TypingEngine, OpeningADocumentSetsTheFlags) {
    TypingFrame frame;
    frame.Flags().Open();
    frame.Flags().StopFollowing();
    frame.NewDocument();
    const TypingEngine second(frame, *frame.active, frame.active->Timer1, nullptr);
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_TRUE(frame.Flags().DropDownFollowsCaret());
    EXPECT_EQ(frame.active->Timer1.interval(), 1150);
    EXPECT_TRUE(frame.active->Timer1.isSingleShot());
    EXPECT_FALSE(frame.active->Timer1.isActive());
}

TEST(TypingEngine, EveryChangeMarksTheDocument) {
    TypingFrame frame;
    EXPECT_FALSE(frame.active->Modified());
    frame.Type("a");
    EXPECT_TRUE(frame.active->Modified());
    frame.active->SetModified(false);
    frame.Type("\b");
    EXPECT_TRUE(frame.active->Modified());
    frame.active->SetModified(false);
    frame.Box().SetSelText(QStringLiteral("x"));
    EXPECT_TRUE(frame.active->Modified());
    frame.active->SetModified(false);
    frame.Box().SetSelStart(0);
    EXPECT_FALSE(frame.active->Modified());
}

TEST(TypingEngine, ShowsTheLineOfTheCaret) {
    TypingFrame frame;
    frame.SetText(QStringLiteral("a\r\nb\r\n\r\nc"));
    EXPECT_EQ(frame.statuses.last(), QStringLiteral("Line 4"));
    frame.Box().SetSelStart(3);
    EXPECT_EQ(frame.statuses.last(), QStringLiteral("Line 2"));
    frame.Key(Qt::Key_Up);
    EXPECT_EQ(frame.statuses.last(), QStringLiteral("Line 1"));
    frame.Type("\r");
    EXPECT_EQ(frame.statuses.last(), QStringLiteral("Line 2"));
    frame.Key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(frame.statuses.last(), QStringLiteral("Line 5"));
}

TEST(TypingEngine, FocusShowsTheLineAndSelectsTheTab) {
    TypingFrame frame;
    auto* other = new QWidget(frame.window.get());
    other->setFocusPolicy(Qt::StrongFocus);
    other->show();
    other->setFocus();
    frame.active->SetCaption(QStringLiteral("C:\\site\\a.htm"));
    frame.statuses.clear();
    frame.selectedTabs.clear();
    frame.Box().SetFocus();
    EXPECT_EQ(frame.statuses, QStringList{QStringLiteral("Line 1")});
    EXPECT_EQ(frame.selectedTabs, QStringList{QStringLiteral("C:\\site\\a.htm")});
}

TEST(TypingEngine, TheLineIsShownBeforeTheTabIsSelected) {
    struct OrderFrame : TypingFrame {
        void SetStatusPanel(const QString& text, bool now) override {
            order << text;
            TypingFrame::SetStatusPanel(text, now);
        }
        void SelectDocumentTab(const QString& path) override {
            order << QStringLiteral("tab");
            selectedTabs << path;
        }
        QStringList order;
    };
    OrderFrame frame;
    frame.Box().clearFocus();
    frame.order.clear();
    frame.Box().SetFocus();
    EXPECT_EQ(frame.order, (QStringList{QStringLiteral("Line 1"), QStringLiteral("tab")}));
}

TEST(TypingEngine, RightButtonPopsUpTheEditMenu) {
    TypingFrame frame;
    QWidget* text = frame.Box().viewport();
    QTest::mouseClick(text, Qt::LeftButton, {}, QPoint(20, 10));
    QTest::mouseClick(text, Qt::MiddleButton, {}, QPoint(20, 10));
    EXPECT_TRUE(frame.popUps.empty());
    QTest::mouseClick(text, Qt::RightButton, {}, QPoint(20, 10));
    ASSERT_EQ(frame.popUps.size(), 1U);
    EXPECT_EQ(frame.popUps.front(), text->mapToGlobal(QPoint(20, 10)));
}

/// Double-clicks the first word, keeps the button down and moves the mouse to the line's end.
QString DoubleClickAndDrag(TestFrame& frame) {
    frame.SetText(QStringLiteral("word another more"));
    QWidget* text = frame.Box().viewport();
    const QPoint end = frame.Box().CaretPixel() + QPoint(0, 3);
    frame.Box().SetSelStart(2);
    const QPoint at = frame.Box().CaretPixel() + QPoint(0, 3);
    QTest::mouseClick(text, Qt::LeftButton, {}, at);
    const auto send = [text](QEvent::Type type, QPoint where, Qt::MouseButton button) {
        QMouseEvent event(type, where, text->mapToGlobal(where), button, Qt::LeftButton, {});
        QApplication::sendEvent(text, &event);
    };
    send(QEvent::MouseButtonDblClick, at, Qt::LeftButton);
    send(QEvent::MouseMove, end, Qt::NoButton);
    return frame.Box().SelText();
}

TEST(TypingEngine, AfterADoubleClickTheMouseSelectsNoFurther) {
    TestFrame without;
    EXPECT_EQ(DoubleClickAndDrag(without), QStringLiteral("word another more"));
    TypingFrame with;
    EXPECT_EQ(DoubleClickAndDrag(with), QStringLiteral("word"));
}

struct ButtonRow {
    Qt::Key key;
    int index;
};

TEST(TypingEngine, CtrlAndDigitRunUserButtons) {
    TypingFrame frame;
    for (size_t i = 0; i < 65; ++i) {
        frame.Buttons().FirstBut[i] = QStringLiteral("<B%1>").arg(i);
        frame.Buttons().SecondBut[i] = QStringLiteral("</B%1>").arg(i);
    }
    for (const auto& [key, index] :
         {ButtonRow{Qt::Key_1, 0}, ButtonRow{Qt::Key_2, 1}, ButtonRow{Qt::Key_3, 2}, ButtonRow{Qt::Key_4, 3},
          ButtonRow{Qt::Key_5, 4}, ButtonRow{Qt::Key_6, 5}, ButtonRow{Qt::Key_7, 6}, ButtonRow{Qt::Key_8, 7},
          ButtonRow{Qt::Key_9, 8}, ButtonRow{Qt::Key_0, 9}}) {
        frame.SetText(QString());
        frame.Key(key, Qt::ControlModifier);
        EXPECT_EQ(frame.Marked(), QStringLiteral("<B%1>|</B%1>").arg(index));
    }
}

TEST(TypingEngine, UserButtonsKeepTheirTextsInLowerCaseToo) {
    TypingFrame frame;
    frame.Store().WriteFlag(Keys::LowerCaseTags, true);
    frame.Buttons().FirstBut[0] = QStringLiteral("<DIV>\r\n");
    frame.Buttons().SecondBut[0] = QStringLiteral("\r\n</DIV>");
    frame.Key(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<div>\r\n\r\n</div>"));
    EXPECT_EQ(frame.Buttons().FirstBut[0], QStringLiteral("<DIV>\r\n"));
    EXPECT_EQ(frame.Buttons().SecondBut[0], QStringLiteral("\r\n</DIV>"));
}

TEST(TypingEngine, OnlyCtrlAloneRunsUserButtons) {
    TypingFrame frame;
    frame.Buttons().FirstBut.fill(QStringLiteral("<B>"));
    frame.Key(Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier);
    frame.Key(Qt::Key_1, Qt::AltModifier);
    frame.Key(Qt::Key_1, Qt::ControlModifier | Qt::AltModifier);
    frame.Key(Qt::Key_Control, Qt::ControlModifier);
    EXPECT_EQ(frame.Box().Text(), QString());
    frame.Type("1");
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("1"));
}

TEST(TypingEngine, TheKeypadsDigitsAreNoDigitKeys) {
    TypingFrame frame;
    frame.Buttons().FirstBut.fill(QStringLiteral("<B>"));
    frame.Key(Qt::Key_1, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(frame.Box().Text(), QString());
}

TEST(TypingEngine, AUserButtonOnTheKeyboardWrapsTheSelection) {
    TypingFrame frame;
    frame.Buttons().FirstBut[2] = QStringLiteral("<A HREF=\"X\">");
    frame.Buttons().SecondBut[2] = QStringLiteral("</A>");
    frame.SetMarked("a[b<I>]c");
    frame.Key(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(frame.Marked(), QStringLiteral("a<A HREF=\"X\">b<I>|</A>c"));
    EXPECT_EQ(frame.Box().ColorAt(1), 32768);
    EXPECT_EQ(frame.Box().ColorAt(14), 16711680);
}

TEST(TypingEngine, WhatAnInputMethodCommitsIsTyped) {
    TypingFrame frame;
    const auto commit = [&frame](const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&frame.Box(), &event);
    };
    frame.SetMarked("<B|<I>");
    commit(QStringLiteral(">") + QChar(0xe9) + QChar(0x2603));
    EXPECT_EQ(frame.Marked(), QStringLiteral("<B>&eacute;&#9731;|<I>"));
    EXPECT_EQ(frame.Box().ColorAt(0), 16711680);
    EXPECT_EQ(frame.Box().ColorAt(3), 0);
}

TEST(TypingEngine, WhatIsPastedIsNotTyped) {
    TypingFrame frame;
    QApplication::clipboard()->setText(QStringLiteral(">") + QChar(0xe9));
    frame.SetMarked("<B|<I>");
    frame.Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<B>") + QChar(0xe9) + QStringLiteral("|<I>"));
    EXPECT_EQ(frame.Box().ColorAt(0), 0);
}

TEST(TypingEngine, EscAndRightForgetTheValueListWithNoListOpen) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Right}) {
        TypingFrame frame;
        frame.Type("<img al\r");
        ASSERT_TRUE(frame.Lists().ValueList());
        frame.LoadedForms().Unload<frmDropDown>();
        const QString text = frame.Box().Text();
        frame.Box().SetSelStart(0);
        ASSERT_TRUE(frame.Lists().ValueList());
        frame.Key(key);
        EXPECT_FALSE(frame.Lists().ValueList());
        EXPECT_EQ(frame.Box().Text(), text);
        EXPECT_EQ(frame.Box().SelStart(), key == Qt::Key_Right ? 1 : 0);
        EXPECT_EQ(frame.List(), nullptr);
    }
}

TEST(TypingEngine, TheDownKeyRemembersTheCaret) {
    TypingFrame frame;
    frame.SetMarked("ab|c");
    frame.Key(Qt::Key_Down);
    EXPECT_EQ(frame.Flags().ListReturnCaret(), 2);
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
    frame.Box().SetSelStart(1);
    frame.Key(Qt::Key_Up);
    EXPECT_EQ(frame.Flags().ListReturnCaret(), 2);
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
}

TEST(TypingEngine, KeysWithoutAListDoNothingElse) {
    TypingFrame frame;
    frame.SetMarked("a|b");
    frame.active->SetModified(false);
    frame.Key(Qt::Key_Escape);
    EXPECT_EQ(frame.Marked(), QStringLiteral("a|b"));
    frame.Key(Qt::Key_Right);
    EXPECT_EQ(frame.Marked(), QStringLiteral("ab|"));
    EXPECT_FALSE(frame.active->Modified());
    EXPECT_EQ(frame.List(), nullptr);
}

TEST(TypingEngine, PunctuationIsNoArrowKey) {
    // The codes of these characters are the key codes of Left, Up, Right and Down.
    TypingFrame frame;
    frame.SetText(QStringLiteral("<IMG"));
    frame.Type(" ");
    for (const char* character : {"%", "&", "'", "("}) {
        frame.Type(character);
        EXPECT_NE(frame.List(), nullptr) << character;
    }
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<IMG %&'("));
    EXPECT_EQ(frame.Flags().ListReturnCaret(), 0);
}

} // namespace
