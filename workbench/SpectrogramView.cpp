#include "SpectrogramView.h"

#include <algorithm>
#include <cmath>

#include "PlotParts.h"
#include "logic/Axis.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"

using workbench::DrawPlotLabel;
using workbench::DrawPlotText;
using workbench::Text;
using workbench::text_one_line;
using workbench::TextSize;

namespace
{

constexpr COLORREF grey_outside = RGB(160, 160, 164);

constexpr UINT message_computed = WM_APP + 1;
constexpr UINT_PTR progress_timer = 1;
constexpr UINT progress_period = 50; // milliseconds
constexpr UINT progress_id = 1;

/// The most points of a picture on a side, whatever the device.
constexpr int longest_side = 4096;

/// Levels with a label in the legend are so many entries apart.
constexpr int entries_per_label = 8;

std::wstring LegendLabel(int entry)
{
    return std::to_wstring(std::lround(workbench::lowest_scale_level + entry * workbench::decibels_per_entry));
}

/// How a picture is stretched, with its way back.
class StretchModeScope
{
public:
    StretchModeScope(CDC & dc, int mode) : m_dc(dc), m_former(dc.SetStretchBltMode(mode)) {}
    StretchModeScope(StretchModeScope const &) = delete;
    StretchModeScope & operator=(StretchModeScope const &) = delete;
    ~StretchModeScope() { m_dc.SetStretchBltMode(m_former); }

private:
    CDC & m_dc;
    int m_former;
};

/// A bitmap's header with its colour table.
struct BitmapHeader
{
    BITMAPINFOHEADER header;
    RGBQUAD colours[CSpectrogramView::colour_count];
};

} // namespace

BEGIN_MESSAGE_MAP(CSpectrogramView, CBufferedView)
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_WM_DESTROY()
    ON_MESSAGE(message_computed, &CSpectrogramView::OnComputed)
END_MESSAGE_MAP()

CSpectrogramView::CSpectrogramView()
{
    for (int i = 0; i < workbench::scale_entries; ++i)
    {
        auto const grey = static_cast<BYTE>(i * 255 / (workbench::scale_entries - 1));
        m_colours[static_cast<std::size_t>(i)] = RGB(grey, grey, grey);
    }
    m_colours.back() = grey_outside;
}

bool CSpectrogramView::CreateView(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics)
{
    m_metrics = &metrics;
    if (!CreateBuffered(L"Spectrogram", WS_CLIPCHILDREN, CRect(), parent, id) ||
        !m_progress.Create(WS_CHILD | PBS_SMOOTH, CRect(), this, progress_id))
    {
        return false;
    }
    m_progress.SetRange32(0, workbench::SpectrogramJob::whole_progress);
    return true;
}

void CSpectrogramView::EndJob()
{
    if (m_job)
    {
        KillTimer(progress_timer);
        m_progress.ShowWindow(SW_HIDE);
        m_job.reset();
    }
}

void CSpectrogramView::ShowRecording(std::wstring name, std::filesystem::path const & path)
{
    ShowText(std::move(name), Text(L"The spectrogram is being computed."));
    m_progress.SetPos(0);
    PlaceProgress();
    m_progress.ShowWindow(SW_SHOWNA);
    SetTimer(progress_timer, progress_period, nullptr);
    m_job = std::make_unique<workbench::SpectrogramJob>(
        path, [window = GetSafeHwnd()] { ::PostMessageW(window, message_computed, 0, 0); });
}

void CSpectrogramView::ShowText(std::wstring title, std::wstring text)
{
    EndJob();
    m_title = std::move(title);
    m_text = std::move(text);
    m_result.reset();
    m_picture.clear();
    Invalidate(FALSE);
}

void CSpectrogramView::SetColours(unsigned long const * scale)
{
    if (scale == nullptr)
    {
        return;
    }
    std::copy_n(scale, colour_count, m_colours.begin());
    if (GetSafeHwnd() != nullptr)
    {
        Invalidate(FALSE);
    }
}

LRESULT CSpectrogramView::OnComputed(WPARAM, LPARAM)
{
    // A message of a former job finds none or one that is not done.
    auto result = m_job ? m_job->GetResult() : nullptr;
    if (!result)
    {
        return 0;
    }
    EndJob();
    m_text = result->problem ? Text(L"Cannot be shown") + (L": " + result->problem->Text() + L'.') : std::wstring();
    m_result = std::move(result);
    Invalidate(FALSE);
    return 0;
}

void CSpectrogramView::OnTimer(UINT_PTR timer)
{
    if (timer == progress_timer && m_job)
    {
        m_progress.SetPos(m_job->Progress());
    }
    CBufferedView::OnTimer(timer);
}

