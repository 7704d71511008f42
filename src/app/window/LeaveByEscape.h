// The way out of a strip by the keyboard.
#pragma once

class Frame;
class QWidget;

/// Esc in a control gives the focus back to the text of the active document; with none open nothing happens.
void LeaveByEscape(QWidget& control, Frame& frame);
