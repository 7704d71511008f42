#include "dialogs/BuildTag.h"

QString BuildTag(const QString& opening, const QVector<TagPart>& parts, TagCase tagCase) {
    return InCase(opening, tagCase) + BuildAttributes(parts, tagCase) + u'>';
}

QString BuildAttributes(const QVector<TagPart>& parts, TagCase tagCase) {
    QString text;
    for (const TagPart& part : parts)
        text += BuildAttribute(part, tagCase).text;
    return text;
}
