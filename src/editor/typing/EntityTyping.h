// Typed letters become character entities.
#pragma once

class RichTextBox;
class Settings;

class EntityTyping {
  public:
    EntityTyping(const Settings& store, RichTextBox& text) : store_(store), text_(text) {}

    /// Writes the entity of a letter that has one, plain, while ConvertChar is 1: KeyAscii is then 0. Inside
    /// tags too.
    void KeyPress(int& KeyAscii);

  private:
    const Settings& store_;
    RichTextBox& text_;
};
