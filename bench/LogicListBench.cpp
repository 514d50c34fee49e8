// Searches over a list's rows beside the plain loop over the same records.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <vector>

#include "list/XListRowPool.h"
#include "list/XListSearch.h"
#include "LogicBench.h"
#include "Measure.h"

namespace
{
constexpr int row_count = 100000;
constexpr unsigned int column_count = 8;
constexpr long long last_data = row_count - 1;
// Per row: where the row object is, where its cells are, and the word compared.
constexpr double bytes_of_row = 2 * sizeof(void *) + sizeof(long long);

/// The parameter words of a native list, and the rows behind them.
struct Rows
{
    CXListRowPool pool{16};
    std::vector<XLISTCTRLROW *> parameters;

    Rows()
    {
        for (int i = 0; i < row_count; ++i)
        {
            parameters.push_back(pool.Take());
            parameters.back()->Prepare(column_count);
            parameters.back()->cells()->itemData64 = i;
        }
    }
};

Rows const & TheRows()
{
    static Rows const rows;
    return rows;
}

void SearchByFindTopmostRow(benchmark::State & state)
{
    Rows const & rows = TheRows();
    long long data = last_data;
    for (benchmark::State::StateIterator::Value _ : state)
    {
        benchmark::DoNotOptimize(data);
        int const found = FindTopmostRow(
            rows.pool.InUse(), true, [] { return row_count; },
            FirstCellOf([data](XLISTCTRLDATA const & cell) { return cell.itemData64 == data; }),
            [](XLISTCTRLROW const & row) { return static_cast<int>(row.cells()->itemData64); },
            [&rows](int row) { return rows.parameters[static_cast<std::size_t>(row)]; });
        if (found != last_data)
            state.SkipWithError("not found");
        benchmark::DoNotOptimize(found);
    }
}

void SearchByPlainLoop(benchmark::State & state)
{
    std::vector<XLISTCTRLROW *> const & parameters = TheRows().parameters;
    long long data = last_data;
    for (benchmark::State::StateIterator::Value _ : state)
    {
        benchmark::DoNotOptimize(data);
        int found = -1;
        for (int row = 0; row < row_count; ++row)
        {
            if (parameters[static_cast<std::size_t>(row)]->cells()[0].itemData64 == data)
            {
                found = row;
                break;
            }
        }
        if (found != last_data)
            state.SkipWithError("not found");
        benchmark::DoNotOptimize(found);
    }
}
} // namespace

bool bench::SearchingRows()
{
    benchmark::RegisterBenchmark("search", SearchByFindTopmostRow)->MinTime(0.05)->Repetitions(20);
    benchmark::RegisterBenchmark("plain", SearchByPlainLoop)->MinTime(0.05)->Repetitions(20);
    std::map<std::string, double> times = RunRegistered();
    char name[120];
    std::snprintf(name, sizeof(name), "search of the last of 100,000 rows beside a plain loop (%.2f GB/s), a row",
                  bytes_of_row * row_count / times["search"]);
    return Report(name, times["search"] / row_count, times["plain"] / row_count, 1.10);
}
