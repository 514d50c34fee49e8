#pragma once
// A table in a window of its own, with a source in memory that threads may write.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "Input.h"
#include "list/table/XTableCtrl.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace tests
{
/// Rows of name, number, tick, progress and link. Every answer and change is behind a lock.
class TableRowsSource : public TableSource
{
public:
    enum Columns : unsigned int
    {
        name_column,
        number_column,
        tick_column,
        progress_column,
        link_column
    };
    /// No row takes it.
    static constexpr wchar_t const * refused_name = L"nobody";

    struct Row
    {
        TableKey key;
        std::wstring name;
        double number;
        bool ticked = false;
    };

    TableRow RowCount() const override
    {
        std::lock_guard const lock(m_lock);
        return static_cast<TableRow>(m_rows.size());
    }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        std::lock_guard const lock(m_lock);
        if (row >= m_rows.size())
            return false;
        Row const & found = m_rows[row];
        switch (column)
        {
        case name_column:
            value.SetText(found.name);
            return true;
        case number_column:
            value.SetNumber(found.number);
            return true;
        case tick_column:
            value.SetTick(found.ticked);
            return true;
        case progress_column:
            value.SetProgress(found.number);
            return true;
        case link_column:
            value.SetLink(found.name);
            return true;
        default:
            return false;
        }
    }
    TableKey Key(TableRow row) const override
    {
        std::lock_guard const lock(m_lock);
        return row < m_rows.size() ? m_rows[row].key : ~TableKey{0};
    }
    TableRow RowOfKey(TableKey key) const override
    {
        std::lock_guard const lock(m_lock);
        // Keys rise.
        for (std::size_t row = 0; row < m_rows.size(); ++row)
        {
            if (m_rows[row].key == key)
                return static_cast<TableRow>(row);
        }
        return no_table_row;
    }
    bool Write(TableRow row, unsigned int column, TableValue const & value) override
    {
        std::lock_guard const lock(m_lock);
        if (row >= m_rows.size())
            return false;
        switch (column)
        {
        case name_column:
            if (value.Text() == refused_name)
                return false;
            m_rows[row].name = value.Text();
            return true;
        case number_column:
            m_rows[row].number = value.Number();
            return true;
        case tick_column:
            m_rows[row].ticked = value.Whole() != 0;
            return true;
        default:
            return false;
        }
    }

    void Append(std::wstring name, double number)
    {
        std::lock_guard const lock(m_lock);
        m_rows.push_back({100 + m_nextKey++, std::move(name), number});
    }
    void Remove(TableRow row)
    {
        std::lock_guard const lock(m_lock);
        m_rows.erase(m_rows.begin() + row);
    }
    void SetNumber(TableRow row, double number)
    {
        std::lock_guard const lock(m_lock);
        if (row < m_rows.size())
            m_rows[row].number = number;
    }
    void Resize(std::size_t count)
    {
        std::lock_guard const lock(m_lock);
        m_rows.resize(count);
    }
    Row At(TableRow row) const
    {
        std::lock_guard const lock(m_lock);
        return m_rows.at(row);
    }

private:
    mutable std::mutex m_lock;
    std::vector<Row> m_rows;
    TableKey m_nextKey = 0;
};

/// A million numbers without any lock, of which only the value decides.
class ManyRowsSource : public TableSource
{
public:
    static constexpr TableRow count = 1000000;

    TableRow RowCount() const override { return count; }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        if (row >= count)
            return false;
        value.SetNumber(static_cast<double>((row * 7919ULL + column) % 1000003));
        return true;
    }
};

class TestTable : public CXTableCtrl
{
public:
    using CXTableCtrl::ShowColumnMenu;

    /// Each column has its own colour instead of white.
    bool m_columnColours = false;
    /// Called while a cell is painted.
    std::function<void()> m_onColours;
    static constexpr COLORREF Colour(unsigned int column) { return RGB(10 + 40 * column, 200, 100); }

protected:
    void GetCellColors(TableRow row, unsigned int column, COLORREF & text, COLORREF & background) override
    {
        CXTableCtrl::GetCellColors(row, column, text, background);
        if (m_columnColours)
            background = Colour(column);
        auto const callback = m_onColours;
        if (callback)
            callback();
    }
};

