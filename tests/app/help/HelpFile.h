// The help file as the build made it.
#pragma once

#include <QString>

/// Its path; empty where the machine has no compiler for it.
QString BuiltHelpFile();
