#pragma once

#include "HostView.h"
#include "ScreenMetrics.h"
#include "WaveformPanel.h"

/// A view that a waveform with its controls fills.
class CWaveformPanelView : public CHostView
{
    DECLARE_DYNCREATE(CWaveformPanelView)

public:
    CWaveformView & Waveform() { return m_panel.View(); }
    void ShowTexts() { m_panel.ShowTexts(); }

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSetFocus(CWnd * previous);

    workbench::ScreenMetrics m_metrics;
    CWaveformPanel m_panel;
};
