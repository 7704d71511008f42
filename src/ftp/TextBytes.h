// Bytes as text: of scripts, and of what servers say.
#pragma once

#include <QByteArrayView>
#include <QString>

/// A line of a script: a byte a character in code page 1252, or UTF-8 where it holds a character that the
/// code page lacks.
QString FromScript(QByteArrayView bytes);

/// What a server said, without its line end, fit to be shown: UTF-8, or else code page 1252. Of a strange
/// server it may hold anything, so control characters are shown as such, and a long line is cut.
QString FromServer(QByteArrayView bytes);

/// A name or a command can go to the server: no line end or other control character would become a command
/// of its own.
bool CanBeSent(const QString& text);
