// Analysis frames: of signals whose measures are known by formula, and of recordings that are not what they should be.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <numbers>
#include <random>
#include <stdexcept>

#include "logic/FrameMeasures.h"
#include "logic/FrameMeasuresJob.h"
#include "logic/LevelMeter.h"
#include "workbench_WavBuilder.h"

namespace
{

using namespace workbench;

constexpr std::uint32_t usual_rate = 48000;

/// The sample of a frame and a channel.
using Signal = std::function<double(std::uint64_t frame, std::size_t channel)>;

Signal Sine(double hertz, double amplitude)
{
    return [=](std::uint64_t frame, std::size_t) {
        return amplitude * std::sin(2.0 * std::numbers::pi * hertz * static_cast<double>(frame) / usual_rate);
    };
}

std::vector<FrameMeasures> RowsOf(Signal const & signal, std::uint64_t frames, std::size_t channels = 1,
                                  FrameSettings const & settings = {}, std::uint64_t announced = 0)
{
    FrameMeter meter(usual_rate, channels, std::max(frames, announced), settings);
    std::vector<FrameMeasures> rows;
    // Pieces of odd lengths: nothing may depend on how it is fed.
    constexpr std::array<std::uint64_t, 4> lengths = {1, 4801, 333, 20000};
    std::vector<double> samples;
    std::size_t piece = 0;
    for (std::uint64_t frame = 0; frame < frames;)
    {
        std::size_t const now = std::min(lengths[piece++ % lengths.size()], frames - frame);
        samples.clear();
        for (std::uint64_t i = frame; i < frame + now; ++i)
        {
            for (std::size_t channel = 0; channel < channels; ++channel)
                samples.push_back(signal(i, channel));
        }
        meter.Add(samples, rows);
        frame += now;
    }
    meter.Finish(rows);
    return rows;
}

double Decibels(float amplitude)
{
    return AmplitudeToDecibels(static_cast<double>(amplitude));
}

/// A recording of one channel with 16 bits.
wav::File Recording(std::size_t frames, std::uint32_t rate = usual_rate)
{
    std::vector<std::int16_t> samples(frames);
    for (std::size_t i = 0; i < frames; ++i)
        samples[i] = static_cast<std::int16_t>(i % 48 < 24 ? 8192 : -8192);
    return wav::File().Chunk("fmt ", wav::Format(1, 1, rate, 2, 16)).Chunk("data", wav::Samples16(samples));
}

std::vector<FrameMeasures> ReadAll(FrameAnalyser & analyser)
{
    std::vector<FrameMeasures> rows;
    while (analyser.Step(rows))
        continue;
    return rows;
}

/// Gives fewer bytes than its size says, as a file does that another program shortens.
class ShrunkSource : public wav::OwningSource
{
public:
    ShrunkSource(wav::Bytes bytes, std::uint64_t end) : OwningSource(std::move(bytes)), m_end(end) {}
    std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        std::size_t const room = m_end - std::min(offset, m_end);
        return OwningSource::Read(offset,
                                  buffer.first(static_cast<std::size_t>(std::min<std::uint64_t>(room, buffer.size()))));
    }

private:
    std::uint64_t m_end;
};

} // namespace

TEST(WorkbenchFrameRaster, ARowStandsForEachMillisecond)
{
    FrameRaster const raster(48000, 48000, 1000);
    EXPECT_EQ(raster.Rows(), 1000u);
    EXPECT_EQ(raster.FrameOf(10), 480u);
    EXPECT_DOUBLE_EQ(raster.TimeOf(999), 0.999);
    FrameRaster const odd(44100, 44100, 1000);
    EXPECT_EQ(odd.Rows(), 1000u);
    EXPECT_EQ(odd.FrameOf(1), 44u) << "44.1 of them a row";
    EXPECT_EQ(odd.FrameOf(10), 441u);
    EXPECT_EQ(FrameRaster(48000, 1, 1000).Rows(), 1u);
    EXPECT_EQ(FrameRaster(48000, 49, 1000).Rows(), 2u);
    EXPECT_EQ(FrameRaster(48000, 0, 1000).Rows(), 0u);
    EXPECT_EQ(FrameRaster(0, 48000, 1000).Rows(), 0u);
    EXPECT_EQ(FrameRaster(48000, 48000, 0).Rows(), 1000u) << "no step is the usual one";
    EXPECT_EQ(FrameRaster(48000, 48000, 20000).Rows(), 50u);
}

