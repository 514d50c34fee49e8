#pragma once
// How a character is painted, without the surface that it is painted on. There are two forms, which differ on purpose:
// curves in whole device units, and polygons in fractions of them.

#include <cstdint>
#include <span>

#include "segments/BezierFitCache.h"
#include "segments/DigiChar.h"

namespace DigiStatic
{
/// A point in whole device units.
struct CDevicePoint
{
    std::int32_t x;
    std::int32_t y;

    bool operator==(CDevicePoint const &) const = default;
};

/// A point of a polygon, in device units.
struct CPolygonPoint
{
    float x;
    float y;

    bool operator==(CPolygonPoint const &) const = default;
};

/// What the curve form needs of a surface.
class CDigiCurvePainter
{
public:
    virtual ~CDigiCurvePainter() = default;

    /// Pen and brush of lit or unlit segments for what follows. Comes for hidden segments too.
    virtual void Select(bool lit) = 0;
    virtual void BeginOutline() = 0;
    virtual void MoveTo(CDevicePoint point) = 0;
    virtual void LineTo(CDevicePoint point) = 0;
    /// A cubic Bezier curve from where the outline is.
    virtual void CurveTo(CDevicePoint first, CDevicePoint second, CDevicePoint end) = 0;
    virtual void EndOutline() = 0;
    /// The outline is not closed for its edge, only for its area.
    virtual void StrokeAndFill() = 0;
    /// Adds the outline to the region that is gathered, if there is one. Comes behind StrokeAndFill.
    virtual void MergeIntoRegion() = 0;
};

/// What the polygon form needs of a surface. No polygon is closed for its edge.
class CDigiPolygonPainter
{
public:
    virtual ~CDigiPolygonPainter() = default;

    /// The edge in the pen of lit segments, and over it the area in their brush.
    virtual void PaintLit(std::span<CPolygonPoint const> polygon) = 0;
    /// The area in the brush of unlit segments; they have no edge.
    virtual void PaintUnlit(std::span<CPolygonPoint const> polygon) = 0;
};

/// Paints a character into rect (left, top, right, bottom in device units; any values, also negative sizes). Curves are
/// fitted by the cache.
void PaintCurves(CDigiChar const & character, const double rect[4], CDigiCurvePainter & painter,
                 CBezierFitCache & cache);
void PaintPolygons(CDigiChar const & character, const double rect[4], CDigiPolygonPainter & painter);

/// The whole number toward zero. What doesn't fit, or is no number, gives the least number, as the processor does.
std::int32_t Truncated(double value);
} // namespace DigiStatic
