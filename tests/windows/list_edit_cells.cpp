// The edit field over a cell of the list: where it opens, what ends it, and what the cell and the parent get of it.

#include <memory>

#include "GdiHandleCount.h"
#include "list_EditorTest.h"
#include "ScopedWindow.h"

namespace
{
using tests::PostedRows;
using namespace list_editors;

class ListEditCells : public list_editors::ListEditorTest
{
protected:
    static int CountWindows()
    {
        int count = 0;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM result) {
                auto const add = [](HWND, LPARAM sum) {
                    ++*reinterpret_cast<int *>(sum);
                    return TRUE;
                };
                add(window, result);
                ::EnumChildWindows(window, add, result);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&count));
        return count;
    }
};

TEST_F(ListEditCells, AClickOpensTheEditOverTheCellWithItsTextSelected)
{
    m_list.SetItemText(2, 1, L"forty");
    OpenEdit(2, 1);
    HWND const edit = Edit();
    EXPECT_EQ(TextOf(edit), L"forty");
    DWORD from = 0;
    DWORD to = 0;
    ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    EXPECT_EQ(from, 0U);
    EXPECT_EQ(to, 5U);
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
    EXPECT_EQ(::SendMessageW(edit, WM_GETFONT, 0, 0), ::SendMessageW(m_list.m_hWnd, WM_GETFONT, 0, 0));

    CRect row;
    ASSERT_TRUE(m_list.GetItemRect(2, &row, LVIR_BOUNDS));
    CRect place;
    ::GetWindowRect(edit, &place);
    m_list.ScreenToClient(&place);
    int const left = row.left + m_list.GetColumnWidth(0) + 2;
    EXPECT_EQ(place, CRect(left, row.top, left + m_list.GetColumnWidth(1) - 4, row.bottom + 1));
    auto const style = static_cast<DWORD>(::GetWindowLongPtrW(edit, GWL_STYLE));
    EXPECT_EQ(style & (WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | 3U), WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL);
}

TEST_F(ListEditCells, TheEditHasTheMouseFromItsOpeningOn)
{
    m_list.SetEdit(2, 1, true);
    m_list.DrawEditControl(2, 1);
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(::GetCapture(), Edit());
    m_list.SendMessage(edit_escapes);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ListEditCells, FollowsTheColumnsAlignment)
{
    m_list.AddColumn(L"right", LVCFMT_RIGHT, 80);
    m_list.AddColumn(L"centre", LVCFMT_CENTER, 80);
    m_list.AddRows(1);
    int const row = m_list.GetItemCount() - 1;
    int const right = m_list.GetColumnCount() - 2;
    m_list.DrawEditControl(row, right);
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(::GetWindowLongPtrW(Edit(), GWL_STYLE) & 3, ES_RIGHT);
    m_list.DrawEditControl(row, right + 1);
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(::GetWindowLongPtrW(Edit(), GWL_STYLE) & 3, ES_CENTER);
}

TEST_F(ListEditCells, AColumnOf4PixelsNeverOpensAnEdit)
{
    m_list.SetEdit(1, 2, true);
    m_list.CListCtrl::SetColumnWidth(2, 4);
    m_list.DrawEditControl(1, 2);
    EXPECT_EQ(Edit(), nullptr);
    m_list.CListCtrl::SetColumnWidth(2, 5);
    m_list.DrawEditControl(1, 2);
    EXPECT_NE(Edit(), nullptr);
}

TEST_F(ListEditCells, NothingOpensOverADisabledOrMissingCell)
{
    m_list.SetEdit(1, 1, true);
    m_list.SetEnabled(1, 1, false);
    m_list.DrawEditControl(1, 1);
    EXPECT_EQ(Edit(), nullptr);
    for (auto const & [row, col] : {std::pair{-1, 1}, {1, -1}, {list_input::rows, 1}, {1, list_input::columns}})
    {
        m_list.DrawEditControl(row, col);
        EXPECT_EQ(Edit(), nullptr) << row << ", " << col;
    }
    m_list.InsertForeignItem(0, L"foreign");
    m_list.DrawEditControl(0, 1);
    EXPECT_EQ(Edit(), nullptr);
}

TEST_F(ListEditCells, EscapeRestoresTheTextAndPostsNothing)
{
    m_list.SetItemText(2, 1, L"before");
    OpenEdit(2, 1);
    m_host.TakePosted();
    SetText(Edit(), L"after");
    EndEditWith(VK_ESCAPE);
    EXPECT_EQ(m_list.GetItemText(2, 1), L"before");
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
    EXPECT_FALSE(m_list.GetModified(2, 1));
    EXPECT_FALSE(m_list.GetListModified());
    EXPECT_EQ(::GetFocus(), m_list.m_hWnd);
}

