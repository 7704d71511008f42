// Program-wide values of the tag builders.
#pragma once

#include <QString>

struct BuilderState {
    /// The folder that file dialogs open in. Opening and saving change it, the tag dialogs only read it.
    QString LastDir;
    /// The tag that the Body or image dialog wrote last, and that it did: the wizard reads the two.
    QString LastBuiltTag;
    bool TagBuilt = false;
    /// The filter that the shared file dialog was given last; a browse that sets none of its own keeps it.
    QString FileDialogFilter;
    int FileDialogFilterIndex = 1;
};
