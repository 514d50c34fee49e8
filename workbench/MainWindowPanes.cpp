// The sizes of the main window's panes, by menu and keys.

#include "MainWindow.h"

#include <algorithm>

#include "PaneSize.h"
#include "resource.h"

using workbench::PaneExtent;

namespace
{

constexpr int pane_step = 8;        // dialog units
constexpr int frame_share_step = 2; // percent

PaneExtent ExtentOf(UINT id)
{
    return id == ID_PANE_WIDER || id == ID_PANE_NARROWER ? PaneExtent::width : PaneExtent::height;
}

bool Grows(UINT id)
{
    return id == ID_PANE_WIDER || id == ID_PANE_TALLER;
}

} // namespace

/// The pane that has the focus; the list's, where none has.
CDockableViewPane & CMainWindow::PaneInUse()
{
    HWND const focus = ::GetFocus();
    auto const found = std::ranges::find_if(
        m_panes, [focus](auto const * pane) { return pane->m_hWnd == focus || ::IsChild(pane->m_hWnd, focus); });
    return found != m_panes.end() ? **found : Pane(part_list);
}

bool CMainWindow::CanResize(UINT id)
{
    if (IsInFrames(::GetFocus()))
    {
        return ExtentOf(id) == PaneExtent::width && m_frames.AnyOpen();
    }
    return workbench::CanResizePane(PaneInUse(), ExtentOf(id));
}

/// Of the dividers at a pane the one towards the list is moved, which has what others leave.
void CMainWindow::OnResizePane(UINT id)
{
    if (IsInFrames(::GetFocus()))
    {
        if (CanResize(id))
        {
            SetFrameShare(m_settings.frameShare + (Grows(id) ? frame_share_step : -frame_share_step));
            workbench::StoreFrameShare(m_settings.frameShare);
        }
        return;
    }
    CRect list;
    m_list.GetWindowRect(&list);
    bool const isWidth = ExtentOf(id) == PaneExtent::width;
    int const step = isWidth ? m_metrics.X(pane_step) : m_metrics.Y(pane_step);
    workbench::ResizePane(PaneInUse(), ExtentOf(id), Grows(id) ? step : -step, list.CenterPoint());
}
