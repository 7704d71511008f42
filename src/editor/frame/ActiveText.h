// The text that commands work on.
#pragma once

class Frame;
class RichTextBox;

/// The text control of the active document; null with none open.
RichTextBox* ActiveText(Frame& frame);
