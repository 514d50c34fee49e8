#pragma once
// What the tests of the segment characters share: characters that delete themselves, a painter that writes down what it
// is told, and the expectations kept in data/segments.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "segments/DigiPaint.h"

namespace segments
{
using DigiStatic::CBezierFitCache;
using DigiStatic::CDevicePoint;
using DigiStatic::CDigiChar;
using DigiStatic::CDigiCharOwner;
using DigiStatic::CDigiSegment;
using DigiStatic::CPolygonPoint;

inline CDigiCharOwner Make(wchar_t character, unsigned long style = 0)
{
    return CDigiCharOwner(DigiStatic::CreateDigiChar(character, style));
}

/// Writes each call as a word: on off begin M x y L x y C x y x y x y end paint region.
class TracePainter : public DigiStatic::CDigiCurvePainter
{
public:
    std::string calls;

    void Select(bool lit) override { Add(lit ? "on" : "off"); }
    void BeginOutline() override { Add("begin"); }
    void MoveTo(CDevicePoint point) override { Add("M", {point}); }
    void LineTo(CDevicePoint point) override { Add("L", {point}); }
    void CurveTo(CDevicePoint first, CDevicePoint second, CDevicePoint end) override { Add("C", {first, second, end}); }
    void EndOutline() override { Add("end"); }
    void StrokeAndFill() override { Add("paint"); }
    void MergeIntoRegion() override { Add("region"); }

private:
    void Add(char const * word, std::vector<CDevicePoint> const & points = {})
    {
        if (!calls.empty())
            calls += ' ';
        calls += word;
        for (CDevicePoint const & point : points)
            calls += ' ' + std::to_string(point.x) + ' ' + std::to_string(point.y);
    }
};

class PolygonRecorder : public DigiStatic::CDigiPolygonPainter
{
public:
    struct Call
    {
        bool lit;
        std::vector<CPolygonPoint> polygon;
    };
    std::vector<Call> calls;

    void PaintLit(std::span<CPolygonPoint const> polygon) override
    {
        calls.push_back({true, {polygon.begin(), polygon.end()}});
    }
    void PaintUnlit(std::span<CPolygonPoint const> polygon) override
    {
        calls.push_back({false, {polygon.begin(), polygon.end()}});
    }
};

inline std::string Trace(CDigiChar const & character, const double (&rect)[4])
{
    TracePainter painter;
    CBezierFitCache cache;
    DigiStatic::PaintCurves(character, rect, painter, cache);
    return painter.calls;
}

inline std::vector<PolygonRecorder::Call> Polygons(CDigiChar const & character, const double (&rect)[4])
{
    PolygonRecorder painter;
    DigiStatic::PaintPolygons(character, rect, painter);
    return painter.calls;
}

/// The lines of data/segments/<name> without comments, each as a stream.
inline std::vector<std::istringstream> ReadExpectations(char const * name)
{
    std::ifstream file(std::string(TEST_DATA_DIR) + "/segments/" + name);
    EXPECT_TRUE(file) << name;
    std::vector<std::istringstream> lines;
    for (std::string line; std::getline(file, line);)
    {
        if (!line.empty() && line[0] != '#')
            lines.emplace_back(line);
    }
    EXPECT_FALSE(lines.empty()) << name;
    return lines;
}

/// The character that a line of expectations begins with ("seven rounded"), with all segments lit.
inline CDigiCharOwner ReadKind(std::istringstream & line)
{
    std::string kind;
    std::string form;
    line >> kind >> form;
    unsigned long const style = form == "rounded" ? DigiStyleRounded : 0;
    CDigiCharOwner character = kind == "seven"      ? Make(L'8', style)
                               : kind == "fourteen" ? Make(L'A', style)
                                                    : Make(L'.', style);
    EXPECT_EQ(character->segmentCount, kind == "seven" ? 7 : kind == "fourteen" ? 14 : 3);
    return character;
}
} // namespace segments
