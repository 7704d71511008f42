#include "tools/find/ReplaceInFiles.h"

#include "platform/store/WholeFile.h"
#include "tools/find/BytesReplacement.h"

#include <utility>

void ReplaceInFiles(const QStringList& paths, const BytesReplacement& replacement,
                    const std::function<void(int)>& next) {
    QByteArray text;
    int number = 0;
    for (const QString& path : paths) {
        next(++number);
        if (std::optional<QByteArray> content = WholeFile::Read(path))
            text = *std::move(content);
        text = replacement.In(text);
        WholeFile::Write(path, text + "\r\n", WholeFile::Readers::AsTheUsersMaskAsks,
                         WholeFile::Flush::Later);
    }
}
