#include "styles/StyleCommands.h"

void FillStyleCommands(Frame& /*frame*/) {}
