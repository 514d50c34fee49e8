// A parent whose every handler, callback, painter and comparator does something random to the list that it hears from.

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>

#include "GuardedHeap.h"
#include "list/XListRowPool.h"
#include "ListTestHost.h"
#include "Pump.h"

namespace
{
/// A parent with one list, of which nobody knows when it ends.
class ChaosHost
{
public:
    explicit ChaosHost(unsigned seed) : m_random(seed)
    {
        m_texts[1] = L"one";
        m_texts[2] = L"two, which is long enough for a buffer of its own";
        m_host.onNotify = [this](NMHDR const & header) { Hear(header); };
    }
    ~ChaosHost()
    {
        m_host.onNotify = nullptr;
        m_list.reset();
    }

    void Step()
    {
        if (m_list == nullptr || m_list->m_hWnd == nullptr)
            Open();
        m_depth = 0;
        m_operations = 0;
        Operate();
        if (Below(8) == 0)
            tests::PumpPosted(50);
    }
    /// What is wrong with the list, between steps; empty if nothing is.
    std::string Fault() const
    {
        if (m_list == nullptr || m_list->m_hWnd == nullptr)
            return {};
        std::set<LPARAM> objects;
        for (int row = 0; row < m_list->GetItemCount(); ++row)
        {
            LPARAM const object = m_list->Param(row);
            if (object != 0 && !objects.insert(object).second)
                return "row " + std::to_string(row) + " shares its object";
            if (object != 0 && m_list->GetRowData(row) != reinterpret_cast<XLISTCTRLROW const *>(object)->cells())
                return "row " + std::to_string(row) + " answers with another row's cells";
        }
        return {};
    }
    int Calls() const { return m_calls; }
    int Lists() const { return m_lists; }

private:
    /// What the list tells its host while it works; it is told of more than the host acts on.
    static constexpr int most_depth = 4;
    static constexpr int most_operations = 40;
    static constexpr int most_rows = 30;
    static constexpr int most_columns = 6;

