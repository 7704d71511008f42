// A start tag from a table: the opening word and one row an attribute.
#pragma once

#include "editor/color/BuildAttribute.h"

#include <QVector>

/// The opening word ("<IMG") and the parts, in order, and ">".
QString BuildTag(const QString& opening, const QVector<TagPart>& parts, TagCase tagCase);

/// The parts alone, for a tag that holds more than its parts.
QString BuildAttributes(const QVector<TagPart>& parts, TagCase tagCase);
