// Operations at random on a table and on a plain model of one.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "list/table/NaturalOrder.h"
#include "list/table/TableColumnLayout.h"
#include "table_StandIn.h"

namespace
{
using namespace table_test;
using Order = std::vector<TableRow>;

constexpr unsigned int column_count = 4;
constexpr std::size_t most_rows = 60;

/// The plain model: everything anew each time.
struct Reference
{
    std::vector<TableSortColumn> sort;
    double least = -HUGE_VAL;
    double greatest = HUGE_VAL;
    bool hasRange = false;
    std::wstring text;
    bool oddKeys = false;
    std::set<TableKey> selected;

    static int Group(TableValue const & value)
    {
        switch (value.Kind())
        {
        case TableKind::blank:
            return 3;
        case TableKind::text:
            return 1;
        default:
            return value.Kind() == TableKind::floating && std::isnan(value.Number()) ? 2 : 0;
        }
    }
    static int Compare(TableValue const & a, TableValue const & b, bool descending)
    {
        if (Group(a) != Group(b))
            return Group(a) - Group(b);
        int order = 0;
        if (Group(a) == 1)
            order = CompareNaturally(a.Text(), b.Text());
        else if (Group(a) == 0)
            order = NumberOf(a) < NumberOf(b) ? -1 : NumberOf(b) < NumberOf(a) ? 1 : 0;
        return descending ? -order : order;
    }
    static double NumberOf(TableValue const & value)
    {
        return value.Kind() == TableKind::floating ? value.Number() : static_cast<double>(value.Whole());
    }
    bool Passes(Row const & row) const
    {
        if (hasRange &&
            (Group(row.cells[0]) != 0 || NumberOf(row.cells[0]) < least || NumberOf(row.cells[0]) > greatest))
            return false;
        if (oddKeys && row.key % 2 == 0)
            return false;
        std::wstring lower = row.cells[2].Text();
        for (wchar_t & each : lower)
            each = FoldCase(each);
        return row.cells[2].Kind() != TableKind::text ? text.empty() : lower.find(text) != std::wstring::npos;
    }
    Order Shown(Source const & source) const
    {
        Order order;
        for (TableRow row = 0; row < source.rows.size(); ++row)
        {
            if (Passes(source.rows[row]))
                order.push_back(row);
        }
        std::stable_sort(order.begin(), order.end(), [&](TableRow a, TableRow b) {
            for (TableSortColumn const & each : sort)
            {
                int const compared =
                    Compare(source.rows[a].cells[each.column], source.rows[b].cells[each.column], each.descending);
                if (compared != 0)
                    return compared < 0;
            }
            return false;
        });
        return order;
    }
};

class Walk
{
public:
    explicit Walk(unsigned int seed) : m_random(seed)
    {
        TableLooks looks;
        looks.columns = {Column(L"Peak", TableKind::floating), Column(L"Count", TableKind::whole), Column(L"Name"),
                         Column(L"Mixed")};
        m_layout.Reset(looks.columns);
        m_model.SetLooks(std::move(looks));
        TakeSource();
    }

    void Step()
    {
        switch (m_random() % 16)
        {
        case 0:
        case 1:
        case 2:
            Append();
            break;
        case 3:
        case 4:
        case 5:
            Change();
            break;
        case 6:
            Sort();
            break;
        case 7:
            Filter();
            break;
        case 8:
        case 9:
        case 10:
            Select();
            break;
        case 11:
            SetFocus();
            break;
        case 12:
            HideOrMove();
            break;
        case 13:
            Shrink();
            break;
        case 14:
            if (m_random() % 4 == 0)
                MoveRows();
            break;
        default:
            if (m_random() % 64 == 0)
                EndSource();
            break;
        }
        Check();
    }

private:
    std::size_t Below(std::size_t count) { return count == 0 ? 0 : m_random() % count; }

