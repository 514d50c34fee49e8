#include "controls/ListBoxX.h"

#include <algorithm>

#include "controls/FieldWidths.h"
#include "controls/ItemRows.h"
#include "frame/WindowAlive.h"
#include "layout/WindowDpi.h"

BEGIN_MESSAGE_MAP(CListBoxX, CListBox)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CListBoxX::OnToolTipText)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, 0xFFFF, &CListBoxX::OnToolTipText)
END_MESSAGE_MAP()

CListBoxX::CListBoxX() = default;

CListBoxX::~CListBoxX()
{
    DestroyWindow();
}

int CListBoxX::AddItem(wchar_t const * text, int data)
{
    return item_rows::Add(*this, text, data);
}

void CListBoxX::FillItems(std::list<CString> const & items, int firstData, bool clearFirst)
{
    item_rows::Fill(*this, items, firstData, clearFirst);
}

void CListBoxX::FillItems(std::map<int, CString> const & items)
{
    item_rows::Fill(*this, items, nullptr);
}

int CListBoxX::FindItemData(int data)
{
    return item_rows::Find(*this, data);
}

int CListBoxX::SelectItemData(int data)
{
    return item_rows::Select(*this, data);
}

int CListBoxX::GetSelectedItemData(int defaultData)
{
    return item_rows::Selected(*this, defaultData);
}

void CListBoxX::PreSubclassWindow()
{
    HWND const window = m_hWnd;
    CListBox::PreSubclassWindow();
    if (!StillHas(this, window))
        return;
    EnableToolTips(TRUE);
    window_dpi::Begin(*this, m_followsDpi);
}

BOOL CListBoxX::SetDpi(UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return FALSE;
    m_dpi = dpi;
    return TRUE;
}

void CListBoxX::FollowDpi(BOOL follow)
{
    window_dpi::Follow(*this, m_followsDpi, follow);
}

LRESULT CListBoxX::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    window_dpi::Heed(*this, m_followsDpi, message);
    return CListBox::DefWindowProc(message, wParam, lParam);
}

int CListBoxX::LbxZeileZumPunkt(CPoint point, int & outside) const
{
    outside = 1;
    HWND const window = m_hWnd;
    bool const columns = window != nullptr && (GetStyle() & LBS_MULTICOLUMN) != 0;
    auto const count = static_cast<int>(::SendMessage(window, LB_GETCOUNT, 0, 0));
    if (count <= 0)
        return -1;
    auto const first = static_cast<int>(::SendMessage(window, LB_GETTOPINDEX, 0, 0));
    for (int row = first; row <= first + count; ++row)
    {
        CRect rect(0, 0, 0, 0);
        if (::SendMessage(window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect)) == LB_ERR)
            continue;
        if (rect.PtInRect(point))
        {
            outside = 0;
            return row;
        }
        if (!columns && rect.top > point.y)
            break; // nor do the rows below hold the point
    }
    return -1;
}

INT_PTR CListBoxX::OnToolHitTest(CPoint point, TOOLINFOW * info) const
{
    HWND const window = m_hWnd;
    int outside = 1;
    int const row = LbxZeileZumPunkt(point, outside);
    if (outside != 0 || row < 0 || !StillHas(this, window))
        return -1;
    CString text;
    GetText(row, text);
    CRect rect(0, 0, 0, 0);
    ::SendMessage(window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    if (!IsTooWide(item_rows::TextWidth(window, text), rect.Width(), m_dpi) || !::IsWindow(window))
        return -1;
    if (info != nullptr)
    {
        info->rect = rect;
        info->hwnd = window;
        info->uId = static_cast<UINT_PTR>(row);
        info->lpszText = LPSTR_TEXTCALLBACKW;
        info->uFlags |= TTF_CENTERTIP;
    }
    return row;
}

int CListBoxX::OnToolTipText(UINT, NMHDR * header, LRESULT * result)
{
    HWND const window = m_hWnd;
    *result = 0;
    CString text;
    if (window != nullptr)
        GetText(static_cast<int>(header->idFrom), text);
    if (window != nullptr && !StillHas(this, window))
        return 1; // the tip may have gone with the list
    text = TipText(text);
    if (header->code == TTN_NEEDTEXTA)
    {
        auto & info = *reinterpret_cast<NMTTDISPINFOA *>(header);
        CStringA const narrow(text);
        int const length = std::min(narrow.GetLength(), tip_text_room - 1);
        std::copy_n(narrow.GetString(), length, info.szText);
        info.szText[length] = 0;
    }
    else
    {
        auto & info = *reinterpret_cast<NMTTDISPINFOW *>(header);
        std::copy_n(text.GetString(), text.GetLength() + 1, info.szText);
    }
    return 1;
}
