// What a table shows of its source while both change.

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "table_StandIn.h"

namespace
{
using namespace table_test;
using Order = std::vector<TableRow>;

/// Rows of one number each.
std::shared_ptr<Source> Numbers(std::vector<double> const & values)
{
    auto source = std::make_shared<Source>();
    for (double const value : values)
        source->rows.push_back({100 + source->rows.size(), {Number(value), Text(L"Row " + std::to_wstring(value))}});
    return source;
}

class TableModelTest : public testing::Test
{
protected:
    void Show(std::shared_ptr<Source> newSource)
    {
        m_source = std::move(newSource);
        TableLooks looks;
        looks.columns = {Column(L"Value", TableKind::floating), Column(L"Name")};
        m_model.SetLooks(std::move(looks));
        m_model.SetSource(m_source);
        if (m_model.NeedsOrder())
            m_model.FindOrder();
    }
    void Sort(std::vector<TableSortColumn> sort)
    {
        m_model.SetSort(std::move(sort));
        m_model.FindOrder();
    }
    void Append(double value) { m_source->rows.push_back({100 + m_source->rows.size(), {Number(value), Text(L"")}}); }

    std::shared_ptr<Source> m_source;
    TableModel m_model;
};

TableChanges Changed(TableRow first, TableRow last)
{
    TableChanges changes;
    changes.changed = {{first, last}};
    return changes;
}
TableChanges Appended()
{
    TableChanges changes;
    changes.appended = true;
    return changes;
}
TableChanges All()
{
    TableChanges changes;
    changes.all = true;
    return changes;
}
} // namespace

TEST_F(TableModelTest, ShowsTheSourcesRowsAsTheyAre)
{
    Show(Numbers({3, 1, 2}));
    EXPECT_EQ(Shown(m_model), (Order{0, 1, 2}));
    EXPECT_EQ(m_model.Text(1, 0), L"1");
    EXPECT_EQ(m_model.Text(3, 0), L"");
    EXPECT_EQ(m_model.Text(0, 7), L"");
    EXPECT_EQ(m_model.Bytes(), 0U) << "rows as they are take nothing";
}

TEST_F(TableModelTest, ClicksOnTitlesSortAndTurn)
{
    m_model.ClickTitle(1, false);
    EXPECT_EQ(m_model.Sort(), (std::vector<TableSortColumn>{{1, false}}));
    m_model.ClickTitle(1, false);
    EXPECT_EQ(m_model.Sort(), (std::vector<TableSortColumn>{{1, true}}));
    m_model.ClickTitle(0, true);
    EXPECT_EQ(m_model.Sort(), (std::vector<TableSortColumn>{{1, true}, {0, false}}));
    m_model.ClickTitle(1, true);
    EXPECT_EQ(m_model.Sort(), (std::vector<TableSortColumn>{{1, false}, {0, false}}));
    m_model.ClickTitle(1, false);
    EXPECT_EQ(m_model.Sort(), (std::vector<TableSortColumn>{{1, false}}));
}

TEST_F(TableModelTest, NewAndChangedRowsComeWhereTheyBelong)
{
    Show(Numbers({3, 1, 2}));
    Sort({{0, false}});
    EXPECT_EQ(Shown(m_model), (Order{1, 2, 0}));
    Append(1.5);
    Append(0);
    TableEffect effect = m_model.Apply(Appended());
    EXPECT_TRUE(effect.sizeChanged);
    EXPECT_EQ(Shown(m_model), (Order{4, 1, 3, 2, 0}));
    m_source->rows[0].cells[0].SetNumber(0.5);
    effect = m_model.Apply(Changed(0, 0));
    EXPECT_FALSE(effect.sizeChanged);
    EXPECT_TRUE(effect.allMoved);
    EXPECT_EQ(Shown(m_model), (Order{4, 0, 1, 3, 2}));
}

TEST_F(TableModelTest, RowsComeAndGoByTheFilter)
{
    Show(Numbers({3, 1, 2}));
    TableFilter filter;
    filter.ranges.push_back({0, 2, 10});
    m_model.SetFilter(filter);
    m_model.FindOrder();
    EXPECT_EQ(Shown(m_model), (Order{0, 2}));
    m_source->rows[1].cells[0].SetNumber(5);
    m_source->rows[2].cells[0].SetNumber(0);
    Append(9);
    m_model.Apply(Changed(1, 2));
    EXPECT_EQ(Shown(m_model), (Order{0, 1, 3}));
}

TEST_F(TableModelTest, RowsWaitForTheirPlacesIfWanted)
{
    std::vector<double> values;
    for (int i = 0; i < 60000; ++i)
        values.push_back(i);
    Show(Numbers(values));
    Sort({{0, true}});
    m_source->rows[0].cells[0].SetNumber(1e6);
    m_model.Apply(Changed(0, 0), false);
    EXPECT_TRUE(m_model.RowsWait());
    EXPECT_EQ(m_model.RowAt(59999), 0U);
    m_model.Apply({}, true);
    EXPECT_FALSE(m_model.RowsWait());
    EXPECT_EQ(m_model.RowAt(0), 0U);
}

