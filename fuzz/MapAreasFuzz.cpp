// The reader of map files on random bytes: one area a line that is not skipped, each of its one form, and
// nothing that a document can't hold.
#include "platform/values/Cp1252.h"
#include "tools/transforms/MapAreas.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <QStringList>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

/// The lines of a map, the empty one behind its last line end left out.
QStringList Lines(QString map) {
    map.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    QStringList lines = map.split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

void CheckArea(const QString& area) {
    Demand(area.startsWith(QStringLiteral("<AREA SHAPE=\"")));
    Demand(area.contains(QStringLiteral("\" COORDS=\"")));
    Demand(area.contains(QStringLiteral("\" HREF=\"")));
    Demand(area.endsWith(QStringLiteral("\">")));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString map =
        Cp1252::FromBytes({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
    QStringList areas = MapAreas(map).split(QStringLiteral("\r\n"));
    Demand(areas.takeLast().isEmpty());
    qsizetype shown = 0;
    for (const QString& line : Lines(map))
        shown += line.contains(u'#') || line.contains(QStringLiteral("default ")) ? 0 : 1;
    Demand(areas.size() == shown);
    for (const QString& area : areas) {
        CheckArea(area);
        for (const QChar c : area)
            Demand(Cp1252::ToCode(c) >= 0);
    }
    return 0;
}
