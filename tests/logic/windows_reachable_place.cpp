// Where a window comes to stand when the screens are not those of then.

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <vector>

#include "windows/ReachablePlace.h"

namespace
{
constexpr int caption = 30;

std::vector<int> Sides(CRect const & rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

ScreenArea Screen(int left, int top, int right, int bottom, int dpi = 96)
{
    return {CRect(left, top, right, bottom), dpi};
}

std::vector<int> Placed(StoredPlace const & stored, std::vector<ScreenArea> const & screens, bool sizable = true)
{
    return Sides(ReachablePlace(stored, screens, {caption, sizable}));
}

std::vector<int> Placed(CRect const & rect, std::vector<ScreenArea> const & screens, bool sizable = true)
{
    return Placed(StoredPlace{rect}, screens, sizable);
}
} // namespace

TEST(ReachablePlace, IsKeptWhereTheCaptionCanBeReachedAndTheSizeFits)
{
    std::vector const screens{Screen(0, 0, 1920, 1040)};
    EXPECT_EQ(Placed(CRect(100, 100, 900, 700), screens), (std::vector{100, 100, 900, 700}));
    // Partly beyond the edges.
    EXPECT_EQ(Placed(CRect(-700, 900, 100, 1500), screens), (std::vector{-700, 900, 100, 1500}));
    EXPECT_EQ(Placed(CRect(1820, 1010, 2620, 1610), screens), (std::vector{1820, 1010, 2620, 1610}));
}

TEST(ReachablePlace, ComesBackByAsLittleAsBringsAllOfItOntoTheScreen)
{
    std::vector const screens{Screen(0, 0, 1920, 1040)};
    EXPECT_EQ(Placed(CRect(-701, 100, 99, 700), screens), (std::vector{0, 100, 800, 700}));
    EXPECT_EQ(Placed(CRect(1821, 100, 2621, 700), screens), (std::vector{1120, 100, 1920, 700}));
    EXPECT_EQ(Placed(CRect(100, -1, 900, 599), screens), (std::vector{100, 0, 900, 600}));
    EXPECT_EQ(Placed(CRect(100, 1011, 900, 1611), screens), (std::vector{100, 440, 900, 1040}));
    EXPECT_EQ(Placed(CRect(100, 5000, 900, 5600), screens), (std::vector{100, 440, 900, 1040}));
}

TEST(ReachablePlace, OfAScreenThatIsGoneIsTheNearestOne)
{
    std::vector const screens{Screen(0, 0, 1920, 1040), Screen(1920, 200, 3200, 1000)};
    EXPECT_EQ(Placed(CRect(4000, 300, 4800, 900), screens), (std::vector{2400, 300, 3200, 900}));
    EXPECT_EQ(Placed(CRect(-3000, 300, -2200, 900), screens), (std::vector{0, 300, 800, 900}));
}

TEST(ReachablePlace, TheScreenWithMostOfTheWindowCounts)
{
    std::vector const screens{Screen(0, 0, 1000, 1000), Screen(1000, 0, 2000, 1000), Screen(2000, 0, 2000, 1000)};
    EXPECT_EQ(ScreenOf(CRect(600, 0, 1399, 100), screens), &screens[0]);
    EXPECT_EQ(ScreenOf(CRect(600, 0, 1401, 100), screens), &screens[1]);
    EXPECT_EQ(ScreenOf(CRect(600, 0, 1400, 100), screens), &screens[0]) << "the first of equals";
    EXPECT_EQ(ScreenOf(CRect(5000, 0, 5100, 100), screens), &screens[1]) << "one without an area is none";
    EXPECT_EQ(ScreenOf(CRect(0, 0, 10, 10), {}), nullptr);
}

TEST(ReachablePlace, IsNoLargerThanTheWorkArea)
{
    std::vector const screens{Screen(100, 50, 1124, 600)};
    EXPECT_EQ(Placed(CRect(200, 60, 2200, 1060), screens), (std::vector{100, 50, 1124, 600}));
    EXPECT_EQ(Placed(CRect(200, 60, 700, 1060), screens), (std::vector{200, 50, 700, 600}));
}

TEST(ReachablePlace, OfAWindowThatCannotBeSizedKeepsTheSize)
{
    std::vector const screens{Screen(100, 50, 1124, 600)};
    EXPECT_EQ(Placed(CRect(2000, 60, 4000, 1060), screens, false), (std::vector{100, 50, 2100, 1050}));
    EXPECT_EQ(Placed(StoredPlace{CRect(2000, 60, 2100, 160), 0, 48}, screens, false),
              (std::vector{1024, 60, 1124, 160}));
}

TEST(ReachablePlace, IsKeptOnTheScreensOfThenEvenIfItIsLarger)
{
    std::vector const screens{Screen(0, 0, 1920, 1040), Screen(1920, 0, 3840, 1040)};
    StoredPlace stored{CRect(100, 100, 3700, 900), FingerprintOf(screens), 96};
    EXPECT_EQ(Placed(stored, screens), (std::vector{100, 100, 3700, 900}));
    stored.screens = 0;
    EXPECT_EQ(Placed(stored, screens), (std::vector{0, 100, 1920, 900}));
}

TEST(ReachablePlace, IsBroughtBackOnTheScreensOfThenToo)
{
    std::vector const screens{Screen(0, 0, 1920, 1040)};
    EXPECT_EQ(Placed(StoredPlace{CRect(5000, 100, 5800, 700), FingerprintOf(screens), 96}, screens),
              (std::vector{1120, 100, 1920, 700}));
}

TEST(ReachablePlace, AtAnotherResolutionHasTheSizeForIt)
{
    std::vector const screens{Screen(0, 0, 2880, 1560, 144)};
    EXPECT_EQ(Placed(StoredPlace{CRect(200, 100, 1000, 700), 0, 96}, screens), (std::vector{200, 100, 1400, 1000}));
    EXPECT_EQ(Placed(StoredPlace{CRect(200, 100, 1000, 700), 0, 192}, screens), (std::vector{200, 100, 800, 550}));
    EXPECT_EQ(Placed(StoredPlace{CRect(200, 100, 1000, 700), 0, 0}, screens), (std::vector{200, 100, 1000, 700}))
        << "unknown";
    EXPECT_EQ(Placed(StoredPlace{CRect(2000, 1000, 2800, 1500), 0, 96}, screens), (std::vector{1680, 810, 2880, 1560}));
}

TEST(ReachablePlace, OddPlacesAndNoScreens)
{
    std::vector const screens{Screen(0, 0, 1920, 1040)};
    EXPECT_EQ(Placed(CRect(900, 700, 100, 100), screens), (std::vector{100, 100, 900, 700})) << "edges that traded";
    EXPECT_EQ(Placed(CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), screens), (std::vector{0, 0, 1920, 1040}));
    EXPECT_EQ(Placed(CRect(INT_MAX, INT_MAX, INT_MAX, INT_MAX), screens), (std::vector{1920, 1040, 1920, 1040}));
    EXPECT_EQ(Placed(CRect(7000, 0, 7100, 100), {}), (std::vector{7000, 0, 7100, 100}));
}

