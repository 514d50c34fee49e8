#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "BufferedView.h"
#include "ScreenMetrics.h"
#include "logic/ReadableColours.h"
#include "logic/SpectrogramJob.h"

/// Shows the spectrogram of one recording: a heading, the spectrogram with a time and a frequency axis, and a legend of
/// its colours. While it is computed, on a thread of its own, a progress bar shows instead; where there is nothing to
/// see, a text says why.
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

    void EndJob();
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
    std::unique_ptr<workbench::SpectrogramJob> m_job;
    std::shared_ptr<workbench::SpectrogramJob::Result const> m_result;
    std::array<COLORREF, colour_count> m_colours;
    std::vector<std::uint8_t> m_picture; ///< as drawn last
    CSize m_pictureSize;
    bool m_printing = false;
    workbench::PlotColours m_plotColours{};
};
