// Bytes of UTF-8 as text, with nothing dropped.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace Utf8 {

/// What a file may begin with to say that it is in UTF-8.
inline constexpr QByteArrayView Mark = "\xEF\xBB\xBF";

/// The characters of bytes, a mark at their start included: U+FEFF inside a text is a character like any
/// other, wherever the text is cut. Bytes that are no UTF-8 give U+FFFD.
QString ToText(QByteArrayView bytes);

/// Whether no byte is beyond ASCII, and whether no character is.
bool IsAscii(QByteArrayView bytes);
bool IsAscii(QStringView text);

} // namespace Utf8