TEST_F(ListEditCells, EscapeLeavesANumberANumber)
{
    m_list.SetItemText(2, 1, 41);
    OpenEdit(2, 1);
    EndEditWith(VK_ESCAPE);
    EXPECT_EQ(m_list.GetItemValueType(2, 1), static_cast<unsigned>(XLV_INT));
    EXPECT_EQ(m_list.GetItemText(2, 1), L"41");
}

TEST_F(ListEditCells, ReturnOnAnUnchangedNumberMakesItAText)
{
    m_list.SetItemText(2, 1, 41);
    OpenEdit(2, 1);
    EndEditWith(VK_RETURN);
    EXPECT_EQ(m_list.GetItemValueType(2, 1), static_cast<unsigned>(XLV_TEXT));
    EXPECT_EQ(m_list.GetItemText(2, 1), L"41");
    EXPECT_FALSE(m_list.GetModified(2, 1));
    EXPECT_FALSE(m_list.GetListModified());
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListEditCells, ReturnTakesATypedTextAndTellsOnce)
{
    std::vector<std::pair<int, int>> heard;
    m_list.m_onStateChange = [&](int row, int col) { heard.emplace_back(row, col); };
    OpenEdit(3, 2);
    tests::MessageRecorder closing({edit_ends, edit_escapes});
    closing.Watch(m_list.m_hWnd, "list");
    HWND const edit = Edit();
    tests::Type(L"new");
    ASSERT_TRUE(tests::PumpUntil([&] { return TextOf(edit) == L"new"; }));
    EndEditWith(VK_RETURN);
    EXPECT_EQ(m_list.GetItemText(3, 2), L"new");
    EXPECT_TRUE(m_list.GetModified(3, 2));
    EXPECT_TRUE(m_list.GetListModified());
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_EDIT_END, 3, 2}}));
    EXPECT_EQ(heard, (std::vector<std::pair<int, int>>{{3, 2}}));
    // The focus that it loses by its end is no second end.
    EXPECT_EQ(closing.Count("list", edit_ends), 1);
    EXPECT_EQ(closing.Count("list", edit_escapes), 0);
}

TEST_F(ListEditCells, ADifferenceInCaseIsAChange)
{
    m_list.SetItemText(3, 2, L"Text");
    OpenEdit(3, 2);
    SetText(Edit(), L"text");
    EndEditWith(VK_RETURN);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_EDIT_END, 3, 2}}));
}

TEST_F(ListEditCells, TheCharactersOfReturnAndEscapeEndItAsWell)
{
    m_list.DrawEditControl(1, 1);
    SetText(Edit(), L"x");
    ::SendMessageW(Edit(), WM_CHAR, VK_ESCAPE, 0);
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"");
    m_list.DrawEditControl(1, 1);
    SetText(Edit(), L"x");
    ::SendMessageW(Edit(), WM_CHAR, VK_RETURN, 0);
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"x");
}

TEST_F(ListEditCells, LosingTheFocusTakesTheText)
{
    OpenEdit(1, 1);
    SetText(Edit(), L"typed");
    m_button.SetFocus();
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_EQ(::GetFocus(), m_button.m_hWnd);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"typed");
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_EDIT_END, 1, 1}}));
}

TEST_F(ListEditCells, TheFirstClickElsewhereIsTheEditsTheSecondTakesTheText)
{
    OpenEdit(1, 1);
    SetText(Edit(), L"typed");
    ASSERT_EQ(::GetCapture(), Edit());
    CPoint const elsewhere = Screen(Middle(4, 3));
    list_input::Click(elsewhere);
    EXPECT_TRUE(tests::PumpUntil([] { return ::GetCapture() == nullptr; }));
    tests::PumpPosted();
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(m_list.GetSelectedItem(), 1);
    list_input::Click(elsewhere);
    EXPECT_TRUE(tests::PumpUntil([this] { return Edit() == nullptr && m_list.GetSelectedItem() == 4; }));
    EXPECT_EQ(m_list.GetItemText(1, 1), L"typed");
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_EDIT_END, 1, 1}}));
}

TEST_F(ListEditCells, ANewEditThrowsTheOldOneAway)
{
    m_list.SetItemText(1, 1, L"kept");
    m_list.DrawEditControl(1, 1);
    HWND const first = Edit();
    SetText(first, L"lost");
    m_list.DrawEditControl(4, 2);
    EXPECT_FALSE(::IsWindow(first));
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"kept");
    SetText(Edit(), L"second");
    m_list.SendMessage(edit_ends);
    EXPECT_EQ(m_list.GetItemText(4, 2), L"second");
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_EDIT_END, 4, 2}}));
}

