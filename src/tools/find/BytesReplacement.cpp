#include "tools/find/BytesReplacement.h"

#include "platform/values/Cp1252.h"

#include <algorithm>
#include <array>

namespace {

/// The byte of each character in lower case. Both cases of a letter lie in the code page, or the letter has
/// only one there.
std::array<char, 256> LowerCase() {
    std::array<char, 256> table{};
    for (int code = 0; code < 256; ++code) {
        const int lower = Cp1252::ToCode(Cp1252::FromCode(code).toLower());
        table[static_cast<std::size_t>(code)] = static_cast<char>(lower < 0 ? code : lower);
    }
    return table;
}

QByteArray InCodePage(const QString& text) {
    return Cp1252::ToBytes(Cp1252::Accept(text));
}

QByteArray WithCrLf(QByteArray text) {
    return text.replace("\n", "\r\n");
}

} // namespace

BytesReplacement::BytesReplacement(const QString& find, const QString& replacement, Compare compare)
    : compare_(compare) {
    const QByteArray wanted = InCodePage(find);
    const QByteArray instead = InCodePage(replacement);
    if (wanted.isEmpty())
        return;
    Add(wanted, instead);
    if (wanted.contains('\n') && !wanted.contains('\r'))
        Add(WithCrLf(wanted), instead.contains('\r') ? instead : WithCrLf(instead));
}

void BytesReplacement::Add(const QByteArray& find, const QByteArray& replacement) {
    pairs_.push_back({ByteSearch(Comparable(find)), replacement});
}

QByteArray BytesReplacement::Comparable(const QByteArray& bytes) const {
    if (compare_ == Compare::Exact)
        return bytes;
    static const std::array<char, 256> lowerCase = LowerCase();
    QByteArray lower(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), lower.begin(),
                   [](char byte) { return lowerCase[static_cast<unsigned char>(byte)]; });
    return lower;
}

QByteArray BytesReplacement::In(const QByteArray& text) const {
    const QByteArray comparable = Comparable(text);
    for (const auto& [find, replacement] : pairs_) {
        qsizetype match = find.IndexIn(comparable);
        if (match < 0)
            continue;
        QByteArray result;
        qsizetype kept = 0;
        for (; match >= 0; match = find.IndexIn(comparable, kept)) {
            result += QByteArrayView(text).sliced(kept, match - kept);
            result += replacement;
            kept = match + find.Size();
        }
        result += QByteArrayView(text).sliced(kept);
        return result;
    }
    return text;
}
