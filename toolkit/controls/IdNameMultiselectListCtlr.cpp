#include "controls/IdNameMultiselectListCtlr.h"

#include "controls/MultiselectMessages.h"

namespace
{
/// Whether the object is still there: with its window it is.
bool IsStillThere(HWND window, CWnd const * object)
{
    return ::IsWindow(window) && CWnd::FromHandlePermanent(window) == object;
}
} // namespace

IMPLEMENT_DYNAMIC(CIdNameMultiselectListCtlr, CListCtrl)

BEGIN_MESSAGE_MAP(CIdNameMultiselectListCtlr, CListCtrl)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

void CIdNameMultiselectListCtlr::PreSubclassWindow()
{
    CListCtrl::PreSubclassWindow();
    SetExtendedStyle(GetExtendedStyle() | multiselect_list_style);
}

void CIdNameMultiselectListCtlr::OnLButtonDown(UINT flags, CPoint point)
{
    HWND const window = m_hWnd;
    UINT hitFlags = 0;
    int const row = HitTest(point, &hitFlags);
    if (!IsStillThere(window, this))
        return;
    LPARAM const id = row >= 0 ? static_cast<LPARAM>(GetItemData(row)) : 0;
    if (!IsStillThere(window, this))
        return;
    if (row >= 0 && (hitFlags & LVHT_ONITEMLABEL) != 0)
    {
        bool const ticked = GetCheck(row) != 0;
        if (IsStillThere(window, this))
            SetCheck(row, !ticked);
    }
    else
        CListCtrl::OnLButtonDown(flags, point);
    if (row < 0 || !IsStillThere(window, this))
        return;
    CWnd const * receiver = GetParent();
    if (receiver == nullptr)
        receiver = GetOwner();
    if (receiver != nullptr && ::IsWindow(receiver->m_hWnd))
        ::PostMessageW(receiver->m_hWnd, multiselect_list_message, multiselect_row_pressed, id);
}
