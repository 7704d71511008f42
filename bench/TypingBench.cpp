// A key costs the same in a small page and in the middle of ten megabytes.
#include "support/TypingFrame.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int64_t smallPage = 10'000;
constexpr int64_t largePage = 10'000'000;

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

} // namespace
