// The toolkit's logic without a window system, beside the plain loop over the same data in the same run.

#include "LogicBench.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <regex>
#include <vector>

namespace
{
/// Keeps the best time of each benchmark instead of printing a table.
class BestTimes : public benchmark::BenchmarkReporter
{
public:
    std::map<std::string, double> nanoseconds;

    bool ReportContext(Context const &) override { return true; }
    void ReportRuns(std::vector<Run> const & runs) override
    {
        for (Run const & run : runs)
        {
            if (run.run_type != Run::RT_Iteration)
                continue;
            double const time = run.GetAdjustedCPUTime();
            auto const [entry, isNew] = nanoseconds.emplace(run.run_name.function_name, time);
            if (!isNew)
                entry->second = std::min(entry->second, time);
        }
    }
};

struct Measure
{
    char const * name;
    bool (*run)();
};
constexpr Measure measures[] = {
    {"layout", bench::LayoutArithmetic}, {"list-search", bench::SearchingRows}, {"segments", bench::PaintingSegments},
    {"combo", bench::TypingIntoACombo},  {"recording", bench::LookingAtAnHour}, {"table", bench::OrderingATable},
};
} // namespace

std::map<std::string, double> bench::RunRegistered()
{
    BestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::ClearRegisteredBenchmarks();
    return times.nanoseconds;
}

// An exception ends it, as it shall. NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char ** argv)
{
    std::regex const filter(argc > 1 ? argv[1] : ".");
    bool allMet = true;
    for (Measure const & measure : measures)
    {
        if (std::regex_search(measure.name, filter))
            allMet = measure.run() && allMet;
    }
    return allMet ? 0 : 1;
}
