// What the list and the details window say about a recording.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <limits>
#include <system_error>

#include "logic/FileFacts.h"
#include "logic/LevelMeter.h"
#include "logic/RecordingDetails.h"
#include "logic/TextFormat.h"

namespace
{

using namespace workbench;

constexpr double beyond_all = std::numeric_limits<double>::infinity();

TEST(LevelBar, IsEmptyAtItsLowerEndAndFullAtFullScale)
{
    EXPECT_EQ(LevelBarPercent(-60.0), 0);
    EXPECT_EQ(LevelBarPercent(-30.0), 50);
    EXPECT_EQ(LevelBarPercent(0.0), 100);
}

TEST(LevelBar, RoundsToWholePercent)
{
    EXPECT_EQ(LevelBarPercent(-59.6), 1);
    EXPECT_EQ(LevelBarPercent(-59.8), 0);
    EXPECT_EQ(LevelBarPercent(-6.02), 90);
}

TEST(LevelBar, StaysWithinItsEnds)
{
    EXPECT_EQ(LevelBarPercent(-beyond_all), 0);
    EXPECT_EQ(LevelBarPercent(-100.0), 0);
    EXPECT_EQ(LevelBarPercent(12.0), 100);
}

TEST(LevelDifference, CarriesItsSign)
{
    EXPECT_EQ(FormatDifference(-6.0, -8.1), L"+2.1 dB");
    EXPECT_EQ(FormatDifference(-8.1, -6.0), L"-2.1 dB");
}

TEST(LevelDifference, HasNoSignAtZero)
{
    EXPECT_EQ(FormatDifference(-6.0, -6.0), L"0.0 dB");
    EXPECT_EQ(FormatDifference(-6.04, -6.0), L"0.0 dB");
    EXPECT_EQ(FormatDifference(-6.0, -6.04), L"0.0 dB");
}

TEST(LevelDifference, DoesNotExistWithSilence)
{
    EXPECT_EQ(FormatDifference(-beyond_all, -6.0), L"-");
    EXPECT_EQ(FormatDifference(-6.0, -beyond_all), L"-");
    EXPECT_EQ(FormatDifference(-beyond_all, -beyond_all), L"-");
}

TEST(Thousands, GetCommasFromFourDigitsOn)
{
    EXPECT_EQ(FormatThousands(0), L"0");
    EXPECT_EQ(FormatThousands(999), L"999");
    EXPECT_EQ(FormatThousands(1000), L"1,000");
    EXPECT_EQ(FormatThousands(1234567), L"1,234,567");
    EXPECT_EQ(FormatThousands(std::numeric_limits<std::uint64_t>::max()), L"18,446,744,073,709,551,615");
}

TEST(DurationMilliseconds, AreRoundedAndAddUpAcrossRates)
{
    EXPECT_EQ(DurationMilliseconds(48000, 48000), 1000U);
    EXPECT_EQ(DurationMilliseconds(24, 48000), 1U); // half a millisecond
    EXPECT_EQ(DurationMilliseconds(23, 48000), 0U);
    EXPECT_EQ(DurationMilliseconds(100, 0), 0U);
    EXPECT_EQ(FormatMilliseconds(DurationMilliseconds(96000, 48000) + DurationMilliseconds(44100, 44100)), L"0:03.000");
    EXPECT_EQ(FormatMilliseconds(3'600'000), L"60:00.000");
}

RecordingAnalysis GoodRecording()
{
    RecordingAnalysis analysis;
    analysis.file.size = 137134;
    analysis.info.channels = 2;
    analysis.info.bitsPerSample = 16;
    analysis.info.sampleRate = 48000;
    analysis.info.frames = 68545;
    analysis.info.announcedFrames = 68545;
    analysis.levels = {-6.5, -22.61};
    analysis.loudness = -23.04;
    analysis.tone = {997.04, 0.00125};
    return analysis;
}

TEST(MeasureFormat, WritesEachMeasureAsItsReadersDo)
{
    EXPECT_EQ(FormatCrestFactor({0.0, -3.01}), L"3.0");
    EXPECT_EQ(FormatLoudness(-70.04), L"-70.0");
    EXPECT_EQ(FormatFrequency(50.04), L"50.0");
    EXPECT_EQ(FormatStretch(1024, 48000), L"21.3 ms");
    EXPECT_EQ(FormatStretch(256, 8000), L"32.0 ms");
    EXPECT_EQ(FormatStretch(1024, 0), L"-");
    EXPECT_EQ(FormatFrequency(999.94), L"999.9");
    EXPECT_EQ(FormatFrequency(999.96), L"1,000");
    EXPECT_EQ(FormatFrequency(12345.6), L"12,346");
    EXPECT_EQ(FormatPercent(0.5), L"50.0");
    EXPECT_EQ(FormatPercent(0.05), L"5.00");
    EXPECT_EQ(FormatPercent(0.00123), L"0.123");
    EXPECT_EQ(FormatPercent(0.0000512), L"0.0051");
    EXPECT_EQ(FormatPercent(1.5), L"150");
}

TEST(MeasureFormat, ShowsWhatThereIsNotAsADash)
{
    EXPECT_EQ(FormatCrestFactor({-beyond_all, -beyond_all}), L"-");
    EXPECT_EQ(FormatLoudness(std::nullopt), L"-");
    EXPECT_EQ(FormatFrequency(std::nullopt), L"-");
    EXPECT_EQ(FormatFrequency(-1.0), L"-");
    EXPECT_EQ(FormatPercent(std::nullopt), L"-");
    EXPECT_EQ(FormatPercent(beyond_all), L"-");
}

TEST(RecordingDetails, SayEverythingAboutARecording)
{
    std::vector<DetailLine> const expected = {{L"File", L"a.wav"},
                                              {L"Folder", L"measured"},
                                              {L"Size", L"137,134 bytes"},
                                              {L"Date", L"yesterday"},
                                              {L"Format", L"16-bit PCM"},
                                              {L"Channels", L"2"},
                                              {L"Sample rate", L"48,000 Hz"},
                                              {L"Duration", L"0:01.428 (68,545 samples)"},
                                              {L"Peak level", L"-6.5 dBFS"},
                                              {L"RMS level", L"-22.6 dBFS"},
                                              {L"Crest factor", L"16.1 dB"},
                                              {L"Loudness", L"-23.0 LUFS"},
                                              {L"Strongest frequency", L"997.0 Hz"},
                                              {L"Harmonic distortion", L"0.125 %"},
                                              {L"Status", L"OK"}};
    EXPECT_EQ(DescribeRecording("measured/a.wav", GoodRecording(), L"yesterday"), expected);
}

TEST(RecordingDetails, GiveWhatThereIsNotNoUnit)
{
    RecordingAnalysis analysis = GoodRecording();
    analysis.levels = {-beyond_all, -beyond_all};
    analysis.loudness.reset();
    analysis.tone = {};
    std::vector<DetailLine> const lines = DescribeRecording("a.wav", analysis, L"");
    std::ptrdiff_t const dashes =
        std::count_if(lines.begin(), lines.end(), [](DetailLine const & line) { return line.text == L"-"; });
    EXPECT_EQ(dashes, 4);
}

TEST(RecordingDetails, SayOfAFileThatIsNoneWhatItIsAndWhy)
{
    RecordingAnalysis analysis;
    analysis.file.size = 1;
    analysis.problem = ReadProblem{ReadFault::not_wav};
    std::vector<DetailLine> const expected = {
        {L"File", L"a.wav"}, {L"Folder", L"measured"}, {L"Size", L"1 byte"}, {L"Status", analysis.problem->Text()}};
    EXPECT_EQ(DescribeRecording("measured/a.wav", analysis, L""), expected);
}

TEST(RecordingDetails, LeaveOutASizeThatIsNotKnown)
{
    RecordingAnalysis analysis = GoodRecording();
    analysis.file.size.reset();
    EXPECT_EQ(DescribeRecording("a.wav", analysis, L"").at(2).label, L"Format");
}

TEST(RecordingDetails, NameTheCoding)
{
    RecordingInfo info;
    info.bitsPerSample = 32;
    info.coding = SampleCoding::floating_point;
    EXPECT_EQ(FormatCoding(info), L"32-bit float");
    info.bitsPerSample = 8;
    info.coding = SampleCoding::unsigned_integer;
    EXPECT_EQ(FormatCoding(info), L"8-bit PCM");
}

class FileFactsTest : public testing::Test
{
protected:
    void TearDown() override
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }

