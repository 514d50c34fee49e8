#include "WaveformView.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

#include "colours/Farbtabellen.h"
#include "DrawingScopes.h"
#include "logic/Amplification.h"
#include "logic/Axis.h"
#include "logic/CursorReading.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"
#include "PlotKeys.h"
#include "PlotParts.h"

namespace
{

using workbench::amplification_step;
using workbench::DrawPlotText;
using workbench::most_amplification;
using workbench::Text;
using workbench::text_label;
using workbench::text_one_line;
using workbench::TextSize;

// Colours on paper: of scope colours by their index. Lanes beyond the last colour begin again with the first.
constexpr int lane_colours[] = {7, 5, 3, 8, 19, 4};
constexpr int clipped_colour = 2;

constexpr int least_lane_height = 3; // pixels

// Lengths in dialog units.
constexpr int margin_x = 6;
constexpr int margin_y = 5;
constexpr int line_gap = 1;
constexpr int heading_gap = 3;
constexpr int axis_gap = 4;
constexpr int strip_height = 10;
constexpr int strip_gap = 3;

constexpr UINT message_refined = WM_APP + 1;

constexpr double scroll_step = 0.1;         // of what is shown
constexpr double reveal_margin = 0.1;       // likewise
constexpr double selection_strength = 0.35; // of the system's colour of what is selected

} // namespace

BEGIN_MESSAGE_MAP(CWaveformView, CBufferedView)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_MESSAGE(message_refined, &CWaveformView::OnRefined)
    ON_WM_KEYDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_SIZE()
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

bool CWaveformView::CreateView(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics)
{
    m_metrics = &metrics;
    return CreateBuffered(L"Waveform", WS_TABSTOP, CRect(), parent, id);
}

void CWaveformView::ShowRecording(std::wstring name, std::shared_ptr<workbench::RecordingAnalysis const> analysis,
                                  std::filesystem::path const & file)
{
    m_title = std::move(name);
    m_text = analysis->problem ? Text(L"Cannot be shown") + (L": " + analysis->StatusText() + L'.') : std::wstring();
    m_analysis = std::move(analysis);
    m_detail.reset();
    if (ShowsRecording())
    {
        m_detail = std::make_unique<workbench::WaveformDetail>(
            m_analysis, file, [window = GetSafeHwnd()] { ::PostMessageW(window, message_refined, 0, 0); });
    }
    ResetMarks();
}

/// Shows all of what there is now.
void CWaveformView::ResetMarks()
{
    m_columns.clear();
    m_drag = Drag::none;
    m_playing.reset();
    m_marks = workbench::TimeMarks(ShowsRecording() ? m_analysis->info.frames : 0);
    Invalidate(FALSE);
    Placed();
    auto const onMarks = m_onMarks;
    if (auto const onCursor = m_onCursor)
    {
        onCursor();
    }
    if (onMarks)
    {
        onMarks();
    }
}

void CWaveformView::ShowText(std::wstring title, std::wstring text)
{
    m_title = std::move(title);
    m_text = std::move(text);
    m_detail.reset();
    m_analysis.reset();
    ResetMarks();
}

double CWaveformView::LevelAtCursor()
{
    return m_detail ? workbench::LevelAround(*m_detail, m_analysis->info, m_marks.cursor)
                    : -std::numeric_limits<double>::infinity();
}

LRESULT CWaveformView::OnRefined(WPARAM, LPARAM)
{
    m_columns.clear();
    Invalidate(FALSE);
    return 0;
}

