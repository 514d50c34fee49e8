// The curve through a run of points, and the memory of fitted curves.

#include <cmath>
#include <limits>

#include "segments_Support.h"

namespace
{
using namespace segments;
using DigiStatic::BezierError;
using DigiStatic::CBezierControls;
using DigiStatic::CDigiPoint;
using DigiStatic::FitBezier;

using Points = std::vector<CDigiPoint>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double no_number = std::numeric_limits<double>::quiet_NaN();

/// A straight curve from (0,0) to (3,0) that runs evenly: at t it is at x = 1.5 (1 + t).
constexpr CBezierControls straight = {{1, 0}, {2, 0}};

double ErrorOfStraight(Points const & inner)
{
    Points run = {{0, 0}};
    run.insert(run.end(), inner.begin(), inner.end());
    run.push_back({3, 0});
    return BezierError(run, straight);
}

void ExpectSame(CBezierControls const & a, CBezierControls const & b)
{
    EXPECT_EQ(a.first.x, b.first.x);
    EXPECT_EQ(a.first.y, b.first.y);
    EXPECT_EQ(a.second.x, b.second.x);
    EXPECT_EQ(a.second.y, b.second.y);
}

TEST(SegmentFit, ErrorOfAPointBesideTheCurveIsItsSquaredDistance)
{
    EXPECT_NEAR(ErrorOfStraight({{1.5, 2}}), 4, 1e-12);
    EXPECT_NEAR(ErrorOfStraight({{1.3, -3}}), 9, 1e-12);
}

TEST(SegmentFit, ErrorOfAPointOnTheCurveIsNothing)
{
    EXPECT_EQ(ErrorOfStraight({{0, 0}}), 0);
    EXPECT_NEAR(ErrorOfStraight({{2.1, 0}}), 0, 1e-12);
}

TEST(SegmentFit, ErrorOfAPointBeyondAnEndIsMeasuredFromThatEnd)
{
    EXPECT_EQ(ErrorOfStraight({{5, 0}}), 4);
    EXPECT_EQ(ErrorOfStraight({{4, 0}}), 1);
    EXPECT_EQ(ErrorOfStraight({{-2, 1}}), 5);
    EXPECT_EQ(ErrorOfStraight({{-1, 0}}), 1);
}

TEST(SegmentFit, ErrorsOfAllInnerPointsAreAdded)
{
    EXPECT_NEAR(ErrorOfStraight({{1, 1}, {1.5, 2}, {2, 3}}), 14, 1e-9);
}

TEST(SegmentFit, ExactHitEndsTheSearchOfItsPointAlone)
{
    Points const run = {{0, 0}, {0, 0}, {0.5, 2}, {1, 0}};
    EXPECT_NEAR(BezierError(run, {{1.0 / 3, 0}, {2.0 / 3, 0}}), 4, 1e-12);
}

// The numbers of the next three are those of curve_error in data/segments/make_expectations.py.

TEST(SegmentFit, OfPlacesEquallyNearTheFirstIsTaken)
{
    // The search goes on from there, and may end at a farther place for that.
    EXPECT_NEAR(BezierError(Points{{0, 0}, {0, 0}, {1, 0}, {0, 0}}, {{-6, -3}, {4, -5}}), 1, 1e-9);
    EXPECT_NEAR(BezierError(Points{{0, 0}, {0, 0}, {4, -3}, {7, 1}}, {{0, 8}, {8, 8}}), 25, 1e-9);
    EXPECT_NEAR(BezierError(Points{{0, 0}, {0, 0}, {5, -4}, {0, -8}}, {{-4, -7}, {-7, -3}}), 40.2483321333217, 1e-9);
}

TEST(SegmentFit, PlacesAreLookedAtUpToTheEndAndNotBeyond)
{
    EXPECT_NEAR(BezierError(Points{{0, 0}, {0, 0}, {-6, -1}, {0, 2}}, {{6, -6}, {5, 7}}), 37, 1e-9);
    EXPECT_NEAR(BezierError(Points{{0, 0}, {0, 0}, {1, 6}, {-2, -3}}, {{0, 4}, {-8, -8}}), 28.6597376397437, 1e-9);
    EXPECT_NEAR(BezierError(Points{{0, 0}, {0, 0}, {6, 4}, {2, 4}}, {{-4, -8}, {-7, -5}}), 16, 1e-9);
    EXPECT_NEAR(BezierError(Points{{0, 0}, {0, 0}, {-2, 2}, {0, 1}}, {{2, -2}, {5, -7}}), 5, 1e-9);
}

TEST(SegmentFit, SearchEndsWhereItHardlyMoves)
{
    EXPECT_NEAR(BezierError(Points{{0, 0}, {0, 0}, {-5, 5}, {-3, 7}}, {{6, 5}, {-8, -1}}), 0.998326621778948, 1e-9);
    EXPECT_NEAR(BezierError(Points{{0, 0}, {0, 0}, {3, -5}, {8, -1}}, {{4, 0}, {-2, -4}}), 8.32726483557259, 1e-9);
}

TEST(SegmentFit, CurveAndErrorHaveTheEndsOfTheRun)
{
    // With controls on the ends the curve is the straight line between them, whatever its pace.
    Points const run = {{10, 10}, {20, 22}, {30, 30}};
    EXPECT_NEAR(BezierError(run, {{10, 10}, {30, 30}}), 2, 1e-6);
}

TEST(SegmentFit, ControlPointsAreThoseWorkedOutInDecimals)
{
    int count = 0;
    for (std::istringstream & line : ReadExpectations("fits.txt"))
    {
        CDigiCharOwner const character = ReadKind(line);
        int segment = 0;
        double rect[4] = {};
        std::size_t first = 0;
        std::size_t length = 0;
        CBezierControls expected = {};
        line >> segment >> rect[0] >> rect[1] >> rect[2] >> rect[3] >> first >> length >> expected.first.x >>
            expected.first.y >> expected.second.x >> expected.second.y;
        ASSERT_TRUE(line) << line.str();

        Points run;
        for (std::size_t i = first - 1; i <= first + length; ++i)
        {
            DigiStatic::CDigiGridPoint const & point = character->segments[segment].points[i];
            run.push_back({rect[0] + (rect[2] - rect[0]) / 49 * point.x, rect[1] + (rect[3] - rect[1]) / 83 * point.y});
        }
        CBezierControls const actual = FitBezier(run);
        constexpr double tolerance = 1e-8;
        EXPECT_NEAR(actual.first.x, expected.first.x, tolerance) << line.str();
        EXPECT_NEAR(actual.first.y, expected.first.y, tolerance) << line.str();
        EXPECT_NEAR(actual.second.x, expected.second.x, tolerance) << line.str();
        EXPECT_NEAR(actual.second.y, expected.second.y, tolerance) << line.str();
        ++count;
    }
    // Runs of all rounded segments, in six cells each.
    EXPECT_EQ(count, 6 * (2 * 1 + 2 * 1 + 2 * 2 + 2 * 2 + 4 * 2 + 4 * 2 + 2 * 3));
}

// In a cell of 53 x 30 the upper left edge of the bottom bar has a search that never ends by itself.
TEST(SegmentFit, SearchThatRunsInACircleEnds)
{
    CDigiCharOwner const character = Make(L'8', DigiStyleRounded | DigiStyleAlways14);
    std::string const trace = Trace(*character, {454, 959, 507, 989});
    EXPECT_NE(trace.find("M 463 987 C "), std::string::npos) << trace;
}

TEST(SegmentFit, PointsAllAtOnePlaceGiveThatPlace)
{
    ExpectSame(FitBezier(Points(5, CDigiPoint{7, -3})), {{7, -3}, {7, -3}});
}

// No error is smaller than another then, so that each search ends at its first step: twice the way from the anchor,
// made longer by half in each of the two passes.
TEST(SegmentFit, SearchesEndAtOnceWhereNoErrorIsFinite)
{
    for (double const bad : {infinity, -infinity, no_number, 1e300, -1e308})
    {
        for (std::size_t at = 0; at < 5; ++at)
        {
            Points run = {{1, 1}, {2, 3}, {4, 4}, {5, 3}, {6, 1}};
            run[at].x = bad;
            CBezierControls const controls = FitBezier(run);
            EXPECT_EQ(controls.first.y, 1 + 2 * 2 * 1.5 * 1.5) << bad << " at " << at;
            EXPECT_EQ(controls.second.y, 1 + 2 * 2 * 1.5 * 1.5) << bad << " at " << at;
        }
    }
}

TEST(SegmentFitCache, CurvesAreTheSameAsWithout)
{
    CBezierFitCache cache;
    Points const run = {{1, 1}, {2, 3.5}, {4, 4}, {5, 3}, {6.25, 1}};
    CBezierControls const fitted = FitBezier(run);
    ExpectSame(cache.Fit(run), fitted);
    EXPECT_EQ(cache.Count(), 1u);
    ExpectSame(cache.Fit(run), fitted);
    EXPECT_EQ(cache.Count(), 1u);
}

TEST(SegmentFitCache, RunsThatDifferInOneBitAreTwo)
{
    Points const run = {{1, 1}, {2, 3.5}, {4, 4}, {5, 3}, {6.25, 1}};
    for (std::size_t i = 0; i < 2 * run.size(); ++i)
    {
        CBezierFitCache cache;
        cache.Fit(run);
        Points other = run;
        double & number = i % 2 == 0 ? other[i / 2].x : other[i / 2].y;
        number = std::nextafter(number, infinity);
        ExpectSame(cache.Fit(other), FitBezier(other));
        EXPECT_EQ(cache.Count(), 2u);
    }
}

TEST(SegmentFitCache, ARunIsNotItsBeginning)
{
    CBezierFitCache cache;
    Points const run = {{1, 1}, {2, 3}, {4, 4}, {0, 0}};
    cache.Fit(run);
    Points const beginning(run.begin(), run.end() - 1);
    ExpectSame(cache.Fit(beginning), FitBezier(beginning));
    EXPECT_EQ(cache.Count(), 2u);
}

TEST(SegmentFitCache, LongRunsAreNotKept)
{
    CBezierFitCache cache;
    Points run;
    for (int i = 0; i < 7; ++i)
        run.push_back({1.0 * i, i * i / 4.0});
    cache.Fit(run);
    EXPECT_EQ(cache.Count(), 1u);
    run.push_back({8, 0});
    ExpectSame(cache.Fit(run), FitBezier(run));
    EXPECT_EQ(cache.Count(), 1u);
}

TEST(SegmentFitCache, NeverKeepsMoreThanItsLimit)
{
    CBezierFitCache cache;
    auto const runAt = [](std::size_t i) { return Points{{0, 0}, {1.0 * static_cast<double>(i), 2}, {3, 0}}; };
    for (std::size_t i = 0; i < CBezierFitCache::limit; ++i)
        cache.Fit(runAt(i));
    EXPECT_EQ(cache.Count(), CBezierFitCache::limit);
    ExpectSame(cache.Fit(runAt(CBezierFitCache::limit)), FitBezier(runAt(CBezierFitCache::limit)));
    EXPECT_EQ(cache.Count(), 1u);
}

TEST(SegmentFitCache, NumbersThatAreNoneAreKeptToo)
{
    CBezierFitCache cache;
    Points const run(4, CDigiPoint{no_number, no_number});
    cache.Fit(run);
    cache.Fit(run);
    EXPECT_EQ(cache.Count(), 1u);
}
} // namespace
