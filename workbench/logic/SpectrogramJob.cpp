#include "logic/SpectrogramJob.h"

#include <cmath>
#include <exception>
#include <utility>

namespace workbench
{

SpectrogramJob::SpectrogramJob(std::filesystem::path const & path, std::function<void()> notify,
                               SpectrogramSettings const & settings, std::optional<FrameRange> const & stretch)
    : m_notify(std::move(notify)),
      m_thread([this, path, settings, stretch] { Run(path, settings, stretch); })
{
}

SpectrogramJob::~SpectrogramJob()
{
    m_stop = true;
    m_thread.join();
}

void SpectrogramJob::Run(std::filesystem::path const & path, SpectrogramSettings const & settings,
                         std::optional<FrameRange> const & stretch)
{
    auto result = std::make_shared<Result>();
    try
    {
        SpectrogramAnalyser analyser(path, settings, stretch);
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
