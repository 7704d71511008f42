// Text between files and documents, and the one place where a document's encoding is settled.
#pragma once

#include "platform/store/FileMark.h"
#include "platform/store/WriteResult.h"
#include "platform/values/TextEncoding.h"

#include <optional>
#include <QByteArray>
#include <QString>

class Document;
class Settings;

/// How much of a file was read.
enum class ReadPart {
    Whole,
    UpToEndOfText,       ///< it holds an end-of-text byte
    NothingForEndOfText, ///< it holds one, and was to be read in one go
    Nothing,             ///< it can't be read
};

/// What a file holds.
struct FileText {
    QString text; ///< line ends as in the file
    TextEncoding encoding = TextEncoding::Ascii;
    FileMark mark; ///< the file as it was read; unset where no setting asks for it
    ReadPart part = ReadPart::Whole;
};

/// A document's text as it is kept outside of its file.
struct KeptText {
    QByteArray utf8;
    TextEncoding encoding = TextEncoding::Ascii; ///< of the document, not of these bytes
    FileMark mark = {};                          ///< its file as it was read or written last
    bool wasReadWhole = true;                    ///< false where its file holds more than was read
    bool operator==(const KeptText&) const = default;
};

/// With Utf8Pages off every file has code page 1252.
namespace DocumentFiles {

/// The text of a file up to, and without, its first end-of-text byte (26). Nothing where the file can't be
/// read.
std::optional<FileText> ReadUpToEndOfText(const Settings& store, const QString& path);

/// The text of a file read in one go, which an end-of-text byte makes fail. Nothing where it fails.
std::optional<FileText> ReadInOneGo(const Settings& store, const QString& path);

/// The same of a file whose document stands empty where that fails.
FileText ReadOrNothing(const Settings& store, const QString& path);

/// What the document knows of its file from now on is what stands there.
void TakeAsKnown(const Settings& store, const QString& path, Document& document);

/// Writes a document's text to a file: without the blanks (32) at its two ends, and with one carriage return
/// and line feed more. The document then has the encoding it was written in, and nothing in it is modified.
/// It knows its file as the one just written. Where it can't be written the old file stands unharmed, and the
/// document is as it was.
WriteResult Save(const Settings& store, const QString& path, Document& document);

/// A document that is about to get a whole new text becomes one in UTF-8 where the text declares it or needs
/// it, as long as nothing beyond ASCII stands in its file: a page of ASCII, or one that has no file yet.
void SuitEncoding(const Settings& store, Document& document, const QString& text);

/// What stands in a document now, and the way back to what was read from a file: a document that gets it is
/// saved to the very bytes that the first one would have been saved to.
KeptText Keep(Document& document);
FileText TakeBack(const KeptText& kept);

/// The same of the bytes that a document's file was to hold.
KeptText KeepBytes(const Settings& store, QByteArrayView bytes);

} // namespace DocumentFiles
