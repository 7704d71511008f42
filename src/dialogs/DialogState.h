// Program-wide values of the dialogs.
#pragma once

#include <QString>

struct DialogState {
    /// The folder that file dialogs open in. Opening and saving change it, the tag dialogs only read it.
    QString LastDir;
    /// The tag that the Body or image dialog wrote last, and that it did: the wizard reads the two.
    QString LastBuiltTag;
    bool TagBuilt = false;

    void TellBuilt(const QString& tag) {
        LastBuiltTag = tag;
        TagBuilt = true;
    }
};
