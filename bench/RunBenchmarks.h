// What every benchmark program does.
#pragma once

/// Before the application exists: no screen, unless told otherwise, and a user of its own.
void PrepareBenchmarks();

/// Runs the benchmarks that the command line chooses. Returns the process's exit code: 1 where one of them
/// outgrows the complexity that it claims, or the command line is wrong.
int RunBenchmarks(int argc, char** argv);
