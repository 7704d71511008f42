// The keys of the text control: virtual key codes, the characters that keys yield, and the keys that edit and
// move.
#pragma once

#include <optional>
#include <Qt>

class QKeyEvent;

/// What an editing or moving key does.
struct EditingKey {
    enum class Action {
        Message,
        Undo,
        Redo,
        Cut,
        Copy,
        Paste,
        SelectAll,
        DeleteWordBack,
        DeleteWord,
        Delete
    };
    Action action;
    unsigned int message = 0; ///< the control's own command, for Action::Message
};

/// The virtual key code of a key: 27 Esc, 37 to 40 the arrows, 48 to 57 the digits whatever they type; 0 if
/// it has none.
int VirtualKey(const QKeyEvent& event);
/// The Qt key of a virtual key code; 0 if it has none.
int KeyOfVirtual(int code);
/// 1 for Shift, 2 for Ctrl, 4 for Alt.
int ShiftState(Qt::KeyboardModifiers modifiers);
/// The code of the control character that a key yields: 8, 9, 13, 27, and 1 to 26 for Ctrl and a letter.
std::optional<int> ControlCharacter(int key, Qt::KeyboardModifiers modifiers);
/// True if the modifiers leave a key its text; those of menus and commands don't.
bool YieldsText(Qt::KeyboardModifiers modifiers);
/// The editing or moving that a key stands for in a text box; nothing for other keys.
std::optional<EditingKey> EditingKeyOf(int key, Qt::KeyboardModifiers modifiers);
