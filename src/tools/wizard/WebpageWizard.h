// The command that leads through a series of questions and writes a page from the answers.
#pragma once

class Frame;

/// Makes a new document, lets the user save it under a name, and fills it; saving the page is left to the
/// user. Where it waits for a dialog the program stays alive: a page that is closed meanwhile ends it
/// silently, and choosing the command again does nothing until it has ended.
void mnuWizard_Click(Frame& frame);
