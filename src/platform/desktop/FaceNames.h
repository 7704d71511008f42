// The names by which the system knows its fonts.
#pragma once

#include <QStringList>

/// The installed families, and the well-known names for which the system has a stand-in, as "Arial" where a
/// font of the same measures is installed. A further name, in use already, is among them if it has one too.
QStringList FaceNames(const QString& inUse = QString());

/// Whether the system shows a family that is not installed by one that it holds to be its like. The family
/// that stands in for whatever is unknown is no such one.
bool HasStandIn(const QString& family);

/// Families as names a web page can use: without the maker's name that some systems add in brackets, each
/// once, sorted in any case.
QStringList SortedFaceNames(const QStringList& families);
