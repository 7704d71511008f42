// The names of the user's projects, as the settings hold them.
#pragma once

#include <QStringList>

class Settings;

/// The most names that the settings hold.
inline constexpr int MaxProjects = 100;

/// The names up to the first gap: what stands behind it is not seen.
QStringList ProjectNames(const Settings& store);
/// All names, gaps or not.
QStringList ProjectNamesPastGaps(const Settings& store);
/// Puts the names in place of all that are stored, also those behind a gap. The 101st and later ones are left
/// out.
void StoreProjectNames(Settings& store, const QStringList& names);
