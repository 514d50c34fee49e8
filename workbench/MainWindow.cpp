// The main window's life, layout and commands; what it does with recordings is in MainWindowRecordings.cpp, with
// dialogs and menus in MainWindowDialogs.cpp.

#include "MainWindow.h"

#include <shellapi.h>

#include <algorithm>

#include "colours/Farbtabellen.h"
#include "logic/Texts.h"
#include "resource.h"
#include "UserRegion.h"
#include "WaveformPanelView.h"
#include "windows/StandaloneFrameMigrationHelper.h"
#include "windows/StandaloneFrameWnd.h"

using workbench::Text;

namespace
{

constexpr wchar_t title[] = L"Instrument Workbench";

// Lengths in dialog units.
constexpr int margin = 7;
constexpr int panel_spacing = 5;
constexpr int divider_gap = 4; // beside folders and frames
constexpr int least_beside = 220;
constexpr int least_list_height = 90;
constexpr int floating_width = 240; // of a pane that is torn off first
constexpr int floating_height = 120;
constexpr int least_waveform_height = 96;
constexpr int least_spectrogram_height = 96;

// The first start's size as a part of the work area, in percent, and its limits in dialog units.
constexpr int preferred_percent = 93;
constexpr int preferred_width_limit = 790;
constexpr int preferred_height_limit = 420;

// The greatest part of the width for the analysis frames at first, in percent.
constexpr int frame_measures_percent = 55;
// The window can be made as small as the smallest screen, in pixels; panes are moved, put into tabs or hidden there.
constexpr int smallest_screen_width = 1024;
constexpr int smallest_screen_height = 600;

// The width of the folders at first, in average letters.
constexpr int pane_letters = 30;

// How often after its activation the window looks whether its dialogs are above it, and how many milliseconds apart.
constexpr UINT raise_interval = 40;

// How often it looks whether it or its panes have been moved, in milliseconds.
constexpr UINT layout_interval = 300;

} // namespace

