#include "WaveformPanelView.h"

#include "resource.h"

IMPLEMENT_DYNCREATE(CWaveformPanelView, CView)

BEGIN_MESSAGE_MAP(CWaveformPanelView, CView)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

int CWaveformPanelView::OnCreate(LPCREATESTRUCT create)
{
    if (CView::OnCreate(create) == -1 || !m_panel.CreatePanel(*this, IDC_WAVEFORM_PANEL, m_metrics))
    {
        return -1;
    }
    m_panel.ModifyStyle(WS_BORDER, 0, SWP_FRAMECHANGED);
    return 0;
}

void CWaveformPanelView::OnSize(UINT type, int width, int height)
{
    CView::OnSize(type, width, height);
    if (m_panel.GetSafeHwnd() != nullptr)
    {
        m_panel.MoveWindow(0, 0, width, height);
    }
}

void CWaveformPanelView::OnSetFocus(CWnd *)
{
    m_panel.View().SetFocus();
}

BOOL CWaveformPanelView::OnEraseBkgnd(CDC *)
{
    return TRUE; // the panel covers all
}

/// Goes from the plot to its controls and back.
BOOL CWaveformPanelView::PreTranslateMessage(MSG * message)
{
    auto const goesOn =
        message->message == WM_KEYDOWN && message->wParam == VK_TAB && ::GetKeyState(VK_CONTROL) >= 0;
    return CView::PreTranslateMessage(message) || (goesOn && IsDialogMessage(message));
}
