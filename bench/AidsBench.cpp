// What the aids beside the text cost: a key about as much with them as without, in any text; a turn of the
// search for a tag's partner the same in every text; the whole search linear, also in text that never ends
// what it begins.
#include "editor/aids/PartnerMark.h"
#include "platform/text/RichTextBox.h"
#include "RunBenchmarks.h"
#include "UntilIdle.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <ctime>
#include <memory>
#include <QApplication>
#include <QKeyEvent>

namespace {

constexpr int shortest = 10'000;
constexpr int longest = 10'000'000;
/// A key with the aids costs so many times one without, at most.
constexpr double mostTimesPlain = 2;

QString Page(int64_t size) {
    const QString line = QStringLiteral("<tr><td align=\"left\">Some words</td><td>and more</td></tr>\r\n");
    return QStringLiteral("<table>\r\n") + line.repeated(size / line.size()) + QStringLiteral("</table>\r\n");
}

TextReader ReaderOf(const QString& text) {
    return [&text](int start, int length) { return text.mid(start, length); };
}

void WholeSearch(benchmark::State& state, const QString& text, int caret) {
    for ([[maybe_unused]] auto step : state) {
        PartnerSearch search(caret, ReaderOf(text));
        while (search.Turn(1 << 16)) {
        }
        benchmark::DoNotOptimize(search.Found());
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
void FromTheTop(benchmark::State& state) {
    WholeSearch(state, Page(state.range(0)), 1);
}
void FromTheEnd(benchmark::State& state) {
    const QString page = Page(state.range(0));
    WholeSearch(state, page, static_cast<int>(page.size()) - 4);
}
void OfUnendedComments(benchmark::State& state) {
    WholeSearch(state,
                QStringLiteral("<p>") + QStringLiteral("<!-- <i t=\"> <? ").repeated(state.range(0) / 16), 1);
}
void OfBrackets(benchmark::State& state) {
    WholeSearch(state, QStringLiteral("<p>") + QString(state.range(0), u'<'), 1);
}
void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)
        ->Range(shortest, longest)
        ->Unit(benchmark::kMillisecond)
        ->Complexity(benchmark::oN);
}
BENCHMARK(FromTheTop)->Apply(Sizes);
BENCHMARK(FromTheEnd)->Apply(Sizes);
BENCHMARK(OfUnendedComments)->Apply(Sizes);
BENCHMARK(OfBrackets)->Apply(Sizes);

/// A turn in the middle of the work.
void OneTurn(benchmark::State& state) {
    const QString page = Page(state.range(0));
    auto search = std::make_unique<PartnerSearch>(static_cast<int>(page.size()) - 4, ReaderOf(page));
    for ([[maybe_unused]] auto step : state) {
        if (search->Turn(1 << 16))
            continue;
        state.PauseTiming();
        search = std::make_unique<PartnerSearch>(static_cast<int>(page.size()) - 4, ReaderOf(page));
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(OneTurn)->Arg(1'000'000)->Arg(longest)->Complexity(benchmark::o1);

double ThreadSeconds() {
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

/// The middle of a page on the screen, with the caret in a tag or in the words behind it.
class Typist {
  public:
    Typist(bool aids, int behindLineStart) {
        box_.SetHolds(CharacterSet::Unicode);
        box_.resize(800, 600);
        box_.show();
        box_.SetText(Page(longest));
        box_.EmptyUndoBuffer();
        if (aids) {
            box_.Aids().ShowCurrentLine(true);
            box_.Aids().ShowLineNumbers(true);
            mark_ = std::make_unique<PartnerMark>(box_, &box_);
        }
        box_.SetSelStart(box_.LineStart(longest / 2) + behindLineStart);
        RunUntilIdle();
        while (mark_ && mark_->Busy())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        RunUntilIdle();
    }
    /// What one key takes until it is painted, at its cheapest and on the average.
    std::pair<double, double> Keys() {
        constexpr int keys = 400;
        double best = 1e9;
        double all = 0;
        for (int i = 0; i < keys; ++i) {
            const double start = ThreadSeconds();
            Press(i % 2 == 0 ? Qt::Key_X : Qt::Key_Backspace,
                  i % 2 == 0 ? QStringLiteral("x") : QStringLiteral("\b"));
            const double taken = ThreadSeconds() - start;
            best = std::min(best, taken);
            all += taken;
        }
        return {best, all / keys};
    }

  private:
    void Press(int key, const QString& text) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&box_, &press);
        // Paints; no key leaves a pause for the search.
        QCoreApplication::processEvents();
    }

    RichTextBox box_;
    std::unique_ptr<PartnerMark> mark_;
};

bool AKeyCostsAboutTheSame() {
    bool holds = true;
    for (const auto& [place, behindLineStart] : {std::pair{"in a tag", 6}, {"in words", 26}}) {
        double plain = 1e9;
        double aided = 1e9;
        // The best of several rounds, taken in turns: others share the machine.
        for (int round = 0; round < 3; ++round) {
            plain = std::min(plain, Typist(false, behindLineStart).Keys().second);
            aided = std::min(aided, Typist(true, behindLineStart).Keys().second);
        }
        std::printf("A key %s, in the middle of %d bytes: %.3f ms, with the aids %.3f ms, %.2f times\n",
                    place, longest, plain * 1e3, aided * 1e3, aided / plain);
        holds = holds && aided <= mostTimesPlain * plain;
    }
    return holds;
}

} // namespace

int main(int argc, char** argv) {
    PrepareBenchmarks();
    const QApplication application(argc, argv);
    const bool shapesHold = RunBenchmarks(argc, argv) == 0;
    const bool keysAreCheap = AKeyCostsAboutTheSame();
    return shapesHold && keysAreCheap ? 0 : 1;
}
