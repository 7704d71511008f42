// A key in a small page and in the middle of ten megabytes. Ends with 1 where the cost grows with the page.
#include "support/FreshUser.h"
#include "support/TypingFrame.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <QApplication>

namespace {

constexpr int64_t smallPage = 10'000;
constexpr int64_t largePage = 10'000'000;
/// Ten megabytes may cost this much more than ten kilobytes: noise, not growth.
constexpr double mostGrowth = 3;

/// Lines of tags and words, with the caret in the middle, behind a line's text.
void OpenPage(TypingFrame& frame, int64_t size, bool accented) {
    const QString line = accented ? QStringLiteral("<p align=\"left\">Caf\u00e9 cr\u00e8me</p> and more\r\n")
                                  : QStringLiteral("<p align=\"left\">Some words</p> and more\r\n");
    QString page;
    page.reserve(static_cast<qsizetype>(size) + line.size());
    while (page.size() < size)
        page += line;
    frame.Box().SetText(page);
    const auto middle = static_cast<int>(page.indexOf(QStringLiteral("\r\n"), page.size() / 2));
    frame.Box().SetSelStart(middle);
    frame.Box().EmptyUndoBuffer();
}

/// Types and takes back: the text is the same at each turn.
void TypeIn(benchmark::State& state, const char* keys, const char* back, bool accented = false) {
    TypingFrame frame;
    OpenPage(frame, state.range(0), accented);
    for ([[maybe_unused]] auto step : state) {
        frame.Type(keys);
        frame.Type(back);
    }
    state.SetComplexityN(state.range(0));
}

void Letter(benchmark::State& state) {
    TypeIn(state, "x", "\b");
}

void LetterInAccentedPage(benchmark::State& state) {
    TypeIn(state, "x", "\b", true);
}

void Blank(benchmark::State& state) {
    TypeIn(state, " ", "\b");
}

void ClosedTag(benchmark::State& state) {
    TypeIn(state, "<B>", "\b\b\b");
}

void Entity(benchmark::State& state) {
    TypeIn(state, "\xe9", "\b\b\b\b\b\b\b\b");
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
    for (const int64_t size : {smallPage, int64_t{100'000}, int64_t{1'000'000}, largePage})
        benchmark->Arg(size);
    benchmark->Complexity(benchmark::o1)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(Letter)->Apply(Sizes);
BENCHMARK(LetterInAccentedPage)->Apply(Sizes);
BENCHMARK(Blank)->Apply(Sizes);
BENCHMARK(ClosedTag)->Apply(Sizes);
BENCHMARK(Entity)->Apply(Sizes);

/// Shows what was measured, and compares the large page with the small one.
class GrowthReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const double cost = run.cpu_accumulated_time / static_cast<double>(run.iterations);
            if (run.complexity_n == smallPage)
                small_ = cost;
            else if (run.complexity_n == largePage && small_ > 0)
                Compare(run.run_name.function_name, cost / small_);
        }
    }
    bool Flat() const { return flat_; }

  private:
    void Compare(const std::string& name, double growth) {
        std::printf("%s: ten megabytes cost %.2f times ten kilobytes\n", name.c_str(), growth);
        flat_ = flat_ && growth <= mostGrowth;
    }

    double small_ = 0;
    bool flat_ = true;
};

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    FreshUser();
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    GrowthReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.Flat() ? 0 : 1;
}
