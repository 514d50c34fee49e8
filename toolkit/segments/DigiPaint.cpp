#include "segments/DigiPaint.h"

#include <array>
#include <limits>

namespace DigiStatic
{
namespace
{
// A double that is too large for a float becomes infinite, which is defined for this format.
static_assert(std::numeric_limits<float>::is_iec559);

constexpr double to_nearest = 0.5;

/// From the design grid to the device.
struct Scaling
{
    double left;
    double top;
    double x;
    double y;

    Scaling(CDigiChar const & character, const double rect[4])
        : left(rect[0]),
          top(rect[1]),
          x((rect[2] - rect[0]) / character.width),
          y((rect[3] - rect[1]) / cell_height)
    {
    }

    CDigiPoint Exact(CDigiGridPoint const & point) const { return {left + x * point.x, top + y * point.y}; }
};

CDevicePoint Rounded(CDigiPoint const & point)
{
    return {Truncated(point.x + to_nearest), Truncated(point.y + to_nearest)};
}

/// The number of entries from `begin` on that belong to one run of a curve.
std::uint32_t RunLength(CDigiSegment const & segment, std::uint32_t begin)
{
    std::uint32_t end = begin;
    while (end < segment.count && segment.types[end] == point_bezier_run)
        ++end;
    return end - begin;
}

/// The curve of the run from `begin` on, from the point in front of it to the one behind it.
void TraceRun(CDigiSegment const & segment, std::uint32_t begin, std::uint32_t length, Scaling const & scaling,
              CDigiCurvePainter & painter, CBezierFitCache & cache)
{
    std::array<CDigiPoint, CDigiSegment::capacity> points;
    std::size_t const count = length + 2;
    for (std::size_t i = 0; i < count; ++i)
        points[i] = scaling.Exact(segment.points[begin - 1 + i]);
    CBezierControls const controls = cache.Fit(std::span(points).first(count));
    painter.CurveTo(Rounded(controls.first), Rounded(controls.second), Rounded(points[count - 1]));
}

void TraceOutline(CDigiSegment const & segment, Scaling const & scaling, CDigiCurvePainter & painter,
                  CBezierFitCache & cache)
{
    if (segment.count == 0)
        return;
    painter.MoveTo(Rounded(scaling.Exact(segment.points[0])));
    for (std::uint32_t i = 1; i < segment.count; ++i)
    {
        if (segment.types[i] == point_line_to)
        {
            painter.LineTo(Rounded(scaling.Exact(segment.points[i])));
        }
        else if (segment.types[i] == point_bezier_run)
        {
            std::uint32_t const length = RunLength(segment, i);
            if (i + length == segment.count)
                return; // nothing ends the run
            TraceRun(segment, i, length, scaling, painter, cache);
            i += length;
        }
    }
}

/// Calls paint(segment, lit) for each segment in order.
template <class Paint> void ForEachSegment(CDigiChar const & character, Paint const & paint)
{
    for (std::int32_t i = 0; i < character.segmentCount; ++i)
        paint(character.segments[i], (character.mask >> i & 1) != 0);
}
} // namespace

std::int32_t Truncated(double value)
{
    constexpr double below = std::numeric_limits<std::int32_t>::min() - 1.0;
    constexpr double above = std::numeric_limits<std::int32_t>::max() + 1.0;
    return value > below && value < above ? static_cast<std::int32_t>(value) : std::numeric_limits<std::int32_t>::min();
}

void PaintCurves(CDigiChar const & character, const double rect[4], CDigiCurvePainter & painter,
                 CBezierFitCache & cache)
{
    Scaling const scaling(character, rect);
    ForEachSegment(character, [&](CDigiSegment const & segment, bool lit) {
        painter.Select(lit);
        if (!lit && character.hideOff != 0)
            return;
        painter.BeginOutline();
        TraceOutline(segment, scaling, painter, cache);
        painter.EndOutline();
        painter.StrokeAndFill();
        painter.MergeIntoRegion();
    });
}

void PaintPolygons(CDigiChar const & character, const double rect[4], CDigiPolygonPainter & painter)
{
    Scaling const scaling(character, rect);
    ForEachSegment(character, [&](CDigiSegment const & segment, bool lit) {
        if (!lit && character.hideOff != 0)
            return;
        std::array<CPolygonPoint, CDigiSegment::capacity> points;
        for (std::uint32_t i = 0; i < segment.count; ++i)
        {
            CDigiPoint const point = scaling.Exact(segment.points[i]);
            points[i] = {static_cast<float>(point.x), static_cast<float>(point.y)};
        }
        std::span<CPolygonPoint const> const polygon(points.data(), segment.count);
        if (lit)
            painter.PaintLit(polygon);
        else
            painter.PaintUnlit(polygon);
    });
}
} // namespace DigiStatic