void CWaveformView::Draw(CDC & dc, CRect const & client)
{
    m_plotColours = m_printing ? workbench::PaperPlotColours() : workbench::ScreenPlotColours(*this);
    dc.FillSolidRect(client, m_plotColours.ground);
    if (m_metrics == nullptr || client.IsRectEmpty())
    {
        return;
    }
    dc.SetBkMode(TRANSPARENT);
    workbench::FontScope const font(dc, m_metrics->Font());
    if (!m_analysis || m_analysis->problem || !m_detail)
    {
        DrawMessage(dc, client);
        return;
    }
    CRect area = client;
    area.DeflateRect(m_metrics->X(margin_x), m_metrics->Y(margin_y));
    DrawHeading(dc, area);
    CRect const plot = PlotIn(dc, client);
    auto const lanes = static_cast<int>(m_analysis->waveform.Lanes());
    int const gap = lanes > 1 ? m_metrics->Y(lanes > 8 ? 1 : 4) : 0;
    auto const pitch = static_cast<double>(plot.Height() + gap) / std::max(lanes, 1);
    if (plot.Width() < m_metrics->X(20) || pitch < gap + least_lane_height)
    {
        return;
    }
    m_plot = m_printing ? m_plot : plot;
    if (!m_printing)
    {
        DrawStrip(dc, plot);
    }
    workbench::DrawTimeAxis(dc, plot, Seconds(m_marks.window.Shown().first), Seconds(m_marks.window.Shown().end),
                            *m_metrics, m_plotColours);
    for (int i = 0; i < lanes; ++i)
    {
        Lane lane;
        lane.rect = CRect(plot.left, plot.top + static_cast<int>(i * pitch), plot.right,
                          plot.top + static_cast<int>((i + 1) * pitch) - gap);
        lane.centre = (lane.rect.top + lane.rect.bottom) / 2;
        lane.halfHeight = std::max((lane.rect.Height() - 1) / 2 - m_metrics->Y(2), 1);
        DrawLane(dc, lane, static_cast<std::size_t>(i));
    }
    if (!m_printing)
    {
        DrawCursor(dc, plot);
    }
}

void CWaveformView::Print(CDC & dc, CRect const & rect)
{
    m_printing = true;
    auto columns = std::move(m_columns);
    m_columns.clear();
    Draw(dc, rect);
    m_columns = std::move(columns);
    m_printing = false;
}

/// The plot in a view of that size, below the heading. dc: with the font of the labels selected.
CRect CWaveformView::PlotIn(CDC & dc, CRect const & client) const
{
    workbench::PlotMargins const margins(dc, *m_metrics);
    CRect plot = client;
    plot.DeflateRect(m_metrics->X(margin_x), m_metrics->Y(margin_y));
    plot.top += HeadingHeight() + (m_printing ? 0 : StripHeight());
    plot.left += margins.left;
    plot.right -= margins.right - (m_printing ? 0 : m_rightRoom);
    plot.bottom -= m_metrics->LineHeight() + m_metrics->Y(axis_gap);
    return plot;
}

CRect CWaveformView::PlotPlace()
{
    CRect client;
    GetClientRect(&client);
    CClientDC dc(this);
    workbench::FontScope const font(dc, m_metrics->Font());
    return PlotIn(dc, client);
}

void CWaveformView::SetRightRoom(int pixels)
{
    m_rightRoom = pixels;
    Invalidate(FALSE);
}

void CWaveformView::Placed()
{
    if (m_onPlaced)
    {
        m_onPlaced();
    }
}

void CWaveformView::OnSize(UINT type, int width, int height)
{
    CBufferedView::OnSize(type, width, height);
    Placed();
}

void CWaveformView::SetColours(workbench::WaveformColours const & colours)
{
    if (colours != m_colours)
    {
        m_colours = colours;
        Invalidate(FALSE);
    }
}

void CWaveformView::SetAmplification(int decibels)
{
    int const amplification = workbench::CheckedAmplification(decibels);
    if (amplification == m_amplification)
    {
        return;
    }
    m_amplification = amplification;
    Invalidate(FALSE);
    if (m_onAmplified)
    {
        m_onAmplified();
    }
}

void CWaveformView::FitAmplification()
{
    if (ShowsRecording())
    {
        SetAmplification(workbench::FittingAmplification(m_analysis->levels.peak));
    }
}

/// The colour of a channel, or what stands for it on paper.
COLORREF CWaveformView::Trace(std::size_t channel) const
{
    return m_printing ? Farbtabellen::DruckFarbe(lane_colours[channel % std::size(lane_colours)])
                      : workbench::TraceColour(m_colours, channel);
}

/// The colours around the waveform: the chosen ones on the screen, light on paper.
CWaveformView::SurroundingColours CWaveformView::Surroundings() const
{
    if (m_printing)
    {
        return {RGB(255, 255, 255), RGB(226, 230, 236), RGB(150, 160, 172), m_plotColours.label};
    }
    return {m_colours.background, m_colours.grid, workbench::CentreColour(m_colours),
            workbench::LabelColour(m_colours)};
}