    int Below(int end) { return end <= 0 ? 0 : static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    bool Coin() { return Below(2) == 0; }
    /// A row or column, now and then one that does not exist.
    int Row() { return Below(std::max(m_list->GetItemCount(), 1) + 2) - 1; }
    int Col() { return Below(std::max(m_list->GetColumnCount(), 1) + 1); }

    void Open()
    {
        if (m_list == nullptr)
            m_list = std::make_unique<tests::TestList>();
        ++m_lists;
        DWORD const style = tests::TestList::default_style | (Coin() ? LVS_SINGLESEL : 0U);
        m_list->Create(style, CRect(0, 0, 360, 200), &m_host, tests::TestList::id);
        m_list->AddColumns(1 + Below(4));
        m_list->EnableDragAndDrop();
        m_list->EnableItemToolTipps();
        Assign();
    }

    /// Callables that go on as they like.
    void Assign()
    {
        auto const act = [this](int, int) { React(); };
        std::array<std::function<void(int, int)> *, 4> const callables = {
            &m_list->m_onCellClick, &m_list->m_onStateChange, &m_list->m_onDoubleClick, &m_list->m_onRowsSwapped};
        for (auto * const callable : callables)
        {
            int const choice = Below(6);
            if (choice < 4)
                *callable = act;
            else if (choice == 4)
                *callable = nullptr;
        }
        m_list->SetHeaderAutoCheckbox(Coin());
    }

    void Hear(NMHDR const & header)
    {
        if (m_list == nullptr || header.hwndFrom != m_list->m_hWnd)
            return;
        // The native control itself does not stand the loss of its items everywhere: not while it tells of rows that
        // go, nor of states, which a deletion changes first.
        switch (header.code)
        {
        case LVN_INSERTITEM:
            React(Harm::rows);
            break;
        case LVN_ITEMCHANGED:
            React((reinterpret_cast<NMLISTVIEW const &>(header).uChanged & LVIF_STATE) != 0 ? Harm::insertions
                                                                                            : Harm::rows);
            break;
        case LVN_ITEMCHANGING:
            React(Harm::insertions);
            break;
        case LVN_DELETEALLITEMS:
        case LVN_DELETEITEM:
        case HDN_ITEMCHANGINGW:
        case HDN_ITEMCHANGEDW:
        case NM_SETFOCUS:
        case NM_KILLFOCUS:
            React(Harm::cells);
            break;
        default:
            break;
        }
    }

    /// How far a reaction may go where the native control is in the middle of something.
    enum class Harm
    {
        cells,
        insertions,
        rows,
        everything
    };

    void React(Harm most = Harm::everything)
    {
        ++m_calls;
        if (m_list == nullptr || m_depth >= most_depth || m_operations >= most_operations || Below(3) == 0)
            return;
        Harm const outer = std::exchange(m_harm, std::min(m_harm, most));
        ++m_depth;
        Operate();
        --m_depth;
        m_harm = outer;
    }

    void Operate()
    {
        if (m_list == nullptr || m_list->m_hWnd == nullptr)
            return;
        ++m_operations;
        int const dice = Below(100);
        if (dice < 40 || m_harm == Harm::cells)
            OperateOnCells();
        else if (dice < 60 || m_harm == Harm::insertions)
            Insert();
        else if (dice < 80 || m_harm == Harm::rows)
            OperateOnRows();
        else if (dice < 97)
            OperateAsUser();
        else if (dice == 97)
            m_list->DestroyWindow();
        else if (dice == 98)
            m_list.reset();
        else
            Assign();
    }

    void Insert()
    {
        if (m_list->GetItemCount() >= most_rows)
            return;
        if (Below(8) == 0)
            m_list->InsertForeignItem(Below(m_list->GetItemCount() + 1), L"foreign");
        else
            m_list->InsertItem(Below(m_list->GetItemCount() + 2) - 1, L"row", nullptr, Below(1000));
    }

    void OperateOnRows()
    {
        switch (Below(10))
        {
        case 0:
            m_list->DeleteAllItems();
            break;
        case 1:
        case 2:
        case 3:
            m_list->DeleteItem(Row());
            break;
        case 4:
            m_list->SortByColumn(Col(), Coin(), Coin(), nullptr);
            break;
        case 5:
            Sort();
            break;
        case 6:
            m_list->EnableAll(true);
            break;
        case 7:
            if (m_list->GetColumnCount() < most_columns)
                m_list->AddColumns(1, 40 + Below(60));
            break;
        case 8:
            if (Below(10) == 0)
            {
                m_list->DeleteAllColumns();
                if (m_list != nullptr && m_list->m_hWnd != nullptr)
                    m_list->AddColumns(2);
            }
            break;
        default:
            m_list->SetCurSel(Row(), Coin());
            break;
        }
    }

    void OperateOnCells()
    {
        int const row = Row();
        int const col = Col();
        switch (Below(22))
        {
        case 0:
            m_list->SetItemText(row, col, std::to_wstring(Below(10000)).c_str());
            break;
        case 1:
            m_list->SetItemText(row, col, Below(10000));
            break;
        case 2:
            m_list->SetItemText(row, col, 0.5F * static_cast<float>(Below(100)), nullptr);
            break;
        case 3:
            m_list->SetItemFloatVal(row, col, 0.25F, L"a quarter");
            break;
        case 4:
            m_list->SetItemText(row, col, L"coloured", RGB(0, 0, 200), RGB(240, 240, 200));
            break;
        case 5:
            m_list->SetCheckbox(row, col, Below(4) - 1);
            break;
        case 6:
            m_list->SetRadioButton(row, col, Coin() ? XLC_RADIO_ON : XLC_RADIO_OFF);
            break;
        case 7:
            m_list->SetHyperlink(row, col, Coin(), Coin());
            break;
        case 8:
            m_list->SetProgress(row, col, true, nullptr);
            break;
        case 9:
            m_list->SetComboBox(row, col, &m_texts, 1 + Below(3), 1);
            break;
        case 10:
            m_list->SetComboSelection(row, col, 1 + Below(3));
            break;
        case 11:
            m_list->SetCustomDraw(row, col, [this](int, int, CDC * dc, CRect const & rect) {
                dc->FillSolidRect(rect, RGB(200, 255, 200));
                Paint();
            });
            break;
        case 12:
            if (m_list->GetItemProperty(row, col, XLP_CUSTOMDRAW))
                m_list->RemoveCustomDraw(row, col);
            break;
        case 13:
            m_list->SetItemImage(row, col, Below(3) - 1);
            break;
        case 14: {
            LVITEMW item{};
            item.mask = LVIF_TEXT;
            item.iItem = row;
            item.iSubItem = col;
            item.pszText = const_cast<wchar_t *>(L"native");
            m_list->SetItem(&item);
            break;
        }
        case 15:
            m_list->SetItemToolTipText(row, col, L"a tooltip of more than a few characters");
            break;
        case 16:
            m_list->SetEnabled(row, col, Coin());
            break;
        case 17:
            m_list->FindDataItem(static_cast<long long>(Below(1000)));
            break;
        case 18:
            m_list->SetColumnWidth(col, 30 + Below(60));
            break;
        case 19:
            m_list->SetHeaderCheckedState(col, Below(5));
            break;
        case 20:
            m_list->CountCheckedItems(col, Below(4) - 2);
            break;
        default:
            m_list->SetItemData(row, Below(1000), 1);
            break;
        }
    }

    void OperateAsUser()
    {
        CRect cell(10, 30, 20, 40);
        if (m_list->GetItemCount() > 0 && m_list->GetColumnCount() > 0)
        {
            int const visible = std::min(m_list->GetItemCount(), 8);
            m_list->GetSubItemRect(m_list->GetTopIndex() + Below(visible), Below(m_list->GetColumnCount()), LVIR_BOUNDS,
                                   cell);
        }
        HWND const window = m_list->m_hWnd;
        LPARAM const place = MAKELPARAM(cell.left + 3, cell.CenterPoint().y);
        switch (Below(9))
        {
        case 0:
        case 1:
        case 2:
            // The native list waits for the end within the press.
            ::PostMessageW(window, WM_LBUTTONUP, 0, place);
            ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
            break;
        case 3:
            ::SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
            break;
        case 4:
            ::SendMessageW(window, WM_KEYDOWN, Coin() ? VK_DOWN : VK_PRIOR, 1);
            break;
        case 5:
            m_list->OnHeaderColumnClick(Col());
            break;
        case 6:
            Drag(place);
            break;
        case 7:
            m_list->SetFocus();
            break;
        default:
            m_list->Invalidate();
            m_list->UpdateWindow();
            break;
        }
    }

    void Drag(LPARAM to)
    {
        HWND const window = m_list->m_hWnd;
        NMLISTVIEW drag{};
        drag.hdr.hwndFrom = window;
        drag.hdr.code = LVN_BEGINDRAG;
        drag.iItem = Below(m_list->GetItemCount());
        LRESULT result = 0;
        m_list->OnChildNotify(WM_NOTIFY, tests::TestList::id, reinterpret_cast<LPARAM>(&drag), &result);
        ::SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, to);
        ::SendMessageW(window, WM_LBUTTONUP, 0, to);
    }

