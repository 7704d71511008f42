// Paths in the two forms that documents know: C:\site\a.htm and /home/u/site/a.htm.
#pragma once

#include <QString>

namespace Path {

/// The separator of a path's own form: '/' if it starts with '/', else '\' if it holds one, else the
/// system's.
QChar Separator(const QString& path);
/// The length of the root: 1 for "/", 3 for "C:\", 0 for a path without one.
int RootLength(const QString& path);
/// Everything behind the last separator of the path's own form.
QString FileName(const QString& path);
/// Everything up to and including the last separator; empty where there is none.
QString Folder(const QString& path);
/// Folder and name in one; a separator of the folder's form goes between where it lacks one.
QString Join(const QString& folder, const QString& name);
/// The bare name of a file or folder as the file system reports it; empty when there is none.
QString NameOnDisk(const QString& path);
/// The name of a folder's entry, hidden ones included, in the upper and lower case it has on disk; one that
/// has the very case asked for wins. Empty when there is none in any case.
QString FindName(const QString& folder, const QString& name);

} // namespace Path