TEST(WorkbenchFrameRaster, EveryRowIsTheNearestOfItsOwnFrame)
{
    for (unsigned int const rate : {11025u, 44100u, 48000u, 96000u, 700u})
    {
        FrameRaster const raster(rate, rate * 3ull, 1000);
        for (std::uint64_t row = 0; row < raster.Rows(); ++row)
            ASSERT_EQ(raster.RowAt(raster.FrameOf(row)), row) << rate;
        EXPECT_EQ(raster.RowAt(rate * 10ull), raster.Rows() - 1);
    }
    FrameRaster const raster(48000, 48000, 1000);
    EXPECT_EQ(raster.RowAt(23), 0u);
    EXPECT_EQ(raster.RowAt(25), 1u);
    EXPECT_EQ(raster.RowAt(71), 1u);
    EXPECT_EQ(raster.RowAt(73), 2u);
    EXPECT_EQ(FrameRaster().RowAt(5), 0u);
}

TEST(WorkbenchFrameRaster, ALongRecordingHasLongerStepsInPlaceOfMoreRows)
{
    FrameRaster const slow(8000, 4'000'000'000, 1000);
    EXPECT_LE(slow.Rows(), FrameRaster::most_rows);
    EXPECT_GT(slow.Rows(), FrameRaster::most_rows / 2);
    EXPECT_LT(slow.FrameOf(slow.Rows() - 1), 4'000'000'000u);
    // Not more rows than frames either.
    FrameRaster const few(1, 60, 1000);
    EXPECT_EQ(few.Rows(), 60u);
}

TEST(WorkbenchFrameMeasures, ASineHasItsLevelsAndItsFrequency)
{
    for (double const hertz : {187.5, 440.0, 1000.0, 5017.3, 17777.0})
    {
        std::vector<FrameMeasures> const rows = RowsOf(Sine(hertz, 0.5), usual_rate);
        ASSERT_EQ(rows.size(), 1000u);
        for (FrameMeasures const & row : rows)
        {
            EXPECT_NEAR(Decibels(row.peak), -6.02, 0.05) << hertz;
            EXPECT_NEAR(Decibels(row.rms), -9.03, 0.15) << hertz;
            EXPECT_NEAR(static_cast<double>(row.frequency), hertz, std::max(0.001 * hertz, 1.5));
            EXPECT_NEAR(static_cast<double>(row.centroid), hertz, std::max(0.01 * hertz, 3.0));
        }
    }
}

TEST(WorkbenchFrameMeasures, TheCentroidOfTwoTonesLiesBetweenThemByTheirPowers)
{
    // Both have whole periods in a window of 1,024.
    Signal const strong = Sine(3000, 0.6);
    Signal const weak = Sine(9000, 0.3);
    std::vector<FrameMeasures> const rows =
        RowsOf([&](auto frame, auto channel) { return strong(frame, channel) + weak(frame, channel); }, 24000);
    for (FrameMeasures const & row : rows)
    {
        EXPECT_NEAR(static_cast<double>(row.frequency), 3000, 0.1);
        EXPECT_NEAR(static_cast<double>(row.centroid), (3000 * 0.36 + 9000 * 0.09) / 0.45, 1);
        EXPECT_NEAR(Decibels(row.rms), 10 * std::log10(0.45 / 2), 0.01);
    }
}

TEST(WorkbenchFrameMeasures, AConstantPartCountsForLevelsAlone)
{
    Signal const tone = Sine(1500, 0.25);
    std::vector<FrameMeasures> const rows =
        RowsOf([&](auto frame, auto channel) { return 0.5 + tone(frame, channel); }, 9600);
    for (FrameMeasures const & row : rows)
    {
        EXPECT_NEAR(static_cast<double>(row.peak), 0.75, 0.001);
        EXPECT_NEAR(static_cast<double>(row.rms), std::sqrt(0.25 + 0.0625 / 2), 1e-4);
        EXPECT_NEAR(static_cast<double>(row.frequency), 1500, 0.1);
        EXPECT_NEAR(static_cast<double>(row.centroid), 1500, 1);
    }
    for (FrameMeasures const & row : RowsOf([](auto, auto) { return 0.5; }, 9600))
    {
        EXPECT_EQ(row.peak, 0.5F);
        EXPECT_EQ(row.rms, 0.5F);
        EXPECT_TRUE(std::isnan(row.frequency));
        EXPECT_TRUE(std::isnan(row.centroid));
    }
}

TEST(WorkbenchFrameMeasures, SilenceHasNoFrequency)
{
    for (FrameMeasures const & row : RowsOf([](auto, auto) { return 0.0; }, 9600))
    {
        EXPECT_EQ(row.peak, 0.0F);
        EXPECT_EQ(row.rms, 0.0F);
        EXPECT_TRUE(std::isnan(row.frequency));
        EXPECT_TRUE(std::isnan(row.centroid));
    }
}

TEST(WorkbenchFrameMeasures, WhiteNoiseHasItsCentroidInTheMiddle)
{
    std::mt19937 random(7);
    std::normal_distribution<double> noise(0, 0.1);
    std::vector<FrameMeasures> const rows = RowsOf([&](auto, auto) { return noise(random); }, usual_rate);
    double sum = 0;
    for (FrameMeasures const & row : rows)
        sum += static_cast<double>(row.centroid);
    EXPECT_NEAR(sum / static_cast<double>(rows.size()), 12000, 120);
}

TEST(WorkbenchFrameMeasures, AWindowLiesAroundItsRow)
{
    // Silence but for one sample: seen by the windows that it lies in, 512 frames to each side.
    constexpr std::uint64_t click = 24000;
    std::vector<FrameMeasures> const rows =
        RowsOf([](auto frame, auto) { return frame == click ? 1.0 : 0.0; }, usual_rate);
    for (std::size_t row = 0; row < rows.size(); ++row)
    {
        auto const start = static_cast<long long>(row) * 48 - 512;
        bool const sees = start <= static_cast<long long>(click) && static_cast<long long>(click) < start + 1024;
        EXPECT_EQ(rows[row].peak, sees ? 1.0F : 0.0F) << row;
        if (sees)
        {
            EXPECT_NEAR(static_cast<double>(rows[row].rms), 1.0 / 32, 1e-6);
        }
    }
}

TEST(WorkbenchFrameMeasures, ChannelsCountTogether)
{
    Signal const left = Sine(750, 0.1);
    Signal const right = Sine(6000, 0.8);
    std::vector<FrameMeasures> const rows = RowsOf(
        [&](auto frame, auto channel) { return channel == 0   ? left(frame, 0)
                                               : channel == 1 ? right(frame, 0)
                                                              : 0.0; },
        9600, 3);
    ASSERT_EQ(rows.size(), 200u);
    for (FrameMeasures const & row : rows)
    {
        EXPECT_NEAR(static_cast<double>(row.peak), 0.8, 0.001);
        EXPECT_NEAR(static_cast<double>(row.rms), std::sqrt((0.01 + 0.64) / 2 / 3), 1e-4);
        EXPECT_NEAR(static_cast<double>(row.frequency), 6000, 0.1);
        EXPECT_NEAR(static_cast<double>(row.centroid), (750 * 0.01 + 6000 * 0.64) / 0.65, 1);
    }
}

TEST(WorkbenchFrameMeasures, WindowAndStepAreOfChoice)
{
    EXPECT_EQ(FrameMeter(48000, 1, 1, {}).Window(), 1024u) << "about 20 ms";
    EXPECT_EQ(FrameMeter(8000, 1, 1, {}).Window(), 256u);
    EXPECT_EQ(FrameMeter(48000, 1, 1, {4096, 0}).Window(), 4096u);
    EXPECT_EQ(FrameMeter(48000, 1, 1, {1000, 0}).Window(), 1024u) << "no power of two";
    std::vector<FrameMeasures> const rows = RowsOf(Sine(50, 0.5), usual_rate, 1, {16384, 10000});
    ASSERT_EQ(rows.size(), 100u);
    for (FrameMeasures const & row : rows)
        EXPECT_NEAR(static_cast<double>(row.frequency), 50, 0.05);
}

TEST(WorkbenchFrameMeasures, ARecordingShorterThanTheWindowHasLevelsAlone)
{
    std::vector<FrameMeasures> const rows = RowsOf([](auto frame, auto) { return frame % 2 == 0 ? 0.5 : -0.5; }, 1023);
    ASSERT_EQ(rows.size(), 22u);
    for (FrameMeasures const & row : rows)
    {
        EXPECT_EQ(row.peak, 0.5F);
        EXPECT_EQ(row.rms, 0.5F);
        EXPECT_TRUE(std::isnan(row.frequency));
    }
    EXPECT_FALSE(std::isnan(RowsOf(Sine(1000, 1), 1024).front().frequency));
    EXPECT_EQ(RowsOf(Sine(1000, 1), 1).size(), 1u);
    EXPECT_TRUE(RowsOf(Sine(1000, 1), 0).empty());
}

TEST(WorkbenchFrameMeasures, WhatEndsEarlyIsAsIfItHadBeenThatShort)
{
    for (unsigned int const frames : {100u, 5000u, 24001u, 30000u})
    {
        std::vector<FrameMeasures> const whole = RowsOf(Sine(440, 0.5), frames);
        std::vector<FrameMeasures> const early = RowsOf(Sine(440, 0.5), frames, 1, {}, 100000);
        ASSERT_EQ(early.size(), whole.size()) << frames;
        for (std::size_t row = 0; row < whole.size(); ++row)
        {
            EXPECT_EQ(early[row].peak, whole[row].peak);
            EXPECT_NEAR(static_cast<double>(early[row].rms), static_cast<double>(whole[row].rms), 1e-6);
            EXPECT_EQ(std::isnan(early[row].frequency), std::isnan(whole[row].frequency));
        }
    }
}

TEST(WorkbenchFrameMeasures, AnAnalyserReadsARecordingInSteps)
{
    FrameAnalyser analyser(wav::Source(Recording(48000).Content()));
    std::vector<FrameMeasures> rows;
    ASSERT_TRUE(analyser.Step(rows));
    EXPECT_GT(rows.size(), 0u);
    EXPECT_LT(rows.size(), 100u) << "a few milliseconds of work";
    EXPECT_GT(analyser.Progress(), 0.0);
    EXPECT_LT(analyser.Progress(), 0.2);
    while (analyser.Step(rows))
        continue;
    EXPECT_EQ(rows.size(), 1000u);
    EXPECT_EQ(analyser.Progress(), 1.0);
    EXPECT_TRUE(analyser.IsWhole());
    EXPECT_FALSE(analyser.Problem());
    EXPECT_EQ(rows[500].peak, 0.25F);
    EXPECT_EQ(rows[500].rms, 0.25F) << "a square wave's crest factor is 1";
    EXPECT_NEAR(static_cast<double>(rows[500].frequency), 1000, 1);
}

TEST(WorkbenchFrameMeasures, ADamagedFileTellsItsProblem)
{
    FrameAnalyser missing(nullptr);
    EXPECT_EQ(missing.Problem(), ReadProblem{ReadFault::cannot_be_opened});
    std::vector<FrameMeasures> rows;
    EXPECT_FALSE(missing.Step(rows));
    wav::Bytes text;
    wav::PutText(text, "no recording at all, whatever its name says about it");
    FrameAnalyser other(wav::Source(text));
    EXPECT_EQ(other.Problem(), ReadProblem{ReadFault::not_wav});
    EXPECT_FALSE(other.Step(rows));
    EXPECT_TRUE(rows.empty());
}

TEST(WorkbenchFrameMeasures, ACutOffFileHasTheRowsOfWhatIsThere)
{
    FrameAnalyser analyser(wav::Source(Recording(48000).Cut(44 + 2 * 24000).Content()));
    EXPECT_EQ(ReadAll(analyser).size(), 500u);
    EXPECT_FALSE(analyser.IsWhole());
}

TEST(WorkbenchFrameMeasures, AFileThatGetsShorterWhileItIsReadHasTheRowsOfWhatWasThere)
{
    wav::Bytes const bytes = Recording(48000).Content();
    FrameAnalyser analyser(std::make_unique<ShrunkSource>(bytes, 44 + 2 * 24000));
    EXPECT_EQ(ReadAll(analyser).size(), 500u);
    EXPECT_FALSE(analyser.IsWhole());
}

namespace
{

/// Waits for what a job's thread tells.
class Told
{
public:
    FrameMeasuresJob::Listener Listener()
    {
        return {[this](std::size_t count) {
                    std::scoped_lock const lock(m_mutex);
                    rows += count;
                    m_changed.notify_all();
                },
                [this] {
                    std::scoped_lock const lock(m_mutex);
                    ++ends;
                    m_changed.notify_all();
                }};
    }
    template <class Condition> bool WaitFor(Condition const & holds)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::minutes(2), holds);
    }

    std::size_t rows = 0;
    int ends = 0;

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
};

OpenBytes Open(wav::File const & file)
{
    return [bytes = file.Content()] { return wav::Source(bytes); };
}

/// Ten hours of silence that are nowhere.
class Endless : public ByteSource
{
public:
    std::uint64_t Size() const override { return 44 + bytes; }
    std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        std::ranges::fill(buffer, std::byte());
        wav::Bytes header = Recording(1).LastChunkSize(bytes).Content();
        header.resize(44);
        for (std::size_t i = 0; i < buffer.size() && offset + i < header.size(); ++i)
            buffer[i] = header[static_cast<std::size_t>(offset) + i];
        return buffer.size();
    }
    static constexpr std::uint32_t bytes = 3'456'000'000;
};

