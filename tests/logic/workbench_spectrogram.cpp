// The spectrogram against sines whose place is known, and against a plain transform of every window.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <functional>
#include <numbers>
#include <random>

#include "logic/Axis.h"
#include "logic/Fft.h"
#include "logic/Spectrogram.h"
#include "workbench_WavBuilder.h"

namespace
{

using namespace workbench;

constexpr double half_turn = std::numbers::pi;

using Signal = std::function<double(std::uint64_t frame)>;

Signal Sine(double hertz, double rate, double amplitude = 1.0)
{
    return [=](std::uint64_t frame) {
        return amplitude * std::sin(2 * half_turn * hertz * static_cast<double>(frame) / rate);
    };
}

double Silence(std::uint64_t)
{
    return 0.0;
}

std::vector<double> Samples(std::vector<Signal> const & channels, std::uint64_t frames)
{
    std::vector<double> samples;
    for (std::uint64_t frame = 0; frame < frames; ++frame)
    {
        for (auto const & channel : channels)
        {
            samples.push_back(channel(frame));
        }
    }
    return samples;
}

Spectrogram Build(std::vector<Signal> const & channels, std::uint32_t rate, std::uint64_t frames)
{
    SpectrogramBuilder builder(channels.size(), rate, frames);
    builder.Add(Samples(channels, frames));
    return builder.Finish();
}

std::size_t PeakRow(Spectrogram const & spectrogram, std::size_t column)
{
    std::size_t peak = 0;
    for (std::size_t row = 1; row < spectrogram.Rows(); ++row)
    {
        if (spectrogram.Entry(column, row) > spectrogram.Entry(column, peak))
        {
            peak = row;
        }
    }
    return peak;
}

int HighestEntry(Spectrogram const & spectrogram, std::size_t column)
{
    return spectrogram.Entry(column, PeakRow(spectrogram, column));
}

/// The level of every point in dBFS, by sums over every window.
std::vector<std::vector<double>> PlainLevels(std::vector<std::vector<double>> const & channels, std::size_t window,
                                             std::size_t frames)
{
    auto const size = static_cast<double>(window);
    std::vector<std::vector<double>> levels;
    for (std::size_t start = 0; start < frames; start += window / 2)
    {
        std::vector<double> & column = levels.emplace_back();
        for (std::size_t row = 0; row <= window / 2; ++row)
        {
            double highest = 0.0;
            for (std::vector<double> const & channel : channels)
            {
                std::complex<double> sum;
                for (std::size_t i = 0; i < window; ++i)
                {
                    auto const frame = static_cast<std::ptrdiff_t>(start + i) - static_cast<std::ptrdiff_t>(window / 4);
                    if (frame >= 0 && frame < static_cast<std::ptrdiff_t>(frames))
                    {
                        auto const place = static_cast<double>(i) / size;
                        sum += channel[static_cast<std::size_t>(frame)] *
                               (0.5 - 0.5 * std::cos(2 * half_turn * place)) *
                               std::polar(1.0, -2 * half_turn * place * static_cast<double>(row));
                    }
                }
                highest = std::max(highest, std::abs(sum));
            }
            // A sine of full scale has a quarter of the window's length.
            column.push_back(20.0 * std::log10(highest / (size / 4.0)));
        }
    }
    return levels;
}

/// Whether an entry belongs to a level, which may be so close to a boundary that either side is right.
bool Matches(int entry, double level)
{
    double const closeness = 0.01;
    return entry >= ScaleEntry(level - closeness) && entry <= ScaleEntry(level + closeness);
}

} // namespace

