#include "tools/ToolCommands.h"

#include "tools/find/FindCommands.h"
#include "tools/printing/PrintCommands.h"

void FillToolCommands(Frame& frame) {
    FillFindCommands(frame);
    FillPrintCommands(frame);
}
