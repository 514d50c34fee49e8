#include "SpectrogramView.h"

#include <algorithm>
#include <cmath>

#include "DrawingScopes.h"
#include "logic/Axis.h"
#include "logic/NumberSigns.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"
#include "PlotKeys.h"
#include "PlotParts.h"

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
constexpr UINT_PTR finer_timer = 2;
constexpr UINT finer_delay = 150; // milliseconds after the last change of the part shown
constexpr UINT progress_id = 1;

/// The most points of a picture on a side, whatever the device.
constexpr int longest_side = 4096;

/// Levels with a label in the legend are so many entries apart.
constexpr int entries_per_label = 8;

constexpr double scroll_step = 0.1; // of what is shown

std::wstring LegendLabel(int entry)
{
    return workbench::WithSigns(
        std::to_wstring(std::lround(workbench::lowest_scale_level + entry * workbench::decibels_per_entry)));
}

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
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEWHEEL()
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
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

/// Computes all of the file, or a stretch of it. Its progress shows while there is nothing else to see.
void CSpectrogramView::StartJob(std::optional<workbench::FrameRange> const & stretch)
{
    EndJob();
    m_jobStretch = stretch;
    if (!m_result)
    {
        m_progress.SetPos(0);
        PlaceProgress();
        m_progress.ShowWindow(SW_SHOWNA);
        SetTimer(progress_timer, progress_period, nullptr);
    }
    m_job = std::make_unique<workbench::SpectrogramJob>(
        m_file, [window = GetSafeHwnd()] { ::PostMessageW(window, message_computed, 0, 0); }, m_settings, stretch);
}

/// What there is for the part shown: the finer one where it reaches.
workbench::Spectrogram const & CSpectrogramView::Shown() const
{
    workbench::FrameRange const shown = m_marks.window.Shown();
    if (m_finer && !m_marks.window.ShowsAll())
    {
        workbench::FrameRange const stretch = m_finer->spectrogram.Stretch();
        if (stretch.first <= shown.first && shown.end <= stretch.end)
        {
            return m_finer->spectrogram;
        }
    }
    return m_result->spectrogram;
}

/// Whether a spectrogram of the part shown alone would show more.
bool CSpectrogramView::NeedsFiner() const
{
    if (!m_result || m_result->problem || m_marks.window.ShowsAll())
    {
        return false;
    }
    workbench::Spectrogram const & best = Shown();
    // Half as much again is not worth it.
    return best.IsCondensed() && best.Frames() > 2 * m_marks.window.Shown().Length();
}

void CSpectrogramView::ShowRecording(std::wstring name, std::filesystem::path const & path)
{
    ShowText(std::move(name), Text(L"The spectrogram is being computed."));
    m_file = path;
    StartJob(std::nullopt);
}

void CSpectrogramView::SetSettings(workbench::SpectrogramSettings const & settings)
{
    if (settings == m_settings)
    {
        return;
    }
    m_settings = settings;
    // What is there stays to be seen until the new one is there.
    if (!m_file.empty() && (m_job || m_result))
    {
        StartJob(std::nullopt);
    }
}

void CSpectrogramView::SetScale(workbench::FrequencyScale scale)
{
    if (scale != m_scale)
    {
        m_scale = scale;
        m_picture.clear();
        if (GetSafeHwnd() != nullptr)
        {
            Invalidate(FALSE);
        }
    }
}

void CSpectrogramView::ShowText(std::wstring title, std::wstring text)
{
    EndJob();
    KillTimer(finer_timer);
    m_title = std::move(title);
    m_text = std::move(text);
    m_file.clear();
    m_result.reset();
    m_finer.reset();
    m_marks = workbench::TimeMarks();
    m_frequency.reset();
    m_playing.reset();
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
    std::optional<workbench::FrameRange> const stretch = m_jobStretch;
    EndJob();
    m_picture.clear();
    Invalidate(FALSE);
    if (stretch)
    {
        // A file that is gone by now goes on as it was seen.
        m_finer = result->problem ? nullptr : std::move(result);
        return 0;
    }
    m_text = result->problem ? Text(L"Cannot be shown") + (L": " + result->problem->Text() + L'.') : std::wstring();
    m_finer.reset();
    m_result = std::move(result);
    if (m_marks.window.Frames() != m_result->spectrogram.Frames())
    {
        m_marks = workbench::TimeMarks(m_result->spectrogram.Frames());
    }
    if (NeedsFiner())
    {
        SetTimer(finer_timer, finer_delay, nullptr);
    }
    if (auto const onComputed = m_onComputed)
    {
        onComputed();
    }
    return 0;
}