TEST(WorkbenchFft, IsTheSumOfTheDefinition)
{
    std::mt19937 random(1);
    for (std::size_t const size : {2U, 4U, 8U, 64U, 256U})
    {
        Fft const fft(size);
        ASSERT_EQ(fft.Size(), size);
        std::vector<float> real(size);
        std::vector<float> imaginary(size);
        for (std::size_t i = 0; i < size; ++i)
        {
            real[i] = static_cast<float>(random()) / 4294967296.0F - 0.5F;
            imaginary[i] = static_cast<float>(random()) / 4294967296.0F - 0.5F;
        }
        std::vector<float> const wasReal = real;
        std::vector<float> const wasImaginary = imaginary;
        fft.Transform(real, imaginary);
        for (std::size_t k = 0; k < size; ++k)
        {
            std::complex<double> sum;
            for (std::size_t n = 0; n < size; ++n)
            {
                sum += std::complex<double>(wasReal[n], wasImaginary[n]) *
                       std::polar(1.0, -2 * half_turn * static_cast<double>(k * n % size) / static_cast<double>(size));
            }
            ASSERT_NEAR(real[k], sum.real(), 2e-5) << size << ": " << k;
            ASSERT_NEAR(imaginary[k], sum.imag(), 2e-5) << size << ": " << k;
        }
    }
}

TEST(WorkbenchFft, SizesAreRoundedUpToPowersOfTwo)
{
    EXPECT_EQ(Fft(0).Size(), 2u);
    EXPECT_EQ(Fft(1).Size(), 2u);
    EXPECT_EQ(Fft(3).Size(), 4u);
    EXPECT_EQ(Fft(1000).Size(), 1024u);
    EXPECT_EQ(Fft(1025).Size(), 2048u);
}

TEST(WorkbenchFft, OtherLengthsAreLeftAlone)
{
    Fft const fft(4);
    std::vector<float> four{1, 2, 3, 4};
    std::vector<float> three{1, 2, 3};
    fft.Transform(four, three);
    EXPECT_EQ(four, (std::vector<float>{1, 2, 3, 4}));
    fft.Transform(three, four);
    EXPECT_EQ(four, (std::vector<float>{1, 2, 3, 4}));
    EXPECT_EQ(three, (std::vector<float>{1, 2, 3}));
}

TEST(Spectrogram, ScaleEntriesSpanThreeDecibelsFromMinus96)
{
    EXPECT_EQ(ScaleEntry(0.0), 31);
    EXPECT_EQ(ScaleEntry(20.0), 31);
    EXPECT_EQ(ScaleEntry(-2.9), 31);
    EXPECT_EQ(ScaleEntry(-3.0), 31);
    EXPECT_EQ(ScaleEntry(-3.1), 30);
    EXPECT_EQ(ScaleEntry(-47.9), 16);
    EXPECT_EQ(ScaleEntry(-92.9), 1);
    EXPECT_EQ(ScaleEntry(-93.1), 0);
    EXPECT_EQ(ScaleEntry(-96.0), 0);
    EXPECT_EQ(ScaleEntry(-500.0), 0);
    EXPECT_EQ(ScaleEntry(-std::numeric_limits<double>::infinity()), 0);
}

TEST(Spectrogram, WindowsLastAboutTwentyMilliseconds)
{
    EXPECT_EQ(SpectrogramWindow(8000), 256u);
    EXPECT_EQ(SpectrogramWindow(44100), 1024u);
    EXPECT_EQ(SpectrogramWindow(48000), 1024u);
    EXPECT_EQ(SpectrogramWindow(96000), 2048u);
    EXPECT_EQ(SpectrogramWindow(1), 64u);
    EXPECT_EQ(SpectrogramWindow(0xFFFFFFFF), 8192u);
}

TEST(Spectrogram, ASinePeaksAtItsFrequency)
{
    for (std::uint32_t const rate : {8000u, 44100u, 48000u, 96000u})
    {
        for (double const hertz : {200.0, 1000.0, 1234.5, 3500.0})
        {
            Spectrogram const spectrogram = Build({Sine(hertz, rate)}, rate, rate / 2);
            double const width = spectrogram.Frequency(1);
            ASSERT_NEAR(width, static_cast<double>(rate) / static_cast<double>(SpectrogramWindow(rate)), 1e-9);
            // The windows of the first column and of the last two reach beyond the recording.
            for (std::size_t column = 1; column + 2 < spectrogram.Columns(); ++column)
            {
                std::size_t const peak = PeakRow(spectrogram, column);
                ASSERT_NEAR(spectrogram.Frequency(peak), hertz, width) << rate << " Hz, column " << column;
                ASSERT_EQ(spectrogram.Entry(column, peak), 31) << "full scale";
                for (std::size_t row = 0; row < spectrogram.Rows(); ++row)
                {
                    if (std::abs(spectrogram.Frequency(row) - hertz) > 12 * width)
                    {
                        ASSERT_LT(spectrogram.Entry(column, row), 10) << "row " << row;
                    }
                }
            }
        }
    }
}

