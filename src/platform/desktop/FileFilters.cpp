#include "platform/desktop/FileFilters.h"

namespace {

QString Patterns(const QString& list) {
    QStringList patterns = list.split(u';', Qt::SkipEmptyParts);
    for (QString& pattern : patterns) {
        pattern = pattern.trimmed();
        if (pattern == u"*.*")
            pattern = QStringLiteral("*");
    }
    return patterns.isEmpty() ? QStringLiteral("*") : patterns.join(u' ');
}

} // namespace

QStringList NameFilters(const QString& filter) {
    QStringList parts = filter.split(u'|');
    if (parts.last().isEmpty())
        parts.removeLast();
    QStringList filters;
    for (qsizetype i = 0; i < parts.size(); i += 2)
        filters += QStringLiteral("%1 (%2)").arg(parts[i], Patterns(parts.value(i + 1)));
    return filters;
}
