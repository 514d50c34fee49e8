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
constexpr int c_paneGap = 4; // beside the folders
constexpr int c_leastBesideFolders = 220;
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

// The width of the folders at first, in average letters.
constexpr int c_paneLetters = 30;

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
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
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
    ON_COMMAND(ID_SHOW_FOLDERS, &CMainWindow::OnShowFolders)
    ON_COMMAND(ID_CHOOSE_COLUMNS, &CMainWindow::OnChooseColumns)
    ON_COMMAND(ID_EXPORT_LIST, &CMainWindow::OnExportList)
    ON_COMMAND_RANGE(ID_AMPLIFY, ID_AMPLIFY_FIT, &CMainWindow::OnAmplify)
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
    auto const limit = m_metrics.X(c_preferredWidthLimit) + static_cast<int>(m_paneShift.cx);
    auto const width = std::max(std::min(work.Width() * c_preferredPercent / 100, limit), least.Width());
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
    Waveform().SetColours(m_settings.waveform);
    Waveform().SetAmplification(m_settings.amplification);
    Waveform().m_onCursor = [this] { ShowReading(); };
    m_waveformPanel.m_onAmplified = [this](int decibels) {
        m_settings.amplification = decibels;
        workbench::StoreAmplification(decibels);
        m_preview.Update();
    };
    m_tree.m_onFolder = [this](std::filesystem::path const & folder) { OpenFolder(folder); };
    m_tree.m_onRecording = [this](std::filesystem::path const & file) { ChooseFile(file); };
    m_tree.m_onDetails = [this](std::filesystem::path const & file) { ShowDetails(LineOf(file)); };
    m_list.m_onColumns = [this](CPoint screen) { ChooseColumns(screen); };
    m_list.SetHiddenColumns(m_settings.hiddenColumns);
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
    auto const created = m_tree.CreateTree(*this, IDC_FOLDERS, m_metrics) &&
                         m_list.CreateList(*this, IDC_RECORDINGS, m_metrics) &&
                         m_waveformPanel.CreatePanel(*this, IDC_WAVEFORM_PANEL, m_metrics) &&
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
    m_resizer->PositionChild(&m_waveformPanel, CRect(0, c_listEnd, 10000, c_waveformEnd), &rect);
    rect = CRect(marginX, spectrogramTop, right, spectrogramTop + spectrogramHeight);
    m_resizer->PositionChild(&m_spectrogram, CRect(0, c_waveformEnd, 10000, 10000), &rect);
    rect = CRect(marginX, panelTop, right, panelTop + panelHeight);
    m_resizer->PositionChild(&m_panel, CEdges::BOTTOM_LEFT_RIGHT(), &rect);
    rect = CRect(CPoint(marginX, statusTop), CSize(right - marginX, CStatusStrip::Height(m_metrics)));
    m_resizer->PositionChild(&m_status, CEdges::BOTTOM_LEFT_RIGHT(), &rect);
    // Without the folders; what they take is taken from the others' design.
    rect = CRect(marginX, marginY, marginX, spectrogramTop + spectrogramHeight);
    m_resizer->PositionChild(&m_tree, CEdges::TOP_LEFT_BOTTOM(), &rect);
    m_paneShift = CSize(0, 0);
    m_folderPane = m_settings.folderPane.value_or(HasRoomForFolders());
    PlaceFolders();
}

/// Whether the screen has room for the folders beside all columns of the list.
bool CMainWindow::HasRoomForFolders() const
{
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    auto const room = work.Width() * c_preferredPercent / 100 - 2 * m_metrics.X(c_margin) - m_metrics.X(c_paneGap);
    return room >= m_list.LeastWidth() + FolderPaneWidth();
}

/// In pixels.
int CMainWindow::FolderPaneWidth() const
{
    auto const letters = m_settings.folderPaneWidth > 0 ? m_settings.folderPaneWidth : c_paneLetters;
    return letters * m_metrics.AverageWidth();
}

