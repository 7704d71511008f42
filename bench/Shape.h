// Judges benchmarks by their shape, not by the clock: what a benchmark says of its complexity must hold from
// its second longest input to its longest.
#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

/// Prints what benchmarks take, as the console reporter does, and remembers which of them outgrow their
/// shape.
class ShapeReporter final : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && run.complexity_n > 0)
                Note(run);
        }
    }

    /// Whether all shapes held; says on the error stream which did not.
    bool AllHold() {
        bool hold = true;
        for (const auto& [name, series] : series_) {
            const double growth = series.previous > 0 ? series.last / series.previous : 1;
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

    /// Time for what the shape says is one unit of work, at the last two lengths of input.
    struct Series {
        double previous = 0;
        double last = 0;
    };

    void Note(const Run& run) {
        const double units = run.complexity == benchmark::oN ? static_cast<double>(run.complexity_n) : 1;
        Series& series = series_[run.run_name.function_name];
        series.previous = std::exchange(series.last, run.GetAdjustedCPUTime() / units);
    }

    std::map<std::string, Series> series_;
};
