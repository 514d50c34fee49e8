// Hosts that choose other sets whenever they are called, most of all while something is painted.

#include <map>
#include <memory>
#include <random>

#include "Bitmap.h"
#include "colours_ColorsTest.h"
#include "controls/LevelSliderCtrl.h"
#include "GuardedHeap.h"
#include "list/XListCellKind.h"
#include "ListTestHost.h"
#include "Pump.h"
#include "table_TableTest.h"

namespace
{
constexpr int rounds = 40;
constexpr int choices_a_round = 6;
constexpr unsigned int first_seed = 1;
constexpr unsigned int seeds = 3;

class Chooser
{
public:
    explicit Chooser(unsigned int seed) : m_random(seed) {}

    void Know(HWND window) { m_windows.push_back(window); }
    /// Chooses or takes a choice away, somewhere.
    void Act()
    {
        if (m_left == 0 || m_random() % 3 != 0)
            return;
        --m_left;
        auto const set = static_cast<ControlColorSet>(m_random() % 4);
        HWND const window = m_windows[m_random() % m_windows.size()];
        switch (m_random() % 5)
        {
        case 0:
            control_colors::UseForProcess(set);
            break;
        case 1:
            control_colors::RemoveFrom(window);
            break;
        case 2:
            ::SendMessageW(window, WM_SYSCOLORCHANGE, 0, 0);
            break;
        default:
            control_colors::UseFor(window, set);
            break;
        }
    }
    unsigned int Next(unsigned int limit) { return static_cast<unsigned int>(m_random() % limit); }
    /// Some more choices: each repaints, so a host that chose another set in every paint would paint for ever.
    void Refill() { m_left = choices_a_round; }
    /// Everything is dark from now on.
    void End()
    {
        m_left = 0;
        for (HWND const window : m_windows)
            control_colors::RemoveFrom(window);
        control_colors::UseForProcess(ControlColorSet::dark);
    }

private:
    std::mt19937 m_random;
    std::vector<HWND> m_windows;
    int m_left = 0;
};

class ActingKind : public CXListCellKind
{
public:
    explicit ActingKind(Chooser & chooser) : m_chooser(chooser) {}
    void Paint(XLISTCTRLDATA const &, CDC & dc, CRect const & rect, COLORREF, COLORREF background) override
    {
        m_chooser.Act();
        dc.FillSolidRect(rect, background);
    }

private:
    Chooser & m_chooser;
};

class ColorsChaos : public testing::TestWithParam<unsigned int>
{
protected:
    colours_tests::ProcessChoice m_restored;
};
} // namespace

TEST_P(ColorsChaos, ListIsInTheLastSetChosen)
{
    tests::GuardedHeap const heap;
    Chooser chooser(GetParam());
    tests::ListHost host;
    host.Fill(5, 6);
    chooser.Know(host.parent.m_hWnd);
    chooser.Know(host.list.m_hWnd);
    chooser.Know(host.list.Header());
    host.parent.onNotify = [&chooser](NMHDR const &) { chooser.Act(); };
    auto const kind = std::make_shared<ActingKind>(chooser);
    for (int row = 0; row < 6; ++row)
    {
        host.list.SetCheckbox(row, 1, row % 5);
        host.list.SetProgress(row, 2, true, nullptr);
        host.list.UpdateProgress(row, 2, 20 * row, 0);
        host.list.SetCustomDraw(row, 3, [&chooser](int, int, CDC * dc, CRect const & rect) {
            chooser.Act();
            dc->FillSolidRect(rect, RGB(1, 2, 3));
        });
        host.list.SetCellKind(row, 4, kind);
    }
    for (int round = 0; round < rounds; ++round)
    {
        chooser.Refill();
        chooser.Act();
        int const row = static_cast<int>(chooser.Next(6));
        host.list.SetCurSel(row, true);
        host.list.SetHeaderCheckedState(1, static_cast<int>(chooser.Next(7)));
        host.list.SetItemText(row, 0, L"later", static_cast<COLORREF>(-1), static_cast<COLORREF>(-1));
        host.list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        if (round % 10 == 0)
            host.list.SetEdit(row, 0, true);
        if (round % 10 == 1)
            host.list.DrawEditControl(row, 0);
        tests::PumpPosted(50);
    }
    chooser.End();
    host.parent.SetFocus();
    tests::PumpPosted();
    host.list.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    tests::Canvas screen(360, 200);
    screen.CopyFromScreen(host.list.m_hWnd);
    ControlColors const colors = control_colors::Dark();
    EXPECT_EQ(screen.Pixel(100, 165), colors.window);
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(host.list.GetRowItemData(row, 1)->backgroundColor, 0xFFFFFFu) << "cells keep what they were given";
    COLORREF text = 0;
    COLORREF background = 0;
    ASSERT_TRUE(host.list.GetItemColors(0, 0, text, background));
    EXPECT_EQ(background, ::GetSysColor(COLOR_WINDOW));
}

TEST_P(ColorsChaos, TableAndSliderAreInTheLastSetChosen)
{
    tests::GuardedHeap const heap;
    Chooser chooser(GetParam());
    tests::ScopedWindow parent{CRect(100, 100, 520, 420)};
    tests::TestTable table;
    std::vector<TableColumn> columns(3);
    columns[1].kind = TableKind::tick;
    columns[2].kind = TableKind::progress;
    for (TableColumn & column : columns)
    {
        column.title = L"title";
        column.width = 80;
    }
    table.SetColumns(columns, {});
    ASSERT_TRUE(table.Create(WS_CHILD | WS_VISIBLE | LVS_SHOWSELALWAYS, CRect(0, 0, 380, 220), parent, 7));
    auto const source = std::make_shared<tests::TableRowsSource>();
    for (int i = 0; i < 20; ++i)
        source->Append(L"Ch", i);
    table.SetSource(source);
    CLevelSliderCtrl slider;
    ASSERT_TRUE(slider.Create(WS_CHILD | WS_VISIBLE | TBS_HORZ, CRect(0, 230, 200, 260), parent, 8));
    chooser.Know(parent.m_hWnd);
    chooser.Know(table.m_hWnd);
    chooser.Know(slider.m_hWnd);
    table.m_onColours = [&chooser] { chooser.Act(); };
    for (int round = 0; round < rounds; ++round)
    {
        chooser.Refill();
        chooser.Act();
        slider.SetPos(static_cast<int>(chooser.Next(100)));
        parent.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        tests::PumpPosted(50);
    }
    chooser.End();
    tests::PumpPosted();
    table.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    tests::Canvas screen(380, 220);
    screen.CopyFromScreen(table.m_hWnd);
    EXPECT_EQ(screen.Pixel(300, 150), control_colors::Dark().window);
    slider.DestroyWindow();
    table.DestroyWindow();
}

INSTANTIATE_TEST_SUITE_P(Seeds, ColorsChaos, testing::Range(first_seed, first_seed + seeds));