BEGIN_MESSAGE_MAP(CMainWindow, CMDIFrameWndEx)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_ENDSESSION()
    ON_WM_GETMINMAXINFO()
    ON_WM_ACTIVATE()
    ON_WM_MOUSEACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_DROPFILES()
    ON_WM_INITMENUPOPUP()
    ON_COMMAND(ID_OPEN_FILES, &CMainWindow::OnOpenFiles)
    ON_COMMAND(ID_OPEN_FOLDER, &CMainWindow::OnOpenFolder)
    ON_COMMAND_RANGE(ID_RECENT_FIRST, ID_RECENT_LAST, &CMainWindow::OnOpenRecent)
    ON_COMMAND(ID_RELOAD, &CMainWindow::OnReload)
    ON_COMMAND(ID_CLOSE_WORKBENCH, &CMainWindow::OnCloseCommand)
    ON_COMMAND(ID_SHOW_SETTINGS, &CMainWindow::OnShowSettings)
    ON_COMMAND(ID_CHOOSE_LANGUAGE, &CMainWindow::OnChooseLanguage)
    ON_COMMAND(ID_EXPORT_SETTINGS, &CMainWindow::OnExportSettings)
    ON_COMMAND(ID_IMPORT_SETTINGS, &CMainWindow::OnImportSettings)
    ON_COMMAND(ID_PRINT_PREVIEW, &CMainWindow::OnPrintPreview)
    ON_COMMAND(ID_COPY, &CMainWindow::OnCopy)
    ON_COMMAND(ID_COPY_ALL, &CMainWindow::OnCopyAll)
    ON_COMMAND(ID_COPY_WAVEFORM, &CMainWindow::OnCopyWaveform)
    ON_COMMAND(ID_SAVE_WAVEFORM, &CMainWindow::OnSaveWaveform)
    ON_COMMAND(ID_SAVE_SPECTROGRAM, &CMainWindow::OnSaveSpectrogram)
    ON_COMMAND(ID_COPY_SPECTROGRAM, &CMainWindow::OnCopySpectrogram)
    ON_COMMAND(ID_PLAY, &CMainWindow::OnPlay)
    ON_COMMAND(ID_STOP_PLAYING, &CMainWindow::OnStopPlaying)
    ON_COMMAND(ID_LOOP_PLAYING, &CMainWindow::OnLoopPlaying)
    ON_COMMAND(ID_SHOW_FOLDERS, &CMainWindow::OnShowFolders)
    ON_COMMAND(ID_RESET_LAYOUT, &CMainWindow::OnResetLayout)
    ON_COMMAND_RANGE(ID_PANE_WIDER, ID_PANE_SHORTER, &CMainWindow::OnResizePane)
    ON_COMMAND(ID_NEXT_PART, &CMainWindow::OnNextPart)
    ON_COMMAND(ID_PREVIOUS_PART, &CMainWindow::OnPreviousPart)
    ON_COMMAND_RANGE(ID_DYNAMIC_FIRST, ID_DYNAMIC_LAST, &CMainWindow::OnDynamicCommand)
    ON_COMMAND(ID_CHOOSE_COLUMNS, &CMainWindow::OnChooseColumns)
    ON_COMMAND(ID_SORT_BY, &CMainWindow::OnSortBy)
    ON_COMMAND(ID_EXPORT_LIST, &CMainWindow::OnExportList)
    ON_COMMAND_RANGE(ID_MOVE_UP, ID_MOVE_DOWN, &CMainWindow::OnMove)
    ON_COMMAND(ID_WRITE_REPORT, &CMainWindow::OnWriteReport)
    ON_COMMAND_RANGE(ID_AMPLIFY, ID_AMPLIFY_FIT, &CMainWindow::OnAmplify)
    ON_COMMAND(ID_CLOSE_DIALOGS, &CMainWindow::OnCloseDialogs)
    ON_COMMAND_RANGE(ID_DIALOG_FIRST, ID_DIALOG_LAST, &CMainWindow::OnDialogChosen)
    ON_COMMAND(ID_FIT_COLUMNS, &CMainWindow::OnFitColumns)
    ON_COMMAND(IDCANCEL, &CMainWindow::OnCancelReading)
    ON_COMMAND(ID_READ_AGAIN, &CMainWindow::OnReadAgain)
    ON_COMMAND(ID_SHOW_DETAILS, &CMainWindow::OnShowDetails)
    ON_COMMAND(ID_SHOW_IN_FRAME, &CMainWindow::OnShowInFrame)
    ON_COMMAND(ID_COMPARE_FOUR, &CMainWindow::OnCompareFour)
    ON_COMMAND(ID_SET_REFERENCE, &CMainWindow::OnSetReference)
    ON_COMMAND(ID_EDIT_COMMENT, &CMainWindow::OnEditComment)
    ON_COMMAND(ID_CHOOSE_RATING, &CMainWindow::OnChooseRating)
    ON_COMMAND(ID_MARK_ALL, &CMainWindow::OnMarkAll)
    ON_COMMAND(ID_MARK_NONE, &CMainWindow::OnMarkNone)
    ON_COMMAND(ID_FIND, &CMainWindow::OnFind)
    ON_COMMAND(ID_UNDO, &CMainWindow::OnUndo)
    ON_COMMAND(ID_REDO, &CMainWindow::OnRedo)
    ON_COMMAND(ID_RENAME, &CMainWindow::OnRename)
    ON_COMMAND(ID_DELETE_RECORDINGS, &CMainWindow::OnDeleteRecordings)
    ON_COMMAND(ID_SHOW_FILE, &CMainWindow::OnShowFile)
    ON_COMMAND(ID_SHOW_HELP, &CMainWindow::OnShowHelp)
    ON_COMMAND(ID_SHOW_KEYS, &CMainWindow::OnShowKeys)
    ON_COMMAND(ID_ABOUT, &CMainWindow::OnAbout)
    ON_MESSAGE(message_help, &CMainWindow::OnHelpKey)
    ON_WM_TIMER()
    ON_MESSAGE(message_raise_dialogs, &CMainWindow::OnRaiseDialogs)
    ON_MESSAGE(message_notes_turned, &CMainWindow::OnNotesTurned)
    ON_MESSAGE(message_frame_read, &CMainWindow::OnFrameRead)
    ON_MESSAGE(message_frames_changed, &CMainWindow::OnFramesChanged)
    ON_MESSAGE(message_folder_changed, &CMainWindow::OnFolderChanged)
    ON_MESSAGE(message_recordings_ready, &CMainWindow::OnRecordingsReady)
END_MESSAGE_MAP()

CMainWindow::CMainWindow(int dotsPerInch)
    : CMainFrmInterface(this),
      m_metrics(workbench::ScreenMetrics::UseResolution(dotsPerInch > 0 ? dotsPerInch
                                                                        : workbench::ReadSettings().DotsPerInch())),
      m_memory(title, CFensterManager::window_main),
      m_details(*this),
      m_preview(*this),
      m_help(*this),
      m_settings(workbench::ReadSettings())
{
    control_colors::UseForProcess(m_settings.contrast);
    base_id(id_base);
    menu_range(ID_DYNAMIC_FIRST, ID_DYNAMIC_LAST + 1);
}

CMainWindow::~CMainWindow()
{
    // Here, where the handlers of this class still run and what they use lives.
    if (m_hWnd != nullptr)
    {
        DestroyWindow();
    }
}

BOOL CMainWindow::PreCreateWindow(CREATESTRUCT & create)
{
    create.lpszClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1),
                            ::LoadIconW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDI_WORKBENCH)));
    return CMDIFrameWndEx::PreCreateWindow(create);
}