TEST_F(TableModelTest, AShrunkSourceGivesBlankCellsAndThenFewerRows)
{
    Show(Numbers({3, 1, 2}));
    Sort({{0, false}});
    m_source->rows.resize(1);
    EXPECT_EQ(m_model.Size(), 3U);
    EXPECT_EQ(m_model.Text(0, 0), L"");
    EXPECT_EQ(m_model.Text(2, 0), L"3");
    EXPECT_FALSE(m_model.IsSelected(0));
    m_model.Select(0, true);
    m_model.SelectRange(0, 2);
    EXPECT_TRUE(m_model.Apply({}).sizeChanged);
    EXPECT_EQ(Shown(m_model), (Order{0}));
}

TEST_F(TableModelTest, AnEndedSourceGivesBlankCellsAndThenNoRows)
{
    Show(Numbers({3, 1, 2}));
    Sort({{0, false}});
    m_model.SetFocus(1);
    m_source.reset();
    EXPECT_EQ(m_model.Source(), nullptr);
    EXPECT_EQ(m_model.Text(0, 0), L"");
    EXPECT_EQ(m_model.FocusPosition(), TableModel::nowhere);
    m_model.SelectAll();
    EXPECT_EQ(m_model.FindTyped(0, L"3", 0), TableModel::nowhere);
    m_model.Apply({});
    EXPECT_EQ(m_model.Size(), 0U);
}

TEST_F(TableModelTest, SelectionAndFocusStayWithTheirRows)
{
    Show(Numbers({3, 1, 2, 5}));
    m_model.Select(0, true);
    m_model.Select(2, true);
    m_model.SetFocus(2);
    Sort({{0, false}});
    EXPECT_EQ(Shown(m_model), (Order{1, 2, 0, 3}));
    EXPECT_EQ(m_model.SelectedPositions(), (Order{1, 2}));
    EXPECT_EQ(m_model.FocusPosition(), 1U);
    Append(0);
    m_model.Apply(Appended());
    EXPECT_EQ(m_model.SelectedPositions(), (Order{2, 3}));
    EXPECT_EQ(m_model.FocusPosition(), 2U);
    // While they are not shown.
    TableFilter filter;
    filter.ranges.push_back({0, 3, 10});
    m_model.SetFilter(filter);
    m_model.FindOrder();
    EXPECT_EQ(m_model.SelectedPositions(), (Order{0}));
    EXPECT_EQ(m_model.FocusPosition(), TableModel::nowhere);
    m_model.SetFilter({});
    m_model.FindOrder();
    EXPECT_EQ(m_model.SelectedPositions(), (Order{2, 3}));
    EXPECT_EQ(m_model.FocusPosition(), 2U);
    // And where the source counts its rows anew.
    m_source->rows.erase(m_source->rows.begin());
    m_model.Apply(All());
    EXPECT_EQ(Shown(m_model), (Order{3, 0, 1, 2}));
    EXPECT_EQ(m_model.SelectedPositions(), (Order{2}));
    EXPECT_EQ(m_model.FocusPosition(), 2U);
}

TEST_F(TableModelTest, AnotherSourceForgetsWhatWasSelected)
{
    Show(Numbers({3, 1, 2}));
    Sort({{0, false}});
    m_model.SelectAll();
    m_model.SetFocus(0);
    auto const other = Numbers({9, 8});
    m_model.SetSource(other);
    EXPECT_EQ(Shown(m_model), (Order{0, 1})) << "until it is put in order";
    EXPECT_EQ(m_model.SelectedKeys(), 0U);
    EXPECT_EQ(m_model.FocusPosition(), TableModel::nowhere);
    m_model.FindOrder();
    EXPECT_EQ(Shown(m_model), (Order{1, 0}));
}

TEST_F(TableModelTest, TypedTextIsLookedForFromThereOnAndRound)
{
    Show(Numbers({3, 31, 2, 30}));
    EXPECT_EQ(m_model.FindTyped(0, L"3", 0), 0U);
    EXPECT_EQ(m_model.FindTyped(0, L"3", 1), 1U);
    EXPECT_EQ(m_model.FindTyped(0, L"3", 2), 3U);
    EXPECT_EQ(m_model.FindTyped(0, L"2", 3), 2U);
    EXPECT_EQ(m_model.FindTyped(1, L"row 30", 9), 3U);
    EXPECT_EQ(m_model.FindTyped(1, L"x", 0), TableModel::nowhere);
    EXPECT_EQ(m_model.FindTyped(1, L"", 0), TableModel::nowhere);
}

