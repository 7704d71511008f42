// The colouring pass: writes a plain HTML text, coloured, in one step.
#pragma once

#include <QString>

class Frame;

/// Writes text at the selection of the active document (keepDocument) or in place of all of its text. text
/// comes back escaped; keepDocument comes back false where it was true and the text holds no "<". caretToTop
/// puts the caret at position 0 at the end, but for that one case. Knows tags only as what lies between "<"
/// and the next ">"; an unclosed "<" after a tag writes the whole text once more.
void ColorizeText(Frame& frame, QString& text, bool& keepDocument, bool caretToTop);

/// The same for callers that need nothing back.
void ColorizeText(Frame& frame, const QString& text, bool keepDocument, bool caretToTop);
