#pragma once
// The part of a recording that a plot over time shows, and what zooming and scrolling make of it.

#include <cstdint>

namespace workbench
{

/// The frames from `first` up to and without `end`.
struct FrameRange
{
    std::uint64_t first = 0;
    std::uint64_t end = 0;

    std::uint64_t Length() const { return end > first ? end - first : 0; }
    bool IsEmpty() const { return end <= first; }

    bool operator==(FrameRange const &) const = default;
};

/// What is shown of so many frames. It never leaves the recording and never gets shorter than `least_frames`, or than
/// the recording if that is shorter.
class TimeWindow
{
public:
    static constexpr std::uint64_t least_frames = 16;

    /// All of a recording.
    explicit TimeWindow(std::uint64_t frames = 0) : m_frames(frames), m_shown{0, frames} {}

    /// The frames of the recording.
    std::uint64_t Frames() const { return m_frames; }
    FrameRange Shown() const { return m_shown; }
    bool ShowsAll() const { return m_shown.Length() == m_frames; }

    void ShowAll() { m_shown = {0, m_frames}; }
    /// Shows a stretch, given by its ends in either order; one that is too short grows around its middle.
    void Show(FrameRange wanted);
    /// Shows `factor` times as much as now; below 1 that is less. What lies at `part` of the width, 0 to 1, stays there
    /// as far as the recording's ends allow. Nothing happens with a factor that is no positive number.
    void Zoom(double factor, double part);
    /// Moves by a part of what is shown; forwards if it is positive.
    void Scroll(double part);
    /// Moves so far that a frame is seen, and no further.
    void Reveal(std::uint64_t frame);
    /// Likewise, with a part of what is shown, up to 0.5, between a frame that was out of sight and the edge.
    void Reveal(std::uint64_t frame, double margin);

    /// The frame shown at `x` of `width` pixels; left and right of them, the first and the last one shown.
    std::uint64_t FrameAt(int x, int width) const;
    /// Where a frame is shown, in pixels; left or right of the plot for one that is not.
    int XOf(std::uint64_t frame, int width) const;

    bool operator==(TimeWindow const &) const = default;

private:
    void Place(double first, double length);

    std::uint64_t m_frames;
    FrameRange m_shown;
};

} // namespace workbench
