// Any text in any style in any rectangle: characters side by side, as the displays paint them, and outlines of any
// shape.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "segments/DigiPaint.h"

namespace
{
using namespace DigiStatic;

constexpr std::size_t longest_text = 10000;
/// Curves of a text without end would take seconds; these are as many as a wide display has.
constexpr std::size_t most_curved = 40;

void Require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Takes values off the input; zeros behind its end.
class Input
{
public:
    Input(std::uint8_t const * data, std::size_t size) : m_data(data), m_size(size) {}

    template <class Value> Value Take()
    {
        Value value = {};
        std::size_t const used = std::min(sizeof value, m_size);
        if (used != 0)
            std::memcpy(&value, m_data, used);
        m_data += used;
        m_size -= used;
        return value;
    }
    std::size_t Left() const { return m_size; }

private:
    std::uint8_t const * m_data;
    std::size_t m_size;
};

/// Checks the order of the calls.
class OrderPainter : public CDigiCurvePainter
{
public:
    int selected = 0;
    int painted = 0;

    void Select(bool) override
    {
        Require(m_state == State::idle);
        ++selected;
    }
    void BeginOutline() override { Go(State::idle, State::begun); }
    void MoveTo(CDevicePoint) override { Go(State::begun, State::tracing); }
    void LineTo(CDevicePoint) override { Go(State::tracing, State::tracing); }
    void CurveTo(CDevicePoint, CDevicePoint, CDevicePoint) override { Go(State::tracing, State::tracing); }
    void EndOutline() override
    {
        Require(m_state == State::begun || m_state == State::tracing);
        m_state = State::ended;
    }
    void StrokeAndFill() override
    {
        Go(State::ended, State::painted);
        ++painted;
    }
    void MergeIntoRegion() override { Go(State::painted, State::idle); }

private:
    enum class State
    {
        idle,
        begun,
        tracing,
        ended,
        painted
    };
    void Go(State from, State to)
    {
        Require(m_state == from);
        m_state = to;
    }
    State m_state = State::idle;
};

class CountPainter : public CDigiPolygonPainter
{
public:
    int painted = 0;
    bool isFinite = true;

    void PaintLit(std::span<CPolygonPoint const> polygon) override { Count(polygon); }
    void PaintUnlit(std::span<CPolygonPoint const> polygon) override { Count(polygon); }

private:
    void Count(std::span<CPolygonPoint const> polygon)
    {
        ++painted;
        Require(polygon.size() <= CDigiSegment::capacity);
        for (CPolygonPoint const & point : polygon)
            isFinite = isFinite && std::isfinite(point.x) && std::isfinite(point.y);
    }
};

int PaintedSegments(CDigiChar const & character)
{
    int count = 0;
    for (int i = 0; i < character.segmentCount; ++i)
        count += character.hideOff == 0 || (character.mask & 1 << i) != 0;
    return count;
}

void Paint(CDigiChar const & character, const double (&rect)[4], bool asCurves, CBezierFitCache & cache)
{
    CountPainter polygons;
    PaintPolygons(character, rect, polygons);
    Require(polygons.painted == PaintedSegments(character));
    if (std::ranges::all_of(rect, [](double side) { return std::abs(side) < 1e30; }))
        Require(polygons.isFinite);
    if (!asCurves)
        return;
    OrderPainter curves;
    PaintCurves(character, rect, curves, cache);
    Require(curves.selected == character.segmentCount);
    Require(curves.painted == PaintedSegments(character));
}

void PaintText(Input input, CBezierFitCache & cache)
{
    auto const style = input.Take<std::uint32_t>();
    double sides[4];
    for (double & side : sides)
        side = input.Take<double>();

    std::vector<CDigiCharOwner> characters;
    std::int32_t total = 0;
    while (input.Left() != 0 && characters.size() < longest_text)
    {
        auto const code = static_cast<wchar_t>(input.Take<std::uint16_t>());
        characters.emplace_back(CreateDigiChar(code, style));
        std::int32_t const width = characters.back()->GetWidth();
        Require(width == (code == L'.' || code == L':' ? colon_cell_width : segment_cell_width));
        total += width;
    }

    double const scale = (sides[2] - sides[0]) / total;
    double left = sides[0];
    for (std::size_t i = 0; i < characters.size(); ++i)
    {
        double const right = left + scale * characters[i]->GetWidth();
        Paint(*characters[i], {left, sides[1], right, sides[3]}, i < most_curved, cache);
        left = right;
    }
}

void PaintOutline(Input input, CBezierFitCache & cache)
{
    constexpr std::uint8_t types[] = {point_move_to, point_line_to, point_bezier_run, 0};
    CDigiChar character;
    double rect[4];
    for (double & side : rect)
        side = input.Take<double>();
    character.segmentCount = 1;
    character.mask = 1;
    CDigiSegment & segment = character.segments[0];
    segment.count = input.Take<std::uint8_t>() % (CDigiSegment::capacity + 1);
    for (std::uint32_t i = 0; i < segment.count; ++i)
    {
        segment.types[i] = types[input.Take<std::uint8_t>() % std::size(types)];
        segment.points[i] = {input.Take<std::int32_t>(), input.Take<std::int32_t>()};
    }
    Paint(character, rect, true, cache);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    CBezierFitCache cache;
    PaintText(Input(data, size), cache);
    PaintOutline(Input(data, size), cache);
    return 0;
}
