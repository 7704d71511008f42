// The areas of a server-side map file, as tags of a client-side map.
#pragma once

#include <QString>

/// One AREA tag and a CR LF for each line of a map: "shape url x,y x,y", with one blank between the first
/// three. Lines end with CR LF, LF or CR. One that holds a "#" or "default " anywhere is skipped. What a line
/// lacks is empty: a line without a blank is all coordinates, and so is one with a single blank.
QString MapAreas(QStringView map);

/// The map of that name around its areas.
QString MapTag(const QString& name, const QString& areas);
