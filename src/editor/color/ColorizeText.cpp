#include "editor/color/ColorizeText.h"

#include "editor/color/ColoredTags.h"
#include "editor/color/ColorStream.h"
#include "editor/color/WriteColoredText.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "platform/text/UndoAction.h"

#include <utility>

namespace {

constexpr QStringView textWord = u"\\cf1 ";

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

/// What a pass gathers before its one write. With colouring off the pieces are the plain text itself.
class Pieces {
  public:
    Pieces(ColorStream& stream, bool colored) : stream_(stream), colored_(colored) {}
    void Add(QStringView piece, QStringView colorWord) {
        if (colored_)
            stream_.Gather(piece, colorWord);
        else
            plain_ += piece;
    }
    void Reserve(qsizetype more) {
        if (colored_)
            stream_.Reserve(more);
        else
            plain_.reserve(more);
    }
    /// What was gathered with colouring off.
    const QString& Plain() const { return plain_; }

  private:
    ColorStream& stream_;
    QString plain_;
    bool colored_;
};

/// Gathers the tags and what stands between them. Positions count from 1, as the rules below are told; last
/// is where the last tag written ends, 0 before the first tag and after an unclosed "<". Returns false where
/// the text holds no "<" at all and the caller kept the document.
bool GatherTags(Pieces& pieces, const QString& text, KeepDocument keepDocument, qsizetype& last) {
    bool first = keepDocument == KeepDocument::Yes;
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
        pieces.Add(between, textWord);
        pieces.Add(tag, TagColorCode(tag));
        first = false;
        ++pos;
    }
}

/// A pass that is to empty the document first ends there; any other goes on to its end and writes nothing.
ColorizedText PassWithoutDocument(ColorStream& stream, QString text, KeepDocument keepDocument) {
    if (keepDocument == KeepDocument::Yes)
        stream.LetThrough();
    if (!text.contains(u'<'))
        keepDocument = KeepDocument::No;
    return {std::move(text), keepDocument};
}

/// Writes the text in one step. Returns false where the text holds no "<" at all and the caller kept the
/// document: text is then as it went out.
bool WritePass(Frame& frame, Document& document, QString& text, KeepDocument keepDocument) {
    auto& stream = frame.State<ColorStream>();
    // Nothing else runs during a pass, so one look at the setting answers for every piece of it.
    Pieces pieces(stream, WritesColored(frame.Store()));
    pieces.Reserve(text.size() + text.size() / 4);
    qsizetype last = 0;
    const bool tagged = GatherTags(pieces, text, keepDocument, last);
    stream.LetThrough();
    if (!tagged) {
        text = WriteColoredText(frame, &document, std::move(text), textWord);
        return false;
    }
    // The colour word travels inside the last piece. An unclosed "<" left last at 0: then that is the whole
    // text.
    QString tail = pieces.Plain();
    tail += textWord;
    tail += QStringView(text).mid(last);
    WriteColoredText(frame, &document, std::move(tail), {});
    return true;
}

} // namespace

ColorizedText ColorizeText(Frame& frame, QString text, KeepDocument keepDocument, CaretToTop caretToTop) {
    EscapeBackslashes(text);
    EscapeOpenBraces(text);
    EscapeCloseBraces(text);
    auto& stream = frame.State<ColorStream>();
    stream.Hold();
    Document* document = frame.ActiveForm();
    if (!document)
        return PassWithoutDocument(stream, std::move(text), keepDocument);
    RichTextBox& txtInput = document->txtInput();
    const RichTextBox::PaintHold hold(txtInput);
    const UndoAction step(txtInput);
    if (keepDocument == KeepDocument::No)
        txtInput.SetText(QString());
    const InputOff off(txtInput);
    if (!WritePass(frame, *document, text, keepDocument))
        return {std::move(text), KeepDocument::No};
    if (caretToTop == CaretToTop::Yes)
        txtInput.SetSelStart(0);
    return {std::move(text), keepDocument};
}
