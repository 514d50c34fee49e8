#include "logic/TimeWindow.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace workbench
{

/// Puts the window there, and into the recording.
void TimeWindow::Place(double first, double length)
{
    auto const all = static_cast<double>(m_frames);
    auto const least = static_cast<double>(std::min(least_frames, m_frames));
    double const checked = std::clamp(std::round(length), least, all);
    double const start = std::clamp(std::round(first), 0.0, all - checked);
    auto const begin = static_cast<std::uint64_t>(start);
    m_shown = {begin, std::min(begin + static_cast<std::uint64_t>(checked), m_frames)};
}

void TimeWindow::Show(FrameRange wanted)
{
    if (wanted.end < wanted.first)
    {
        std::swap(wanted.first, wanted.end);
    }
    auto const first = static_cast<double>(wanted.first);
    auto const length = static_cast<double>(wanted.Length());
    double const missing = std::max(static_cast<double>(least_frames) - length, 0.0);
    Place(first - missing / 2.0, length + missing);
}

void TimeWindow::Zoom(double factor, double part)
{
    if (!(factor > 0.0) || !std::isfinite(factor))
    {
        return;
    }
    double const held = std::clamp(part, 0.0, 1.0);
    auto const before = static_cast<double>(m_shown.Length());
    auto const all = static_cast<double>(m_frames);
    double const after = std::clamp(before * factor, static_cast<double>(std::min(least_frames, m_frames)), all);
    Place(static_cast<double>(m_shown.first) + held * (before - after), after);
}

void TimeWindow::Scroll(double part)
{
    auto const length = static_cast<double>(m_shown.Length());
    if (std::isfinite(part))
    {
        // Whole frames, so that there is a way back, and at least one, so that a short window can be moved at all.
        double const step = part == 0.0 ? 0.0 : std::copysign(std::max(std::round(std::abs(part * length)), 1.0), part);
        Place(static_cast<double>(m_shown.first) + step, length);
    }
}

void TimeWindow::Reveal(std::uint64_t frame)
{
    std::uint64_t const length = m_shown.Length();
    if (m_frames == 0)
    {
        return;
    }
    std::uint64_t const wanted = std::min(frame, m_frames - 1);
    if (wanted < m_shown.first)
    {
        m_shown = {wanted, wanted + length};
    }
    else if (wanted >= m_shown.end)
    {
        m_shown = {wanted + 1 - length, wanted + 1};
    }
}

void TimeWindow::Reveal(std::uint64_t frame, double margin)
{
    if (m_frames == 0 || (m_shown.first <= frame && frame < m_shown.end))
    {
        return;
    }
    bool const isAhead = frame < m_shown.first;
    auto const length = static_cast<double>(m_shown.Length());
    double const room = std::floor(std::clamp(margin, 0.0, 0.5) * length);
    auto const place = static_cast<double>(std::min(frame, m_frames - 1));
    Place(isAhead ? place - room : place + 1.0 + room - length, length);
}

std::uint64_t TimeWindow::FrameAt(int x, int width) const
{
    if (width <= 0 || m_shown.IsEmpty())
    {
        return m_shown.first;
    }
    // Whole frames a pixel and the rest apart, so that no product gets too large.
    std::uint64_t const length = m_shown.Length();
    auto const columns = static_cast<std::uint64_t>(width);
    auto const column = static_cast<std::uint64_t>(std::clamp(x, 0, width));
    std::uint64_t const offset = column * (length / columns) + column * (length % columns) / columns;
    return m_shown.first + std::min(offset, length - 1);
}

int TimeWindow::XOf(std::uint64_t frame, int width) const
{
    if (m_shown.IsEmpty() || width <= 0)
    {
        return 0;
    }
    if (frame < m_shown.first)
    {
        return -1;
    }
    if (frame >= m_shown.end)
    {
        return width;
    }
    auto const offset = static_cast<double>(frame - m_shown.first);
    int x = std::min(static_cast<int>(offset / static_cast<double>(m_shown.Length()) * width), width - 1);
    // Rounding may have missed the frame's first pixel, or the pixel that it shares with others.
    while (x > 0 && FrameAt(x, width) > frame)
    {
        --x;
    }
    while (x + 1 < width && FrameAt(x + 1, width) <= frame && FrameAt(x, width) < frame)
    {
        ++x;
    }
    while (x > 0 && FrameAt(x - 1, width) == frame)
    {
        --x;
    }
    return x;
}

} // namespace workbench