void CSpectrogramView::OnTimer(UINT_PTR timer)
{
    if (timer == progress_timer && m_job)
    {
        m_progress.SetPos(m_job->Progress());
    }
    if (timer == finer_timer)
    {
        KillTimer(finer_timer);
        // All of the file goes first; its end asks for the part again.
        bool const computesAll = m_job && !m_jobStretch;
        if (NeedsFiner() && !computesAll)
        {
            // As much again on both sides, so that a little scrolling shows it, too.
            workbench::FrameRange const shown = m_marks.window.Shown();
            std::size_t const around = shown.Length() / 2;
            StartJob(workbench::FrameRange{shown.first - std::min(shown.first, around), shown.end + around});
        }
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
    int const top = MessageTop(client) + 2 * m_metrics->LineHeight() + m_metrics->Y(10);
    m_progress.MoveWindow(client.CenterPoint().x - width / 2, top, std::max(width, 0), m_metrics->Y(6));
}

void CSpectrogramView::Draw(CDC & dc, CRect const & rect)
{
    m_plotColours = m_printing ? workbench::PaperPlotColours() : workbench::ScreenPlotColours(*this);
    dc.FillSolidRect(rect, m_plotColours.ground);
    if (m_metrics == nullptr || rect.IsRectEmpty())
    {
        return;
    }
    dc.SetBkMode(TRANSPARENT);
    workbench::FontScope const font(dc, m_metrics->Font());
    if (!m_result || m_result->problem)
    {
        DrawMessage(dc, rect);
        return;
    }
    CRect area = rect;
    area.DeflateRect(m_metrics->X(6), m_metrics->Y(5));
    area.top = DrawHeading(dc, area);

    // Half a line more above, where the uppermost label of an axis may reach.
    int const line = m_metrics->LineHeight();
    CRect plot = area;
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
    workbench::RecordingInfo const & info = m_result->info;
    workbench::FrameRange const shown = m_marks.window.Shown();
    workbench::DrawTimeAxis(dc, plot, static_cast<double>(shown.first) / info.sampleRate,
                            static_cast<double>(shown.end) / info.sampleRate, *m_metrics, m_plotColours);
    if (!m_printing)
    {
        m_plot = plot;
        DrawMarks(dc, plot);
    }
    DrawFrequencyAxis(dc, plot);
    long const legendLeft = plot.right + m_metrics->X(6);
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
    CRect area = rect;
    area.DeflateRect(m_metrics->X(10), m_metrics->Y(8));
    area.top = MessageTop(rect);
    {
        workbench::FontScope const bold(dc, m_metrics->BoldFont());
        dc.SetTextColor(m_plotColours.text);
        DrawPlotText(dc, m_title, area, DT_CENTER | text_one_line);
    }
    area.top += m_metrics->LineHeight() + m_metrics->Y(5);
    dc.SetTextColor(m_result ? m_plotColours.problem : m_plotColours.label);
    DrawPlotText(dc, m_text, area, DT_CENTER | DT_WORDBREAK);
}

int CSpectrogramView::DrawHeading(CDC & dc, CRect const & area)
{
    int const line = m_metrics->LineHeight();
    CRect rect = area;
    {
        workbench::FontScope const bold(dc, m_metrics->BoldFont());
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
    workbench::RecordingInfo const & info = m_result->info;
    auto details = workbench::FormatSampleRate(info.sampleRate) + L"  \u00B7  " +
                   workbench::FormatDuration(info.frames, info.sampleRate);
    if (info.channels > 1)
    {
        auto const shown = std::min<std::size_t>(info.channels, workbench::SpectrogramBuilder::maximum_channels);
        details += std::wstring(L"  \u00B7  ") + Text(L"the loudest of") + L' ' +
                   workbench::FormatCount(shown, Text(L"channel"), Text(L"channels"));
    }
    if (std::wstring const reading = Reading(); !reading.empty() && !m_printing)
    {
        details += L"  \u00B7  " + reading;
    }
    return details;
}

std::wstring CSpectrogramView::Reading() const
{
    if (!m_result || m_result->problem || !m_frequency)
    {
        return {};
    }
    workbench::Spectrogram const & shown = Shown();
    double const half = m_result->info.sampleRate / 2.0;
    auto const row = static_cast<std::size_t>(
        std::lround(std::clamp(*m_frequency / half, 0.0, 1.0) * static_cast<double>(shown.Rows() - 1)));
    int const entry = shown.Entry(shown.ColumnOfFrame(m_marks.cursor), row);
    // An entry stands for all levels that it spans.
    long const level = std::lround(workbench::lowest_scale_level + entry * workbench::decibels_per_entry);
    return workbench::FormatDuration(m_marks.cursor, m_result->info.sampleRate) + L", " +
           workbench::FormatFrequency(*m_frequency) + L" Hz, " + (entry == 0 ? L"< " : L"") +
           workbench::WithSigns(std::to_wstring(
               entry == 0 ? std::lround(workbench::lowest_scale_level + workbench::decibels_per_entry) : level)) +
           L" dB";
}

void CSpectrogramView::SetMarks(workbench::TimeMarks const & marks)
{
    if (!m_result || m_result->problem || marks.window.Frames() != m_marks.window.Frames() || marks == m_marks)
    {
        return;
    }
    bool const moved = marks.window != m_marks.window;
    m_marks = marks;
    Invalidate(FALSE);
    if (moved)
    {
        SetTimer(finer_timer, finer_delay, nullptr);
    }
}

void CSpectrogramView::ShowPlaying(std::optional<std::uint64_t> frame)
{
    if (frame != m_playing)
    {
        m_playing = frame;
        Invalidate(FALSE);
    }
}

/// What the user did.
void CSpectrogramView::ChangeMarks(workbench::TimeMarks const & marks)
{
    if (marks == m_marks)
    {
        return;
    }
    auto const onMarks = m_onMarks;
    SetMarks(marks);
    if (onMarks)
    {
        onMarks();
    }
}

/// The cursor as lines through its time and its frequency, and the ends of what is selected: light on dark and dark on
/// light.
void CSpectrogramView::DrawMarks(CDC & dc, CRect const & plot)
{
    CRect inside = plot;
    inside.DeflateRect(1, 1);
    auto const vertical = [&](std::uint64_t frame) {
        int const x = m_marks.window.XOf(frame, inside.Width());
        if (x >= 0 && x < inside.Width())
        {
            dc.InvertRect(CRect(inside.left + x, inside.top, inside.left + x + 1, inside.bottom));
        }
    };
    if (m_marks.HasSelection())
    {
        vertical(*m_marks.other);
        if (m_marks.SelectionEnd() != m_marks.cursor)
        {
            vertical(m_marks.SelectionEnd());
        }
    }
    // Drawn twice, a line would be gone.
    bool const isDrawn = m_marks.HasSelection() && *m_marks.other == m_marks.cursor;
    if (!isDrawn && (m_marks.HasSelection() || m_marks.cursor > 0))
    {
        vertical(m_marks.cursor);
    }
    if (m_playing)
    {
        vertical(*m_playing);
    }
    if (m_frequency)
    {
        double const part = workbench::PartOfFrequency(m_scale, m_result->info.sampleRate / 2.0, *m_frequency);
        long const y = inside.bottom - 1 - static_cast<int>(std::lround(part * (inside.Height() - 1)));
        if (y >= inside.top && y < inside.bottom)
        {
            dc.InvertRect(CRect(inside.left, y, inside.right, y + 1));
        }
    }
}

std::uint64_t CSpectrogramView::FrameAt(int x) const
{
    return m_marks.window.FrameAt(x - m_plot.left - 1, m_plot.Width() - 2);
}

/// Puts the cursor at a place of the picture.
void CSpectrogramView::PointAt(CPoint point, bool selects)
{
    int const height = m_plot.Height() - 2;
    if (!m_result || m_result->problem || m_plot.Width() <= 2 || height <= 1)
    {
        return;
    }
    auto const part = std::clamp(static_cast<double>(m_plot.bottom - 2 - point.y) / (height - 1), 0.0, 1.0);
    m_frequency = workbench::FrequencyAt(m_scale, m_result->info.sampleRate / 2.0, part);
    Invalidate(FALSE);
    workbench::TimeMarks marks = m_marks;
    std::uint64_t const frame = FrameAt(point.x);
    if (!selects)
    {
        marks.Unselect();
        marks.cursor = frame;
    }
    else if (frame != marks.cursor)
    {
        marks.SelectTo(frame);
    }
    ChangeMarks(marks);
}

UINT CSpectrogramView::OnGetDlgCode()
{
    return workbench::PlotDialogCode(m_marks, reinterpret_cast<MSG const *>(GetCurrentMessage()->lParam));
}

void CSpectrogramView::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    workbench::TimeMarks marks = m_marks;
    if (m_result && !m_result->problem && workbench::MoveByKey(marks, key, m_plot.Width() - 2))
    {
        ChangeMarks(marks);
    }
    else
    {
        CBufferedView::OnKeyDown(key, repeat, flags);
    }
}

void CSpectrogramView::OnLButtonDown(UINT flags, CPoint point)
{
    CBufferedView::OnLButtonDown(flags, point);
    if (m_plot.PtInRect(point))
    {
        SetCapture();
        PointAt(point, (flags & MK_SHIFT) != 0);
    }
}

void CSpectrogramView::OnMouseMove(UINT flags, CPoint point)
{
    CBufferedView::OnMouseMove(flags, point);
    if (GetCapture() == this)
    {
        PointAt(point, true);
    }
}

void CSpectrogramView::OnLButtonUp(UINT flags, CPoint point)
{
    CBufferedView::OnLButtonUp(flags, point);
    if (GetCapture() == this)
    {
        ::ReleaseCapture();
    }
}

/// The wheel zooms at the pointer; with Shift it scrolls.
BOOL CSpectrogramView::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    if (!m_result || m_result->problem || m_plot.Width() <= 2)
    {
        return CBufferedView::OnMouseWheel(flags, delta, point);
    }
    double const notches = static_cast<double>(delta) / WHEEL_DELTA;
    workbench::TimeMarks marks = m_marks;
    if ((flags & MK_SHIFT) != 0)
    {
        marks.window.Scroll(-notches * scroll_step);
    }
    else
    {
        ScreenToClient(&point);
        auto const part = static_cast<double>(point.x - m_plot.left - 1) / (m_plot.Width() - 2);
        marks.window.Zoom(std::pow(workbench::plot_zoom_step, -notches), part);
    }
    ChangeMarks(marks);
    return TRUE;
}

