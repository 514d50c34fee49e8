#include "RecordingOverview.h"

#include <algorithm>
#include <cmath>

namespace
{

// Pixels between the rectangle and the waveform, at the usual resolution.
constexpr int margin_x = 4;
constexpr int margin_y = 2;

} // namespace

CRecordingOverview::CRecordingOverview(std::shared_ptr<workbench::RecordingAnalysis const> analysis, UINT dotsPerInch)
    : m_analysis(std::move(analysis)),
      m_dotsPerInch(static_cast<int>(dotsPerInch))
{
}

void CRecordingOverview::Draw(CDC & dc, CRect const & rect, COLORREF wave, COLORREF background)
{
    dc.FillSolidRect(rect, background);
    CRect plot = rect;
    plot.DeflateRect(::MulDiv(margin_x, m_dotsPerInch, USER_DEFAULT_SCREEN_DPI),
                     ::MulDiv(margin_y, m_dotsPerInch, USER_DEFAULT_SCREEN_DPI));
    if (plot.Width() <= 0 || plot.Height() <= 0)
    {
        return;
    }
    auto const width = static_cast<std::size_t>(plot.Width());
    if (m_columns.size() != width)
    {
        m_columns.assign(width, {});
        for (std::size_t lane = 0; lane < m_analysis->waveform.Lanes(); ++lane)
        {
            std::vector<workbench::MinMax> const columns = m_analysis->waveform.Columns(lane, width);
            for (std::size_t i = 0; i < width; ++i)
            {
                m_columns[i].least = std::min(m_columns[i].least, columns[i].least);
                m_columns[i].greatest = std::max(m_columns[i].greatest, columns[i].greatest);
            }
        }
    }
    long const centre = (plot.top + plot.bottom) / 2;
    auto const height = static_cast<float>(std::min(centre - plot.top, plot.bottom - 1 - centre));
    auto const offset = [height](float amplitude) {
        return static_cast<int>(std::lround(std::clamp(amplitude, -1.0F, 1.0F) * height));
    };
    for (std::size_t i = 0; i < width; ++i)
    {
        long const top = centre - offset(m_columns[i].greatest);
        long const bottom = centre - offset(m_columns[i].least);
        dc.FillSolidRect(plot.left + static_cast<int>(i), top, 1, bottom - top + 1, wave);
    }
}
