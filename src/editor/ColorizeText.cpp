// The colouring pass: writes a plain HTML text, coloured, in one step.
#include "editor/ColorizeText.h"

#include "editor/Document.h"
#include "editor/EditorState.h"
#include "editor/Frame.h"
#include "editor/WriteColoredText.h"
#include "platform/RichTextBox.h"

namespace {

const QString textWord = QStringLiteral("\\cf1 ");

/// Keeps the user's keys out of the control for as long as it lives.
class InputOff {
  public:
    explicit InputOff(RichTextBox& box) : box_(box) { box_.SetEnabled(false); }
    ~InputOff() { box_.SetEnabled(true); }
    InputOff(const InputOff&) = delete;
    InputOff& operator=(const InputOff&) = delete;

  private:
    RichTextBox& box_;
};

/// One piece goes out: the callee may change it, and the pass needs its text unchanged.
void Write(Frame& frame, QStringView piece, const QString& colorWord) {
    QString copy = piece.toString();
    WriteColoredText(frame, copy, colorWord, false);
}

/// Writes the tags and what stands between them. Positions count from 1, as the rules below are told; last is
/// where the last tag written ends, 0 before the first tag and after an unclosed "<". Returns false where the
/// text holds no "<" at all and the caller kept the document.
bool WriteTags(Frame& frame, const QString& text, bool keepDocument, qsizetype& last) {
    bool first = keepDocument;
    qsizetype pos = 1;
    while (true) {
        pos = text.indexOf(QLatin1Char('<'), pos - 1) + 1;
        if (pos == 0)
            return !first;
        if (pos < last) {
            // This "<" lies inside the tag just written.
            pos = last + 1;
            continue;
        }
        const auto between = QStringView(text).mid(last, pos - last - 1);
        last = text.indexOf(QLatin1Char('>'), pos - 1) + 1;
        if (last == 0)
            return true;
        const auto tag = QStringView(text).mid(pos - 1, last - pos + 1);
        Write(frame, between, textWord);
        Write(frame, tag, TagColorCode(tag));
        first = false;
        ++pos;
    }
}

} // namespace

void ColorizeText(Frame& frame, QString& text, bool& keepDocument, bool caretToTop) {
    EscapeBackslashes(text);
    EscapeOpenBraces(text);
    EscapeCloseBraces(text);
    auto& state = frame.State<EditorState>();
    state.RtfFlushNow = false;
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    RichTextBox& txtInput = document->txtInput();
    if (!keepDocument)
        txtInput.SetText(QString());
    const InputOff off(txtInput);
    state.RtfBuffer.reserve(state.RtfBuffer.size() + text.size() + text.size() / 4);

    qsizetype last = 0;
    if (!WriteTags(frame, text, keepDocument, last)) {
        state.RtfFlushNow = true;
        WriteColoredText(frame, text, textWord, false);
        keepDocument = false;
        return;
    }
    state.RtfFlushNow = true;
    // An unclosed "<" left last at 0: the whole text follows what was written already.
    QString tail = textWord;
    tail += QStringView(text).mid(last);
    WriteColoredText(frame, tail, QString(), false);
    if (caretToTop)
        txtInput.SetSelStart(0);
}

void ColorizeText(Frame& frame, const QString& text, bool keepDocument, bool caretToTop) {
    QString copy = text;
    ColorizeText(frame, copy, keepDocument, caretToTop);
}
