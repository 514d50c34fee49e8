#include "WaveformFrame.h"

#include <array>
#include <utility>

#include "logic/Texts.h"
#include "WaveformPanelView.h"
#include "windows/StandaloneFrameWnd.h"

using workbench::Text;

namespace
{

constexpr std::size_t grid_width = 2;

/// A frame whose cells keep their shares of its size, at first the same.
class CGridFrame : public CStandaloneFrameWnd
{
public:
    void Share()
    {
        if (CSplitterWnd * const grid = Grid())
        {
            CRect room;
            grid->GetClientRect(&room);
            m_set = CSize(static_cast<int>(room.Width() * m_shareX), static_cast<int>(room.Height() * m_shareY));
            grid->SetColumnInfo(0, m_set.cx, 0);
            grid->SetRowInfo(0, m_set.cy, 0);
            grid->RecalcLayout();
        }
    }

protected:
    DECLARE_MESSAGE_MAP()

private:
    CSplitterWnd * Grid() const
    {
        auto * const cell = const_cast<CGridFrame *>(this)->GetSplitPane(0, 0);
        return cell != nullptr ? DYNAMIC_DOWNCAST(CSplitterWnd, cell->GetParent()) : nullptr;
    }

    /// Takes the shares over that the user has given to the cells.
    void NoteShares()
    {
        CSplitterWnd * const grid = Grid();
        if (grid == nullptr || m_set == CSize(0, 0))
        {
            return;
        }
        CRect room;
        grid->GetClientRect(&room);
        int width = 0;
        int height = 0;
        int least = 0;
        grid->GetColumnInfo(0, width, least);
        grid->GetRowInfo(0, height, least);
        if (CSize(width, height) != m_set && width > 0 && height > 0 && !room.IsRectEmpty())
        {
            m_shareX = static_cast<double>(width) / room.Width();
            m_shareY = static_cast<double>(height) / room.Height();
        }
    }

    afx_msg void OnSize(UINT type, int width, int height)
    {
        bool const sized = type != SIZE_MINIMIZED && !IsIconic();
        if (sized)
        {
            NoteShares();
        }
        CStandaloneFrameWnd::OnSize(type, width, height);
        if (sized && m_set != CSize(0, 0))
        {
            Share();
        }
    }

    double m_shareX = 0.5;
    double m_shareY = 0.5;
    CSize m_set = CSize(0, 0); ///< the first cell's size as it was shared out
};

BEGIN_MESSAGE_MAP(CGridFrame, CStandaloneFrameWnd)
    ON_WM_SIZE()
END_MESSAGE_MAP()

/// The frame's client area in the main window.
CRect AreaOf(CStandaloneFrameWnd & frame)
{
    CRect area;
    frame.GetParent()->GetClientRect(&area);
    return area;
}

} // namespace

CWaveformFrame::CWaveformFrame(CString const & name, std::size_t cells) : m_name(name), m_cells(cells) {}

CWaveformFrame::~CWaveformFrame()
{
    m_onOpened = nullptr;
    Close(); // it keeps a plain pointer to this object
}

bool CWaveformFrame::Open(std::vector<Shown> recordings, workbench::Settings const & settings)
{
    if (m_frame != nullptr || recordings.empty())
    {
        return false;
    }
    m_recordings = std::move(recordings);
    m_recordings.resize(std::min(m_recordings.size(), m_cells));
    CStandaloneFrameWnd * const frame = m_cells == 1 ? CreateFrame<CWaveformPanelView>(m_name) : CreateGrid();
    if (frame == nullptr || !FrameLebt())
    {
        return false;
    }
    m_frame = frame;
    PlaceFirstTime(AreaOf(*frame));
    // Its name is what it is remembered by; what it says is its own affair from here on.
    frame->SetTitle(Title());
    frame->SetWindowText(Title());
    for (std::size_t cell = 0; cell < m_cells; ++cell)
    {
        ShowCell(cell);
        if (CWaveformPanelView * const view = Cell(cell))
        {
            view->Waveform().SetAmplification(settings.amplification);
        }
    }
    Follow(settings);
    if (m_onOpened)
    {
        m_onOpened(*this, true);
    }
    return true;
}

