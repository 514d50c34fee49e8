#pragma once

#include <afxwin.h>

#include <functional>
#include <string>

#include "ClockView.h"
#include "controls/ComboBoxX.h"
#include "Panel.h"
#include "ScreenMetrics.h"
#include "segments/DigiStatic.h"

/// The row of displays: the position in the recording and the level there, the choice of the spectrogram's colours, and
/// a clock.
class CMeasurePanel : public CPanel
{
public:
    /// Creates the panel. scale: the spectrogram scale chosen at first. The metrics must outlive the window.
    bool CreatePanel(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics, unsigned int scale);

    /// The panel's height in pixels, and the width that it needs at least.
    static int Height(workbench::ScreenMetrics const & metrics);
    static int LeastWidth(workbench::ScreenMetrics const & metrics);

    /// Shows a position and its level, as texts for segments.
    void ShowReading(std::wstring const & position, std::wstring const & level);

    /// The spectrogram scale that is chosen, and its choice by the program.
    unsigned int Scale();
    void ChooseScale(unsigned int scale);

    /// Shows what it says in the present language.
    void ShowTexts();

    /// Called when the user has chosen another spectrogram scale.
    std::function<void(unsigned int scale)> m_onScale;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnScaleChosen();

    void Arrange();

    workbench::ScreenMetrics * m_metrics = nullptr;
    CStatic m_positionLabel;
    CStatic m_levelLabel;
    CStatic m_scaleLabel;
    CDigiStatic m_position;
    CDigiStatic m_level;
    CComboBoxX m_scale;
    CClockView m_clock;
};
