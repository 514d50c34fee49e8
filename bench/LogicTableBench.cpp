// A table's order and choice of a million rows, beside the standard library's sort of the same keys.

#include <algorithm>
#include <ctime>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "list/table/TableModel.h"
#include "LogicBench.h"
#include "Measure.h"

namespace
{
constexpr TableRow row_count = 1000000;
constexpr unsigned int number_column = 0;
constexpr unsigned int group_column = 1;
constexpr unsigned int text_column = 2;

/// Measurements as they are: numbers that all differ, a channel of a thousand, and a short name.
class Rows : public TableSource
{
public:
    std::vector<double> numbers;
    std::vector<double> groups;
    std::vector<std::wstring> texts;

    Rows()
    {
        std::mt19937_64 random(1);
        std::normal_distribution<double> level(-20, 15);
        for (TableRow row = 0; row < row_count; ++row)
        {
            numbers.push_back(level(random));
            groups.push_back(static_cast<double>(random() % 1000));
            std::wstring text;
            for (int i = 0; i < 12; ++i)
                text.push_back(static_cast<wchar_t>(L'a' + random() % 26));
            texts.push_back(text + L' ' + std::to_wstring(row));
        }
    }
    TableRow RowCount() const override { return row_count; }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        if (row >= row_count)
            return false;
        if (column == number_column)
            value.SetNumber(numbers[row]);
        else if (column == group_column)
            value.SetNumber(groups[row]);
        else
            value.SetText(texts[row]);
        return true;
    }
    TableKey Key(TableRow row) const override { return row * 0x9E3779B97F4A7C15ULL; }
};

std::shared_ptr<Rows> const & TheRows()
{
    static auto const rows = std::make_shared<Rows>();
    return rows;
}

TableModel & Model()
{
    static TableModel model = [] {
        TableModel made;
        TableLooks looks;
        looks.columns.resize(3);
        made.SetLooks(std::move(looks));
        made.SetSource(TheRows());
        return made;
    }();
    return model;
}

double SortBy(std::vector<TableSortColumn> columns)
{
    TableModel & model = Model();
    model.SetFilter({});
    model.SetSort(std::move(columns));
    return bench::Nanoseconds([&model] { model.FindOrder(); });
}

/// The time of the standard sort alone, of a fresh copy each time.
template <class Value> auto StandardSort(std::vector<Value> const & values)
{
    return [&values] {
        std::vector<Value> copy = values;
        return bench::Nanoseconds([&copy] { std::sort(copy.begin(), copy.end()); });
    };
}

bool Sorting()
{
    std::vector<std::pair<double, TableRow>> numbers;
    std::vector<std::wstring_view> texts;
    for (TableRow row = 0; row < row_count; ++row)
    {
        numbers.emplace_back(TheRows()->numbers[row], row);
        texts.emplace_back(TheRows()->texts[row]);
    }
    bool met = bench::Report("table: order of a million rows by number beside std::sort of (key, index), a row",
                             bench::Compare(
                                 [] {
                                     return SortBy({{number_column, false}});
                                 },
                                 StandardSort(numbers)),
                             row_count, 1.5);
    met = bench::Report("table: by text beside std::sort of string views, a row",
                        bench::Compare(
                            [] {
                                return SortBy({{text_column, false}});
                            },
                            StandardSort(texts)),
                        row_count, 1.5) &&
          met;
    met = bench::Report("table: by group and number beside by number alone, a row",
                        bench::Compare(
                            [] {
                                return SortBy({{group_column, true}, {number_column, false}});
                            },
                            [] {
                                return SortBy({{number_column, false}});
                            }),
                        row_count, 1.3) &&
          met;
    met = bench::Report("table: by group and number beside by group alone, a row",
                        bench::Compare(
                            [] {
                                return SortBy({{group_column, true}, {number_column, false}});
                            },
                            [] {
                                return SortBy({{group_column, true}});
                            }),
                        row_count, 1.3) &&
          met;
    return met;
}

/// Texts as UTF-16 has them, whatever the platform's characters are.
bool Choosing()
{
    double bytes = 0;
    for (std::wstring const & each : TheRows()->texts)
        bytes += 2.0 * static_cast<double>(each.size());
    TableModel & model = Model();
    model.SetSort({});
    double const gigabyte_a_second = bytes / row_count; // nanoseconds a row at that speed
    bool met = true;
    for (bool const matchCase : {true, false})
    {
        TableFilter filter;
        filter.texts.push_back({text_column, L"qu7", matchCase});
        std::vector<double> times;
        for (int i = 0; i < 15; ++i)
        {
            model.SetFilter(filter);
            // The processor's time, since the goal is no other work in the same run.
            std::clock_t const began = std::clock();
            model.FindOrder();
            times.push_back(1e9 / CLOCKS_PER_SEC * static_cast<double>(std::clock() - began) / row_count);
        }
        met = bench::ReportTime(matchCase ? "table: a million short texts filtered beside 1 GB/s, a row"
                                          : "table: the same whatever the case",
                                bench::Median(times), gigabyte_a_second, gigabyte_a_second) &&
              met;
    }
    return met;
}

bool Memory()
{
    SortBy({{number_column, false}});
    TableModel & model = Model();
    model.SelectAll();
    bool const met = bench::ReportCount("table: bytes of a million rows in order and selected, beside 16 a row",
                                        model.Bytes(), 16ULL * row_count, 16ULL * row_count);
    model.ClearSelection();
    return met;
}
} // namespace

bool bench::OrderingATable()
{
    bool met = Sorting();
    met = Choosing() && met;
    return Memory() && met;
}
