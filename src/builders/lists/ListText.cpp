#include "builders/lists/ListText.h"

QString ListText(ListKind kind, const QStringList& items, TagCase tagCase) {
    const QString list = QString(QLatin1Char(static_cast<char>(kind))) + QStringLiteral("L>");
    const QString item = kind == ListKind::Definitions ? QStringLiteral("DT>") : QStringLiteral("LI>");
    const QString lineEnd = QStringLiteral("\r\n<");
    const QString itemStart = lineEnd + InCase(item, tagCase);
    QString text = u'<' + InCase(list, tagCase);
    for (const QString& each : items)
        text += itemStart + each;
    return text + lineEnd + InCase(u'/' + list, tagCase);
}