void CSpectrogramView::DrawPicture(CDC & dc, CRect const & rect)
{
    dc.FillSolidRect(rect, m_colours.back());
    CRect inside = rect;
    inside.DeflateRect(1, 1);

    // As many points as the device has for it.
    CSize size = inside.Size();
    dc.LPtoDP(&size);
    size.cx = std::clamp<int>(std::abs(size.cx), 1, longest_side);
    size.cy = std::clamp<int>(std::abs(size.cy), 1, longest_side);
    workbench::FrameRange const range = m_marks.window.Shown();
    if (m_picture.empty() || size != m_pictureSize || range != m_pictureRange)
    {
        m_picture =
            Shown().Picture(static_cast<std::size_t>(size.cx), static_cast<std::size_t>(size.cy), range, m_scale);
        m_pictureSize = size;
        m_pictureRange = range;
    }
    if (m_picture.empty())
    {
        return;
    }

    // A bitmap's lines go upwards and take whole 32-bit words.
    auto const width = static_cast<std::size_t>(size.cx);
    auto const height = static_cast<std::size_t>(size.cy);
    std::size_t const pitch = (width + 3) / 4 * 4;
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
        unsigned long const colour = m_colours[i];
        bitmap.colours[i] = {GetBValue(colour), GetGValue(colour), GetRValue(colour), 0};
    }
    workbench::StretchModeScope const mode(dc, COLORONCOLOR);
    ::StretchDIBits(dc.GetSafeHdc(), inside.left, inside.top, inside.Width(), inside.Height(), 0, 0, size.cx, size.cy,
                    bits.data(), reinterpret_cast<BITMAPINFO const *>(&bitmap), DIB_RGB_COLORS, SRCCOPY);
}

