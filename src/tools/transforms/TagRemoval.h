// Which stretches of a text Remove Tags takes out, and where the selection then stands.
#pragma once

#include "platform/text/TextBuffer.h"

#include <QStringView>
#include <vector>

struct TagRemoval {
    /// In their order, none overlaps another; positions in the text as it is before.
    std::vector<CharRange> gone;
    /// What is selected afterwards, in the text that is left: the removal finds tags by the search that
    /// selects what it finds.
    int selStart;
    int selLength;
    bool operator==(const TagRemoval&) const = default;
};

/// The tags of a selection, or with nothing selected those of the whole text. Positions count from 0. One
/// pass over the text.
///
/// A tag runs from the first "<" that is left to the first ">", and with one removed the search goes on in
/// the text as it then is; it ends where either is missing, and where the ">" comes first. In a selection the
/// search for ">" goes on from the place where the last one stood, which by then lies further on in the text:
/// a short tag behind a long one takes more than itself with it. That is meant.
TagRemoval TagsToRemove(QStringView text, int selStart, int selLength);
