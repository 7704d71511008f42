// The name that the program goes by.
#pragma once

#include <QString>

/// The title of message and input boxes that have none of their own, and the program's name in the settings.
inline const QString ProgramTitle = QStringLiteral("The Tarnwick");
