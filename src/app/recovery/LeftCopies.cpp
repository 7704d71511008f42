#include "app/recovery/LeftCopies.h"

#include "platform/store/WholeFile.h"

#include <algorithm>
#include <QFileInfo>

namespace {

void Add(std::vector<LeftCopy>& copies, LeftCopy left) {
    const auto same = std::ranges::find_if(
        copies, [&](const LeftCopy& other) { return other.copy.path == left.copy.path; });
    if (same == copies.end() || left.copy.path.isEmpty())
        copies.push_back(std::move(left));
    else if (same->written <= left.written)
        *same = std::move(left);
}

} // namespace

LeftCopies TakeLeftCopies() {
    LeftCopies left;
    for (const auto& run : RunCopies::TakeLeft()) {
        for (const QString& file : run->Files()) {
            const std::optional<QByteArray> bytes = WholeFile::Read(file);
            if (std::optional<DocumentCopy> copy = bytes ? CopyFromBytes(*bytes) : std::nullopt)
                Add(left.copies, {run, file, QFileInfo(file).lastModified(), std::move(*copy)});
            else
                left.unreadable << file;
        }
    }
    return left;
}
