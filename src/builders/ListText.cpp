// What the Lists dialog computes: a whole list, one item a line.
#include "builders/ListText.h"

#include "editor/InsertTag.h"

namespace {

struct ListWords {
    QString kind;
    QString first;
    QString item;
    QString last;
};

} // namespace

QString ListText(Frame& frame, const QString& kind, const QStringList& items) {
    const ListWords kinds[] = {
        {QStringLiteral("U"), QStringLiteral("UL>"), QStringLiteral("LI>"), QStringLiteral("/UL>")},
        {QStringLiteral("O"), QStringLiteral("OL>"), QStringLiteral("LI>"), QStringLiteral("/OL>")},
        {QStringLiteral("D"), QStringLiteral("DL>"), QStringLiteral("DT>"), QStringLiteral("/DL>")},
    };
    const QString lineEnd = QStringLiteral("\r\n<");
    for (const ListWords& words : kinds) {
        if (words.kind != kind)
            continue;
        const QString itemStart = lineEnd + BuildBare(frame, words.item);
        QString text = u'<' + BuildBare(frame, words.first);
        for (const QString& item : items)
            text += itemStart + item;
        return text + lineEnd + BuildBare(frame, words.last);
    }
    return QString();
}
