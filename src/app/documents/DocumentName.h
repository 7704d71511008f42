// What documents without a file are called where a person chooses among documents.
#pragma once

#include <QString>

class frmTemplate;

/// The path of its file; "Untitled 1" for one that has none. The number is the document's for as long as it
/// has no file: the lowest that no other one has. Its caption stays empty.
QString DocumentName(const frmTemplate& document);

/// The folder of a path as it is shown: without the separator at its end.
QString FolderOf(const QString& path);
