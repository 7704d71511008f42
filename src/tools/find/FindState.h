// What finding keeps for the whole program, whatever dialog or document is open.
#pragma once

#include <QString>

struct FindState {
    /// The tab that the dialog shows when it is loaded, from 1.
    qint16 StartTab = 1;
};

/// What FindAgain goes by. Nothing stores a text here yet: as long as it is empty, Find Next shows the
/// dialog.
struct FindAgainState {
    static constexpr int Forward = 1;

    QString Text;
    /// Where the caret stood after the last search (0-based).
    int LastCaret = 0;
    bool FirstSearch = true;
    bool MatchCase = false;
    /// Any number but Forward searches towards the start.
    int Direction = Forward;
};
