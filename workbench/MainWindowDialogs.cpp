// The main window's dialogs and menus.

#include "MainWindow.h"

#include <shellapi.h>

#include <algorithm>
#include <atomic>

#include "BusyDialog.h"
#include "ExportDialog.h"
#include "FileDialogs.h"
#include "LanguageDialog.h"
#include "OpenFolderDialog.h"
#include "PictureCopy.h"
#include "RecordingColumns.h"
#include "RenameDialog.h"
#include "SettingsExchange.h"
#include "WaveformPanelView.h"
#include "colours/Farbtabellen.h"
#include "controls/IdNameMultiselectDlg.h"
#include "logic/Amplification.h"
#include "logic/SafeFile.h"
#include "logic/TableText.h"
#include "logic/Texts.h"
#include "resource.h"
#include "windows/StandaloneFrameWnd.h"

using workbench::Text;

namespace
{

// The size of the choice of columns, in dialog units.
constexpr int columns_width = 90;
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

/// Whether that went well. May be called from any thread.
bool MoveToTrash(std::filesystem::path const & file)
{
    auto const list = file.wstring() + L'\0'; // and another zero at its end
    SHFILEOPSTRUCTW operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = list.c_str();
    operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_SILENT;
    return ::SHFileOperationW(&operation) == 0 && !operation.fAnyOperationsAborted;
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
        auto const command = source != nullptr ? FirstCommand(*source) : 0;
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
    m_windowMenu.SetMenu(Text(L"&Window"));
    for (auto * const dialog : Dialogs())
    {
        dialog->Follow(m_settings);
        dialog->m_onOpened = [this](CWorkbenchDialog & which, bool open) {
            EnterInMenu(which, which.GetDialogTitle(), open);
        };
    }
    m_settingsSheet.m_onOpened = [this](bool open) { EnterInMenu(m_settingsSheet, Text(L"Settings"), open); };
    m_settingsSheet.m_current = [this] { return m_settings; };
    m_settingsSheet.m_onAccepted = [this](workbench::Settings const & settings) { TakeSettings(settings); };
    m_panel.m_onScale = [this](unsigned int scale) {
        auto settings = m_settings;
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
    auto * const bar = GetMenu();
    auto * const menu = bar != nullptr ? CMenueManager::FindSubMenue(*bar, Text(L"&Window")) : nullptr;
    if (menu == nullptr)
    {
        return;
    }
    UINT place = 0;
    for (auto index = 0; index < part_count; ++index)
    {
        auto const part = static_cast<Part>(index);
        auto const text = PaneCommandText(part);
        auto const id = register_menu(
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
    auto const focus = ::GetFocus();
    RecalcLayout();
    if (!m_frames.AnyOpen() && CWnd::GetActiveWindow() == this &&
        (focus == nullptr || focus == m_hWnd || focus == m_hWndMDIClient))
    {
        FocusList();
    }
    return 0;
}

/// Lets the windows follow the settings.
void CMainWindow::FollowSettings(workbench::Settings const & settings)
{
    m_settings = settings;
    for (auto * const dialog : Dialogs())
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
    dialog.m_control.SetTheMap(workbench::ColumnNames());
    dialog.m_control.SetSelection(workbench::ShownColumns(m_settings.hiddenColumns));
    dialog.m_control.ShowGroupedSelection(false);
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CSize const size(m_metrics.X(columns_width), m_metrics.Y(columns_height));
    CPoint const corner(std::clamp<int>(screen.x, work.left, std::max<int>(work.right - size.cx, work.left)),
                        std::clamp<int>(screen.y, work.top, std::max<int>(work.bottom - size.cy, work.top)));
    dialog.m_placement = CRect(corner, size);
    LifeWatch const life(m_life);
    if (dialog.DoModal() != IDOK || life.Over() || m_hWnd == nullptr)
    {
        return;
    }
    auto settings = m_settings;
    settings.hiddenColumns = workbench::HiddenColumns(dialog.m_control.TheSelection());
    TakeSettings(settings);
}

/// Writes what the user wants of the list into a file.
void CMainWindow::OnExportList()
{
    m_list.EndEditing();
    CExportDialog dialog(m_settings, *this);
    LifeWatch const life(m_life);
    if (dialog.DoModal() != IDOK || life.Over() || m_hWnd == nullptr)
    {
        return;
    }
    m_settings.exportFile = dialog.File();
    m_settings.exportHidden = dialog.HiddenColumns();
    m_settings.exportLines = static_cast<int>(dialog.Lines());
    KeepSettings();
    auto const table = m_list.Table(dialog.Lines(), dialog.HiddenColumns());
    if (!workbench::ReplaceWholeFile(dialog.File(), workbench::TableFile(table, dialog.File())))
    {
        AfxMessageBox(Text(L"This file could not be written:") + (L"\n\n" + CString(dialog.File().c_str())),
                      MB_ICONEXCLAMATION);
    }
}

/// That of the frame which has the focus, or else the chosen recording's.
CWaveformView & CMainWindow::WaveformInUse()
{
    for (auto * window = GetFocus(); window != nullptr && window != this; window = window->GetParent())
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
    auto const * const chosen = RecordingAt(m_list.ChosenLine());
    if (chosen == nullptr || !Waveform().ShowsRecording())
    {
        return;
    }
    auto const & marks = Waveform().Marks();
    auto const file = chosen->file;
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
    auto const line = m_list.ChosenLine();
    if (RecordingAt(line) == nullptr)
    {
        return;
    }
    auto const before = RecordingAt(line)->file;
    CRenameDialog dialog(before, m_settings, *this);
    LifeWatch const life(m_life);
    if (dialog.DoModal() != IDOK || life.Over() || m_hWnd == nullptr || dialog.File() == before)
    {
        return;
    }
    StoreNotes();
    if (!::MoveFileExW(before.c_str(), dialog.File().c_str(), 0))
    {
        AfxMessageBox(Text(L"The file could not be renamed.") + (L"\n\n" + CString(dialog.File().c_str())),
                      MB_ICONEXCLAMATION);
        return;
    }
    // Other lines may have come meanwhile.
    if (auto const now = LineOf(before); now >= 0)
    {
        RenameRecording(now, dialog.File());
    }
    else
    {
        auto const notes = m_notes->Of(before);
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
    for (auto const line : m_list.SelectedLines())
    {
        if (auto const * const recording = RecordingAt(line))
        {
            files.push_back(recording->file);
        }
    }
    LifeWatch const life(m_life);
    if (files.empty() ||
        AfxMessageBox(Text(L"Move these recordings to the trash?"), MB_YESNO | MB_ICONQUESTION) != IDYES ||
        life.Over() || m_hWnd == nullptr)
    {
        return;
    }
    std::atomic<bool> failed = false;
    CBusyDialog(*this, Text(L"Moving recordings to the trash"), files.size(), [&](std::size_t item) {
        if (!MoveToTrash(files[item]))
        {
            failed = true;
        }
    }).Run();
    if (life.Over() || m_hWnd == nullptr)
    {
        return;
    }
    if (failed)
    {
        AfxMessageBox(Text(L"Some files could not be moved to the trash."), MB_ICONEXCLAMATION);
    }
    if (!life.Over() && m_hWnd != nullptr)
    {
        m_followAgain = true;
        Follow();
    }
}

void CMainWindow::OnShowFile()
{
    if (auto const * const recording = RecordingAt(m_list.ChosenLine()))
    {
        auto const selected = L"/select,\"" + recording->file.wstring() + L'"';
        ::ShellExecuteW(m_hWnd, nullptr, L"explorer.exe", selected.c_str(), nullptr, SW_SHOWNORMAL);
    }
}

void CMainWindow::OnAmplify(UINT id)
{
    auto & view = WaveformInUse();
    auto const present = view.Amplification();
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
    auto const index = m_detailsIndex;
    // The neighbours in the order in which the list shows them.
    auto const row = m_list.PlaceOf(index);
    auto const previous = row > 0 ? m_list.LineAt(row - 1) : -1;
    auto const next = row >= 0 ? m_list.LineAt(row + 1) : -1;
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
    if (auto * const bar = GetMenu())
    {
        CMenu wanted;
        if (wanted.LoadMenu(IDR_MAIN_FRAME))
        {
            TakeTexts(*bar, wanted);
        }
        for (auto part = 0; part < part_count; ++part)
        {
            if (m_paneCommands[part] != 0)
            {
                SetItemText(bar->m_hMenu, m_paneCommands[part], false, PaneCommandText(static_cast<Part>(part)));
            }
        }
        m_windowMenu.SetMenu(Text(L"&Window"));
        DrawMenuBar();
    }
    for (auto part = 0; part < part_count; ++part)
    {
        m_panes[part]->SetWindowText(TitleOf(static_cast<Part>(part)));
    }
    m_panel.ShowTexts();
    m_frameMeasures.ShowTexts();
    {
        CRecordingList::Batch const batch(m_list);
        m_list.ShowTexts();
        for (std::size_t line = 0; line < m_recordings.size(); ++line)
        {
            m_list.ShowLineTexts(static_cast<int>(line), m_recordings[line].file, m_recordings[line].analysis.get());
        }
    }
    m_listPanel.ShowTexts();
    m_help.ShowTexts();
    UpdateStatusLine();
    if (!m_shown)
    {
        ShowChosen();
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
    auto const result = workbench::ImportSettings(*this);
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
    auto const gap = m_metrics.Y(6);
    auto upper = page;
    upper.bottom = page.top + (page.Height() - gap) / 2;
    auto lower = page;
    lower.top = upper.bottom + gap;
    Waveform().Print(dc, upper);
    m_spectrogram.Print(dc, lower);
}

void CMainWindow::OnCopy()
{
    if (auto const editor = m_list.CommentEditor(); editor != nullptr)
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
    auto const * const chosen = RecordingAt(m_list.ChosenLine());
    auto const name = chosen != nullptr ? chosen->file.stem().wstring() : std::wstring();
    LifeWatch const life(m_life);
    auto const file = workbench::ChoosePictureFile(*this, name);
    if (!file || life.Over() || m_hWnd == nullptr)
    {
        return;
    }
    if (!workbench::SavePicture(*this, PictureSize(view), draw, *file))
    {
        AfxMessageBox(Text(L"This file could not be written:") + (L"\n\n" + CString(file->c_str())),
                      MB_ICONEXCLAMATION);
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
    for (auto * const window : OwnedWindows())
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
    auto files = workbench::ChooseFiles(*this);
    if (!files.empty())
    {
        ShowTargets(std::move(files));
        m_rememberOpened = true;
    }
}

void CMainWindow::OnOpenFolder()
{
    COpenFolderDialog dialog(m_settings, *this);
    LifeWatch const life(m_life);
    if (dialog.DoModal() == IDOK && !life.Over() && m_hWnd != nullptr)
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
    auto const chosen = m_list.ChosenLine();
    auto const * const recording = RecordingAt(chosen);
    auto const read = recording != nullptr && recording->analysis;
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
    for (auto const id : {ID_RENAME, ID_DELETE_RECORDINGS, ID_SHOW_FILE})
    {
        enable(id, recording != nullptr);
    }
    enable(ID_SET_REFERENCE, IsReadable(chosen));
    enable(ID_EDIT_COMMENT, IsReadable(chosen) && !m_list.IsHidden(CRecordingList::column_comment));
    enable(ID_CHOOSE_RATING, IsReadable(chosen) && !m_list.IsHidden(CRecordingList::column_rating));
    enable(ID_EXPORT_LIST, RecordingCount() > 0);
    enable(ID_MOVE_UP, RecordingCount() > 1);
    enable(ID_MOVE_DOWN, RecordingCount() > 1);
    enable(ID_WRITE_REPORT, m_list.Totals().Checked() > 0);
    menu->CheckMenuItem(ID_SHOW_FOLDERS, MF_BYCOMMAND | (ShowsFolders() ? MF_CHECKED : MF_UNCHECKED));
    auto const & waveform = WaveformInUse();
    auto const amplification = waveform.Amplification();
    enable(ID_AMPLIFY, waveform.ShowsRecording() && amplification < workbench::most_amplification);
    enable(ID_REDUCE, waveform.ShowsRecording() && amplification > 0);
    enable(ID_AMPLIFY_NONE, amplification > 0);
    enable(ID_AMPLIFY_FIT, waveform.ShowsRecording());
    enable(ID_MARK_ALL, RecordingCount() > 0);
    enable(ID_MARK_NONE, RecordingCount() > 0);
    enable(ID_FIT_COLUMNS, !m_list.UserWidths().empty());
    for (auto part = 0; part < part_count; ++part)
    {
        menu->CheckMenuItem(m_paneCommands[part],
                            MF_BYCOMMAND | (ShowsPane(static_cast<Part>(part)) ? MF_CHECKED : MF_UNCHECKED));
    }
    enable(ID_CLOSE_DIALOGS, m_frames.AnyOpen() || std::ranges::any_of(OwnedWindows(), [](auto const * window) {
                                 return window->GetSafeHwnd() != nullptr;
                             }));
}