class TableTest : public testing::Test
{
protected:
    static constexpr int column_width = 80;

    void SetUp() override { MakeTable(); }

    void MakeTable(std::wstring const & storedName = {})
    {
        m_table = std::make_unique<TestTable>();
        m_table->SetColumns(Columns(), storedName);
        ASSERT_TRUE(
            m_table->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_SHOWSELALWAYS, CRect(0, 0, 380, 220), m_host, 7));
        TableLocale locale;
        m_table->SetTableLocale(locale);
    }
    static std::vector<TableColumn> Columns()
    {
        std::vector<TableColumn> columns(5);
        columns[0].title = L"Name";
        columns[0].editable = true;
        columns[1].title = L"Number";
        columns[1].kind = TableKind::floating;
        columns[1].format = {NumberStyle::fixed, 1, false, UnitPlace::header, L"V"};
        columns[1].editable = true;
        columns[1].check = [](TableValue const & value) {
            return value.Kind() == TableKind::floating && value.Number() > 1000 ? L"too much" : L"";
        };
        columns[2].title = L"On";
        columns[2].kind = TableKind::tick;
        columns[2].editable = true;
        columns[3].title = L"Done";
        columns[3].kind = TableKind::progress;
        columns[4].title = L"More";
        columns[4].kind = TableKind::link;
        for (TableColumn & column : columns)
            column.width = column_width;
        return columns;
    }
    /// Rows with these numbers, named "Ch 0" and so on.
    void Show(std::vector<double> const & numbers)
    {
        m_source = std::make_shared<TableRowsSource>();
        for (double const number : numbers)
            m_source->Append(L"Ch " + std::to_wstring(m_source->RowCount()), number);
        m_table->SetSource(m_source);
    }
    std::vector<TableRow> Shown() const
    {
        std::vector<TableRow> rows;
        for (TableRow position = 0; position < m_table->RowsShown(); ++position)
            rows.push_back(m_table->RowAt(position));
        return rows;
    }
    /// The middle of a cell, in client coordinates; place among the columns shown.
    CPoint CellPoint(TableRow position, int place) const
    {
        CRect row(0, 0, 0, 0);
        m_table->GetItemRect(static_cast<int>(position), &row, LVIR_BOUNDS);
        CRect title = TitleRect(place);
        return CPoint(title.CenterPoint().x, row.CenterPoint().y);
    }
    /// In the table's client coordinates.
    CRect TitleRect(int place) const
    {
        CRect rect(0, 0, 0, 0);
        CHeaderCtrl & header = *m_table->GetHeaderCtrl();
        header.GetItemRect(place, &rect);
        header.MapWindowPoints(m_table.get(), &rect);
        return rect;
    }
    void Press(TableRow position, int place, WPARAM keys = 0)
    {
        CPoint const point = CellPoint(position, place);
        m_table->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | keys, MAKELPARAM(point.x, point.y));
        m_table->SendMessage(WM_LBUTTONUP, keys, MAKELPARAM(point.x, point.y));
    }
    /// A real click at a client position. Its events carry it: the display server may report a former one late.
    void Click(CPoint client, bool right = false)
    {
        CPoint const screen = ClientPoint(m_table->m_hWnd, client);
        MoveMouse(screen);
        constexpr int range = 65536; // of absolute positions
        INPUT events[2] = {};
        for (int i = 0; i < 2; ++i)
        {
            events[i].type = INPUT_MOUSE;
            events[i].mi.dx = (screen.x * range + range / 2) / ::GetSystemMetrics(SM_CXSCREEN);
            events[i].mi.dy = (screen.y * range + range / 2) / ::GetSystemMetrics(SM_CYSCREEN);
            events[i].mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
        }
        events[0].mi.dwFlags |= right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN;
        events[1].mi.dwFlags |= right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP;
        ::SendInput(2, events, sizeof(INPUT));
    }
    void PressKey(UINT key) { m_table->SendMessage(WM_KEYDOWN, key, 1); }

    ScopedWindow m_host{CRect(100, 100, 520, 380)};
    std::unique_ptr<TestTable> m_table;
    std::shared_ptr<TableRowsSource> m_source;
};
} // namespace tests
