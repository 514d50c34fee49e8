#include "dialogs/DialogDrag.h"

#include <utility>

#include "frame/WrappingArithmetic.h"

namespace
{
constexpr unsigned int flag_shift = 0x0004;   // MK_SHIFT
constexpr unsigned int flag_control = 0x0008; // MK_CONTROL
} // namespace

bool CDialogDrag::StartsWith(unsigned int mouseFlags, bool frozen) const
{
    return m_enabled && !frozen && (mouseFlags & (flag_shift | flag_control)) == 0;
}

void CDialogDrag::Start(CPoint mouse, CRect const & window)
{
    m_runs = true;
    m_mouse = mouse;
    m_corner = CPoint(window.left, window.top);
}

CPoint CDialogDrag::MoveTo(CPoint mouse)
{
    m_corner.x = wrapping::Sum(m_corner.x, wrapping::Difference(mouse.x, m_mouse.x));
    m_corner.y = wrapping::Sum(m_corner.y, wrapping::Difference(mouse.y, m_mouse.y));
    m_mouse = mouse;
    return m_corner;
}

bool CDialogDrag::End()
{
    return std::exchange(m_runs, false);
}
