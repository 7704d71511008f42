// The complete style sheet on its way into a document.
#pragma once

#include "editor/color/TagCase.h"

#include <QString>

class Frame;

/// What stands in a head behind its tag: a line end, and the sheet without its last two characters, its own
/// line end, within the STYLE tag. A sheet shorter than that leaves the line end alone.
QString HeadBlock(const QString& sheet, TagCase tagCase);

/// Writes the block behind "<HEAD>", plain; at position 5 where there is none. With something selected only
/// that is searched. Without a document nothing happens.
void AddToHeader(Frame& frame, const QString& sheet);

/// Writes the sheet without its last two characters over the selection, plain. A shorter one writes nothing,
/// and neither does it without a document.
void AddToLocation(Frame& frame, const QString& sheet);
