#include "ListTestHost.h"

#include <iterator>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>

#include "Pump.h"

namespace tests
{
namespace
{
struct NamedMessage
{
    unsigned int const * message;
    char const * name;
};

// By address: the numbers come from another module and are known only at run time.
NamedMessage const list_messages[] = {
    {&WM_XLISTCTRL_CHECKBOX_CLICKED, "checkbox clicked"}, {&WM_XLISTCTRL_COLUMNCLICK, "column click"},
    {&WM_XLISTCTRL_COMBO_SELECTION, "combo selection"},   {&WM_XLISTCTRL_EDIT_END, "edit end"},
    {&WM_XLISTCTRL_ITEM_DBLCLICKED, "double click"},      {&WM_XLISTCTRL_LINK_CLICKED, "link clicked"},
};

NamedMessage const * Find(UINT message)
{
    for (NamedMessage const & candidate : list_messages)
    {
        if (*candidate.message == message)
            return &candidate;
    }
    return nullptr;
}

PostedRow Unpacked(UINT message, WPARAM wParam, LPARAM lParam)
{
    return {message, static_cast<INT_PTR>(wParam), static_cast<INT_PTR>(lParam)};
}
} // namespace

void PrintTo(PostedRow const & posted, std::ostream * out)
{
    NamedMessage const * const message = Find(posted.message);
    *out << (message != nullptr ? message->name : "?") << " (" << posted.row << ", " << posted.column << ")";
}

bool IsListMessage(UINT message)
{
    return Find(message) != nullptr;
}

LRESULT ListParent::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (IsListMessage(message))
        posted.push_back(Unpacked(message, wParam, lParam));
    if (message == WM_NOTIFY && onNotify)
        onNotify(*reinterpret_cast<NMHDR const *>(lParam));
    if (message == WM_NOTIFY && refuses && refuses(*reinterpret_cast<NMHDR const *>(lParam)))
        return TRUE;
    return ScopedWindow::WindowProc(message, wParam, lParam);
}

void TestList::AddColumns(int count, int width)
{
    for (int i = 0; i < count; ++i)
        AddColumn((L"c" + std::to_wstring(GetColumnCount())).c_str(), LVCFMT_LEFT, width);
}

void TestList::AddRows(int count)
{
    for (int i = 0; i < count; ++i)
        AddItem((L"r" + std::to_wstring(GetItemCount())).c_str(), nullptr, 0);
}

HWND TestList::Header() const
{
    return reinterpret_cast<HWND>(::SendMessageW(m_hWnd, LVM_GETHEADER, 0, 0));
}

std::vector<CString> TestList::Texts(int col) const
{
    std::vector<CString> texts;
    for (int row = 0; row < GetItemCount(); ++row)
        texts.push_back(GetItemText(row, col));
    return texts;
}

std::vector<int> TestList::Widths() const
{
    std::vector<int> widths;
    for (int col = 0; col < GetColumnCount(); ++col)
        widths.push_back(GetColumnWidth(col));
    return widths;
}

int TestList::InsertForeignItem(int pos, wchar_t const * text)
{
    return CListCtrl::InsertItem(pos, text);
}

LPARAM TestList::Param(int row) const
{
    return static_cast<LPARAM>(CListCtrl::GetItemData(row));
}

CRect TestList::TakeUpdateRect()
{
    CRect rect;
    ::GetUpdateRect(m_hWnd, &rect, FALSE);
    ::ValidateRect(m_hWnd, nullptr);
    return rect;
}

HWND OpenEditOf(CWnd const & list)
{
    constexpr int edit_id = 99;
    return ::GetDlgItem(list.m_hWnd, edit_id);
}

HWND OpenCombo()
{
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) {
            wchar_t name[32] = {};
            ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
            if (CString(name) != L"SuperComboBox")
                return TRUE;
            *reinterpret_cast<HWND *>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

ListHost::ListHost(DWORD style, CRect const & place, bool itemToolTips)
{
    if (itemToolTips)
        list.EnableItemToolTipps();
    if (!list.Create(style, place, &parent, TestList::id))
        throw std::runtime_error("the test's list could not be created");
    list.UpdateWindow();
    PumpPosted();
}

ListHost::~ListHost()
{
    if (list.m_hWnd != nullptr)
        list.DestroyWindow();
}

void ListHost::Fill(int columns, int rows)
{
    list.AddColumns(columns);
    list.AddRows(rows);
    list.UpdateWindow();
}

PostedRows ListHost::TakePosted()
{
    PumpPosted();
    return std::exchange(parent.posted, {});
}

ListDialog::ListDialog(DWORD style) : m_template(L"List", CRect(0, 0, 240, 140))
{
    m_template.Add(WC_LISTVIEWW, L"", TestList::id, CRect(5, 5, 235, 135), style);
}

ListDialog::~ListDialog()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
}

bool ListDialog::Open(bool itemToolTips)
{
    if (itemToolTips)
        list.EnableItemToolTipps();
    if (!CreateIndirect(m_template.Get(), nullptr) || list.m_hWnd == nullptr)
        return false;
    ShowWindow(SW_SHOW);
    UpdateWindow();
    PumpPosted();
    return true;
}

PostedRows ListDialog::TakePosted()
{
    PumpPosted();
    return std::exchange(m_posted, {});
}

BOOL ListDialog::OnInitDialog()
{
    BOOL const result = CDialog::OnInitDialog();
    list.SubclassDlgItem(TestList::id, this);
    return result;
}

LRESULT ListDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (IsListMessage(message))
        m_posted.push_back(Unpacked(message, wParam, lParam));
    return CDialog::WindowProc(message, wParam, lParam);
}
} // namespace tests
