// CXListCtrl: the tooltips of cells.

#include "list/XListCtrl.h"

#include <algorithm>
#include <iterator>

#include "list/XListCtrlState.h"

namespace
{
/// Texts of this length or more don't fit the tooltip structure's own buffer.
constexpr int long_text_length = 79;
/// The column whose tooltip shows over all cells of a row.
constexpr int tooltip_column = 1;
} // namespace

void CXListCtrl::EnableItemToolTipps()
{
    m_itemToolTips = true;
}

void CXListCtrl::SetDefaultToolTipText(wchar_t const * text)
{
    m_defaultToolTipText = text;
}

bool CXListCtrl::SetItemToolTipText(int row, int col, wchar_t const * text)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return false;
    cell->toolTipText = text;
    return true;
}

CString CXListCtrl::GetItemToolTipText(int row, int col)
{
    XLISTCTRLDATA const * const cell = ValidCell(row, col);
    return cell != nullptr ? cell->toolTipText : CString();
}

void CXListCtrl::DeleteAllToolTips()
{
    m_rows->model.DeleteAllToolTips();
}

INT_PTR CXListCtrl::OnToolHitTest(CPoint point, TOOLINFO * info) const
{
    // A hit test changes nothing.
    auto const [row, col] = const_cast<CXListCtrl *>(this)->GetItem(point);
    if (row < 0 || col < 0)
        return -1;
    // A tool of its own for each cell, as long as there are fewer than 255 columns.
    INT_PTR const id = (static_cast<INT_PTR>(row) << 8) + col + 1;
    if (info != nullptr)
    {
        info->hwnd = m_hWnd;
        info->uId = static_cast<UINT_PTR>(id);
        info->lpszText = LPSTR_TEXTCALLBACK;
        GetClientRect(&info->rect);
    }
    return id;
}

BOOL CXListCtrl::OnToolTipText(UINT, NMHDR * header, LRESULT * result)
{
    if (!m_itemToolTips)
        return FALSE;
    *result = 0;
    MSG const * const message = GetCurrentMessage();
    if (message == nullptr)
        return FALSE;
    CPoint point(message->pt);
    ScreenToClient(&point);

    CString const * text = &m_defaultToolTipText;
    auto const [row, col] = GetItem(point);
    if (row >= 0 && col >= 0)
    {
        // It is meant that the column under the pointer does not matter.
        XLISTCTRLDATA const * const cell = ValidCell(row, tooltip_column);
        if (cell != nullptr && !cell->toolTipText.IsEmpty())
            text = &cell->toolTipText;
    }
    if (text->IsEmpty())
        return FALSE;

    if (header->code == TTN_NEEDTEXTA)
    {
        auto * const narrow = reinterpret_cast<NMTTDISPINFOA *>(header);
        ::lstrcpynA(narrow->szText, CStringA(*text), static_cast<int>(std::size(narrow->szText)));
        return TRUE;
    }
    auto * const wide = reinterpret_cast<NMTTDISPINFOW *>(header);
    if (text != &m_defaultToolTipText && text->GetLength() >= long_text_length)
        wide->lpszText = const_cast<wchar_t *>(static_cast<wchar_t const *>(*text));
    else
        ::lstrcpynW(wide->szText, *text, static_cast<int>(std::size(wide->szText)));
    return TRUE;
}
