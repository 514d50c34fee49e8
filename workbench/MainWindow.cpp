// The main window's life, layout and commands; what it does with recordings is in MainWindowRecordings.cpp, with
// dialogs and menus in MainWindowDialogs.cpp.

#include "MainWindow.h"

#include <shellapi.h>

#include <algorithm>

#include "colours/Farbtabellen.h"
#include "resource.h"

namespace
{

constexpr wchar_t c_title[] = L"Instrument Workbench";

// Lengths in dialog units.
constexpr int c_margin = 7;
constexpr int c_spacing = 5;
constexpr int c_leastListHeight = 90;
constexpr int c_leastWaveformHeight = 96;
constexpr int c_leastSpectrogramHeight = 96;

// Where the parts of the window's growth end that go to the list and to the waveform, in 1/10000; the spectrogram gets
// the rest.
constexpr int c_listEnd = 3000;
constexpr int c_waveformEnd = 6000;

// The first start's size as a part of the work area, in percent, and its limits in dialog units.
constexpr int c_preferredPercent = 93;
constexpr int c_preferredWidthLimit = 790;
constexpr int c_preferredHeightLimit = 420;

// How often after its activation the window looks whether its dialogs are above it, and how many milliseconds apart.
constexpr int c_raises = 8;
constexpr UINT c_raiseInterval = 40;

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
    ON_WM_INITMENUPOPUP()
    ON_COMMAND(ID_OPEN_FILES, &CMainWindow::OnOpenFiles)
    ON_COMMAND(ID_OPEN_FOLDER, &CMainWindow::OnOpenFolder)
    ON_COMMAND(ID_RELOAD, &CMainWindow::OnReload)
    ON_COMMAND(ID_CLOSE_WORKBENCH, &CMainWindow::OnCloseCommand)
    ON_COMMAND(ID_SHOW_SETTINGS, &CMainWindow::OnShowSettings)
    ON_COMMAND(ID_CHOOSE_LANGUAGE, &CMainWindow::OnChooseLanguage)
    ON_COMMAND(ID_EXPORT_SETTINGS, &CMainWindow::OnExportSettings)
    ON_COMMAND(ID_IMPORT_SETTINGS, &CMainWindow::OnImportSettings)
    ON_COMMAND(ID_PRINT_PREVIEW, &CMainWindow::OnPrintPreview)
    ON_COMMAND(ID_COPY, &CMainWindow::OnCopy)
    ON_COMMAND(ID_COPY_ALL, &CMainWindow::OnCopyAll)
    ON_COMMAND(ID_COPY_SPECTROGRAM, &CMainWindow::OnCopySpectrogram)
    ON_COMMAND(ID_CLOSE_DIALOGS, &CMainWindow::OnCloseDialogs)
    ON_COMMAND_RANGE(ID_DIALOG_FIRST, ID_DIALOG_LAST, &CMainWindow::OnDialogChosen)
    ON_COMMAND(ID_FIT_COLUMNS, &CMainWindow::OnFitColumns)
    ON_COMMAND(IDCANCEL, &CMainWindow::OnCancelReading)
    ON_COMMAND(ID_READ_AGAIN, &CMainWindow::OnReadAgain)
    ON_COMMAND(ID_SHOW_DETAILS, &CMainWindow::OnShowDetails)
    ON_COMMAND(ID_SET_REFERENCE, &CMainWindow::OnSetReference)
    ON_COMMAND(ID_EDIT_COMMENT, &CMainWindow::OnEditComment)
    ON_COMMAND(ID_CHOOSE_RATING, &CMainWindow::OnChooseRating)
    ON_COMMAND(ID_MARK_ALL, &CMainWindow::OnMarkAll)
    ON_COMMAND(ID_MARK_NONE, &CMainWindow::OnMarkNone)
    ON_WM_TIMER()
    ON_MESSAGE(message_raise_dialogs, &CMainWindow::OnRaiseDialogs)
    ON_MESSAGE(message_notes_turned, &CMainWindow::OnNotesTurned)
    ON_MESSAGE(message_recordings_ready, &CMainWindow::OnRecordingsReady)
END_MESSAGE_MAP()

CMainWindow::CMainWindow(int dotsPerInch)
    : m_metrics(dotsPerInch),
      m_memory(c_title, CFensterManager::window_main),
      m_details(*this),
      m_settingsDialog(*this),
      m_preview(*this),
      m_settings(workbench::ReadSettings())
{
}

bool CMainWindow::CreateMainWindow()
{
    auto const instance = AfxGetInstanceHandle();
    m_accelerators = ::LoadAcceleratorsW(instance, MAKEINTRESOURCEW(IDR_ACCELERATORS));
    auto const windowClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1),
                            ::LoadIconW(instance, MAKEINTRESOURCEW(IDI_WORKBENCH)));
    auto const menu = ::LoadMenuW(instance, MAKEINTRESOURCEW(IDR_MAIN_MENU));
    if (!CreateEx(0, windowClass, c_title, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0, 100, 100, nullptr, menu))
    {
        return false;
    }
    PrepareDialogs();
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
    m_spectrogram.SetColours(Farbtabellen::SpektrogrammFarbtabelle(m_settings.spectrogramScale));
    m_waveform.m_onCursor = [this] { ShowReading(); };
    // The commands of the list's menu are the window's, which has them for the keyboard, too.
    m_list.m_onContextCommand = [this](int command, int, int) {
        // Rows may have moved while the menu was open.
        auto const line = m_list.MenuLine();
        if (line >= 0)
        {
            m_list.ChooseLine(line);
            SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
        }
    };
    m_list.m_onChanged = [this](unsigned changes) { OnListChanged(changes); };
    m_list.m_onOpen = [this](int line) { ShowDetails(line); };
    m_list.SetUserWidths(workbench::ReadColumnWidths(m_metrics.AverageWidth()));
    m_status.m_onCancel = [this] { CancelReading(); };
    auto const window = m_hWnd;
    m_queue = std::make_unique<workbench::AnalysisQueue>(
        [window] { ::PostMessageW(window, message_recordings_ready, 0, 0); });
    m_notes = std::make_unique<workbench::NotesStore>(workbench::NotesFile(),
                                                      [window] { ::PostMessageW(window, message_notes_turned, 0, 0); });
    ShowTargets({});
    return 0;
}

