// The spell check costs the same for each word, whatever the page's size, and leaves no event waiting long.
#include "editor/spelling/SpellChecker.h"
#include "editor/spelling/SpellCommands.h"
#include "editor/spelling/SpellRun.h"
#include "editor/spelling/WordList.h"
#include "support/FreshUser.h"
#include "support/TestFrame.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <ctime>
#include <QCoreApplication>

namespace {

/// What this thread has worked: what else the machine does is left out.
double Milliseconds() {
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// Pages of paragraphs, or one stretch of text without a tag.
QString Page(int64_t size, const QString& line) {
    QString page;
    page.reserve(static_cast<qsizetype>(size) + line.size());
    while (page.size() < size)
        page += line;
    return page;
}

void Check(benchmark::State& state, const QString& line) {
    TestFrame frame;
    // What scrolls in view is another benchmark's.
    frame.Box().setUpdatesEnabled(false);
    SpellChecker checker(frame.window.get());
    checker.CustomDic = TestFolder() + QStringLiteral("/custom.vtc");
    WordList::Add(checker.CustomDic, QStringLiteral("caf\u00e9"));
    WordList::Add(checker.CustomDic, QStringLiteral("na\u00efve"));
    FillSpellCommands(frame, checker);
    const auto& run = *checker.findChild<SpellRun*>();
    bool asked = false;
    QObject::connect(&checker, &SpellChecker::WordFound, frame.window.get(), [&] { asked = true; });
    double longest = 0;
    const auto check = [&] {
        double last = Milliseconds();
        frame.commands.Run(QStringLiteral("mnuSpellCheck"));
        while (run.Running()) {
            // A word that is not known would be asked about for ever.
            if (asked)
                std::abort();
            longest = std::max(longest, Milliseconds() - last);
            last = Milliseconds();
            QCoreApplication::processEvents();
        }
    };
    // The dictionary is read once.
    frame.SetText(line);
    check();
    frame.SetText(Page(state.range(0), line));
    for ([[maybe_unused]] auto step : state)
        check();
    state.SetComplexityN(state.range(0));
    state.counters["words"] = benchmark::Counter(static_cast<double>(checker.WordsChecked()),
                                                 benchmark::Counter::kIsIterationInvariantRate);
    state.counters["longest_turn_ms"] = longest;
}

void Paragraphs(benchmark::State& state) {
    Check(state,
          QStringLiteral("<p align=\"left\">The quick brown <b>fox</b> jumps over the lazy dog.</p>\r\n"));
}

void OneStretch(benchmark::State& state) {
    Check(state, QStringLiteral("The quick brown fox jumps over the lazy dog. "));
}

void Accented(benchmark::State& state) {
    Check(state,
          QStringLiteral("<p>The quick caf\u00e9 <b>jumps</b> over the na&iuml;ve dog&rsquo;s bed.</p>\r\n"));
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
    for (const int64_t size : {int64_t{100'000}, int64_t{1'000'000}, int64_t{10'000'000}})
        benchmark->Arg(size);
    benchmark->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);
}

BENCHMARK(Paragraphs)->Apply(Sizes);
BENCHMARK(OneStretch)->Apply(Sizes);
BENCHMARK(Accented)->Apply(Sizes);

} // namespace
