// The command that takes the tags out of a selection, or out of the whole document.
#pragma once

class Frame;

/// Asks first; the text between the tags keeps its colours. There is no way back: undo ends here. With no
/// document open it returns at once.
void mnuRemoveTags_Click(Frame& frame);
