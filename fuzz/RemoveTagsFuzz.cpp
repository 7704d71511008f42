// Remove Tags on random text and selections against the same steps carried out one by one in the control.
#include "FuzzApplication.h"
#include "platform/values/Cp1252.h"
#include "tools/transforms/SlowTagRemoval.h"
#include "tools/transforms/TagRemoval.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

constexpr int colors = 5;
/// The steps one by one take their time.
constexpr qsizetype longest = 400;

void Put(RichTextBox& box, const QString& text, int start, int length) {
    box.SetText(text);
    for (int at = 0; at < text.size(); at += 3) {
        box.SetSelStart(at);
        box.SetSelLength(3);
        box.SetSelColor((text[at].unicode() + at) % colors);
    }
    box.SetSelStart(start);
    box.SetSelLength(length);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2)
        return 0;
    StartFuzzApplication();
    static auto* const told = new RichTextBox;
    static auto* const box = new RichTextBox;
    const QString text =
        Cp1252::FromBytes({reinterpret_cast<const char*>(data) + 2, static_cast<qsizetype>(size) - 2})
            .left(longest);
    const int start = static_cast<int>(text.size()) * data[0] / 255;
    const int length = (static_cast<int>(text.size()) - start) * data[1] / 255;
    Put(*told, text, start, length);
    RemoveTagsSlowly(*told);
    Put(*box, text, start, length);
    const TagRemoval removal = TagsToRemove(text, start, length);
    box->Remove(removal.gone);
    box->SetSelStart(removal.selStart);
    box->SetSelLength(removal.selLength);
    Demand(box->Text() == told->Text());
    Demand(box->SelStart() == told->SelStart() && box->SelLength() == told->SelLength());
    for (int i = 0; i < box->TextLength(); ++i)
        Demand(box->ColorAt(i) == told->ColorAt(i));
    return 0;
}
