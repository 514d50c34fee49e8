// Loudness, frequency and distortion of signals whose values are printed in the recommendations or known by formula.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>
#include <random>
#include <vector>

#include "logic/Loudness.h"
#include "logic/ToneMeter.h"

namespace
{

using namespace workbench;

/// The sample of a frame and a channel.
using Signal = std::function<double(std::size_t frame, std::size_t channel)>;

double Amplitude(double decibels)
{
    return std::pow(10.0, decibels / 20.0);
}

Signal Sine(double hertz, double decibels, std::uint32_t rate)
{
    return [=](std::size_t frame, std::size_t) {
        return Amplitude(decibels) *
               std::sin(2.0 * std::numbers::pi * hertz * static_cast<double>(frame) / static_cast<double>(rate));
    };
}

template <class Meter> void Feed(Meter & meter, Signal const & signal, std::size_t frames, std::size_t channels)
{
    // Pieces of odd lengths: no meter may depend on how it is fed.
    constexpr std::array<std::size_t, 4> lengths = {1, 4801, 333, 20000};
    std::vector<double> samples;
    std::size_t piece = 0;
    for (std::size_t frame = 0; frame < frames;)
    {
        std::size_t const now = std::min(lengths[piece++ % lengths.size()], frames - frame);
        samples.clear();
        for (std::size_t i = frame; i < frame + now; ++i)
        {
            for (std::size_t channel = 0; channel < channels; ++channel)
                samples.push_back(signal(i, channel));
        }
        meter.Add(samples);
        frame += now;
    }
}

std::optional<double> LoudnessOf(Signal const & signal, double seconds, std::size_t channels,
                                 std::uint32_t rate = 48000)
{
    LoudnessMeter meter(rate, channels);
    Feed(meter, signal, static_cast<std::size_t>(seconds * rate), channels);
    return meter.Result();
}

/// A tone of 1,000 Hz in both channels whose level changes after a time: pairs of seconds and dBFS.
double LoudnessOfSteps(std::vector<std::pair<double, double>> const & steps)
{
    constexpr std::uint32_t rate = 48000;
    LoudnessMeter meter(rate, 2);
    for (auto const & [seconds, level] : steps)
        Feed(meter, Sine(1000, level, rate), static_cast<std::size_t>(seconds * rate), 2);
    return meter.Result().value_or(0.0);
}

ToneMeasures ToneOf(Signal const & signal, std::size_t frames, std::uint32_t rate = 48000, std::size_t channels = 1)
{
    ToneMeter meter(rate, channels, frames);
    Feed(meter, signal, frames, channels);
    return meter.Result();
}

/// A tone with harmonics of given amplitudes beside it, from the second on.
Signal ToneWithHarmonics(double hertz, std::vector<double> const & harmonics, std::uint32_t rate)
{
    return [=](std::size_t frame, std::size_t) {
        double const angle = 2.0 * std::numbers::pi * hertz * static_cast<double>(frame) / static_cast<double>(rate);
        double sample = std::sin(angle);
        for (std::size_t i = 0; i < harmonics.size(); ++i)
            sample += harmonics[i] * std::sin(static_cast<double>(i + 2) * angle + static_cast<double>(i));
        return 0.5 * sample;
    };
}

// Loudness. The printed values are those of the Recommendation and of EBU Tech 3341.

TEST(WorkbenchLoudness, TheFiltersAt48kHzAreThosePrinted)
{
    auto const [head, pass] = LoudnessWeighting(48000);
    constexpr double tolerance = 1e-10;
    EXPECT_NEAR(head.b0, 1.53512485958697, tolerance);
    EXPECT_NEAR(head.b1, -2.69169618940638, tolerance);
    EXPECT_NEAR(head.b2, 1.19839281085285, tolerance);
    EXPECT_NEAR(head.a1, -1.69065929318241, tolerance);
    EXPECT_NEAR(head.a2, 0.73248077421585, tolerance);
    EXPECT_EQ(pass.b0, 1.0);
    EXPECT_EQ(pass.b1, -2.0);
    EXPECT_EQ(pass.b2, 1.0);
    EXPECT_NEAR(pass.a1, -1.99004745483398, tolerance);
    EXPECT_NEAR(pass.a2, 0.99007225036621, tolerance);
}

TEST(WorkbenchLoudness, AFullScaleToneOf997HzInOneChannelIsMinus3Point01)
{
    for (std::uint32_t const rate : {8000U, 22050U, 44100U, 48000U, 96000U, 192000U})
        EXPECT_NEAR(LoudnessOf(Sine(997, 0.0, rate), 5.0, 1, rate).value_or(0.0), -3.01, 0.06) << rate;
}

TEST(WorkbenchLoudness, ToneInBothChannelsHasItsLevel)
{
    EXPECT_NEAR(LoudnessOfSteps({{20, -23}}), -23.0, 0.1);
    EXPECT_NEAR(LoudnessOfSteps({{20, -33}}), -33.0, 0.1);
}

TEST(WorkbenchLoudness, QuietPartsDoNotCount)
{
    EXPECT_NEAR(LoudnessOfSteps({{10, -36}, {60, -23}, {10, -36}}), -23.0, 0.1);
    EXPECT_NEAR(LoudnessOfSteps({{10, -72}, {10, -36}, {60, -23}, {10, -36}, {10, -72}}), -23.0, 0.1);
    EXPECT_NEAR(LoudnessOfSteps({{20, -26}, {20.1, -20}, {20, -26}}), -23.0, 0.1);
}

TEST(WorkbenchLoudness, SurroundChannelsCountMoreAndLowTonesNotAtAll)
{
    constexpr std::uint32_t rate = 48000;
    auto const signal = [](std::vector<double> const & levels) {
        return [levels](std::size_t frame, std::size_t channel) { return Sine(1000, levels[channel], rate)(frame, 0); };
    };
    EXPECT_NEAR(LoudnessOf(signal({-28, -28, -24, -30, -30}), 5, 5).value_or(0), -23.0, 0.1);
    EXPECT_NEAR(LoudnessOf(signal({-28, -28, -24, 0, -30, -30}), 5, 6).value_or(0), -23.0, 0.1);
    double const front = LoudnessOf(signal({-20, -200, -200, -200}), 5, 4).value_or(0);
    double const rear = LoudnessOf(signal({-200, -200, -200, -20}), 5, 4).value_or(0);
    EXPECT_NEAR(rear - front, 10.0 * std::log10(1.41), 0.01);
    // Of more channels than there is an order for, each counts the same.
    EXPECT_NEAR(LoudnessOf(signal(std::vector<double>(8, -23)), 5, 8).value_or(0), -23.0 + 10.0 * std::log10(4.0), 0.1);
}

TEST(WorkbenchLoudness, LowTonesLoseAndHighOnesGain)
{
    double const middle = LoudnessOf(Sine(997, -20, 48000), 5, 1).value_or(0);
    EXPECT_LT(LoudnessOf(Sine(30, -20, 48000), 5, 1).value_or(0), middle - 5.0);
    EXPECT_NEAR(LoudnessOf(Sine(8000, -20, 48000), 5, 1).value_or(0), middle + 3.3, 0.3);
}

TEST(WorkbenchLoudness, NothingForSilenceForLessThanABlockAndForLowRates)
{
    EXPECT_FALSE(LoudnessOf(Sine(997, 0, 48000), 0.399, 1));
    EXPECT_TRUE(LoudnessOf(Sine(997, 0, 48000), 0.4, 1));
    EXPECT_FALSE(LoudnessOf([](std::size_t, std::size_t) { return 0.0; }, 5, 2));
    EXPECT_FALSE(LoudnessOf(Sine(997, -75, 48000), 5, 1));
    EXPECT_FALSE(LoudnessOf(Sine(100, 0, 3999), 5, 1, 3999));
    EXPECT_FALSE(LoudnessOf(Sine(100, 0, 48000), 5, 0));
    EXPECT_FALSE(LoudnessMeter(0, 2).Result());
}

TEST(WorkbenchLoudness, SilenceAfterALoudPartDoesNotSlowDown)
{
    LoudnessMeter meter(48000, 1);
    Feed(meter, Sine(50, 0, 48000), 48000, 1);
    double const loud = meter.Result().value_or(0);
    Feed(
        meter, [](std::size_t, std::size_t) { return 0.0; }, 480000, 1);
    // Gated out, but for the blocks in which the tone still is.
    EXPECT_NEAR(meter.Result().value_or(0), loud, 3.0);
}

// Frequency and distortion

TEST(WorkbenchTone, FrequencyIsTheTonesWithinAHundredthOfABin)
{
    for (double const hertz : {50.0, 440.0, 997.0, 1000.3, 12345.678, 20000.0})
    {
        ToneMeasures const measures = ToneOf(Sine(hertz, -6, 48000), 480000);
        ASSERT_TRUE(measures.frequency) << hertz;
        EXPECT_NEAR(*measures.frequency, hertz, 48000.0 / 16384 / 100) << hertz;
    }
}

TEST(WorkbenchTone, TheStrongestOfSeveralTones)
{
    auto const signal = [](std::size_t frame, std::size_t) {
        return Sine(300, -12, 48000)(frame, 0) + Sine(4000, -10, 48000)(frame, 0) + 0.5;
    };
    EXPECT_NEAR(ToneOf(signal, 100000).frequency.value_or(0), 4000.0, 0.1);
}

TEST(WorkbenchTone, DistortionIsTheHarmonicsBesideTheTone)
{
    EXPECT_NEAR(ToneOf(ToneWithHarmonics(1000, {0.03, 0.04}, 48000), 200000).distortion.value_or(-1), 0.05, 1e-4);
    EXPECT_NEAR(ToneOf(ToneWithHarmonics(997, {0.001}, 48000), 200000).distortion.value_or(-1), 0.001, 2e-5);
    EXPECT_LT(ToneOf(ToneWithHarmonics(997, {}, 48000), 200000).distortion.value_or(-1), 1e-4);
    // A square wave's harmonics are 1/3, 1/5, 1/7 and 1/9, up to the tenth.
    std::vector<double> square;
    for (int harmonic = 2; harmonic <= 10; ++harmonic)
        square.push_back(harmonic % 2 == 1 ? 1.0 / harmonic : 0.0);
    double const expected = std::sqrt(1.0 / 9 + 1.0 / 25 + 1.0 / 49 + 1.0 / 81);
    EXPECT_NEAR(ToneOf(ToneWithHarmonics(1000, square, 48000), 200000).distortion.value_or(-1), expected, 1e-3);
}

TEST(WorkbenchTone, HarmonicsBeyondHalfTheRateDoNotCount)
{
    EXPECT_NEAR(ToneOf(ToneWithHarmonics(7000, {0.03, 0.04}, 48000), 200000).distortion.value_or(-1), 0.05, 1e-4);
    EXPECT_FALSE(ToneOf(Sine(13000, 0, 48000), 200000).distortion) << "no harmonic below 24,000 Hz";
}

TEST(WorkbenchTone, WhatIsNoToneHasNoDistortion)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> noise(-0.5, 0.5);
    EXPECT_FALSE(ToneOf([&](std::size_t, std::size_t) { return noise(random); }, 200000).distortion);
    auto const chord = [](std::size_t frame, std::size_t) {
        return Sine(1000, -12, 48000)(frame, 0) + Sine(1370, -12, 48000)(frame, 0) + Sine(2210, -12, 48000)(frame, 0);
    };
    EXPECT_FALSE(ToneOf(chord, 200000).distortion);
}

