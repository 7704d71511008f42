// The commands that rewrite a whole document, by its length: none works line by line or tag by tag in the
// control.
#include "support/Files.h"
#include "support/FreshUser.h"
#include "support/TestFrame.h"
#include "tools/transforms/TransformCommands.h"
#include "UntilIdle.h"

#include <benchmark/benchmark.h>

namespace {

/// 56,000 tags in a megabyte, in the colours of a page.
QString PageOfTags(qsizetype size) {
    const QString row =
        QStringLiteral("<TR><TD>what stands in the first cell of a row</TD><TD>and in the next</TD></TR>\r\n"
                       "<!-- a remark about it --><P>and some words of a line, as pages have them<BR>\r\n");
    return row.repeated(size / row.size());
}

void PutColored(TestFrame& frame, const QString& text) {
    frame.SetText(QString());
    QString rtf = text;
    rtf.replace(QStringLiteral("<"), QStringLiteral("\\cf2 <"))
        .replace(QStringLiteral(">"), QStringLiteral(">\\cf1 "))
        .replace(QStringLiteral("\r\n"), QStringLiteral("\\par "));
    frame.Box().SetSelRTF(QStringLiteral("{{\\colortbl ;\\red0\\green0\\blue0;\\red0\\green0\\blue255;}") +
                          rtf + QStringLiteral("}"));
    frame.Box().streams.clear();
}

enum class Selected { Nothing, All };

void RunOnPage(benchmark::State& state, const QString& command, Selected selected) {
    TestFrame frame;
    FillTransformCommands(frame);
    const QString text = PageOfTags(state.range(0));
    for ([[maybe_unused]] auto step : state) {
        state.PauseTiming();
        PutColored(frame, text);
        frame.Box().SetSelStart(0);
        if (selected == Selected::All)
            frame.Box().SetSelLength(frame.Box().TextLength());
        frame.Box().EmptyUndoBuffer();
        frame.prompts.messageAnswers = {MsgAnswer::Yes};
        RunUntilIdle();
        state.ResumeTiming();
        frame.Commands().Run(command);
    }
    state.SetComplexityN(state.range(0));
}

void InsertMap(benchmark::State& state) {
    TestFrame frame;
    FillTransformCommands(frame);
    const QString path = TestFolder() + QStringLiteral("/long.map");
    const QByteArray line("rect /pages/a.htm 10,10 200,100\r\n");
    WriteFile(path, line.repeated(state.range(0) / line.size()));
    for ([[maybe_unused]] auto step : state) {
        state.PauseTiming();
        frame.SetText(QString());
        frame.Box().EmptyUndoBuffer();
        frame.prompts.openAnswers = {ScriptedPrompts::Picked(path)};
        frame.prompts.inputAnswers = {QStringLiteral("x")};
        state.ResumeTiming();
        frame.Commands().Run(QStringLiteral("mnuInsertImageMap"));
    }
    state.SetComplexityN(state.range(0));
}

void Shape(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)
        ->Range(100'000, 10'000'000)
        ->Unit(benchmark::kMillisecond)
        ->Complexity(benchmark::oN);
}

BENCHMARK_CAPTURE(RunOnPage, RemoveTags, QStringLiteral("mnuRemoveTags"), Selected::Nothing)->Apply(Shape);
BENCHMARK_CAPTURE(RunOnPage, RemoveTagsOfASelection, QStringLiteral("mnuRemoveTags"), Selected::All)
    ->Apply(Shape);
BENCHMARK_CAPTURE(RunOnPage, ConvertToUNIX, QStringLiteral("mnuConvertToUNIX"), Selected::Nothing)
    ->Apply(Shape);
BENCHMARK_CAPTURE(RunOnPage, ConvertFromMac, QStringLiteral("mnuConvertFromMac"), Selected::Nothing)
    ->Apply(Shape);
BENCHMARK_CAPTURE(RunOnPage, AddBreaks, QStringLiteral("mnuAddBreaks"), Selected::All)->Apply(Shape);
BENCHMARK(InsertMap)->Apply(Shape);

} // namespace
