// The road back from a tag to its dialog.
#pragma once

#include <QString>

class Frame;

/// Selects the tag around the caret of the active document and opens its dialog, if the table of forms has
/// one for it. A caret outside any tag, and a "<" without a ">" behind it, change nothing.
void EditTag(Frame& frame);

/// Opens the dialog of a tag (with its angle brackets), filled in, and takes the selected tag out of the
/// active document where the dialog's OK is to write it anew.
void FillTagDialog(Frame& frame, const QString& tag);

/// Fills the row of the Edit menu's "Edit Tag", mnuEditTag.
void FillEditTagCommand(Frame& frame);
