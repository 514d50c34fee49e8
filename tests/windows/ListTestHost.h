#pragma once
// A host for tests of the report list: a parent that records what the list posts, and a list that lets a test at its
// protected members.
//
//     tests::ListHost host;                                        // report style, made by code, no columns yet
//     host.Fill(3, 5);                                             // 3 columns of 80 pixels, 5 rows "r0" ... "r4"
//     host.list.SetCheckbox(1, 2, XLC_CHECKED);
//     ...
//     EXPECT_EQ(host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 1, 2}}));
//
//     tests::ListDialog dialog;                                    // the same list from a dialog template
//     ASSERT_TRUE(dialog.Open());

#include <afxwin.h>

#include <functional>
#include <iosfwd>
#include <new>
#include <vector>

#include "DialogTemplate.h"
#include "frame/RegisteredMessages.h"
#include "list/XListCtrl.h"
#include "ScopedWindow.h"

namespace tests
{
/// A message of the list to its parent, with its two words as they came.
struct PostedRow
{
    UINT message;
    INT_PTR row;
    INT_PTR column;

    bool operator==(PostedRow const &) const = default;
};
using PostedRows = std::vector<PostedRow>;
/// Prints the message by name.
void PrintTo(PostedRow const & posted, std::ostream * out);

/// True for the messages that a list sends its parent.
bool IsListMessage(UINT message);

class ListParent : public ScopedWindow
{
public:
    using ScopedWindow::ScopedWindow;

    PostedRows posted;
    /// Called with each notification that arrives.
    std::function<void(NMHDR const &)> onNotify;
    /// A change for which this holds is answered with a refusal.
    std::function<bool(NMHDR const &)> refuses;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class TestList : public CXListCtrl
{
public:
    using CXListCtrl::DrawCheckbox;
    using CXListCtrl::DrawCheckboxBox;
    using CXListCtrl::DrawComboBox;
    using CXListCtrl::DrawComboBoxControl;
    using CXListCtrl::DrawEditControl;
    using CXListCtrl::DrawImage;
    using CXListCtrl::DrawProgress;
    using CXListCtrl::DrawRadioBox;
    using CXListCtrl::DrawTextW;
    using CXListCtrl::GetColors;
    using CXListCtrl::GetDrawColors;
    using CXListCtrl::GetItem;
    using CXListCtrl::GetMessageMap;
    using CXListCtrl::GetSubItemRect;
    using CXListCtrl::GetThisMessageMap;
    using CXListCtrl::InitializeComboBox;
    using CXListCtrl::OnChildNotify;
    using CXListCtrl::OnClick;
    using CXListCtrl::OnColumnClick;
    using CXListCtrl::OnContextMenu;
    using CXListCtrl::OnCustomDraw;
    using CXListCtrl::OnEraseBkgnd;
    using CXListCtrl::OnKeyDown;
    using CXListCtrl::OnLButtonDblClk;
    using CXListCtrl::OnLButtonDown;
    using CXListCtrl::OnNcLButtonDown;
    using CXListCtrl::OnPaint;
    using CXListCtrl::OnRButtonDown;
    using CXListCtrl::OnSysColorChange;
    using CXListCtrl::OnTimer;
    using CXListCtrl::OnToolTipText;
    using CXListCtrl::SubclassHeaderControl;

    static constexpr DWORD default_style =
        WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS;
    static constexpr UINT id = 7;

    /// Appends so many columns, named "c0", "c1", ...
    void AddColumns(int count, int width = 80);
    /// Appends so many rows, named "r0", "r1", ...
    void AddRows(int count);
    HWND Header() const;
    /// The texts of a column from the top.
    std::vector<CString> Texts(int col) const;
    /// The widths of all columns.
    std::vector<int> Widths() const;
    /// An item that the list's own operations did not insert, and which has no cells.
    int InsertForeignItem(int pos, wchar_t const * text);
    /// The native item's parameter word.
    LPARAM Param(int row) const;
    /// The rectangle that is to be painted, after which nothing is.
    CRect TakeUpdateRect();
    bool IsSelected(int row) const { return GetItemState(row, LVIS_SELECTED) != 0; }
    bool IsFocused(int row) const { return GetItemState(row, LVIS_FOCUSED) != 0; }
};

/// A list in memory of its own, any use of which after its end stops the program.
class GuardedList : public tests::TestList
{
public:
    static void * operator new(std::size_t size)
    {
        void * const memory = ::VirtualAlloc(nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
        if (memory == nullptr)
            throw std::bad_alloc();
        return memory;
    }
    // The addresses are never used again.
    static void operator delete(void * memory, std::size_t size) { ::VirtualFree(memory, size, MEM_DECOMMIT); }
};

/// Counts what reaches the native list.
class CountingList : public TestList
{
public:
    int m_asked = 0;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        ++m_asked;
        return TestList::DefWindowProc(message, wParam, lParam);
    }
};

/// The open edit over a cell of the list; null if there is none.
HWND OpenEditOf(CWnd const & list);
/// The thread's open combo over a cell of a list; null if there is none.
HWND OpenCombo();

/// A parent with a list made by code.
class ListHost
{
public:
    explicit ListHost(DWORD style = TestList::default_style, CRect const & place = CRect(0, 0, 360, 200),
                      bool itemToolTips = false);
    ~ListHost();

    /// Columns first, rows after.
    void Fill(int columns, int rows);
    /// What the list posted since the last call; pumps what is queued.
    PostedRows TakePosted();

    ListParent parent;
    TestList list;
};

/// A modeless dialog with a list from its template.
class ListDialog : public CDialog
{
public:
    explicit ListDialog(DWORD style = LVS_REPORT | LVS_SHOWSELALWAYS | WS_BORDER);
    ~ListDialog() override;

    /// Creates and shows the dialog and binds the list.
    bool Open(bool itemToolTips = false);
    PostedRows TakePosted();

    TestList list;

protected:
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    DialogTemplate m_template;
    PostedRows m_posted;
};
} // namespace tests
