// The partner of a tag on random text: both are tags of one word, one of which closes, each is the other's
// partner, and a search in small pieces and turns finds the same.
#include "editor/aids/TagPartner.h"
#include "platform/values/Cp1252.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

bool Closes(const QString& tag) {
    return tag.startsWith(u"</");
}

QString WordOf(const QString& tag) {
    qsizetype end = Closes(tag) ? 2 : 1;
    const qsizetype start = end;
    const auto isOfWord = [](QChar c) {
        return (c.unicode() < 0x80 && c.isLetterOrNumber()) || QStringView(u"-_:.").contains(c);
    };
    while (end < tag.size() && isOfWord(tag[end]))
        ++end;
    return tag.sliced(start, end - start).left(64).toLower();
}

void CheckTags(const QString& text, int caret, const TagPartners& found) {
    const TagPlace& own = found.atCaret;
    Demand(own.start <= caret && caret <= own.start + own.length);
    const QString tag = text.mid(own.start, own.length);
    const QString partner = text.mid(found.partner.start, found.partner.length);
    for (const QString& one : {tag, partner})
        Demand(one.size() > 2 && one.startsWith(u'<') && one.endsWith(u'>'));
    Demand(WordOf(tag) == WordOf(partner));
    Demand(Closes(tag) != Closes(partner));
    Demand(Closes(partner) == (own.start < found.partner.start));
    const auto back = TagPartner(text, found.partner.start + 1);
    Demand(back == TagPartners{found.partner, own});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 3)
        return 0;
    const size_t where = data[0] * 256U + data[1];
    const int piece = 80 + data[2];
    const QString text =
        Cp1252::FromBytes({reinterpret_cast<const char*>(data) + 3, static_cast<qsizetype>(size) - 3});
    const int caret = static_cast<int>(where % (static_cast<size_t>(text.size()) + 1));
    const auto found = TagPartner(text, caret);
    PartnerSearch search(
        caret, [&](int start, int length) { return text.mid(start, length); }, piece);
    while (search.Turn(1)) {
    }
    Demand(search.Found() == found);
    if (found)
        CheckTags(text, caret, *found);
    return 0;
}
