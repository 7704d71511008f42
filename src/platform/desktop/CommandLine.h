// What the program was started with.
#pragma once

#include <QString>
#include <QStringList>

/// The arguments joined by one blank, unchanged and unquoted; if the whole names an existing file relative to
/// the working folder, its full path. Empty without arguments.
QString CommandLine(const QStringList& arguments, const QString& workingFolder);
