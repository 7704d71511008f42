// The commands of this folder.
#pragma once

class Frame;

/// Fills the frame's commands with those of every room of this folder, but for those that only show a form.
void FillToolCommands(Frame& frame);
