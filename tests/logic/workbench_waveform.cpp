// The waveform overview against a search through all samples.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "logic/Axis.h"
#include "logic/Waveform.h"

namespace
{

using namespace workbench;

std::vector<double> Noise(std::size_t count, unsigned seed)
{
    std::mt19937 generator(seed);
    std::vector<double> samples(count);
    for (double & s : samples)
    {
        s = static_cast<double>(generator()) / 2147483648.0 - 1.0;
    }
    return samples;
}

Waveform Build(std::vector<double> const & samples, std::size_t channels)
{
    WaveformBuilder builder(channels);
    builder.Add(samples);
    return builder.Finish();
}

MinMax Search(std::vector<double> const & samples, std::size_t channels, std::size_t lane, std::uint64_t first,
              std::uint64_t end)
{
    auto const at = [&](std::uint64_t frame) { return static_cast<float>(samples[frame * channels + lane]); };
    MinMax result{at(first), at(first)};
    for (std::uint64_t frame = first; frame < end; ++frame)
    {
        result.least = std::min(result.least, at(frame));
        result.greatest = std::max(result.greatest, at(frame));
    }
    return result;
}

TEST(Waveform, IsExactForEveryStretchOfAShortRecording)
{
    std::vector<double> const samples = Noise(201, 1);
    Waveform const waveform = Build(samples, 3);
    ASSERT_EQ(waveform.Frames(), 67u);
    ASSERT_EQ(waveform.Lanes(), 3u);
    ASSERT_EQ(waveform.FramesPerBucket(), 1u);
    for (std::size_t lane = 0; lane < 3; ++lane)
    {
        for (std::uint64_t first = 0; first < 67; ++first)
        {
            for (std::uint64_t end = first + 1; end <= 67; ++end)
            {
                ASSERT_EQ(waveform.Range(lane, first, end), Search(samples, 3, lane, first, end))
                    << lane << ": " << first << " to " << end;
            }
        }
    }
}

TEST(Waveform, ColumnsAreExactForAnyWidth)
{
    constexpr std::uint64_t frames = 1000;
    std::vector<double> const samples = Noise(frames, 2);
    Waveform const waveform = Build(samples, 1);
    for (std::size_t const width : {1u, 2u, 7u, 333u, 999u, 1000u, 1001u, 2500u})
    {
        std::vector<MinMax> const columns = waveform.Columns(0, width);
        ASSERT_EQ(columns.size(), width);
        for (std::size_t c = 0; c < width; ++c)
        {
            std::size_t const first = c * frames / width;
            std::size_t const end = std::max((c + 1) * frames / width, first + 1);
            ASSERT_EQ(columns[c], Search(samples, 1, 0, first, end)) << "column " << c << " of " << width;
        }
    }
}

TEST(Waveform, WidensStretchesOfLongRecordingsToWholeBucketsAndNoFurther)
{
    constexpr std::uint64_t frames = 150'001;
    std::vector<double> const samples = Noise(frames, 3);
    Waveform const waveform = Build(samples, 1);
    // 32,768 buckets hold 131,072 frames at four frames a bucket, so eight are needed.
    ASSERT_EQ(waveform.FramesPerBucket(), 8u);
    std::vector<MinMax> const columns = waveform.Columns(0, 640);
    for (std::size_t c = 0; c < columns.size(); ++c)
    {
        std::size_t const first = c * frames / 640 / 8 * 8;
        auto const end = std::min<std::uint64_t>(((c + 1) * frames / 640 + 7) / 8 * 8, frames);
        ASSERT_EQ(columns[c], Search(samples, 1, 0, first, end)) << c;
    }
}

TEST(Waveform, KeepsALonelyPeakWhateverTheLength)
{
    for (std::size_t const frames : {32'768u, 32'769u, 65'536u, 65'537u, 1'000'000u})
    {
        std::vector<double> samples(frames, 0.0);
        samples[frames / 3] = 0.875;
        samples[frames - 1] = -0.625;
        Waveform const waveform = Build(samples, 1);
        EXPECT_EQ(waveform.Frames(), frames);
        EXPECT_EQ(waveform.Columns(0, 1)[0], (MinMax{-0.625F, 0.875F})) << frames;
        std::vector<MinMax> const columns = waveform.Columns(0, 300);
        EXPECT_EQ(columns.back().least, -0.625F) << frames;
        EXPECT_EQ(std::ranges::max_element(columns, {}, &MinMax::greatest)->greatest, 0.875F) << frames;
    }
}

TEST(Waveform, IsTheSameForPortionsOfAnySize)
{
    std::vector<double> const samples = Noise(80'000, 4);
    constexpr std::size_t portion = 246;
    WaveformBuilder builder(2);
    for (std::size_t i = 0; i < samples.size(); i += portion)
    {
        builder.Add(std::span(samples).subspan(i, std::min(portion, samples.size() - i)));
    }
    Waveform const waveform = builder.Finish();
    Waveform const whole = Build(samples, 2);
    EXPECT_EQ(waveform.Columns(0, 777), whole.Columns(0, 777));
    EXPECT_EQ(waveform.Columns(1, 777), whole.Columns(1, 777));
    EXPECT_NE(waveform.Columns(0, 777), waveform.Columns(1, 777));
}

TEST(Waveform, GivesLanesToTheFirstChannelsOnly)
{
    std::vector<double> samples(40, 0.25);
    samples[31] = 0.5;
    Waveform const waveform = Build(samples, 40);
    EXPECT_EQ(waveform.Lanes(), WaveformBuilder::maximum_lanes);
    EXPECT_EQ(waveform.Frames(), 1u);
    EXPECT_EQ(waveform.Range(31, 0, 1), (MinMax{0.5F, 0.5F}));
    EXPECT_EQ(waveform.Range(32, 0, 1), MinMax{});
}

TEST(Waveform, GivesZerosWhereNothingIs)
{
    EXPECT_EQ(Waveform().Lanes(), 0u);
    EXPECT_EQ(Waveform().Columns(0, 3), std::vector<MinMax>(3));
    Waveform const waveform = Build({0.5, 0.5}, 1);
    EXPECT_EQ(waveform.Range(0, 2, 3), MinMax{});
    EXPECT_EQ(waveform.Range(1, 0, 1), MinMax{});
    EXPECT_TRUE(waveform.Columns(0, 0).empty());
    EXPECT_EQ(WaveformBuilder(1).Finish().Columns(0, 2), std::vector<MinMax>(2));
}

TEST(Waveform, TakesAnEmptyStretchAsOneFrameAndEndsAtTheLast)
{
    Waveform const waveform = Build({0.125, 0.25, 0.5}, 1);
    EXPECT_EQ(waveform.Range(0, 1, 1), (MinMax{0.25F, 0.25F}));
    EXPECT_EQ(waveform.Range(0, 1, 100), (MinMax{0.25F, 0.5F}));
}

TEST(Waveform, LeavesOutAPartOfAFrame)
{
    EXPECT_EQ(Build({0.5, 0.5, 0.5}, 2).Frames(), 1u);
}

TEST(WaveformBuilder, StartsAfreshAfterFinishing)
{
    WaveformBuilder builder(1);
    builder.Add(std::vector<double>(70'000, 1.0));
    EXPECT_EQ(builder.Finish().FramesPerBucket(), 4u);
    builder.Add(std::vector<double>(3, 0.5));
    Waveform const second = builder.Finish();
    EXPECT_EQ(second.Frames(), 3u);
    EXPECT_EQ(second.FramesPerBucket(), 1u);
    EXPECT_EQ(second.Columns(0, 1)[0], (MinMax{0.5F, 0.5F}));
}

std::vector<std::wstring> Labels(std::vector<TimeTick> const & ticks)
{
    std::vector<std::wstring> labels;
    std::ranges::transform(ticks, std::back_inserter(labels), &TimeTick::label);
    return labels;
}

TEST(TimeTicks, StandAtRoundTimes)
{
    std::vector<TimeTick> const ticks = TimeTicks(1.4, 700, 80);
    EXPECT_EQ(ticks, (std::vector<TimeTick>{{0, L"0.0 s"},
                                            {100, L"0.2 s"},
                                            {200, L"0.4 s"},
                                            {300, L"0.6 s"},
                                            {400, L"0.8 s"},
                                            {500, L"1.0 s"},
                                            {600, L"1.2 s"},
                                            {700, L"1.4 s"}}));
}

TEST(TimeTicks, UseMinutesFromOneMinuteOn)
{
    EXPECT_EQ(Labels(TimeTicks(59.0, 300, 100)), (std::vector<std::wstring>{L"0 s", L"20 s", L"40 s"}));
    EXPECT_EQ(Labels(TimeTicks(60.0, 300, 100)), (std::vector<std::wstring>{L"0:00", L"0:20", L"0:40", L"1:00"}));
    EXPECT_EQ(Labels(TimeTicks(7200.0, 300, 100)), (std::vector<std::wstring>{L"0:00", L"60:00", L"120:00"}));
}

TEST(TimeTicks, HaveEachOfTheirSteps)
{
    // Three steps fill the axis; the tick behind the first one shows the step.
    struct
    {
        double step;
        wchar_t const * label;
    } const cases[] = {{1.0, L"1 s"},      {2.0, L"2 s"},       {5.0, L"5 s"},       {10.0, L"10 s"},
                       {20.0, L"0:20"},    {30.0, L"0:30"},     {60.0, L"1:00"},     {120.0, L"2:00"},
                       {300.0, L"5:00"},   {600.0, L"10:00"},   {1200.0, L"20:00"},  {1800.0, L"30:00"},
                       {3600.0, L"60:00"}, {7200.0, L"120:00"}, {18000.0, L"300:00"}};
    for (auto const & [step, label] : cases)
    {
        std::vector<TimeTick> const ticks = TimeTicks(3 * step, 300, 100);
        ASSERT_EQ(ticks.size(), 4u) << step;
        EXPECT_EQ(ticks[1], (TimeTick{100, label})) << step;
        EXPECT_EQ(ticks[3].position, 300) << step;
    }
    // A step that is a little too short is not taken.
    EXPECT_EQ(TimeTicks(3 * 1810.0, 300, 100)[1].label, L"60:00");
    EXPECT_EQ(TimeTicks(3 * 3700.0, 300, 100)[1].label, L"120:00");
}

TEST(TimeTicks, NeedNoMoreThanOnePixel)
{
    EXPECT_EQ(TimeTicks(1.0, 1, 1).size(), 2u);
}

TEST(TimeTicks, UseDecimalsForShortRecordings)
{
    EXPECT_EQ(Labels(TimeTicks(0.0021, 300, 100)), (std::vector<std::wstring>{L"0.000 s", L"0.001 s", L"0.002 s"}));
}

TEST(TimeTicks, KeepTheirDistanceForEveryLength)
{
    for (double seconds = 0.00001; seconds < 1e6; seconds *= 1.37)
    {
        std::vector<TimeTick> const ticks = TimeTicks(seconds, 500, 70);
        ASSERT_FALSE(ticks.empty()) << seconds;
        EXPECT_LE(ticks.back().position, 500);
        for (std::size_t i = 1; i < ticks.size(); ++i)
        {
            ASSERT_GE(ticks[i].position - ticks[i - 1].position, 69) << seconds; // one pixel of rounding
            ASSERT_NE(ticks[i].label, ticks[i - 1].label) << seconds;
        }
    }
}

TEST(TimeTicks, AreNoneWithoutRoomOrTime)
{
    EXPECT_TRUE(TimeTicks(0.0, 100, 10).empty());
    EXPECT_TRUE(TimeTicks(1.0, 0, 10).empty());
    EXPECT_TRUE(TimeTicks(1.0, 100, 0).empty());
    EXPECT_TRUE(TimeTicks(-1.0, 100, 10).empty());
}

TEST(LabelledSteps, AreThinnedOutWhereThereIsNoRoom)
{
    EXPECT_EQ(LabelledSteps(32, 8, 320, 20), (std::vector{32, 24, 16, 8, 0}));
    EXPECT_EQ(LabelledSteps(32, 8, 79, 20), (std::vector{32, 16, 0}));
    EXPECT_EQ(LabelledSteps(32, 8, 39, 20), (std::vector{32, 0}));
    EXPECT_EQ(LabelledSteps(32, 8, 0, 20), (std::vector{32, 0}));
    EXPECT_TRUE(LabelledSteps(0, 8, 100, 20).empty());
    for (int height = 20; height < 400; ++height)
    {
        std::vector<int> const steps = LabelledSteps(32, 8, height, 20);
        for (std::size_t i = 1; i < steps.size(); ++i)
        {
            ASSERT_GE((steps[i - 1] - steps[i]) * height / 32, 20) << height;
        }
    }
}

TEST(LevelLines, GoDownToTwentyFourDecibels)
{
    std::vector<LevelLine> const lines = LevelLines(10000, 1);
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[3].label, L"-18");
    EXPECT_NEAR(lines[3].amplitude, 0.125893, 1e-6);
    EXPECT_EQ(lines[4].label, L"-24");
    EXPECT_NEAR(lines[4].amplitude, 0.063096, 1e-6);
}

TEST(LevelLines, StandSixDecibelsApartWhileThereIsRoom)
{
    std::vector<LevelLine> const lines = LevelLines(100, 20);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], (LevelLine{1.0, L"0"}));
    EXPECT_EQ(lines[1].label, L"-6");
    EXPECT_NEAR(lines[1].amplitude, 0.501187, 1e-6);
    EXPECT_EQ(lines[2].label, L"-12");
    EXPECT_NEAR(lines[2].amplitude, 0.251189, 1e-6);
}

TEST(LevelLines, GoAwayOneByOneInALowLane)
{
    EXPECT_EQ(LevelLines(30, 20).size(), 1u);
    EXPECT_EQ(LevelLines(20, 20).size(), 1u);
    EXPECT_TRUE(LevelLines(19, 20).empty());
    EXPECT_TRUE(LevelLines(0, 20).empty());
}

} // namespace
