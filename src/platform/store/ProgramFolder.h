// Where the program keeps its own files.
#pragma once

#include <QString>

/// The program's folder, without a separator at its end: a per-user data folder, created (mode 0700) when it
/// is missing. The environment variable TARNWICK_HOME names another.
QString ProgramFolder();

/// The per-user folder of the settings files, created when it is missing.
QString SettingsFolder();

/// A file name in the program's folder as a full path.
QString InProgramFolder(const QString& name);
