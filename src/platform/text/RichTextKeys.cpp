#include "platform/text/RichTextKeys.h"

#include <QKeyEvent>
#include <Qsci/qsciscintillabase.h>

namespace {

using Base = QsciScintillaBase;

struct VirtualRow {
    int key;
    int code;
};

constexpr VirtualRow virtualRows[] = {
    {Qt::Key_Backspace, 8},    {Qt::Key_Tab, 9},           {Qt::Key_Backtab, 9},
    {Qt::Key_Return, 13},      {Qt::Key_Enter, 13},        {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},     {Qt::Key_Alt, 18},          {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},    {Qt::Key_Escape, 27},       {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},      {Qt::Key_PageDown, 34},     {Qt::Key_End, 35},
    {Qt::Key_Home, 36},        {Qt::Key_Left, 37},         {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},       {Qt::Key_Down, 40},         {Qt::Key_Print, 44},
    {Qt::Key_Insert, 45},      {Qt::Key_Delete, 46},       {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},    {Qt::Key_ScrollLock, 145},  {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},      {Qt::Key_Equal, 187},       {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},      {Qt::Key_Less, 188},        {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189}, {Qt::Key_Period, 190},      {Qt::Key_Greater, 190},
    {Qt::Key_Slash, 191},      {Qt::Key_Question, 191},    {Qt::Key_QuoteLeft, 192},
    {Qt::Key_AsciiTilde, 192}, {Qt::Key_BracketLeft, 219}, {Qt::Key_BraceLeft, 219},
    {Qt::Key_Backslash, 220},  {Qt::Key_Bar, 220},         {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221}, {Qt::Key_Apostrophe, 222},  {Qt::Key_QuoteDbl, 222},
    {Qt::Key_Exclam, 49},      {Qt::Key_At, 50},           {Qt::Key_NumberSign, 51},
    {Qt::Key_Dollar, 52},      {Qt::Key_Percent, 53},      {Qt::Key_AsciiCircum, 54},
    {Qt::Key_Ampersand, 55},   {Qt::Key_Asterisk, 56},     {Qt::Key_ParenLeft, 57},
    {Qt::Key_ParenRight, 48},
};

/// On the keypad a digit and an operator are keys of their own.
int KeypadCode(int key) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return 96 + key - Qt::Key_0;
    switch (key) {
    case Qt::Key_Asterisk:
        return 106;
    case Qt::Key_Plus:
        return 107;
    case Qt::Key_Minus:
        return 109;
    case Qt::Key_Period:
    case Qt::Key_Comma:
        return 110;
    case Qt::Key_Slash:
        return 111;
    default:
        return 0;
    }
}

struct MoveRow {
    int key;
    bool ctrl;
    unsigned int move;
    unsigned int extend;
};

constexpr MoveRow moveRows[] = {
    {Qt::Key_Left, false, Base::SCI_CHARLEFT, Base::SCI_CHARLEFTEXTEND},
    {Qt::Key_Right, false, Base::SCI_CHARRIGHT, Base::SCI_CHARRIGHTEXTEND},
    {Qt::Key_Up, false, Base::SCI_LINEUP, Base::SCI_LINEUPEXTEND},
    {Qt::Key_Down, false, Base::SCI_LINEDOWN, Base::SCI_LINEDOWNEXTEND},
    {Qt::Key_Home, false, Base::SCI_HOMEDISPLAY, Base::SCI_HOMEDISPLAYEXTEND},
    {Qt::Key_End, false, Base::SCI_LINEENDDISPLAY, Base::SCI_LINEENDDISPLAYEXTEND},
    {Qt::Key_PageUp, false, Base::SCI_PAGEUP, Base::SCI_PAGEUPEXTEND},
    {Qt::Key_PageDown, false, Base::SCI_PAGEDOWN, Base::SCI_PAGEDOWNEXTEND},
    {Qt::Key_Left, true, Base::SCI_WORDLEFT, Base::SCI_WORDLEFTEXTEND},
    {Qt::Key_Right, true, Base::SCI_WORDRIGHT, Base::SCI_WORDRIGHTEXTEND},
    {Qt::Key_Up, true, Base::SCI_PARAUP, Base::SCI_PARAUPEXTEND},
    {Qt::Key_Down, true, Base::SCI_PARADOWN, Base::SCI_PARADOWNEXTEND},
    {Qt::Key_Home, true, Base::SCI_DOCUMENTSTART, Base::SCI_DOCUMENTSTARTEXTEND},
    {Qt::Key_End, true, Base::SCI_DOCUMENTEND, Base::SCI_DOCUMENTENDEXTEND},
};

struct ActionRow {
    int key;
    Qt::KeyboardModifiers::Int modifiers;
    EditingKey::Action action;
};

constexpr Qt::KeyboardModifiers::Int shift = Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers::Int ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers::Int alt = Qt::AltModifier;

