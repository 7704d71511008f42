// The Help menu and the help key.
#pragma once

class Frame;
class QWidget;

/// Registers mnuMainHelp and mnuAbout.
void FillHelpCommands(Frame& frame);

/// Binds F1 to the help, everywhere in the program but in a modal dialog.
void BindHelpKey(QWidget& window, Frame& frame);

/// Opens the program's help file.
void ShowHelp(Frame& frame);
/// Shows the start screen again as the About box; a click on it closes it.
void mnuAbout_Click(Frame& frame);
