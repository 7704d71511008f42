#include "builders/lists/ListText.h"

namespace {

struct ListWords {
    QString kind;
    QString first;
    QString item;
    QString last;
};

} // namespace

QString ListText(const QString& kind, const QStringList& items, TagCase tagCase) {
    const ListWords kinds[] = {
        {QStringLiteral("U"), QStringLiteral("UL>"), QStringLiteral("LI>"), QStringLiteral("/UL>")},
        {QStringLiteral("O"), QStringLiteral("OL>"), QStringLiteral("LI>"), QStringLiteral("/OL>")},
        {QStringLiteral("D"), QStringLiteral("DL>"), QStringLiteral("DT>"), QStringLiteral("/DL>")},
    };
    const QString lineEnd = QStringLiteral("\r\n<");
    for (const ListWords& words : kinds) {
        if (words.kind != kind)
            continue;
        const QString itemStart = lineEnd + InCase(words.item, tagCase);
        QString text = u'<' + InCase(words.first, tagCase);
        for (const QString& item : items)
            text += itemStart + item;
        return text + lineEnd + InCase(words.last, tagCase);
    }
    return QString();
}
