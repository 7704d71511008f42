#include "platform/text/ByteSearch.h"

#include <cstring>
#include <utility>

ByteSearch::ByteSearch(QByteArray wanted) : wanted_(std::move(wanted)), again_(wanted_.size(), 0) {
    const char* bytes = wanted_.constData();
    int length = 0;
    for (std::size_t i = 1; i < again_.size(); ++i) {
        while (length > 0 && bytes[i] != bytes[length])
            length = again_[static_cast<std::size_t>(length - 1)];
        length += bytes[i] == bytes[length];
        again_[i] = length;
    }
}

qsizetype ByteSearch::IndexIn(QByteArrayView bytes, qsizetype from) const {
    const char* wanted = wanted_.constData();
    const char* const end = bytes.end();
    int length = 0;
    for (const char* at = bytes.begin() + from; at < end; ++at) {
        if (length == 0) {
            at = static_cast<const char*>(std::memchr(at, wanted[0], static_cast<std::size_t>(end - at)));
            if (!at)
                return -1;
        }
        while (length > 0 && *at != wanted[length])
            length = again_[static_cast<std::size_t>(length - 1)];
        length += *at == wanted[length];
        if (length == wanted_.size())
            return at + 1 - length - bytes.begin();
    }
    return -1;
}
