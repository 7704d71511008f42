// The commands that rewrite the active document in one sweep.
#pragma once

class Frame;

/// Registers the four conversions of line ends, mnuAddBreaks, mnuAddLi, mnuRemoveTags and mnuInsertImageMap.
void FillTransformCommands(Frame& frame);