TEST(ReachablePlace, ScreensAreToldApart)
{
    std::vector const screens{Screen(0, 0, 1920, 1040), Screen(1920, 0, 3840, 1040)};
    int const fingerprint = FingerprintOf(screens);
    EXPECT_NE(fingerprint, 0);
    for (std::size_t i = 0; i < screens.size(); ++i)
    {
        std::vector<ScreenArea> changed = screens;
        changed[i].work.right -= 1;
        EXPECT_NE(FingerprintOf(changed), fingerprint);
        changed = screens;
        changed[i].dpi = 120;
        EXPECT_NE(FingerprintOf(changed), fingerprint);
    }
    EXPECT_NE(FingerprintOf(std::span(screens).first(1)), fingerprint);
    EXPECT_EQ(FingerprintOf(std::vector(screens)), fingerprint);
}

// Over random screens side by side: the caption can always be reached, the size is never larger than a work area, and
// nothing changes while all is as it was.
TEST(ReachablePlace, OverRandomScreens)
{
    std::mt19937 random(17); // NOLINT: the same walk each time
    auto const between = [&random](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    };
    constexpr int dpis[] = {96, 120, 144, 192};
    auto const screensOf = [&] {
        std::vector<ScreenArea> screens;
        int left = between(-4000, 1000);
        for (int count = between(1, 4); count > 0; --count)
        {
            int const top = between(-1500, 1500);
            int const width = between(640, 3840);
            int const taskbar = between(0, 60);
            screens.push_back(Screen(left, top + taskbar, left + width, top + between(480, 2160), dpis[between(0, 3)]));
            left += width + (between(0, 9) == 0 ? between(1, 300) : 0);
        }
        return screens;
    };
    for (int round = 0; round < 100000; ++round)
    {
        std::vector<ScreenArea> const then = screensOf();
        std::vector<ScreenArea> const now = between(0, 3) == 0 ? then : screensOf();
        int const left = between(-6000, 12000);
        int const top = between(-3000, 4000);
        StoredPlace stored{CRect(left, top, left + between(1, 5000), top + between(1, 3000))};
        if (between(0, 4) != 0)
        {
            stored.screens = FingerprintOf(then);
            stored.dpi = ScreenOf(stored.rect, then)->dpi;
        }
        WindowShape const shape{between(20, 60), between(0, 4) != 0};
        CRect const placed = ReachablePlace(stored, now, shape);
        ASSERT_TRUE(IsCaptionReachable(placed, now, shape.captionHeight)) << round;
        bool const asItWas =
            stored.screens == FingerprintOf(now) && IsCaptionReachable(stored.rect, now, shape.captionHeight);
        if (asItWas)
        {
            ASSERT_EQ(placed, stored.rect) << round;
        }
        else if (shape.sizable)
        {
            ScreenArea const & screen = *ScreenOf(placed, now);
            ASSERT_LE(placed.Width(), screen.work.Width()) << round;
            ASSERT_LE(placed.Height(), screen.work.Height()) << round;
        }
        else
        {
            ASSERT_EQ(placed.Size(), stored.rect.Size()) << round;
        }
        // Stored now and read again, it stays.
        StoredPlace const again{placed, FingerprintOf(now), ScreenOf(placed, now)->dpi};
        ASSERT_EQ(ReachablePlace(again, now, shape), placed) << round;
    }
}
