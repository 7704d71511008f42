// The scan for links on random pages: a value lies between two quotes behind its word, every link is of a
// kind that is shown, and no key stands twice.
#include "platform/values/Cp1252.h"
#include "tools/links/LinkScan.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <QSet>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

/// Goes from value to value as the scan does, and counts.
int CheckValues(const QString& text) {
    int values = 0;
    for (qsizetype position = 1;; ++values) {
        const AttributeValue value = FindAttributeValue(u"href", text, position);
        if (!value.found)
            return values;
        Demand(value.position > position);
        Demand(value.end >= value.position - 1 && value.end < text.size());
        Demand(text[value.position - 2] == u'"' && text[value.end] == u'"');
        const QString between = text.mid(value.position - 1, value.end - value.position + 1);
        Demand(!between.contains(u'"'));
        Demand(value.value == between || value.value == between + u'/');
        Demand(text.mid(position - 1, value.position - position).contains(u"href"));
        position = value.position;
    }
}

void CheckLinks(const QString& page, const QString& text) {
    const int values = CheckValues(text.toLower());
    const std::vector<PageLink> links = ExtractLinks(page, text);
    Demand(static_cast<int>(links.size()) <= values);
    QSet<QString> keys;
    for (const PageLink& link : links) {
        Demand(!link.text.isEmpty() && link.text == link.text.toLower());
        Demand(link.key.endsWith(link.text));
        Demand(link.text.contains(u':') == (link.image != LinkImage::Page));
        Demand(link.key != page && !keys.contains(link.key));
        keys.insert(link.key);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0)
        return 0;
    const QString all =
        Cp1252::FromBytes({reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1});
    const qsizetype cut = all.size() * data[0] / 255;
    CheckLinks(all.left(cut), all.mid(cut));
    return 0;
}
