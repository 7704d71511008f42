#include "platform/values/Utf8.h"

#include <algorithm>
#include <QStringConverter>

namespace Utf8 {

namespace {

constexpr int firstBeyondAscii = 0x80;
// Counted in pieces of this size: that goes many at a time, as a search for the first does not, and ends soon
// all the same.
constexpr qsizetype piece = 1 << 12;

template <typename View, typename IsBeyond> bool HasNone(View view, IsBeyond isBeyond) {
    for (qsizetype from = 0; from < view.size(); from += piece) {
        const auto* begin = view.data() + from;
        if (std::count_if(begin, begin + std::min(piece, view.size() - from), isBeyond) > 0)
            return false;
    }
    return true;
}

} // namespace

QString ToText(QByteArrayView bytes) {
    if (!bytes.startsWith(Mark))
        return QString::fromUtf8(bytes);
    using Flag = QStringConverter::Flag;
    QStringDecoder decoder(QStringConverter::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

bool IsAscii(QByteArrayView bytes) {
    return HasNone(bytes, [](char byte) { return (byte & firstBeyondAscii) != 0; });
}

bool IsAscii(QStringView text) {
    return HasNone(text, [](QChar c) { return c.unicode() >= firstBeyondAscii; });
}

} // namespace Utf8
