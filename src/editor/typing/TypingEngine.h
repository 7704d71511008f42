// What happens in a document as keys are pressed.
#pragma once

#include "editor/autofill/AutoFill.h"
#include "editor/autofill/AutoFillKeys.h"
#include "editor/typing/EntityTyping.h"
#include "editor/typing/TagCloser.h"
#include "editor/typing/TypingColor.h"
#include "editor/typing/UserButtonKeys.h"

#include <QObject>

class Document;
class Frame;
class QPoint;
class QTimer;

/// Hands the events of the document's text control to its behaviours, in their order, marks the document as
/// changed and shows the line in the status bar. Nothing in it fetches the whole text: a key costs the same
/// in any text.
class TypingEngine : public QObject {
    Q_OBJECT

  public:
    /// parent is the document's window, or something in it.
    TypingEngine(Frame& frame, Document& document, QTimer& Timer1, QObject* parent);

    /// A key that yields a character, by its code; 0 comes back when nothing is left to be typed.
    void txtinput_KeyPress(int& KeyAscii);

    AutoFill& Lists() { return autoFill_; }

  private:
    void txtInput_Change();
    void txtInput_GotFocus();
    void txtInput_DblClick();
    void txtInput_KeyDown(int& KeyCode, int Shift);
    void txtInput_MouseUp(int Button, QPoint at);

    /// A row was picked in the auto-fill list: it is the active document's.
    void TakePickedRow();
    void ShowLinePosition();

    Frame& frame_;
    Document& document_;
    AutoFill autoFill_;
    TypingColor color_;
    AutoFillKeys listKeys_;
    TagCloser tagCloser_;
    EntityTyping entities_;
    UserButtonKeys buttonKeys_;
};
