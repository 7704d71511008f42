// The program that does the upload, beside this one.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The client's own path.
QString UploadClientProgram();

/// The script's path: "send.out" in the program's folder.
QString UploadScriptPath();

/// What is handed to the client: `-s:"script" server`, the words of the server's text each for itself.
QStringList UploadCommandLine(const QString& server);

/// Numbers of what can fail, as the box shows them.
enum class UploadError { None = 0, NoClient = 53, ScriptNotWritten = 75 };

/// Writes the script anew, readable for the user alone, and starts the client with it. A script that could
/// not be written keeps nothing from being started. The last thing that failed, if any did.
UploadError StartUpload(const QString& client, const QByteArray& script, const QString& server);