void CSpectrogramView::OnDestroy()
{
    EndJob();
    CBufferedView::OnDestroy();
}

void CSpectrogramView::OnSize(UINT type, int width, int height)
{
    CBufferedView::OnSize(type, width, height);
    PlaceProgress();
}

int CSpectrogramView::MessageTop(CRect const & rect) const
{
    return std::max<int>(rect.top + m_metrics->Y(8), rect.CenterPoint().y - 2 * m_metrics->LineHeight());
}

void CSpectrogramView::PlaceProgress()
{
    if (m_metrics == nullptr || m_progress.GetSafeHwnd() == nullptr)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    auto const width = std::min<int>(m_metrics->X(120), client.Width() - m_metrics->X(20));
    auto const top = MessageTop(client) + 2 * m_metrics->LineHeight() + m_metrics->Y(10);
    m_progress.MoveWindow(client.CenterPoint().x - width / 2, top, std::max(width, 0), m_metrics->Y(6));
}

void CSpectrogramView::Draw(CDC & dc, CRect const & rect)
{
    m_plotColours = m_printing ? workbench::PaperPlotColours() : workbench::ScreenPlotColours();
    dc.FillSolidRect(rect, m_plotColours.ground);
    if (m_metrics == nullptr || rect.IsRectEmpty())
    {
        return;
    }
    dc.SetBkMode(TRANSPARENT);
    workbench::SelectScope const font(dc, m_metrics->Font());
    if (!m_result || m_result->problem)
    {
        DrawMessage(dc, rect);
        return;
    }
    auto area = rect;
    area.DeflateRect(m_metrics->X(6), m_metrics->Y(5));
    area.top = DrawHeading(dc, area);

    // Half a line more above, where the uppermost label of an axis may reach.
    auto const line = m_metrics->LineHeight();
    auto plot = area;
    plot.top += line / 2;
    plot.bottom -= line + m_metrics->Y(4);
    workbench::PlotMargins const margins(dc, *m_metrics);
    plot.left += margins.left;
    plot.right -= margins.right;
    if (plot.Width() < m_metrics->X(20) || plot.Height() < 2 * line)
    {
        return;
    }
    DrawPicture(dc, plot);
    auto const & info = m_result->info;
    workbench::DrawTimeAxis(dc, plot, static_cast<double>(info.frames) / info.sampleRate, *m_metrics, m_plotColours);
    DrawFrequencyAxis(dc, plot);
    auto const legendLeft = plot.right + m_metrics->X(6);
    DrawLegend(dc, CRect(legendLeft, plot.top, legendLeft + m_metrics->X(6), plot.bottom));
}

void CSpectrogramView::Print(CDC & dc, CRect const & rect)
{
    m_printing = true;
    Draw(dc, rect);
    m_printing = false;
}

void CSpectrogramView::DrawMessage(CDC & dc, CRect const & rect)
{
    auto area = rect;
    area.DeflateRect(m_metrics->X(10), m_metrics->Y(8));
    area.top = MessageTop(rect);
    {
        workbench::SelectScope const bold(dc, m_metrics->BoldFont());
        dc.SetTextColor(m_plotColours.text);
        DrawPlotText(dc, m_title, area, DT_CENTER | text_one_line);
    }
    area.top += m_metrics->LineHeight() + m_metrics->Y(5);
    dc.SetTextColor(m_result ? m_plotColours.problem : m_plotColours.label);
    DrawPlotText(dc, m_text, area, DT_CENTER | DT_WORDBREAK);
}

int CSpectrogramView::DrawHeading(CDC & dc, CRect const & area)
{
    auto const line = m_metrics->LineHeight();
    auto rect = area;
    {
        workbench::SelectScope const bold(dc, m_metrics->BoldFont());
        dc.SetTextColor(m_plotColours.text);
        DrawPlotText(dc, m_title, rect, DT_LEFT | text_one_line);
    }
    rect.top += line + m_metrics->Y(1);
    dc.SetTextColor(m_plotColours.label);
    DrawPlotText(dc, Details(), rect, DT_LEFT | text_one_line);
    return rect.top + line + m_metrics->Y(2);
}

std::wstring CSpectrogramView::Details() const
{
    auto const & info = m_result->info;
    auto details = workbench::FormatSampleRate(info.sampleRate) + L"  \u00B7  " +
                   workbench::FormatDuration(info.frames, info.sampleRate);
    if (info.channels > 1)
    {
        auto const shown = std::min<std::size_t>(info.channels, workbench::SpectrogramBuilder::maximum_channels);
        details += std::wstring(L"  \u00B7  ") + Text(L"the loudest of") + L' ' +
                   workbench::FormatCount(shown, Text(L"channel"), Text(L"channels"));
    }
    return details;
}