    /// A painter runs within the native control's paint.
    void Paint() { React(Harm::cells); }

    void Sort()
    {
        s_sorting = this;
        m_list->SortByColumn(Col(), Coin(), Coin(), [](long long a, long long b, long long) {
            if (s_sorting != nullptr && s_sorting->Below(20) == 0)
                s_sorting->React();
            return static_cast<int>(b - a);
        });
        s_sorting = nullptr;
    }

    std::mt19937 m_random;
    tests::ListParent m_host;
    std::map<int, CString> m_texts;
    std::unique_ptr<tests::TestList> m_list;
    Harm m_harm = Harm::everything;
    int m_depth = 0;
    int m_operations = 0;
    int m_calls = 0;
    int m_lists = 0;
    static ChaosHost * s_sorting;
};

ChaosHost * ChaosHost::s_sorting = nullptr;

/// 10,000 steps of a seed.
void RunChaos(unsigned seed)
{
    constexpr int steps = 10000;
    constexpr int steps_between_checks = 500;

    tests::GuardedHeap heap;
    {
        ChaosHost host(seed);
        for (int step = 0; step < steps; ++step)
        {
            host.Step();
            ASSERT_EQ(host.Fault(), "") << "in step " << step;
            if (step % steps_between_checks == 0)
            {
                ASSERT_EQ(heap.Check(), 0u) << "in step " << step;
            }
        }
        EXPECT_GT(host.Calls(), steps / 2) << "the list hardly told its host anything";
        EXPECT_GT(host.Lists(), 10);
    }
    EXPECT_GT(heap.Allocations(), 0u);
}

// A suite a seed, since each suite runs in a process of its own and beside others.

TEST(ChaosListOne, BreaksNothingIn10000Steps)
{
    RunChaos(1);
}

TEST(ChaosListTwo, BreaksNothingIn10000Steps)
{
    RunChaos(2);
}

TEST(ChaosListThree, BreaksNothingIn10000Steps)
{
    RunChaos(3);
}

TEST(ChaosListFour, BreaksNothingIn10000Steps)
{
    RunChaos(4);
}

TEST(ChaosListFive, BreaksNothingIn10000Steps)
{
    RunChaos(5);
}
} // namespace
