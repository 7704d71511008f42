// The wizard's wait for a dialog that builds a tag.
#pragma once

#include <QString>

class Frame;
class QWidget;

/// Shows a dialog by its command and waits, with the program alive, until one of the tag dialogs has told
/// what it built (DialogState): it need not be the one that was shown. One of that name that is closed
/// without OK counts as having built nothing, and so does a command that shows none. The wait ends as well
/// when the page goes. Afterwards TagBuilt is false.
void WaitForTag(Frame& frame, const QWidget& page, const QString& command, const QString& form);
