#include "app/recovery/DocumentCopy.h"

#include "platform/values/Utf8.h"

#include <algorithm>
#include <iterator>
#include <QCryptographicHash>

namespace {

constexpr QByteArrayView firstLine = "Tarnwick copy 1\n";
constexpr QByteArrayView readWhole = "whole";
constexpr QByteArrayView readInPart = "in part";

struct EncodingWord {
    TextEncoding encoding;
    QByteArrayView word;
};
constexpr EncodingWord encodingWords[] = {{TextEncoding::Ascii, "ascii"},
                                          {TextEncoding::CodePage1252, "windows-1252"},
                                          {TextEncoding::Utf8, "utf-8"},
                                          {TextEncoding::Utf8WithMark, "utf-8 with a mark"}};

QByteArray WordOf(TextEncoding encoding) {
    return std::ranges::find(encodingWords, encoding, &EncodingWord::encoding)->word.toByteArray();
}

std::optional<TextEncoding> EncodingOfWord(QByteArrayView word) {
    const auto found = std::ranges::find(encodingWords, word, &EncodingWord::word);
    return found == std::end(encodingWords) ? std::nullopt : std::optional(found->encoding);
}

/// Over two stretches, so that no one joins them for it.
QByteArray Sum(QByteArrayView first, QByteArrayView second) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(first);
    hash.addData(second);
    return hash.result().toHex();
}

QByteArray Line(QByteArrayView name, QByteArrayView value) {
    return name.toByteArray() + ": " + value.toByteArray() + '\n';
}

/// The value of the line "name: value" that the bytes begin with, which is taken off; nothing where they
/// begin with anything else.
std::optional<QByteArrayView> TakeLine(QByteArrayView& bytes, const QByteArray& name) {
    const qsizetype start = name.size() + 2;
    const qsizetype end = bytes.indexOf('\n');
    if (!bytes.startsWith(name + ": ") || end < start)
        return std::nullopt;
    const QByteArrayView value = bytes.sliced(start, end - start);
    bytes = bytes.sliced(end + 1);
    return value;
}

} // namespace

QByteArray BytesOf(const DocumentCopy& copy) {
    // A line end in a path would end its line; blanks and letters of all kinds may stay.
    const QByteArray path = copy.path.toUtf8().replace('%', "%25").replace('\n', "%0A");
    const QByteArray head = Line("path", path) + Line("encoding", WordOf(copy.content.encoding)) +
                            Line("caret", QByteArray::number(copy.caret)) +
                            Line("file", copy.content.mark.ToText()) +
                            Line("read", copy.content.wasReadWhole ? readWhole : readInPart) + '\n';
    const QByteArray sum = Line("sum", Sum(head, copy.content.utf8));
    QByteArray bytes;
    bytes.reserve(firstLine.size() + sum.size() + head.size() + copy.content.utf8.size());
    bytes += firstLine;
    return bytes += sum + head + copy.content.utf8;
}

std::optional<DocumentCopy> CopyFromBytes(const QByteArray& bytes) {
    if (!bytes.startsWith(firstLine))
        return std::nullopt;
    QByteArrayView rest = QByteArrayView(bytes).sliced(firstLine.size());
    const auto sum = TakeLine(rest, "sum");
    if (!sum || *sum != Sum(rest, {}))
        return std::nullopt;
    const auto path = TakeLine(rest, "path");
    const auto encodingWord = TakeLine(rest, "encoding");
    const auto caretWord = TakeLine(rest, "caret");
    const auto fileWord = TakeLine(rest, "file");
    const auto readWord = TakeLine(rest, "read");
    const auto encoding = encodingWord ? EncodingOfWord(*encodingWord) : std::nullopt;
    const auto mark = fileWord ? FileMark::FromText(*fileWord) : std::nullopt;
    bool isNumber = false;
    const int caret = caretWord ? caretWord->toByteArray().toInt(&isNumber) : 0;
    const bool isRead = readWord && (*readWord == readWhole || *readWord == readInPart);
    if (!path || !encoding || !isNumber || !mark || !isRead || !rest.startsWith('\n'))
        return std::nullopt;
    return DocumentCopy{.path = Utf8::ToText(path->toByteArray().replace("%0A", "\n").replace("%25", "%")),
                        .caret = caret,
                        .content = {.utf8 = rest.sliced(1).toByteArray(),
                                    .encoding = *encoding,
                                    .mark = *mark,
                                    .wasReadWhole = *readWord == readWhole}};
}
