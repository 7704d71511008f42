// Buttons that are held down while a box comes up.
#pragma once

class QWidget;

/// Whatever button of a window is pressed at the moment when a modal window blocks it stands up again: its
/// release would go to nobody, and it would stay lit. It is no click. One that was pressed by its key, which
/// clicks a moment later, waits with its click until no modal window blocks it any more: a form that closed
/// before would take the box that it owns with it. This holds for all windows of the program.
void ReleaseButtonsWhenBlocked(QWidget& window);
