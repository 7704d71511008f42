// A line typed at the prompt, or of a script, taken apart.
#pragma once

#include <QString>
#include <QStringList>

struct Command {
    QString word; ///< in small letters; empty for an empty line
    QString rest; ///< what stands behind it, without blanks around
};

Command ReadCommand(const QString& line);

/// A name that may be quoted, and may hold blanks either way.
QString NameIn(const QString& rest);

/// Words between blanks; one in double quotes may hold some.
QStringList Words(const QString& text);

struct PutNames {
    QString local;
    QString remote; ///< the local file's own name where none is given
};

/// What stands behind "put": a local file and its name at the server. A quoted local name ends at its
/// padding. It may hold quotes itself: of the places where it can end, the one counts that leaves the file's
/// own name as the remote one, else the first.
PutNames ReadPutNames(const QString& rest);

/// What stands behind the last separator of a local path.
QString OwnName(const QString& path);
