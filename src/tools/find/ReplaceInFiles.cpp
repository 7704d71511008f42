#include "tools/find/ReplaceInFiles.h"

#include "editor/frame/TellFailedSave.h"
#include "platform/store/WholeFile.h"
#include "tools/find/BytesReplacement.h"

#include <utility>

namespace {

WriteResult Write(const QString& path, const QByteArray& text) {
    return WholeFile::Write(path, text, WholeFile::Readers::AsTheUsersMaskAsks, WholeFile::Flush::Later);
}

} // namespace

FailedSaves ReplaceInFiles(const QStringList& paths, const BytesReplacement& replacement,
                           const std::function<void(int)>& next) {
    FailedSaves failed;
    QByteArray text;
    int number = 0;
    for (const QString& path : paths) {
        next(++number);
        if (std::optional<QByteArray> content = WholeFile::Read(path))
            text = *std::move(content);
        text = replacement.In(text);
        if (const WriteResult written = Write(path, text + "\r\n"); !written)
            failed.Add(path, written.Reason());
    }
    return failed;
}