void CSpectrogramView::DrawFrequencyAxis(CDC & dc, CRect const & plot)
{
    int const tickWidth = m_metrics->X(2);
    int const height = plot.Height() - 2;
    for (workbench::FrequencyTick const & tick :
         workbench::FrequencyTicks(m_scale, m_result->info.sampleRate / 2.0, height, m_metrics->Y(16)))
    {
        long const y = plot.bottom - 1 - tick.position;
        dc.FillSolidRect(plot.left - tickWidth, y, tickWidth, 1, m_plotColours.frame);
        CSize const size = TextSize(dc, tick.label);
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
    // The lowest label is moved up by half its height.
    int const distance = m_metrics->LineHeight() * 3 / 2;
    for (int const i : workbench::LabelledSteps(workbench::scale_entries, entries_per_label, inside.Height(), distance))
    {
        auto const label = LegendLabel(i) + (i == workbench::scale_entries ? L" dB" : L"");
        CSize const size = TextSize(dc, label);
        auto const top = std::min<int>(y(i) - size.cy / 2, bar.bottom - size.cy);
        dc.FillSolidRect(bar.right, y(i), m_metrics->X(1), 1, m_plotColours.frame);
        DrawPlotLabel(dc, label, CPoint(bar.right + m_metrics->X(2), top), m_plotColours);
    }
}
