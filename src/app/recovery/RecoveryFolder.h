// Where what could be lost is kept.
#pragma once

#include <QString>

/// The folder "recovery" in the program's folder, which need not be there; without a separator at its end.
QString RecoveryFolder();

/// The same, made (mode 0700) where it is missing. One that can't be made shows when a file is put into it.
QString MakeRecoveryFolder();
