// The settings and program folder of a user who never ran the program.
#pragma once

#include <QString>

/// Empties the test's own configuration folder and program folder. Main.cpp set them up at start, below a
/// temporary folder that goes with the process; no test ever sees the settings of the person who runs it.
/// With TARNWICK_WITHOUT_EXTRAS in the environment the user has turned off, one setting each, what is drawn
/// or done beside the menus and dialogs.
void FreshUser();

/// A temporary folder of this test process, made empty by FreshUser; without a separator at its end.
QString TestFolder();
