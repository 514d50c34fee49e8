#include "list/XCombo.h"

#include "frame/InternalMessages.h"
#include "list/combo/DropWnd.h"

namespace XListCtrl
{
// clang-format off
BEGIN_MESSAGE_MAP(CXCombo, CAdvComboBox)
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()
// clang-format on

void CXCombo::OnComboCancel()
{
    if (m_list != nullptr && ::IsWindow(m_list->m_hWnd))
        m_list->SendMessage(WM_XCOMBOLIST_VK_ESCAPE);
}

void CXCombo::OnComboComplete()
{
    if (m_list != nullptr && ::IsWindow(m_list->m_hWnd))
        m_list->SendMessage(WM_XCOMBOLIST_COMPLETE);
}

void CXCombo::OnKillFocus(CWnd * newWindow)
{
    // The base class tells of the end; whoever hears it may end the combo at once.
    HWND const window = m_hWnd;
    HWND const focused = newWindow != nullptr ? newWindow->m_hWnd : nullptr;
    CAdvComboBox::OnKillFocus(newWindow);
    if (CWnd::FromHandlePermanent(window) != this)
        return;
    if (GetDropWnd() == nullptr || GetDropWnd()->m_hWnd != focused)
        OnComboComplete();
}
} // namespace XListCtrl
