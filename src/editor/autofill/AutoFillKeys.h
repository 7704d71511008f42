// The keys that open, close and use the auto-fill list while the keyboard is in the text.
#pragma once

class AutoFill;
class AutoFillList;
class Document;
class Frame;

class AutoFillKeys {
  public:
    AutoFillKeys(Frame& frame, Document& document, AutoFill& lists);

    /// A blank opens a list or takes the open one away, Backspace and "=" take it away, Enter takes its row:
    /// KeyAscii is then 0. Returns true when nothing else is to be done about the key.
    bool KeyPress(int& KeyAscii);
    /// Esc and Right take the list away, Up and Down go into it: KeyCode is then 0.
    void KeyDown(int& KeyCode);
    /// Writes the row that was picked in the list. Returns true when nothing else is to be done about it.
    bool RowPicked();

  private:
    bool Blank();
    bool TakeRow(int& KeyAscii);
    void GoIntoList(int& KeyCode);

    Frame& frame_;
    Document& document_;
    AutoFill& lists_;
    AutoFillList& shared_;
};