class Throwing : public Endless
{
public:
    std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        if (offset > 1'000'000)
            throw std::runtime_error("the disk is gone");
        return Endless::Read(offset, buffer);
    }
};

} // namespace

TEST(WorkbenchFrameMeasuresJob, TellsOfAllRowsAndOfItsEnd)
{
    Told told;
    FrameMeasuresJob job(Open(Recording(96000)), told.Listener());
    ASSERT_TRUE(told.WaitFor([&] { return told.ends > 0; }));
    std::shared_ptr<FrameMeasuresJob::Result const> const result = job.GetResult();
    ASSERT_TRUE(result);
    EXPECT_FALSE(result->problem);
    EXPECT_TRUE(result->whole);
    EXPECT_EQ(result->info.sampleRate, usual_rate);
    EXPECT_EQ(told.rows, 2000u);
    EXPECT_EQ(told.ends, 1);
    EXPECT_EQ(job.Rows()->Size(), 2000u);
    EXPECT_EQ(job.Rows()->Raster().Rows(), 2000u);
    EXPECT_EQ(job.Rows()->At(1999).peak, 0.25F);
    EXPECT_EQ(job.Progress(), FrameMeasuresJob::whole_progress);
}

TEST(WorkbenchFrameMeasuresJob, RowsAreReadWhileOthersCome)
{
    Told told;
    std::shared_ptr<FrameStore const> rows;
    {
        FrameMeasuresJob job([] { return std::make_unique<Endless>(); }, told.Listener());
        rows = job.Rows();
        ASSERT_TRUE(told.WaitFor([&] { return told.rows > 1000; }));
        EXPECT_EQ(job.GetResult(), nullptr);
        EXPECT_GE(rows->Size(), 1000u);
        EXPECT_EQ(rows->At(900).peak, 0.0F);
        EXPECT_EQ(rows->Raster().Rows(), 36'000'000u);
    }
    EXPECT_EQ(told.ends, 0) << "given up, it tells nothing";
    EXPECT_GE(rows->Size(), told.rows);
    EXPECT_LT(rows->Size(), 36'000'000u);
}