TEST(WorkbenchTone, NothingForSilenceAndTooFewSamples)
{
    EXPECT_EQ(ToneOf([](std::size_t, std::size_t) { return 0.0; }, 100000), ToneMeasures());
    EXPECT_EQ(ToneOf([](std::size_t, std::size_t) { return 0.25; }, 100000), ToneMeasures());
    EXPECT_EQ(ToneOf(Sine(1000, 0, 48000), 255), ToneMeasures());
    EXPECT_TRUE(ToneOf(Sine(3000, 0, 48000), 256).frequency);
    EXPECT_EQ(ToneMeter(0, 1, 100000).Result(), ToneMeasures());
    EXPECT_EQ(ToneMeter(48000, 0, 0).Result(), ToneMeasures());
}

TEST(WorkbenchTone, TheFirstChannelIsMeasured)
{
    auto const signal = [](std::size_t frame, std::size_t channel) {
        return Sine(channel == 0 ? 1000 : 5000, channel == 0 ? -20 : 0, 48000)(frame, 0);
    };
    EXPECT_NEAR(ToneOf(signal, 100000, 48000, 2).frequency.value_or(0), 1000.0, 0.1);
}

TEST(WorkbenchTone, PiecesAreSpreadOverTheWholeRecording)
{
    // The stronger tone is in the last tenth alone.
    constexpr std::size_t frames = 4800000;
    auto const signal = [](std::size_t frame, std::size_t) {
        return frame < frames / 10 * 9 ? Sine(500, -60, 48000)(frame, 0) : Sine(3000, -6, 48000)(frame, 0);
    };
    EXPECT_NEAR(ToneOf(signal, frames).frequency.value_or(0), 3000.0, 0.1);
}

TEST(WorkbenchTone, FewerFramesThanAnnouncedGiveWhatWasThere)
{
    ToneMeter meter(48000, 1, 1000000);
    Feed(meter, Sine(1000, 0, 48000), 20000, 1);
    EXPECT_NEAR(meter.Result().frequency.value_or(0), 1000.0, 0.1);
    ToneMeter none(48000, 1, 1000000);
    Feed(none, Sine(1000, 0, 48000), 1000, 1);
    EXPECT_EQ(none.Result(), ToneMeasures());
}

} // namespace
