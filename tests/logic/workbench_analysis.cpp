// Reading whole files: the analysis in steps, the queue on its own thread, folders and the command line.

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <fstream>
#include <future>
#include <string>

#include "logic/AnalysisQueue.h"
#include "logic/CommandLine.h"
#include "logic/RecordingAnalysis.h"
#include "logic/RecordingFiles.h"
#include "logic/RecordingSearch.h"
#include "workbench_WavBuilder.h"

namespace
{

using namespace workbench;
namespace fs = std::filesystem;

/// A new folder that is removed with everything in it.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        static int s_count = 0;
        long long const now = std::chrono::steady_clock::now().time_since_epoch().count();
        m_path = fs::temp_directory_path() / ("workbench-" + std::to_string(now) + "-" + std::to_string(++s_count));
        fs::create_directories(m_path);
    }

    ~TemporaryFolder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }

    fs::path const & Path() const { return m_path; }

    fs::path Write(std::string const & name, wav::Bytes const & bytes = {}) const
    {
        std::filesystem::path path = m_path / name;
        fs::create_directories(path.parent_path());
        std::ofstream stream(path, std::ios::binary);
        stream.write(reinterpret_cast<char const *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        EXPECT_TRUE(stream.good());
        return path;
    }

private:
    fs::path m_path;
};

wav::File Stereo(std::size_t frames)
{
    std::vector<std::int16_t> samples;
    for (std::size_t i = 0; i < frames; ++i)
    {
        samples.push_back(i % 2 == 0 ? 16384 : -16384);
        samples.push_back(0);
    }
    return wav::File().Chunk("fmt ", wav::Format(1, 2, 8000, 4, 16)).Chunk("data", wav::Samples16(samples));
}

RecordingAnalysis Analyse(RecordingAnalyser analyser)
{
    while (analyser.Step())
    {
    }
    return analyser.Take();
}

RecordingAnalysis Analyse(wav::File const & file)
{
    return Analyse(RecordingAnalyser(wav::Source(file.Content())));
}

TEST(RecordingAnalysis, WhatIsKeptOfARecordingIsSmallWhateverItsLengthAndChannels)
{
    TemporaryFolder const folder;
    for (unsigned const channels : {1U, 2U, 6U, 32U, 40U})
    {
        std::vector<std::int16_t> const samples(std::size_t{channels} * 100000, 5);
        fs::path const file =
            folder.Write("many.wav", wav::File()
                                         .Chunk("fmt ", wav::Format(1, channels, 48000, 2 * channels, 16))
                                         .Chunk("data", wav::Samples16(samples))
                                         .Content());
        RecordingAnalyser analyser(file);
        while (analyser.Step())
            continue;
        RecordingAnalysis const analysis = analyser.Take();
        ASSERT_EQ(analysis.info.frames, 100000U);
        EXPECT_GT(analysis.waveform.Bytes(), 8000U) << channels;
        EXPECT_LT(analysis.waveform.Bytes() + sizeof analysis, 40000U) << channels;
    }
}

