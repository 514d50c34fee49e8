// Hosts that change or end the list while it paints.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "Bitmap.h"
#include "GuardedHeap.h"
#include "ListTestHost.h"
#include "Pump.h"

namespace
{
constexpr int columns = 3;
constexpr int rows = 6;

/// A native list that sends one cell's notification with each paint and then returns. The system's own list goes on
/// with the rows that it has counted before, and ends the program if they are gone.
class OneCellNative
{
public:
    static wchar_t const * ClassName()
    {
        static wchar_t const * const name = [] {
            WNDCLASSEXW info = {};
            info.cbSize = sizeof(info);
            ::GetClassInfoExW(nullptr, WC_LISTVIEWW, &info);
            s_system = info.lpfnWndProc;
            info.hInstance = ::GetModuleHandleW(nullptr);
            info.lpszClassName = L"OneCellList";
            info.lpfnWndProc = &WindowProc;
            info.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
            ::RegisterClassExW(&info);
            return info.lpszClassName;
        }();
        return name;
    }

private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message != WM_PAINT)
            return ::CallWindowProcW(s_system, window, message, wParam, lParam);
        PAINTSTRUCT paint;
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdc = ::BeginPaint(window, &paint);
        draw.nmcd.hdr = {window, static_cast<UINT_PTR>(::GetDlgCtrlID(window)), static_cast<UINT>(NM_CUSTOMDRAW)};
        draw.nmcd.dwDrawStage = CDDS_ITEMPREPAINT | CDDS_SUBITEM;
        draw.nmcd.dwItemSpec = 1;
        draw.iSubItem = 1;
        LVITEMW item = {};
        item.mask = LVIF_PARAM;
        item.iItem = 1;
        ::CallWindowProcW(s_system, window, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        draw.nmcd.lItemlParam = item.lParam;
        ::SendMessageW(::GetParent(window), WM_NOTIFY, draw.nmcd.hdr.idFrom, reinterpret_cast<LPARAM>(&draw));
        ::EndPaint(window, &paint);
        return 0;
    }

    inline static WNDPROC s_system = nullptr;
};

class ListPaintHosts : public testing::Test
{
protected:
    void SetUp() override { Open(); }
    void Open(wchar_t const * className = WC_LISTVIEWW)
    {
        HWND const window = ::CreateWindowExW(0, className, nullptr, tests::TestList::default_style, 0, 0, 360, 200,
                                              m_host, reinterpret_cast<HMENU>(7), nullptr, nullptr);
        ASSERT_TRUE(m_list->SubclassWindow(window));
        m_list->AddColumns(columns);
        m_list->AddRows(rows);
        ::UpdateWindow(window);
    }
    /// Exchanges the window for one whose native part paints one cell.
    void OpenWithOneCell()
    {
        m_list->DestroyWindow();
        Open(OneCellNative::ClassName());
    }
    void TearDown() override
    {
        if (m_list != nullptr)
            m_list->DestroyWindow();
    }

    /// Has the cell run that when it is painted, once.
    void WhenPainted(int row, int col, std::function<void()> const & action)
    {
        m_list->SetCustomDraw(row, col, [this, row, col, action](int, int, CDC * dc, CRect const & rect) {
            if (m_ran)
                return;
            m_ran = true;
            action();
            // What was captured is still there, though the cell no longer has this painter.
            m_seen = {row, col};
            if (m_list != nullptr && m_list->m_hWnd != nullptr)
                dc->FillSolidRect(rect, RGB(1, 2, 3));
        });
    }
    void PaintAll()
    {
        m_list->Invalidate();
        // Not through the object, which may end meanwhile.
        ::UpdateWindow(m_list->m_hWnd);
        EXPECT_TRUE(m_ran);
    }

    tests::GuardedHeap m_heap; // whose end of the program on a fault is what counts
    tests::ListParent m_host;
    std::unique_ptr<tests::GuardedList> m_list = std::make_unique<tests::GuardedList>();
    bool m_ran = false;
    std::pair<int, int> m_seen{-1, -1};
};

TEST_F(ListPaintHosts, APainterMayReplaceItself)
{
    WhenPainted(1, 1, [this] { m_list->SetCustomDraw(1, 1, [](int, int, CDC *, CRect const &) {}); });
    PaintAll();
    EXPECT_EQ(m_seen, std::pair(1, 1));
}

