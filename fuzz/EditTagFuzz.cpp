// Finds the tag around every kind of caret in random text, and reads every attribute of it back.
#include "builders/TagParser.h"
#include "platform/Cp1252.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

void CheckRows(const QString& tag, const QVector<TagKey>& keys) {
    for (const TagKey& key : keys) {
        const QString value = TagValue(tag, key);
        Demand(tag.contains(key.key, Qt::CaseInsensitive) || value.isEmpty());
        Demand(!value.contains(key.terminator));
        Demand(tag.contains(value));
    }
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
    if (place) {
        const QString tag = text.mid(place->start, place->length);
        Demand(tag.size() == place->length);
        if (!tag.isEmpty()) {
            Demand(place->start < caret && tag.startsWith(u'<') && tag.endsWith(u'>'));
            Demand(tag.indexOf(u'>') == tag.size() - 1);
            Demand(tag.lastIndexOf(u'<', caret - 1 - place->start) == 0);
        } else {
            Demand(!text.left(caret).contains(u'<') && !text.left(caret).contains(u'>'));
        }
    }
    KindOfTag(text);
    HasIsMap(text);
    CheckRows(text, ImageKeys());
    CheckRows(text, EmbedKeys());
    return 0;
}
