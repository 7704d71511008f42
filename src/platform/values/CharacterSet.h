// Which characters a document can hold.
#pragma once

#include <QString>

enum class CharacterSet {
    CodePage1252, ///< its 256 characters
    Unicode       ///< all there are
};

/// Text from outside as a document of a character set can hold it: in code page 1252 a character from outside
/// becomes its decimal character reference, "&#9731;", one for a surrogate pair. In Unicode every character
/// stays itself.
QString HeldBy(CharacterSet characters, const QString& text);
