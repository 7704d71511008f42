// The folders that file dialogs offer.
#pragma once

#include <QStringList>

class Frame;

/// Those of the open documents, then those of the recent files, each once; none with FileDialogFolders off.
/// No file is looked at.
QStringList DialogFolders(Frame& frame);
