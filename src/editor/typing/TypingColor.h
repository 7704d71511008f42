// Typed text takes the text colour.
#pragma once

class RichTextBox;
class Settings;

class TypingColor {
  public:
    TypingColor(const Settings& store, RichTextBox& text) : store_(store), text_(text) {}

    /// What is typed next has the text colour. A selection keeps its own.
    void KeyPress();

  private:
    const Settings& store_;
    RichTextBox& text_;
};