bool CMainWindow::CreateMainWindow()
{
    m_memory.SetNowExit(false);
    if (auto * const app = DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp()))
    {
        app->EnableLoadWindowPlacement(FALSE); // that is the window manager's
    }
    if (!LoadFrame(IDR_MAIN_FRAME, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN) || !CreateParts())
    {
        return false;
    }
    workbench::UseUserNumbers();
    PrepareContents();
    PrepareDialogs();
    PrepareFrames();
    PrepareHelp();
    PrepareReport();
    PreparePaneMenu();
    CSize const comfortable = Arrange();

    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    int const folders =
        m_settings.folderPane.value_or(HasRoomForFolders()) ? FolderPaneWidth() + m_metrics.X(divider_gap) : 0;
    int const limit = m_metrics.X(preferred_width_limit) + folders;
    auto const width = std::max<int>(std::min(work.Width() * preferred_percent / 100, limit), comfortable.cx);
    auto const height = std::max<int>(
        std::min(work.Height() * preferred_percent / 100, m_metrics.Y(preferred_height_limit)), comfortable.cy);
    int const left = std::max((work.Width() - width) / 2, 0);
    int const top = std::max((work.Height() - height) / 3, 0);
    m_memory.PreferedPosition(left, top, left + width, top + height);
    m_memory.ReadMyPosition(this);
    KeepOnScreen();
    // At another resolution, the panes' places would leave some of them no room.
    auto const resolution = static_cast<int>(m_metrics.Resolution());
    bool const isOfThis = workbench::ReadLayoutResolution(resolution) == resolution;
    DockByDefault(isOfThis ? m_isPlaced : std::array<bool, part_count>{});
    release_orphan_panes();
    m_frames.Restore();
    if (CWnd::GetActiveWindow() == this)
    {
        FocusList(); // it has become active before the panes had their places
    }
    return true;
}

void CMainWindow::ShowAsBefore(int command)
{
    bool const isOpen = command == SW_SHOW || command == SW_SHOWNORMAL || command == SW_SHOWDEFAULT;
    bool const maximised = workbench::ReadMaximised();
    ShowWindow(isOpen && maximised ? SW_SHOWMAXIMIZED : command);
    m_maximised = maximised;
    m_layout = LayoutNow();
    SetTimer(layout_timer, layout_interval, nullptr);
}

/// Keeps at once whether it is maximised. What is minimised is as it was before.
void CMainWindow::OnSize(UINT type, int width, int height)
{
    CMDIFrameWndEx::OnSize(type, width, height);
    bool const isMaximised = type == SIZE_MAXIMIZED;
    if (m_maximised && (isMaximised || type == SIZE_RESTORED) && isMaximised != *m_maximised)
    {
        m_maximised = isMaximised;
        workbench::StoreMaximised(isMaximised);
    }
}

/// A place that was kept when the screen was larger, or its resolution less, may be larger than the screen.
void CMainWindow::KeepOnScreen()
{
    CRect place;
    GetWindowRect(&place);
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    if (IsZoomed() || IsIconic() || !::GetMonitorInfoW(::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTONEAREST), &screen))
    {
        return;
    }
    CRect const work(screen.rcWork);
    CSize const size(std::min(place.Width(), work.Width()), std::min(place.Height(), work.Height()));
    if (size != place.Size())
    {
        SetWindowPos(nullptr, std::clamp(place.left, work.left, work.right - size.cx),
                     std::clamp(place.top, work.top, work.bottom - size.cy), size.cx, size.cy,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

/// The room for frames. Their items in the window menu are the window's own affair.
BOOL CMainWindow::OnCreateClient(LPCREATESTRUCT create, CCreateContext *)
{
    if (!CreateClient(create, nullptr))
    {
        return FALSE;
    }
    // It is not what the panes stand around.
    ::SetWindowLongPtrW(m_hWndMDIClient, GWLP_ID, IDC_FRAMES_AREA);
    return TRUE;
}

int CMainWindow::OnCreate(LPCREATESTRUCT create)
{
    if (CMDIFrameWndEx::OnCreate(create) == -1 || !EnableDocking(CBRS_ALIGN_ANY) ||
        !EnableAutoHidePanes(CBRS_ALIGN_ANY))
    {
        return -1;
    }
    // Panes that the workspace knows come back at their places.
    assign_panes();
    for (auto const & [id, pane] : panes())
    {
        pane->Create(L"", this, CRect(0, 0, 200, 100), TRUE, id,
                     WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | CBRS_BOTTOM | CBRS_FLOAT_MULTI);
    }
    SetIcon(
        static_cast<HICON>(::LoadImageW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDI_WORKBENCH), IMAGE_ICON,
                                        ::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON), LR_SHARED)),
        FALSE);
    DragAcceptFiles();
    return 0;
}

