// What the program says on the terminal instead of starting.
#pragma once

#include <string>

/// The answer to --help (-h) or --version (-v) alone; empty for every other command line, which is a path to
/// open.
std::string TerminalAnswer(int argc, const char* const* argv);
