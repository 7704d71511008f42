// Judges benchmarks by their shape, not by the clock: what a benchmark says of its complexity must hold.
#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

/// Prints what benchmarks take, as the console reporter does, and remembers which of them outgrow their
/// shape: one of constant time is held from its shortest input to its longest, any other from its second
/// longest to its longest, since its short ones are mostly what each run costs anyway.
class ShapeReporter final : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && run.complexity_n > 0)
                Note(run);
        }
    }

    /// Says how each grew, and on the error stream which grew too much; whether all shapes held.
    bool AllHold() {
        bool hold = true;
        for (const auto& [name, series] : series_) {
            const double from = series.constant ? series.first : series.previous;
            const double growth = from > 0 ? series.last / from : 1;
            GetOutputStream() << name << " grows " << growth << " times beside its shape\n";
            if (growth <= mostGrowth)
                continue;
            GetErrorStream() << name << " outgrows its shape " << growth << " times\n";
            hold = false;
        }
        return hold;
    }

  private:
    /// Inputs grow eightfold or more, so that what costs a whole order more shows itself beyond all noise.
    static constexpr double mostGrowth = 3;

    /// Time for what the shape says is one unit of work, at the first input and at the last two.
    struct Series {
        bool constant = false;
        double first = 0;
        double previous = 0;
        double last = 0;
    };

    void Note(const Run& run) {
        Series& series = series_[run.run_name.function_name];
        series.constant = run.complexity == benchmark::o1;
        const double units = run.complexity == benchmark::oN ? static_cast<double>(run.complexity_n) : 1;
        const double cost = run.GetAdjustedCPUTime() / units;
        if (series.last <= 0)
            series.first = cost;
        series.previous = std::exchange(series.last, cost);
    }

    std::map<std::string, Series> series_;
};
