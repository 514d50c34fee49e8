#pragma once

#include <afxwin.h>

#include <memory>
#include <vector>

#include "logic/RecordingAnalysis.h"

/// Paints a recording's waveform into a small rectangle, all channels over one another.
class CRecordingOverview
{
public:
    /// dotsPerInch: which the air follows.
    CRecordingOverview(std::shared_ptr<workbench::RecordingAnalysis const> analysis, UINT dotsPerInch);

    /// Paints the whole rectangle: the background and, with some air, the waveform on it.
    void Draw(CDC & dc, CRect const & rect, COLORREF wave, COLORREF background);

private:
    std::shared_ptr<workbench::RecordingAnalysis const> m_analysis;
    int m_dotsPerInch;
    std::vector<workbench::MinMax> m_columns; ///< for the width drawn last
};
