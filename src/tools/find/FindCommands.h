// The commands that find and replace.
#pragma once

class Frame;

void FillFindCommands(Frame& frame);
/// Shows the dialog as a window of its own, at the tab that was asked for last.
void tb_find_Click(Frame& frame);
