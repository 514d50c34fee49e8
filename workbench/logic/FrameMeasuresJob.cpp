#include "logic/FrameMeasuresJob.h"

#include <cmath>
#include <exception>
#include <utility>
#include <vector>

namespace workbench
{

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
    try
    {
        FrameAnalyser analyser(open(), settings);
        m_rows->SetRaster(analyser.Raster());
        result->problem = analyser.Problem();
        result->info = analyser.Info();
        std::vector<FrameMeasures> rows;
        for (auto goesOn = true; goesOn && !m_stop;)
        {
            rows.clear();
            goesOn = analyser.Step(rows);
            if (!rows.empty())
            {
                m_rows->Append(rows);
                m_listener.appended(rows.size());
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
    m_result = std::move(result);
    m_done = true;
    m_listener.ended();
}

} // namespace workbench