void CWaveformView::DrawCursor(CDC & dc, CRect const & plot)
{
    int const width = plot.Width() - 2;
    auto const draw = [&](std::uint64_t frame, int thickness) {
        int const x = m_marks.window.XOf(frame, width);
        if (x >= 0 && x < width)
        {
            dc.FillSolidRect(plot.left + 1 + x, plot.top, thickness, plot.Height(), m_colours.cursor);
        }
    };
    if (m_marks.HasSelection())
    {
        draw(*m_marks.other, 1);
        draw(m_marks.SelectionEnd(), 1);
    }
    draw(m_marks.cursor, GetFocus() == this ? 2 : 1);
    if (m_playing)
    {
        int const x = m_marks.window.XOf(*m_playing, width);
        if (x >= 0 && x < width)
        {
            dc.FillSolidRect(plot.left + 1 + x, plot.top, 2, plot.Height(), workbench::ClippedColour(m_colours));
        }
    }
}

/// Shades what is selected.
void CWaveformView::DrawSelection(CDC & dc, CRect const & inside)
{
    if (m_printing || !m_marks.HasSelection())
    {
        return;
    }
    auto const [first, end] = m_marks.Selection();
    int const left = std::clamp(m_marks.window.XOf(first, inside.Width()), 0, inside.Width());
    int const right = std::clamp(m_marks.window.XOf(end, inside.Width()), left, inside.Width());
    dc.FillSolidRect(inside.left + left, inside.top, right - left, inside.Height(),
                     workbench::MixedColour(Surroundings().ground, ::GetSysColor(COLOR_HIGHLIGHT), selection_strength));
}

int CWaveformView::StripHeight() const
{
    return ShowsRecording() && !m_marks.window.ShowsAll() ? m_metrics->Y(strip_height) + m_metrics->Y(strip_gap) : 0;
}

/// Draws the whole recording in a strip above the plot, and marks in it what the plot shows.
void CWaveformView::DrawStrip(CDC & dc, CRect const & plot)
{
    m_strip.SetRectEmpty();
    int const height = StripHeight();
    if (height == 0)
    {
        return;
    }
    m_strip = CRect(plot.left, plot.top - height, plot.right, plot.top - m_metrics->Y(strip_gap));
    CRect inside = m_strip;
    inside.DeflateRect(1, 1);
    dc.FillSolidRect(m_strip, Surroundings().ground);
    workbench::TimeWindow const whole(m_marks.window.Frames());
    workbench::FrameRange const shown = m_marks.window.Shown();
    int const left = std::clamp(whole.XOf(shown.first, inside.Width()), 0, inside.Width() - 1);
    int const right = std::clamp(whole.XOf(shown.end, inside.Width()), left + 1, inside.Width());
    dc.FillSolidRect(inside.left + left, inside.top, right - left, inside.Height(),
                     workbench::MixedColour(Surroundings().ground, Surroundings().label, selection_strength));
    long const centre = (inside.top + inside.bottom) / 2;
    int const halfHeight = inside.Height() / 2;
    auto const half = static_cast<float>(halfHeight);
    auto const y = [&](float amplitude) {
        return centre - static_cast<int>(std::lround(std::clamp(amplitude, -1.0F, 1.0F) * half));
    };
    std::vector<workbench::MinMax> all(static_cast<std::size_t>(inside.Width()));
    for (std::size_t lane = 0; lane < m_analysis->waveform.Lanes(); ++lane)
    {
        std::vector<workbench::MinMax> const columns = m_analysis->waveform.Columns(lane, all.size());
        for (std::size_t i = 0; i < all.size(); ++i)
        {
            all[i] = {std::min(all[i].least, columns[i].least), std::max(all[i].greatest, columns[i].greatest)};
        }
    }
    for (std::size_t i = 0; i < all.size(); ++i)
    {
        long const top = y(all[i].greatest);
        dc.FillSolidRect(inside.left + static_cast<int>(i), top, 1, std::max<int>(y(all[i].least) - top, 0) + 1,
                         Trace(0));
    }
    dc.Draw3dRect(m_strip, m_plotColours.frame, m_plotColours.frame);
}

