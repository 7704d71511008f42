// A text control on the screen, with a record of what it signals, and keys as a person presses them.
#pragma once

#include "platform/text/RichTextBox.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTest>

constexpr ColorNumber red = 255;
constexpr ColorNumber green = 0xff00;
constexpr ColorNumber blue = 0xff0000;

class RichTextFixture : public testing::Test {
  protected:
    RichTextFixture() {
        box.resize(600, 400);
        box.show();
        box.SetFocus();
        QObject::connect(&box, &RichTextBox::Change, &box, [this] { signalled << QStringLiteral("Change"); });
        QObject::connect(&box, &RichTextBox::SelChange, &box,
                         [this] { signalled << QStringLiteral("SelChange"); });
    }

    /// The signals since the last call.
    QStringList Signalled() { return std::exchange(signalled, {}); }

    /// One letter a character: k black, r, g, b the pure colours, ? any other.
    QString Colors() const {
        QString letters;
        for (int i = 0; i < box.TextLength(); ++i) {
            const ColorNumber color = box.ColorAt(i);
            letters += QLatin1Char(color == 0       ? 'k'
                                   : color == red   ? 'r'
                                   : color == green ? 'g'
                                   : color == blue  ? 'b'
                                                    : '?');
        }
        return letters;
    }

    /// Writes a text and its colours, one letter a character, and puts the caret at its end.
    void Put(const QString& text, const QString& letters) {
        box.SetText(text);
        for (int i = 0; i < text.size(); ++i) {
            box.SetSelStart(i);
            box.SetSelLength(1);
            box.SetSelColor(letters[i] == u'r'   ? red
                            : letters[i] == u'g' ? green
                            : letters[i] == u'b' ? blue
                                                 : 0);
        }
        box.SetSelStart(static_cast<int>(text.size()));
        box.EmptyUndoBuffer();
        Signalled();
    }

    /// Selects length characters from start.
    void Select(int start, int length) {
        box.SetSelStart(start);
        box.SetSelLength(length);
    }

    /// Presses one key that yields a text.
    void PressText(const QString& text, int key = Qt::Key_unknown,
                   Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&box, &press);
    }

    /// Types a text key by key.
    void Type(const char* ascii) { QTest::keyClicks(&box, QString::fromLatin1(ascii)); }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&box, key, modifiers);
    }

    void Undo() { box.Send(RichTextBox::Message::Undo); }

    bool CanUndo() { return box.Send(RichTextBox::Message::CanUndo) == 1; }

    RichTextBox box;
    QStringList signalled;
};
