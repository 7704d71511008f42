// A start tag from a table: the opening word and one row an attribute.
#include "builders/BuildTag.h"

#include "editor/InsertTag.h"

QString BuildTag(Frame& frame, const QString& opening, const QVector<TagPart>& parts) {
    QString tag = BuildBare(frame, opening);
    for (const TagPart& part : parts)
        tag += part.bare.isEmpty() ? BuildAttribute(frame, part.name, part.value, part.quoted)
                                   : BuildBare(frame, part.bare);
    return tag + u'>';
}
