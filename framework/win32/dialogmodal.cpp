#include <afxwin.h>

#include "detail/ModalOwner.h"

namespace framework
{
ModalOwner::ModalOwner(CWnd * parent)
{
    CWnd * const owner = CWnd::GetSafeOwner(parent, &m_top);
    m_owner = owner != nullptr ? owner->GetSafeHwnd() : nullptr;
    if (m_top != nullptr && ::IsWindowEnabled(m_top))
        ::EnableWindow(m_top, FALSE);
}

void ModalOwner::Disable()
{
    if (m_owner == nullptr || m_owner == ::GetDesktopWindow())
        return;
    m_disabled = true;
    m_wasEnabled = ::IsWindowEnabled(m_owner) != FALSE;
    ::EnableWindow(m_owner, FALSE);
}

void ModalOwner::Enable()
{
    // The end of a dialog enables the owner in any case, so one that was disabled before is disabled again.
    if (m_disabled)
        ::EnableWindow(m_owner, m_wasEnabled);
    m_disabled = false;
    if (m_top != nullptr)
        ::EnableWindow(m_top, TRUE);
    m_top = nullptr;
}

void ModalOwner::ActivateAfter(HWND modal)
{
    if (m_owner != nullptr && ::GetActiveWindow() == modal)
        ::SetActiveWindow(m_owner);
}
} // namespace framework
