#include "MainWindow.h"

#include <shellapi.h>

#include <algorithm>
#include <array>

#include "FileDialogs.h"
#include "logic/RecordingFiles.h"
#include "logic/TextFormat.h"
#include "resource.h"

namespace
{

constexpr wchar_t c_title[] = L"Instrument Workbench";

// From the reading thread: there are recordings to fetch.
constexpr UINT c_messageRecordingsReady = WM_APP + 1;

// Lengths in dialog units.
constexpr int c_margin = 7;
constexpr int c_spacing = 5;
constexpr int c_buttonWidth = 60;
constexpr int c_buttonHeight = 15;
constexpr int c_leastWaveformWidth = 170;
constexpr int c_leastListHeight = 150;

// The part of the window's growth that goes to the list, in 1/10000; the waveform gets the rest.
constexpr int c_listShare = 3000;

// The first start's size as a part of the work area, in percent.
constexpr int c_preferredPercent = 85;
constexpr int c_preferredWidthLimit = 760;
constexpr int c_preferredHeightLimit = 400;

} // namespace

BEGIN_MESSAGE_MAP(CMainWindow, CWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_ENDSESSION()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_DROPFILES()
    ON_COMMAND(ID_OPEN_FILES, &CMainWindow::OnOpenFiles)
    ON_COMMAND(ID_OPEN_FOLDER, &CMainWindow::OnOpenFolder)
    ON_COMMAND(ID_RELOAD, &CMainWindow::OnReload)
    ON_COMMAND(ID_CLOSE_WORKBENCH, &CMainWindow::OnCloseCommand)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_RECORDINGS, &CMainWindow::OnItemChanged)
    ON_NOTIFY(LVN_ITEMACTIVATE, IDC_RECORDINGS, &CMainWindow::OnItemActivated)
    ON_MESSAGE(c_messageRecordingsReady, &CMainWindow::OnRecordingsReady)
END_MESSAGE_MAP()

CMainWindow::CMainWindow() : m_memory(c_title, CFensterManager::window_main) {}

bool CMainWindow::CreateMainWindow()
{
    auto const instance = AfxGetInstanceHandle();
    m_accelerators = ::LoadAcceleratorsW(instance, MAKEINTRESOURCEW(IDR_ACCELERATORS));
    auto const windowClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1),
                            ::LoadIconW(instance, MAKEINTRESOURCEW(IDI_WORKBENCH)));
    if (!CreateEx(0, windowClass, c_title, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(0, 0, 100, 100), nullptr, 0))
    {
        return false;
    }
    Arrange();

    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CRect least;
    GetWindowRect(&least);
    auto const width =
        std::max(std::min(work.Width() * c_preferredPercent / 100, m_metrics.X(c_preferredWidthLimit)), least.Width());
    auto const height = std::max(
        std::min(work.Height() * c_preferredPercent / 100, m_metrics.Y(c_preferredHeightLimit)), least.Height());
    auto const left = std::max((work.Width() - width) / 2, 0);
    auto const top = std::max((work.Height() - height) / 3, 0);
    m_memory.PreferedPosition(left, top, left + width, top + height);
    m_memory.ReadMyPosition(this);
    return true;
}

int CMainWindow::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1 || !CreateChildren())
    {
        return -1;
    }
    SetIcon(
        static_cast<HICON>(::LoadImageW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDI_WORKBENCH), IMAGE_ICON,
                                        ::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON), LR_SHARED)),
        FALSE);
    DragAcceptFiles();
    auto const window = m_hWnd;
    m_queue = std::make_unique<workbench::AnalysisQueue>(
        [window] { ::PostMessageW(window, c_messageRecordingsReady, 0, 0); });
    ShowTargets({});
    return 0;
}

bool CMainWindow::CreateChildren()
{
    struct Button
    {
        CButton & button;
        wchar_t const * text;
        UINT id;
    };
    constexpr DWORD buttonStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON;
    auto created =
        m_list.CreateList(*this, IDC_RECORDINGS, m_metrics) && m_waveform.CreateView(*this, IDC_WAVEFORM, m_metrics);
    for (auto const & [button, text, id] : std::array<Button, 4>{{{m_openFiles, L"&Open files...", ID_OPEN_FILES},
                                                                  {m_openFolder, L"Open &folder...", ID_OPEN_FOLDER},
                                                                  {m_reload, L"&Reload", ID_RELOAD},
                                                                  {m_close, L"&Close", ID_CLOSE_WORKBENCH}}})
    {
        created = created && button.Create(text, buttonStyle, CRect(), this, id);
        button.SetFont(&m_metrics.Font());
    }
    created = created && m_statusLine.Create(L"", WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX | SS_ENDELLIPSIS,
                                             CRect(), this, IDC_STATUS_LINE);
    m_statusLine.SetFont(&m_metrics.Font());
    return created;
}

