// Program-wide values of the source editor.
#pragma once

#include "platform/SettingsKeys.h"

#include <array>
#include <QString>

struct EditorState {
    /// The colour table: entries of an RTF \colortbl, slot 0 text, 1 tags, 2 links, 3 images, 4 embedded
    /// objects, 5 comments. The settings call them EdTextColor0 to 5; this is that array.
    std::array<QString, 6> ColorTable{
        Keys::EdTextColor[0].standard, Keys::EdTextColor[1].standard, Keys::EdTextColor[2].standard,
        Keys::EdTextColor[3].standard, Keys::EdTextColor[4].standard, Keys::EdTextColor[5].standard,
    };
    /// The coloured pieces gathered so far, shared by all document windows.
    QString RtfBuffer;
    /// While true every piece goes straight into the control.
    bool RtfFlushNow = false;

    /// Auto-fill lists are on.
    bool UseAutoFill = Keys::UseAutoFill.StandardFlag();
    bool DropDownOpen = false;
    bool DropDownFollowsCaret = false;
    bool ListPickPending = false;
    int ListReturnCaret = 0;

    /// User buttons: captions are the buttons' own; only 0 to 29 are used.
    std::array<QString, 65> FirstBut;
    std::array<QString, 65> SecondBut;
    std::array<QString, 65> ButCap;

    /// True while the last tab of the mode strip was "Design".
    bool ComingFromDesign = false;

    /// Background of the editor, a colour number.
    int Background2 = Keys::Background2.StandardNumber();
};
