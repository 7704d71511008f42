// What a command costs on a selection by its length: each goes over the text as a whole, never once for each
// line or tag of it.
#include "app/surface/ToolbarCommands.h"
#include "builders/commands/MenuTagCommands.h"
#include "support/CommandTest.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QClipboard>

namespace {

/// One of each kind of command.
constexpr const char* commands[] = {
    "mnuBold", "mnuCopyright", "mnuFace", "mnuImageMap", "mnuDef",   "tb_h1",     "tb_balloon",
    "tb_meta", "tb_anchor",    "tb_dots", "tb_cut",      "tb_paste", "tb_delete",
};

/// Input boxes are answered by an "x".
void RunOnSelection(benchmark::State& state, const QString& command, bool colored) {
    TestFrame frame;
    FillMenuTagCommands(frame);
    FillToolbarCommands(frame);
    frame.Store().WriteFlag(Keys::ColoredTags, colored);
    QApplication::clipboard()->setText(QStringLiteral("pasted"));
    const QString text = TroublesomeText(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto step : state) {
        state.PauseTiming();
        frame.SetText(text);
        frame.Box().SetSelStart(0);
        frame.Box().SetSelLength(frame.Box().TextLength());
        frame.Box().EmptyUndoBuffer();
        frame.prompts.inputAnswers = {QStringLiteral("x"), QStringLiteral("x")};
        state.ResumeTiming();
        frame.Commands().Run(command);
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void Register(const std::string& name, const QString& command, bool colored) {
    const auto run = [command, colored](benchmark::State& state) { RunOnSelection(state, command, colored); };
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->RangeMultiplier(10)
        ->Range(100'000, 10'000'000)
        ->Unit(benchmark::kMillisecond)
        ->Complexity(benchmark::oN);
}

[[maybe_unused]] const bool registered = [] {
    for (const char* command : commands)
        Register(command, QString::fromLatin1(command), true);
    Register("mnuBoldWithColoringOff", QStringLiteral("mnuBold"), false);
    return true;
}();

} // namespace