TEST(WorkbenchFrameMeasuresJob, WhatWasMeasuredStaysWhenReadingFails)
{
    Told told;
    FrameMeasuresJob job([] { return std::make_unique<Throwing>(); }, told.Listener());
    ASSERT_TRUE(told.WaitFor([&] { return told.ends > 0; }));
    std::shared_ptr<FrameMeasuresJob::Result const> const result = job.GetResult();
    ASSERT_TRUE(result);
    EXPECT_FALSE(result->problem);
    EXPECT_FALSE(result->whole);
    EXPECT_GT(job.Rows()->Size(), 5000u);
    EXPECT_EQ(told.rows, job.Rows()->Size()) << "and is told";

    Told other;
    FrameMeasuresJob missing("missing.wav", other.Listener());
    ASSERT_TRUE(other.WaitFor([&] { return other.ends > 0; }));
    ASSERT_TRUE(missing.GetResult()->problem);
    EXPECT_EQ(missing.GetResult()->problem->fault, ReadFault::cannot_be_opened);
    EXPECT_EQ(other.rows, 0u);
}

TEST(WorkbenchFrameStore, ARowTakesSixteenBytes)
{
    FrameStore store;
    std::size_t const before = store.Memory();
    std::vector<FrameMeasures> rows(1000);
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].peak = static_cast<float>(i);
    for (int i = 0; i < 1000; ++i)
        store.Append(rows);
    EXPECT_EQ(store.Size(), 1'000'000u);
    EXPECT_EQ(store.At(999'123).peak, 123.0F);
    EXPECT_LE(store.Memory() - before, 17'000'000u);
}