CStandaloneFrameWnd * CWaveformFrame::CreateGrid()
{
    std::array<CRuntimeClass *, grid_width * grid_width> classes;
    classes.fill(RUNTIME_CLASS(CWaveformPanelView));
    auto * const frame = new CGridFrame;
    frame->BitteUmNachricht(this);
    if (frame->SplitFrameErzeugen(m_name, grid_width, grid_width, classes.data()))
    {
        frame->Share();
        return frame;
    }
    CStandaloneFrameUser::BeiFrameAbleben(); // nobody else says that it is not there
    return nullptr;
}

/// A frame of which no place is known fills the room there is.
void CWaveformFrame::PlaceFirstTime(CRect const & area)
{
    m_frame->FensterManager()->PreferedPosition(area);
    m_frame->FensterpositionLaden();
    // One that had its size before it had its view has given that none.
    m_frame->RecalcLayout();
}

void CWaveformFrame::Activate()
{
    if (m_frame == nullptr)
    {
        return;
    }
    if (m_frame->IsIconic())
    {
        m_frame->MDIRestore();
    }
    m_frame->MDIActivate();
}

void CWaveformFrame::Close()
{
    if (m_frame != nullptr)
    {
        m_frame->DestroyWindow();
    }
}

void CWaveformFrame::Follow(workbench::Settings const & settings)
{
    for (std::size_t cell = 0; m_frame != nullptr && cell < m_cells; ++cell)
    {
        if (CWaveformPanelView * const view = Cell(cell))
        {
            view->Waveform().SetColours(settings.waveform);
        }
    }
}

CString CWaveformFrame::Title() const
{
    std::wstring names;
    for (Shown const & recording : m_recordings)
    {
        names += (names.empty() ? L"" : L", ") + recording.file.filename().wstring();
    }
    return (m_cells == 1 ? names : Text(L"Comparison") + (L": " + names)).c_str();
}

void CWaveformFrame::ShowTexts()
{
    if (m_frame == nullptr)
    {
        return;
    }
    m_frame->SetTitle(Title());
    m_frame->SetWindowText(Title());
    for (std::size_t cell = 0; cell < m_cells; ++cell)
    {
        CWaveformPanelView * const view = Cell(cell);
        if (view != nullptr)
        {
            view->ShowTexts();
        }
        if (cell >= m_recordings.size() || !m_recordings[cell].analysis || m_recordings[cell].analysis->problem)
        {
            ShowCell(cell);
        }
    }
}

CWaveformPanelView * CWaveformFrame::Cell(std::size_t cell) const
{
    if (m_frame == nullptr)
    {
        return nullptr;
    }
    CWnd * const view =
        m_cells == 1 ? m_frame->GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE)
                     : m_frame->GetSplitPane(static_cast<int>(cell / grid_width), static_cast<int>(cell % grid_width));
    return DYNAMIC_DOWNCAST(CWaveformPanelView, view);
}

void CWaveformFrame::Show(std::size_t cell, std::shared_ptr<workbench::RecordingAnalysis const> analysis)
{
    Shown & recording = m_recordings[cell];
    if (recording.analysis && *recording.analysis == *analysis)
    {
        return;
    }
    recording.analysis = std::move(analysis);
    ShowCell(cell);
}

void CWaveformFrame::ShowCell(std::size_t cell)
{
    CWaveformPanelView * const view = Cell(cell);
    if (view == nullptr)
    {
        return;
    }
    if (cell >= m_recordings.size())
    {
        view->Waveform().ShowText(Text(L"No recording"), L"");
        return;
    }
    Shown const & recording = m_recordings[cell];
    auto const name = recording.file.filename().wstring();
    if (recording.analysis)
    {
        view->Waveform().ShowRecording(name, recording.analysis, recording.file);
    }
    else
    {
        view->Waveform().ShowText(name, Text(L"reading..."));
    }
}

void CWaveformFrame::BeiFrameAbleben()
{
    CStandaloneFrameUser::BeiFrameAbleben();
    if (m_frame == nullptr)
    {
        return; // it ends while it is made
    }
    // The frame is still there.
    if (m_onOpened)
    {
        m_onOpened(*this, false);
    }
    m_frame = nullptr;
}
