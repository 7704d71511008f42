#include "app/documents/CutPages.h"

#include "app/recovery/KeepAside.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/store/WholeFile.h"
#include "platform/values/Path.h"

namespace {

QString Words(ReadPart part) {
    switch (part) {
    case ReadPart::UpToEndOfText:
        return QStringLiteral("%1 holds an end-of-text byte: what follows it was not read");
    case ReadPart::NothingForEndOfText:
        return QStringLiteral("%1 holds an end-of-text byte: nothing of it was read");
    case ReadPart::Nothing:
        return QStringLiteral("%1 could not be read");
    case ReadPart::Whole:
        break;
    }
    return {};
}

} // namespace

namespace CutPages {

void Tell(Frame& frame, const QString& path, ReadPart part) {
    if (part != ReadPart::Whole && frame.Store().ReadFlag(Keys::KeepCutPages))
        frame.ShowNotice(Words(part).arg(Path::FileName(path)));
}

KeptFile Keep(const Settings& store, const QString& path, Document& document) {
    if (document.OnDisk().wasReadWhole || !store.ReadFlag(Keys::KeepCutPages) || WholeFile::Size(path) < 0)
        return {};
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes)
        return {.result = WriteResult::Failed(QStringLiteral("what it holds could not be read")), .path = {}};
    const std::optional<QString> kept = KeepAside(path, *bytes);
    if (!kept)
        return {.result = WriteResult::Failed(QStringLiteral("what it holds could not be kept")), .path = {}};
    document.OnDisk().wasReadWhole = true;
    return {.result = {}, .path = *kept};
}

void TellKept(Frame& frame, const QString& path, const QString& keptPath) {
    frame.ShowNotice(QStringLiteral("What %1 held is kept in %2").arg(Path::FileName(path), keptPath));
}

} // namespace CutPages
