// Levels against values that are worked out by hand, and numbers as text.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

#include "logic/LevelMeter.h"
#include "logic/TextFormat.h"

namespace
{

using namespace workbench;

constexpr double beyond_all = std::numeric_limits<double>::infinity();

Levels LevelsOf(std::vector<double> const & samples)
{
    LevelMeter meter;
    meter.Add(samples);
    return meter.Result();
}

std::vector<double> Sine(double amplitude, int samplesPerPeriod, int periods)
{
    std::vector<double> samples;
    for (int i = 0; i < samplesPerPeriod * periods; ++i)
    {
        samples.push_back(amplitude * std::sin(2.0 * std::numbers::pi * i / samplesPerPeriod));
    }
    return samples;
}

TEST(LevelMeter, GivesAFullScaleSineZeroPeakAndThreeDecibelsLessOfRms)
{
    Levels const levels = LevelsOf(Sine(1.0, 48, 100));
    EXPECT_NEAR(levels.peak, 0.0, 1e-9);
    EXPECT_NEAR(levels.rms, -3.010299957, 1e-9); // 20 log10(1 / sqrt 2)
}

TEST(LevelMeter, GivesASineOfATenthTwentyDecibelsLess)
{
    Levels const levels = LevelsOf(Sine(0.1, 48, 100));
    EXPECT_NEAR(levels.peak, -20.0, 1e-9);
    EXPECT_NEAR(levels.rms, -23.010299957, 1e-9);
}

TEST(LevelMeter, GivesAFullScaleSquareWaveZeroOfBoth)
{
    Levels const levels = LevelsOf({1.0, 1.0, -1.0, -1.0, 1.0, 1.0, -1.0, -1.0});
    EXPECT_DOUBLE_EQ(levels.peak, 0.0);
    EXPECT_DOUBLE_EQ(levels.rms, 0.0);
}

TEST(LevelMeter, CountsASteadyValue)
{
    Levels const levels = LevelsOf(std::vector<double>(1000, -0.5));
    EXPECT_NEAR(levels.peak, -6.020599913, 1e-9);
    EXPECT_NEAR(levels.rms, -6.020599913, 1e-9);
}

TEST(LevelMeter, TakesANegativePeak)
{
    EXPECT_NEAR(LevelsOf({0.25, -0.5, 0.125}).peak, -6.020599913, 1e-9);
}

TEST(LevelMeter, GivesMinusInfinityForSilenceAndForNothing)
{
    EXPECT_EQ(LevelsOf({0.0, 0.0, 0.0}).peak, -beyond_all);
    EXPECT_EQ(LevelsOf({0.0, 0.0, 0.0}).rms, -beyond_all);
    EXPECT_EQ(LevelsOf({}).peak, -beyond_all);
    EXPECT_EQ(LevelsOf({}).rms, -beyond_all);
}

TEST(LevelMeter, GivesPositiveLevelsAboveFullScale)
{
    Levels const levels = LevelsOf({2.0, -2.0});
    EXPECT_NEAR(levels.peak, 6.020599913, 1e-9);
    EXPECT_NEAR(levels.rms, 6.020599913, 1e-9);
}

TEST(LevelMeter, GivesTheSameForPortionsOfAnySize)
{
    std::vector<double> const samples = Sine(0.7, 101, 50);
    LevelMeter meter;
    for (std::size_t i = 0; i < samples.size(); i += 7)
    {
        meter.Add(std::span(samples).subspan(i, std::min<std::size_t>(7, samples.size() - i)));
    }
    EXPECT_NEAR(meter.Result().rms, LevelsOf(samples).rms, 1e-12);
    EXPECT_EQ(meter.Result().peak, LevelsOf(samples).peak);
}

TEST(LevelMeter, WeighsAllChannelsAlike)
{
    // One channel at full scale, one silent: half the power, 3.01 dB less.
    EXPECT_NEAR(LevelsOf({1.0, 0.0, -1.0, 0.0}).rms, -3.010299957, 1e-9);
}

TEST(TextFormat, ShowsDurationsAsMinutesSecondsAndMilliseconds)
{
    EXPECT_EQ(FormatDuration(0, 48000), L"0:00.000");
    EXPECT_EQ(FormatDuration(68546, 48000), L"0:01.428");
    EXPECT_EQ(FormatDuration(2928000, 48000), L"1:01.000");
    EXPECT_EQ(FormatDuration(std::uint64_t{44100} * 3600 * 25, 44100), L"1500:00.000");
}

TEST(TextFormat, RoundsDurationsToTheNearestMillisecondAndCarries)
{
    EXPECT_EQ(FormatDuration(1, 3000), L"0:00.000");
    EXPECT_EQ(FormatDuration(1, 2000), L"0:00.001");
    EXPECT_EQ(FormatDuration(2, 3000), L"0:00.001");
    EXPECT_EQ(FormatDuration(599'999, 10'000), L"1:00.000");
}

TEST(TextFormat, ShowsTheLongestDurationsAndTheHighestRates)
{
    EXPECT_EQ(FormatDuration(0xFFFFFFFFu, 0xFFFFFFFFu), L"0:01.000");
    EXPECT_EQ(FormatDuration(0xFFFFFFFEu, 0xFFFFFFFFu), L"0:01.000");
    EXPECT_EQ(FormatDuration(0xFFFFFFFFu, 1), L"71582788:15.000");
}

TEST(TextFormat, ShowsADashForARateOfZero)
{
    EXPECT_EQ(FormatDuration(100, 0), L"-");
}

TEST(TextFormat, ShowsLevelsWithOneDecimal)
{
    EXPECT_EQ(FormatLevel(-3.0103), L"-3.0");
    EXPECT_EQ(FormatLevel(-0.96), L"-1.0");
    EXPECT_EQ(FormatLevel(6.02), L"6.0");
    EXPECT_EQ(FormatLevel(-120.25), L"-120.3");
}

TEST(TextFormat, NeverShowsANegativeZero)
{
    EXPECT_EQ(FormatLevel(-0.04), L"0.0");
    EXPECT_EQ(FormatLevel(-0.0), L"0.0");
}

TEST(TextFormat, ShowsSilenceWithTheInfinitySign)
{
    EXPECT_EQ(FormatLevel(-beyond_all), L"-\u221E");
}

TEST(TextFormat, GroupsTheDigitsOfSampleRates)
{
    EXPECT_EQ(FormatSampleRate(0), L"0 Hz");
    EXPECT_EQ(FormatSampleRate(999), L"999 Hz");
    EXPECT_EQ(FormatSampleRate(8000), L"8,000 Hz");
    EXPECT_EQ(FormatSampleRate(192000), L"192,000 Hz");
    EXPECT_EQ(FormatSampleRate(4294967295u), L"4,294,967,295 Hz");
}

TEST(TextFormat, CountsInSingularAndPlural)
{
    EXPECT_EQ(FormatCount(0, L"recording", L"recordings"), L"0 recordings");
    EXPECT_EQ(FormatCount(1, L"recording", L"recordings"), L"1 recording");
    EXPECT_EQ(FormatCount(9, L"recording", L"recordings"), L"9 recordings");
    EXPECT_EQ(FormatCount(5000, L"recording", L"recordings"), L"5,000 recordings");
}

} // namespace
