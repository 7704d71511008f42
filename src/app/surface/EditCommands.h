// The Edit menu: its commands on the text, and which of them are enabled.
#pragma once

#include "platform/text/RichTextBox.h"

class Frame;

/// Registers mEdit_0 (Undo), mEdit_2 to 5 (Cut, Copy, Paste, Delete) and mnuSelectAll.
void FillEditCommands(Frame& frame);

/// An entry of the array mEdit: 0 undo, 2 cut, 3 copy, 4 paste, 5 delete.
void mEdit_Click(Frame& frame, int Index);

/// Enables the five entries by what can be done: just before the menu drops.
void UpdateEditMenu(Frame& frame);

/// Sends a window message to the active control of the active document if that is its text control; beeps if
/// it is another, and does nothing with no document open.
void SendToActiveControl(Frame& frame, RichTextBox::Message message);
