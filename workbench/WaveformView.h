#pragma once

#include <afxwin.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "BufferedView.h"
#include "logic/ReadableColours.h"
#include "logic/RecordingAnalysis.h"
#include "logic/TimeMarks.h"
#include "logic/WaveformColours.h"
#include "logic/WaveformDetail.h"
#include "ScreenMetrics.h"

/// Shows one recording: a heading, a lane for each channel with its waveform on a level grid, and a time axis; or, in
/// its middle, a text that says why there is nothing to see. The wheel and the keys zoom and scroll; while a part is
/// shown, a strip above the lanes shows where it lies in the whole. A click sets the cursor, dragging selects a
/// stretch.
class CWaveformView : public CBufferedView
{
public:
    /// Creates the view. The metrics are the caller's and must outlive the window.
    bool CreateView(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    /// Shows a recording, or what is wrong with it. Without its file, narrow stretches are as coarse as the overview.
    void ShowRecording(std::wstring name, std::shared_ptr<workbench::RecordingAnalysis const> analysis,
                       std::filesystem::path const & file = {});

    /// Shows a text in place of a recording: a title and a line below it, both may be empty.
    void ShowText(std::wstring title, std::wstring text);

    /// Moves the cursor to a frame; behind the end, to the last one. Nothing without a recording.
    void MoveCursor(std::uint64_t frame);
    /// Likewise, but what is selected stays, and a frame out of sight comes into it with something around it.
    void MoveCursorAlone(std::uint64_t frame);
    /// The frame at which the cursor stands; none without a recording.
    std::optional<std::uint64_t> Cursor() const;

    /// The level around it, in dBFS; minus infinity where there is no recording.
    double LevelAtCursor();
    /// Called when the cursor has moved, or there is another recording.
    std::function<void()> m_onCursor;

    /// The part shown, the cursor and the selection.
    workbench::TimeMarks const & Marks() const { return m_marks; }
    /// Takes over what another plot shows; nothing if that is not of as many frames.
    void SetMarks(workbench::TimeMarks const & marks);
    /// Marks the frame that is heard, or none, and turns to the next part when it gets there.
    void ShowPlaying(std::optional<std::uint64_t> frame);
    /// Called with the space bar.
    std::function<void()> m_onPlay;
    /// Called when the user has changed the marks, or there is another recording.
    std::function<void()> m_onMarks;

    void SetColours(workbench::WaveformColours const & colours);

    /// How much larger than it is the waveform is drawn, in decibels; what is no step of CheckedAmplification counts
    /// as none.
    int Amplification() const { return m_amplification; }
    void SetAmplification(int decibels);
    /// Makes the waveform as large as its peak allows. Nothing without a recording.
    void FitAmplification();
    /// Called when the amplification has changed.
    std::function<void()> m_onAmplified;

    /// Whether there is a waveform to be seen.
    bool ShowsRecording() const { return m_analysis && !m_analysis->problem && m_analysis->info.frames > 0; }

    /// So much of the room right of the plot is not the view's own but lies beside it.
    void SetRightRoom(int pixels);
    /// Where the plot lies in the view.
    CRect PlotPlace();
    /// Called when the plot can have moved.
    std::function<void()> m_onPlaced;

    /// Draws what the view shows into a rectangle of any device context, in colours for white paper and without the
    /// cursor.
    void Print(CDC & dc, CRect const & rect);

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg LRESULT OnRefined(WPARAM, LPARAM);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd * other);
    afx_msg void OnKillFocus(CWnd * other);

    struct Lane
    {
        CRect rect;
        int centre;
        int halfHeight; ///< pixels from the centre line to full scale
    };

    void Draw(CDC & dc, CRect const & client) override;
    void DrawCursor(CDC & dc, CRect const & plot);
    void DrawSelection(CDC & dc, CRect const & inside);
    void DrawStrip(CDC & dc, CRect const & plot);
    std::uint64_t FrameAt(int x) const;
    void MoveCursorTo(int x);
    void ScrollTo(int x);
    void ChangeMarks(workbench::TimeMarks const & marks);
    void ResetMarks();
    void ZoomAt(double factor, std::uint64_t frame);
    int StripHeight() const;
    void Placed();
    CRect PlotIn(CDC & dc, CRect const & client) const;
    int HeadingHeight() const;
    bool IsDamaged() const;
    COLORREF Trace(std::size_t channel) const;

    struct SurroundingColours
    {
        COLORREF ground;
        COLORREF grid;
        COLORREF centre;
        COLORREF label; ///< inside a lane
    };
    SurroundingColours Surroundings() const;

    void DrawMessage(CDC & dc, CRect const & client);
    void DrawHeading(CDC & dc, CRect const & area);
    void DrawLane(CDC & dc, Lane const & lane, std::size_t index);
    void DrawLevelGrid(CDC & dc, Lane const & lane);
    std::wstring Details() const;
    std::wstring LaneName(std::size_t index) const;
    double Seconds(std::uint64_t frame) const;
    std::vector<workbench::MinMax> const & Columns(std::size_t lane, int width);

    workbench::ScreenMetrics * m_metrics = nullptr;
    std::wstring m_title;
    std::wstring m_text;
    std::shared_ptr<workbench::RecordingAnalysis const> m_analysis;
    std::unique_ptr<workbench::WaveformDetail> m_detail;
    std::vector<std::vector<workbench::MinMax>> m_columns; ///< of each lane, for the stretch and width drawn last
    workbench::FrameRange m_columnsRange;
    workbench::TimeMarks m_marks;
    std::optional<std::uint64_t> m_playing; ///< the frame that is heard
    CRect m_plot;                           ///< where the lanes were drawn last
    CRect m_strip;                          ///< where the strip was drawn last; empty without one
    enum class Drag
    {
        none,
        select,
        scroll
    };
    Drag m_drag = Drag::none;
    bool m_printing = false;
    workbench::PlotColours m_plotColours{};
    workbench::WaveformColours m_colours;
    int m_amplification = 0; ///< decibels
    int m_rightRoom = 0;
};
