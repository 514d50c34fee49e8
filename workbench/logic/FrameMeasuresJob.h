#pragma once
// Measures a recording's analysis frames on a thread of its own; what is known by then can be looked at meanwhile.

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "logic/FrameMeasures.h"

namespace workbench
{

/// The job. All operations are for one thread, the owner's; what it calls is called on the job's own thread.
class FrameMeasuresJob
{
public:
    /// How it ended.
    struct Result
    {
        std::optional<ReadProblem> problem;
        RecordingInfo info;
        bool whole = false; ///< as many samples as announced were read
    };

    /// What the job tells, none of which may call the job.
    struct Listener
    {
        std::function<void(std::size_t count)> appended; ///< so many rows have come; now and then
        std::function<void()> ended;                     ///< once, when the result is there
    };

    /// Starts the thread.
    FrameMeasuresJob(OpenBytes open, Listener listener, FrameSettings const & settings = {});
    FrameMeasuresJob(std::filesystem::path const & path, Listener listener, FrameSettings const & settings = {});

    /// Gives the job up, if it is not done, and waits for the thread's end.
    ~FrameMeasuresJob();

    FrameMeasuresJob(FrameMeasuresJob const &) = delete;
    FrameMeasuresJob & operator=(FrameMeasuresJob const &) = delete;

    /// The rows, which outlive the job.
    std::shared_ptr<FrameStore const> Rows() const { return m_rows; }
    /// The part that is done, in 1/1000.
    int Progress() const { return m_progress; }
    /// The result once it is there; null before.
    std::shared_ptr<Result const> GetResult() const { return m_done ? m_result : nullptr; }

    static constexpr int whole_progress = 1000;

private:
    void Run(OpenBytes const & open, FrameSettings const & settings);

    Listener m_listener;
    std::shared_ptr<FrameStore> m_rows = std::make_shared<FrameStore>();
    std::atomic<int> m_progress = 0;
    std::atomic<bool> m_stop = false;
    std::atomic<bool> m_done = false;
    std::shared_ptr<Result const> m_result;
    std::thread m_thread;
};

} // namespace workbench
