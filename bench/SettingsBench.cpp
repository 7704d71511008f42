// What reading a setting costs: some are read at every key press. Ends with 1 where a read gets dearer with
// the number of keys, or with the length of another value, by more than the search for a name explains.
#include "platform/store/Settings.h"
#include "support/FreshUser.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <QApplication>

namespace {

constexpr int fewKeys = 10;
constexpr int manyKeys = 10'000;
constexpr double dearestToCheapest = 5;

/// A store with so many keys beside one value of a megabyte, written and opened anew.
void Prepare(int keys) {
    FreshUser();
    Settings settings;
    settings.Write(Keys::UserTemplate, QString(1'000'000, u'x'));
    for (int n = 0; n < keys; ++n)
        settings.Write(Keys::ProjFile(n), QStringLiteral("/home/u/site/page%1.html").arg(n));
    settings.WriteFlag(Keys::ConvertChar, true);
}

void ReadFlag(benchmark::State& state) {
    Prepare(static_cast<int>(state.range(0)));
    const Settings settings;
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(settings.ReadFlag(Keys::ConvertChar));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ReadFlag)->Arg(fewKeys)->Arg(1'000)->Arg(manyKeys)->Complexity();

/// Nanoseconds of one read, the best of several rounds: others share the machine.
double ReadTime(int keys) {
    Prepare(keys);
    const Settings settings;
    constexpr int rounds = 20;
    constexpr int reads = 5'000;
    double best = 1e9;
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        for (int n = 0; n < reads; ++n)
            benchmark::DoNotOptimize(settings.ReadFlag(Keys::ConvertChar));
        const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
        best = std::min(best, taken.count() / reads);
    }
    return best;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    const double few = ReadTime(fewKeys);
    const double many = ReadTime(manyKeys);
    std::printf("a read among %d keys %.0f ns, among %d keys %.0f ns\n", fewKeys, few, manyKeys, many);
    return many > dearestToCheapest * few ? 1 : 0;
}