std::optional<std::uint64_t> CWaveformView::Cursor() const
{
    return ShowsRecording() ? std::optional(m_marks.cursor) : std::nullopt;
}

void CWaveformView::MoveCursor(std::uint64_t frame)
{
    if (!ShowsRecording())
    {
        return;
    }
    workbench::TimeMarks marks = m_marks;
    marks.cursor = std::min(frame, m_analysis->info.frames - 1);
    marks.Unselect();
    marks.window.Reveal(marks.cursor);
    ChangeMarks(marks);
}

void CWaveformView::MoveCursorAlone(std::uint64_t frame)
{
    if (!ShowsRecording())
    {
        return;
    }
    workbench::TimeMarks marks = m_marks;
    marks.MoveCursorAlone(std::min(frame, m_analysis->info.frames - 1));
    marks.window.Reveal(marks.cursor, reveal_margin);
    ChangeMarks(marks);
}

void CWaveformView::SetMarks(workbench::TimeMarks const & marks)
{
    if (!ShowsRecording() || marks.window.Frames() != m_marks.window.Frames() || marks == m_marks)
    {
        return;
    }
    bool const placed = marks.window.ShowsAll() != m_marks.window.ShowsAll();
    bool const moved = marks.cursor != m_marks.cursor;
    m_marks = marks;
    Invalidate(FALSE);
    if (placed)
    {
        Placed();
    }
    auto const onCursor = m_onCursor;
    if (moved && onCursor)
    {
        onCursor();
    }
}

/// What the user did.
void CWaveformView::ChangeMarks(workbench::TimeMarks const & marks)
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

void CWaveformView::ShowPlaying(std::optional<std::uint64_t> frame)
{
    if (frame == m_playing)
    {
        return;
    }
    workbench::FrameRange const shown = m_marks.window.Shown();
    bool const wasSeen = m_playing && shown.first <= *m_playing && *m_playing < shown.end;
    m_playing = frame;
    Invalidate(FALSE);
    // Whoever has scrolled away meanwhile stays there.
    if (frame && wasSeen && *frame >= shown.end)
    {
        workbench::TimeMarks marks = m_marks;
        marks.window.Show({*frame, *frame + shown.Length()});
        ChangeMarks(marks);
    }
}

void CWaveformView::ZoomAt(double factor, std::uint64_t frame)
{
    workbench::TimeMarks marks = m_marks;
    workbench::FrameRange const shown = marks.window.Shown();
    auto const offset = static_cast<double>(std::clamp(frame, shown.first, shown.end) - shown.first);
    marks.window.Zoom(factor, shown.IsEmpty() ? 0.5 : offset / static_cast<double>(shown.Length()));
    ChangeMarks(marks);
}

std::uint64_t CWaveformView::FrameAt(int x) const
{
    return m_marks.window.FrameAt(x - m_plot.left - 1, m_plot.Width() - 2);
}

/// Moves the cursor to what lies at a place of the client area.
void CWaveformView::MoveCursorTo(int x)
{
    if (ShowsRecording() && m_plot.Width() > 2)
    {
        MoveCursor(FrameAt(x));
    }
}

/// Brings what lies at a place of the strip into the middle.
void CWaveformView::ScrollTo(int x)
{
    workbench::TimeWindow const whole(m_marks.window.Frames());
    std::uint64_t const middle = whole.FrameAt(x - m_strip.left - 1, m_strip.Width() - 2);
    std::uint64_t const length = m_marks.window.Shown().Length();
    workbench::TimeMarks marks = m_marks;
    std::size_t const first = std::min(middle - std::min(middle, length / 2), whole.Frames() - length);
    marks.window.Show({first, first + length});
    ChangeMarks(marks);
}

void CWaveformView::OnLButtonDown(UINT flags, CPoint point)
{
    CBufferedView::OnLButtonDown(flags, point);
    SetFocus();
    if (!ShowsRecording() || m_plot.Width() <= 2)
    {
        return;
    }
    SetCapture();
    if (m_strip.PtInRect(point))
    {
        m_drag = Drag::scroll;
        ScrollTo(point.x);
        return;
    }
    m_drag = Drag::select;
    if ((flags & MK_SHIFT) == 0)
    {
        MoveCursorTo(point.x);
        return;
    }
    workbench::TimeMarks marks = m_marks;
    marks.SelectTo(FrameAt(point.x));
    ChangeMarks(marks);
}

