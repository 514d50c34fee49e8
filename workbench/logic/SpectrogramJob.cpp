#include "logic/SpectrogramJob.h"

#include <cmath>
#include <exception>
#include <utility>

namespace workbench
{

SpectrogramJob::SpectrogramJob(std::filesystem::path const & path, std::function<void()> notify)
    : m_notify(std::move(notify)),
      m_thread([this, path] { Run(path); })
{
}

SpectrogramJob::~SpectrogramJob()
{
    m_stop = true;
    m_thread.join();
}

void SpectrogramJob::Run(std::filesystem::path const & path)
{
    auto result = std::make_shared<Result>();
    try
    {
        SpectrogramAnalyser analyser(path);
        while (!m_stop && analyser.Step())
        {
            m_progress = static_cast<int>(std::lround(analyser.Progress() * whole_progress));
        }
        result->problem = analyser.Problem();
        result->info = analyser.Info();
        if (!m_stop)
        {
            result->spectrogram = analyser.Take();
        }
    }
    catch (std::exception const &)
    {
        result->problem = ReadProblem{ReadFault::cannot_be_opened};
        result->spectrogram = Spectrogram();
    }
    if (m_stop)
    {
        return;
    }
    m_result = std::move(result);
    m_done = true;
    m_notify();
}

} // namespace workbench
