#pragma once
// One cubic Bezier curve through a run of points: what the rounded outlines of segments are drawn with.

#include <span>

namespace DigiStatic
{
/// A point in device units, not rounded.
struct CDigiPoint
{
    double x;
    double y;
};

/// The two inner control points of a curve. Its ends are the ends of the run.
struct CBezierControls
{
    CDigiPoint first;
    CDigiPoint second;
};

/// How far the curve with these control points is from the inner points of the run: the sum of their squared distances.
/// The nearest place on the curve is looked for in a scan and a secant search, which need not find it; hosts expect
/// that the sum is not exact. Three points or more. Not finite where the points are not.
double BezierError(std::span<CDigiPoint const> points, CBezierControls const & controls);

/// The control points of the curve, found by a few line searches for a small error. Three points or more; any values
/// end, and those that are not finite give control points that need not be finite either.
CBezierControls FitBezier(std::span<CDigiPoint const> points);
} // namespace DigiStatic