/// Lets the parts do what the window is for.
void CMainWindow::PrepareContents()
{
    m_spectrogram.SetColours(Farbtabellen::SpektrogrammFarbtabelle(m_settings.spectrogramScale));
    m_spectrogram.SetSettings(m_settings.spectrogram);
    m_spectrogram.SetScale(m_settings.frequencyScale);
    Waveform().SetColours(m_settings.waveform);
    Waveform().SetAmplification(m_settings.amplification);
    Waveform().m_onCursor = [this] {
        ShowReading();
        m_frameMeasures.ShowCursor(Waveform().Marks().cursor);
        NoteView();
    };
    m_frameMeasures.m_onFrame = [this](std::uint64_t frame) { Waveform().MoveCursorAlone(frame); };
    m_frameMeasures.m_onExported = [this](std::filesystem::path const & file) {
        SayWritten(Text(L"frames written:"), file);
    };
    Waveform().m_onMarks = [this] {
        m_spectrogram.SetMarks(Waveform().Marks());
        NoteView();
    };
    Waveform().m_onPlay = [this] { OnPlay(); };
    m_playing.m_onMoved = [this](std::optional<std::uint64_t> frame) {
        Waveform().ShowPlaying(frame);
        m_spectrogram.ShowPlaying(frame);
    };
    m_playing.SetGain(m_settings.amplification);
    m_spectrogram.m_onMarks = [this] {
        Waveform().SetMarks(m_spectrogram.Marks());
        NoteView();
    };
    m_spectrogram.m_onComputed = [this] { m_spectrogram.SetMarks(Waveform().Marks()); };
    m_waveformPanel.m_onAmplified = [this](int decibels) {
        m_settings.amplification = decibels;
        workbench::StoreAmplification(decibels);
        m_playing.SetGain(decibels);
        m_preview.Update();
    };
    m_tree.m_onFolder = [this](std::filesystem::path const & folder) { OpenFolder(folder); };
    m_tree.m_onRecording = [this](std::filesystem::path const & file) { ChooseFile(file); };
    m_tree.m_onDetails = [this](std::filesystem::path const & file) { ShowDetails(LineOf(file)); };
    m_list.m_onColumns = [this](CPoint screen) { ChooseColumns(screen); };
    m_list.SetHiddenColumns(m_settings.hiddenColumns);
    m_list.EnableCellCursor(m_settings.cellCursor);
    m_frameMeasures.EnableCellCursor(m_settings.cellCursor);
    // The commands of the list's menu are the window's, which has them for the keyboard, too.
    m_list.m_onContextCommand = [this](int command, int, int) {
        // Rows may have moved while the menu was open.
        int const line = m_list.MenuLine();
        if (line >= 0)
        {
            std::vector<int> const selected = m_list.SelectedLines();
            if (std::ranges::find(selected, line) == selected.end())
            {
                m_list.ChooseLine(line);
            }
            SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
        }
    };
    m_list.m_onChanged = [this](unsigned changes) { OnListChanged(changes); };
    m_list.m_onDragOut = [this](std::vector<int> const & lines) { DragOut(lines); };
    m_list.m_onDelete = [this] { OnDeleteRecordings(); };
    m_listPanel.m_onFiltered = [this] { OnFiltered(); };
    m_list.m_onOpen = [this](int line) { ShowDetails(line); };
    m_list.SetUserWidths(workbench::ReadColumnWidths(m_metrics.AverageWidth()));
    m_list.SetColumnOrder(workbench::ReadColumnOrder());
    m_status.m_onCancel = [this] { CancelReading(); };
    HWND const window = m_hWnd;
    m_queue = std::make_unique<workbench::AnalysisQueue>(
        [window] { ::PostMessageW(window, message_recordings_ready, 0, 0); });
    m_notes = std::make_unique<workbench::NotesStore>(workbench::NotesFile(),
                                                      [window] { ::PostMessageW(window, message_notes_turned, 0, 0); });
    m_views = std::make_unique<workbench::FolderViews>(workbench::ViewsFile());
    ShowTargets({});
}

/// The names under which the parts were known as windows of their own.
wchar_t const * CMainWindow::NameOf(Part part)
{
    switch (part)
    {
    case part_folders:
        return L"Folders";
    case part_waveform:
        return L"Waveform";
    case part_spectrogram:
        return L"Spectrogram";
    case part_measures:
        return L"Measures";
    case part_frame_measures:
        return L"AnalysisFrames";
    default:
        return L"Recordings";
    }
}

wchar_t const * CMainWindow::TitleOf(Part part)
{
    switch (part)
    {
    case part_folders:
        return Text(L"Folders");
    case part_waveform:
        return Text(L"Waveform");
    case part_spectrogram:
        return Text(L"Spectrogram");
    case part_measures:
        return Text(L"Measures");
    case part_frame_measures:
        return Text(L"Analysis Frames");
    default:
        return Text(L"Recordings");
    }
}

