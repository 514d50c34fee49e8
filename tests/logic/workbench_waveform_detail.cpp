// Waveforms of any stretch: from the overview, from a finer one, and from the file.

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <random>
#include <string>

#include "logic/WaveformDetail.h"
#include "workbench_WavBuilder.h"

namespace
{

using namespace workbench;
namespace fs = std::filesystem;

/// A recording in a file of its own, with what its analysis says and all its samples.
class Recording
{
public:
    Recording(std::size_t frames, std::size_t channels) : m_channels(channels)
    {
        static int s_count = 0;
        long long const now = std::chrono::steady_clock::now().time_since_epoch().count();
        path = fs::temp_directory_path() / ("detail-" + std::to_string(now) + "-" + std::to_string(++s_count) + ".wav");
        std::mt19937 random(static_cast<unsigned>(frames));
        for (std::size_t i = 0; i < frames * channels; ++i)
            m_samples.push_back(static_cast<std::int16_t>(random() % 60000 - 30000));
        Write(m_samples);
        RecordingAnalyser analyser(path);
        while (analyser.Step())
            continue;
        analysis = std::make_shared<RecordingAnalysis const>(analyser.Take());
    }
    ~Recording()
    {
        std::error_code ignored;
        fs::remove(path, ignored);
    }
    Recording(Recording const &) = delete;
    Recording & operator=(Recording const &) = delete;

