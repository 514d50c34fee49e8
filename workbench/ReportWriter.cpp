#include "ReportWriter.h"

#include <algorithm>
#include <utility>

#include "colours/Farbtabellen.h"
#include "frame/CoreLibrary.h"
#include "logic/Texts.h"
#include "PictureCopy.h"

using workbench::Text;

namespace
{

constexpr UINT_PTR step_timer = 1;
constexpr UINT step_interval = 10;        // milliseconds, so that the window answers in between
constexpr ULONGLONG progress_delay = 300; // milliseconds

// Lengths in dialog units.
constexpr int picture_width = 440;
constexpr int waveform_height = 110;
constexpr int spectrogram_height = 140;

constexpr UINT waveform_id = 1;
constexpr UINT spectrogram_id = 2;

constexpr std::size_t whole_recording = workbench::SpectrogramJob::whole_progress;

} // namespace

BEGIN_MESSAGE_MAP(CReportWriter, CWnd)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CReportWriter::~CReportWriter()
{
    if (m_hWnd != nullptr)
    {
        DestroyWindow();
    }
}

bool CReportWriter::CreateViews(workbench::ScreenMetrics & metrics)
{
    m_metrics = &metrics;
    return m_hWnd != nullptr ||
           (CreateEx(0, AfxRegisterWndClass(0), L"", 0, CRect(), CWnd::FromHandle(HWND_MESSAGE), 0) &&
            m_waveform.CreateView(*this, waveform_id, metrics) &&
            m_spectrogram.CreateView(*this, spectrogram_id, metrics));
}

bool CReportWriter::Begin(std::vector<workbench::ReportedRecording> recordings, std::filesystem::path const & file,
                          workbench::Settings const & settings, workbench::ScreenMetrics & metrics)
{
    Cancel();
    m_error = 0;
    if (!CreateViews(metrics))
    {
        return false;
    }
    auto draft = std::make_unique<workbench::FileDraft>(file);
    workbench::ReportHead const head{Text(L"Report on Recordings"), Text(L"en"),
                                     UserDateTimeText(CTime::GetCurrentTime(), dtf_date_time).GetString()};
    if (!draft->Append(workbench::ReportBegin(head, recordings)))
    {
        m_error = draft->Error();
        return false;
    }
    m_spectrogram.SetColours(Farbtabellen::SpektrogrammFarbtabelle(settings.spectrogramScale));
    m_spectrogram.SetSettings(settings.spectrogram);
    m_spectrogram.SetScale(settings.frequencyScale);
    m_draft = std::move(draft);
    m_file = file;
    m_recordings = std::move(recordings);
    m_place = 0;
    m_isShown = false;
    m_begin = ::GetTickCount64();
    SetTimer(step_timer, step_interval, nullptr);
    return true;
}

void CReportWriter::Cancel()
{
    if (IsWriting())
    {
        KillTimer(step_timer);
        m_draft.reset();
        m_recordings.clear();
        m_pictures.clear();
        m_spectrogram.ShowText(L"", L"");
    }
}

CReportWriter::State CReportWriter::Progress() const
{
    if (!IsWriting() || ::GetTickCount64() - m_begin < progress_delay)
    {
        return {0, 0};
    }
    auto const ofThis = m_isShown ? static_cast<std::size_t>(m_spectrogram.Progress()) : 0;
    return {m_place * whole_recording + ofThis, std::max<std::size_t>(m_recordings.size(), 1) * whole_recording};
}

/// One picture, or nothing while a spectrogram is computed.
void CReportWriter::OnTimer(UINT_PTR id)
{
    if (id != step_timer || !IsWriting())
    {
        CWnd::OnTimer(id);
        return;
    }
    if (m_place == m_recordings.size())
    {
        End(m_draft->Append(workbench::ReportEnd()) && m_draft->Finish());
        return;
    }
    if (!m_isShown)
    {
        ShowNext();
    }
    else if (!m_spectrogram.IsComputing())
    {
        FinishRecording();
    }
    // A copy, as what it does may replace it.
    if (auto const onProgress = m_onProgress)
    {
        onProgress();
    }
}

/// Begins with a recording: its spectrogram is computed while its waveform is drawn.
void CReportWriter::ShowNext()
{
    workbench::ReportedRecording const & recording = m_recordings[m_place];
    m_isShown = true;
    m_pictures.clear();
    if (!recording.analysis || recording.analysis->problem)
    {
        return;
    }
    auto const name = recording.file.filename().wstring();
    m_spectrogram.ShowRecording(name, recording.file);
    m_waveform.ShowRecording(name, recording.analysis);
    CSize const size(m_metrics->X(picture_width), m_metrics->Y(waveform_height));
    auto const draw = [this](CDC & dc, CRect const & rect) { m_waveform.Print(dc, rect); };
    m_pictures.push_back({Text(L"Waveform"), workbench::PngPicture(*this, size, draw), size.cx, size.cy});
}

void CReportWriter::FinishRecording()
{
    workbench::ReportedRecording const & recording = m_recordings[m_place];
    if (!m_pictures.empty())
    {
        CSize const size(m_metrics->X(picture_width), m_metrics->Y(spectrogram_height));
        auto const draw = [this](CDC & dc, CRect const & rect) { m_spectrogram.Print(dc, rect); };
        m_pictures.push_back({Text(L"Spectrogram"), workbench::PngPicture(*this, size, draw), size.cx, size.cy});
    }
    if (!m_draft->Append(workbench::ReportSection(recording, m_pictures)))
    {
        End(false);
        return;
    }
    ++m_place;
    m_isShown = false;
}

void CReportWriter::End(bool written)
{
    m_error = m_draft->Error();
    Cancel();
    if (auto const onEnded = m_onEnded)
    {
        onEnded(written);
    }
}
