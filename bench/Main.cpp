// main() of the benchmarks that need nothing but their application.
#include "RunBenchmarks.h"

#include <QApplication>

int main(int argc, char** argv) {
    PrepareBenchmarks();
    const QApplication application(argc, argv);
    return RunBenchmarks(argc, argv);
}
