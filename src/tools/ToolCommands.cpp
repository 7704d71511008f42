#include "tools/ToolCommands.h"

#include "editor/frame/Commands.h"
#include "editor/frame/Frame.h"
#include "tools/find/FindCommands.h"
#include "tools/printing/PrintCommands.h"
#include "tools/transforms/TransformCommands.h"
#include "tools/wizard/WebpageWizard.h"

void FillToolCommands(Frame& frame) {
    FillFindCommands(frame);
    FillPrintCommands(frame);
    FillTransformCommands(frame);
    frame.Commands().Set(QStringLiteral("mnuWizard"), [&frame] { mnuWizard_Click(frame); });
}
