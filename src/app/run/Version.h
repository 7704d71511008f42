// The program's version, as the title, the start screen and new pages show it.
#pragma once

#include <QString>

namespace Version {

inline constexpr int Major = 3;
inline constexpr int Minor = 0;
inline constexpr int Revision = 6;

/// "3.0.6".
inline QString Dotted() {
    return QStringLiteral("%1.%2.%3").arg(Major).arg(Minor).arg(Revision);
}

} // namespace Version