/// Gives the window its least size, which is the design size, and the children their places and edges.
void CMainWindow::Arrange()
{
    auto const marginX = m_metrics.X(c_margin);
    auto const marginY = m_metrics.Y(c_margin);
    auto const spacingX = m_metrics.X(c_spacing);
    auto const spacingY = m_metrics.Y(c_spacing);
    CSize const button(m_metrics.X(c_buttonWidth), m_metrics.Y(c_buttonHeight));
    CSize const list(m_list.UsualWidth(), m_metrics.Y(c_leastListHeight));
    auto const waveformWidth = m_metrics.X(c_leastWaveformWidth);

    CRect window(0, 0, 2 * marginX + list.cx + spacingX + waveformWidth,
                 2 * marginY + list.cy + spacingY + button.cy + spacingY + m_metrics.LineHeight());
    auto const right = window.right - marginX;
    auto const buttonTop = marginY + list.cy + spacingY;
    auto const statusTop = buttonTop + button.cy + spacingY;
    ::AdjustWindowRectEx(&window, GetStyle(), FALSE, GetExStyle());
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);

    m_resizer = std::make_unique<CDialogResizer>(*this, CString());
    CRect rect(CPoint(marginX, marginY), list);
    m_resizer->PositionChild(&m_list, CRect(0, 0, c_listShare, 10000), &rect);
    rect = CRect(rect.right + spacingX, marginY, right, rect.bottom);
    m_resizer->PositionChild(&m_waveform, CRect(c_listShare, 0, 10000, 10000), &rect);
    rect = CRect(CPoint(marginX, buttonTop), button);
    for (auto * const child : {&m_openFiles, &m_openFolder, &m_reload})
    {
        m_resizer->PositionChild(child, CEdges::BOTTOM_LEFT(), &rect);
        rect.OffsetRect(button.cx + spacingX, 0);
    }
    rect = CRect(CPoint(right - button.cx, buttonTop), button);
    m_resizer->PositionChild(&m_close, CEdges::BOTTOM_RIGHT(), &rect);
    rect = CRect(CPoint(marginX, statusTop), CSize(right - marginX, m_metrics.LineHeight()));
    m_resizer->PositionChild(&m_statusLine, CEdges::BOTTOM_LEFT_RIGHT(), &rect);
    m_resizer->OnSize();
}

void CMainWindow::ShowTargets(std::vector<std::filesystem::path> targets)
{
    m_targets = std::move(targets);
    m_queue->Clear();
    m_files = workbench::FindRecordings(m_targets);
    m_analyses.assign(m_files.size(), nullptr);
    m_unread = static_cast<int>(m_files.size());
    m_list.ShowFiles(m_files);
    for (unsigned i = 0; i < m_files.size(); ++i)
    {
        m_queue->Add(i, m_files[i]);
    }
    m_list.ChooseLine(0);
    m_reload.EnableWindow(!m_targets.empty());
    ShowChosen();
    UpdateStatusLine();
}

bool CMainWindow::ChooseRecording(int index)
{
    if (index < 0 || index >= RecordingCount())
    {
        return false;
    }
    m_list.ChooseLine(index);
    return true;
}

int CMainWindow::FirstDamagedRecording() const
{
    auto const damaged = [](auto const & analysis) {
        return analysis && (analysis->problem || analysis->info.IsCutOff() || analysis->invalidSamples > 0);
    };
    auto const found = std::ranges::find_if(m_analyses, damaged);
    return found != m_analyses.end() ? static_cast<int>(found - m_analyses.begin()) : -1;
}

LRESULT CMainWindow::OnRecordingsReady(WPARAM, LPARAM)
{
    auto const chosen = m_list.ChosenLine();
    for (auto const & [id, analysis] : m_queue->TakeFinished())
    {
        if (id >= m_analyses.size())
        {
            continue;
        }
        if (!m_analyses[id])
        {
            --m_unread;
        }
        m_analyses[id] = analysis;
        m_list.ShowAnalysis(static_cast<int>(id), *analysis);
        if (static_cast<int>(id) == chosen)
        {
            ShowChosen();
        }
    }
    UpdateStatusLine();
    return 0;
}

void CMainWindow::ShowChosen()
{
    auto const chosen = m_list.ChosenLine();
    if (m_files.empty())
    {
        if (m_targets.empty())
        {
            m_waveform.ShowText(L"No recordings", L"Open WAV files or a folder to see them here.");
        }
        else
        {
            m_waveform.ShowText(L"No recordings", L"There are no WAV files in this folder.");
        }
    }
    else if (chosen < 0 || chosen >= RecordingCount())
    {
        m_waveform.ShowText(L"No recording chosen", L"Choose a recording in the list to see its waveform.");
    }
    else
    {
        auto const index = static_cast<std::size_t>(chosen);
        auto name = m_files[index].filename().wstring();
        if (m_analyses[index])
        {
            m_waveform.ShowRecording(std::move(name), m_analyses[index]);
        }
        else
        {
            m_waveform.ShowText(std::move(name), L"reading...");
        }
    }
}

