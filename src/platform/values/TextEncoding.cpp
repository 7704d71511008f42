#include "platform/values/TextEncoding.h"

#include "platform/values/Cp1252.h"
#include "platform/values/DeclaredEncoding.h"
#include "platform/values/Utf8.h"

#include <algorithm>

namespace {

/// What a text says of itself where its bytes say nothing.
TextEncoding Declared(QByteArrayView head) {
    return DeclaresUtf8(head) ? TextEncoding::Utf8 : TextEncoding::Ascii;
}

TextEncoding Declared(const QString& text) {
    return Declared(QByteArrayView(QStringView(text).left(declarationReach).toUtf8().left(declarationReach)));
}

} // namespace

bool IsUtf8(TextEncoding encoding) {
    return encoding == TextEncoding::Utf8 || encoding == TextEncoding::Utf8WithMark;
}

CharacterSet CharactersOf(TextEncoding encoding) {
    return IsUtf8(encoding) ? CharacterSet::Unicode : CharacterSet::CodePage1252;
}

TextEncoding EncodingOf(QByteArrayView bytes) {
    if (Utf8::IsAscii(bytes))
        return Declared(bytes.first(std::min(bytes.size(), declarationReach)));
    if (!bytes.isValidUtf8())
        return TextEncoding::CodePage1252;
    return bytes.startsWith(Utf8::Mark) ? TextEncoding::Utf8WithMark : TextEncoding::Utf8;
}

TextEncoding EncodingToSave(TextEncoding encoding, const QString& text) {
    if (encoding == TextEncoding::Utf8WithMark)
        return encoding;
    if (Utf8::IsAscii(text))
        return Declared(text);
    if (encoding != TextEncoding::Ascii)
        return encoding;
    // So far the file has nothing beyond ASCII: no byte of it changes its meaning, whatever is chosen.
    if (Declared(text) == TextEncoding::Utf8 || !Cp1252::Holds(text))
        return TextEncoding::Utf8;
    return TextEncoding::CodePage1252;
}

QString Decode(QByteArrayView bytes, TextEncoding encoding) {
    if (!IsUtf8(encoding))
        return Cp1252::FromBytes(bytes);
    const bool marked = encoding == TextEncoding::Utf8WithMark;
    return Utf8::ToText(marked ? bytes.sliced(Utf8::Mark.size()) : bytes);
}

QByteArray Encode(const QString& text, TextEncoding encoding) {
    if (!IsUtf8(encoding))
        return Cp1252::ToBytes(Cp1252::Accept(text));
    QByteArray bytes;
    if (encoding == TextEncoding::Utf8WithMark)
        bytes.append(Utf8::Mark.data(), Utf8::Mark.size());
    bytes += text.toUtf8();
    return bytes;
}