TEST_F(ListEditCells, APressOnTheNonClientAreaTakesTheText)
{
    OpenEdit(1, 1);
    SetText(Edit(), L"typed");
    m_list.OnNcLButtonDown(HTBORDER, CPoint());
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"typed");
}

TEST_F(ListEditCells, AColumnOutOfViewIsScrolledIn)
{
    m_list.SetColumnWidth(0, 500);
    m_list.SetEdit(1, 2, true);
    m_list.DrawEditControl(1, 2);
    ASSERT_NE(Edit(), nullptr);
    CRect place;
    ::GetWindowRect(Edit(), &place);
    m_list.ScreenToClient(&place);
    CRect client;
    m_list.GetClientRect(&client);
    EXPECT_GE(place.left, 0);
    EXPECT_LE(place.right, client.right);
    EXPECT_LT(place.left, place.right);
}

TEST_F(ListEditCells, TheResultGoesToWhateverRowStandsThereThen)
{
    m_list.DrawEditControl(1, 1);
    SetText(Edit(), L"moved");
    m_list.DeleteItem(0);
    m_list.SendMessage(edit_ends);
    EXPECT_EQ(m_list.GetItemText(1, 0), L"r2");
    EXPECT_EQ(m_list.GetItemText(1, 1), L"moved");
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_EDIT_END, 1, 1}}));
}

TEST_F(ListEditCells, WithoutItsRowAnEditEndsQuietly)
{
    m_list.DrawEditControl(list_input::rows - 1, 1);
    SetText(Edit(), L"lost");
    m_list.DeleteAllItems();
    m_list.SendMessage(edit_ends);
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
    m_list.AddRows(3);
    m_list.DrawEditControl(0, 1);
    m_list.DeleteAllItems();
    m_list.SendMessage(edit_escapes);
    EXPECT_EQ(Edit(), nullptr);
}

TEST_F(ListEditCells, SortingWithAnOpenEditIsSafe)
{
    for (int row = 0; row < list_input::rows; ++row)
        m_list.SetItemText(row, 1, list_input::rows - row);
    m_list.DrawEditControl(0, 2);
    SetText(Edit(), L"top");
    m_list.SortByColumn(1, true, false, nullptr);
    m_list.SendMessage(edit_ends);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"r7");
    EXPECT_EQ(m_list.GetItemText(0, 2), L"top");
}

TEST_F(ListEditCells, NoEditOutlivesItsList)
{
    m_list.DrawEditControl(1, 1);
    HWND const edit = Edit();
    ASSERT_NE(edit, nullptr);
    m_list.DestroyWindow();
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_EQ(::GetCapture(), nullptr);
    // The window made anew starts without an editor.
    ASSERT_TRUE(m_list.Create(tests::TestList::default_style, CRect(0, 0, 360, 200), &m_host.parent, 7));
    m_list.SendMessage(edit_ends);
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListEditCells, AHostMayEndTheListWhenItHearsOfTheEnd)
{
    m_list.m_onStateChange = [this](int, int) { m_list.DestroyWindow(); };
    OpenEdit(1, 1);
    SetText(Edit(), L"typed");
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.m_hWnd == nullptr; }));
    tests::PumpPosted();
    EXPECT_EQ(::GetCapture(), nullptr);
}

/// Ends with its list when it hears that an edit has ended.
class EndingDialog : public tests::ListDialog
{
public:
    int m_ends = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_XLISTCTRL_EDIT_END)
        {
            ++m_ends;
            DestroyWindow();
            return 0;
        }
        return ListDialog::WindowProc(message, wParam, lParam);
    }
};

TEST_F(ListEditCells, AHostMayDestroyTheDialogWhenItHearsOfTheEnd)
{
    EndingDialog dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.list.AddColumns(2);
    dialog.list.AddRows(2);
    dialog.list.DrawEditControl(1, 1);
    HWND const edit = tests::OpenEditOf(dialog.list);
    ASSERT_NE(edit, nullptr);
    SetText(edit, L"typed");
    ::PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_TRUE(tests::PumpUntil([&] { return dialog.m_hWnd == nullptr; }));
    EXPECT_EQ(dialog.m_ends, 1);
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ListEditCells, AHostMayDeleteTheListWhenAPressEndsTheEdit)
{
    for (UINT const press : {WM_LBUTTONDOWN, WM_RBUTTONDOWN})
    {
        auto list = std::make_unique<tests::TestList>();
        ASSERT_TRUE(list->Create(tests::TestList::default_style, CRect(100, 100, 300, 200), &m_host.parent, 8));
        list->SetFullRowSelect();
        list->AddColumns(2);
        list->AddRows(3);
        list->DrawEditControl(1, 1);
        HWND const edit = tests::OpenEditOf(*list);
        ASSERT_NE(edit, nullptr);
        SetText(edit, L"typed");
        list->m_onStateChange = [&](int, int) { list.reset(); };
        CRect cell;
        ASSERT_TRUE(list->GetSubItemRect(2, 1, LVIR_BOUNDS, cell));
        list->SendMessage(press, 0, MAKELPARAM(cell.left + 5, cell.top + 5));
        EXPECT_EQ(list, nullptr) << press;
        EXPECT_FALSE(::IsWindow(edit));
    }
}

