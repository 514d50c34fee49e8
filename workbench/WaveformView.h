#pragma once

#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

#include "ScreenMetrics.h"
#include "logic/RecordingAnalysis.h"

/// Shows one recording: a heading, a lane for each channel with its waveform on a level grid, and a time axis; or, in
/// its middle, a text that says why there is nothing to see.
class CWaveformView : public CWnd
{
public:
    /// Creates the view. The metrics are the caller's and must outlive the window.
    bool CreateView(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    /// Shows a recording, or what is wrong with it.
    void ShowRecording(std::wstring name, std::shared_ptr<workbench::RecordingAnalysis const> analysis);

    /// Shows a text in place of a recording: a title and a line below it, both may be empty.
    void ShowText(std::wstring title, std::wstring text);

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM flags);

    struct Lane
    {
        CRect rect;
        int centre;
        int halfHeight; ///< pixels from the centre line to full scale
    };

    void Draw(CDC & dc, CRect const & client);
    void DrawMessage(CDC & dc, CRect const & client);
    int DrawHeading(CDC & dc, CRect const & area);
    void DrawLane(CDC & dc, Lane const & lane, std::size_t index);
    void DrawLevelGrid(CDC & dc, Lane const & lane);
    void DrawTimeAxis(CDC & dc, CRect const & plot);
    std::wstring Details() const;
    std::wstring LaneName(std::size_t index) const;
    std::vector<workbench::MinMax> const & Columns(std::size_t lane, int width);

    workbench::ScreenMetrics * m_metrics = nullptr;
    std::wstring m_title;
    std::wstring m_text;
    std::shared_ptr<workbench::RecordingAnalysis const> m_analysis;
    std::vector<std::vector<workbench::MinMax>> m_columns; ///< of each lane, for the width drawn last
};