    TableValue AnyNumber()
    {
        switch (m_random() % 12)
        {
        case 0:
            return TableValue();
        case 1:
            return Number(std::nan(""));
        case 2:
            return Number(m_random() % 2 == 0 ? HUGE_VAL : -HUGE_VAL);
        default:
            return Number(static_cast<double>(m_random() % 9) - 4);
        }
    }
    TableValue AnyText()
    {
        constexpr wchar_t const * names[] = {
            L"Ch 2", L"Ch 10", L"ch 02", L"Peak", L"", L"Stra\u00DFe", L"a rather long name"};
        if (m_random() % 10 == 0)
            return TableValue();
        return Text(names[m_random() % std::size(names)] + std::wstring(m_random() % 3, L'x'));
    }
    std::vector<TableValue> AnyCells()
    {
        return {AnyNumber(), Whole(static_cast<long long>(m_random() % 5)), AnyText(),
                m_random() % 2 == 0 ? AnyNumber() : AnyText()};
    }

    void TakeSource()
    {
        m_source = std::make_shared<Source>();
        for (std::size_t i = Below(20); i-- > 0;)
            m_source->rows.push_back({m_nextKey++, AnyCells()});
        m_reference.selected.clear();
        m_focus = no_table_row;
        m_model.SetSource(m_source);
        m_model.FindOrder();
    }
    void EndSource()
    {
        m_source.reset();
        ASSERT_EQ(m_model.Text(0, 0), L"");
        m_model.SelectAll();
        m_model.Apply({});
        ASSERT_EQ(m_model.Size(), 0U);
        m_feed.Take();
        TakeSource();
    }

