#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <functional>

#include "controls/FreeIconButton.h"
#include "controls/LevelSliderCtrl.h"
#include "WaveformView.h"

/// The waveform of a recording, beside it a slider by which it is made larger, and above that a button that makes it as
/// large as it may be. The plot of the waveform lies as in a view that fills the panel.
class CWaveformPanel : public CWnd
{
public:
    /// Creates the panel. The metrics must outlive the window.
    bool CreatePanel(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    CWaveformView & View() { return m_view; }
    /// Shows what it says in the present language.
    void ShowTexts();

    /// Called when the user has changed the amplification.
    std::function<void(int decibels)> m_onAmplified;

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    /// The button, on the panel's ground and with a mark of the focus.
    class CFitButton : public CFreeIconButton
    {
    public:
        void DrawItem(LPDRAWITEMSTRUCT item) override;
    };

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg HBRUSH OnCtlColor(CDC * dc, CWnd * window, UINT type);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar * bar);
    afx_msg void OnFit();

    void Arrange();
    void ShowAmplification();

    workbench::ScreenMetrics * m_metrics = nullptr;
    CWaveformView m_view;
    CFitButton m_fit;
    CLevelSliderCtrl m_slider;
    CStatic m_value;
    CToolTipCtrl m_tips;
    bool m_hasSlider = true; ///< there is room for it
};