void CSpectrogramView::DrawPicture(CDC & dc, CRect const & rect)
{
    dc.FillSolidRect(rect, m_colours.back());
    auto inside = rect;
    inside.DeflateRect(1, 1);

    // As many points as the device has for it.
    CSize size = inside.Size();
    dc.LPtoDP(&size);
    size.cx = std::clamp<int>(std::abs(size.cx), 1, longest_side);
    size.cy = std::clamp<int>(std::abs(size.cy), 1, longest_side);
    if (m_picture.empty() || size != m_pictureSize)
    {
        m_picture = m_result->spectrogram.Picture(static_cast<std::size_t>(size.cx), static_cast<std::size_t>(size.cy));
        m_pictureSize = size;
    }
    if (m_picture.empty())
    {
        return;
    }

    // A bitmap's lines go upwards and take whole 32-bit words.
    auto const width = static_cast<std::size_t>(size.cx);
    auto const height = static_cast<std::size_t>(size.cy);
    auto const pitch = (width + 3) / 4 * 4;
    std::vector<std::uint8_t> bits(pitch * height);
    for (std::size_t y = 0; y < height; ++y)
    {
        std::copy_n(m_picture.begin() + static_cast<std::ptrdiff_t>(y * width), width,
                    bits.begin() + static_cast<std::ptrdiff_t>((height - 1 - y) * pitch));
    }
    BitmapHeader bitmap{};
    bitmap.header.biSize = sizeof(bitmap.header);
    bitmap.header.biWidth = size.cx;
    bitmap.header.biHeight = size.cy;
    bitmap.header.biPlanes = 1;
    bitmap.header.biBitCount = 8;
    bitmap.header.biCompression = BI_RGB;
    bitmap.header.biSizeImage = static_cast<DWORD>(bits.size());
    bitmap.header.biClrUsed = static_cast<DWORD>(colour_count);
    for (std::size_t i = 0; i < colour_count; ++i)
    {
        auto const colour = m_colours[i];
        bitmap.colours[i] = {GetBValue(colour), GetGValue(colour), GetRValue(colour), 0};
    }
    StretchModeScope const mode(dc, COLORONCOLOR);
    ::StretchDIBits(dc.GetSafeHdc(), inside.left, inside.top, inside.Width(), inside.Height(), 0, 0, size.cx, size.cy,
                    bits.data(), reinterpret_cast<BITMAPINFO const *>(&bitmap), DIB_RGB_COLORS, SRCCOPY);
}

void CSpectrogramView::DrawFrequencyAxis(CDC & dc, CRect const & plot)
{
    auto const tickWidth = m_metrics->X(2);
    auto const height = plot.Height() - 2;
    for (auto const & tick : workbench::FrequencyTicks(m_result->info.sampleRate / 2.0, height, m_metrics->Y(16)))
    {
        auto const y = plot.bottom - 1 - tick.position;
        dc.FillSolidRect(plot.left - tickWidth, y, tickWidth, 1, m_plotColours.frame);
        auto const size = TextSize(dc, tick.label);
        auto const top = std::min<int>(y - size.cy / 2, plot.bottom - size.cy);
        DrawPlotLabel(dc, tick.label, CPoint(plot.left - tickWidth - m_metrics->X(1) - size.cx, top), m_plotColours);
    }
}

void CSpectrogramView::DrawLegend(CDC & dc, CRect const & bar)
{
    dc.FillSolidRect(bar, m_colours.back());
    auto const inside = CRect(bar.left + 1, bar.top + 1, bar.right - 1, bar.bottom - 1);
    auto const y = [&](int entry) { return inside.bottom - entry * inside.Height() / workbench::scale_entries; };
    for (int i = 0; i < workbench::scale_entries; ++i)
    {
        dc.FillSolidRect(CRect(inside.left, y(i + 1), inside.right, y(i)), m_colours[static_cast<std::size_t>(i)]);
    }
    for (int i = 0; i <= workbench::scale_entries; i += entries_per_label)
    {
        auto const label = LegendLabel(i) + (i == workbench::scale_entries ? L" dB" : L"");
        auto const size = TextSize(dc, label);
        auto const top = std::min<int>(y(i) - size.cy / 2, bar.bottom - size.cy);
        dc.FillSolidRect(bar.right, y(i), m_metrics->X(1), 1, m_plotColours.frame);
        DrawPlotLabel(dc, label, CPoint(bar.right + m_metrics->X(2), top), m_plotColours);
    }
}