/// What is selected fills the plot; without a selection, everything does.
void CWaveformView::OnLButtonDblClk(UINT flags, CPoint point)
{
    CBufferedView::OnLButtonDblClk(flags, point);
    workbench::TimeMarks marks = m_marks;
    std::uint64_t const frame = FrameAt(point.x);
    workbench::FrameRange const selection = marks.Selection();
    if (ShowsRecording() && !m_strip.PtInRect(point))
    {
        if (selection.first <= frame && frame < selection.end)
        {
            marks.window.Show(selection);
        }
        else
        {
            marks.window.ShowAll();
        }
        ChangeMarks(marks);
    }
}

void CWaveformView::OnMouseMove(UINT flags, CPoint point)
{
    CBufferedView::OnMouseMove(flags, point);
    if (GetCapture() != this || !ShowsRecording())
    {
        return;
    }
    if (m_drag == Drag::scroll)
    {
        ScrollTo(point.x);
    }
    else if (m_drag == Drag::select && m_plot.Width() > 2)
    {
        // Beyond the edges the plot scrolls along.
        workbench::TimeMarks marks = m_marks;
        long const overshoot = point.x < m_plot.left    ? point.x - m_plot.left
                               : point.x > m_plot.right ? point.x - m_plot.right
                                                        : 0;
        marks.window.Scroll(static_cast<double>(overshoot) / m_plot.Width());
        std::uint64_t const frame = marks.window.FrameAt(point.x - m_plot.left - 1, m_plot.Width() - 2);
        if (frame != marks.cursor)
        {
            marks.SelectTo(frame);
        }
        ChangeMarks(marks);
    }
}

void CWaveformView::OnLButtonUp(UINT flags, CPoint point)
{
    CBufferedView::OnLButtonUp(flags, point);
    m_drag = Drag::none;
    if (GetCapture() == this)
    {
        ::ReleaseCapture();
    }
}

UINT CWaveformView::OnGetDlgCode()
{
    return workbench::PlotDialogCode(m_marks, reinterpret_cast<MSG const *>(GetCurrentMessage()->lParam));
}

void CWaveformView::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (!ShowsRecording() || m_plot.Width() <= 2)
    {
        CBufferedView::OnKeyDown(key, repeat, flags);
        return;
    }
    switch (key)
    {
    case VK_UP:
        SetAmplification(std::min(m_amplification + amplification_step, most_amplification));
        return;
    case VK_DOWN:
        SetAmplification(m_amplification - amplification_step);
        return;
    case VK_SPACE:
        if (auto const onPlay = m_onPlay)
        {
            onPlay();
        }
        return;
    default:
        break;
    }
    workbench::TimeMarks marks = m_marks;
    if (workbench::MoveByKey(marks, key, m_plot.Width() - 2))
    {
        ChangeMarks(marks);
    }
    else
    {
        CBufferedView::OnKeyDown(key, repeat, flags);
    }
}

/// The wheel zooms at the pointer; with Shift it scrolls, with Ctrl it amplifies.
BOOL CWaveformView::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    if (!ShowsRecording())
    {
        return CBufferedView::OnMouseWheel(flags, delta, point);
    }
    double const notches = static_cast<double>(delta) / WHEEL_DELTA;
    if ((flags & MK_CONTROL) != 0)
    {
        int const step = delta > 0 ? amplification_step : -amplification_step;
        SetAmplification(std::clamp(m_amplification + step, 0, most_amplification));
    }
    else if ((flags & MK_SHIFT) != 0)
    {
        workbench::TimeMarks marks = m_marks;
        marks.window.Scroll(-notches * scroll_step);
        ChangeMarks(marks);
    }
    else
    {
        ScreenToClient(&point);
        ZoomAt(std::pow(workbench::plot_zoom_step, -notches), FrameAt(point.x));
    }
    return TRUE;
}

void CWaveformView::OnSetFocus(CWnd * other)
{
    CBufferedView::OnSetFocus(other);
    Invalidate(FALSE);
}

void CWaveformView::OnKillFocus(CWnd * other)
{
    CBufferedView::OnKillFocus(other);
    Invalidate(FALSE);
}

