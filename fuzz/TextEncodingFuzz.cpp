// Any bytes as a page: the encoding that is found for them gives a text that the control takes, coloured and
// plain, and that is written back as the same bytes.
#include "editor/color/ColorizeText.h"
#include "FuzzApplication.h"

#include "platform/store/Settings.h"
#include "support/TestFrame.h"

#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

/// Whether the pass leaves a text as it is: one with a "<" that is never closed comes twice.
bool IsClosed(const QString& text) {
    return !QStringView(text).mid(text.lastIndexOf(u'>') + 1).contains(u'<');
}

/// The control counts as a string does, and no position lies inside a character.
void DemandPositions(RichTextBox& box, const QString& text) {
    Demand(box.TextLength() == text.size());
    const int middle = static_cast<int>(text.size() / 2);
    Demand(box.TextRange(middle, 7) == text.mid(middle, 7));
    box.SetSelStart(middle);
    const int start = box.SelStart();
    Demand(start == middle || (start == middle - 1 && text[middle].isLowSurrogate()));
}

void TakeIn(TestFrame& frame, const QByteArray& bytes, bool colored) {
    const TextEncoding encoding = EncodingOf(bytes);
    const QString text = Decode(bytes, encoding);
    frame.active->SetEncoding(encoding);
    frame.Box().SetText(QString());
    if (colored)
        ColorizeText(frame, text, KeepDocument::Yes, CaretToTop::Yes);
    else
        frame.Box().SetSelText(text);
    if (!colored || IsClosed(text)) {
        Demand(frame.Box().Text() == text);
        Demand(Encode(frame.Box().Text(), encoding) == bytes);
        DemandPositions(frame.Box(), text);
    }
    // What is saved unchanged takes the encoding it had, and is found in it again.
    Demand(EncodingToSave(encoding, text) == encoding);
    frame.Box().streams.clear();
    frame.Box().EmptyUndoBuffer();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    StartFuzzApplication();
    static TestFrame& frame = *new TestFrame;

    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const bool colored : {true, false})
        TakeIn(frame, bytes, colored);
    Demand(Encode(Decode(bytes, TextEncoding::CodePage1252), TextEncoding::CodePage1252) == bytes);
    return 0;
}