TEST_F(ListPaintHosts, APainterMayRemoveItself)
{
    WhenPainted(1, 1, [this] { m_list->RemoveCustomDraw(1, 1); });
    PaintAll();
    EXPECT_EQ(m_seen, std::pair(1, 1));
}

TEST_F(ListPaintHosts, APainterMayDeleteItsRow)
{
    WhenPainted(1, 1, [this] {
        m_list->DeleteItem(1);
        m_list->AddRows(1);
    });
    PaintAll();
    EXPECT_EQ(m_seen, std::pair(1, 1));
    EXPECT_EQ(m_list->GetItemCount(), rows);
}

TEST_F(ListPaintHosts, APainterMayDeleteAllRows)
{
    OpenWithOneCell();
    WhenPainted(1, 1, [this] { m_list->DeleteAllItems(); });
    PaintAll();
    EXPECT_EQ(m_seen, std::pair(1, 1));
    EXPECT_EQ(m_list->GetItemCount(), 0);
}

TEST_F(ListPaintHosts, APainterMayDeleteAllColumns)
{
    OpenWithOneCell();
    WhenPainted(1, 1, [this] { m_list->DeleteAllColumns(); });
    PaintAll();
    EXPECT_EQ(m_seen, std::pair(1, 1));
    EXPECT_EQ(m_list->GetColumnCount(), 0);
}

TEST_F(ListPaintHosts, APainterMayDestroyTheWindow)
{
    OpenWithOneCell();
    WhenPainted(1, 1, [this] { m_list->DestroyWindow(); });
    PaintAll();
    EXPECT_EQ(m_seen, std::pair(1, 1));
    // The object can have another window, which paints as usual.
    Open();
    m_list->SetCheckbox(1, 1, XLC_CHECKED);
    m_list->RedrawWindow();
}

TEST_F(ListPaintHosts, APainterMayDeleteTheList)
{
    OpenWithOneCell();
    WhenPainted(1, 1, [this] { m_list.reset(); });
    PaintAll();
    EXPECT_EQ(m_seen, std::pair(1, 1));
}

TEST_F(ListPaintHosts, APainterMayPaintTheListAgain)
{
    WhenPainted(1, 1, [this] {
        m_list->CListCtrl::SetColumnWidth(0, 33);
        m_list->RedrawWindow();
    });
    PaintAll();
    EXPECT_EQ(m_seen, std::pair(1, 1));
}

TEST_F(ListPaintHosts, TheParentMayDeleteTheListWhenItIsToldOfACell)
{
    OpenWithOneCell();
    m_host.onNotify = [this](NMHDR const & header) {
        auto const & draw = reinterpret_cast<NMLVCUSTOMDRAW const &>(header);
        if (header.code != static_cast<UINT>(NM_CUSTOMDRAW) || m_list == nullptr || header.hwndFrom != m_list->m_hWnd ||
            draw.nmcd.dwDrawStage != (CDDS_ITEMPREPAINT | CDDS_SUBITEM))
            return;
        m_ran = true;
        m_list.reset();
    };
    PaintAll();
    EXPECT_EQ(m_list, nullptr);
}

// Whatever a parent changes between two cells shows in those that follow.
TEST_F(ListPaintHosts, ACellIsPaintedWithWhatTheParentHasChangedJustBefore)
{
    m_list->SetFocus();
    int const width = 33;
    m_host.onNotify = [this, width](NMHDR const & header) {
        auto const & draw = reinterpret_cast<NMLVCUSTOMDRAW const &>(header);
        if (m_ran || header.code != static_cast<UINT>(NM_CUSTOMDRAW) || header.hwndFrom != m_list->m_hWnd ||
            draw.nmcd.dwDrawStage != (CDDS_ITEMPREPAINT | CDDS_SUBITEM) || draw.nmcd.dwItemSpec != 2 ||
            draw.iSubItem != 1)
            return;
        m_ran = true;
        m_list->CListCtrl::SetColumnWidth(0, width);
        m_list->SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    };
    CRect painted;
    m_list->SetCustomDraw(2, 2, [&](int, int, CDC *, CRect const & rect) {
        if (painted.IsRectEmpty())
            painted = rect;
    });
    m_list->SetItemText(2, 1, L"");
    PaintAll();
    CRect now;
    ASSERT_TRUE(m_list->GetSubItemRect(2, 2, LVIR_BOUNDS, now));
    EXPECT_EQ(painted, now);
}
} // namespace
