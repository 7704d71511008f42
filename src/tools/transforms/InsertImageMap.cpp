#include "tools/transforms/InsertImageMap.h"

#include "dialogs/FileDialogs.h"
#include "editor/color/InsertTag.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/WholeFile.h"
#include "platform/values/TextEncoding.h"
#include "tools/transforms/MapAreas.h"

namespace {

/// Where a text file ends, whatever follows.
constexpr char endOfText = 26;

/// The areas of a map file, in the encoding that its bytes have; nothing where it can't be read.
std::optional<QString> ReadMapAreas(const QString& path) {
    std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes)
        return std::nullopt;
    if (const qsizetype end = bytes->indexOf(endOfText); end >= 0)
        bytes->truncate(end);
    return MapAreas(Decode(*bytes, EncodingOf(*bytes)));
}

} // namespace

void mnuInsertImageMap_Click(Frame& frame) {
    if (!frame.ActiveForm())
        return;
    const QString filter = FileFilter::AnyFile + QStringLiteral("Map Files (*.map)|*.map|");
    const auto path = PickFile(frame, frame.Window(), {.filter = filter, .filterIndex = 2});
    if (!path)
        return;
    const std::optional<QString> areas = ReadMapAreas(*path);
    if (!areas)
        return;
    const QString name = frame.Ask().InputBox(frame.Window(), QStringLiteral("Enter Map Name"), ProgramTitle);
    InsertTag(frame, MapTag(name, *areas), QString(), KeepCase::No);
}
