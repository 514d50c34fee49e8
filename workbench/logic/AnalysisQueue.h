#pragma once
// Reads recordings on a thread of its own, one after another, so that windows stay alive meanwhile.

#include <atomic>
#include <condition_variable>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "logic/RecordingAnalysis.h"

namespace workbench
{

/// The queue. All operations are for one thread, the owner's; `notify` is called on the queue's own thread.
class AnalysisQueue
{
public:
    /// One recording that has been read.
    struct Finished
    {
        unsigned id;
        std::shared_ptr<RecordingAnalysis const> analysis;
    };

    /// Starts the thread. `notify` is called when a recording becomes ready while none waits to be taken, and must not
    /// call the queue.
    explicit AnalysisQueue(std::function<void()> notify);

    /// Gives up what is not read yet and waits for the thread's end.
    ~AnalysisQueue();

    AnalysisQueue(AnalysisQueue const &) = delete;
    AnalysisQueue & operator=(AnalysisQueue const &) = delete;

    /// Puts a file at the end. The id is the caller's and comes back with the result.
    void Add(unsigned id, std::filesystem::path const & path);

    /// Gives up everything: what waits, what is being read and what is ready.
    void Clear();

    /// What has become ready since the last call, in the order in which it was added.
    std::vector<Finished> TakeFinished();

    /// Whether everything that was added is ready, or given up.
    bool IsIdle();

private:
    struct Job
    {
        unsigned id;
        std::filesystem::path path;
    };

    void Run();

    std::function<void()> m_notify;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<Job> m_jobs;
    std::vector<Finished> m_finished;
    bool m_reading = false;
    std::atomic<unsigned> m_generation = 0;
    std::atomic<bool> m_stop = false;
    std::thread m_thread;
};

} // namespace workbench
