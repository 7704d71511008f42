// What still comes to windows that a modal one blocks, and must not.
#pragma once

class QWidget;

/// Whatever button of the window is pressed at the moment when a modal window blocks it stands up again: its
/// release would go to nobody, and it would stay lit. It is no click.
///
/// In all windows of the program, a button that was pressed by its key, which clicks a moment later, waits
/// with its click until no modal window blocks it any more; and the shortcuts of a blocked window do nothing,
/// which they would for as long as the desktop has not made the modal one active. A form or document that
/// closed then would take the box with it that it owns, or be missed by who asked.
void KeepShutOutWindowsStill(QWidget& window);
