#include "segments/DigiChar.h"

#include "frame/GdiplusModule.h"
#include "segments/DigiPaint.h"

namespace DigiStatic
{
namespace
{
POINT ToPoint(CDevicePoint const & point)
{
    return {point.x, point.y};
}

class ContextPainter : public CDigiCurvePainter
{
public:
    ContextPainter(CDC & dc, CPen * const (&pens)[2], CBrush * const (&brushes)[2], CRgn * region)
        : m_dc(dc),
          m_pens(pens),
          m_brushes(brushes),
          m_region(region)
    {
    }

    void Select(bool lit) override
    {
        m_dc.SelectObject(m_brushes[lit]);
        m_dc.SelectObject(m_pens[lit]);
    }
    void BeginOutline() override { m_dc.BeginPath(); }
    void MoveTo(CDevicePoint point) override { m_dc.MoveTo(ToPoint(point)); }
    void LineTo(CDevicePoint point) override { m_dc.LineTo(ToPoint(point)); }
    void CurveTo(CDevicePoint first, CDevicePoint second, CDevicePoint end) override
    {
        POINT const points[] = {ToPoint(first), ToPoint(second), ToPoint(end)};
        m_dc.PolyBezierTo(points, static_cast<int>(std::size(points)));
    }
    void EndOutline() override { m_dc.EndPath(); }
    void StrokeAndFill() override { m_dc.StrokeAndFillPath(); }
    void MergeIntoRegion() override
    {
        if (m_region == nullptr)
            return;
        HRGN const outline = ::PathToRegion(m_dc.GetSafeHdc());
        if (outline == nullptr)
            return;
        if (m_region->GetSafeHandle() == nullptr)
        {
            m_region->Attach(outline);
            return;
        }
        ::CombineRgn(*m_region, *m_region, outline, RGN_OR);
        ::DeleteObject(outline);
    }

private:
    CDC & m_dc;
    CPen * const (&m_pens)[2];
    CBrush * const (&m_brushes)[2];
    CRgn * m_region;
};

class GraphicsPainter : public CDigiPolygonPainter
{
public:
    GraphicsPainter(Gdiplus::Graphics & graphics, Gdiplus::Pen & onPen, Gdiplus::Brush & offBrush,
                    Gdiplus::Brush & onBrush)
        : m_graphics(graphics),
          m_onPen(onPen),
          m_offBrush(offBrush),
          m_onBrush(onBrush)
    {
    }

    void PaintLit(std::span<CPolygonPoint const> polygon) override
    {
        Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
        Join(polygon, path);
        m_graphics.DrawPath(&m_onPen, &path);
        m_graphics.FillPath(&m_onBrush, &path);
    }
    void PaintUnlit(std::span<CPolygonPoint const> polygon) override
    {
        Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
        Join(polygon, path);
        m_graphics.FillPath(&m_offBrush, &path);
    }

private:
    static void Join(std::span<CPolygonPoint const> polygon, Gdiplus::GraphicsPath & path)
    {
        for (std::size_t i = 1; i < polygon.size(); ++i)
            path.AddLine(polygon[i - 1].x, polygon[i - 1].y, polygon[i].x, polygon[i].y);
    }

    Gdiplus::Graphics & m_graphics;
    Gdiplus::Pen & m_onPen;
    Gdiplus::Brush & m_offBrush;
    Gdiplus::Brush & m_onBrush;
};

/// Displays paint on the user-interface thread only, so that all of them share one memory.
CBezierFitCache & FitCache()
{
    static CBezierFitCache cache;
    return cache;
}
} // namespace

void CDigiChar::DrawGdi(CDC * dc, const double rect[4], CPen * offPen, CPen * onPen, CBrush * offBrush,
                        CBrush * onBrush, CRgn * region) const
{
    CPen * const pens[] = {offPen, onPen};
    CBrush * const brushes[] = {offBrush, onBrush};
    ContextPainter painter(*dc, pens, brushes, region);
    PaintCurves(*this, rect, painter, FitCache());
}

void CDigiChar::DrawGdiPlus(Gdiplus::Graphics & graphics, const double rect[4], Gdiplus::Pen &, Gdiplus::Pen & onPen,
                            Gdiplus::Brush & offBrush, Gdiplus::Brush & onBrush) const
{
    GraphicsPainter painter(graphics, onPen, offBrush, onBrush);
    PaintPolygons(*this, rect, painter);
}
} // namespace DigiStatic