    void Apply()
    {
        // Now and then a task has been at work meanwhile.
        m_model.Apply(m_feed.Take());
        if (m_model.NeedsOrder())
            m_model.FindOrder();
    }
    void Append()
    {
        if (m_source->rows.size() >= most_rows)
            return;
        auto const count = static_cast<TableRow>(1 + Below(3));
        for (TableRow i = 0; i < count; ++i)
            m_source->rows.push_back({m_nextKey++, AnyCells()});
        m_feed.RowsAppended(count);
        Apply();
    }
    void Change()
    {
        if (m_source->rows.empty())
            return;
        std::shared_ptr<TableOrderTask> task;
        if (m_random() % 4 == 0)
        {
            task = m_model.BeginOrder();
            task->Run();
        }
        for (std::size_t i = 1 + Below(3); i-- > 0;)
        {
            auto const first = static_cast<TableRow>(Below(m_source->rows.size()));
            auto const last = static_cast<TableRow>(std::min(first + Below(3), m_source->rows.size() - 1));
            for (TableRow row = first; row <= last; ++row)
                m_source->rows[row].cells = AnyCells();
            m_feed.RowsChanged(first, last + static_cast<TableRow>(Below(2) * 1000));
        }
        bool const place = m_random() % 3 != 0;
        m_model.Apply(m_feed.Take(), place);
        if (task)
            m_model.TakeOrder(*task);
        if (m_model.RowsWait() || m_random() % 2 == 0)
            m_model.Apply({});
        if (m_model.NeedsOrder())
            m_model.FindOrder();
    }
    void Sort()
    {
        auto const column = static_cast<unsigned int>(m_random() % column_count);
        bool const add = m_random() % 2 == 0 && m_model.Sort().size() < 3;
        if (m_random() % 6 == 0)
            m_model.SetSort({});
        else
            m_model.ClickTitle(column, add);
        m_reference.sort = m_model.Sort();
        m_model.FindOrder();
    }
    void Filter()
    {
        TableFilter filter;
        m_reference.hasRange = m_random() % 4 == 0;
        m_reference.text = m_random() % 4 == 0 ? L"ch" : L"";
        m_reference.oddKeys = m_random() % 4 == 0;
        m_reference.least = static_cast<double>(m_random() % 5) - 4;
        m_reference.greatest = m_reference.least + static_cast<double>(m_random() % 5);
        if (m_reference.hasRange)
            filter.ranges.push_back({0, m_reference.least, m_reference.greatest});
        if (!m_reference.text.empty())
            filter.texts.push_back({2, L"CH", false});
        if (m_reference.oddKeys)
            filter.predicate = [](TableSource const & source, TableRow row) { return source.Key(row) % 2 != 0; };
        m_model.SetFilter(std::move(filter));
        m_model.FindOrder();
    }
    void Select()
    {
        Order const shown = m_reference.Shown(*m_source);
        if (m_random() % 10 == 0)
        {
            m_model.ClearSelection();
            m_reference.selected.clear();
        }
        if (shown.empty())
            return;
        auto const from = static_cast<TableRow>(Below(shown.size()));
        auto const to = static_cast<TableRow>(Below(shown.size()));
        switch (m_random() % 4)
        {
        case 0:
            m_model.SelectRange(from, to);
            for (TableRow i = std::min(from, to); i <= std::max(from, to); ++i)
                m_reference.selected.insert(m_source->rows[shown[i]].key);
            break;
        case 1:
            m_model.Select(from, false);
            m_reference.selected.erase(m_source->rows[shown[from]].key);
            break;
        default:
            m_model.Select(from, true);
            m_reference.selected.insert(m_source->rows[shown[from]].key);
            break;
        }
    }
    void SetFocus()
    {
        Order const shown = m_reference.Shown(*m_source);
        auto const position = static_cast<TableRow>(Below(shown.size() + 1));
        m_model.SetFocus(position);
        m_focus = position < shown.size() ? m_source->rows[shown[position]].key : no_table_row;
    }
    void HideOrMove()
    {
        auto const column = static_cast<unsigned int>(m_random() % column_count);
        if (m_random() % 2 == 0)
            m_layout.Hide(column, m_random() % 2 == 0);
        else
            m_layout.Move(column, static_cast<unsigned int>(m_random() % column_count));
        ASSERT_FALSE(m_layout.Shown().empty());
        Order all = m_layout.Order();
        std::sort(all.begin(), all.end());
        ASSERT_EQ(all, (Order{0, 1, 2, 3}));
    }
    void Shrink()
    {
        if (m_random() % 4 != 0)
            return;
        m_source->rows.resize(m_source->rows.size() - Below(m_source->rows.size() / 2 + 1));
        // Asked in between, as a paint would.
        TableValue value;
        for (TableRow position = 0; position < m_model.Size() + 1; ++position)
        {
            m_model.Read(position, 0, value);
            m_model.IsSelected(position);
        }
        Apply();
    }
    void MoveRows()
    {
        std::shuffle(m_source->rows.begin(), m_source->rows.end(), m_random);
        m_feed.AllChanged();
        Apply();
    }

    void Check()
    {
        Order const expected = m_reference.Shown(*m_source);
        ASSERT_EQ(Shown(m_model), expected);
        Order selected;
        TableRow focus = TableModel::nowhere;
        for (TableRow position = 0; position < expected.size(); ++position)
        {
            TableKey const key = m_source->rows[expected[position]].key;
            if (m_reference.selected.count(key) != 0)
                selected.push_back(position);
            if (key == m_focus)
                focus = position;
        }
        ASSERT_EQ(m_model.SelectedPositions(), selected);
        ASSERT_EQ(m_model.FocusPosition(), focus);
    }

    std::mt19937 m_random;
    TableModel m_model;
    TableFeed m_feed{nullptr};
    TableColumnLayout m_layout;
    std::shared_ptr<Source> m_source;
    Reference m_reference;
    TableKey m_nextKey = 1000;
    TableKey m_focus = no_table_row;
};
} // namespace

TEST(TableWalk, AHundredThousandOperations)
{
    for (unsigned int seed = 1; seed <= 10; ++seed)
    {
        Walk walk(seed);
        for (int step = 0; step < 10000; ++step)
        {
            walk.Step();
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed << ", step " << step;
        }
    }
}
