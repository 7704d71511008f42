// What a table costs by its cells: laid out and inserted, and read back into the grid.
#include "builders/tables/frmTable.h"
#include "builders/tables/Grid.h"
#include "builders/tables/ReadTable.h"
#include "support/TestFrame.h"
#include "UntilIdle.h"

#include <benchmark/benchmark.h>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QPushButton>

namespace {

void Press(frmTable& table, const char* name) {
    table.findChild<QPushButton*>(QString::fromLatin1(name))->click();
}

/// All cells of a table of 99 columns, filled.
void FillCells(frmTable& table, int rows) {
    constexpr int columns = 99;
    table.findChild<QComboBox*>(QStringLiteral("txtRows"))->setEditText(QString::number(rows));
    table.findChild<QComboBox*>(QStringLiteral("txtCols"))->setEditText(QString::number(columns));
    auto& Grid1 = *table.findChild<Grid*>();
    for (int row = 0; row < rows; ++row) {
        Grid1.SetRow(row);
        for (int col = 0; col < columns; ++col) {
            Grid1.SetCol(col);
            table.SetCell(QStringLiteral("<TD ALIGN=CENTER>cell text</TD>"), QStringLiteral("cell text"));
        }
    }
}

/// OK in an empty page, until the table stands there in its colours and lines. By rows.
void Insert(benchmark::State& state) {
    TestFrame frame;
    frame.window->resize(800, 600);
    frame.active->resize(800, 600);
    frame.Box().resize(800, 600);
    frame.window->show();
    RunUntilIdle();
    const int rows = static_cast<int>(state.range(0));
    for ([[maybe_unused]] auto step : state) {
        state.PauseTiming();
        frame.SetText(QString());
        frame.Box().EmptyUndoBuffer();
        RunUntilIdle();
        auto& table = frame.LoadedForms().Show<frmTable>(frame);
        FillCells(table, rows);
        state.ResumeTiming();
        Press(table, "cmdOk");
        RunUntilIdle();
        state.PauseTiming();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(Insert)->Arg(12)->Arg(99)->Arg(792)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);

/// A table of that many characters, in rows of ten cells.
QString TableText(qsizetype length) {
    const QString row =
        QStringLiteral("<TR>") + QStringLiteral("<TD>text</TD>").repeated(10) + QStringLiteral("</TR>\r\n");
    return QStringLiteral("<TABLE>") + row.repeated(length / row.size()) + QStringLiteral("</TABLE>");
}

/// The command, with both of its questions answered at once.
void Import(benchmark::State& state) {
    TestFrame frame;
    frame.SetText(TableText(state.range(0)));
    frame.Box().SetSelStart(0);
    frame.Box().SetSelLength(frame.Box().TextLength());
    for ([[maybe_unused]] auto step : state) {
        state.PauseTiming();
        frame.prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::No};
        auto& table = frame.LoadedForms().Show<frmTable>(frame);
        state.ResumeTiming();
        Press(table, "cmdImport");
        state.PauseTiming();
        frame.LoadedForms().Unload(table);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(Import)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);

/// Tags within tags, of which each is a cell with all of the text behind the last one.
void ReadTagsWithinTags(benchmark::State& state) {
    const QString text =
        QStringLiteral("<td").repeated(state.range(0) / 6) + u'>' + QString(state.range(0) / 2, u'x') + u'<';
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(ReadTable(text, GridCells(2, 2)));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ReadTagsWithinTags)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace
