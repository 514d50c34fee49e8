// What a combo does for a character typed, with as many items as a list of channels has.

#include <benchmark/benchmark.h>

#include <list>
#include <string>

#include "list/combo/ComboItems.h"
#include "LogicBench.h"
#include "Measure.h"

namespace
{
constexpr int item_count = 10000;
constexpr double most_for_a_character = 5e6; // ns

using XListCtrl::combo_item;
using XListCtrl::ComboItems;

/// All of which begin alike, so that all are offered.
struct Items
{
    std::list<combo_item> list;
    std::list<combo_item>::iterator cursor = list.end();
    std::int64_t selected = -1;
    std::wstring text;
    ComboItems items{list, cursor, selected, text};

    Items()
    {
        for (int i = 0; i < item_count; ++i)
            items.Add(L"channel " + std::to_wstring(i));
    }
};

Items const & TheItems()
{
    static Items const items;
    return items;
}

void TypeACharacter(benchmark::State & state)
{
    ComboItems const & items = TheItems().items;
    std::wstring const typed = L"channel";
    for (benchmark::State::StateIterator::Value _ : state)
    {
        combo_item const * const completion = items.Completion(typed);
        benchmark::DoNotOptimize(completion);
        std::list<combo_item> const offered = items.Suggestions(typed);
        benchmark::DoNotOptimize(offered.size());
    }
}

void CopyTheItems(benchmark::State & state)
{
    std::list<combo_item> const & list = TheItems().list;
    for (benchmark::State::StateIterator::Value _ : state)
    {
        std::list<combo_item> const copy = list;
        benchmark::DoNotOptimize(copy.size());
    }
}
} // namespace

bool bench::TypingIntoACombo()
{
    benchmark::RegisterBenchmark("type", TypeACharacter)->MinTime(0.05)->Repetitions(20);
    benchmark::RegisterBenchmark("copy", CopyTheItems)->MinTime(0.05)->Repetitions(20);
    std::map<std::string, double> times = RunRegistered();
    return ReportTime("a character typed into a combo that offers all of 10,000 items, beside copying them",
                      times["type"], times["copy"], most_for_a_character);
}
