// One run of the program, from the start screen to the end of the process.
#pragma once

#include <QString>

class frmTarnwick;
class SingleInstance;

/// Loads and shows the frame and stays until it is unloaded. Where another copy of the program runs already it
/// hands the command line over to that one and returns at once, with nothing shown and nothing written. Returns
/// the exit code of the process.
int RunProgram(frmTarnwick& frame, SingleInstance& instance, const QString& commandLine);

/// Closes the frame because the user's session ends: the documents ask as they always do. False if the session
/// has to go on: a question was answered with Cancel, or a dialog is up that keeps the frame from being closed by
/// hand as well.
bool CloseAtSessionEnd(frmTarnwick& frame);
