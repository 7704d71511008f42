// File dialog filters from their text form to Qt's.
#pragma once

#include <QString>
#include <QStringList>

/// "Name|pattern;pattern|Name|pattern|" as Qt's name filters, "Name (pattern pattern)", in order. A name
/// without a pattern shows all files. "*.*" shows names without a dot too. Empty text gives no filters.
QStringList NameFilters(const QString& filter);