bool CMainWindow::CreateChildren()
{
    auto const created = m_list.CreateList(*this, IDC_RECORDINGS, m_metrics) &&
                         m_waveform.CreateView(*this, IDC_WAVEFORM, m_metrics) &&
                         m_spectrogram.CreateView(*this, IDC_SPECTROGRAM, m_metrics) &&
                         m_panel.CreatePanel(*this, IDC_MEASURE_PANEL, m_metrics, m_settings.spectrogramScale);
    return created && m_status.CreateStrip(*this, IDC_STATUS_LINE, m_metrics);
}

/// Gives the window its least size, which is the design size, and the children their places and edges.
void CMainWindow::Arrange()
{
    auto const marginX = m_metrics.X(c_margin);
    auto const marginY = m_metrics.Y(c_margin);
    auto const spacingY = m_metrics.Y(c_spacing);
    // All columns are in sight where the screen has room for them.
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CRect frame;
    ::AdjustWindowRectEx(&frame, GetStyle(), TRUE, GetExStyle());
    auto const room = work.Width() - frame.Width() - 2 * marginX;
    CSize const list(std::max(std::min(m_list.LeastWidth(), room), CMeasurePanel::LeastWidth(m_metrics)),
                     m_metrics.Y(c_leastListHeight));
    auto const panelHeight = CMeasurePanel::Height(m_metrics);
    auto const waveformHeight = m_metrics.Y(c_leastWaveformHeight);
    auto const spectrogramHeight = m_metrics.Y(c_leastSpectrogramHeight);

    CRect window(0, 0, 2 * marginX + list.cx,
                 2 * marginY + list.cy + spacingY + waveformHeight + spacingY + spectrogramHeight + spacingY +
                     panelHeight + spacingY + CStatusStrip::Height(m_metrics));
    auto const right = window.right - marginX;
    auto const waveformTop = marginY + list.cy + spacingY;
    auto const spectrogramTop = waveformTop + waveformHeight + spacingY;
    auto const panelTop = spectrogramTop + spectrogramHeight + spacingY;
    auto const statusTop = panelTop + panelHeight + spacingY;
    ::AdjustWindowRectEx(&window, GetStyle(), TRUE, GetExStyle());
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);

    m_resizer = std::make_unique<CDialogResizer>(*this, CString());
    CRect rect(CPoint(marginX, marginY), list);
    m_resizer->PositionChild(&m_list, CRect(0, 0, 10000, c_listEnd), &rect);
    rect = CRect(marginX, waveformTop, right, waveformTop + waveformHeight);
    m_resizer->PositionChild(&m_waveform, CRect(0, c_listEnd, 10000, c_waveformEnd), &rect);
    rect = CRect(marginX, spectrogramTop, right, spectrogramTop + spectrogramHeight);
    m_resizer->PositionChild(&m_spectrogram, CRect(0, c_waveformEnd, 10000, 10000), &rect);
    rect = CRect(marginX, panelTop, right, panelTop + panelHeight);
    m_resizer->PositionChild(&m_panel, CEdges::BOTTOM_LEFT_RIGHT(), &rect);
    rect = CRect(CPoint(marginX, statusTop), CSize(right - marginX, CStatusStrip::Height(m_metrics)));
    m_resizer->PositionChild(&m_status, CEdges::BOTTOM_LEFT_RIGHT(), &rect);
    m_resizer->OnSize();
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

