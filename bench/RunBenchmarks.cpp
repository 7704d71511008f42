// What every benchmark program does.
#include "RunBenchmarks.h"

#include "ShapeReporter.h"
#include "support/FreshUser.h"

#include <benchmark/benchmark.h>

void PrepareBenchmarks() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    FreshUser();
}

int RunBenchmarks(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    ShapeReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.AllHold() ? 0 : 1;
}
