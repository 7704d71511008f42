// Plain word lists: one word a line.
#pragma once

#include <optional>
#include <QString>
#include <QStringList>

namespace WordList {

/// The words of a list, UTF-8 or else code page 1252; lines end with CR LF, CR or LF. Blanks around a word
/// do not count, nor what follows a "/" or a tab, nor a line without a letter.
QStringList FromBytes(const QByteArray& bytes);
/// The words of a file; nothing where it can't be read or is no text.
std::optional<QStringList> Read(const QString& path);
/// Puts a word at the end of a file, or of a new one that only the user may read. False on failure, and where
/// the file is no text: it then stands as it was.
bool Add(const QString& path, const QString& word);

} // namespace WordList
