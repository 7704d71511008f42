// What happens in a document as keys are pressed.
#pragma once

#include "editor/AutoFill.h"

#include <QObject>

class Document;
class Frame;
class QPoint;
class QTimer;

/// Keeps the typing colour plain, colours a tag when its ">" is typed, turns accented letters into entities,
/// runs the user buttons from the keyboard, opens and closes the auto-fill lists, and shows the line in the
/// status bar. It stands on the events of the document's text control and never fetches the whole text: a key
/// costs the same in any text.
class TypingEngine : public QObject {
    Q_OBJECT

  public:
    /// parent is the document's window, or something in it.
    TypingEngine(Frame& frame, Document& document, QTimer& Timer1, QObject* parent);

    /// The engine of a document, or null for a document that has none.
    static TypingEngine* Of(Document& document);

    /// A key that yields a character, by its code; 0 comes back when nothing is left to be typed. The
    /// auto-fill list calls it too, with 13.
    void txtinput_KeyPress(int& KeyAscii);

    AutoFill& Lists() { return autoFill_; }

  private:
    void txtInput_Change();
    void txtInput_GotFocus();
    void txtInput_DblClick();
    void txtInput_KeyDown(int& KeyCode, int Shift);
    void txtInput_MouseUp(int Button, QPoint at);

    void ShowLinePosition();
    void RunUserButton(int digit);
    /// Typed text takes the text colour.
    void TypePlain();
    /// Writes the tag that a typed ">" closes, coloured, that ">" included. Returns false where there is none
    /// to colour.
    bool CloseTag();

    Frame& frame_;
    Document& document_;
    AutoFill autoFill_;
};
