// The File menu's commands on files, and Insert Contents.
#pragma once

#include "editor/frame/SaveResult.h"

#include <QString>

class Frame;

/// Registers mnuOpen, mnuSave, mnuSaveAs, mnuClose, mnuExit, mnuFileArray_0 to 7 and mnuInsertContents.
void FillFileCommands(Frame& frame);

/// Lets the user pick files and opens each in a window of its own.
void mnuOpen_Click(Frame& frame);
/// Writes the active document to its file; one that has none goes through mnuSaveAs_Click. A file that others
/// changed is asked about. A document that can't be written stays modified; the status bar tells why.
SaveResult mnuSave_Click(Frame& frame);
/// Writes the active document to a file that the user picks, which is its file from then on.
SaveResult mnuSaveAs_Click(Frame& frame);
/// Puts the text of a file that the user picks in place of the selection, uncoloured.
void mnuInsertContents_Click(Frame& frame);
