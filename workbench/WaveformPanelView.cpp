#include "WaveformPanelView.h"

#include "resource.h"

IMPLEMENT_DYNCREATE(CWaveformPanelView, CHostView)

BEGIN_MESSAGE_MAP(CWaveformPanelView, CHostView)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

int CWaveformPanelView::OnCreate(LPCREATESTRUCT create)
{
    if (CHostView::OnCreate(create) == -1 || !m_panel.CreatePanel(*this, IDC_WAVEFORM_PANEL, m_metrics))
    {
        return -1;
    }
    m_panel.ModifyStyle(WS_BORDER, 0, SWP_FRAMECHANGED);
    return 0;
}

void CWaveformPanelView::OnSetFocus(CWnd *)
{
    m_panel.View().SetFocus();
}
