// A table that is told of changes by threads, and operations at random with real input.

#include <atomic>
#include <random>
#include <set>
#include <thread>

#include "table_TableTest.h"

namespace
{
using tests::TableRowsSource;
using Order = std::vector<TableRow>;

class TableLive : public tests::TableTest
{
protected:
    void ShowMany(int count)
    {
        std::vector<double> numbers;
        for (int i = 0; i < count; ++i)
            numbers.push_back(i);
        Show(numbers);
    }
};
} // namespace

TEST_F(TableLive, ChangesAreSeenWithoutBeingAskedFor)
{
    ShowMany(3);
    m_table->SortBy({{TableRowsSource::number_column, true}});
    m_source->SetNumber(0, 9);
    m_table->Feed()->RowsChanged(0, 0);
    ASSERT_TRUE(tests::PumpUntil([this] { return Shown() == Order{0, 2, 1}; }));
    m_source->Append(L"new", 5);
    m_table->Feed()->RowsAppended(1);
    ASSERT_TRUE(tests::PumpUntil([this] { return Shown() == Order{0, 3, 2, 1}; }));
    EXPECT_EQ(m_table->GetItemCount(), 4);
    m_source->Resize(1);
    m_table->Feed()->AllChanged();
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->GetItemCount() == 1; }));
}

TEST_F(TableLive, TheEndStaysInViewIfTheUserStandsThere)
{
    ShowMany(100);
    m_table->EnsureVisible(99, FALSE);
    for (int i = 0; i < 20; ++i)
        m_source->Append(L"new", i);
    m_table->Feed()->RowsAppended(20);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->GetItemCount() == 120; }));
    EXPECT_EQ(m_table->GetTopIndex() + m_table->GetCountPerPage(), 120);
    m_table->EnsureVisible(0, FALSE);
    m_source->Append(L"new", 1);
    m_table->Feed()->RowsAppended(1);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->GetItemCount() == 121; }));
    EXPECT_EQ(m_table->GetTopIndex(), 0);
}

TEST_F(TableLive, TheFocusStaysInViewWhereRowsMove)
{
    ShowMany(200);
    m_table->GoToRow(3);
    m_table->SortBy({{TableRowsSource::number_column, true}});
    TableRow const position = m_table->PositionOf(3);
    EXPECT_EQ(position, 196U);
    EXPECT_LE(m_table->GetTopIndex(), static_cast<int>(position));
    EXPECT_GT(m_table->GetTopIndex() + m_table->GetCountPerPage(), static_cast<int>(position));
    EXPECT_EQ(m_table->SelectedRows(), (Order{3}));
}

