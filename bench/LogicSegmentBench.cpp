// A line of segment characters painted on a surface that does nothing: with the curves kept from the paint before, and
// with every curve fitted anew.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <vector>

#include "LogicBench.h"
#include "Measure.h"
#include "segments/DigiPaint.h"

namespace
{
using namespace DigiStatic;

constexpr wchar_t text[] = L"12.5:ABC-XYZ0";
constexpr double height = 80;
constexpr double width = 400;

class NothingPainter : public CDigiCurvePainter
{
public:
    void Select(bool lit) override { benchmark::DoNotOptimize(lit); }
    void BeginOutline() override {}
    void MoveTo(CDevicePoint point) override { benchmark::DoNotOptimize(point); }
    void LineTo(CDevicePoint point) override { benchmark::DoNotOptimize(point); }
    void CurveTo(CDevicePoint first, CDevicePoint second, CDevicePoint end) override
    {
        benchmark::DoNotOptimize(first);
        benchmark::DoNotOptimize(second);
        benchmark::DoNotOptimize(end);
    }
    void EndOutline() override {}
    void StrokeAndFill() override {}
    void MergeIntoRegion() override {}
};

struct Line
{
    std::vector<CDigiCharOwner> characters;
    std::int32_t total = 0;

    Line()
    {
        for (wchar_t const * code = text; *code != 0; ++code)
        {
            characters.emplace_back(CreateDigiChar(*code, DigiStyleRounded | DigiStyleAlways14));
            total += characters.back()->GetWidth();
        }
    }
    void Paint(CBezierFitCache & cache) const
    {
        NothingPainter painter;
        double const scale = width / total;
        double left = 0;
        for (CDigiCharOwner const & character : characters)
        {
            double const right = left + scale * character->GetWidth();
            double const rect[] = {left, 0, right, height};
            PaintCurves(*character, rect, painter, cache);
            left = right;
        }
    }
};
} // namespace

bool bench::PaintingSegments()
{
    Line const line;
    CBezierFitCache kept;
    Rounds rounds;
    rounds.spread = 0.05; // far from the goal
    Comparison const compared = Compare(Repeating([&] { line.Paint(kept); }), Repeating([&] {
                                            CBezierFitCache cache;
                                            line.Paint(cache);
                                        }),
                                        rounds);
    char name[160];
    std::snprintf(name, sizeof name,
                  "outlines of a rounded line with kept curves (%.0f paints a second) beside fitting anew (%.0f)",
                  1e9 / compared.ours, 1e9 / compared.reference);
    return Report(name, compared, 1, 0.05);
}