TEST_F(ListEditCells, AHostMayDeleteTheListWhenItHearsOfTheText)
{
    auto list = std::make_unique<tests::TestList>();
    ASSERT_TRUE(list->Create(tests::TestList::default_style, CRect(100, 100, 300, 200), &m_host.parent, 8));
    list->AddColumns(2);
    list->AddRows(2);
    // The native list tells of texts of its first column alone.
    list->DrawEditControl(1, 0);
    HWND const edit = tests::OpenEditOf(*list);
    ASSERT_NE(edit, nullptr);
    SetText(edit, L"typed");
    m_host.parent.onNotify = [&](NMHDR const & header) {
        if (header.code == LVN_ITEMCHANGED && header.idFrom == 8)
            list.reset();
    };
    ::SendMessageW(edit, WM_CHAR, VK_RETURN, 0);
    m_host.parent.onNotify = nullptr;
    EXPECT_EQ(list, nullptr);
    EXPECT_FALSE(::IsWindow(edit));
}

TEST_F(ListEditCells, AHostMayTakeTheFocusBackWhileTheEditOpens)
{
    m_host.parent.onNotify = [this](NMHDR const & header) {
        if (header.code == NM_KILLFOCUS)
            m_button.SetFocus();
    };
    m_list.SetFocus();
    m_list.SetItemText(1, 1, L"kept");
    m_list.DrawEditControl(1, 1);
    m_host.parent.onNotify = nullptr;
    EXPECT_EQ(m_list.GetItemText(1, 1), L"kept");
    // Whatever stands there now can be ended.
    m_list.SendMessage(edit_ends);
    EXPECT_EQ(Edit(), nullptr);
    m_list.DrawEditControl(1, 1);
    EXPECT_NE(Edit(), nullptr);
}

TEST_F(ListEditCells, AHostMayEndTheListWhileTheEditOpens)
{
    auto list = std::make_unique<tests::TestList>();
    ASSERT_TRUE(list->Create(tests::TestList::default_style, CRect(100, 100, 300, 200), &m_host.parent, 8));
    list->AddColumns(2);
    list->AddRows(2);
    list->SetFocus();
    m_host.parent.onNotify = [&](NMHDR const & header) {
        if (header.code == NM_KILLFOCUS && header.idFrom == 8)
            list.reset();
    };
    list->DrawEditControl(1, 1);
    m_host.parent.onNotify = nullptr;
    EXPECT_EQ(list, nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ListEditCells, IsFramedInItsColour)
{
    OpenEdit(2, 1);
    ::RedrawWindow(Edit(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    CRect place;
    ::GetWindowRect(Edit(), &place);
    m_list.ScreenToClient(&place);
    CPoint const middle = place.CenterPoint();
    CClientDC dc(&m_list);
    EXPECT_EQ(dc.GetPixel(place.left - 1, middle.y), 0x996633U);
    EXPECT_EQ(dc.GetPixel(middle.x, place.top - 1), 0x996633U);
    EXPECT_EQ(dc.GetPixel(middle.x, place.bottom), 0x996633U);
    EXPECT_EQ(dc.GetPixel(place.right + 1, middle.y), 0x996633U);
}

TEST_F(ListEditCells, ThousandsOfEditsLeaveNothingBehind)
{
    m_list.SetEdit(1, 1, true);
    auto const openAndEnd = [this](int times) {
        for (int i = 0; i < times; ++i)
        {
            m_list.DrawEditControl(1, 1);
            ASSERT_NE(Edit(), nullptr);
            m_list.SendMessage(i % 2 == 0 ? edit_ends : edit_escapes);
            ASSERT_EQ(Edit(), nullptr);
        }
    };
    openAndEnd(10);
    int const windows = CountWindows();
    tests::GdiBalance const balance;
    openAndEnd(2000);
    EXPECT_EQ(CountWindows(), windows);
}
} // namespace
