#pragma once

#include <afxwin.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "logic/Report.h"
#include "logic/SafeFile.h"
#include "ScreenMetrics.h"
#include "Settings.h"
#include "SpectrogramView.h"
#include "WaveformView.h"

/// Writes a report about recordings while the user works on: an invisible window whose timer draws one picture at a
/// time, and whose spectrograms are computed on a thread.
class CReportWriter : public CWnd
{
public:
    ~CReportWriter() override;

    /// Begins a report, in place of one that is being written. False if the file cannot be written. The metrics must
    /// outlive the window.
    bool Begin(std::vector<workbench::ReportedRecording> recordings, std::filesystem::path const & file,
               workbench::Settings const & settings, workbench::ScreenMetrics & metrics);
    /// Gives up what is being written; a file that was there before stays.
    void Cancel();

    bool IsWriting() const { return m_draft != nullptr; }
    std::filesystem::path const & File() const { return m_file; }
    /// Why the last one could not be written: the system's number, 0 where it could be.
    unsigned long Error() const { return m_error; }

    /// How much is done, and of how much; 0 of 0 for the first moment, after which most reports are written.
    struct State
    {
        std::size_t done;
        std::size_t total;
    };
    State Progress() const;

    /// Called now and then while it is written.
    std::function<void()> m_onProgress;
    /// Called once it is written, or can't be.
    std::function<void(bool written)> m_onEnded;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnTimer(UINT_PTR id);

    bool CreateViews(workbench::ScreenMetrics & metrics);
    void ShowNext();
    void FinishRecording();
    void End(bool written);

    CWaveformView m_waveform;
    CSpectrogramView m_spectrogram;
    workbench::ScreenMetrics * m_metrics = nullptr;
    std::vector<workbench::ReportedRecording> m_recordings;
    std::filesystem::path m_file;
    std::unique_ptr<workbench::FileDraft> m_draft;
    unsigned long m_error = 0;
    std::size_t m_place = 0;
    bool m_isShown = false; ///< the present recording is in the views
    std::vector<workbench::ReportPicture> m_pictures;
    ULONGLONG m_begin = 0;
};
