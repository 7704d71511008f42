// The colouring pass on any text: what stands in the control is what the scan promises, and every character
// has a colour.
#include "editor/color/ColorizeText.h"
#include "FuzzApplication.h"

#include "platform/values/Cp1252.h"
#include "support/TestFrame.h"

#include <cstdlib>

namespace {

/// What the pass must leave in an empty document, told in the plainest way.
QString Promised(const QString& text) {
    QString written;
    qsizetype last = 0;
    bool anyTag = false;
    for (qsizetype open = text.indexOf(u'<'); open >= 0; open = text.indexOf(u'<', last)) {
        const qsizetype close = text.indexOf(u'>', open);
        if (close < 0)
            return anyTag ? written + text : text;
        written += text.mid(last, close + 1 - last);
        last = close + 1;
        anyTag = true;
    }
    return written + text.mid(last);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    StartFuzzApplication();
    static TestFrame& frame = *new TestFrame;

    const QString text = Cp1252::FromBytes(QByteArrayView(data, static_cast<qsizetype>(size)));
    ColorizeText(frame, text, KeepDocument::No, CaretToTop::No);
    if (frame.Box().Text() != Promised(text))
        std::abort();
    for (int i = 0; i < frame.Box().TextLength(); ++i) {
        if (frame.Box().ColorAt(i) < 0)
            std::abort();
    }
    frame.Box().streams.clear();
    frame.Box().EmptyUndoBuffer();
    return 0;
}