/// Makes the pane of a part with a view for it. Null if that failed.
CHostView * CMainWindow::CreatePart(Part part)
{
    bool const wasOpen = CFensterManager::OpenInitially(NameOf(part));
    auto id = static_cast<int>(id_base) + part;
    auto const known = panes().find(static_cast<unsigned>(id));
    bool const restored = known != panes().end() && ::IsWindow(known->second->m_hWnd);
    auto * const view = CStandaloneFrameMigrationHelper::CreatePane<CHostView>(NameOf(part), id, m_panes[part]);
    if (view == nullptr)
    {
        return nullptr;
    }
    m_panes[part]->SetWindowText(TitleOf(part));
    if (!restored && !wasOpen)
    {
        // Where it floats when it is torn off first.
        CRect place(CPoint(0, 0), CSize(m_metrics.X(floating_width), m_metrics.Y(floating_height)));
        ClientToScreen(&place);
        m_panes[part]->FloatPane(place, DM_UNKNOWN, false);
    }
    m_panes[part]->ModifyStyleEx(0, WS_EX_CONTROLPARENT);
    m_isPlaced[part] = restored || wasOpen;
    return view;
}

bool CMainWindow::CreateParts()
{
    std::array<CHostView *, part_count> views{};
    for (int part = 0; part < part_count; ++part)
    {
        views[static_cast<std::size_t>(part)] = CreatePart(static_cast<Part>(part));
        if (views[static_cast<std::size_t>(part)] == nullptr)
        {
            return false;
        }
    }
    // The panes stand around nothing: they share all the room there is.
    auto * const centre = new CHostView; // ends with its window
    bool const created =
        centre->Create(nullptr, nullptr, WS_CHILD, CRect(), this, AFX_IDW_PANE_FIRST) &&
        m_listPanel.CreatePanel(*views[part_list], IDC_LIST_PANEL, IDC_RECORDINGS, m_metrics, m_list) &&
        m_tree.CreateTree(*views[part_folders], IDC_FOLDERS, m_metrics) &&
        m_waveformPanel.CreatePanel(*views[part_waveform], IDC_WAVEFORM_PANEL, m_metrics) &&
        m_spectrogram.CreateView(*views[part_spectrogram], IDC_SPECTROGRAM, m_metrics) &&
        m_panel.CreatePanel(*views[part_measures], IDC_MEASURE_PANEL, m_metrics, m_settings.spectrogramScale) &&
        m_frameMeasures.CreatePanel(*views[part_frame_measures], IDC_FRAME_MEASURES, m_metrics) &&
        m_framesDivider.CreateDivider(*this, IDC_FRAMES_DIVIDER) &&
        m_status.CreateStrip(*this, IDC_STATUS_LINE, m_metrics);
    m_tree.ShowWindow(SW_SHOWNA);
    // Displays and controls are of one height, also where the pane had another before.
    m_panes[part_measures]->SetMinSize(CSize(0, workbench::DefaultPanes(LayoutNeeds()).measures));
    for (CHostView * const view : views)
    {
        view->Fill(); // panes that have come back have their size already
    }
    return created;
}

workbench::MainLayoutNeeds CMainWindow::LayoutNeeds() const
{
    CRect client;
    GetClientRect(&client);
    workbench::MainLayoutNeeds needs;
    needs.client = client.Size();
    needs.marginX = m_metrics.X(margin);
    needs.marginY = m_metrics.Y(margin);
    needs.spacing = m_metrics.Y(panel_spacing);
    needs.dividerGap = m_metrics.X(divider_gap);
    needs.leastBeside = m_metrics.X(least_beside);
    needs.listHeight = m_metrics.Y(least_list_height);
    needs.waveformHeight = m_metrics.Y(least_waveform_height);
    needs.spectrogramHeight = m_metrics.Y(least_spectrogram_height);
    needs.panelHeight = CMeasurePanel::Height(m_metrics);
    needs.statusHeight = CStatusStrip::Height(m_metrics);
    needs.captionHeight = ::GetSystemMetrics(SM_CYSMCAPTION);
    needs.framesWidth = m_frames.AnyOpen() ? ::MulDiv(client.Width(), m_settings.frameShare, 100) : 0;
    return needs;
}

