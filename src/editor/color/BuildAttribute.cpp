#include "editor/color/BuildAttribute.h"

BuiltAttribute BuildAttribute(TagPart part, TagCase tagCase) {
    if (!part.bare.isEmpty()) {
        part.bare = InCase(part.bare, tagCase);
        return {part.bare, part};
    }
    if (part.value.isEmpty())
        return {QString(), part};
    part.name = InCase(part.name, tagCase);
    if (part.quotes == Quotes::Double)
        part.value = u'"' + part.value + u'"';
    return {u' ' + part.name + u'=' + part.value, part};
}
