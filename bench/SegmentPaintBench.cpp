// Painting a line of segment characters beside the same calls with their points worked out before, so that what is more
// than 1 is the toolkit's own share.

#include <array>
#include <cstdio>
#include <span>
#include <string>
#include <vector>

#include "ControlBench.h"
#include "frame/GdiplusModule.h"
#include "Measure.h"
#include "segments/DigiPaint.h"

namespace
{
using namespace DigiStatic;
using bench::Compare;
using bench::Comparison;
using bench::Nanoseconds;

constexpr wchar_t text[] = L"123456ABCXYZ";
constexpr int width = 400;
constexpr int height = 80;

struct Tools
{
    CPen offPen{PS_SOLID, 1, RGB(0, 60, 0)};
    CPen onPen{PS_SOLID, 1, RGB(0, 200, 0)};
    CBrush offBrush{RGB(0, 80, 0)};
    CBrush onBrush{RGB(0, 255, 0)};
};

/// Keeps the calls of a paint, and makes them again on a device context.
class Recording : public CDigiCurvePainter
{
public:
    void Select(bool lit) override { m_calls.push_back({lit ? Kind::select_on : Kind::select_off, {}}); }
    void BeginOutline() override { m_calls.push_back({Kind::begin, {}}); }
    void MoveTo(CDevicePoint point) override { m_calls.push_back({Kind::move, {ToPoint(point)}}); }
    void LineTo(CDevicePoint point) override { m_calls.push_back({Kind::line, {ToPoint(point)}}); }
    void CurveTo(CDevicePoint first, CDevicePoint second, CDevicePoint end) override
    {
        m_calls.push_back({Kind::curve, {ToPoint(first), ToPoint(second), ToPoint(end)}});
    }
    void EndOutline() override { m_calls.push_back({Kind::end, {}}); }
    void StrokeAndFill() override { m_calls.push_back({Kind::paint, {}}); }
    void MergeIntoRegion() override {}

    void Play(CDC & dc, Tools & tools) const
    {
        for (Call const & call : m_calls)
        {
            switch (call.kind)
            {
            case Kind::select_off:
            case Kind::select_on:
                dc.SelectObject(call.kind == Kind::select_on ? &tools.onBrush : &tools.offBrush);
                dc.SelectObject(call.kind == Kind::select_on ? &tools.onPen : &tools.offPen);
                break;
            case Kind::begin:
                dc.BeginPath();
                break;
            case Kind::move:
                dc.MoveTo(call.points[0]);
                break;
            case Kind::line:
                dc.LineTo(call.points[0]);
                break;
            case Kind::curve:
                dc.PolyBezierTo(call.points.data(), static_cast<int>(call.points.size()));
                break;
            case Kind::end:
                dc.EndPath();
                break;
            case Kind::paint:
                dc.StrokeAndFillPath();
                break;
            }
        }
    }

private:
    enum class Kind
    {
        select_off,
        select_on,
        begin,
        move,
        line,
        curve,
        end,
        paint
    };
    struct Call
    {
        Kind kind;
        std::array<POINT, 3> points;
    };
    static POINT ToPoint(CDevicePoint const & point) { return {point.x, point.y}; }

