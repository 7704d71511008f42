// The colour dialog of the auto-fill lists.
#pragma once

class Frame;

/// Gives the list of colours its "custom": once, when the frame is made.
void FillAutoFillHooks(Frame& frame);