TEST(RecordingAnalysis, GivesHeaderLevelsAndWaveformOfARecording)
{
    RecordingAnalysis const analysis = Analyse(Stereo(100'000));
    EXPECT_FALSE(analysis.problem);
    EXPECT_EQ(analysis.info.frames, 100'000u);
    EXPECT_EQ(analysis.info.channels, 2u);
    EXPECT_NEAR(analysis.levels.peak, -6.0206, 1e-4);
    EXPECT_NEAR(analysis.levels.rms, -9.0309, 1e-4);
    ASSERT_EQ(analysis.waveform.Lanes(), 2u);
    EXPECT_EQ(analysis.waveform.Frames(), 100'000u);
    EXPECT_EQ(analysis.waveform.Columns(0, 1)[0], (MinMax{-0.5F, 0.5F}));
    EXPECT_EQ(analysis.waveform.Columns(1, 1)[0], (MinMax{0.0F, 0.0F}));
    EXPECT_EQ(analysis.StatusText(), L"OK");
}

TEST(RecordingAnalysis, ReadsInSteps)
{
    RecordingAnalyser analyser(wav::Source(Stereo(50'000).Content()));
    int steps = 0;
    while (analyser.Step())
    {
        ++steps;
    }
    EXPECT_EQ(steps, 4); // 100,000 samples of which a step takes 32,768
    EXPECT_FALSE(analyser.Step());
}

TEST(RecordingAnalysis, SaysHowLongACutOffRecordingShouldBe)
{
    RecordingAnalysis const analysis = Analyse(Stereo(8000).Cut(44 + 4000 * 4));
    EXPECT_FALSE(analysis.problem);
    EXPECT_EQ(analysis.info.frames, 4000u);
    EXPECT_EQ(analysis.waveform.Frames(), 4000u);
    EXPECT_EQ(analysis.StatusText(), L"cut off, should be 0:01.000");
}

TEST(RecordingAnalysis, MentionsInvalidSamples)
{
    wav::Bytes data;
    wav::Put(data, 0x7FC00000u, 4);
    wav::Put(data, 0x3F000000u, 4);
    RecordingAnalysis const analysis =
        Analyse(wav::File().Chunk("fmt ", wav::Format(3, 1, 8000, 4, 32)).Chunk("data", data));
    EXPECT_EQ(analysis.invalidSamples, 1u);
    EXPECT_EQ(analysis.StatusText(), L"has invalid samples");
    EXPECT_NEAR(analysis.levels.peak, -6.0206, 1e-4);
}

TEST(RecordingAnalysis, GivesTheProblemOfAFileThatCannotBeRead)
{
    TemporaryFolder const folder;
    RecordingAnalysis const missing = Analyse(RecordingAnalyser(folder.Path() / "missing.wav"));
    ASSERT_TRUE(missing.problem);
    EXPECT_EQ(missing.problem->fault, ReadFault::cannot_be_opened);
    EXPECT_EQ(missing.StatusText(), L"cannot be opened");

    EXPECT_EQ(Analyse(RecordingAnalyser(folder.Path())).StatusText(), L"cannot be opened");
    EXPECT_EQ(Analyse(RecordingAnalyser(folder.Write("empty.wav"))).StatusText(), L"empty, no samples");
}

TEST(RecordingAnalysis, ReadsAFileAsItReadsMemory)
{
    TemporaryFolder const folder;
    RecordingAnalysis const fromFile = Analyse(RecordingAnalyser(folder.Write("a.wav", Stereo(30'000).Content())));
    RecordingAnalysis const fromMemory = Analyse(Stereo(30'000));
    EXPECT_FALSE(fromFile.problem);
    EXPECT_EQ(fromFile.levels.rms, fromMemory.levels.rms);
    EXPECT_EQ(fromFile.waveform.Columns(0, 100), fromMemory.waveform.Columns(0, 100));
}

/// Counts the queue's notifications and waits for so many of them.
class Notifications
{
public:
    void operator()()
    {
        std::scoped_lock const lock(m_mutex);
        ++m_count;
        m_changed.notify_all();
    }

    bool WaitFor(int count)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::minutes(2), [&] { return m_count >= count; });
    }

    int Count()
    {
        std::scoped_lock const lock(m_mutex);
        return m_count;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_count = 0;
};

/// The next results, whatever was notified of before; none after the time limit.
std::vector<AnalysisQueue::Finished> WaitForResults(AnalysisQueue & queue, Notifications & notifications,
                                                    std::size_t count = 1)
{
    std::vector<AnalysisQueue::Finished> finished;
    for (int notified = 1; finished.size() < count && notifications.WaitFor(notified); ++notified)
    {
        for (AnalysisQueue::Finished & one : queue.TakeFinished())
        {
            finished.push_back(std::move(one));
        }
    }
    return finished;
}

TEST(AnalysisQueue, GivesEveryRecordingInOrderWithItsId)
{
    TemporaryFolder const folder;
    fs::path const good = folder.Write("good.wav", Stereo(1000).Content());
    Notifications notifications;
    AnalysisQueue queue([&] { notifications(); });
    queue.Add(7, good);
    queue.Add(3, folder.Path() / "missing.wav");
    queue.Add(9, good);
    std::vector<AnalysisQueue::Finished> const finished = WaitForResults(queue, notifications, 3);
    ASSERT_EQ(finished.size(), 3u);
    EXPECT_EQ(finished[0].id, 7u);
    EXPECT_EQ(finished[0].analysis->info.frames, 1000u);
    EXPECT_EQ(finished[1].id, 3u);
    EXPECT_EQ(finished[1].analysis->StatusText(), L"cannot be opened");
    EXPECT_EQ(finished[2].id, 9u);
    EXPECT_TRUE(queue.TakeFinished().empty());
}

TEST(AnalysisQueue, TellsOnceOfResultsThatNobodyHasTaken)
{
    TemporaryFolder const folder;
    fs::path const good = folder.Write("good.wav", Stereo(10).Content());
    Notifications notifications;
    AnalysisQueue queue([&] { notifications(); });
    for (int const round : {1, 2})
    {
        for (unsigned id = 0; id < 20; ++id)
        {
            queue.Add(id, good);
        }
        while (!queue.IsIdle())
        {
            std::this_thread::yield();
        }
        EXPECT_EQ(notifications.Count(), round);
        EXPECT_EQ(queue.TakeFinished().size(), 20U);
    }
}

TEST(AnalysisQueue, ForgetsEverythingWhenCleared)
{
    TemporaryFolder const folder;
    fs::path const file = folder.Write("good.wav", Stereo(200'000).Content());
    Notifications notifications;
    AnalysisQueue queue([&] { notifications(); });
    for (unsigned id = 0; id < 50; ++id)
    {
        queue.Add(id, file);
    }
    queue.Clear();
    queue.Add(100, file);
    std::vector<AnalysisQueue::Finished> const finished = WaitForResults(queue, notifications);
    ASSERT_EQ(finished.size(), 1u);
    EXPECT_EQ(finished[0].id, 100u);
}

TEST(AnalysisQueue, GivesUpTheRecordingThatItIsReadingWhenCleared)
{
    TemporaryFolder const folder;
    fs::path const small = folder.Write("small.wav", Stereo(10).Content());
    fs::path const large = folder.Write("large.wav", Stereo(1'000'000).Content());
    for (int round = 0; round < 10; ++round)
    {
        Notifications notifications;
        AnalysisQueue queue([&] { notifications(); });
        queue.Add(1, small);
        queue.Add(2, large);
        ASSERT_TRUE(notifications.WaitFor(1)); // the large one is being read now, or is about to be
        std::this_thread::yield();
        queue.Clear();
        queue.Add(3, small);
        std::vector<AnalysisQueue::Finished> const finished = WaitForResults(queue, notifications);
        ASSERT_EQ(finished.size(), 1u);
        EXPECT_EQ(finished[0].id, 3u);
    }
}

TEST(AnalysisQueue, EndsAtOnceWithWorkLeft)
{
    TemporaryFolder const folder;
    fs::path const file = folder.Write("long.wav", Stereo(500'000).Content());
    int notified = 0;
    {
        AnalysisQueue queue([&] { ++notified; });
        for (unsigned id = 0; id < 10'000; ++id)
        {
            queue.Add(id, file);
        }
    }
    EXPECT_LT(notified, 10'000);
}

TEST(RecordingFiles, ReplaceAFolderByItsWavFilesInOrder)
{
    TemporaryFolder const folder;
    folder.Write("b.wav");
    folder.Write("A.WAV");
    folder.Write("c.Wave");
    folder.Write("notes.txt");
    folder.Write("wav");
    folder.Write("below/d.wav");
    fs::create_directories(folder.Path() / "folder.wav");
    EXPECT_EQ(FindRecordings(std::vector{folder.Path()}).files,
              (std::vector{folder.Path() / "A.WAV", folder.Path() / "b.wav", folder.Path() / "c.Wave"}));
}

TEST(RecordingFiles, KeepSingleFilesWhateverTheyAre)
{
    TemporaryFolder const folder;
    fs::path const text = folder.Write("notes.txt");
    fs::path const wave = folder.Write("b.wav");
    std::filesystem::path const missing = folder.Path() / "missing.wav";
    EXPECT_EQ(FindRecordings(std::vector{text, missing, wave}).files, (std::vector{text, missing, wave}));
}

TEST(RecordingFiles, ComeOnce)
{
    TemporaryFolder const folder;
    fs::path const wave = folder.Write("b.wav");
    EXPECT_EQ(FindRecordings(std::vector{wave, folder.Path(), wave}).files, std::vector{wave});
}

TEST(RecordingFiles, TellWhichFoldersAreMissing)
{
    TemporaryFolder const folder;
    fs::path const wave = folder.Write("b.wav");
    std::filesystem::path const gone = folder.Path() / "gone";
    std::filesystem::path const goneFile = folder.Path() / "gone.wav";
    FoundRecordings const found = FindRecordings(std::vector{gone, folder.Path(), goneFile});
    EXPECT_EQ(found.files, (std::vector{wave, goneFile}));
    EXPECT_EQ(found.missing, std::vector{gone});
}

TEST(RecordingFiles, AreGivenUpWhenAskedTo)
{
    TemporaryFolder const folder;
    for (int i = 0; i < 20; ++i)
    {
        folder.Write("file" + std::to_string(i) + ".wav");
    }
    int asked = 0;
    EXPECT_TRUE(FindRecordings(std::vector{folder.Path()}, [&] { return ++asked > 3; }).files.empty());
    EXPECT_LT(asked, 10);
}

TEST(RecordingSearch, GivesOnceWhatItFound)
{
    TemporaryFolder const folder;
    fs::path const wave = folder.Write("b.wav");
    std::filesystem::path const gone = folder.Path() / "gone";
    Notifications notifications;
    RecordingSearch search({folder.Path(), gone}, [&] { notifications(); });
    ASSERT_TRUE(notifications.WaitFor(1));
    std::optional<FoundRecordings> const found = search.Take();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->files, std::vector{wave});
    EXPECT_EQ(found->missing, std::vector{gone});
    EXPECT_FALSE(search.Take());
}

TEST(RecordingSearch, EndsWhenGivenUp)
{
    TemporaryFolder const folder;
    for (int i = 0; i < 200; ++i)
    {
        folder.Write("file" + std::to_string(i) + ".wav");
    }
    for (int round = 0; round < 20; ++round)
    {
        RecordingSearch const search({folder.Path()}, [] {});
    }
}

TEST(RecordingFiles, AreNoneForNothing)
{
    TemporaryFolder const folder;
    EXPECT_TRUE(FindRecordings({}).files.empty());
    EXPECT_TRUE(FindRecordings(std::vector{folder.Path()}).files.empty());
}

CommandLine Parse(std::vector<std::wstring> const & arguments)
{
    return ParseCommandLine(arguments);
}

TEST(CommandLine, IsInteractiveWithoutArguments)
{
    CommandLine const line = Parse({});
    EXPECT_EQ(line.mode, RunMode::interactive);
    EXPECT_TRUE(line.targets.empty());
    EXPECT_TRUE(line.error.empty());
}

TEST(CommandLine, TakesFoldersAndFiles)
{
    EXPECT_EQ(Parse({L"C:\\sounds", L"", L"a.wav"}).targets, (std::vector<std::wstring>{L"C:\\sounds", L"a.wav"}));
}

TEST(CommandLine, TakesAWalkWithItsFolder)
{
    CommandLine const walk = Parse({L"/Walk", L"out", L"sounds"});
    EXPECT_EQ(walk.mode, RunMode::walk);
    EXPECT_EQ(walk.walkFolder, L"out");
    EXPECT_EQ(walk.targets, std::vector<std::wstring>{L"sounds"});
    EXPECT_EQ(Parse({L"sounds", L"/walk-restart", L"out"}).mode, RunMode::walk_restart);
}

TEST(CommandLine, RefusesAWalkWithoutFolderOrTwoWalks)
{
    EXPECT_EQ(Parse({L"/walk"}).error, L"/walk needs a folder for its markers.");
    EXPECT_EQ(Parse({L"/walk-restart", L""}).error, L"/walk-restart needs a folder for its markers.");
    EXPECT_FALSE(Parse({L"/walk", L"a", L"/walk-restart", L"b"}).error.empty());
}

} // namespace