constexpr ActionRow actionRows[] = {
    {Qt::Key_Delete, 0, EditingKey::Action::Delete},
    {Qt::Key_Delete, shift, EditingKey::Action::Cut},
    {Qt::Key_Delete, ctrl, EditingKey::Action::DeleteWord},
    {Qt::Key_Backspace, ctrl, EditingKey::Action::DeleteWordBack},
    {Qt::Key_Backspace, alt, EditingKey::Action::Undo},
    {Qt::Key_Backspace, alt | shift, EditingKey::Action::Redo},
    {Qt::Key_Insert, ctrl, EditingKey::Action::Copy},
    {Qt::Key_Insert, shift, EditingKey::Action::Paste},
    {Qt::Key_Z, ctrl, EditingKey::Action::Undo},
    {Qt::Key_Z, ctrl | shift, EditingKey::Action::Redo},
    {Qt::Key_Y, ctrl, EditingKey::Action::Redo},
    {Qt::Key_X, ctrl, EditingKey::Action::Cut},
    {Qt::Key_C, ctrl, EditingKey::Action::Copy},
    {Qt::Key_V, ctrl, EditingKey::Action::Paste},
    {Qt::Key_A, ctrl, EditingKey::Action::SelectAll},
    {Qt::Key_Cut, 0, EditingKey::Action::Cut},
    {Qt::Key_Copy, 0, EditingKey::Action::Copy},
    {Qt::Key_Paste, 0, EditingKey::Action::Paste},
    {Qt::Key_Undo, 0, EditingKey::Action::Undo},
    {Qt::Key_Redo, 0, EditingKey::Action::Redo},
};

} // namespace

int VirtualKey(const QKeyEvent& event) {
    const int key = event.key();
    if ((event.modifiers() & Qt::KeypadModifier) != 0) {
        if (const int code = KeypadCode(key))
            return code;
    }
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z))
        return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return 112 + key - Qt::Key_F1;
#ifdef Q_OS_LINUX
    // The row of digits keeps its codes on layouts where it types something else; 10 to 19 are its scan
    // codes.
    const quint32 scan = event.nativeScanCode();
    if (scan >= 10 && scan <= 19)
        return scan == 19 ? 48 : static_cast<int>(scan) + 39;
#endif
    for (const VirtualRow& row : virtualRows) {
        if (row.key == key)
            return row.code;
    }
    return 0;
}

int KeyOfVirtual(int code) {
    if ((code >= 48 && code <= 57) || (code >= 65 && code <= 90))
        return code;
    if (code >= 112 && code <= 135)
        return Qt::Key_F1 + code - 112;
    for (const VirtualRow& row : virtualRows) {
        if (row.code == code)
            return row.key;
    }
    return 0;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) | (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

std::optional<int> ControlCharacter(int key, Qt::KeyboardModifiers modifiers) {
    modifiers &= ~Qt::KeypadModifier;
    const bool plain = (modifiers & ~Qt::ShiftModifier) == Qt::NoModifier;
    if (plain && key == Qt::Key_Backspace)
        return 8;
    if (modifiers == Qt::NoModifier && key == Qt::Key_Tab)
        return 9;
    if (plain && (key == Qt::Key_Return || key == Qt::Key_Enter))
        return 13;
    if (plain && key == Qt::Key_Escape)
        return 27;
    const bool ctrlOnly = (modifiers & ~Qt::ShiftModifier) == Qt::ControlModifier;
    if (ctrlOnly && key >= Qt::Key_A && key <= Qt::Key_Z)
        return key - Qt::Key_A + 1;
    return std::nullopt;
}

bool YieldsText(Qt::KeyboardModifiers modifiers) {
    const bool ctrlHeld = modifiers.testFlag(Qt::ControlModifier);
    const bool altHeld = modifiers.testFlag(Qt::AltModifier);
    if (modifiers.testFlag(Qt::MetaModifier))
        return false;
#ifdef Q_OS_MACOS
    return !ctrlHeld;
#else
    // Both together are how some systems tell of AltGr.
    return ctrlHeld == altHeld;
#endif
}

std::optional<EditingKey> EditingKeyOf(int key, Qt::KeyboardModifiers modifiers) {
    modifiers &= ~Qt::KeypadModifier;
    for (const ActionRow& row : actionRows) {
        if (row.key == key && modifiers.toInt() == row.modifiers)
            return EditingKey{row.action};
    }
    const bool withCtrl = modifiers.testFlag(Qt::ControlModifier);
    const bool withShift = modifiers.testFlag(Qt::ShiftModifier);
    if ((modifiers & ~(Qt::ControlModifier | Qt::ShiftModifier)) != Qt::NoModifier)
        return std::nullopt;
    for (const MoveRow& row : moveRows) {
        if (row.key == key && row.ctrl == withCtrl)
            return EditingKey{EditingKey::Action::Message, withShift ? row.extend : row.move};
    }
    return std::nullopt;
}
