// Buttons that are held down while a box comes up.
#pragma once

class QWidget;

/// Whatever button of a window is pressed at the moment when a modal window blocks it stands up again: its
/// release would go to nobody, and it would stay lit. It is no click.
void ReleaseButtonsWhenBlocked(QWidget& window);
