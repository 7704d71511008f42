// What the keys of a text control do: they edit, move the caret, and type characters.
#pragma once

#include <functional>
#include <QString>
#include <Qt>

class QKeyEvent;
class QsciScintillaBase;
class TextBuffer;
class TextEditing;

class KeyInput {
  public:
    /// Others hear of each key before it does anything, and may change what it does.
    struct Listeners {
        /// The virtual key code and 1 for Shift, 2 for Ctrl, 4 for Alt. A code of 0 swallows the key.
        std::function<void(int& KeyCode, int Shift)> keyDown;
        /// The code page's code of the character that is typed, in Unicode its number for one from outside
        /// the code page, which is above 255; 0 swallows it.
        std::function<void(int& KeyAscii)> keyPress;
    };

    KeyInput(QsciScintillaBase& control, const TextBuffer& buffer, TextEditing& editing, Listeners listeners)
        : control_(control), buffer_(buffer), editing_(editing), listeners_(std::move(listeners)) {}

    /// True for the keys that belong to a text whatever a menu makes of them: characters and plain editing
    /// keys.
    static bool IsTextKey(const QKeyEvent& event);
    /// The event is ignored where the key means nothing to a text, and at Esc.
    void Press(QKeyEvent& event);
    /// Types a text that a key or an input method yields, character by character.
    void TypeText(const QString& text);

  private:
    long Sci(unsigned int message) const;
    bool RunEditingKey(int key, Qt::KeyboardModifiers modifiers);
    void TypeCode(int code, bool controlTypes);
    /// A character that the code page lacks: itself, or its reference.
    void TypeBeyondCodePage(const QString& character);
    void TypeAnswer(int answer);

    QsciScintillaBase& control_;
    const TextBuffer& buffer_;
    TextEditing& editing_;
    Listeners listeners_;
};
