// Text between files and documents: one byte of code page 1252 is one character.
#pragma once

#include <optional>
#include <QString>

namespace DocumentFiles {

/// The text of a file up to, and without, its first end-of-text byte (26); line ends stay as they are.
/// Nothing where the file can't be read.
std::optional<QString> ReadUpToEndOfText(const QString& path);

/// The text of a file read in one go, which an end-of-text byte makes fail. Nothing where it fails.
std::optional<QString> ReadInOneGo(const QString& path);

/// Writes a text as a saved document has it: without the blanks (32) at its two ends, and with one carriage
/// return and line feed more. Returns false where it can't be written; the old file then stands unharmed.
bool Save(const QString& path, const QString& text);

} // namespace DocumentFiles
