// The Help menu and the help key.
#pragma once

class Frame;
class QWidget;

/// Registers mnuMainHelp and mnuAbout.
void FillHelpCommands(Frame& frame);

/// Binds F1 to the help, everywhere in the program: in the text, in menus and in dialogs, modal ones
/// included. It is bound for as long as the window lives.
void BindHelpKey(QWidget& window, Frame& frame);

/// Opens the program's help file at the page about a widget; without one, or where none is about it, at the
/// first page. Where the help file is missing the status bar tells it.
void ShowHelp(Frame& frame, const QWidget* about = nullptr);
/// Shows the start screen again as the About box; a click on it closes it.
void mnuAbout_Click(Frame& frame);