BOOL CMainWindow::PreTranslateMessage(MSG * message)
{
    if (m_accelerators != nullptr && !IsForEditor(*message) && ::TranslateAcceleratorW(m_hWnd, m_accelerators, message))
    {
        return TRUE;
    }
    if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN)
    {
        if (GetFocus() == &m_list)
        {
            ReadAgain(m_list.ChosenLine());
            return TRUE;
        }
    }
    return CWnd::PreTranslateMessage(message) || IsDialogMessage(message);
}

/// Whether it is a key that belongs to the comment that is being edited.
bool CMainWindow::IsForEditor(MSG const & message) const
{
    auto const editor = m_list.CommentEditor();
    return editor != nullptr && message.hwnd == editor && message.message == WM_KEYDOWN &&
           (message.wParam == VK_F2 || (message.wParam >= L'A' && message.wParam <= L'Z'));
}

void CMainWindow::OnActivate(UINT state, CWnd * other, BOOL minimized)
{
    CWnd::OnActivate(state, other, minimized);
    if (state == WA_INACTIVE)
    {
        auto const * const focus = GetFocus();
        m_lastFocus = focus != nullptr && IsChild(focus) ? focus->m_hWnd : nullptr;
    }
    else
    {
        PostMessage(message_raise_dialogs);
        m_raises = c_raises;
        SetTimer(raise_timer, c_raiseInterval, nullptr);
    }
}

/// Puts the dialogs above the window again, in their order. Windows never lets them fall behind their owner, other
/// systems do when it is activated: a click raises it a little later, without a message that says so.
LRESULT CMainWindow::OnRaiseDialogs(WPARAM, LPARAM)
{
    auto const dialogs = Dialogs();
    std::vector<HWND> below;
    for (auto window = ::GetWindow(m_hWnd, GW_HWNDNEXT); window != nullptr; window = ::GetWindow(window, GW_HWNDNEXT))
    {
        if (std::ranges::any_of(dialogs, [window](auto const * dialog) { return dialog->GetSafeHwnd() == window; }))
        {
            below.push_back(window);
        }
    }
    for (auto i = below.size(); i > 0; --i)
    {
        ::SetWindowPos(below[i - 1], HWND_TOP, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    }
    return 0;
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
    CloseDialogs();
    KeepNotes();
    RememberPlace();
    DestroyWindow();
}

void CMainWindow::OnEndSession(BOOL ending)
{
    if (ending)
    {
        KeepNotes();
        m_notes->Flush();
        RememberPlace();
    }
    CWnd::OnEndSession(ending);
}

void CMainWindow::OnDestroy()
{
    m_search.reset();
    m_queue.reset();
    m_notes.reset();
    CWnd::OnDestroy();
}
