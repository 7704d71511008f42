// What edits the text that the control holds, and where its selection stands, all in bytes.
#pragma once

#include "platform/text/TextBuffer.h"
#include "platform/values/CharacterSet.h"

#include <functional>
#include <QByteArray>
#include <vector>

class QMimeData;
class StyleRuns;
class TextColors;

class TextEditing {
  public:
    TextEditing(QsciScintillaBase& control, TextBuffer& buffer, TextColors& colors)
        : control_(control), buffer_(buffer), colors_(colors) {}

    ByteRange Selection() const;
    /// The end of the selection that keys move.
    int Caret() const;
    void Select(int anchor, int caret);
    /// Takes the selection away.
    void MoveCaret(int byte);

    /// Replaces a stretch as one undo step; the caret stands behind what came in.
    void Replace(ByteRange range, const QByteArray& text, const StyleRuns& styles);
    /// Replaces stretches, in order and apart, by one text as one undo step; it takes the style of each
    /// stretch's first byte. The caret stands behind the last; without a stretch it stays.
    void ReplaceEach(const std::vector<ByteRange>& stretches, const QByteArray& text);
    /// Replaces the selection, in the colour at the caret.
    void ReplaceSelection(const QByteArray& text);
    /// The same for what is typed: with nothing selected, what is typed in a row is one undo step.
    void Type(const QByteArray& text);
    /// What is typed from here on is an undo step of its own.
    void EndTyping();

    /// The characters that the document holds: all that comes in by an assignment, a key or a paste is held
    /// to them.
    CharacterSet Holds() const { return holds_; }
    void SetHolds(CharacterSet characters) { holds_ = characters; }
    /// A text as the document holds it, in UTF-8.
    QByteArray Held(const QString& text) const { return HeldBy(holds_, text).toUtf8(); }

    /// Text from outside as the document takes it: in its line ends, and with references for what it can't
    /// hold.
    QByteArray Incorporate(const QString& text) const;
    /// Replaces the selection by a text from outside; does nothing where there is none.
    void PasteFrom(const QMimeData* source);

    /// While held, the caret is not brought into view: each look at a place lays its lines out. The last
    /// release shows where it stands.
    void HoldScrolling() { ++scrollHolds_; }
    void ReleaseScrolling();

    /// Carries out what the control has announced; set by the owner, called before and behind each edit.
    std::function<void()> takeIncoming;

  private:
    long Sci(unsigned int message, long wParam = 0, long lParam = 0) const;
    void ShowCaret();

    QsciScintillaBase& control_;
    TextBuffer& buffer_;
    TextColors& colors_;
    CharacterSet holds_ = CharacterSet::CodePage1252;
    int scrollHolds_ = 0;
    bool caretMovedInHold_ = false;
};
