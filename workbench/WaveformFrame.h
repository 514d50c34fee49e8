#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "logic/RecordingAnalysis.h"
#include "Settings.h"
#include "windows/StandaloneFrameUser.h"

class CStandaloneFrameWnd;
class CWaveformPanelView;

/// A frame of the main window that shows the waveform of one recording, or of up to four in a grid of two by two. The
/// frame can be opened and closed as often as wanted; it remembers its place, whether it was open, and its recordings
/// under its name.
class CWaveformFrame : public CStandaloneFrameUser
{
public:
    /// A recording; without an analysis it is being read.
    struct Shown
    {
        std::filesystem::path file;
        std::shared_ptr<workbench::RecordingAnalysis const> analysis;
    };

    /// cells: 1 or 4.
    CWaveformFrame(CString const & name, std::size_t cells);
    CWaveformFrame(CWaveformFrame const &) = delete;
    CWaveformFrame & operator=(CWaveformFrame const &) = delete;
    ~CWaveformFrame() override;

    /// Opens the frame with these recordings; the first ones, where they are more than it has cells. False if it could
    /// not be made.
    bool Open(std::vector<Shown> recordings, workbench::Settings const & settings);
    /// Brings the open frame to the front.
    void Activate();
    /// Closes the frame as the user does.
    void Close();
    void Follow(workbench::Settings const & settings);

    CString const & Name() const { return m_name; }
    std::size_t Cells() const { return m_cells; }
    /// Null unless it is open.
    CStandaloneFrameWnd * Frame() const { return m_frame; }
    CString Title() const;
    /// Shows what it says in the present language.
    void ShowTexts();
    std::vector<Shown> const & Recordings() const { return m_recordings; }
    /// Shows what has been read of a recording.
    void Show(std::size_t cell, std::shared_ptr<workbench::RecordingAnalysis const> analysis);
    CWaveformPanelView * Cell(std::size_t cell) const;

    /// Called when the frame has opened, and when it is about to end.
    std::function<void(CWaveformFrame &, bool)> m_onOpened;

    void BeiFrameAbleben() override;

private:
    CStandaloneFrameWnd * CreateGrid();
    void PlaceFirstTime(CRect const & area);
    void ShowCell(std::size_t cell);

    CString m_name;
    std::size_t m_cells;
    CStandaloneFrameWnd * m_frame = nullptr;
    std::vector<Shown> m_recordings;
};
