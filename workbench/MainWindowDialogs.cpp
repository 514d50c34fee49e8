// The main window's dialogs and menus.

#include "MainWindow.h"

#include <shellapi.h>

#include <algorithm>
#include <mutex>
#include <utility>

#include "BusyDialog.h"
#include "colours/Farbtabellen.h"
#include "controls/IdNameMultiselectDlg.h"
#include "ExportDialog.h"
#include "FileDialogs.h"
#include "frame/WindowAlive.h"
#include "LanguageDialog.h"
#include "logic/Amplification.h"
#include "logic/SafeFile.h"
#include "logic/Texts.h"
#include "logic/TextTable.h"
#include "logic/TrashTexts.h"
#include "logic/WriteTexts.h"
#include "OpenFolderDialog.h"
#include "PictureCopy.h"
#include "RecordingCells.h"
#include "RecordingColumns.h"
#include "RenameDialog.h"
#include "resource.h"
#include "SettingsExchange.h"
#include "WaveformPanelView.h"
#include "windows/StandaloneFrameWnd.h"

using workbench::Text;

namespace
{

// The size of the choice of columns, in dialog units.
constexpr int columns_width = 150;
constexpr int columns_height = 128;

// The least size of a picture, in dialog units.
constexpr int least_picture_width = 240;
constexpr int least_picture_height = 100;

void SetItemText(HMENU menu, UINT item, bool byPosition, CString text)
{
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STRING;
    info.dwTypeData = text.GetBuffer();
    ::SetMenuItemInfoW(menu, item, byPosition, &info);
}

/// Why a file can't be deleted; 0 where nothing is known to be in the way.
DWORD DeletionError(std::filesystem::path const & file)
{
    constexpr DWORD all_sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE const handle = ::CreateFileW(file.c_str(), DELETE, all_sharing, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
    {
        return ::GetLastError();
    }
    ::CloseHandle(handle);
    return 0;
}

/// The system's number of what went wrong, or 0. May be called from any thread.
DWORD MoveToTrash(std::filesystem::path const & file)
{
    // The system's function has numbers of its own, which tell less.
    if (DWORD const error = DeletionError(file); error != 0)
    {
        return error;
    }
    auto const list = file.wstring() + L'\0'; // and another zero at its end
    SHFILEOPSTRUCTW operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = list.c_str();
    operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_SILENT;
    auto const result = static_cast<DWORD>(::SHFileOperationW(&operation));
    return result == 0 && operation.fAnyOperationsAborted ? ERROR_CANCELLED : result;
}

/// The tree is a native one, which has to be told.
void TakeSetOfColours(CTreeCtrl & tree)
{
    ControlColors const colours = control_colors::Of(tree.m_hWnd);
    tree.SetBkColor(colours.adapts ? colours.window : CLR_NONE); // the system's
    tree.SetTextColor(colours.adapts ? colours.windowText : CLR_NONE);
}

/// The first command of a menu; 0 if it has none.
UINT FirstCommand(CMenu const & menu)
{
    for (UINT place = 0; place < menu.GetMenuItemCount(); ++place)
    {
        if (auto const id = menu.GetMenuItemID(static_cast<int>(place)); id != 0 && id != static_cast<UINT>(-1))
        {
            return id;
        }
    }
    return 0;
}

/// Gives a menu bar the texts of another one with the same commands. Items that only one of them has stay.
void TakeTexts(CMenu & bar, CMenu const & from)
{
    for (UINT place = 0; place < from.GetMenuItemCount(); ++place)
    {
        auto const * const source = from.GetSubMenu(static_cast<int>(place));
        unsigned int const command = source != nullptr ? FirstCommand(*source) : 0;
        for (UINT own = 0; command != 0 && own < bar.GetMenuItemCount(); ++own)
        {
            auto const * const target = bar.GetSubMenu(static_cast<int>(own));
            if (target == nullptr || target->GetMenuState(command, MF_BYCOMMAND) == static_cast<UINT>(-1))
            {
                continue;
            }
            CString text;
            from.GetMenuString(place, text, MF_BYPOSITION);
            SetItemText(bar.m_hMenu, own, true, text);
            for (UINT item = 0; item < source->GetMenuItemCount(); ++item)
            {
                auto const id = source->GetMenuItemID(static_cast<int>(item));
                source->GetMenuString(item, text, MF_BYPOSITION);
                if (!text.IsEmpty())
                {
                    SetItemText(target->m_hMenu, id, false, text);
                }
            }
            break;
        }
    }
}

} // namespace

std::array<CWorkbenchDialog *, 3> CMainWindow::Dialogs()
{
    return {&m_details, &m_preview, &m_help};
}

/// All that is to lie above the window while it is open.
std::array<CWnd *, 4> CMainWindow::OwnedWindows()
{
    return {&m_details, &m_preview, &m_settingsSheet, &m_help};
}

/// Gives a window that has opened its item in the window menu, or takes it out.
void CMainWindow::EnterInMenu(CWnd & window, CString const & text, bool open)
{
    if (open)
    {
        m_windowMenu.Add(window, text);
    }
    else
    {
        m_windowMenu.Remove(window);
    }
}

void CMainWindow::PrepareDialogs()
{
    TakeSetOfColours(m_tree);
    m_windowMenu.SetMenu(Text(L"&Window"));
    for (CWorkbenchDialog * const dialog : Dialogs())
    {
        dialog->Follow(m_settings);
        dialog->m_onOpened = [this](CWorkbenchDialog & which, bool open) {
            EnterInMenu(which, which.GetDialogTitle(), open);
        };
    }
    m_settingsSheet.m_onOpened = [this](bool open) { EnterInMenu(m_settingsSheet, Text(L"Settings"), open); };
    m_settingsSheet.m_current = [this] {
        workbench::Settings settings = m_settings;
        settings.columnOrder = m_list.ColumnOrder();
        return settings;
    };
    m_settingsSheet.m_onAccepted = [this](workbench::Settings const & settings) { TakeSettings(settings); };
    m_panel.m_onScale = [this](unsigned int scale) {
        workbench::Settings settings = m_settings;
        settings.spectrogramScale = scale;
        TakeSettings(settings);
    };
    m_details.m_actions = [this] { return DetailsActions(); };
}

void CMainWindow::PrepareFrames()
{
    m_frames.SetNotify([window = m_hWnd] { ::PostMessageW(window, message_frame_read, 0, 0); });
    m_frames.Follow(m_settings);
    m_frames.m_onOpened = [this](CWaveformFrame & frame, bool open) {
        EnterInMenu(*frame.Frame(), frame.Title(), open);
        PostMessage(message_frames_changed);
    };
    m_framesDivider.m_onMoved = [this](int x) { MoveFramesDivider(x); };
    m_framesDivider.m_onReleased = [this] { workbench::StoreFrameShare(m_settings.frameShare); };
}

/// Gives each pane an item of the window menu and a key, by which it is shown and hidden.
void CMainWindow::PreparePaneMenu()
{
    CMenu * const bar = GetMenu();
    CMenu * const menu = bar != nullptr ? CMenueManager::FindSubMenue(*bar, Text(L"&Window")) : nullptr;
    if (menu == nullptr)
    {
        return;
    }
    UINT place = 0;
    for (int index = 0; index < part_count; ++index)
    {
        auto const part = static_cast<Part>(index);
        CString const text = PaneCommandText(part);
        int const id = register_menu(
            window_menu, text, [this, part] { ShowPane(part, !ShowsPane(part) || IsBehindTab(part)); },
            static_cast<unsigned short>(L'1' + index), FVIRTKEY | FCONTROL | FNOINVERT);
        if (id >= 0)
        {
            m_paneCommands[index] = static_cast<UINT>(id);
            menu->InsertMenu(place++, MF_BYPOSITION | MF_STRING, static_cast<UINT_PTR>(id), text);
        }
    }
    menu->InsertMenu(place, MF_BYPOSITION | MF_SEPARATOR);
}

CString CMainWindow::PaneCommandText(Part part) const
{
    CString text;
    text.Format(L"%s\t%s%d", TitleOf(part), Text(L"Ctrl+"), part + 1);
    return text;
}

void CMainWindow::OnDynamicCommand(UINT id)
{
    menu(id);
}

LRESULT CMainWindow::OnFrameRead(WPARAM, LPARAM)
{
    m_frames.TakeResults();
    return 0;
}

/// Gives the frames room, or takes it back when the last one has gone.
LRESULT CMainWindow::OnFramesChanged(WPARAM, LPARAM)
{
    HWND const focus = ::GetFocus();
    RecalcLayout();
    if (!m_frames.AnyOpen() && CWnd::GetActiveWindow() == this &&
        (focus == nullptr || focus == m_hWnd || focus == m_hWndMDIClient))
    {
        FocusList();
    }
    return 0;
}

/// Texts of the list that have colours of their own take those that go with the system's.
void CMainWindow::OnSysColorChange()
{
    CMDIFrameWndEx::OnSysColorChange();
    TakeSetOfColours(m_tree);
    m_list.FollowColours();
}

/// Lets the windows follow the settings.
void CMainWindow::FollowSettings(workbench::Settings const & settings)
{
    ControlColorSet const formerContrast = std::exchange(m_settings, settings).contrast;
    control_colors::UseForProcess(settings.contrast);
    if (settings.contrast != formerContrast)
    {
        TakeSetOfColours(m_tree);
        m_list.FollowColours();
    }
    for (CWorkbenchDialog * const dialog : Dialogs())
    {
        dialog->Follow(settings);
    }
    m_panel.ChooseScale(settings.spectrogramScale);
    m_spectrogram.SetColours(Farbtabellen::SpektrogrammFarbtabelle(settings.spectrogramScale));
    m_spectrogram.SetSettings(settings.spectrogram);
    m_spectrogram.SetScale(settings.frequencyScale);
    Waveform().SetColours(settings.waveform);
    Waveform().SetAmplification(settings.amplification);
    if (settings.hiddenColumns != m_list.HiddenColumns())
    {
        m_list.SetHiddenColumns(settings.hiddenColumns);
    }
    if (std::vector<int> const order = std::exchange(m_settings.columnOrder, {});
        !order.empty() && order != m_list.ColumnOrder())
    {
        m_list.SetColumnOrder(order);
        workbench::StoreColumnOrder(m_list.ColumnOrder());
    }
    m_list.EnableCellCursor(settings.cellCursor);
    m_frameMeasures.EnableCellCursor(settings.cellCursor);
    m_frames.Follow(settings);
    m_tree.AddPlaces(settings.startFolders);
    m_preview.Update();
}

void CMainWindow::TakeSettings(workbench::Settings const & settings)
{
    FollowSettings(settings);
    KeepSettings();
}

void CMainWindow::KeepSettings()
{
    if (!workbench::StoreSettings(m_settings))
    {
        AfxMessageBox(Text(L"The settings could not be stored."), MB_ICONEXCLAMATION);
    }
}

void CMainWindow::OnChooseColumns()
{
    CRect titles;
    m_list.GetHeaderCtrl()->GetWindowRect(&titles);
    ChooseColumns(CPoint(titles.left, titles.bottom));
}

void CMainWindow::ChooseColumns(CPoint screen)
{
    m_list.EndEditing();
    CIdNameMultiselectDlg dialog(this);
    std::vector<int> const columns = workbench::HideableColumns(m_list.ColumnOrder());
    dialog.m_control.SetTheMap(workbench::ColumnNames(columns));
    dialog.m_control.SetSelection(workbench::ShownColumns(columns, m_settings.hiddenColumns));
    dialog.m_control.ShowGroupedSelection(false);
    dialog.m_control.SetDpi(m_metrics.Resolution());
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CSize const size(m_metrics.X(columns_width), m_metrics.Y(columns_height));
    CPoint const corner(std::clamp<int>(screen.x, work.left, std::max<int>(work.right - size.cx, work.left)),
                        std::clamp<int>(screen.y, work.top, std::max<int>(work.bottom - size.cy, work.top)));
    dialog.m_placement = CRect(corner, size);
    WindowAlive const alive(*this, m_life);
    if (dialog.DoModal() != IDOK || !alive.IsAlive())
    {
        return;
    }
    workbench::Settings settings = m_settings;
    settings.hiddenColumns = workbench::HiddenColumns(columns, dialog.m_control.TheSelection());
    TakeSettings(settings);
}

/// Lets the user sort the list by a column, as a click on its title does.
void CMainWindow::OnSortBy()
{
    BringListInSight();
    m_list.EndEditing();
    CMenu menu;
    if (!menu.CreatePopupMenu())
    {
        return;
    }
    constexpr wchar_t keys[] = L"123456789ABCDEFGH";
    int count = 0;
    for (int const column : m_list.ColumnOrder())
    {
        if (column != CRecordingList::column_check && !m_list.IsHidden(column))
        {
            CString text;
            text.Format(L"&%c %s", keys[count++], CRecordingList::Title(column));
            menu.AppendMenu(MF_STRING | (column == m_list.SortedColumn() ? MF_CHECKED : MF_UNCHECKED),
                            static_cast<UINT_PTR>(column), text);
        }
    }
    CRect titles;
    m_list.GetHeaderCtrl()->GetWindowRect(&titles);
    WindowAlive const alive(*this, m_life);
    BOOL const chosen = menu.TrackPopupMenu(TPM_RETURNCMD | TPM_NONOTIFY, titles.left, titles.bottom, this);
    if (chosen > 0 && alive.IsAlive())
    {
        m_list.SortByUser(static_cast<CRecordingList::Column>(chosen));
    }
}

/// Writes what the user wants of the list into a file.
void CMainWindow::OnExportList()
{
    m_list.EndEditing();
    CExportDialog dialog(m_settings, m_list.ColumnOrder(), *this);
    WindowAlive const alive(*this, m_life);
    if (dialog.DoModal() != IDOK || !alive.IsAlive())
    {
        return;
    }
    m_settings.exportFile = dialog.File();
    m_settings.exportHidden = dialog.HiddenColumns();
    m_settings.exportLines = static_cast<int>(dialog.Lines());
    KeepSettings();
    std::filesystem::path const file = dialog.File();
    workbench::RecordingTable table = m_list.Table(dialog.Lines(), dialog.HiddenColumns());
    bool written = false;
    unsigned long error = 0;
    bool const whole =
        CBusyDialog::DoAll(*this, Text(L"Exporting recordings"), table.Rows() + 1, [&](std::size_t step) {
            if (step < table.Rows())
            {
                table.MakeRow();
            }
            else
            {
                written = workbench::ReplaceWholeFile(file, workbench::TableFile(table.Table(), file), &error);
            }
        });
    if (!alive.IsAlive())
    {
        return;
    }
    m_written.clear();
    if (whole && written)
    {
        SayWritten(Text(L"list written:"), file);
    }
    else if (whole)
    {
        AfxMessageBox(workbench::WriteFailureText(file, error).c_str(), MB_ICONEXCLAMATION);
    }
}

/// Has the status line say what has been written, until another recording is chosen.
void CMainWindow::SayWritten(wchar_t const * what, std::filesystem::path const & file)
{
    m_written = std::wstring(L", ") + what + L' ' + file.wstring();
    UpdateStatusLine();
}

/// That of the frame which has the focus, or else the chosen recording's.
CWaveformView & CMainWindow::WaveformInUse()
{
    for (CWnd * window = GetFocus(); window != nullptr && window != this; window = window->GetParent())
    {
        if (auto * const panel = DYNAMIC_DOWNCAST(CWaveformPanelView, window))
        {
            return panel->Waveform();
        }
    }
    return Waveform();
}

/// Plays what is selected, or all from the cursor on; pauses what is playing, and goes on with it.
void CMainWindow::OnPlay()
{
    if (m_playing.IsPlaying())
    {
        m_playing.Pause(!m_playing.IsPaused());
        return;
    }
    Recording const * const chosen = RecordingAt(m_list.ChosenLine());
    if (chosen == nullptr || !Waveform().ShowsRecording())
    {
        return;
    }
    workbench::TimeMarks const & marks = Waveform().Marks();
    std::filesystem::path const file = chosen->file;
    auto const stretch =
        marks.HasSelection() ? marks.Selection() : workbench::FrameRange{marks.cursor, marks.window.Frames()};
    m_playing.Play(*this, file, stretch);
}

void CMainWindow::OnStopPlaying()
{
    m_playing.Stop();
}

void CMainWindow::OnLoopPlaying()
{
    m_playing.SetLoop(!m_playing.Loops());
}

/// Gives the chosen recording's file another name. What is said about it goes along.
void CMainWindow::OnRename()
{
    m_list.EndEditing();
    int const line = m_list.ChosenLine();
    if (RecordingAt(line) == nullptr)
    {
        return;
    }
    std::filesystem::path const before = RecordingAt(line)->file;
    CRenameDialog dialog(before, m_settings, *this);
    WindowAlive const alive(*this, m_life);
    if (dialog.DoModal() != IDOK || !alive.IsAlive() || dialog.File() == before)
    {
        return;
    }
    StoreNotes();
    if (!::MoveFileExW(before.c_str(), dialog.File().c_str(), 0))
    {
        std::wstring const reason = workbench::FileErrorText(::GetLastError());
        AfxMessageBox(Text(L"The file could not be renamed.") +
                          (L"\n\n" + CString(dialog.File().filename().c_str()) + L": " + reason.c_str()),
                      MB_ICONEXCLAMATION);
        return;
    }
    // Other lines may have come meanwhile.
    if (int const now = LineOf(before); now >= 0)
    {
        RenameRecording(now, dialog.File());
    }
    else
    {
        workbench::RecordingNotes const notes = m_notes->Of(before);
        m_notes->Set(before, {});
        m_notes->Set(dialog.File(), notes);
    }
    FillFolders();
}

/// Moves the files of the selected recordings to the trash.
void CMainWindow::OnDeleteRecordings()
{
    m_list.EndEditing();
    std::vector<std::filesystem::path> files;
    for (int const line : m_list.SelectedLines())
    {
        if (Recording const * const recording = RecordingAt(line))
        {
            files.push_back(recording->file);
        }
    }
    WindowAlive const alive(*this, m_life);
    if (files.empty() || AfxMessageBox(workbench::TrashQuestion(files).c_str(), MB_YESNO | MB_ICONQUESTION) != IDYES ||
        !alive.IsAlive())
    {
        return;
    }
    std::mutex mutex;
    std::vector<workbench::FileFailure> failures;
    CBusyDialog(*this, Text(L"Moving recordings to the trash"), files.size(), [&](std::size_t item) {
        if (DWORD const error = MoveToTrash(files[item]); error != 0)
        {
            std::scoped_lock const lock(mutex);
            failures.emplace_back(files[item], error);
        }
    }).Run();
    if (!alive.IsAlive())
    {
        return;
    }
    if (!failures.empty())
    {
        AfxMessageBox(workbench::TrashFailureText(failures).c_str(), MB_ICONEXCLAMATION);
    }
    if (alive.IsAlive())
    {
        m_followAgain = true;
        Follow();
    }
}

void CMainWindow::OnShowFile()
{
    if (Recording const * const recording = RecordingAt(m_list.ChosenLine()))
    {
        auto const selected = L"/select,\"" + recording->file.wstring() + L'"';
        ::ShellExecuteW(m_hWnd, nullptr, L"explorer.exe", selected.c_str(), nullptr, SW_SHOWNORMAL);
    }
}

void CMainWindow::OnAmplify(UINT id)
{
    CWaveformView & view = WaveformInUse();
    int const present = view.Amplification();
    switch (id)
    {
    case ID_AMPLIFY:
        view.SetAmplification(std::min(present + workbench::amplification_step, workbench::most_amplification));
        break;
    case ID_REDUCE:
        view.SetAmplification(present - workbench::amplification_step);
        break;
    case ID_AMPLIFY_FIT:
        view.FitAmplification();
        break;
    default:
        view.SetAmplification(0);
        break;
    }
}

/// What can be done from the details that are shown now. The list may have other recordings by then.
CDetailsDialog::Actions CMainWindow::DetailsActions()
{
    CDetailsDialog::Actions actions;
    int const index = m_detailsIndex;
    // The neighbours in the order in which the list shows them.
    int const row = m_list.PlaceOf(index);
    int const previous = row > 0 ? m_list.LineAt(row - 1) : -1;
    int const next = row >= 0 ? m_list.LineAt(row + 1) : -1;
    auto const read = [this](int i) { return RecordingAt(i) != nullptr && RecordingAt(i)->analysis; };
    // While a menu offers the actions, other recordings can come.
    auto const unlessOthersCome = [this, generation = m_generation](std::function<void()> action) {
        return [this, generation, action = std::move(action)] {
            if (generation == m_generation)
            {
                action();
            }
        };
    };
    if (read(previous))
    {
        actions.previous = unlessOthersCome([this, previous] { ShowDetails(previous); });
    }
    if (read(next))
    {
        actions.next = unlessOthersCome([this, next] { ShowDetails(next); });
    }
    if (read(index))
    {
        actions.showInList = unlessOthersCome([this, index] {
            m_list.ChooseLine(index);
            SetActiveWindow();
        });
    }
    if (IsReadable(index))
    {
        actions.setReference = unlessOthersCome([this, index] { m_list.SetReference(index); });
    }
    return actions;
}

bool CMainWindow::ShowSettings()
{
    return m_settingsSheet.Open(*this);
}

void CMainWindow::OnShowSettings()
{
    ShowSettings();
}

/// Shows what the window says in the present language.
void CMainWindow::ShowTexts()
{
    if (CMenu * const bar = GetMenu())
    {
        CMenu wanted;
        if (wanted.LoadMenu(IDR_MAIN_FRAME))
        {
            TakeTexts(*bar, wanted);
        }
        for (int part = 0; part < part_count; ++part)
        {
            if (m_paneCommands[part] != 0)
            {
                SetItemText(bar->m_hMenu, m_paneCommands[part], false, PaneCommandText(static_cast<Part>(part)));
            }
        }
        m_windowMenu.SetMenu(Text(L"&Window"));
        DrawMenuBar();
    }
    for (int part = 0; part < part_count; ++part)
    {
        m_panes[part]->SetWindowText(TitleOf(static_cast<Part>(part)));
    }
    m_panel.ShowTexts();
    m_frameMeasures.ShowTexts();
    m_list.ShowTexts();
    m_listPanel.ShowTexts();
    m_waveformPanel.ShowTexts();
    m_status.ShowTexts();
    ShowTextsOfOpenWindows();
    UpdateStatusLine();
    if (!m_shown || m_shown->problem)
    {
        m_shown.reset();
        ShowChosen();
    }
    // Plots have words, too.
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void CMainWindow::ShowTextsOfOpenWindows()
{
    m_details.Refresh(DetailsOf(m_detailsIndex));
    for (CWorkbenchDialog * const dialog : Dialogs())
    {
        if (dialog->GetSafeHwnd() != nullptr)
        {
            dialog->ShowTexts();
            EnterInMenu(*dialog, dialog->GetDialogTitle(), true);
        }
    }
    if (m_settingsSheet.IsOpen())
    {
        m_settingsSheet.ShowTexts();
        EnterInMenu(m_settingsSheet, Text(L"Settings"), true);
    }
    for (CWaveformFrame * const frame : m_frames.Frames())
    {
        frame->ShowTexts();
        EnterInMenu(*frame->Frame(), frame->Title(), true);
    }
}

void CMainWindow::ChooseLanguage(unsigned short languageId)
{
    workbench::UseLanguage(languageId);
    ShowTexts();
    if (!workbench::StoreLanguage(languageId))
    {
        AfxMessageBox(Text(L"The settings could not be stored."), MB_ICONEXCLAMATION);
    }
}

void CMainWindow::OnChooseLanguage()
{
    CLanguageDialog dialog(workbench::ReadLanguage(), *this);
    if (dialog.DoModal() == IDOK && dialog.SpracheGeaendert())
    {
        ChooseLanguage(dialog.SprachId());
    }
}

void CMainWindow::OnExportSettings()
{
    workbench::ExportSettings(*this);
}

void CMainWindow::OnImportSettings()
{
    workbench::SettingsFileResult const result = workbench::ImportSettings(*this);
    if (result == workbench::SettingsFileResult::done || result == workbench::SettingsFileResult::incomplete)
    {
        FollowSettings(workbench::ReadSettings());
        m_list.SetUserWidths(workbench::ReadColumnWidths(m_metrics.AverageWidth()));
        m_list.SetColumnOrder(workbench::ReadColumnOrder());
        workbench::UseLanguage(workbench::ReadLanguage());
        ShowTexts();
    }
}

/// Shows the page of the chosen recording as it would be on paper.
void CMainWindow::OnPrintPreview()
{
    ShowPreview();
}

bool CMainWindow::ShowPreview()
{
    return m_preview.Show([this](CDC & dc, CRect const & page) { DrawPage(dc, page); });
}

/// The page: the waveform and below it the spectrogram.
void CMainWindow::DrawPage(CDC & dc, CRect const & page)
{
    int const gap = m_metrics.Y(6);
    CRect upper = page;
    upper.bottom = page.top + (page.Height() - gap) / 2;
    CRect lower = page;
    lower.top = upper.bottom + gap;
    Waveform().Print(dc, upper);
    m_spectrogram.Print(dc, lower);
}

void CMainWindow::OnCopy()
{
    if (HWND const editor = m_list.CommentEditor(); editor != nullptr)
    {
        ::SendMessageW(editor, WM_COPY, 0, 0);
        return;
    }
    if (m_frameMeasures.CopySelection())
    {
        return;
    }
    m_list.CopyToClipboard(false);
}

void CMainWindow::OnCopyAll()
{
    m_list.CopyToClipboard(true);
}

void CMainWindow::OnCopyWaveform()
{
    workbench::CopyPicture(*this, PictureSize(Waveform()),
                           [this](CDC & dc, CRect const & rect) { Waveform().Print(dc, rect); });
}

void CMainWindow::OnCopySpectrogram()
{
    workbench::CopyPicture(*this, PictureSize(m_spectrogram),
                           [this](CDC & dc, CRect const & rect) { m_spectrogram.Print(dc, rect); });
}

void CMainWindow::OnSaveWaveform()
{
    SavePictureOf(Waveform(), [this](CDC & dc, CRect const & rect) { Waveform().Print(dc, rect); });
}

void CMainWindow::OnSaveSpectrogram()
{
    SavePictureOf(m_spectrogram, [this](CDC & dc, CRect const & rect) { m_spectrogram.Print(dc, rect); });
}

/// The size of a picture of a view: the view's, but for one that is hidden or has next to no room.
CSize CMainWindow::PictureSize(CWnd & view) const
{
    CRect client;
    view.GetClientRect(&client);
    return CSize(std::max<int>(client.Width(), m_metrics.X(least_picture_width)),
                 std::max<int>(client.Height(), m_metrics.Y(least_picture_height)));
}

/// Lets the user save what a view shows, under the recording's name.
void CMainWindow::SavePictureOf(CWnd & view, workbench::Drawing const & draw)
{
    Recording const * const chosen = RecordingAt(m_list.ChosenLine());
    auto const name = chosen != nullptr ? chosen->file.stem().wstring() : std::wstring();
    WindowAlive const alive(*this, m_life);
    std::optional<std::filesystem::path> const file = workbench::ChoosePictureFile(*this, name);
    if (!file || !alive.IsAlive())
    {
        return;
    }
    unsigned long error = 0;
    if (!workbench::SavePicture(*this, PictureSize(view), draw, *file, &error))
    {
        AfxMessageBox(workbench::WriteFailureText(*file, error).c_str(), MB_ICONEXCLAMATION);
    }
}

/// Closes dialogs and frames, as the user does.
void CMainWindow::CloseDialogs()
{
    m_windowMenu.CloseAll();
}

/// Closes what lies above the window; the frames stay.
void CMainWindow::CloseOwnedWindows()
{
    for (CWnd * const window : OwnedWindows())
    {
        if (window->GetSafeHwnd() != nullptr)
        {
            window->SendMessage(WM_COMMAND, IDCANCEL); // not WM_CLOSE, which a dialog only posts on
        }
    }
}

void CMainWindow::OnCloseDialogs()
{
    CloseDialogs();
}

void CMainWindow::OnDialogChosen(UINT id)
{
    m_windowMenu.Activate(id);
}

void CMainWindow::OnOpenFiles()
{
    std::vector<std::filesystem::path> files = workbench::ChooseFiles(*this);
    if (!files.empty())
    {
        ShowTargets(std::move(files));
        m_rememberOpened = true;
    }
}

void CMainWindow::OnOpenFolder()
{
    COpenFolderDialog dialog(m_settings, *this);
    WindowAlive const alive(*this, m_life);
    if (dialog.DoModal() == IDOK && alive.IsAlive())
    {
        ShowTargets({dialog.Folder()});
        m_rememberOpened = true;
    }
}

void CMainWindow::OnInitMenuPopup(CMenu * menu, UINT index, BOOL systemMenu)
{
    CMDIFrameWndEx::OnInitMenuPopup(menu, index, systemMenu);
    if (systemMenu)
    {
        return;
    }
    ShowRecent(*menu);
    auto const enable = [menu](UINT id, bool enabled) {
        menu->EnableMenuItem(id, MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
    };
    int const chosen = m_list.ChosenLine();
    Recording const * const recording = RecordingAt(chosen);
    bool const read = recording != nullptr && recording->analysis;
    enable(ID_UNDO, m_list.CanUndo());
    enable(ID_REDO, m_list.CanRedo());
    enable(ID_COPY, RecordingCount() > 0);
    enable(ID_COPY_ALL, RecordingCount() > 0);
    enable(ID_COPY_SPECTROGRAM, m_shown && !m_shown->problem && !IsComputing());
    enable(ID_SAVE_SPECTROGRAM, m_shown && !m_shown->problem && !IsComputing());
    enable(ID_COPY_WAVEFORM, Waveform().ShowsRecording());
    enable(ID_SAVE_WAVEFORM, Waveform().ShowsRecording());
    enable(ID_PLAY, m_playing.IsPlaying() || Waveform().ShowsRecording());
    enable(ID_STOP_PLAYING, m_playing.IsPlaying());
    menu->CheckMenuItem(ID_LOOP_PLAYING, MF_BYCOMMAND | (m_playing.Loops() ? MF_CHECKED : MF_UNCHECKED));
    enable(ID_RELOAD, !m_targets.empty());
    enable(ID_SHOW_DETAILS, read);
    enable(ID_SHOW_IN_FRAME, recording != nullptr && m_frames.HasRoom());
    enable(ID_COMPARE_FOUR, RecordingCount() > 0 && m_frames.HasRoomToCompare());
    enable(ID_READ_AGAIN, recording != nullptr && !recording->queued);
    for (int const id : {ID_RENAME, ID_DELETE_RECORDINGS, ID_SHOW_FILE})
    {
        enable(id, recording != nullptr);
    }
    enable(ID_SET_REFERENCE, IsReadable(chosen));
    enable(ID_EDIT_COMMENT, IsReadable(chosen) && !m_list.IsHidden(CRecordingList::column_comment));
    enable(ID_CHOOSE_RATING, IsReadable(chosen) && !m_list.IsHidden(CRecordingList::column_rating));
    enable(ID_EXPORT_LIST, RecordingCount() > 0);
    enable(ID_SORT_BY, RecordingCount() > 0);
    enable(ID_MOVE_UP, RecordingCount() > 1);
    enable(ID_MOVE_DOWN, RecordingCount() > 1);
    enable(ID_WRITE_REPORT, m_list.Totals().Checked() > 0);
    menu->CheckMenuItem(ID_SHOW_FOLDERS, MF_BYCOMMAND | (ShowsFolders() ? MF_CHECKED : MF_UNCHECKED));
    CWaveformView const & waveform = WaveformInUse();
    int const amplification = waveform.Amplification();
    enable(ID_AMPLIFY, waveform.ShowsRecording() && amplification < workbench::most_amplification);
    enable(ID_REDUCE, waveform.ShowsRecording() && amplification > 0);
    enable(ID_AMPLIFY_NONE, amplification > 0);
    enable(ID_AMPLIFY_FIT, waveform.ShowsRecording());
    enable(ID_MARK_ALL, RecordingCount() > 0);
    enable(ID_MARK_NONE, RecordingCount() > 0);
    enable(ID_FIT_COLUMNS, !m_list.UserWidths().empty());
    for (int part = 0; part < part_count; ++part)
    {
        menu->CheckMenuItem(m_paneCommands[part],
                            MF_BYCOMMAND | (ShowsPane(static_cast<Part>(part)) ? MF_CHECKED : MF_UNCHECKED));
    }
    for (int const id : {ID_PANE_WIDER, ID_PANE_NARROWER, ID_PANE_TALLER, ID_PANE_SHORTER})
    {
        enable(id, CanResize(id));
    }
    enable(ID_CLOSE_DIALOGS, m_frames.AnyOpen() || std::ranges::any_of(OwnedWindows(), [](auto const * window) {
                                 return window->GetSafeHwnd() != nullptr;
                             }));
}
