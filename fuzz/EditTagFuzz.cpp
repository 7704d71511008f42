// Edit Tag on every kind of caret in random text: the tag found is that of a plain scan, its attributes read
// back as the table says, and the command takes out the selected tag and nothing else.
#include "builders/applets/EmbedTag.h"
#include "builders/applets/frmEmbed.h"
#include "builders/commands/BuilderForms.h"
#include "builders/commands/EditTag.h"
#include "builders/links/frmGraphicLink.h"
#include "builders/links/ImageTag.h"
#include "builders/page/frmBody.h"
#include "editor/color/TagEnds.h"
#include "FuzzApplication.h"
#include "platform/values/Cp1252.h"
#include "support/TestFrame.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

/// The scan one character at a time. Positions count from 1 here.
std::optional<TagPlace> PlainScan(const QString& text, int caret) {
    for (int i = caret; i >= 1; --i) {
        const QChar c = text[i - 1];
        if (c == u'>')
            return std::nullopt;
        if (c != u'<')
            continue;
        const auto close = static_cast<int>(text.indexOf(u'>', i - 1));
        return close < 0 ? std::nullopt : std::optional(TagPlace{i - 1, close - i + 2});
    }
    return TagPlace{caret, 0};
}

void CheckValue(const QString& tag, const QString& value, QChar terminator) {
    Demand(!value.contains(terminator));
    Demand(tag.contains(value));
}

void CheckFields(const QString& tag) {
    const ImageFields image = ImageFieldsOf(tag);
    for (const QString& value : {image.alt, image.lowSrc, image.url, image.useMap})
        CheckValue(tag, value, u'"');
    for (const QString& value :
         {image.width, image.height, image.hSpace, image.vSpace, image.border, image.align})
        CheckValue(tag, value, u' ');
    const EmbedFields embed = EmbedFieldsOf(tag);
    CheckValue(tag, embed.url, u'"');
    for (const QString& value : {embed.width, embed.height, embed.palette})
        CheckValue(tag, value, u' ');
}

/// Made once: a frame's settings are files, and those take longer than all the rest.
TestFrame& OneFrame() {
    StartFuzzApplication();
    static auto* const frame = new TestFrame;
    return *frame;
}

/// The command in a document, and Cancel in the dialog that it opens.
void CheckCommand(const QString& text, int caret, const std::optional<TagPlace>& place) {
    TestFrame& frame = OneFrame();
    frame.SetText(text);
    const QString before = frame.Box().Text();
    if (before != text)
        return; // not a text that a document holds
    frame.Box().SetSelStart(caret);
    EditTag(frame);
    const FormRow* form =
        place ? FormThatEdits(BuilderForms(), text.mid(place->start, place->length)) : nullptr;
    const bool cut = form && form->name != QLatin1String("frmBody");
    Demand(frame.LoadedForms().Count() == (form ? 2 : 1));
    Demand(frame.Box().Text() == (cut ? QString(text).remove(place->start, place->length) : text));
    Demand(frame.Box().SelStart() == (place ? place->start : caret));
    Demand(frame.Box().SelLength() == (place && !cut ? place->length : 0));
    Demand(frame.prompts.asked.isEmpty());
    frame.LoadedForms().Unload<frmGraphicLink>();
    frame.LoadedForms().Unload<frmBody>();
    frame.LoadedForms().Unload<frmEmbed>();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2)
        return 0;
    const size_t where = data[0] * 256U + data[1];
    const QString text =
        Cp1252::FromBytes({reinterpret_cast<const char*>(data) + 2, static_cast<qsizetype>(size) - 2});
    const int caret = static_cast<int>(where % (static_cast<size_t>(text.size()) + 1));
    const auto place = FindTagAround(caret, [&](int start, int length) { return text.mid(start, length); });
    Demand(place == PlainScan(text, caret));
    CheckFields(text);
    CheckCommand(text, caret, place);
    return 0;
}
