#include "tools/ToolCommands.h"

#include "tools/find/FindCommands.h"

void FillToolCommands(Frame& frame) {
    FillFindCommands(frame);
}
