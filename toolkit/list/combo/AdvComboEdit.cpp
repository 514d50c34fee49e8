#include "list/combo/AdvComboEdit.h"

namespace XListCtrl
{
namespace
{
constexpr UINT_PTR foreground_timer = 1;
constexpr UINT foreground_delay = 100; // ms
} // namespace

BEGIN_MESSAGE_MAP(CAdvComboEdit, CEdit)
    ON_WM_TIMER()
END_MESSAGE_MAP()

void CAdvComboEdit::PreSubclassWindow()
{
    CEdit::PreSubclassWindow();
    SetTimer(foreground_timer, foreground_delay, nullptr);
}

void CAdvComboEdit::OnTimer(UINT_PTR id)
{
    HWND const window = m_hWnd;
    if (id == foreground_timer)
    {
        KillTimer(foreground_timer);
        ::SetForegroundWindow(window);
    }
    // The host hears of the activation, and the edit may be gone.
    if (::IsWindow(window) && CWnd::FromHandlePermanent(window) == this)
        CEdit::OnTimer(id);
}
} // namespace XListCtrl