    std::vector<Call> m_calls;
};

class Line
{
public:
    explicit Line(unsigned long style)
    {
        for (wchar_t const * code = text; *code != 0; ++code)
        {
            m_characters.emplace_back(CreateDigiChar(*code, style));
            m_total += m_characters.back()->GetWidth();
        }
    }
    /// Calls draw(character, rect) for each character of the line that begins at left.
    template <class Draw> void ForEach(double left, Draw const & draw) const
    {
        double const scale = static_cast<double>(width) / m_total;
        for (CDigiCharOwner const & character : m_characters)
        {
            double const right = left + scale * character->GetWidth();
            double const rect[] = {left, 0, right, height};
            draw(*character, rect);
            left = right;
        }
    }

private:
    std::vector<CDigiCharOwner> m_characters;
    int m_total = 0;
};

bool PaintLine(char const * form, unsigned long style)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CClientDC screen(nullptr);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, width, height);
    dc.SelectObject(&bitmap);
    Tools tools;
    int const state = dc.SaveDC();

    Line const line(style);
    Recording recording;
    CBezierFitCache cache;
    line.ForEach(0, [&](CDigiChar const & character, const double(&rect)[4]) {
        PaintCurves(character, rect, recording, cache);
    });
    auto const paintAt = [&](double left) {
        line.ForEach(left, [&](CDigiChar const & character, const double(&rect)[4]) {
            character.DrawGdi(&dc, rect, &tools.offPen, &tools.onPen, &tools.offBrush, &tools.onBrush, nullptr);
        });
        ::GdiFlush();
    };

    auto const paintPlain = [&] {
        recording.Play(dc, tools);
        ::GdiFlush();
    };
    std::vector<double> anew;
    for (int round = 0; round < 50; ++round)
    {
        // A place that is another one for the kept curves, and the same pixels.
        anew.push_back(Nanoseconds([&] { paintAt((round + 1) * 1e-9); }));
    }
    Comparison const compared = Compare([&] { paintAt(0); }, paintPlain);
    dc.RestoreDC(state);

    char name[160];
    std::snprintf(name, sizeof name,
                  "painting 12 %s characters at 400 x 80 (%.0f paints a second, %.0f at a new place) beside GDI alone",
                  form, 1e9 / compared.ours, 1e9 / bench::Median(anew));
    return bench::Report(name, compared, 1, 1.10);
}

/// Keeps the polygons of a paint.
class PolygonRecording : public CDigiPolygonPainter
{
public:
    struct Polygon
    {
        bool lit;
        std::vector<CPolygonPoint> points;
    };
    std::vector<Polygon> polygons;

    void PaintLit(std::span<CPolygonPoint const> polygon) override
    {
        polygons.push_back({true, {polygon.begin(), polygon.end()}});
    }
    void PaintUnlit(std::span<CPolygonPoint const> polygon) override
    {
        polygons.push_back({false, {polygon.begin(), polygon.end()}});
    }
};

bool PaintLineWithGdiplus()
{
    Gdiplus::Bitmap bitmap(width, height, PixelFormat32bppRGB);
    Gdiplus::Graphics graphics(&bitmap);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::Pen offPen(Gdiplus::Color(0, 60, 0));
    Gdiplus::Pen onPen(Gdiplus::Color(0, 200, 0));
    Gdiplus::SolidBrush offBrush(Gdiplus::Color(0, 80, 0));
    Gdiplus::SolidBrush onBrush(Gdiplus::Color(0, 255, 0));

    Line const line(0);
    PolygonRecording recording;
    line.ForEach(
        0, [&](CDigiChar const & character, const double(&rect)[4]) { PaintPolygons(character, rect, recording); });
    Comparison const compared = Compare(
        [&] {
            line.ForEach(0, [&](CDigiChar const & character, const double(&rect)[4]) {
                character.DrawGdiPlus(graphics, rect, offPen, onPen, offBrush, onBrush);
            });
        },
        [&] {
            for (PolygonRecording::Polygon const & polygon : recording.polygons)
            {
                Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
                for (std::size_t i = 1; i < polygon.points.size(); ++i)
                {
                    path.AddLine(polygon.points[i - 1].x, polygon.points[i - 1].y, polygon.points[i].x,
                                 polygon.points[i].y);
                }
                if (polygon.lit)
                    graphics.DrawPath(&onPen, &path);
                graphics.FillPath(polygon.lit ? &onBrush : &offBrush, &path);
            }
        });
    return bench::Report("painting 12 characters at 400 x 80 with Gdiplus beside the same calls by hand", compared, 1,
                         1.10);
}
} // namespace

bool bench::PaintingSegmentCharacters()
{
    // Started as a program does that paints with Gdiplus.
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput const input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        return false;
    bool const gdiplusMet = PaintLineWithGdiplus();
    Gdiplus::GdiplusShutdown(token);
    bool met = PaintLine("sharp 7- and 14-segment", 0);
    met = PaintLine("sharp 14-segment", DigiStyleAlways14) && met;
    met = PaintLine("rounded 7- and 14-segment", DigiStyleRounded) && met;
    return PaintLine("rounded 14-segment", DigiStyleRounded | DigiStyleAlways14) && met && gdiplusMet;
}