TEST_F(TableLive, OneRepaintShowsWhatManyTold)
{
    ShowMany(50);
    m_table->UpdateWindow();
    unsigned long long const before = m_table->Repaints();
    ULONGLONG const began = ::GetTickCount64();
    std::atomic<int> telling{4};
    std::vector<std::thread> tellers;
    for (unsigned int teller = 0; teller < 4; ++teller)
    {
        tellers.emplace_back([this, teller, &telling, feed = m_table->Feed(), shared = m_source] {
            for (int i = 0; i < 5000; ++i)
            {
                auto const row = static_cast<TableRow>((i * 4 + static_cast<int>(teller)) % 50);
                shared->SetNumber(row, i);
                feed->RowsChanged(row, row);
                if (i % 100 == 0)
                    std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
            --telling;
        });
    }
    ASSERT_TRUE(tests::PumpUntil([&telling] { return telling == 0; }));
    for (std::thread & each : tellers)
        each.join();
    // The last ones come within the time of a repaint.
    unsigned long long repaints = 0;
    ASSERT_TRUE(tests::PumpUntil([&] {
        repaints = m_table->Repaints();
        MSG message;
        return !::PeekMessageW(&message, m_table->m_hWnd, 0, 0, PM_NOREMOVE) && !m_table->GetUpdateRect(nullptr);
    }));
    auto const milliseconds = static_cast<unsigned long long>(::GetTickCount64() - began);
    EXPECT_GT(repaints, before);
    EXPECT_LE(repaints - before, milliseconds / 16 + 3);
    for (TableRow row = 0; row < 50; ++row)
    {
        TableValue value;
        ASSERT_TRUE(m_source->Read(row, TableRowsSource::number_column, value));
        std::wstring text;
        ShowNumber(text, value.Number(), {NumberStyle::fixed, 1, false, UnitPlace::nowhere, {}}, L'.');
        EXPECT_EQ(m_table->GetItemText(static_cast<int>(row), 1), text.c_str());
    }
}

/// Real mouse and keys, changes of the source, sorts and filters in turns. The table must agree with what the source
/// and a plain set of keys say.
TEST_F(TableLive, FiveThousandOperationsAtRandom)
{
    ShowMany(30);
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    m_table->SetFocus();
    std::mt19937 random(17);
    std::set<TableKey> selected;
    for (int step = 0; step < 5000; ++step)
    {
        TableRow const size = m_table->RowsShown();
        switch (random() % 12)
        {
        case 0:
            if (m_source->RowCount() < 60)
            {
                m_source->Append(L"Ch " + std::to_wstring(random() % 100), static_cast<double>(random() % 50));
                m_table->Feed()->RowsAppended(1);
            }
            break;
        case 1:
        case 2:
            if (TableRow const count = m_source->RowCount(); count != 0)
            {
                auto const row = static_cast<TableRow>(random() % count);
                m_source->SetNumber(row, static_cast<double>(random() % 50));
                m_table->Feed()->RowsChanged(row, row);
            }
            break;
        case 3:
            m_table->SortBy({{static_cast<unsigned int>(random() % 3), random() % 2 == 0}});
            break;
        case 4: {
            TableFilter filter;
            if (random() % 2 == 0)
                filter.ranges.push_back({TableRowsSource::number_column, 0, static_cast<double>(random() % 50)});
            m_table->SetRowFilter(filter);
            break;
        }
        case 5:
            if (random() % 8 == 0)
            {
                m_source->Resize(m_source->RowCount() - random() % (m_source->RowCount() / 3 + 1));
                m_table->Feed()->AllChanged();
            }
            break;
        case 6:
            m_table->HideTableColumn(static_cast<unsigned int>(random() % 5), random() % 2 == 0);
            break;
        case 7:
            m_table->MoveTableColumn(static_cast<unsigned int>(random() % 5), static_cast<unsigned int>(random() % 5));
            break;
        case 8:
            if (random() % 200 == 0)
            {
                m_source.reset();
                m_table->UpdateNow();
                ASSERT_EQ(m_table->GetItemCount(), 0) << step;
                ShowMany(30);
                selected.clear();
            }
            break;
        default:
            if (random() % 20 == 0 && size != 0)
            {
                // A real click on a row that is seen; where the rest is told before, it meets the row seen.
                m_table->UpdateNow();
                auto const seen = static_cast<TableRow>(m_table->GetTopIndex());
                TableRow const position =
                    seen + static_cast<TableRow>(random() %
                                                 std::max(1, std::min(m_table->GetCountPerPage(),
                                                                      static_cast<int>(m_table->RowsShown() - seen))));
                if (position >= m_table->RowsShown())
                    break;
                TableRow const row = m_table->RowAt(position);
                CRect rect(0, 0, 0, 0);
                m_table->GetItemRect(static_cast<int>(position), &rect, LVIR_BOUNDS);
                Click(CPoint(20, rect.CenterPoint().y));
                ASSERT_TRUE(tests::PumpUntil([&] { return m_table->SelectedRows() == Order{row}; })) << step;
                selected = {m_source->Key(row)};
            }
            else if (size != 0)
            {
                m_table->UpdateNow();
                auto const position = static_cast<int>(random() % std::max(m_table->RowsShown(), TableRow{1}));
                if (position >= m_table->GetItemCount())
                    break;
                bool const on = random() % 2 == 0;
                m_table->SetItemState(position, on ? LVIS_SELECTED : 0, LVIS_SELECTED);
                TableKey const key = m_source->Key(m_table->RowAt(static_cast<TableRow>(position)));
                if (on)
                    selected.insert(key);
                else
                    selected.erase(key);
            }
            break;
        }
        if (step % 16 == 0)
            tests::PumpPosted();
        if (step % 4 != 0)
            continue;
        m_table->UpdateNow();
        ASSERT_EQ(m_table->GetItemCount(), static_cast<int>(m_table->RowsShown())) << step;
        // What is selected and shown is what the set has of it.
        for (TableRow position = 0; position < m_table->RowsShown(); ++position)
        {
            TableRow const row = m_table->RowAt(position);
            ASSERT_LT(row, m_source->RowCount()) << step;
            ASSERT_EQ(m_table->IsRowSelected(row), selected.count(m_source->Key(row)) != 0) << step;
        }
        if (!m_table->SortColumns().empty() && m_table->SortColumns()[0].column == TableRowsSource::number_column)
        {
            for (TableRow position = 1; position < m_table->RowsShown(); ++position)
            {
                double const first = m_source->At(m_table->RowAt(position - 1)).number;
                double const second = m_source->At(m_table->RowAt(position)).number;
                ASSERT_TRUE(m_table->SortColumns()[0].descending ? first >= second : first <= second) << step;
            }
        }
    }
}
