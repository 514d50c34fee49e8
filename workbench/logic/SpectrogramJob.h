#pragma once
// Computes one spectrogram on a thread of its own, so that windows stay alive meanwhile.

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "logic/Spectrogram.h"

namespace workbench
{

/// The job. All operations are for one thread, the owner's; `notify` is called on the job's own thread.
class SpectrogramJob
{
public:
    /// What the job gives.
    struct Result
    {
        std::optional<ReadProblem> problem;
        RecordingInfo info;
        Spectrogram spectrogram; ///< empty with a problem
    };

    /// Starts the thread. `notify` is called once, when the result is there, and must not call the job.
    /// Without a stretch, all of the recording is computed.
    SpectrogramJob(std::filesystem::path const & path, std::function<void()> notify,
                   SpectrogramSettings const & settings = {}, std::optional<FrameRange> const & stretch = {});

    /// Gives the job up, if it is not done, and waits for the thread's end.
    ~SpectrogramJob();

    SpectrogramJob(SpectrogramJob const &) = delete;
    SpectrogramJob & operator=(SpectrogramJob const &) = delete;

    /// The part that is done, in 1/1000.
    int Progress() const { return m_progress; }

    /// The result once it is there; null before.
    std::shared_ptr<Result const> GetResult() const { return m_done ? m_result : nullptr; }

    static constexpr int whole_progress = 1000;

private:
    void Run(std::filesystem::path const & path, SpectrogramSettings const & settings,
             std::optional<FrameRange> const & stretch);

    std::function<void()> m_notify;
    std::atomic<int> m_progress = 0;
    std::atomic<bool> m_stop = false;
    std::atomic<bool> m_done = false;
    std::shared_ptr<Result const> m_result;
    std::thread m_thread;
};

} // namespace workbench
