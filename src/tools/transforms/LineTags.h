// The commands that mark the lines of a selection with tags.
#pragma once

class Frame;

/// Registers mnuAddBreaks ("<BR>" at the end of each line of the selection but the last) and mnuAddLi ("<LI>"
/// at the start of each but the first). Both write plain text and say "Finished!", with nothing selected too;
/// with no document open they return at once.
void FillLineTagCommands(Frame& frame);
