// Any bytes as the copy of a document, and any bytes behind a sum that fits them: nothing is read into a copy
// that would not be written as these very bytes.
#include "app/recovery/DocumentCopy.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <QCryptographicHash>

namespace {

void Read(const QByteArray& bytes) {
    const std::optional<DocumentCopy> copy = CopyFromBytes(bytes);
    if (!copy)
        return;
    const QByteArray again = BytesOf(*copy);
    if (CopyFromBytes(again) != copy || !again.endsWith(copy->content.utf8))
        std::abort();
    DocumentFiles::TakeBack(copy->content);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    Read(bytes);
    const QByteArray sum = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
    Read("Tarnwick copy 1\nsum: " + sum + '\n' + bytes);
    // The lines in front are hard to guess.
    Read(BytesOf({.path = QString::fromUtf8(bytes), .caret = int(size), .content = {bytes, {}}}));
    return 0;
}