    void Write(std::vector<std::int16_t> const & samples) const
    {
        auto const channels = static_cast<unsigned>(m_channels);
        wav::Bytes const bytes = wav::File()
                                     .Chunk("fmt ", wav::Format(1, channels, 48000, 2 * channels, 16))
                                     .Chunk("data", wav::Samples16(samples))
                                     .Content();
        std::ofstream stream(path, std::ios::binary);
        stream.write(reinterpret_cast<char const *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        ASSERT_TRUE(stream.good());
    }

    /// Column by column, from the samples.
    std::vector<std::vector<MinMax>> Expected(FrameRange const & range, std::size_t width) const
    {
        std::vector<std::vector<MinMax>> lanes(m_channels);
        for (std::size_t lane = 0; lane < m_channels; ++lane)
        {
            for (std::size_t column = 0; column < width; ++column)
            {
                std::uint64_t const first = range.first + column * range.Length() / width;
                std::uint64_t const end = std::max(range.first + (column + 1) * range.Length() / width, first + 1);
                MinMax found{2.0F, -2.0F};
                for (std::uint64_t frame = first; frame < end; ++frame)
                {
                    auto const sample = static_cast<float>(m_samples[frame * m_channels + lane] / 32768.0);
                    found = {std::min(found.least, sample), std::max(found.greatest, sample)};
                }
                lanes[lane].push_back(found);
            }
        }
        return lanes;
    }

    fs::path path;
    std::shared_ptr<RecordingAnalysis const> analysis;

private:
    std::size_t m_channels;
    std::vector<std::int16_t> m_samples;
};

/// Whether each column has all of the exact one, and no more than the whole buckets around it.
bool Covers(std::vector<std::vector<MinMax>> const & columns, std::vector<std::vector<MinMax>> const & exact)
{
    for (std::size_t lane = 0; lane < exact.size(); ++lane)
    {
        for (std::size_t i = 0; i < exact[lane].size(); ++i)
        {
            if (columns[lane][i].least > exact[lane][i].least || columns[lane][i].greatest < exact[lane][i].greatest)
                return false;
        }
    }
    return columns.size() == exact.size();
}

TEST(WaveformDetail, AShortRecordingIsExactFromItsOverview)
{
    Recording const recording(800, 2);
    WaveformDetail detail(recording.analysis, {});
    EXPECT_EQ(detail.Columns({137, 739}, 100), recording.Expected({137, 739}, 100));
    EXPECT_EQ(detail.Coarseness(), 1U);
}

TEST(WaveformDetail, NarrowStretchesOfALongRecordingAreReadFromItsFile)
{
    Recording const recording(300000, 2);
    ASSERT_GT(recording.analysis->waveform.FramesPerBucket(), 1U);
    WaveformDetail detail(recording.analysis, recording.path);
    std::mt19937 random(3);
    for (int i = 0; i < 200; ++i)
    {
        std::uint64_t const first = random() % 299000;
        FrameRange const range{first, first + 16 + random() % 900};
        std::size_t const width = 1 + random() % 300;
        if (range.Length() / width >= recording.analysis->waveform.FramesPerBucket())
            continue;
        ASSERT_EQ(detail.Columns(range, width), recording.Expected(range, width)) << i;
        ASSERT_EQ(detail.Coarseness(), 1U);
    }
    EXPECT_FALSE(detail.IsRefining());
}

TEST(WaveformDetail, TheEndsOfTheRecordingAreExactToo)
{
    Recording const recording(300000, 1);
    WaveformDetail detail(recording.analysis, recording.path);
    for (FrameRange const range : {FrameRange{0, 100}, FrameRange{299900, 300000}, FrameRange{299984, 300000}})
        EXPECT_EQ(detail.Columns(range, 50), recording.Expected(range, 50)) << range.first;
}

TEST(WaveformDetail, WhatIsTooWideToReadComesFromAFinerOverview)
{
    // Wider than is read at once, and narrower than the overview's buckets.
    Recording const recording(5000000, 1);
    std::size_t const bucket = recording.analysis->waveform.FramesPerBucket();
    FrameRange const range{1000, 1000 + WaveformDetail::most_read + 4096};
    std::size_t const width = 2 * range.Length() / bucket;
    std::promise<void> refined;
    WaveformDetail detail(recording.analysis, recording.path, [&refined] { refined.set_value(); });
    std::vector<std::vector<MinMax>> const exact = recording.Expected(range, width);
    EXPECT_TRUE(Covers(detail.Columns(range, width), exact));
    ASSERT_EQ(refined.get_future().wait_for(std::chrono::seconds(60)), std::future_status::ready);
    EXPECT_FALSE(detail.IsRefining());
    EXPECT_TRUE(Covers(detail.Columns(range, width), exact));
    EXPECT_LT(detail.Coarseness(), bucket);
}

TEST(WaveformDetail, EndsWhileItIsRefined)
{
    Recording const recording(5000000, 1);
    for (int i = 0; i < 5; ++i)
    {
        WaveformDetail detail(recording.analysis, recording.path);
        FrameRange const range{0, WaveformDetail::most_read + 4096};
        detail.Columns(range, 2 * range.Length() / recording.analysis->waveform.FramesPerBucket());
    }
}

TEST(WaveformDetail, WithoutItsFileTheOverviewHasToDo)
{
    Recording const recording(300000, 2);
    FrameRange const range{5000, 5400};
    std::vector<MinMax> const overview = recording.analysis->waveform.Columns(1, 200, range);
    fs::path const gone = recording.path.string() + ".gone";
    WaveformDetail detail(recording.analysis, gone);
    EXPECT_EQ(detail.Columns(range, 200).at(1), overview);
    EXPECT_TRUE(Covers(detail.Columns(range, 200), recording.Expected(range, 200)));
}

TEST(WaveformDetail, AFileThatHasChangedIsNotMixedWithItsOverview)
{
    Recording const recording(300000, 1);
    recording.Write(std::vector<std::int16_t>(250000, 7));
    WaveformDetail detail(recording.analysis, recording.path);
    FrameRange const range{5000, 5400};
    EXPECT_EQ(detail.Columns(range, 200).at(0), recording.analysis->waveform.Columns(0, 200, range));
}

TEST(WaveformDetail, TheAmplitudeOfAStretchIsExactAndLeavesThePictureAlone)
{
    Recording const recording(300000, 2);
    ASSERT_GT(recording.analysis->waveform.FramesPerBucket(), 100U);
    WaveformDetail detail(recording.analysis, recording.path);
    FrameRange const shown{1000, 1100};
    std::vector<std::vector<MinMax>> const picture = detail.Columns(shown, 100);
    std::mt19937 random(7);
    for (int i = 0; i < 100; ++i)
    {
        std::uint64_t const first = random() % 299000;
        FrameRange const range{first, first + 1 + random() % 480};
        double expected = 0;
        for (std::vector<MinMax> const & lane : recording.Expected(range, 1))
        {
            expected = std::max({expected, std::fabs(static_cast<double>(lane[0].least)),
                                 std::fabs(static_cast<double>(lane[0].greatest))});
        }
        ASSERT_DOUBLE_EQ(detail.Amplitude(range), expected) << i;
    }
    EXPECT_EQ(detail.Amplitude({299990, 400000}), detail.Amplitude({299990, 300000}));
    EXPECT_EQ(detail.Amplitude({300000, 300010}), 0.0);
    EXPECT_EQ(detail.Columns(shown, 100), picture);
}

TEST(WaveformDetail, WithoutItsFileTheAmplitudeIsTheOverviews)
{
    Recording const recording(300000, 1);
    WaveformDetail detail(recording.analysis, recording.path.string() + ".gone");
    MinMax const found = recording.analysis->waveform.Range(0, 5000, 5480);
    EXPECT_DOUBLE_EQ(detail.Amplitude({5000, 5480}), std::max(std::fabs(found.least), std::fabs(found.greatest)));
}

TEST(WaveformDetail, NothingOfNothing)
{
    Recording const recording(300000, 1);
    WaveformDetail detail(recording.analysis, recording.path);
    EXPECT_EQ(detail.Columns({10, 10}, 4).at(0).size(), 4U);
    EXPECT_EQ(detail.Columns({10, 400}, 0).at(0).size(), 0U);
    EXPECT_EQ(detail.Columns({400000, 500000}, 2).at(0), std::vector<MinMax>(2));
}

} // namespace
