// From a picked file to a link target: exact case, paths relative to the document, slashes.
#pragma once

#include <functional>
#include <QChar>
#include <QString>

/// Asks a file system for the name of a folder's entry as it is spelled there: folder (with its separator at
/// the end) and name in any case to the exact name, or empty where there is none.
using NameLookUp = std::function<QString(const QString& folder, const QString& name)>;

/// A full path in the upper and lower case that the disk holds, component by component, in the path's own
/// form. A folder that is not there leaves its separator alone behind, a file that is not there appends
/// nothing. A path that this computer's disks can't have (a drive where there are no drives, no root) comes
/// back as it is.
QString ExactCasePath(const QString& path);
/// The same on a file system of the caller's.
QString ExactCasePath(const QString& path, const NameLookUp& lookUp);

struct RelativeResult {
    QString path;
    bool failed = false; ///< a path had no root to take away; path is computed all the same
};

/// The way from a document's folder to a target, in the target's form: `..\img\b.gif`, `../img/b.gif`. Drives
/// are not compared. Both are full paths; case counts, after ExactCasePath has looked at both.
RelativeResult RelativePath(const QString& documentPath, const QString& targetPath, const NameLookUp& lookUp);
/// The same on this computer's disks.
RelativeResult RelativePath(const QString& documentPath, const QString& targetPath);

/// Overwrites every findChar by newChar.
void ReplaceChar(QString& text, QChar findChar, QChar newChar);
