// Text between files and documents, and the one place where a document's encoding is settled.
#pragma once

#include "platform/values/TextEncoding.h"

#include <optional>
#include <QString>

class Document;
class Settings;

/// What a file holds.
struct FileText {
    QString text; ///< line ends as in the file
    TextEncoding encoding = TextEncoding::Ascii;
};

/// With Utf8Pages off every file has code page 1252.
namespace DocumentFiles {

/// The text of a file up to, and without, its first end-of-text byte (26). Nothing where the file can't be
/// read.
std::optional<FileText> ReadUpToEndOfText(const Settings& store, const QString& path);

/// The text of a file read in one go, which an end-of-text byte makes fail. Nothing where it fails.
std::optional<FileText> ReadInOneGo(const Settings& store, const QString& path);

/// Writes a document's text to a file: without the blanks (32) at its two ends, and with one carriage return
/// and line feed more. The document then has the encoding it was written in, and nothing in it is modified.
/// Returns false where it can't be written; the old file then stands unharmed, and the document is as it was.
bool Save(const Settings& store, const QString& path, Document& document);

/// A document that is about to get a whole new text becomes one in UTF-8 where the text declares it or needs
/// it, as long as nothing beyond ASCII stands in its file: a page of ASCII, or one that has no file yet.
void SuitEncoding(const Settings& store, Document& document, const QString& text);

} // namespace DocumentFiles
