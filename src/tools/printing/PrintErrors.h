// What the print command says when it fails.
#pragma once

#include "platform/desktop/Prompts.h"

#include <QString>

enum class PrintError {
    None = 0,
    NotANumber = 13,
    FileAccess = 75,
    NothingThere = 91,
    Printer = 482,
};

struct PrintErrorBox {
    QString text;
    QString title;
    MsgIcon icon;
};

/// The box of an error; not for None.
PrintErrorBox BoxOf(PrintError error);
