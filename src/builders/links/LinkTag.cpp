#include "builders/links/LinkTag.h"

#include "editor/color/BuildAttribute.h"

TagPair LinkTag(const LinkFields& fields, TagCase tagCase) {
    QString open = InCase(QStringLiteral("<A HREF="), tagCase) + u'"' + fields.protocol + fields.url;
    if (!fields.anchor.isEmpty())
        open += u'#' + fields.anchor;
    open += u'"';
    open += BuildAttribute(TagPart::Quoted(QStringLiteral("TARGET"), fields.target), tagCase).text;
    open += u'>';
    return {open, InCase(QStringLiteral("</A>"), tagCase)};
}
