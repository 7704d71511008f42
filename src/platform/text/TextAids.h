// What the control draws beside the text: the current line, marks on stretches, line numbers.
#pragma once

#include "platform/text/ColorNumber.h"
#include "platform/text/TextBuffer.h"

#include <span>

class QsciScintillaBase;

/// Drawn, and no more: text, colours, undo, what is copied and what prints know nothing of it. All is off at
/// first. The colours come from the control's background, so that they are legible on any.
class TextAids {
  public:
    TextAids(QsciScintillaBase& control, const TextBuffer& buffer) : control_(control), buffer_(buffer) {}

    void ShowCurrentLine(bool on);
    void ShowLineNumbers(bool on);
    /// Takes new marks in place of the old ones. They move with the text, and grow by what is typed in them.
    void Mark(std::span<const CharRange> stretches);
    /// Whether the character at a position (0-based) is marked.
    bool IsMarked(int position) const;
    void Unmark();
    /// Leaves the marks above the first line in view: to take those away paints the whole view anew.
    void UnmarkInView();

    /// The look of the text changed, in its font or its background.
    void SuitLook(ColorNumber background);
    /// The margin of the line numbers is as wide as the last one.
    void SuitLength();

  private:
    long Sci(unsigned int message, long wParam = 0, long lParam = 0) const;
    void UnmarkFrom(int byte);

    QsciScintillaBase& control_;
    const TextBuffer& buffer_;
    bool numbers_ = false;
    int digits_ = 0;
};

/// A colour between two, so many percent of the way from a background to black, or to white from a dark one.
ColorNumber AwayFrom(ColorNumber background, int percent);
