// The colours of the text that the control holds: one style for each colour, and a journal by which undo and
// redo bring colours back.
#pragma once

#include "platform/text/ColorNumber.h"
#include "platform/text/RichTextColors.h"
#include "platform/text/TextBuffer.h"
#include "platform/text/TextStretches.h"

#include <optional>

/// It hears of each insertion and deletion before it happens, as the control tells of them, and colours what
/// came in as soon as it stands there.
class TextColors {
  public:
    TextColors(QsciScintillaBase& control, TextBuffer& buffer) : control_(control), buffer_(buffer) {}

    /// The style of a colour; a colour that is new gets one.
    int StyleFor(ColorNumber color);
    ColorNumber ColorOf(int style) const { return styles_.ColorOf(style); }
    /// All styles in use are those below this number.
    int End() const { return styles_.End(); }
    /// Gives the control the colours of all styles anew.
    void ShowStyles();

    int StyleAt(int byte) const;
    /// The style that text typed at a byte takes over: that of the character before it.
    int StyleBefore(int byte) const;
    StyleRuns StylesOf(ByteRange range) const;
    void SetStyles(int start, const StyleRuns& styles);

    /// The style of a selection's first character; without a selection that of what is typed or assigned
    /// there next.
    int StyleAtCaret(ByteRange selection) const;
    /// What is typed or assigned at a byte next takes this style, until the caret moves away but by an edit.
    void KeepForTyping(int style, int byte);
    void ForgetTyping() { typingStyle_.reset(); }
    void CaretStandsAt(ByteRange selection, bool movedByEdit);

    /// The styles of the insertion that comes next, where they are not that of its place.
    void NextComes(StyleRuns styles) { nextStyles_ = std::move(styles); }

    enum class Cause { Edit, Undo, Redo };
    void BeforeInsertion(ByteRange range, Cause cause);
    void BeforeDeletion(ByteRange range, Cause cause);
    /// Counts and colours what the control has announced, once it holds it. Returns the stretch that came in;
    /// nothing where there was none.
    std::optional<ByteRange> TakeIncoming();
    /// Undo goes back to here at most.
    void ForgetUndo() { undoColors_.Clear(); }

  private:
    /// Text that the control has announced and not yet been seen to hold, with the styles it is to have. A
    /// deletion leaves an empty one: two stretches met there.
    struct Incoming {
        ByteRange range;
        StyleRuns styles;
    };

    long Sci(unsigned int message, long wParam = 0, long lParam = 0) const;
    void ShowStyle(int style);
    /// A copy of the bytes and what the control keeps beside them; what lies outside the text is left out.
    CellText CellsOf(int start, int end) const;
    /// Keeps stretches short where an edit made two of them meet.
    void MendStretches(int seam);
    /// Tells the control that no text waits for its styles. It takes all text behind an edit or the last
    /// styling for unstyled, asks for styles at each painting, and compares the lines in view byte by byte
    /// with what it had laid out: work that grows with the length of a line at each blink of the caret.
    void AllIsStyled();
    /// The styles that a journal entry of undo or redo holds.
    static StyleRuns Taken(StyleRuns* entry);

    QsciScintillaBase& control_;
    TextBuffer& buffer_;
    StyleTable styles_;
    UndoColors undoColors_;
    std::optional<Incoming> incoming_;
    std::optional<StyleRuns> nextStyles_;
    std::optional<int> typingStyle_;
    int typingCaret_ = 0;
};
