#include "logic/AnalysisQueue.h"

#include <exception>
#include <utility>

namespace workbench
{

AnalysisQueue::AnalysisQueue(std::function<void()> notify) : m_notify(std::move(notify)), m_thread([this] { Run(); }) {}

AnalysisQueue::~AnalysisQueue()
{
    {
        std::scoped_lock const lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void AnalysisQueue::Add(unsigned id, std::filesystem::path const & path)
{
    {
        std::scoped_lock const lock(m_mutex);
        m_jobs.push_back({id, path});
    }
    m_wake.notify_one();
}

void AnalysisQueue::Clear()
{
    std::scoped_lock const lock(m_mutex);
    m_jobs.clear();
    m_finished.clear();
    ++m_generation;
}

std::vector<AnalysisQueue::Finished> AnalysisQueue::TakeFinished()
{
    std::scoped_lock const lock(m_mutex);
    return std::exchange(m_finished, {});
}

bool AnalysisQueue::IsIdle()
{
    std::scoped_lock const lock(m_mutex);
    return m_jobs.empty() && !m_reading;
}

void AnalysisQueue::Run()
{
    std::unique_lock lock(m_mutex);
    for (;;)
    {
        m_wake.wait(lock, [this] { return m_stop || !m_jobs.empty(); });
        if (m_stop)
        {
            return;
        }
        Job const job = std::move(m_jobs.front());
        m_jobs.pop_front();
        m_reading = true;
        unsigned int const generation = m_generation.load();
        lock.unlock();

        RecordingAnalysis analysis;
        try
        {
            RecordingAnalyser analyser(job.path);
            while (!m_stop && m_generation == generation && analyser.Step())
            {
            }
            analysis = analyser.Take();
        }
        catch (std::exception const &)
        {
            analysis.problem = ReadProblem{ReadFault::cannot_be_opened};
        }
        auto result = std::make_shared<RecordingAnalysis const>(std::move(analysis));

        lock.lock();
        if (!m_stop && m_generation == generation)
        {
            bool const first = m_finished.empty();
            m_finished.push_back({job.id, std::move(result)});
            if (first)
            {
                lock.unlock();
                m_notify();
                lock.lock();
            }
        }
        m_reading = false;
    }
}

} // namespace workbench
