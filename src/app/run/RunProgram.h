// One run of the program, from the start screen to the end of the process.
#pragma once

#include <QString>

class frmTarnwick;
class SingleInstance;

/// Loads and shows the frame and stays until it is unloaded. Where another copy of the program runs already
/// it hands the command line over to that one and returns at once, with nothing shown and nothing written.
/// Returns the exit code of the process.
int RunProgram(frmTarnwick& frame, SingleInstance& instance, const QString& commandLine);

/// The user's session is about to end: each document whose text changed asks about saving. The frame stays,
/// since the session may yet go on. False if it has to: a question was answered with Cancel, or a dialog is
/// up that keeps the frame from being closed by hand as well.
bool SaveAtSessionEnd(frmTarnwick& frame);
