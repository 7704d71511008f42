// Other programs, started and left to themselves.
#pragma once

#include <QString>
#include <QStringList>

/// Starts a program without a shell and does not wait for it. It has nothing to read from or to write to,
/// wherever this program was started. False where it can't be started.
bool StartProgram(const QString& program, const QStringList& arguments);
