// Project files: the full paths of a project's files, in records of fixed length.
#pragma once

#include <QString>
#include <QStringList>

/// The bytes of a record, and the characters of a line that is read from one.
inline constexpr int ProjectRecordLength = 256;
/// The most records that are read and written: their number is a signed one of 16 bits.
inline constexpr int MaxProjectRecords = 32767;

/// The file of a project: its name with the extension "tnw" in the program's folder. Empty for an empty name.
/// A name that no file can have gives a path that can't be opened.
QString ProjectPath(const QString& name);

/// The records of a file, each a line of 256 characters with its padding. The last part of a record that is
/// cut short is no line. A file that is not there is created, empty. There are no lines where it can't be
/// read, or holds more than 32,767 records.
QStringList LoadProjectFile(const QString& path);

/// Puts the lines into a file, each in a record of its own: blanks fill it up, what is longer is cut. False,
/// and nothing is written, where the file is not there or can't be written. Lines behind the 32,767th are
/// left out: with them none could be read again.
bool SaveProjectFile(const QString& path, const QStringList& lines);