/// Gives the folders their place beside the rest, or takes it back.
void CMainWindow::PlaceFolders()
{
    CRect client;
    GetClientRect(&client);
    auto const most = client.Width() - m_metrics.X(c_leastBesideFolders);
    auto const width = m_folderPane ? std::max(std::min(FolderPaneWidth(), most), 0) : 0;
    auto const shift = CSize(m_folderPane ? width + m_metrics.X(c_paneGap) : 0, width);
    CSize const offset(shift.cx - m_paneShift.cx, 0);
    CSize const narrower(-offset.cx, 0);
    for (auto * const window : std::array<CWnd *, 3>{&m_list, &m_waveformPanel, &m_spectrogram})
    {
        m_resizer->RepositionChild(window, &offset, &narrower, false);
    }
    CSize const wider(shift.cy - m_paneShift.cy, 0);
    m_resizer->RepositionChild(&m_tree, nullptr, &wider, false);
    m_paneShift = shift;
    m_tree.ShowWindow(m_folderPane ? SW_SHOWNA : SW_HIDE);
    m_resizer->OnSize();
}

void CMainWindow::ShowFolders(bool show)
{
    if (show == m_folderPane)
    {
        return;
    }
    auto const * const focus = GetFocus();
    if (!show && focus == &m_tree)
    {
        m_list.SetFocus();
    }
    m_folderPane = show;
    m_settings.folderPane = show;
    workbench::StoreFolderPane(m_settings);
    PlaceFolders();
    FillFolders();
}

void CMainWindow::OnShowFolders()
{
    ShowFolders(!m_folderPane);
    if (m_folderPane)
    {
        m_tree.SetFocus();
    }
}

/// Between folders and the rest; empty without folders.
CRect CMainWindow::Divider()
{
    CRect tree;
    m_tree.GetWindowRect(&tree);
    ScreenToClient(&tree);
    auto const width = m_folderPane ? m_metrics.X(c_paneGap) : 0;
    return CRect(tree.right, tree.top, tree.right + width, tree.bottom);
}

void CMainWindow::MoveDivider(int x)
{
    auto const letters = (x - m_metrics.X(c_margin)) / std::max(m_metrics.AverageWidth(), 1);
    auto const width = std::clamp(letters, workbench::Settings::least_pane_width, workbench::Settings::most_pane_width);
    if (width != m_settings.folderPaneWidth)
    {
        m_settings.folderPaneWidth = width;
        PlaceFolders();
        UpdateWindow();
    }
}

BOOL CMainWindow::OnSetCursor(CWnd * window, UINT hit, UINT message)
{
    CPoint mouse;
    ::GetCursorPos(&mouse);
    ScreenToClient(&mouse);
    if (window == this && hit == HTCLIENT && Divider().PtInRect(mouse))
    {
        ::SetCursor(::LoadCursorW(nullptr, IDC_SIZEWE));
        return TRUE;
    }
    return CWnd::OnSetCursor(window, hit, message);
}

void CMainWindow::OnLButtonDown(UINT flags, CPoint point)
{
    if (auto const divider = Divider(); divider.PtInRect(point))
    {
        m_dividerGrip = point.x - divider.left;
        SetCapture();
    }
    CWnd::OnLButtonDown(flags, point);
}

void CMainWindow::OnMouseMove(UINT flags, CPoint point)
{
    if (m_dividerGrip >= 0 && GetCapture() == this)
    {
        MoveDivider(point.x - m_dividerGrip);
    }
    CWnd::OnMouseMove(flags, point);
}

void CMainWindow::OnLButtonUp(UINT flags, CPoint point)
{
    if (m_dividerGrip >= 0 && GetCapture() == this)
    {
        ::ReleaseCapture();
    }
    CWnd::OnLButtonUp(flags, point);
}

void CMainWindow::OnCaptureChanged(CWnd * window)
{
    if (m_dividerGrip >= 0)
    {
        m_dividerGrip = -1;
        workbench::StoreFolderPane(m_settings);
    }
    CWnd::OnCaptureChanged(window);
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
    m_rememberFolders = true;
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
        if (GetFocus() == &m_tree)
        {
            m_tree.ChooseSelected();
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
    m_tree.Stop();
    m_search.reset();
    m_queue.reset();
    m_notes.reset();
    CWnd::OnDestroy();
}
