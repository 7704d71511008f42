#include "tools/links/LinkNames.h"

#include <algorithm>

QString LinkNames::displayText(const QVariant& value, const QLocale& /*locale*/) const {
    const QString name = value.toString();
    QString shown = name.left(longest);
    std::replace_if(
        shown.begin(), shown.end(), [](QChar c) { return c < u' '; }, QChar(u' '));
    if (name.size() > longest)
        shown += QChar(0x2026);
    return shown;
}