void CWaveformView::DrawMessage(CDC & dc, CRect const & client)
{
    CRect area = client;
    area.DeflateRect(m_metrics->X(10), m_metrics->Y(8));
    int const line = m_metrics->LineHeight();
    area.top = std::max<int>(area.top, area.CenterPoint().y - 2 * line);
    {
        workbench::FontScope const bold(dc, m_metrics->BoldFont());
        dc.SetTextColor(m_plotColours.text);
        DrawPlotText(dc, m_title, area, DT_CENTER | text_one_line);
    }
    area.top += line + m_metrics->Y(5);
    dc.SetTextColor(m_analysis ? m_plotColours.problem : m_plotColours.label);
    DrawPlotText(dc, m_text, area, DT_CENTER | DT_WORDBREAK);
}

bool CWaveformView::IsDamaged() const
{
    return m_analysis && (m_analysis->info.IsCutOff() || m_analysis->invalidSamples > 0);
}

int CWaveformView::HeadingHeight() const
{
    int const lines = IsDamaged() ? 3 : 2;
    return lines * (m_metrics->LineHeight() + m_metrics->Y(line_gap)) + m_metrics->Y(heading_gap);
}

void CWaveformView::DrawHeading(CDC & dc, CRect const & area)
{
    int const pitch = m_metrics->LineHeight() + m_metrics->Y(line_gap);
    CRect rect = area;
    {
        workbench::FontScope const bold(dc, m_metrics->BoldFont());
        dc.SetTextColor(m_plotColours.text);
        DrawPlotText(dc, m_title, rect, DT_LEFT | text_one_line);
    }
    rect.top += pitch;
    dc.SetTextColor(m_plotColours.label);
    DrawPlotText(dc, Details(), rect, DT_LEFT | text_one_line);
    if (IsDamaged())
    {
        rect.top += pitch;
        dc.SetTextColor(m_plotColours.problem);
        DrawPlotText(dc, Text(L"This file is damaged") + (L": " + m_analysis->StatusText() + L'.'), rect,
                     DT_LEFT | text_one_line);
    }
}

std::wstring CWaveformView::Details() const
{
    workbench::RecordingInfo const & info = m_analysis->info;
    wchar_t const * const coding =
        info.coding == workbench::SampleCoding::floating_point ? Text(L"-bit float") : Text(L"-bit");
    auto details = workbench::FormatSampleRate(info.sampleRate) + L"  \u00B7  " + std::to_wstring(info.bitsPerSample) +
                   coding + L"  \u00B7  " + workbench::FormatCount(info.channels, Text(L"channel"), Text(L"channels")) +
                   L"  \u00B7  " + workbench::FormatDuration(info.frames, info.sampleRate);
    if (info.channels > m_analysis->waveform.Lanes())
    {
        details += std::wstring(L"  \u00B7  ") + Text(L"the first") + L' ' +
                   std::to_wstring(m_analysis->waveform.Lanes()) + L' ' + Text(L"are shown");
    }
    if (m_marks.HasSelection() && !m_printing)
    {
        std::uint64_t const frames = m_marks.Selection().Length();
        details += std::wstring(L"  \u00B7  ") + Text(L"selected") + L' ' +
                   workbench::FormatDuration(frames, info.sampleRate) + L" (" +
                   workbench::FormatFrequency(static_cast<double>(info.sampleRate) / static_cast<double>(frames)) +
                   L" Hz)";
    }
    return details;
}

std::wstring CWaveformView::LaneName(std::size_t index) const
{
    switch (m_analysis->info.channels)
    {
    case 1:
        return {};
    case 2:
        return index == 0 ? Text(L"Left") : Text(L"Right");
    default:
        return std::to_wstring(index + 1);
    }
}

std::vector<workbench::MinMax> const & CWaveformView::Columns(std::size_t lane, int width)
{
    workbench::FrameRange const range = m_marks.window.Shown();
    if (m_columns.empty() || m_columns[lane].size() != static_cast<std::size_t>(width) || m_columnsRange != range)
    {
        m_columns = m_detail->Columns(range, static_cast<std::size_t>(width));
        m_columnsRange = range;
    }
    return m_columns[lane];
}

