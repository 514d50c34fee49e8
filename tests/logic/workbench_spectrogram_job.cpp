// A spectrogram computed on a thread of its own.

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <fstream>
#include <mutex>
#include <random>

#include "logic/SpectrogramJob.h"
#include "workbench_WavBuilder.h"

namespace
{

using namespace workbench;
namespace fs = std::filesystem;

class SpectrogramJobTest : public testing::Test
{
protected:
    SpectrogramJobTest()
    {
        m_path = fs::temp_directory_path() / ("spectrogram_" + std::to_string(std::random_device()()) + ".wav");
    }
    ~SpectrogramJobTest() override
    {
        std::error_code error;
        fs::remove(m_path, error);
    }

    fs::path const & Recording(std::size_t frames)
    {
        std::vector<std::int16_t> const samples(frames, 1000);
        auto const file =
            wav::File().Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16)).Chunk("data", wav::Samples16(samples));
        wav::Bytes const & bytes = file.Content();
        std::ofstream stream(m_path, std::ios::binary);
        stream.write(reinterpret_cast<char const *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        EXPECT_TRUE(stream.good());
        return m_path;
    }

    std::function<void()> Notify()
    {
        return [this] {
            std::scoped_lock const lock(m_mutex);
            ++m_notified;
            m_changed.notify_all();
        };
    }
    bool WaitForNotification()
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::minutes(2), [&] { return m_notified > 0; });
    }

    int m_notified = 0;

private:
    fs::path m_path;
    std::mutex m_mutex;
    std::condition_variable m_changed;
};

} // namespace

TEST_F(SpectrogramJobTest, GivesTheSpectrogramOnceItIsDone)
{
    SpectrogramJob job(Recording(50'000), Notify());
    ASSERT_TRUE(WaitForNotification());
    std::shared_ptr<SpectrogramJob::Result const> const result = job.GetResult();
    ASSERT_TRUE(result);
    EXPECT_FALSE(result->problem);
    EXPECT_EQ(result->info.sampleRate, 8000u);
    EXPECT_EQ(result->spectrogram.Frames(), 50'000u);
    EXPECT_GT(result->spectrogram.Entry(50, 0), 10);
    EXPECT_EQ(job.Progress(), SpectrogramJob::whole_progress);
    EXPECT_EQ(m_notified, 1);
}

TEST_F(SpectrogramJobTest, GivesTheProblemOfAFileThatCannotBeRead)
{
    SpectrogramJob job("missing.wav", Notify());
    ASSERT_TRUE(WaitForNotification());
    std::shared_ptr<SpectrogramJob::Result const> const result = job.GetResult();
    ASSERT_TRUE(result && result->problem);
    EXPECT_EQ(result->problem->fault, ReadFault::cannot_be_opened);
    EXPECT_EQ(result->spectrogram.Columns(), 0u);
}

TEST_F(SpectrogramJobTest, EndsAtOnceWhenItIsGivenUp)
{
    fs::path const & path = Recording(20'000'000);
    {
        SpectrogramJob const job(path, Notify());
        EXPECT_EQ(job.GetResult(), nullptr);
    }
    EXPECT_EQ(m_notified, 0) << "and tells nothing";
}