    std::filesystem::path m_path = std::filesystem::temp_directory_path() / "workbench-file-facts.wav";
};

TEST_F(FileFactsTest, AreSizeAndTimeOfTheFile)
{
    std::ofstream(m_path, std::ios::binary) << "12345";
    FileFacts const facts = ReadFileFacts(m_path);
    EXPECT_EQ(facts.size, 5U);
    ASSERT_TRUE(facts.lastWrite);
    std::time_t const now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    EXPECT_LE(std::abs(static_cast<long long>(now - *facts.lastWrite)), 60);
}

TEST_F(FileFactsTest, FollowTheFilesTime)
{
    std::ofstream(m_path, std::ios::binary) << "12345";
    FileFacts const before = ReadFileFacts(m_path);
    ASSERT_TRUE(before.lastWrite);
    std::filesystem::last_write_time(m_path, std::filesystem::last_write_time(m_path) - std::chrono::hours(1));
    FileFacts const after = ReadFileFacts(m_path);
    ASSERT_TRUE(after.lastWrite);
    EXPECT_EQ(*before.lastWrite - *after.lastWrite, 3600);
}

TEST_F(FileFactsTest, AreEmptyForAMissingFile)
{
    FileFacts const facts = ReadFileFacts(m_path);
    EXPECT_FALSE(facts.size);
    EXPECT_FALSE(facts.lastWrite);
}

TEST_F(FileFactsTest, ComeWithTheAnalysis)
{
    std::ofstream(m_path, std::ios::binary) << "12345";
    RecordingAnalyser analyser(m_path);
    while (analyser.Step())
    {
    }
    RecordingAnalysis const analysis = analyser.Take();
    EXPECT_TRUE(analysis.problem);
    EXPECT_EQ(analysis.file.size, 5U);
    EXPECT_TRUE(analysis.file.lastWrite);
}

} // namespace
