#include "WaveformFrames.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <system_error>

#include "windows/FensterManager.h"

CWaveformFrames::CWaveformFrames()
{
    auto const add = [this](wchar_t const * name, int count, std::size_t cells) {
        for (int number = 1; number <= count; ++number)
        {
            CString numbered;
            numbered.Format(L"%s %d", name, number);
            auto & frame = *m_frames.emplace_back(std::make_unique<CWaveformFrame>(numbered, cells));
            frame.m_onOpened = [this](CWaveformFrame & which, bool open) {
                std::erase_if(m_reading, [&](auto const & each) { return !open && each.second.first == &which; });
                if (m_onOpened)
                {
                    m_onOpened(which, open);
                }
            };
        }
    };
    add(L"Waveform", most_single, 1);
    add(L"Comparison", most_grids, grid_cells);
}

void CWaveformFrames::SetNotify(std::function<void()> notify)
{
    m_notify = std::move(notify);
}

/// The first frame with so many cells that is not open; null if all are.
CWaveformFrame * CWaveformFrames::FreeFrame(std::size_t cells) const
{
    auto const found = std::ranges::find_if(
        m_frames, [cells](auto const & frame) { return frame->Cells() == cells && !frame->FrameLebt(); });
    return found != m_frames.end() ? found->get() : nullptr;
}

bool CWaveformFrames::Open(Shown const & recording)
{
    auto const shows = [&](auto const & frame) {
        return frame->FrameLebt() && frame->Cells() == 1 && frame->Recordings().front().file == recording.file;
    };
    if (auto const found = std::ranges::find_if(m_frames, shows); found != m_frames.end())
    {
        (*found)->Activate();
        return true;
    }
    CWaveformFrame * const frame = FreeFrame(1);
    return frame != nullptr && OpenFrame(*frame, {recording});
}

bool CWaveformFrames::Compare(std::vector<Shown> recordings)
{
    CWaveformFrame * const frame = FreeFrame(grid_cells);
    return frame != nullptr && OpenFrame(*frame, std::move(recordings));
}

bool CWaveformFrames::OpenFrame(CWaveformFrame & frame, std::vector<Shown> recordings)
{
    if (!frame.Open(std::move(recordings), m_settings))
    {
        return false;
    }
    std::vector<std::filesystem::path> files;
    std::ranges::transform(frame.Recordings(), std::back_inserter(files), &Shown::file);
    workbench::StoreFrameRecordings(frame.Name(), files);
    for (std::size_t cell = 0; cell < frame.Recordings().size(); ++cell)
    {
        if (!frame.Recordings()[cell].analysis)
        {
            Read(frame, cell);
        }
    }
    return true;
}

void CWaveformFrames::Restore()
{
    for (std::unique_ptr<CWaveformFrame> const & frame : m_frames)
    {
        if (frame->FrameLebt() || !CFensterManager::OpenInitially(frame->Name()))
        {
            continue;
        }
        std::vector<std::filesystem::path> const files = workbench::ReadFrameRecordings(frame->Name());
        auto const isThere = [](std::filesystem::path const & file) {
            std::error_code error;
            return std::filesystem::exists(file, error);
        };
        if (std::ranges::any_of(files, isThere))
        {
            std::vector<Shown> recordings;
            std::ranges::transform(files, std::back_inserter(recordings), [](auto const & file) {
                return Shown{file, nullptr};
            });
            OpenFrame(*frame, std::move(recordings));
        }
    }
}

void CWaveformFrames::Read(CWaveformFrame & frame, std::size_t cell)
{
    if (!m_queue)
    {
        m_queue = std::make_unique<workbench::AnalysisQueue>(m_notify);
    }
    unsigned int const id = m_nextId++;
    m_reading[id] = {&frame, cell};
    m_queue->Add(id, frame.Recordings()[cell].file);
}

void CWaveformFrames::Reload()
{
    Reload({});
}

void CWaveformFrames::Reload(std::filesystem::path const & file)
{
    for (CWaveformFrame * const frame : Frames())
    {
        for (std::size_t cell = 0; cell < frame->Recordings().size(); ++cell)
        {
            if (file.empty() || frame->Recordings()[cell].file == file)
            {
                Read(*frame, cell);
            }
        }
    }
}

void CWaveformFrames::TakeResults()
{
    if (!m_queue)
    {
        return;
    }
    for (workbench::AnalysisQueue::Finished const & finished : m_queue->TakeFinished())
    {
        if (auto const found = m_reading.find(finished.id); found != m_reading.end())
        {
            auto const [frame, cell] = found->second;
            m_reading.erase(found);
            frame->Show(cell, finished.analysis);
        }
    }
}

void CWaveformFrames::Follow(workbench::Settings const & settings)
{
    m_settings = settings;
    for (CWaveformFrame * const frame : Frames())
    {
        frame->Follow(settings);
    }
}

bool CWaveformFrames::AnyOpen() const
{
    return std::ranges::any_of(m_frames, [](auto const & frame) { return frame->FrameLebt(); });
}

std::vector<CWaveformFrame *> CWaveformFrames::Frames() const
{
    std::vector<CWaveformFrame *> open;
    for (std::unique_ptr<CWaveformFrame> const & frame : m_frames)
    {
        if (frame->Frame() != nullptr)
        {
            open.push_back(frame.get());
        }
    }
    return open;
}

void CWaveformFrames::Stop()
{
    m_queue.reset();
    m_reading.clear();
}
