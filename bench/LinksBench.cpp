// The Link Browser by the length of the page: 10,000 links in the longest, read, shown and opened.
#include "support/TestFrame.h"
#include "tools/links/frmHTTPExplorer.h"
#include "tools/links/LinkScan.h"
#include "UntilIdle.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int bytesPerLink = 1000;

/// A link in every thousand characters, all different.
QString PageOfLinks(qsizetype size) {
    QString page;
    for (int link = 0; page.size() < size; ++link) {
        page += QStringLiteral("<P><A HREF=\"pages/Page%1.htm\">link</A> ").arg(link);
        page += QString(bytesPerLink - page.size() % bytesPerLink - 2, u'x') + QStringLiteral("\r\n");
    }
    return page;
}

void ShowLinks(benchmark::State& state) {
    TestFrame frame;
    frame.active->caption = QStringLiteral("/home/u/site/index.htm");
    frame.SetText(PageOfLinks(state.range(0)));
    RunUntilIdle();
    for ([[maybe_unused]] auto step : state) {
        mnuShowLinks_Click(frame);
        frame.LoadedForms().Find<frmHTTPExplorer>()->repaint();
        state.PauseTiming();
        RunUntilIdle();
        frame.LoadedForms().Unload<frmHTTPExplorer>();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

/// What a scan could go over again and again: words without quotes, and quotes far away.
void Scan(benchmark::State& state, const QString& piece) {
    const QString text = piece.repeated(state.range(0) / piece.size()) + QStringLiteral("\"x\"");
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(ExtractLinks(QStringLiteral("/a.htm"), text));
    state.SetComplexityN(state.range(0));
}

void Shape(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)
        ->Range(100'000, 10'000'000)
        ->Unit(benchmark::kMillisecond)
        ->Complexity(benchmark::oN);
}

BENCHMARK(ShowLinks)->Apply(Shape);
BENCHMARK_CAPTURE(Scan, words, QStringLiteral("href "))->Apply(Shape);
BENCHMARK_CAPTURE(Scan, quotes, QStringLiteral("\"href"))->Apply(Shape);
BENCHMARK_CAPTURE(Scan, same, QStringLiteral("href=\"a.htm\" "))->Apply(Shape);

} // namespace
