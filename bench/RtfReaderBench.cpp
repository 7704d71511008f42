// Reading RTF: linear in the text, plain or full of colour words. A byte costs the same in every text.
#include "platform/text/RtfReader.h"

#include <benchmark/benchmark.h>

namespace {

QString Colored(qsizetype size) {
    const QString piece = QStringLiteral("\\cf2 <B>\\cf1 some words\\cf2 </B>\\cf1 and more\\par ");
    QString rtf = QStringLiteral("{{\\colortbl ;\\red0\\green0\\blue0;\\red0\\green0\\blue255;}");
    rtf.reserve(size + piece.size());
    while (rtf.size() < size)
        rtf += piece;
    return rtf + QLatin1Char('}');
}

void Read(benchmark::State& state, const QString& rtf) {
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(ReadRtf(rtf, RawLineEnds::Keep));
    state.SetBytesProcessed(state.iterations() * rtf.size());
    state.SetComplexityN(state.range(0));
}

void ReadColored(benchmark::State& state) {
    Read(state, Colored(state.range(0)));
}

void ReadPlain(benchmark::State& state) {
    Read(state, QString(state.range(0), QLatin1Char('x')));
}

/// Opening braces that are never closed, and colour words without a text: nothing of it may add up.
void ReadNested(benchmark::State& state) {
    Read(state, QString(state.range(0), QLatin1Char('{')));
}

BENCHMARK(ReadColored)->Range(1 << 12, 1 << 23)->Complexity(benchmark::oN);
BENCHMARK(ReadPlain)->Range(1 << 12, 1 << 23)->Complexity(benchmark::oN);
BENCHMARK(ReadNested)->Range(1 << 12, 1 << 20)->Complexity(benchmark::oN);

} // namespace