TEST_F(TableModelTest, ATasksOrderComesWithWhatHasChangedSince)
{
    Show(Numbers({3, 1, 2}));
    m_model.SetSort({{0, false}});
    auto const task = m_model.BeginOrder();
    task->Run();
    Append(1.5);
    m_source->rows[1].cells[0].SetNumber(9);
    m_model.Apply(Changed(1, 1));
    EXPECT_EQ(Shown(m_model), (Order{0, 1, 2, 3})) << "as it was, until the order is taken";
    TableEffect const effect = m_model.TakeOrder(*task);
    EXPECT_TRUE(effect.allMoved);
    EXPECT_EQ(Shown(m_model), (Order{3, 2, 0, 1}));
    EXPECT_FALSE(m_model.NeedsOrder());
}

TEST_F(TableModelTest, AnOrderThatIsNoLongerWishedForIsNotTaken)
{
    Show(Numbers({3, 1, 2}));
    m_model.SetSort({{0, false}});
    auto const task = m_model.BeginOrder();
    task->Run();
    m_model.SetSort({{0, true}});
    EXPECT_TRUE(task->Progress().Stopped());
    EXPECT_TRUE(m_model.TakeOrder(*task).IsEmpty());
    EXPECT_EQ(Shown(m_model), (Order{0, 1, 2}));
    EXPECT_TRUE(m_model.NeedsOrder());
}

TEST_F(TableModelTest, AStoppedTaskLeavesWhatIsShown)
{
    Show(Numbers({3, 1, 2}));
    Sort({{0, false}});
    m_model.SetSort({{0, true}});
    auto const task = m_model.BeginOrder();
    task->Progress().Stop();
    task->Run();
    EXPECT_TRUE(task->Finished());
    EXPECT_TRUE(m_model.TakeOrder(*task).IsEmpty());
    EXPECT_EQ(Shown(m_model), (Order{1, 2, 0}));
}

TEST_F(TableModelTest, ASourceThatThrowsLeavesWhatIsShown)
{
    class Throwing : public Source
    {
    public:
        using Source::Source;
        bool Read(TableRow, unsigned int, TableValue &) const override { throw std::runtime_error("late"); }
    };
    auto const throwing = std::make_shared<Throwing>(std::vector<std::vector<TableValue>>{{Number(2)}, {Number(1)}});
    m_model.SetSource(throwing);
    m_model.FindOrder();
    m_model.SetSort({{0, false}});
    EXPECT_TRUE(m_model.FindOrder().IsEmpty());
    EXPECT_EQ(Shown(m_model), (Order{0, 1}));
}

TEST_F(TableModelTest, ChangesOfEverythingDuringATaskAskForAnotherOne)
{
    std::vector<double> values(60000, 1.0);
    Show(Numbers(values));
    m_model.SetSort({{0, false}});
    EXPECT_TRUE(m_model.OrderTakesLong());
    auto const task = m_model.BeginOrder();
    task->Run();
    m_source->rows[0].cells[0].SetNumber(2);
    m_model.Apply(All());
    m_model.TakeOrder(*task);
    EXPECT_TRUE(m_model.NeedsOrder());
    EXPECT_EQ(m_model.RowAt(0), 0U);
    m_model.FindOrder();
    EXPECT_FALSE(m_model.NeedsOrder());
    EXPECT_EQ(m_model.RowAt(59999), 0U);
}

TEST(TableKeys, RunsOfKeysAreKeptAsOne)
{
    TableKeySet keys;
    std::vector<TableKey> many;
    for (TableKey key = 0; key < 100000; ++key)
        many.push_back(99999 - key);
    keys.Add(many);
    EXPECT_EQ(keys.Count(), 100000U);
    EXPECT_LE(keys.Bytes(), 12U);
    keys.Remove(50000);
    EXPECT_FALSE(keys.Contains(50000));
    EXPECT_TRUE(keys.Contains(49999));
    EXPECT_TRUE(keys.Contains(50001));
    EXPECT_EQ(keys.Count(), 99999U);
    keys.Add(50000);
    keys.Add(50000);
    EXPECT_EQ(keys.Count(), 100000U);
    std::vector<TableKey> strewn;
    keys.Clear();
    for (TableKey key = 0; key < 1000; ++key)
        strewn.push_back(key * 7);
    keys.Add(strewn);
    EXPECT_LE(keys.Bytes(), 12000U);
}

TEST(TableKeys, TheGreatestKeyIsOneLikeOthers)
{
    constexpr TableKey last = ~TableKey{0};
    TableKeySet keys;
    keys.Add(last);
    keys.Add(0);
    keys.Add(last - 1);
    EXPECT_EQ(keys.Count(), 3U);
    EXPECT_TRUE(keys.Contains(last));
    EXPECT_FALSE(keys.Contains(1));
    std::vector<TableKey> many = {last, last, last - 1, last - 2, 1, 0, 2, 3, 4, 5};
    keys.Add(many);
    EXPECT_EQ(keys.Count(), 9U);
    keys.Remove(last);
    EXPECT_FALSE(keys.Contains(last));
    EXPECT_TRUE(keys.Contains(last - 1));
}
