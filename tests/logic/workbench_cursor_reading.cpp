// What the displays show of one point of a recording.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "logic/CursorReading.h"
#include "logic/WaveformDetail.h"

using namespace workbench;

namespace
{

double const silence = -std::numeric_limits<double>::infinity();

Waveform MakeWaveform(std::size_t channels, std::vector<double> const & samples)
{
    WaveformBuilder builder(channels);
    builder.Add(samples);
    return builder.Finish();
}

double LevelOf(Waveform const & waveform, std::uint32_t sampleRate, std::uint64_t frame)
{
    auto analysis = std::make_shared<RecordingAnalysis>();
    analysis->info.channels = static_cast<std::uint16_t>(waveform.Lanes());
    analysis->info.sampleRate = sampleRate;
    analysis->info.frames = waveform.Frames();
    analysis->waveform = waveform;
    WaveformDetail detail(analysis, {});
    return LevelAround(detail, analysis->info, frame);
}

} // namespace

TEST(WorkbenchCursorReading, ThePositionHasMinutesSecondsAndMilliseconds)
{
    EXPECT_EQ(PositionReading(0, 48000), L"00:00.000");
    EXPECT_EQ(PositionReading(48000 * 62 + 16560, 48000), L"01:02.345");
    EXPECT_EQ(PositionReading(48000ull * 60 * 123, 48000), L"123:00.000");
}

TEST(WorkbenchCursorReading, ThePositionIsNotRounded)
{
    EXPECT_EQ(PositionReading(47999, 48000), L"00:00.999");
    EXPECT_EQ(PositionReading(47, 48000), L"00:00.000");
    EXPECT_EQ(PositionReading(48, 48000), L"00:00.001");
}

TEST(WorkbenchCursorReading, ThePositionOfAVeryLongRecordingDoesNotOverflow)
{
    EXPECT_EQ(PositionReading(std::numeric_limits<std::uint64_t>::max(), 1), L"307445734561825860:15.000");
}

TEST(WorkbenchCursorReading, WithoutARateThereIsNoPosition)
{
    EXPECT_EQ(PositionReading(5, 0), L"--:--.---");
}

TEST(WorkbenchCursorReading, LevelsHaveOneWidth)
{
    EXPECT_EQ(LevelReading(-12.34), L"-12.3");
    EXPECT_EQ(LevelReading(-0.04), L"  0.0");
    EXPECT_EQ(LevelReading(-120.0), L"-120.0");
    EXPECT_EQ(LevelReading(silence), L" --.-");
    EXPECT_EQ(LevelReading(std::nan("")), L" --.-");
}

TEST(WorkbenchCursorReading, TheLevelIsTheGreatestAmplitudeAround)
{
    // 1,000 frames a second: five frames to either side.
    std::vector<double> samples(100, 0.0);
    samples[50] = -0.5;
    Waveform const waveform = MakeWaveform(1, samples);
    EXPECT_EQ(LevelOf(waveform, 1000, 44), silence);
    EXPECT_NEAR(LevelOf(waveform, 1000, 45), -6.0206, 0.0001);
    EXPECT_NEAR(LevelOf(waveform, 1000, 55), -6.0206, 0.0001);
    EXPECT_EQ(LevelOf(waveform, 1000, 56), silence);
}

TEST(WorkbenchCursorReading, TheLoudestLaneCounts)
{
    EXPECT_NEAR(LevelOf(MakeWaveform(2, {0.1, 0.25}), 48000, 0), -12.0412, 0.0001);
    EXPECT_NEAR(LevelOf(MakeWaveform(2, {-0.5, 0.25}), 48000, 0), -6.0206, 0.0001);
}

TEST(WorkbenchCursorReading, TheStretchEndsWithTheRecording)
{
    Waveform const waveform = MakeWaveform(1, {1.0, 0.0, 0.5});
    EXPECT_NEAR(LevelOf(waveform, 48000, 0), 0.0, 0.0001);
    EXPECT_NEAR(LevelOf(waveform, 48000, 2), 0.0, 0.0001);
    EXPECT_NEAR(LevelOf(waveform, 100, 2), -6.0206, 0.0001) << "at least the frame itself";
}

TEST(WorkbenchCursorReading, WhatDoesNotExistIsSilent)
{
    Waveform const waveform = MakeWaveform(1, {1.0});
    EXPECT_EQ(LevelOf(waveform, 48000, 1), silence);
    EXPECT_EQ(LevelOf(waveform, 0, 0), silence);
    EXPECT_EQ(LevelOf(Waveform(), 48000, 0), silence);
}