/// The time of a frame.
double CWaveformView::Seconds(std::uint64_t frame) const
{
    return static_cast<double>(frame) / m_analysis->info.sampleRate;
}

void CWaveformView::DrawLane(CDC & dc, Lane const & lane, std::size_t index)
{
    dc.FillSolidRect(lane.rect, Surroundings().ground);
    DrawLevelGrid(dc, lane);

    CRect inside = lane.rect;
    inside.DeflateRect(1, 1);
    DrawSelection(dc, inside);
    workbench::FrameRange const shown = m_marks.window.Shown();
    for (workbench::TimeTick const & tick :
         workbench::TimeTicks(Seconds(shown.first), Seconds(shown.end), inside.Width(), m_metrics->X(44)))
    {
        dc.FillSolidRect(inside.left + tick.position, inside.top, 1, inside.Height(), Surroundings().grid);
    }
    dc.FillSolidRect(inside.left, lane.centre, inside.Width(), 1, Surroundings().centre);

    // Each column reaches over to the one before it, so that steep slopes stay one line.
    auto const factor = static_cast<float>(workbench::AmplificationFactor(m_amplification));
    auto const y = [&](float amplitude) {
        float const limited = std::clamp(amplitude * factor, -1.0F, 1.0F);
        return lane.centre - static_cast<int>(std::lround(limited * static_cast<float>(lane.halfHeight)));
    };
    COLORREF const waveColour = Trace(index);
    COLORREF const clippedColour =
        m_printing ? Farbtabellen::DruckFarbe(clipped_colour) : workbench::ClippedColour(m_colours);
    std::vector<workbench::MinMax> const & columns = Columns(index, inside.Width());
    int previousTop = y(columns.front().greatest);
    int previousBottom = y(columns.front().least);
    for (int i = 0; i < inside.Width(); ++i)
    {
        auto const & column = columns[static_cast<std::size_t>(i)];
        int const top = y(column.greatest);
        int const bottom = y(column.least);
        int const from = std::min(top, previousBottom);
        int const to = std::max(bottom, previousTop);
        bool const clipped = column.greatest > 1.0F || column.least < -1.0F;
        dc.FillSolidRect(inside.left + i, from, 1, to - from + 1, clipped ? clippedColour : waveColour);
        previousTop = top;
        previousBottom = bottom;
    }
    dc.Draw3dRect(lane.rect, m_plotColours.frame, m_plotColours.frame);

    std::wstring const name = LaneName(index);
    if (!name.empty() && lane.rect.Height() >= m_metrics->LineHeight() + m_metrics->Y(4))
    {
        // On a ground of its own, so that it is read over the waveform.
        CRect label(lane.rect.TopLeft(), TextSize(dc, name));
        label.OffsetRect(m_metrics->X(3), m_metrics->Y(2));
        CRect ground = label;
        ground.InflateRect(m_metrics->X(2), 1);
        ground.left = lane.rect.left + 1;
        dc.FillSolidRect(ground, Surroundings().ground);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(Surroundings().label);
        DrawPlotText(dc, name, label, DT_LEFT | text_label);
    }
}

void CWaveformView::DrawLevelGrid(CDC & dc, Lane const & lane)
{
    int const line = m_metrics->LineHeight();
    auto const draw = [&](int y, std::wstring const & label, bool withLabel) {
        dc.FillSolidRect(lane.rect.left, y, lane.rect.Width(), 1, Surroundings().grid);
        if (withLabel)
        {
            CSize const size = TextSize(dc, label);
            CRect const rect(0, y - line / 2, lane.rect.left - m_metrics->X(2), y - line / 2 + size.cy);
            dc.SetBkMode(TRANSPARENT);
            dc.SetTextColor(m_plotColours.label);
            DrawPlotText(dc, label, rect, DT_RIGHT | text_label);
        }
    };
    for (workbench::LevelLine const & level :
         workbench::LevelLines(lane.halfHeight, line + m_metrics->Y(1), m_amplification))
    {
        auto const height = static_cast<int>(std::lround(level.amplitude * lane.halfHeight));
        draw(lane.centre - height, level.label, true);
        draw(lane.centre + height, level.label, true);
    }
    if (lane.halfHeight >= line)
    {
        draw(lane.centre, L"-\u221E", true);
    }
}
