// How the characters of a document stand in its file: found from the bytes, read, and written back.
#pragma once

#include "platform/values/CharacterSet.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

enum class TextEncoding {
    /// Only ASCII stands in the file, and its head does not ask for UTF-8: so far any encoding would do. What
    /// comes into such a document is of code page 1252.
    Ascii,
    CodePage1252, ///< a byte is a character
    Utf8,
    Utf8WithMark ///< begins with a byte order mark, which is no part of the text
};

bool IsUtf8(TextEncoding encoding);

/// The characters that a document of an encoding can hold.
CharacterSet CharactersOf(TextEncoding encoding);

/// The encoding of a file with these bytes. UTF-8 are those that begin with its mark, those that are valid
/// and hold a character beyond ASCII, and those of ASCII alone whose head declares it (DeclaresUtf8). Bytes
/// that are no valid UTF-8 have code page 1252, with a mark too: it fits any bytes, so that none is lost.
TextEncoding EncodingOf(QByteArrayView bytes);

/// The encoding in which a text is written that came in one encoding and has been edited since. A text of
/// ASCII alone takes what its head declares, and so does one whose file had nothing else; a mark stays. A
/// character that nothing but UTF-8 can hold asks for UTF-8, unless the file has bytes of code page 1252.
TextEncoding EncodingToSave(TextEncoding encoding, const QString& text);

/// The text of a file in an encoding that EncodingOf found for it, or in CodePage1252.
QString Decode(QByteArrayView bytes, TextEncoding encoding);

/// The bytes of a text. In code page 1252 a character from outside it becomes its decimal reference.
QByteArray Encode(const QString& text, TextEncoding encoding);
