#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "logic/AnalysisQueue.h"
#include "WaveformFrame.h"

/// The frames with waveforms. They are known by their numbers, so that they come back after a restart, and have their
/// recordings read on a thread of their own, whatever the list shows.
class CWaveformFrames
{
public:
    using Shown = CWaveformFrame::Shown;

    static constexpr int most_single = 16;
    static constexpr int most_grids = 4;

    CWaveformFrames();
    CWaveformFrames(CWaveformFrames const &) = delete;
    CWaveformFrames & operator=(CWaveformFrames const &) = delete;

    /// What tells the owner, from any thread, to call TakeResults. Before anything is opened.
    void SetNotify(std::function<void()> notify);

    /// Shows a recording in a frame of its own, or brings that to the front. False if there can be no more.
    bool Open(Shown const & recording);
    /// Shows up to four recordings in a new grid. False if there can be no more.
    bool Compare(std::vector<Shown> recordings);
    bool HasRoom() const { return FreeFrame(1) != nullptr; }
    bool HasRoomToCompare() const { return FreeFrame(grid_cells) != nullptr; }

    /// Opens the frames that were open at the end of the last run, as far as one of their recordings is still there.
    void Restore();

    /// Has what is shown read again; of one file, or of all.
    void Reload();
    void Reload(std::filesystem::path const & file);
    void TakeResults();
    /// Whether recordings are being read.
    bool IsReading() const { return !m_reading.empty(); }

    /// Lets the frames follow these settings.
    void Follow(workbench::Settings const & settings);

    bool AnyOpen() const;
    /// The open frames.
    std::vector<CWaveformFrame *> Frames() const;
    /// Ends reading; no frame may be opened after this.
    void Stop();

    /// Called when a frame has opened, and when it is about to end.
    std::function<void(CWaveformFrame &, bool)> m_onOpened;

private:
    static constexpr std::size_t grid_cells = 4;

    CWaveformFrame * FreeFrame(std::size_t cells) const;
    bool OpenFrame(CWaveformFrame & frame, std::vector<Shown> recordings);
    void Read(CWaveformFrame & frame, std::size_t cell);

    workbench::Settings m_settings;
    std::function<void()> m_notify;
    std::vector<std::unique_ptr<CWaveformFrame>> m_frames;
    std::unique_ptr<workbench::AnalysisQueue> m_queue;
    /// What is being read: the frame's number and the cell, by the id in the queue.
    std::map<unsigned, std::pair<CWaveformFrame *, std::size_t>> m_reading;
    unsigned m_nextId = 0;
};
