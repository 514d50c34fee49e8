#include "logic/FrameMeasuresJob.h"

#include <chrono>
#include <cmath>
#include <exception>
#include <utility>
#include <vector>

namespace workbench
{

namespace
{

// More often nobody could see it, and whoever is told has something to do each time.
constexpr std::chrono::milliseconds tell_interval(100);

using Clock = std::chrono::steady_clock;

} // namespace

FrameMeasuresJob::FrameMeasuresJob(OpenBytes open, Listener listener, FrameSettings const & settings)
    : m_listener(std::move(listener)),
      m_thread([this, open = std::move(open), settings] { Run(open, settings); })
{
}

FrameMeasuresJob::FrameMeasuresJob(std::filesystem::path const & path, Listener listener,
                                   FrameSettings const & settings)
    : FrameMeasuresJob([path] { return FileByteSource::Open(path); }, std::move(listener), settings)
{
}

FrameMeasuresJob::~FrameMeasuresJob()
{
    m_stop = true;
    m_thread.join();
}

void FrameMeasuresJob::Run(OpenBytes const & open, FrameSettings const & settings)
{
    auto result = std::make_shared<Result>();
    std::size_t told = 0;
    auto const tell = [&] {
        if (std::size_t const count = m_rows->Size() - told; count > 0)
        {
            told += count;
            m_listener.appended(count);
        }
    };
    try
    {
        FrameAnalyser analyser(open(), settings);
        m_rows->SetRaster(analyser.Raster());
        result->problem = analyser.Problem();
        result->info = analyser.Info();
        std::vector<FrameMeasures> rows;
        Clock::time_point lastTold{};
        for (bool goesOn = true; goesOn && !m_stop;)
        {
            rows.clear();
            goesOn = analyser.Step(rows);
            m_rows->Append(rows);
            if (auto const now = Clock::now(); now - lastTold >= tell_interval)
            {
                tell();
                lastTold = now;
            }
            m_progress = static_cast<int>(std::lround(analyser.Progress() * whole_progress));
        }
        result->whole = analyser.IsWhole();
    }
    catch (std::exception const &)
    {
        // No memory, or a source that throws. What was measured stays.
        if (m_rows->Size() == 0)
        {
            result->problem = ReadProblem{ReadFault::cannot_be_opened};
        }
    }
    if (m_stop)
    {
        return;
    }
    tell();
    m_result = std::move(result);
    m_done = true;
    m_listener.ended();
}

} // namespace workbench