/// Gives the window the size in which all parts have their room, as far as the screen has it.
CSize CMainWindow::Arrange()
{
    // All columns are in sight where the screen has room for them.
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CRect frame;
    ::AdjustWindowRectEx(&frame, GetStyle(), TRUE, GetExStyle());
    int const room = work.Width() - frame.Width() - 2 * m_metrics.X(margin);
    int const list = std::max(std::min(m_list.LeastWidth(), room), CMeasurePanel::LeastWidth(m_metrics));
    CRect window(CPoint(0, 0), workbench::LeastMainArea(LayoutNeeds(), list));
    ::AdjustWindowRectEx(&window, GetStyle(), TRUE, GetExStyle());
    CSize const comfortable(std::min(window.Width(), work.Width()), std::min(window.Height(), work.Height()));
    m_leastSize = CSize(std::min<int>(comfortable.cx, smallest_screen_width),
                        std::min<int>(comfortable.cy, smallest_screen_height));
    SetWindowPos(nullptr, 0, 0, comfortable.cx, comfortable.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    RecalcLayout();
    return comfortable;
}

/// The panes have what status and frames leave.
void CMainWindow::RecalcLayout(BOOL notify)
{
    if (m_status.GetSafeHwnd() == nullptr || IsIconic())
    {
        return;
    }
    workbench::MainLayoutNeeds const needs = LayoutNeeds();
    if (CSize const least = workbench::LeastListPane(needs); m_panes[part_list] != nullptr && least != m_leastList)
    {
        m_leastList = least;
        m_panes[part_list]->SetMinSize(least);
    }
    workbench::MainLayout const layout = workbench::LayOutMain(needs);
    CRect border = layout.border;
    NegotiateBorderSpace(borderSet, &border);
    CMDIFrameWndEx::RecalcLayout(notify);
    struct Place
    {
        HWND window;
        CRect rect;
    };
    std::array<Place, 3> const places{{{m_status.m_hWnd, layout.status},
                                       {m_framesDivider.m_hWnd, layout.framesDivider},
                                       {m_hWndMDIClient, layout.frames}}};
    auto moved = ::BeginDeferWindowPos(static_cast<int>(places.size()));
    for (auto const & [window, rect] : places)
    {
        int const show = rect.IsRectEmpty() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW;
        if (moved != nullptr)
        {
            moved = ::DeferWindowPos(moved, window, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS | show);
        }
    }
    if (moved != nullptr)
    {
        ::EndDeferWindowPos(moved);
    }
}

void CMainWindow::ResetLayout()
{
    DockByDefault({});
}

/// Docks the panes as at the first start, but for those others.
void CMainWindow::DockByDefault(std::array<bool, part_count> const & others)
{
    workbench::MainLayoutNeeds needs = LayoutNeeds();
    needs.client.cx -= needs.framesWidth;
    workbench::PaneHeights const sizes = workbench::DefaultPanes(needs);
    auto const dock = [&](Part part, DWORD side, int extent, bool show = true) {
        if (!others[part])
        {
            m_panes[part]->DockToFrameWindow(side, CRect(0, 0, extent, extent));
            m_panes[part]->ShowPane(show, FALSE, FALSE);
        }
    };
    // Each one stands nearer to the middle than those before it; the list, the last one, has what is left.
    dock(part_measures, CBRS_ALIGN_BOTTOM, sizes.measures);
    dock(part_folders, CBRS_ALIGN_LEFT, FolderPaneWidth(), m_settings.folderPane.value_or(HasRoomForFolders()));
    // No more of the width than the plots can spare; it shows when it is asked for.
    dock(part_frame_measures, CBRS_ALIGN_RIGHT,
         std::min<int>(m_frameMeasures.WantedWidth(), needs.client.cx * frame_measures_percent / 100), false);
    dock(part_spectrogram, CBRS_ALIGN_BOTTOM, sizes.spectrogram);
    dock(part_waveform, CBRS_ALIGN_BOTTOM, sizes.waveform);
    dock(part_list, CBRS_ALIGN_TOP, sizes.list);
    auto const attach = [&](Part part, Part to) {
        if (!others[part] && !others[to])
        {
            m_panes[part]->AttachToTabWnd(m_panes[to], DM_SHOW, FALSE);
        }
    };
    if (sizes.listSharesTabs)
    {
        attach(part_waveform, part_list);
    }
    if (sizes.plotsShareTabs)
    {
        attach(part_spectrogram, sizes.listSharesTabs ? part_list : part_waveform);
    }
    FillFolders();
}

void CMainWindow::OnResetLayout()
{
    ResetLayout();
}

void CMainWindow::ShowPane(Part part, bool show)
{
    if (part == part_folders)
    {
        ShowFolders(show);
        return;
    }
    bool const leaves = !show && m_panes[part]->IsChild(GetFocus());
    m_panes[part]->ShowPane(show, FALSE, show);
    if (leaves)
    {
        FocusList();
    }
}

/// Gives the list the focus, or another part while the list is hidden.
void CMainWindow::FocusList()
{
    // Also while the window itself is just being shown.
    auto const shows = [this](CWnd const * window) {
        while (window != nullptr && window != this && (window->GetStyle() & WS_VISIBLE) != 0)
        {
            window = window->GetParent();
        }
        return window == this;
    };
    if (shows(&m_list))
    {
        m_list.SetFocus();
        return;
    }
    auto const shown = std::ranges::find_if(
        m_panes, [&](auto * pane) { return pane != nullptr && pane->View() != nullptr && shows(pane->View()); });
    if (shown != m_panes.end())
    {
        (*shown)->View()->SetFocus();
    }
}

/// What the keys go round: the parts that show, and the parts of the active frame.
std::vector<CWnd *> CMainWindow::FocusStops()
{
    std::vector<CWnd *> stops;
    for (Part const part :
         {part_list, part_waveform, part_spectrogram, part_frame_measures, part_measures, part_folders})
    {
        if (CView * const view = m_panes[part]->View(); view != nullptr && view->IsWindowVisible())
        {
            stops.push_back(view);
        }
    }
    std::vector<CWaveformFrame *> const frames = m_frames.Frames();
    auto const active = std::ranges::find_if(
        frames, [this](auto const * frame) { return frame->Frame()->m_hWnd == MDIGetActive()->GetSafeHwnd(); });
    for (std::size_t cell = 0; active != frames.end() && cell < (*active)->Cells(); ++cell)
    {
        if (CWaveformPanelView * const view = (*active)->Cell(cell); view != nullptr && view->IsWindowVisible())
        {
            stops.push_back(view);
        }
    }
    return stops;
}

void CMainWindow::GoToNext(bool back)
{
    std::vector<CWnd *> const stops = FocusStops();
    if (stops.empty())
    {
        return;
    }
    HWND const focus = ::GetFocus();
    auto const at = std::ranges::find_if(
        stops, [focus](auto const * stop) { return stop->m_hWnd == focus || ::IsChild(stop->m_hWnd, focus); });
    std::size_t const count = stops.size();
    auto const next = at == stops.end()
                          ? (back ? count - 1 : 0)
                          : (static_cast<std::size_t>(at - stops.begin()) + (back ? count - 1 : 1)) % count;
    CWnd * const stop = stops[next];
    if (auto * const frame = DYNAMIC_DOWNCAST(CMDIChildWnd, stop->GetParentFrame()))
    {
        frame->SetActiveView(static_cast<CView *>(stop));
    }
    stop->SetFocus();
}

void CMainWindow::OnNextPart()
{
    GoToNext(false);
}

void CMainWindow::OnPreviousPart()
{
    GoToNext(true);
}

/// For what is done in the list.
void CMainWindow::BringListInSight()
{
    if (!m_list.IsWindowVisible())
    {
        ShowPane(part_list, true);
    }
}

/// Whether the screen has room for the folders beside all columns of the list.
bool CMainWindow::HasRoomForFolders() const
{
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    int const room = work.Width() * preferred_percent / 100 - 2 * m_metrics.X(margin) - m_metrics.X(divider_gap);
    return room >= m_list.LeastWidth() + FolderPaneWidth();
}

/// In pixels.
int CMainWindow::FolderPaneWidth() const
{
    int const letters = m_settings.folderPaneWidth > 0 ? m_settings.folderPaneWidth : pane_letters;
    return letters * m_metrics.AverageWidth();
}

void CMainWindow::ShowFolders(bool show)
{
    if (show == ShowsFolders())
    {
        return;
    }
    if (!show && GetFocus() == &m_tree)
    {
        FocusList();
    }
    m_settings.folderPane = show;
    workbench::StoreFolderPane(m_settings);
    m_panes[part_folders]->ShowPane(show, FALSE, FALSE);
    FillFolders();
}

void CMainWindow::OnShowFolders()
{
    ShowFolders(!ShowsFolders());
    if (ShowsFolders())
    {
        m_tree.SetFocus();
    }
}

void CMainWindow::MoveFramesDivider(int x)
{
    CRect client;
    GetClientRect(&client);
    int const width = client.Width() - m_metrics.X(margin) - x - m_metrics.X(divider_gap);
    SetFrameShare(::MulDiv(width, 100, std::max(client.Width(), 1)));
}

/// In percent of the window's width.
void CMainWindow::SetFrameShare(int share)
{
    share = std::clamp(share, workbench::Settings::least_frame_share, workbench::Settings::most_frame_share);
    if (share != m_settings.frameShare)
    {
        m_settings.frameShare = share;
        RecalcLayout();
        UpdateWindow();
    }
}

void CMainWindow::OnDropFiles(HDROP drop)
{
    std::vector<std::filesystem::path> files;
    UINT const count = ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i)
    {
        std::wstring name(::DragQueryFileW(drop, i, nullptr, 0), L'\0');
        ::DragQueryFileW(drop, i, name.data(), static_cast<UINT>(name.size() + 1));
        files.emplace_back(name);
    }
    ::DragFinish(drop);
    if (m_isDraggingOut || files.empty())
    {
        return;
    }
    SetForegroundWindow();
    ShowTargets(std::move(files));
    m_rememberOpened = true;
}

