#include "platform/store/IniText.h"

#include <cctype>
#include <cstring>
#include <optional>
#include <QStringConverter>

namespace {

constexpr char controls[] = "\a\b\f\n\r\t\v";
constexpr char letters[] = "abfnrtv";
// The section of keys that stand in front of every other; one that is really called so has a "%" in front.
const QByteArray general = QByteArrayLiteral("General");

bool IsHex(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// Takes the hexadecimal digits at a place, and moves it behind them. Nothing where there is none.
std::optional<char32_t> TakeHex(QByteArrayView text, qsizetype& at, qsizetype most) {
    const qsizetype begin = at;
    while (at < text.size() && at - begin < most && IsHex(text[at]))
        ++at;
    return at == begin
               ? std::nullopt
               : std::optional(char32_t(text.sliced(begin, at - begin).toByteArray().toUInt(nullptr, 16)));
}

QByteArray KeyBytes(const QString& key) {
    QByteArray bytes;
    for (const QChar c : key) {
        const ushort code = c.unicode();
        const bool plain = code < 128 && (std::isalnum(code) || code == '_' || code == '-' || code == '.');
        if (plain)
            bytes += char(code);
        else if (code < 256)
            bytes += '%' + QByteArray::number(code, 16).toUpper().rightJustified(2, '0');
        else
            bytes += "%U" + QByteArray::number(code, 16).toUpper().rightJustified(4, '0');
    }
    return bytes;
}

QString KeyOf(QByteArrayView bytes) {
    QString key;
    for (qsizetype at = 0; at < bytes.size();) {
        qsizetype next = at + 1;
        const bool isLong = next < bytes.size() && bytes[next] == 'U';
        next += isLong;
        std::optional<char32_t> code;
        if (bytes[at] == '%')
            code = TakeHex(bytes, next, isLong ? 4 : 2);
        key += code ? QChar(char16_t(*code)) : QChar::fromLatin1(bytes[at]);
        at = code ? next : at + 1;
    }
    return key;
}

QByteArray ValueBytes(const QString& value) {
    const QByteArray text = value.toUtf8();
    QByteArray bytes(text.startsWith('@') ? "@" : "");
    bool needsQuotes = text.startsWith(' ') || text.endsWith(' ');
    bool behindHex = false;
    for (const char c : text) {
        const char* control = c == '\0' ? nullptr : std::strchr(controls, c);
        const bool asHex = uchar(c) < 32 || c == 127 || (behindHex && IsHex(c));
        needsQuotes = needsQuotes || c == ';' || c == ',' || c == '=';
        behindHex = !control && asHex;
        if (control)
            bytes += QByteArray("\\") + letters[control - controls];
        else if (asHex)
            bytes += "\\x" + QByteArray::number(uchar(c), 16);
        else if (c == '"' || c == '\\')
            bytes += QByteArray("\\") + c;
        else
            bytes += c;
    }
    return needsQuotes ? '"' + bytes + '"' : bytes;
}

/// What stands behind a backslash, and moves the place behind it.
QByteArray Escaped(QByteArrayView bytes, qsizetype& at) {
    const char c = at < bytes.size() ? bytes[at++] : '\\';
    if (c == 'x') {
        const std::optional<char32_t> code = TakeHex(bytes, at, 4);
        return code ? QString(QChar(char16_t(*code))).toUtf8() : QByteArray();
    }
    const qsizetype control = QByteArrayView(letters).indexOf(c);
    return QByteArray(1, c == '0' ? '\0' : control < 0 ? c : controls[control]);
}

/// A semicolon outside quotes begins a remark, and blanks outside quotes at the ends do not count.
QByteArray Unquoted(QByteArrayView bytes) {
    QByteArray value;
    qsizetype kept = 0;
    bool quoted = false;
    for (qsizetype at = 0; at < bytes.size() && (quoted || bytes[at] != ';');) {
        const char c = bytes[at++];
        const bool blank = !quoted && (c == ' ' || c == '\t');
        if (c == '"')
            quoted = !quoted;
        else if (c == '\\')
            value += Escaped(bytes, at);
        else if (!blank || !value.isEmpty())
            value += c;
        if (!blank)
            kept = value.size();
    }
    value.truncate(kept);
    return value;
}

/// A value of another kind than text begins with an "@", and text that begins with one has a second in front.
QString ValueOf(QByteArrayView bytes) {
    using Flag = QStringConverter::Flag;
    // A mark at the start is part of the value, where plain decoding would drop it.
    QStringDecoder decoder(QStringConverter::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    const QString value = decoder.decode(Unquoted(bytes));
    const QString array = QStringLiteral("@ByteArray(");
    if (value.startsWith(array) && value.endsWith(u')'))
        return value.sliced(array.size()).chopped(1);
    return value.startsWith(QStringLiteral("@@")) ? value.sliced(1) : value;
}

QString SectionOf(QByteArrayView name) {
    if (name == general)
        return {};
    return name == '%' + general ? QString::fromLatin1(general) : KeyOf(name);
}

QByteArray SectionBytes(const QString& section) {
    if (section.isEmpty())
        return general;
    const QByteArray bytes = KeyBytes(section);
    return bytes == general ? '%' + bytes : bytes;
}

} // namespace

namespace IniText {

IniValues Read(const QByteArray& bytes) {
    IniValues values;
    QString section;
    for (const QByteArray& whole : QByteArray(bytes).replace('\r', '\n').split('\n')) {
        const QByteArray line = whole.trimmed();
        const qsizetype sign = line.indexOf('=');
        if (line.startsWith('[') && line.endsWith(']'))
            section = SectionOf(line.sliced(1).chopped(1).trimmed());
        else if (sign > 0 && !line.startsWith(';') && line.sliced(sign + 1) != "@Invalid()")
            values[section][KeyOf(line.first(sign).trimmed())] =
                ValueOf(whole.sliced(whole.indexOf('=') + 1));
    }
    return values;
}

QByteArray Write(const IniValues& values) {
    QByteArray bytes;
    for (auto section = values.begin(); section != values.end(); ++section) {
        bytes += (bytes.isEmpty() ? "[" : "\n[") + SectionBytes(section.key()) + "]\n";
        for (auto value = section->begin(); value != section->end(); ++value)
            bytes += KeyBytes(value.key()) + '=' + ValueBytes(value.value()) + '\n';
    }
    return bytes;
}

} // namespace IniText
