// Ctrl and a digit run the user's own buttons.
#pragma once

class Frame;

class UserButtonKeys {
  public:
    explicit UserButtonKeys(Frame& frame) : frame_(frame) {}

    /// 1 is the first button, 0 the tenth.
    void KeyDown(int KeyCode, int Shift);

  private:
    Frame& frame_;
};
