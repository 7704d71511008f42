// What the user sets of the editor in the Options dialog.
#pragma once

#include "platform/store/SettingsKeys.h"
#include "platform/text/ColorNumber.h"

#include <array>
#include <QString>

/// Read when the program starts, changed by the dialog, kept when the program ends.
struct EditorOptions {
    /// Entries of an RTF \colortbl: slot 0 text, 1 tags, 2 links, 3 images, 4 embedded objects, 5 comments.
    std::array<QString, 6> ColorTable{
        Keys::EdTextColor[0].standard, Keys::EdTextColor[1].standard, Keys::EdTextColor[2].standard,
        Keys::EdTextColor[3].standard, Keys::EdTextColor[4].standard, Keys::EdTextColor[5].standard,
    };
    /// Background of the text.
    ColorNumber Background2 = Keys::Background2.StandardNumber();
    /// Auto-fill lists are on.
    bool UseAutoFill = Keys::UseAutoFill.StandardFlag();
};