void CMainWindow::UpdateStatusLine()
{
    auto text = workbench::FormatCount(m_files.size(), L"recording", L"recordings");
    if (m_unread > 0)
    {
        text += L", " + std::to_wstring(m_unread) + L" being read";
    }
    auto const unreadable = std::ranges::count_if(m_analyses, [](auto const & a) { return a && a->problem; });
    if (unreadable > 0)
    {
        text += L", " + std::to_wstring(unreadable) + L" cannot be shown";
    }
    text += L".  Levels refer to a full-scale sine: 0 dBFS peak, -3.0 dBFS RMS.";
    m_statusLine.SetWindowText(text.c_str());
}

void CMainWindow::ReadAgain(int index)
{
    if (index < 0 || index >= RecordingCount())
    {
        return;
    }
    auto const i = static_cast<std::size_t>(index);
    if (!m_analyses[i])
    {
        return;
    }
    m_analyses[i] = nullptr;
    ++m_unread;
    m_list.ShowReading(index);
    m_queue->Add(static_cast<unsigned>(index), m_files[i]);
    ShowChosen();
    UpdateStatusLine();
}

void CMainWindow::OnOpenFiles()
{
    auto files = workbench::ChooseFiles(*this);
    if (!files.empty())
    {
        ShowTargets(std::move(files));
    }
}

void CMainWindow::OnOpenFolder()
{
    if (auto const folder = workbench::ChooseFolder(*this))
    {
        ShowTargets({*folder});
    }
}

void CMainWindow::OnReload()
{
    auto const chosen = m_list.ChosenLine();
    ShowTargets(m_targets);
    ChooseRecording(chosen);
}

void CMainWindow::OnDropFiles(HDROP drop)
{
    std::vector<std::filesystem::path> files;
    auto const count = ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i)
    {
        std::wstring name(::DragQueryFileW(drop, i, nullptr, 0), L'\0');
        ::DragQueryFileW(drop, i, name.data(), static_cast<UINT>(name.size() + 1));
        files.emplace_back(name);
    }
    ::DragFinish(drop);
    SetForegroundWindow();
    ShowTargets(std::move(files));
}

void CMainWindow::OnItemChanged(NMHDR * header, LRESULT * result)
{
    auto const & change = *reinterpret_cast<NMLISTVIEW *>(header);
    if ((change.uChanged & LVIF_STATE) != 0 && ((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0)
    {
        ShowChosen();
    }
    *result = 0;
}

void CMainWindow::OnItemActivated(NMHDR *, LRESULT * result)
{
    ReadAgain(m_list.ChosenLine());
    *result = 0;
}

BOOL CMainWindow::PreTranslateMessage(MSG * message)
{
    if (m_accelerators != nullptr && ::TranslateAcceleratorW(m_hWnd, m_accelerators, message))
    {
        return TRUE;
    }
    if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN)
    {
        auto * const focus = GetFocus();
        if (focus == &m_list)
        {
            ReadAgain(m_list.ChosenLine());
            return TRUE;
        }
        for (auto * const button : {&m_openFiles, &m_openFolder, &m_reload, &m_close})
        {
            if (focus == button)
            {
                PostMessage(WM_COMMAND, MAKEWPARAM(button->GetDlgCtrlID(), BN_CLICKED),
                            reinterpret_cast<LPARAM>(button->m_hWnd));
                return TRUE;
            }
        }
    }
    return CWnd::PreTranslateMessage(message) || IsDialogMessage(message);
}

void CMainWindow::OnActivate(UINT state, CWnd * other, BOOL minimized)
{
    CWnd::OnActivate(state, other, minimized);
    if (state == WA_INACTIVE)
    {
        auto const * const focus = GetFocus();
        m_lastFocus = focus != nullptr && IsChild(focus) ? focus->m_hWnd : nullptr;
    }
}

void CMainWindow::OnSetFocus(CWnd *)
{
    if (m_lastFocus != nullptr && ::IsWindow(m_lastFocus) && ::IsWindowEnabled(m_lastFocus))
    {
        ::SetFocus(m_lastFocus);
    }
    else
    {
        m_list.SetFocus();
    }
}

void CMainWindow::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    if (m_resizer && type != SIZE_MINIMIZED)
    {
        m_resizer->OnSize();
    }
}

void CMainWindow::OnGetMinMaxInfo(MINMAXINFO * info)
{
    CWnd::OnGetMinMaxInfo(info);
    if (m_resizer)
    {
        m_resizer->OnGetMinMaxInfo(info, CDialogResizer::RESIZE_BOTH);
    }
}

void CMainWindow::RememberPlace()
{
    m_memory.SetNowExit(true);
    m_memory.CalcMyPosition(this);
    m_memory.SaveMyPosition(true);
}

void CMainWindow::OnCloseCommand()
{
    PostMessage(WM_CLOSE);
}

void CMainWindow::OnClose()
{
    RememberPlace();
    DestroyWindow();
}

void CMainWindow::OnEndSession(BOOL ending)
{
    if (ending)
    {
        RememberPlace();
    }
    CWnd::OnEndSession(ending);
}

void CMainWindow::OnDestroy()
{
    m_queue.reset();
    CWnd::OnDestroy();
}