TEST(Spectrogram, FrequenciesReachFromZeroToHalfTheRate)
{
    Spectrogram const spectrogram = Build({Silence}, 48000, 4800);
    EXPECT_EQ(spectrogram.Rows(), 513u);
    EXPECT_EQ(spectrogram.Frequency(0), 0.0);
    EXPECT_NEAR(spectrogram.Frequency(512), 24000.0, 1e-9);
    EXPECT_EQ(PeakRow(Build({[](std::uint64_t) { return 0.5; }}, 48000, 4800), 5), 0u);
    EXPECT_EQ(PeakRow(Build({[](std::uint64_t frame) { return frame % 2 == 0 ? 0.5 : -0.5; }}, 48000, 4800), 5), 512u);
}

TEST(Spectrogram, LevelsAreThoseOfTheSine)
{
    // On a row's own frequency nothing is lost between rows.
    for (auto const & [amplitude, entry] :
         {std::pair(1.0, 31), {0.5, 29}, {0.1, 25}, {0.01, 18}, {0.001, 12}, {1e-5, 0}})
    {
        Spectrogram const spectrogram = Build({Sine(64 * 48000.0 / 1024, 48000, amplitude)}, 48000, 20000);
        EXPECT_EQ(spectrogram.Entry(10, 64), entry) << amplitude;
    }
}

TEST(Spectrogram, SilenceIsTheLowestEntryEverywhere)
{
    Spectrogram const spectrogram = Build({Silence, Silence}, 44100, 50000);
    ASSERT_EQ(spectrogram.Columns(), 98u);
    for (std::size_t column = 0; column < spectrogram.Columns(); ++column)
    {
        EXPECT_EQ(HighestEntry(spectrogram, column), 0);
    }
}

TEST(Spectrogram, EveryPointIsThatOfAPlainTransform)
{
    std::mt19937 random(7);
    for (std::size_t const channels : {1u, 2u, 3u})
    {
        for (std::size_t const frames : {1u, 20u, 31u, 32u, 33u, 64u, 700u})
        {
            std::vector<std::vector<double>> parts(channels);
            std::vector<double> samples(channels * frames);
            for (std::size_t i = 0; i < samples.size(); ++i)
            {
                samples[i] =
                    (static_cast<double>(random()) / 2147483648.0 - 1.0) * std::pow(0.1, i * 4 / samples.size());
                parts[i % channels].push_back(samples[i]);
            }
            SpectrogramBuilder builder(channels, 3200, frames);
            builder.Add(samples);
            Spectrogram const spectrogram = builder.Finish();
            std::vector<std::vector<double>> const levels = PlainLevels(parts, 64, frames);
            ASSERT_EQ(spectrogram.Columns(), levels.size());
            ASSERT_EQ(spectrogram.Rows(), 33u);
            for (std::size_t column = 0; column < levels.size(); ++column)
            {
                for (std::size_t row = 0; row < 33; ++row)
                {
                    ASSERT_TRUE(Matches(spectrogram.Entry(column, row), levels[column][row]))
                        << channels << " channels, " << frames << " frames, column " << column << ", row " << row
                        << ": " << spectrogram.Entry(column, row) << " for " << levels[column][row];
                }
            }
        }
    }
}

