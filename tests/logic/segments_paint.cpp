// What a character tells its painter: order of calls, rounding, curves and polygons.

#include <algorithm>
#include <cmath>
#include <limits>

#include "segments_Support.h"

namespace
{
using namespace segments;
using DigiStatic::Truncated;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double no_number = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
constexpr double design_cell[4] = {0, 0, 49, 83};
constexpr double narrow_cell[4] = {0, 0, 18, 83};

int CountOf(std::string const & text, std::string const & word)
{
    std::istringstream words(text);
    int count = 0;
    for (std::string next; words >> next;)
        count += next == word;
    return count;
}

/// A character of one lit segment in a wide cell.
CDigiChar OneSegment(CDigiSegment const & segment)
{
    CDigiChar character;
    character.segmentCount = 1;
    character.mask = 1;
    character.segments[0] = segment;
    return character;
}

TEST(SegmentCurves, EachSegmentIsSelectedTracedPaintedAndMerged)
{
    EXPECT_EQ(Trace(*Make(L'.'), narrow_cell), "off begin M 4 23 L 4 32 L 13 32 L 13 23 end paint region "
                                               "off begin M 4 50 L 4 59 L 13 59 L 13 50 end paint region "
                                               "on begin M 4 68 L 4 77 L 13 77 L 13 68 end paint region");
    EXPECT_EQ(Trace(*Make(L':'), narrow_cell), "on begin M 4 23 L 4 32 L 13 32 L 13 23 end paint region "
                                               "on begin M 4 50 L 4 59 L 13 59 L 13 50 end paint region "
                                               "off begin M 4 68 L 4 77 L 13 77 L 13 68 end paint region");
}

TEST(SegmentCurves, HiddenSegmentsAreSelectedAndNoMore)
{
    EXPECT_EQ(Trace(*Make(L'.', DigiStyleHideOff), narrow_cell),
              "off off on begin M 4 68 L 4 77 L 13 77 L 13 68 end paint region");
}

TEST(SegmentCurves, HiddenBlankPaintsNothingAndMergesNothing)
{
    EXPECT_EQ(Trace(*Make(L' ', DigiStyleHideOff), design_cell), "off off off off off off off");
    EXPECT_TRUE(Polygons(*Make(L' ', DigiStyleHideOff), design_cell).empty());
    EXPECT_TRUE(Polygons(*Make(L' ', DigiStyleHideOff | DigiStyleAlways14), design_cell).empty());
}

TEST(SegmentCurves, EveryBitOfTheMaskSelectsItsSegment)
{
    for (int bit = 0; bit < 14; ++bit)
    {
        DigiStatic::CDigi14Segment character;
        character.SetSegmentMask(static_cast<unsigned short>(1 << bit), 0);
        std::istringstream words(Trace(character, design_cell));
        int segment = -1;
        for (std::string word; words >> word;)
        {
            if (word != "on" && word != "off")
                continue;
            EXPECT_EQ(word == "on", ++segment == bit) << segment << " with bit " << bit;
        }
        EXPECT_EQ(segment, 13);
        std::vector<PolygonRecorder::Call> const polygons = Polygons(character, design_cell);
        ASSERT_EQ(polygons.size(), 14u);
        for (int i = 0; i < 14; ++i)
            EXPECT_EQ(polygons[static_cast<std::size_t>(i)].lit, i == bit);
    }
}

TEST(SegmentCurves, BitsWithoutASegmentDoNothing)
{
    EXPECT_EQ(CountOf(Trace(*Make(wchar_t{0xB0}), design_cell), "begin"), 7);
    EXPECT_EQ(CountOf(Trace(*Make(wchar_t{0xB0}), design_cell), "on"), 3);
    CDigiChar base;
    base.SetSegmentMask(0xFFFF, 0);
    EXPECT_EQ(Trace(base, design_cell), "");
    EXPECT_TRUE(Polygons(base, design_cell).empty());
}

TEST(SegmentCurves, CoordinatesAreMovedByAHalfAndCutTowardZero)
{
    // The dot begins at (4, 68): at scale 1, left - 6.25 + 4 + 0.5 = -1.75 and 68 - 70.5 + 0.5 = -2.
    EXPECT_NE(Trace(*Make(L'.'), {-6.25, -70.5, 11.75, 12.5}).find("on begin M -1 -2 L -1 7 L 7 7 L 7 -2"),
              std::string::npos);
    // 0.25 + 4 + 0.5 = 4.75, and 68.5 + 0.5 = 69.
    EXPECT_NE(Trace(*Make(L'.'), {0.25, 0.5, 18.25, 83.5}).find("on begin M 4 69"), std::string::npos);
}

TEST(SegmentCurves, OutlinesAreThoseWorkedOutFromTheTables)
{
    int count = 0;
    for (std::istringstream & line : ReadExpectations("traces.txt"))
    {
        CDigiCharOwner const character = ReadKind(line);
        unsigned int segment = 0;
        double rect[4] = {};
        std::string expected;
        line >> segment >> rect[0] >> rect[1] >> rect[2] >> rect[3] >> std::ws;
        ASSERT_TRUE(std::getline(line, expected)) << line.str();

        character->SetSegmentMask(static_cast<unsigned short>(1u << segment),
                                  DigiStyleHideOff | (line.str().find("rounded") != std::string::npos ? 1 : 0));
        std::string const trace = Trace(*character, rect);
        std::size_t const begin = trace.find("begin ");
        std::size_t const end = trace.find(" end");
        ASSERT_NE(begin, std::string::npos) << line.str();
        EXPECT_EQ(trace.substr(begin + 6, end - begin - 6), expected) << line.str();
        ++count;
    }
    EXPECT_EQ(count, 6 * 2 * (7 + 14 + 3));
}

TEST(SegmentCurves, RoundedStyleHasCurvesAndThePlainOneHasNone)
{
    EXPECT_EQ(CountOf(Trace(*Make(L'8'), design_cell), "C"), 0);
    EXPECT_EQ(CountOf(Trace(*Make(L'8', DigiStyleAlways14), design_cell), "C"), 0);
    EXPECT_EQ(CountOf(Trace(*Make(L'8', DigiStyleRounded), design_cell), "C"), 2 + 2 + 4);
    EXPECT_EQ(CountOf(Trace(*Make(L'A', DigiStyleRounded), design_cell), "C"), 4 + 8 + 8 + 6);
    EXPECT_EQ(Trace(*Make(L':', DigiStyleRounded), narrow_cell), Trace(*Make(L':'), narrow_cell));
}

TEST(SegmentCurves, AMoveBehindTheFirstPointIsIgnored)
{
    CDigiSegment const segment = {{{1, 2}, {3, 4}, {5, 6}, {7, 8}}, {6, 6, 2, 6}, 4};
    EXPECT_EQ(Trace(OneSegment(segment), design_cell), "on begin M 1 2 L 5 6 end paint region");
}

TEST(SegmentCurves, DiagonalsOfFourPointsDoNotReachTheEdge)
{
    // The fifth point (4, 23) and its mirror images.
    std::string const trace = Trace(*Make(L'X'), design_cell);
    EXPECT_NE(trace.find("M 5 5 L 15 35 L 20 37 L 18 25 end"), std::string::npos) << trace;
    for (char const * point : {" 4 23 ", " 44 23 ", " 4 59 ", " 44 59 "})
        EXPECT_EQ(trace.find(point), std::string::npos) << point;
}

TEST(SegmentCurves, FirstPointIsTheMoveWhateverItsType)
{
    CDigiSegment const segment = {{{1, 2}, {3, 4}}, {2, 2}, 2};
    EXPECT_EQ(Trace(OneSegment(segment), design_cell), "on begin M 1 2 L 3 4 end paint region");
}

TEST(SegmentCurves, PointThatEndsARunDrawsNoLine)
{
    // All points at one place: the curve is there too.
    CDigiSegment const segment = {{{9, 9}, {9, 9}, {9, 9}, {20, 30}}, {6, 4, 2, 2}, 4};
    EXPECT_EQ(Trace(OneSegment(segment), design_cell), "on begin M 9 9 C 9 9 9 9 9 9 L 20 30 end paint region");
}

TEST(SegmentCurves, RunThatNothingEndsIsLeftOut)
{
    CDigiSegment const segment = {{{1, 2}, {3, 4}, {5, 6}, {7, 8}}, {6, 2, 4, 4}, 4};
    EXPECT_EQ(Trace(OneSegment(segment), design_cell), "on begin M 1 2 L 3 4 end paint region");
}

TEST(SegmentCurves, RunMayTakeAllOfAnOutline)
{
    CDigiSegment segment;
    segment.count = CDigiSegment::capacity;
    for (std::uint32_t i = 0; i < segment.count; ++i)
    {
        segment.points[i] = {static_cast<std::int32_t>(i), 5};
        segment.types[i] = i == 0 ? 6 : i + 1 == segment.count ? 2 : 4;
    }
    std::string const trace = Trace(OneSegment(segment), design_cell);
    EXPECT_EQ(CountOf(trace, "C"), 1);
    EXPECT_EQ(CountOf(trace, "L"), 0);
    EXPECT_TRUE(trace.ends_with(" 16 5 end paint region")) << trace;
}

TEST(SegmentCurves, KeptCurvesPaintTheSamePoints)
{
    CBezierFitCache cache;
    for (int round = 0; round < 3; ++round)
    {
        for (double const size : {0.3, 1.0, 2.7})
        {
            for (wchar_t const code : {L'8', L'A', L'Z', L':'})
            {
                CDigiCharOwner const character = Make(code, DigiStyleRounded);
                double const rect[4] = {size, 10, size + size * character->GetWidth(), 10 + 77 * size};
                TracePainter painter;
                DigiStatic::PaintCurves(*character, rect, painter, cache);
                EXPECT_EQ(painter.calls, Trace(*character, rect));
            }
        }
    }
    EXPECT_EQ(cache.Count(), 3u * (8 + 26));
}

TEST(SegmentCurves, EmptyAndNegativeRectanglesAreCellsToo)
{
    EXPECT_EQ(Trace(*Make(L'.', DigiStyleHideOff), {7, 8, 7, 8}),
              "off off on begin M 7 8 L 7 8 L 7 8 L 7 8 end paint region");
    EXPECT_EQ(Trace(*Make(L'.', DigiStyleHideOff), {18, 83, 0, 0}),
              "off off on begin M 14 15 L 14 6 L 5 6 L 5 15 end paint region");
}

TEST(SegmentCurves, CoordinatesOutOfRangeBecomeTheLeastNumber)
{
    std::string const number = std::to_string(least);
    EXPECT_EQ(Trace(*Make(L'.', DigiStyleHideOff), {0, 0, infinity, no_number}),
              "off off on begin M " + number + " " + number + " L " + number + " " + number + " L " + number + " " +
                  number + " L " + number + " " + number + " end paint region");
    EXPECT_EQ(CountOf(Trace(*Make(L'A', DigiStyleRounded), {0, 0, infinity, infinity}), "C"), 26);
    EXPECT_EQ(CountOf(Trace(*Make(L'A', DigiStyleRounded), {no_number, 0, 49, 83}), "C"), 26);
}

TEST(SegmentCurves, TruncationIsTheProcessors)
{
    EXPECT_EQ(Truncated(0.0), 0);
    EXPECT_EQ(Truncated(1.99), 1);
    EXPECT_EQ(Truncated(-1.99), -1);
    EXPECT_EQ(Truncated(-0.99), 0);
    EXPECT_EQ(Truncated(2147483647.0), 2147483647);
    EXPECT_EQ(Truncated(2147483647.99), 2147483647);
    EXPECT_EQ(Truncated(2147483648.0), least);
    EXPECT_EQ(Truncated(-2147483648.0), least);
    EXPECT_EQ(Truncated(-2147483648.99), least);
    EXPECT_EQ(Truncated(-2147483647.99), least + 1);
    EXPECT_EQ(Truncated(-2147483649.0), least);
    EXPECT_EQ(Truncated(1e300), least);
    EXPECT_EQ(Truncated(-1e300), least);
    EXPECT_EQ(Truncated(infinity), least);
    EXPECT_EQ(Truncated(-infinity), least);
    EXPECT_EQ(Truncated(no_number), least);
}

TEST(SegmentPolygons, AllPointsAreJoinedWhateverTheirType)
{
    for (unsigned long const style : {0ul, DigiStyleRounded})
    {
        CDigiCharOwner const character = Make(L'K', style);
        std::vector<PolygonRecorder::Call> const polygons =
            Polygons(*character, {10, 20, 10 + 49 / 2.0, 20 + 83 * 1.5});
        ASSERT_EQ(polygons.size(), 14u);
        for (std::size_t i = 0; i < polygons.size(); ++i)
        {
            CDigiSegment const & segment = character->segments[i];
            ASSERT_EQ(polygons[i].polygon.size(), segment.count) << i;
            for (std::size_t k = 0; k < segment.count; ++k)
            {
                EXPECT_EQ(polygons[i].polygon[k].x, 10 + 0.5f * static_cast<float>(segment.points[k].x));
                EXPECT_EQ(polygons[i].polygon[k].y, 20 + 1.5f * static_cast<float>(segment.points[k].y));
            }
        }
    }
}

TEST(SegmentPolygons, CoordinatesAreNotRounded)
{
    std::vector<PolygonRecorder::Call> const polygons =
        Polygons(*Make(L'.', DigiStyleHideOff), {0.1, 0.2, 0.1 + 18 * 0.3, 0.2 + 83 * 0.7});
    ASSERT_EQ(polygons.size(), 1u);
    EXPECT_TRUE(polygons[0].lit);
    ASSERT_EQ(polygons[0].polygon.size(), 4u);
    EXPECT_FLOAT_EQ(polygons[0].polygon[0].x, 1.3f);
    EXPECT_FLOAT_EQ(polygons[0].polygon[0].y, 47.8f);
    EXPECT_FLOAT_EQ(polygons[0].polygon[2].x, 4.0f);
    EXPECT_FLOAT_EQ(polygons[0].polygon[2].y, 54.1f);
}

TEST(SegmentPolygons, DiagonalsRunToTheEdge)
{
    std::vector<PolygonRecorder::Call> const polygons = Polygons(*Make(L'X'), design_cell);
    ASSERT_EQ(polygons.size(), 14u);
    CPolygonPoint const spikes[] = {{4, 23}, {44, 23}, {4, 59}, {44, 59}};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(polygons[i + 1].polygon.back(), spikes[i]) << i;
}

TEST(SegmentPolygons, UnlitSegmentsAreToldApartAndHiddenOnesLeftOut)
{
    std::vector<PolygonRecorder::Call> const all = Polygons(*Make(L'1'), design_cell);
    ASSERT_EQ(all.size(), 7u);
    for (std::size_t i = 0; i < all.size(); ++i)
        EXPECT_EQ(all[i].lit, i == 2 || i == 5) << i;
    std::vector<PolygonRecorder::Call> const lit = Polygons(*Make(L'1', DigiStyleHideOff), design_cell);
    ASSERT_EQ(lit.size(), 2u);
    EXPECT_EQ(lit[0].polygon, all[2].polygon);
    EXPECT_EQ(lit[1].polygon, all[5].polygon);
    EXPECT_TRUE(lit[0].lit && lit[1].lit);
}

TEST(SegmentPolygons, CellsThatAreNotFiniteGivePointsThatAreNot)
{
    std::vector<PolygonRecorder::Call> const polygons =
        Polygons(*Make(L'.', DigiStyleHideOff), {0, 0, 1e300, infinity});
    ASSERT_EQ(polygons.size(), 1u);
    for (CPolygonPoint const & point : polygons[0].polygon)
    {
        EXPECT_TRUE(std::isinf(point.x));
        EXPECT_TRUE(std::isinf(point.y));
    }
}

TEST(SegmentPolygons, CopyWithoutOutlinesGivesEmptyPolygons)
{
    CDigiChar const copy(*Make(L':', DigiStyleHideOff));
    std::vector<PolygonRecorder::Call> const polygons = Polygons(copy, narrow_cell);
    ASSERT_EQ(polygons.size(), 2u);
    EXPECT_TRUE(polygons[0].polygon.empty());
}
} // namespace
