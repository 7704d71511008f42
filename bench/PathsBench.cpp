// What turning a picked file into a link target costs by the length of its path: it must be linear.
#include "dialogs/Paths.h"
#include "editor/color/TagEnds.h"

#include <benchmark/benchmark.h>

namespace {

/// A path of so many one-letter folders.
QString Deep(qint64 folders, QChar letter) {
    return u'/' + (QString(letter) + u'/').repeated(folders) + QStringLiteral("a.htm");
}

QString AsAsked(const QString&, const QString& name) {
    return name;
}

void RelateSharedFolders(benchmark::State& state) {
    const QString document = Deep(state.range(0), u'x');
    const QString target = Deep(state.range(0), u'x');
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(RelativePath(document, target, AsAsked));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(RelateSharedFolders)->RangeMultiplier(10)->Range(100, 100'000)->Complexity(benchmark::oN);

void RelateOtherFolders(benchmark::State& state) {
    const QString document = Deep(state.range(0), u'x');
    const QString target = Deep(state.range(0), u'y');
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(RelativePath(document, target, AsAsked));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(RelateOtherFolders)->RangeMultiplier(10)->Range(100, 100'000)->Complexity(benchmark::oN);

void FindTagInLongText(benchmark::State& state) {
    const QString text = QStringLiteral("<img ") + QString(state.range(0), u'x') + u'>';
    const auto read = [&text](int start, int length) { return text.mid(start, length); };
    const int caret = static_cast<int>(text.size()) - 1;
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(FindTagAround(caret, read));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(FindTagInLongText)->RangeMultiplier(10)->Range(1'000, 10'000'000)->Complexity(benchmark::oN);

} // namespace
