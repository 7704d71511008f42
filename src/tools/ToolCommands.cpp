#include "tools/ToolCommands.h"

void FillToolCommands(Frame& /*frame*/) {}
