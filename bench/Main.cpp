// main() of the benchmarks: an application without a screen, and a user of its own. Ends with 1 where one of
// them outgrows the complexity that it claims.
#include "Shape.h"
#include "support/FreshUser.h"

#include <benchmark/benchmark.h>
#include <QApplication>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    FreshUser();
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    ShapeReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.AllHold() ? 0 : 1;
}
