#include "tools/transforms/MapAreas.h"

#include "platform/values/Cp1252.h"

#include <algorithm>

namespace {

QStringView Trimmed(QStringView text) {
    // Blanks and nothing else.
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

/// A character that a document can hold stays one of those.
QChar Upper(QChar c) {
    const QChar upper = c.toUpper();
    return Cp1252::ToCode(upper) < 0 && Cp1252::ToCode(c) >= 0 ? c : upper;
}

void AppendUpper(QString& to, QStringView text) {
    for (const QChar c : text)
        to += Upper(c);
}

/// Positions count from 1, and 0 stands for a blank that is missing.
struct MapLine {
    explicit MapLine(QStringView line) {
        const qsizetype a = line.indexOf(u' ') + 1;
        const qsizetype b = line.indexOf(u' ', a) + 1;
        const qsizetype linkAt = std::max<qsizetype>(a - 1, 0);
        const qsizetype restAt = std::max<qsizetype>(b - 1, 0);
        shape = Trimmed(line.first(linkAt));
        link = Trimmed(line.sliced(linkAt, std::max<qsizetype>(restAt - linkAt, 0)));
        coordinates = Trimmed(line.sliced(restAt));
    }
    QStringView shape;
    QStringView link;
    QStringView coordinates;
};

bool IsSkipped(QStringView line) {
    return line.contains(u'#') || line.contains(u"default ");
}

void AppendArea(QString& areas, QStringView line) {
    if (IsSkipped(line))
        return;
    const MapLine parts(line);
    areas += u"<AREA SHAPE=\"";
    AppendUpper(areas, parts.shape);
    areas += u"\" COORDS=\"";
    areas += parts.coordinates;
    areas += u"\" HREF=\"";
    areas += parts.link;
    areas += u"\">\r\n";
}

qsizetype EndOfLine(QStringView text, qsizetype from) {
    const auto* end =
        std::find_if(text.begin() + from, text.end(), [](QChar c) { return c == u'\r' || c == u'\n'; });
    return end - text.begin();
}

} // namespace

QString MapAreas(QStringView map) {
    QString areas;
    areas.reserve(map.size());
    for (qsizetype start = 0; start < map.size();) {
        const qsizetype end = EndOfLine(map, start);
        AppendArea(areas, map.sliced(start, end - start));
        const bool two = map.sliced(end).startsWith(u"\r\n");
        start = end + (two ? 2 : 1);
    }
    return areas;
}

QString MapTag(const QString& name, const QString& areas) {
    return QStringLiteral("<MAP NAME=\"") + name + QStringLiteral("\">\r\n") + areas +
           QStringLiteral("</MAP>");
}
