#include "dialogs/BuildTag.h"

QString BuildTag(const QString& opening, const QVector<TagPart>& parts, TagCase tagCase) {
    QString tag = InCase(opening, tagCase);
    for (const TagPart& part : parts)
        tag += BuildAttribute(part, tagCase).text;
    return tag + u'>';
}
