// Spectrograms of a part of a recording, with windows of choice, on either frequency scale; axes of such parts.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "logic/Axis.h"
#include "logic/Spectrogram.h"
#include "workbench_WavBuilder.h"

namespace
{

using namespace workbench;

constexpr std::uint32_t rate = 8000;

double ToneAt(double hertz, std::size_t frame)
{
    return 0.5 * std::sin(2.0 * std::numbers::pi * hertz * static_cast<double>(frame) / rate);
}

/// 500 Hz, and between two frames 2,000 Hz.
std::vector<double> Samples(std::size_t frames, std::size_t first, std::size_t end)
{
    std::vector<double> samples;
    for (std::size_t i = 0; i < frames; ++i)
        samples.push_back(ToneAt(i >= first && i < end ? 2000.0 : 500.0, i));
    return samples;
}

wav::File FileOf(std::vector<double> const & samples)
{
    std::vector<std::int16_t> values;
    for (double const sample : samples)
        values.push_back(static_cast<std::int16_t>(std::lround(sample * 32767.0)));
    return wav::File().Chunk("fmt ", wav::Format(1, 1, rate, 2, 16)).Chunk("data", wav::Samples16(values));
}

Spectrogram Compute(wav::File const & file, SpectrogramSettings const & settings, std::optional<FrameRange> stretch)
{
    wav::Bytes const content = file.Content();
    SpectrogramAnalyser analyser(wav::Source(content), settings, stretch);
    while (analyser.Step())
        continue;
    EXPECT_EQ(analyser.Progress(), 1.0);
    return analyser.Take();
}

/// The line, counted from below, with the highest entry in a column of a picture.
std::size_t LoudestLine(std::vector<std::uint8_t> const & picture, std::size_t width, std::size_t height, std::size_t x)
{
    std::size_t loudest = 0;
    for (std::size_t line = 0; line < height; ++line)
    {
        if (picture[(height - 1 - line) * width + x] > picture[(height - 1 - loudest) * width + x])
            loudest = line;
    }
    return loudest;
}

TEST(SpectrogramStretch, ShowsWhatLiesThere)
{
    wav::File const file = FileOf(Samples(80000, 40000, 42000));
    Spectrogram const part = Compute(file, {}, FrameRange{39000, 43000});
    EXPECT_EQ(part.Stretch(), (FrameRange{39000 - 256, 43000 + 256}));
    constexpr std::size_t width = 40;
    constexpr std::size_t height = 64;
    std::vector<std::uint8_t> const picture = part.Picture(width, height, {39000, 43000}, FrequencyScale::linear);
    ASSERT_EQ(picture.size(), width * height);
    EXPECT_EQ(LoudestLine(picture, width, height, 3), 500 * height / 4000);
    EXPECT_EQ(LoudestLine(picture, width, height, 20), 2000 * height / 4000);
    EXPECT_EQ(LoudestLine(picture, width, height, 36), 500 * height / 4000);
}

TEST(SpectrogramStretch, HasAtItsEndsWhatTheWholeHasThere)
{
    // The whole is a multiple of the hop away, so that the windows are the same.
    wav::File const file = FileOf(Samples(80000, 40000, 42000));
    Spectrogram const whole = Compute(file, {}, std::nullopt);
    Spectrogram const part = Compute(file, {}, FrameRange{39936, 43008});
    constexpr std::size_t width = 24;
    EXPECT_EQ(part.Picture(width, 32, {39936, 43008}, FrequencyScale::linear),
              whole.Picture(width, 32, {39936, 43008}, FrequencyScale::linear));
}

TEST(SpectrogramStretch, WhatWasNotComputedIsOnTheLowestEntry)
{
    Spectrogram const part = Compute(FileOf(Samples(80000, 0, 0)), {}, FrameRange{40000, 44000});
    std::vector<std::uint8_t> const picture = part.Picture(80, 16, {0, 80000}, FrequencyScale::linear);
    EXPECT_EQ(picture[13 * 80 + 10], 0);
    EXPECT_GT(*std::max_element(picture.begin(), picture.end()), 0);
    EXPECT_EQ(picture.size(), 80U * 16U);
}

TEST(SpectrogramStretch, BeyondTheRecordingThereIsNothing)
{
    wav::File const file = FileOf(Samples(1000, 0, 0));
    EXPECT_LE(Compute(file, {}, FrameRange{900, 5000}).Stretch().end, 1000U);
    EXPECT_TRUE(Compute(file, {}, FrameRange{5000, 6000}).Picture(4, 4).empty());
}

TEST(SpectrogramStretch, AShorterOneIsLessCondensed)
{
    wav::File const file = FileOf(Samples(800000, 0, 0));
    EXPECT_TRUE(Compute(file, {}, std::nullopt).IsCondensed());
    EXPECT_FALSE(Compute(file, {}, FrameRange{1000, 50000}).IsCondensed());
}

TEST(SpectrogramSettings, WindowAndOverlapAreThoseAskedFor)
{
    wav::File const file = FileOf(Samples(16384, 0, 0));
    EXPECT_EQ(Compute(file, {1024, 50}, std::nullopt).Rows(), 513U);
    EXPECT_EQ(Compute(file, {1024, 0}, std::nullopt).Columns(), 16U);
    EXPECT_EQ(Compute(file, {1024, 50}, std::nullopt).Columns(), 32U);
    EXPECT_EQ(Compute(file, {1024, 75}, std::nullopt).Columns(), 64U);
    EXPECT_EQ(Compute(file, {1024, 87}, std::nullopt).Columns(), 128U);
}

TEST(SpectrogramSettings, LevelsDoNotDependOnThem)
{
    wav::File const file = FileOf(Samples(32768, 0, 0));
    for (std::size_t const window : {256U, 1024U, 4096U})
    {
        for (int const overlap : {0, 50, 75, 87})
        {
            Spectrogram const spectrogram = Compute(file, {window, overlap}, std::nullopt);
            auto const row = static_cast<std::size_t>(std::lround(500.0 / 4000.0 * (spectrogram.Rows() - 1.0)));
            EXPECT_EQ(spectrogram.Entry(spectrogram.Columns() / 2, row), ScaleEntry(-6.02)) << window << ' ' << overlap;
        }
    }
}

TEST(SpectrogramSettings, WhatIsNotAllowedIsReplaced)
{
    SpectrogramSettings const usual{SpectrogramWindow(48000), 50};
    for (std::size_t const window : {std::size_t{0}, std::size_t{32}, std::size_t{1000}, std::size_t{65536}})
        EXPECT_EQ(CheckedSpectrogramSettings({window, 50}, 48000), usual) << window;
    for (int const overlap : {-1, 10, 100})
        EXPECT_EQ(CheckedSpectrogramSettings({0, overlap}, 48000), usual) << overlap;
    EXPECT_EQ(CheckedSpectrogramSettings({32768, 87}, 48000), (SpectrogramSettings{32768, 87}));
}

TEST(FrequencyScale, LogarithmicGivesEachOctaveTheSameHeight)
{
    constexpr auto scale = FrequencyScale::logarithmic;
    EXPECT_NEAR(FrequencyAt(scale, 20000, 0.0), 20.0, 1e-9);
    EXPECT_NEAR(FrequencyAt(scale, 20000, 1.0), 20000.0, 1e-6);
    EXPECT_NEAR(FrequencyAt(scale, 20000, 1.0 / 3.0), 200.0, 1e-6);
    for (double const hertz : {25.0, 440.0, 19000.0})
        EXPECT_NEAR(FrequencyAt(scale, 24000, PartOfFrequency(scale, 24000, hertz)), hertz, 1e-6);
    EXPECT_NEAR(FrequencyAt(scale, 50, 0.0), 5.0, 1e-9) << "a low rate has an axis, too";
    EXPECT_EQ(FrequencyAt(FrequencyScale::linear, 24000, 0.25), 6000.0);
    EXPECT_EQ(PartOfFrequency(FrequencyScale::linear, 24000, 6000.0), 0.25);
}

TEST(FrequencyScale, ThePictureFollowsIt)
{
    constexpr std::size_t height = 200;
    Spectrogram const spectrogram = Compute(FileOf(Samples(32768, 0, 0)), {2048, 50}, std::nullopt);
    std::vector<std::uint8_t> const picture = spectrogram.Picture(8, height, {0, 32768}, FrequencyScale::logarithmic);
    double const expected = PartOfFrequency(FrequencyScale::logarithmic, 4000, 500) * height;
    EXPECT_NEAR(static_cast<double>(LoudestLine(picture, 8, height, 4)), expected, 2.0);
}

TEST(FrequencyTicks, OfALogarithmicScaleAreOneTwoFive)
{
    constexpr auto scale = FrequencyScale::logarithmic;
    auto const labels = [](std::vector<FrequencyTick> const & ticks) {
        std::vector<std::wstring> texts;
        for (FrequencyTick const & tick : ticks)
            texts.push_back(tick.label);
        return texts;
    };
    using Texts = std::vector<std::wstring>;
    EXPECT_EQ(labels(FrequencyTicks(scale, 20000, 600, 20)),
              (Texts{L"20 Hz", L"50 Hz", L"100 Hz", L"200 Hz", L"500 Hz", L"1 kHz", L"2 kHz", L"5 kHz", L"10 kHz",
                     L"20 kHz"}));
    EXPECT_EQ(labels(FrequencyTicks(scale, 20000, 300, 90)), (Texts{L"100 Hz", L"1 kHz", L"10 kHz"}));
    EXPECT_EQ(FrequencyTicks(scale, 20000, 300, 20).front().position, 0);
    EXPECT_EQ(FrequencyTicks(scale, 20000, 300, 20).back().position, 300);
    EXPECT_TRUE(FrequencyTicks(scale, 0, 300, 20).empty());
    EXPECT_TRUE(FrequencyTicks(scale, 20000, 0, 20).empty());
    EXPECT_EQ(FrequencyTicks(FrequencyScale::linear, 24000, 240, 40), FrequencyTicks(24000, 240, 40));
}

TEST(TimeTicks, OfAStretchStandAtRoundTimes)
{
    EXPECT_EQ(TimeTicks(1.23, 1.47, 240, 50),
              (std::vector<TimeTick>{
                  {20, L"1.25 s"}, {70, L"1.30 s"}, {120, L"1.35 s"}, {170, L"1.40 s"}, {220, L"1.45 s"}}));
    EXPECT_EQ(TimeTicks(0.0, 10.0, 500, 50), TimeTicks(10.0, 500, 50));
    EXPECT_EQ(TimeTicks(0.0, 3600.0, 500, 50), TimeTicks(3600.0, 500, 50));
    EXPECT_EQ(TimeTicks(90.0, 150.0, 120, 50), (std::vector<TimeTick>{{0, L"1:30"}, {60, L"2:00"}, {120, L"2:30"}}));
    EXPECT_TRUE(TimeTicks(2.0, 2.0, 100, 10).empty());
    EXPECT_TRUE(TimeTicks(-1.0, 2.0, 100, 10).empty());
    EXPECT_TRUE(TimeTicks(1.0, 2.0, 0, 10).empty());
}

} // namespace
