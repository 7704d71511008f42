// What the Link dialog computes: an anchor around the selection.
#include "builders/LinkTag.h"

#include "editor/InsertTag.h"

TagPair LinkTag(Frame& frame, const LinkFields& fields) {
    QString open = BuildBare(frame, QStringLiteral("<A HREF=")) + u'"' + fields.protocol + fields.url;
    if (!fields.anchor.isEmpty())
        open += u'#' + fields.anchor;
    open += u'"';
    open += BuildAttribute(frame, QStringLiteral("TARGET"), fields.target, true);
    open += u'>';
    return {open, BuildBare(frame, QStringLiteral("</A>"))};
}
