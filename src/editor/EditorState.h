// Program-wide values of the source editor.
#pragma once

#include <array>
#include <QString>

struct EditorState {
    /// The colour table: entries of an RTF \colortbl, slot 0 text, 1 tags, 2 links, 3 images, 4 embedded
    /// objects, 5 comments. The settings call them EdTextColor0 to 5; this is that array.
    std::array<QString, 6> ColorTable{
        QStringLiteral("\\red0\\green0\\blue0"),     QStringLiteral("\\red0\\green0\\blue255"),
        QStringLiteral("\\red0\\green128\\blue0"),   QStringLiteral("\\red255\\green0\\blue0"),
        QStringLiteral("\\red255\\green127\\blue0"), QStringLiteral("\\red128\\green128\\blue128"),
    };
    /// The coloured pieces gathered so far, shared by all document windows.
    QString RtfBuffer;
    /// While true every piece goes straight into the control.
    bool RtfFlushNow = false;

    /// Auto-fill lists are on.
    bool UseAutoFill = true;
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
    int Background2 = 16777215;
};
