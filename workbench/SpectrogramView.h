#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "BufferedView.h"
#include "logic/ReadableColours.h"
#include "logic/SpectrogramJob.h"
#include "logic/TimeMarks.h"
#include "ScreenMetrics.h"

/// Shows the spectrogram of one recording: a heading, the spectrogram with a time and a frequency axis, and a legend of
/// its colours. While it is computed, on a thread of its own, a progress bar shows instead; where there is nothing to
/// see, a text says why. The wheel zooms and scrolls; what is shown of a part stays until that part has been computed
/// more finely. A click sets the cursor and reads time, frequency and level there; dragging selects a stretch.
class CSpectrogramView : public CBufferedView
{
public:
    /// Entries of a colour table: the scale from the lowest level to the highest, and the colour outside it.
    static constexpr std::size_t colour_count = workbench::scale_entries + 1;

    /// A view with a scale from black to white.
    CSpectrogramView();

    /// Creates the view. The metrics are the caller's and must outlive the window.
    bool CreateView(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    /// Computes the spectrogram of a file and shows it, or what is wrong with the file. The view must have been
    /// created.
    void ShowRecording(std::wstring name, std::filesystem::path const & path);

    /// Shows a text in place of a spectrogram: a title and a line below it, both may be empty.
    void ShowText(std::wstring title, std::wstring text);

    /// Takes over a table of `colour_count` colours, red in the low byte; null is ignored.
    void SetColours(unsigned long const * scale);

    /// Whether a spectrogram is being computed.
    bool IsComputing() const { return m_job != nullptr; }
    /// How far that is, in parts of SpectrogramJob::whole_progress; all of it while nothing is computed.
    int Progress() const { return m_job ? m_job->Progress() : workbench::SpectrogramJob::whole_progress; }

    /// How spectrograms are computed from now on; the present one is computed anew and shown until then.
    void SetSettings(workbench::SpectrogramSettings const & settings);
    /// How frequencies are spread over the height.
    void SetScale(workbench::FrequencyScale scale);

    /// The part shown, the cursor and the selection.
    workbench::TimeMarks const & Marks() const { return m_marks; }
    /// Takes over what another plot shows; nothing if that is not of as many frames.
    void SetMarks(workbench::TimeMarks const & marks);
    /// Marks the frame that is heard, or none.
    void ShowPlaying(std::optional<std::uint64_t> frame);
    /// Called when the user has changed the marks.
    std::function<void()> m_onMarks;
    /// Called when the spectrogram of a recording is there, or what is wrong with it.
    std::function<void()> m_onComputed;

    /// What the cursor reads: time, frequency and level; empty without a spectrogram or before the first click.
    std::wstring Reading() const;

    /// Draws what the view shows into a rectangle, in logical units, of any device context: a metafile's or a
    /// printer's, too. In the place of a progress bar there is a text alone. Lengths and fonts are the screen's; scale
    /// them by the mapping mode.
    void Draw(CDC & dc, CRect const & rect) override;

    /// The same in colours for white paper.
    void Print(CDC & dc, CRect const & rect);

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnComputed(WPARAM, LPARAM);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);

    void EndJob();
    void StartJob(std::optional<workbench::FrameRange> const & stretch);
    workbench::Spectrogram const & Shown() const;
    bool NeedsFiner() const;
    void ChangeMarks(workbench::TimeMarks const & marks);
    void DrawMarks(CDC & dc, CRect const & plot);
    std::uint64_t FrameAt(int x) const;
    void PointAt(CPoint point, bool selects);
    void PlaceProgress();
    int MessageTop(CRect const & rect) const;
    void DrawMessage(CDC & dc, CRect const & rect);
    int DrawHeading(CDC & dc, CRect const & area);
    void DrawPicture(CDC & dc, CRect const & rect);
    void DrawFrequencyAxis(CDC & dc, CRect const & plot);
    void DrawLegend(CDC & dc, CRect const & bar);
    std::wstring Details() const;

    workbench::ScreenMetrics * m_metrics = nullptr;
    CProgressCtrl m_progress;
    std::wstring m_title;
    std::wstring m_text;
    std::filesystem::path m_file;
    workbench::SpectrogramSettings m_settings;
    workbench::FrequencyScale m_scale = workbench::FrequencyScale::linear;
    std::unique_ptr<workbench::SpectrogramJob> m_job;
    std::optional<workbench::FrameRange> m_jobStretch;
    std::shared_ptr<workbench::SpectrogramJob::Result const> m_result; ///< of all of the recording
    std::shared_ptr<workbench::SpectrogramJob::Result const> m_finer;  ///< of a part of it
    workbench::TimeMarks m_marks;
    std::optional<std::uint64_t> m_playing; ///< the frame that is heard
    std::optional<double> m_frequency;      ///< of the cursor, in hertz
    CRect m_plot;                           ///< where the picture was drawn last
    std::array<COLORREF, colour_count> m_colours;
    std::vector<std::uint8_t> m_picture; ///< as drawn last
    CSize m_pictureSize;
    workbench::FrameRange m_pictureRange;
    bool m_printing = false;
    workbench::PlotColours m_plotColours{};
};
