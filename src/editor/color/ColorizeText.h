// The colouring pass: writes a plain HTML text, coloured, in one step.
#pragma once

#include <QString>

class Frame;

/// Yes writes at the selection of the document, No in place of all of its text.
enum class KeepDocument { No, Yes };
/// Yes puts the caret at position 0 at the end, but not where a kept document gets a text without a "<".
enum class CaretToTop { No, Yes };

struct ColorizedText {
    QString text; ///< escaped
    /// As it was asked for, but No where a kept document got a text without a "<".
    KeepDocument keepDocument;
    bool operator==(const ColorizedText&) const = default;
};

/// Writes text into the active document. Knows tags only as what lies between "<" and the next ">"; an
/// unclosed "<" after a tag writes the whole text once more. Hand over a long text with std::move: the pass
/// then makes no copy of it.
ColorizedText ColorizeText(Frame& frame, QString text, KeepDocument keepDocument, CaretToTop caretToTop);