/// Whether a window lies in one of the frames.
bool CMainWindow::IsInFrames(HWND window) const
{
    return m_hWndMDIClient != nullptr && ::IsChild(m_hWndMDIClient, window);
}

/// Opens the menu by the keys that are pressed in a pane that floats: its frame has none.
bool CMainWindow::OpenMenuFromPane(MSG const & message)
{
    bool const isLetter = message.message == WM_SYSCHAR && message.wParam > L' ';
    bool const isMenuKey = message.message == WM_SYSKEYDOWN && message.wParam == VK_F10;
    auto * const frame = CWnd::FromHandlePermanent(::GetAncestor(message.hwnd, GA_ROOT));
    if ((!isLetter && !isMenuKey) || DYNAMIC_DOWNCAST(CPaneFrameWnd, frame) == nullptr)
    {
        return false;
    }
    PostMessage(WM_SYSCOMMAND, SC_KEYMENU, isLetter ? static_cast<LPARAM>(message.wParam) : 0);
    return true;
}

BOOL CMainWindow::PreTranslateMessage(MSG * message)
{
    HWND const window = m_hWnd;
    if (OpenMenuFromPane(*message))
    {
        return TRUE;
    }
    if (!IsForEditor(*message) && CMDIFrameWndEx::PreTranslateMessage(message))
    {
        return TRUE;
    }
    if (m_hWnd != window || IsInFrames(message->hwnd))
    {
        return FALSE;
    }
    if (message->message == WM_KEYDOWN && message->wParam == VK_SPACE && GetFocus() == &m_spectrogram)
    {
        OnPlay(); // as in the waveform
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
    return IsDialogMessage(message);
}

/// Whether it is a key that belongs to the comment that is being edited.
bool CMainWindow::IsForEditor(MSG const & message) const
{
    HWND const editor = m_list.CommentEditor();
    return editor != nullptr && message.hwnd == editor && message.message == WM_KEYDOWN &&
           (message.wParam == VK_F2 || (message.wParam >= L'A' && message.wParam <= L'Z'));
}

void CMainWindow::OnActivate(UINT state, CWnd * other, BOOL minimized)
{
    // Not the frame's own, which gives the focus to the active frame's view wherever it was before.
    CWnd::OnActivate(state, other, minimized);
    if (state == WA_INACTIVE)
    {
        CWnd const * const focus = GetFocus();
        m_lastFocus = focus != nullptr && IsChild(focus) ? focus->m_hWnd : nullptr;
    }
    else
    {
        PostMessage(message_raise_dialogs);
        LookAfterOwned();
    }
}

/// A drag that goes over a window above this one raises this one, too.
int CMainWindow::OnMouseActivate(CWnd * top, UINT hit, UINT message)
{
    LookAfterOwned();
    return CMDIFrameWndEx::OnMouseActivate(top, hit, message);
}

/// For a while sees to it that dialogs and floating panes stay above.
void CMainWindow::LookAfterOwned()
{
    m_raises = most_raises;
    SetTimer(raise_timer, raise_interval, nullptr);
}

/// Puts dialogs and floating panes above the window again, in their order. Windows never lets them fall behind their
/// owner, other systems do when it is activated: a click raises it a little later, without a message that says so.
LRESULT CMainWindow::OnRaiseDialogs(WPARAM, LPARAM)
{
    auto const isOwned = [this](HWND window) {
        return ::GetWindow(window, GW_OWNER) == m_hWnd && ::IsWindowVisible(window);
    };
    std::vector<HWND> below;
    for (HWND window = ::GetWindow(m_hWnd, GW_HWNDNEXT); window != nullptr; window = ::GetWindow(window, GW_HWNDNEXT))
    {
        if (isOwned(window))
        {
            below.push_back(window);
        }
    }
    // Those that are above still were above these: this window may have been raised while they were put back.
    HWND upper = ::GetWindow(m_hWnd, GW_HWNDPREV);
    while (upper != nullptr && !isOwned(upper))
    {
        upper = ::GetWindow(upper, GW_HWNDPREV);
    }
    for (HWND const window : below)
    {
        ::SetWindowPos(window, upper != nullptr ? upper : HWND_TOP, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
        upper = window;
    }
    return 0;
}

void CMainWindow::OnSetFocus(CWnd *)
{
    if (m_lastFocus != nullptr && ::IsWindow(m_lastFocus) && ::IsWindowEnabled(m_lastFocus) &&
        ::IsWindowVisible(m_lastFocus))
    {
        ::SetFocus(m_lastFocus);
    }
    else
    {
        FocusList();
    }
}

void CMainWindow::OnGetMinMaxInfo(MINMAXINFO * info)
{
    CMDIFrameWndEx::OnGetMinMaxInfo(info);
    info->ptMinTrackSize = CPoint(m_leastSize.cx, m_leastSize.cy);
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
    CloseOwnedWindows();
    KeepNotes();
    KeepView();
    RememberPlace();
    KeepWorkspace();
    DestroyWindow();
}

void CMainWindow::OnEndSession(BOOL ending)
{
    if (ending)
    {
        KeepNotes();
        m_notes->Flush();
        KeepView();
        m_views->Flush();
        RememberPlace();
        m_memory.SaveAllPositions();
        KeepWorkspace();
    }
    CMDIFrameWndEx::OnEndSession(ending);
}

void CMainWindow::OnDestroy()
{
    m_helpKey.reset();
    // Frames end after this, and their ends are nobody's business any more.
    m_frames.m_onOpened = nullptr;
    m_playing.m_onMoved = nullptr;
    m_playing.Stop();
    m_report.Cancel();
    m_frames.Stop();
    m_tree.Stop();
    m_watch.reset();
    m_search.reset();
    m_queue.reset();
    m_notes.reset();
    m_views.reset();
    CMDIFrameWndEx::OnDestroy();
}

/// The object is not the window's.
void CMainWindow::PostNcDestroy() {}
