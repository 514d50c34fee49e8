#pragma once

#include <afxwin.h>

#include "ScreenMetrics.h"
#include "WaveformPanel.h"

/// A view that a waveform with its controls fills.
class CWaveformPanelView : public CView
{
    DECLARE_DYNCREATE(CWaveformPanelView)

public:
    CWaveformView & Waveform() { return m_panel.View(); }

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    void OnDraw(CDC *) override {}

    DECLARE_MESSAGE_MAP()

private:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSetFocus(CWnd * previous);
    afx_msg BOOL OnEraseBkgnd(CDC * dc);

    workbench::ScreenMetrics m_metrics;
    CWaveformPanel m_panel;
};
