// The script that the upload client works off.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What is sent where, as the upload window has it.
struct Upload {
    QString user = {};
    QString password = {};
    QString folder = {}; ///< at the server; empty stays in the login's
    bool ascii = false;
    QStringList files = {}; ///< full paths; a project's file has its padding behind it
};

/// The whole script, its lines ended by CR LF. It has no closing command: the client stays at its prompt. No
/// text of the upload makes a line of its own. Bytes are those of code page 1252; a line that holds other
/// characters is in UTF-8.
QByteArray UploadScript(const Upload& upload);
