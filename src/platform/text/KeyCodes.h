// The numbers by which the text's key events name keys.
#pragma once

/// Character codes, of KeyAscii.
namespace KeyAsciiOf {
constexpr int Backspace = 8;
constexpr int Enter = 13;
constexpr int Blank = 32;
constexpr int Equals = 61;
constexpr int ClosingBracket = 62;
} // namespace KeyAsciiOf

/// Virtual key codes, of KeyCode.
namespace KeyCodeOf {
constexpr int Escape = 27;
constexpr int Up = 38;
constexpr int Right = 39;
constexpr int Down = 40;
constexpr int Digit0 = 48;
constexpr int Digit9 = 57;
constexpr int Keypad0 = 96;
constexpr int KeypadPlus = 107;
constexpr int KeypadMinus = 109;
constexpr int Plus = 187; ///< the key of "=" and "+"
constexpr int Minus = 189;
} // namespace KeyCodeOf

/// Of Shift: Ctrl and no other.
constexpr int CtrlAlone = 2;
