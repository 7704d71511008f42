// A test frame whose document has a typing engine, and a person at its keyboard.
#include "support/TypingFrame.h"

#include "editor/autofill/frmDropDown.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QTest>

TypingFrame::TypingFrame() {
    // The engine's own mark on the document is what tests look at.
    QObject::disconnect(active->input, &RichTextBox::Change, active, nullptr);
    engine = new TypingEngine(*this, *active, active->Timer1, active);
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    active->input->SetFocus();
}

void TypingFrame::Send(int key, const QString& text, Qt::KeyboardModifiers modifiers) {
    QWidget* target = QApplication::focusWidget();
    ASSERT_NE(target, nullptr);
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(target, &down);
    target = QApplication::focusWidget();
    ASSERT_NE(target, nullptr);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(target, &up);
}

void TypingFrame::Type(const QString& characters) {
    for (const QChar c : characters) {
        if (c == u'\r')
            Send(Qt::Key_Return, QString(c), Qt::NoModifier);
        else if (c == u'\b')
            Send(Qt::Key_Backspace, QString(c), Qt::NoModifier);
        else
            // Qt numbers the keys of Latin-1 by the code of their upper-case character.
            Send(c.toUpper().unicode(), QString(c), Qt::NoModifier);
    }
}

void TypingFrame::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    Send(key, key == Qt::Key_Escape ? QString(QChar(27)) : QString(), modifiers);
}

void TypingFrame::Pause() {
    ASSERT_TRUE(PausePending());
    ASSERT_TRUE(QMetaObject::invokeMethod(&active->Timer1, "timeout"));
}

frmDropDown* TypingFrame::List() {
    return LoadedForms().Find<frmDropDown>();
}

bool TypingFrame::ListShown() {
    return List() && List()->isVisible();
}

QListWidget* TypingFrame::ListView1() {
    return List() ? List()->findChild<QListWidget*>(QStringLiteral("ListView1")) : nullptr;
}

QStringList TypingFrame::Rows() {
    QStringList rows;
    for (int row = 0; List() && row < ListView1()->count(); ++row)
        rows << ListView1()->item(row)->text();
    return rows;
}

QString TypingFrame::SelectedRow() {
    const QListWidgetItem* item = List() ? ListView1()->currentItem() : nullptr;
    return item ? item->text() : QString();
}
