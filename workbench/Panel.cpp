#include "Panel.h"

#include "colours/ControlColors.h"

BEGIN_MESSAGE_MAP(CPanel, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

bool CPanel::CreatePanelWindow(wchar_t const * name, CWnd & parent, UINT id)
{
    LPCTSTR const windowClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    return CreateEx(WS_EX_CONTROLPARENT, windowClass, name, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(), &parent,
                    id) != FALSE;
}

BOOL CPanel::OnEraseBkgnd(CDC * dc)
{
    ControlColors const colours = control_colors::Of(m_hWnd);
    if (!colours.adapts)
    {
        return CWnd::OnEraseBkgnd(dc);
    }
    CRect client;
    GetClientRect(&client);
    dc->FillSolidRect(client, colours.window);
    return TRUE;
}

/// Labels alone: a check box of a visual style would write its text in the system's colour on any ground.
HBRUSH CPanel::OnCtlColor(CDC * dc, CWnd * window, UINT type)
{
    auto * const brush = CWnd::OnCtlColor(dc, window, type);
    ControlColors const colours = control_colors::Of(m_hWnd);
    if (!colours.adapts || type != CTLCOLOR_STATIC || (window->SendMessage(WM_GETDLGCODE) & DLGC_STATIC) == 0)
    {
        return brush;
    }
    dc->SetTextColor(colours.windowText);
    dc->SetBkColor(colours.window);
    ::SetDCBrushColor(dc->m_hDC, colours.window);
    return static_cast<HBRUSH>(::GetStockObject(DC_BRUSH));
}