TEST(Spectrogram, AColumnOfALongRecordingShowsTheLoudestOfItsWindows)
{
    // 64 frames a window, 32 from one to the next: 5,000 windows for 2,048 columns.
    constexpr std::uint64_t frames = 160'000;
    std::mt19937 random(9);
    std::vector<double> samples(frames);
    for (double & sample : samples)
    {
        sample = static_cast<double>(random()) / 2147483648.0 - 1.0;
    }
    SpectrogramBuilder builder(1, 3200, frames);
    builder.Add(samples);
    Spectrogram const spectrogram = builder.Finish();
    ASSERT_EQ(spectrogram.Columns(), 2048u);
    std::vector<std::vector<double>> const levels = PlainLevels({samples}, 64, frames);
    ASSERT_EQ(levels.size(), 5000u);
    for (std::size_t row = 0; row < 33; ++row)
    {
        std::vector<double> expected(2048, -500.0);
        for (std::size_t window = 0; window < levels.size(); ++window)
        {
            double & level = expected[window * 2048 / 5000];
            level = std::max(level, levels[window][row]);
        }
        for (std::size_t column = 0; column < 2048; ++column)
        {
            ASSERT_TRUE(Matches(spectrogram.Entry(column, row), expected[column])) << column << ", " << row;
        }
    }
    EXPECT_EQ(spectrogram.ColumnOfFrame(0), 0u);
    EXPECT_EQ(spectrogram.ColumnOfFrame(32000), 1000u * 2048 / 5000);
    EXPECT_EQ(spectrogram.ColumnOfFrame(frames - 1), 2047u);
    EXPECT_EQ(spectrogram.ColumnOfFrame(frames * 10), 2047u);
}

TEST(Spectrogram, AClickInALongRecordingIsNotLost)
{
    constexpr std::uint64_t frames = 3'000'000;
    constexpr std::uint64_t click = 1'777'777;
    SpectrogramBuilder builder(1, 48000, frames);
    std::vector<double> block(30000);
    for (std::uint64_t start = 0; start < frames; start += block.size())
    {
        std::fill(block.begin(), block.end(), 0.0);
        if (click >= start && click < start + block.size())
        {
            block[click - start] = 1.0;
        }
        builder.Add(block);
    }
    Spectrogram const spectrogram = builder.Finish();
    ASSERT_EQ(spectrogram.Columns(), Spectrogram::maximum_columns);
    std::size_t const column = spectrogram.ColumnOfFrame(click);
    EXPECT_EQ(column, click / 512 * 2048 / (frames / 512 + 1));
    EXPECT_GT(spectrogram.Entry(column, 300), 10);
    EXPECT_EQ(HighestEntry(spectrogram, column + 3), 0);
    EXPECT_EQ(HighestEntry(spectrogram, column - 3), 0);
}

