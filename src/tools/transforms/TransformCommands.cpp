#include "tools/transforms/TransformCommands.h"

#include "editor/frame/Commands.h"
#include "editor/frame/Frame.h"
#include "tools/transforms/InsertImageMap.h"
#include "tools/transforms/LineEnds.h"
#include "tools/transforms/LineTags.h"
#include "tools/transforms/RemoveTags.h"

void FillTransformCommands(Frame& frame) {
    FillLineEndCommands(frame);
    FillLineTagCommands(frame);
    frame.Commands().Set(QStringLiteral("mnuRemoveTags"), [&frame] { mnuRemoveTags_Click(frame); });
    frame.Commands().Set(QStringLiteral("mnuInsertImageMap"), [&frame] { mnuInsertImageMap_Click(frame); });
}
