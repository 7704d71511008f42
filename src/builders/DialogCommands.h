// The commands that show the tag dialogs.
#pragma once

class Frame;

/// Menu entries and toolbar buttons that do nothing but show a dialog.
void FillDialogCommands(Frame& frame);