TEST(Spectrogram, TheWholeRecordingIsCovered)
{
    auto const atTheEnd = [](std::uint64_t frame) { return frame >= 99'900 ? Sine(5000, 48000)(frame) : 0.0; };
    Spectrogram const spectrogram = Build({atTheEnd}, 48000, 100'000);
    EXPECT_GT(HighestEntry(spectrogram, spectrogram.Columns() - 1), 20);
    EXPECT_EQ(HighestEntry(spectrogram, spectrogram.Columns() - 4), 0);
    auto const atTheStart = [](std::uint64_t frame) { return frame < 100 ? Sine(5000, 48000)(frame) : 0.0; };
    EXPECT_GT(HighestEntry(Build({atTheStart}, 48000, 100'000), 0), 20);
}

TEST(Spectrogram, ARecordingShorterThanAWindowIsOneColumn)
{
    for (std::uint64_t const frames : {1u, 2u, 100u, 511u, 512u})
    {
        Spectrogram const spectrogram = Build({[](std::uint64_t) { return 1.0; }}, 48000, frames);
        ASSERT_EQ(spectrogram.Columns(), 1u) << frames;
        EXPECT_EQ(spectrogram.Frames(), frames);
        EXPECT_GT(HighestEntry(spectrogram, 0), 10) << frames;
        EXPECT_EQ(spectrogram.Picture(7, 3).size(), 21u);
    }
    EXPECT_EQ(Build({Silence}, 48000, 513).Columns(), 2u);
}

TEST(Spectrogram, BothChannelsAreSeen)
{
    Spectrogram const spectrogram = Build({Sine(1500, 48000), Sine(6000, 48000)}, 48000, 48000);
    auto const row = [](double hertz) { return static_cast<std::size_t>(std::lround(hertz * 1024 / 48000)); };
    for (std::size_t column = 1; column + 1 < spectrogram.Columns(); ++column)
    {
        EXPECT_EQ(spectrogram.Entry(column, row(1500)), 31);
        EXPECT_EQ(spectrogram.Entry(column, row(6000)), 31);
        EXPECT_LT(spectrogram.Entry(column, row(3750)), 5);
    }
}

TEST(Spectrogram, OppositeChannelsDoNotCancel)
{
    Signal const sine = Sine(3000, 48000);
    Spectrogram const spectrogram = Build({sine, [=](std::uint64_t frame) { return -sine(frame); }}, 48000, 10000);
    EXPECT_EQ(spectrogram.Entry(5, 64), 31);
}

TEST(Spectrogram, OfManyChannelsTheFirst32Count)
{
    std::vector<Signal> channels(40, Silence);
    channels[31] = Sine(3000, 48000);
    EXPECT_EQ(Build(channels, 48000, 5000).Entry(5, 64), 31);
    channels[31] = Silence;
    channels[32] = Sine(3000, 48000);
    EXPECT_EQ(Build(channels, 48000, 5000).Entry(5, 64), 0);
}

TEST(Spectrogram, WithoutSampleRateOrSamplesThereIsNothing)
{
    for (Spectrogram const & empty : {Build({Sine(1, 10)}, 0, 1000), Build({}, 48000, 0), Spectrogram()})
    {
        EXPECT_EQ(empty.Columns(), 0u);
        EXPECT_EQ(empty.Rows(), 0u);
        EXPECT_EQ(empty.Entry(0, 0), 0);
        EXPECT_EQ(empty.Frequency(0), 0.0);
        EXPECT_EQ(empty.ColumnOfFrame(5), 0u);
        EXPECT_TRUE(empty.Picture(10, 10).empty());
    }
}

TEST(Spectrogram, OddSampleRatesAreTakenAsTheyAre)
{
    Spectrogram const slow = Build({Sine(0.25, 1)}, 1, 1000);
    EXPECT_NEAR(slow.Frequency(slow.Rows() - 1), 0.5, 1e-9);
    EXPECT_NEAR(slow.Frequency(PeakRow(slow, 10)), 0.25, 1.0 / 64);
    Spectrogram const fast = Build({Sine(1e9, 0xFFFFFFFF)}, 0xFFFFFFFF, 100'000);
    EXPECT_NEAR(fast.Frequency(PeakRow(fast, 10)), 1e9, 4294967295.0 / 8192);
    EXPECT_EQ(fast.SampleRate(), 0xFFFFFFFFu);
}

TEST(Spectrogram, SamplesMayComeInAnyPortions)
{
    std::vector<double> const samples = Samples({Sine(440, 8000), Sine(1000, 8000, 0.1)}, 10'000);
    std::vector<std::uint8_t> const whole =
        Build({Sine(440, 8000), Sine(1000, 8000, 0.1)}, 8000, 10'000).Picture(200, 129);
    for (std::size_t const portion : {2u, 6u, 1000u, 1024u})
    {
        SpectrogramBuilder builder(2, 8000, 10'000);
        std::span<double const> left(samples);
        while (!left.empty())
        {
            std::size_t const count = std::min(portion, left.size());
            builder.Add(left.first(count));
            left = left.subspan(count);
        }
        EXPECT_EQ(builder.Finish().Picture(200, 129), whole) << portion;
    }
}

TEST(Spectrogram, SamplesBeyondTheAnnouncedAndPartsOfFramesAreLeftOut)
{
    std::vector<double> const samples = Samples({Sine(1000, 8000), Silence}, 2000);
    SpectrogramBuilder exact(2, 8000, 1000);
    exact.Add(std::span(samples).first(2000));
    SpectrogramBuilder more(2, 8000, 1000);
    more.Add(std::span(samples).first(601)); // half a frame more
    more.Add(std::span(samples).subspan(600));
    more.Add(samples);
    EXPECT_EQ(more.Finish().Picture(50, 50), exact.Finish().Picture(50, 50));
}

TEST(Spectrogram, MissingSamplesAreSilent)
{
    SpectrogramBuilder builder(1, 8000, 8000);
    builder.Add(Samples({Sine(1000, 8000)}, 4000));
    Spectrogram const spectrogram = builder.Finish();
    ASSERT_EQ(spectrogram.Columns(), 63u);
    EXPECT_EQ(HighestEntry(spectrogram, 30), 31);
    EXPECT_EQ(HighestEntry(spectrogram, 33), 0);
    EXPECT_EQ(HighestEntry(spectrogram, 62), 0);
}

TEST(Spectrogram, APictureHasTimeToTheRightAndFrequencyUpwards)
{
    auto const second = [](std::uint64_t frame) { return frame >= 24000 ? Sine(12000, 48000)(frame) : 0.0; };
    Spectrogram const spectrogram = Build({second}, 48000, 48000);
    for (auto const & size : {std::pair<std::size_t, std::size_t>(40, 20), {94, 513}, {300, 1000}, {1, 1}})
    {
        std::size_t const width = size.first;
        std::size_t const height = size.second;
        std::vector<std::uint8_t> const picture = spectrogram.Picture(width, height);
        ASSERT_EQ(picture.size(), width * height);
        // The highest entry between two heights, 0 at the top.
        auto const highest = [&](double x, double top, double bottom) {
            auto const column = static_cast<std::size_t>(x * static_cast<double>(width));
            std::uint8_t found = 0;
            for (auto y = static_cast<std::size_t>(top * static_cast<double>(height));
                 y < static_cast<std::size_t>(bottom * static_cast<double>(height)); ++y)
            {
                found = std::max(found, picture[y * width + column]);
            }
            return static_cast<int>(found);
        };
        if (width == 1)
        {
            EXPECT_EQ(picture[0], 31);
            continue;
        }
        EXPECT_EQ(highest(0.75, 0.4, 0.6), 31) << width;
        EXPECT_EQ(highest(0.25, 0.0, 1.0), 0) << width;
        EXPECT_LT(highest(0.75, 0.0, 0.4), 5) << width;
        EXPECT_LT(highest(0.75, 0.6, 1.0), 5) << width;
    }
    EXPECT_TRUE(spectrogram.Picture(0, 5).empty());
}

TEST(Spectrogram, ASmallPictureKeepsThePeaks)
{
    auto const click = [](std::uint64_t frame) { return frame == 5000 ? 1.0 : 0.0; };
    Spectrogram const spectrogram = Build({click}, 8000, 800'000);
    std::vector<std::uint8_t> const picture = spectrogram.Picture(100, 4);
    EXPECT_GT(picture[0], 10);
    EXPECT_GT(picture[300], 10);
    EXPECT_EQ(picture[1], 0);
    EXPECT_EQ(std::count_if(picture.begin(), picture.end(), [](auto entry) { return entry > 0; }), 4);
}

TEST(Spectrogram, APictureOfFewColumnsAndRowsHasPointsOfTheirSize)
{
    // Three windows, of which the last one reaches beyond the end: frames 0 to 31, 32 to 63 and 64 to 79.
    auto const impulse = [](std::uint64_t frame) { return frame == 72 ? 1.0 : 0.0; };
    Spectrogram const spectrogram = Build({impulse}, 3200, 80);
    ASSERT_EQ(spectrogram.Columns(), 3u);
    std::vector<std::uint8_t> const picture = spectrogram.Picture(80, 33);
    for (std::size_t x = 0; x < 80; ++x)
    {
        EXPECT_EQ(picture[std::size_t{16} * 80 + x], spectrogram.Entry(x / 32, 16)) << x;
    }
    std::vector<std::uint8_t> const tall = spectrogram.Picture(3, 66);
    for (std::size_t y = 0; y < 66; ++y)
    {
        EXPECT_EQ(tall[y * 3 + 2], spectrogram.Entry(2, (65 - y) / 2)) << y;
    }
}

TEST(Spectrogram, APointOfAPictureIsTheHighestOfThoseThatFallOnIt)
{
    // Whole windows, so that columns and frames share their edges.
    constexpr std::uint64_t frames = 2880;
    std::mt19937 random(11);
    Spectrogram const spectrogram = Build(
        {[&](std::uint64_t) { return std::pow(static_cast<double>(random()) / 4294967296.0, 20); }}, 3200, frames);
    ASSERT_EQ(spectrogram.Columns(), 90u);
    ASSERT_EQ(spectrogram.Rows(), 33u);
    // Points per place, both ends within; a place has one at least.
    auto const range = [](std::size_t at, std::size_t places, std::size_t points) {
        auto const part = static_cast<double>(points) / static_cast<double>(places);
        auto const first = static_cast<std::size_t>(std::floor(static_cast<double>(at) * part + 1e-9));
        auto const end = static_cast<std::size_t>(std::floor(static_cast<double>(at + 1) * part + 1e-9));
        return std::pair(first, end > first ? end - 1 : first);
    };
    for (std::size_t const width : {1u, 2u, 9u, 30u, 90u, 180u})
    {
        for (std::size_t const height : {1u, 2u, 5u, 16u, 33u, 50u})
        {
            std::vector<std::uint8_t> const picture = spectrogram.Picture(width, height);
            for (std::size_t x = 0; x < width; ++x)
            {
                for (std::size_t y = 0; y < height; ++y)
                {
                    auto const [firstColumn, lastColumn] = range(x, width, 90);
                    auto const [firstRow, lastRow] = range(height - 1 - y, height, 33);
                    int highest = 0;
                    for (std::size_t column = firstColumn; column <= lastColumn; ++column)
                    {
                        for (std::size_t row = firstRow; row <= lastRow; ++row)
                        {
                            highest = std::max(highest, spectrogram.Entry(column, row));
                        }
                    }
                    ASSERT_EQ(picture[y * width + x], highest) << width << " x " << height << ": " << x << ", " << y;
                }
            }
        }
    }
}

TEST(Spectrogram, OutsideThereIsTheLowestEntry)
{
    Spectrogram const spectrogram = Build({[](std::uint64_t) { return 1.0; }}, 48000, 5000);
    EXPECT_EQ(spectrogram.Entry(1, 0), 31);
    EXPECT_EQ(spectrogram.Entry(0, spectrogram.Rows()), 0);
    EXPECT_EQ(spectrogram.Entry(spectrogram.Columns(), 0), 0);
}

TEST(SpectrogramAnalyser, ReadsARecordingInStepsAndTellsItsProgress)
{
    std::vector<std::int16_t> samples(100'000);
    for (std::size_t i = 0; i < samples.size(); ++i)
    {
        samples[i] =
            static_cast<std::int16_t>(32767 * std::sin(2 * half_turn * 1000.0 * static_cast<double>(i) / 8000));
    }
    auto const file = wav::File().Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16)).Chunk("data", wav::Samples16(samples));
    SpectrogramAnalyser analyser(wav::Source(file.Content()));
    EXPECT_FALSE(analyser.Problem());
    EXPECT_EQ(analyser.Progress(), 0.0);
    double previous = 0.0;
    int steps = 0;
    while (analyser.Step())
    {
        ++steps;
        EXPECT_GT(analyser.Progress(), previous);
        previous = analyser.Progress();
    }
    EXPECT_EQ(steps, 4); // 100,000 samples of which a step takes 32,768
    EXPECT_EQ(analyser.Progress(), 1.0);
    EXPECT_EQ(analyser.Info().sampleRate, 8000u);
    Spectrogram const spectrogram = analyser.Take();
    EXPECT_EQ(spectrogram.Frames(), 100'000u);
    EXPECT_EQ(PeakRow(spectrogram, 100), 32u);
}

TEST(SpectrogramAnalyser, AStepTakesAsManySamplesWhateverTheChannels)
{
    std::vector<std::int16_t> samples(200'000);
    for (std::size_t frame = 90'000; frame < 100'000; ++frame)
    {
        samples[2 * frame + 1] =
            static_cast<std::int16_t>(32767 * std::sin(2 * half_turn * 1000.0 * static_cast<double>(frame) / 8000));
    }
    auto const file = wav::File().Chunk("fmt ", wav::Format(1, 2, 8000, 4, 16)).Chunk("data", wav::Samples16(samples));
    SpectrogramAnalyser analyser(wav::Source(file.Content()));
    int steps = 0;
    while (analyser.Step())
    {
        ++steps;
    }
    EXPECT_EQ(steps, 7); // 200,000 samples of which a step takes 32,768
    Spectrogram const spectrogram = analyser.Take();
    EXPECT_EQ(HighestEntry(spectrogram, spectrogram.ColumnOfFrame(89'000)), 0);
    EXPECT_EQ(spectrogram.Entry(spectrogram.ColumnOfFrame(91'000), 32), 31);
    EXPECT_EQ(spectrogram.Entry(spectrogram.ColumnOfFrame(99'000), 32), 31);
}

TEST(SpectrogramAnalyser, GivesTheProblemOfAFileThatCannotBeRead)
{
    SpectrogramAnalyser none(std::unique_ptr<ByteSource>{});
    ASSERT_TRUE(none.Problem());
    EXPECT_EQ(none.Problem()->fault, ReadFault::cannot_be_opened);
    EXPECT_FALSE(none.Step());
    EXPECT_EQ(none.Progress(), 1.0);
    EXPECT_EQ(none.Info().frames, 0u);
    EXPECT_EQ(none.Take().Columns(), 0u);
    EXPECT_EQ(SpectrogramAnalyser(std::filesystem::path("missing.wav")).Problem()->fault, ReadFault::cannot_be_opened);
}

TEST(FrequencyTicks, StandAtRoundNumbersAndKeepTheirDistance)
{
    EXPECT_EQ(FrequencyTicks(24000, 240, 40),
              (std::vector<FrequencyTick>{
                  {0, L"0 Hz"}, {50, L"5 kHz"}, {100, L"10 kHz"}, {150, L"15 kHz"}, {200, L"20 kHz"}}));
    EXPECT_EQ(FrequencyTicks(24000, 240, 50), FrequencyTicks(24000, 240, 40));
    EXPECT_EQ(FrequencyTicks(24000, 240, 51).size(), 3u);
    EXPECT_EQ(FrequencyTicks(4000, 400, 50), (std::vector<FrequencyTick>{{0, L"0 Hz"},
                                                                         {50, L"500 Hz"},
                                                                         {100, L"1 kHz"},
                                                                         {150, L"1.5 kHz"},
                                                                         {200, L"2 kHz"},
                                                                         {250, L"2.5 kHz"},
                                                                         {300, L"3 kHz"},
                                                                         {350, L"3.5 kHz"},
                                                                         {400, L"4 kHz"}}));
    EXPECT_EQ(FrequencyTicks(0.5, 100, 40),
              (std::vector<FrequencyTick>{{0, L"0 Hz"}, {40, L"0.2 Hz"}, {80, L"0.4 Hz"}}));
    EXPECT_EQ(FrequencyTicks(2e9, 200, 90),
              (std::vector<FrequencyTick>{{0, L"0 Hz"}, {100, L"1 GHz"}, {200, L"2 GHz"}}));
    EXPECT_EQ(FrequencyTicks(2e6, 400, 90),
              (std::vector<FrequencyTick>{
                  {0, L"0 Hz"}, {100, L"500 kHz"}, {200, L"1 MHz"}, {300, L"1.5 MHz"}, {400, L"2 MHz"}}));
    EXPECT_EQ(FrequencyTicks(22050, 100, 90), (std::vector<FrequencyTick>{{0, L"0 Hz"}, {91, L"20 kHz"}}));
    EXPECT_EQ(FrequencyTicks(900, 100, 60), (std::vector<FrequencyTick>{{0, L"0 Hz"}}));
}

TEST(FrequencyTicks, AreNoneWithoutRoom)
{
    EXPECT_TRUE(FrequencyTicks(0, 100, 10).empty());
    EXPECT_TRUE(FrequencyTicks(-1, 100, 10).empty());
    EXPECT_TRUE(FrequencyTicks(100, 0, 10).empty());
    EXPECT_TRUE(FrequencyTicks(100, 100, 0).empty());
}
