#include "ftp/TextBytes.h"

#include <algorithm>
#include <array>
#include <optional>
#include <QStringDecoder>

namespace {

constexpr qsizetype longestLine = 2000;

/// Code page 1252 from 80 to 9F hex; the bytes that it leaves open give their control character.
constexpr std::array<char16_t, 32> upperRows = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

QChar FromCodePage(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code >= 0x80 && code < 0xA0 ? QChar(upperRows[code - 0x80u]) : QChar(code);
}

QString FromCodePage(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) { return FromCodePage(byte); });
    return text;
}

bool IsInCodePage(QChar character) {
    const char16_t code = character.unicode();
    return code < 0x80 || (code >= 0xA0 && code <= 0xFF) ||
           std::find(upperRows.begin(), upperRows.end(), code) != upperRows.end();
}

std::optional<QString> FromUtf8(QByteArrayView bytes) {
    QStringDecoder decode(QStringDecoder::Utf8,
                          QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decode(bytes);
    return decode.hasError() ? std::nullopt : std::optional(text);
}

bool IsControl(QChar character) {
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph || category == QChar::Other_Format;
}

} // namespace

QString FromScript(QByteArrayView bytes) {
    const std::optional<QString> text = FromUtf8(bytes);
    const bool needsUtf8 =
        text && !std::all_of(text->begin(), text->end(), [](QChar c) { return IsInCodePage(c); });
    return needsUtf8 ? *text : FromCodePage(bytes);
}

QString FromServer(QByteArrayView bytes) {
    while (bytes.endsWith('\n') || bytes.endsWith('\r'))
        bytes.chop(1);
    const bool cut = bytes.size() > longestLine;
    if (cut)
        bytes = bytes.first(longestLine);
    QString text = FromUtf8(bytes).value_or(FromCodePage(bytes));
    for (QChar& character : text)
        if (IsControl(character))
            character = character == u'\t' ? u' ' : QChar(QChar::ReplacementCharacter);
    return cut ? text + QChar(0x2026) : text;
}

bool CanBeSent(const QString& text) {
    return std::none_of(text.begin(), text.end(),
                        [](QChar c) { return c.category() == QChar::Other_Control && c.unicode() < 0x80; });
}
