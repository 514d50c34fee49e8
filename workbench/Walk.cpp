#include "Walk.h"

#include <cwctype>
#include <fstream>
#include <system_error>

#include "logic/Texts.h"
#include "MainWindow.h"
#include "resource.h"
#include "windows/StandaloneFrameMigrationHelper.h"

namespace
{

constexpr ULONGLONG step_limit = 10'000; // milliseconds that the script has for a picture
constexpr ULONGLONG read_limit = 60'000; // milliseconds that reading the recordings may take
constexpr DWORD poll_interval = 20;      // milliseconds
constexpr int most_checked = 3;
constexpr int cursor_percent = 25;
constexpr ULONGLONG settle_time = 300; // milliseconds for painting to reach the screen

/// Handles messages until the condition holds. False after the time limit, or when the program is told to quit.
bool PumpUntil(std::function<bool()> const & holds, ULONGLONG limit)
{
    std::size_t const end = ::GetTickCount64() + limit;
    while (!holds())
    {
        if (::GetTickCount64() >= end)
        {
            return false;
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, poll_interval, QS_ALLINPUT);
        MSG message;
        // Taken at once: one that was only seen may be gone when the program's own loop asks, which would wait.
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        {
            if (message.message == WM_QUIT)
            {
                ::PostQuitMessage(static_cast<int>(message.wParam));
                return false;
            }
            if (!AfxGetApp()->PreTranslateMessage(&message))
            {
                ::TranslateMessage(&message);
                ::DispatchMessageW(&message);
            }
        }
    }
    return true;
}

void Settle()
{
    std::size_t const end = ::GetTickCount64() + settle_time;
    PumpUntil([end] { return ::GetTickCount64() >= end; }, 2 * settle_time);
}

} // namespace

CWalk::CWalk(CMainWindow & window, std::filesystem::path folder) : m_window(window), m_folder(std::move(folder))
{
    std::error_code error;
    std::filesystem::create_directories(m_folder, error);
    for (int step = 1;; ++step)
    {
        auto const name = "step-" + std::to_string(step);
        bool const ready = std::filesystem::remove(m_folder / (name + ".ready"), error);
        bool const done = std::filesystem::remove(m_folder / (name + ".done"), error);
        if (!ready && !done)
        {
            break;
        }
    }
    std::filesystem::remove(m_folder / "places.txt", error);
}

bool CWalk::WaitForRecordings()
{
    return PumpUntil(
        [this] {
            bool const measures = m_window.ShowsPane(CMainWindow::part_frame_measures);
            return !m_window.IsBusy() && !m_window.IsComputing() && !m_window.Folders().IsBusy() &&
                   !(measures && m_window.FrameMeasures().IsFilling());
        },
        read_limit);
}

bool CWalk::Resize(int left, int top, int width, int height)
{
    return m_window.SetWindowPos(nullptr, left, top, width, height, SWP_NOZORDER) != FALSE;
}

/// Announces the next step to the script. False if a marker could not be written.
bool CWalk::WriteReady(char const * picture)
{
    CRect place;
    m_window.GetWindowRect(&place);
    std::ofstream(m_folder / "places.txt", std::ios::app | std::ios::binary)
        << picture << ' ' << place.left << ' ' << place.top << ' ' << place.right << ' ' << place.bottom << '\n';

    // The marker appears under its name only when it is complete.
    auto const name = "step-" + std::to_string(++m_step);
    std::filesystem::path const draft = m_folder / (name + ".writing");
    std::error_code error;
    if (!(std::ofstream(draft, std::ios::binary) << picture << '\n'))
    {
        return false;
    }
    std::filesystem::rename(draft, m_folder / (name + ".ready"), error);
    return !error;
}

/// Whether the script has taken the present step's picture.
bool CWalk::IsDone() const
{
    std::error_code ignored;
    return std::filesystem::exists(m_folder / ("step-" + std::to_string(m_step) + ".done"), ignored);
}

bool CWalk::Step(char const * picture)
{
    Settle();
    return WaitForRecordings() && ::IsWindow(m_window.GetSafeHwnd()) && WriteReady(picture) &&
           PumpUntil([this] { return IsDone(); }, step_limit);
}

/// Takes the step while `enter` runs, which has a message loop of its own, as menus and modal dialogs have. In that
/// loop timers run; one of them takes the step and calls `leave`, which is to end the loop.
bool CWalk::StepInside(char const * picture, std::function<void()> const & enter, std::function<void()> const & leave)
{
    enum class Phase
    {
        opening,
        waiting,
        failed,
        done
    };
    struct Visit
    {
        CWalk & walk;
        char const * picture;
        std::function<void()> const & leave;
        Phase phase;
        ULONGLONG end;
    };
    static Visit * visit;
    Visit present{*this, picture, leave, Phase::opening, ::GetTickCount64() + settle_time};
    visit = &present;

    auto const timer = ::SetTimer(nullptr, 0, poll_interval, [](HWND, UINT, UINT_PTR timerId, DWORD) {
        bool const late = ::GetTickCount64() >= visit->end;
        if (visit->phase == Phase::opening && late)
        {
            visit->phase = visit->walk.WriteReady(visit->picture) ? Phase::waiting : Phase::failed;
            visit->end = ::GetTickCount64() + step_limit;
        }
        else if (visit->phase == Phase::waiting && (late || visit->walk.IsDone()))
        {
            visit->phase = late ? Phase::failed : Phase::done;
        }
        if (visit->phase == Phase::failed || visit->phase == Phase::done)
        {
            ::KillTimer(nullptr, timerId);
            visit->leave();
        }
    });
    enter();
    ::KillTimer(nullptr, timer);
    visit = nullptr;
    return present.phase == Phase::done;
}

/// Opens a window's context menu at a point of its client area, and takes the step in it.
bool CWalk::StepInMenu(char const * picture, CWnd & window, CPoint point)
{
    window.ClientToScreen(&point);
    return StepInside(
        picture,
        [&window, point] {
            window.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.m_hWnd), MAKELPARAM(point.x, point.y));
        },
        [&window] { window.SendMessage(WM_CANCELMODE); });
}

/// Opens a menu of the main window's bar as its mnemonic does, and takes the step in it.
bool CWalk::StepInMainMenu(char const * picture, int position)
{
    CString text;
    m_window.GetMenu()->GetMenuString(static_cast<UINT>(position), text, MF_BYPOSITION);
    wchar_t const key = text[text.Find(L'&') + 1];
    m_window.SetActiveWindow();
    return StepInside(
        picture,
        [this, key] { m_window.SendMessage(WM_SYSCOMMAND, SC_KEYMENU, static_cast<LPARAM>(std::towlower(key))); },
        [this] { m_window.SendMessage(WM_CANCELMODE); });
}

/// Opens a modal dialog by a command of the main window, and takes the step in it.
bool CWalk::StepInDialog(char const * picture, UINT command, std::function<void(CWnd &)> const & leave)
{
    return StepInside(
        picture, [this, command] { m_window.SendMessage(WM_COMMAND, command); },
        [this, &leave] {
            auto * const dialog = CWnd::GetActiveWindow();
            if (dialog != nullptr && dialog != &m_window)
            {
                leave(*dialog);
            }
        });
}

/// Shows each page of the settings, and the first one in a larger sheet.
bool CWalk::ShowSettingsPages(std::function<std::string(char const *)> const & name)
{
    if (!m_window.ShowSettings())
    {
        return false;
    }
    CSettingsSheet & sheet = m_window.SettingsSheet();
    for (char const * const picture :
         {"workbench-settings", "workbench-settings-waveform", "workbench-settings-spectrogram",
          "workbench-settings-list", "workbench-settings-dialogs"})
    {
        if (!Step(name(picture).c_str()))
        {
            return false;
        }
        sheet.SetActivePage((sheet.GetActiveIndex() + 1) % sheet.GetPageCount());
    }
    CRect place;
    sheet.GetWindowRect(&place);
    sheet.SetWindowPos(nullptr, 0, 0, place.Width() * 3 / 2, place.Height() * 5 / 4, SWP_NOMOVE | SWP_NOZORDER);
    bool const shown = Step(name("workbench-settings-large").c_str());
    sheet.SetWindowPos(nullptr, 0, 0, place.Width(), place.Height(), SWP_NOMOVE | SWP_NOZORDER);
    return shown;
}

/// Shows the chosen recording in a frame of its own, and four of them in a grid.
bool CWalk::GoThroughFrames(std::string const & suffix)
{
    auto const name = [&suffix](char const * picture) { return picture + suffix; };
    auto const windowMenu = static_cast<int>(m_window.GetMenu()->GetMenuItemCount()) - 2; // before the help
    bool const shown = m_window.ShowInFrame(m_window.List().ChosenLine()) && Step(name("workbench-frame").c_str()) &&
                       m_window.CompareFour() && Step(name("workbench-grid").c_str());
    if (!shown)
    {
        return false;
    }
    m_window.SendMessage(WM_COMMAND, ID_WINDOW_TILE_HORZ);
    bool const tiled = StepInMainMenu(name("workbench-frames-tiled").c_str(), windowMenu);
    m_window.CloseDialogs();
    return tiled && !m_window.Frames().AnyOpen();
}

/// Shows panes in tabs and afloat, and puts them back.
bool CWalk::GoThroughPanes(std::string const & suffix)
{
    m_window.ShowPane(CMainWindow::part_frame_measures, true);
    if (!Step(("workbench-analysis-frames" + suffix).c_str()) || m_window.FrameMeasures().Table().RowsShown() == 0)
    {
        return false;
    }
    m_window.ShowPane(CMainWindow::part_frame_measures, false);
    CRect window;
    m_window.GetWindowRect(&window);
    CDockableViewPane & waveform = m_window.Pane(CMainWindow::part_waveform);
    CDockableViewPane & measures = m_window.Pane(CMainWindow::part_measures);
    waveform.FloatPane(CRect(CPoint(window.right - 520, window.top + 120), CSize(460, 300)));
    measures.AttachToTabWnd(&m_window.Pane(CMainWindow::part_spectrogram), DM_SHOW, FALSE);
    CStandaloneFrameMigrationHelper::BringWindowToTop(nullptr, &waveform);
    bool const shown = Step(("workbench-panes" + suffix).c_str());
    m_window.ResetLayout();
    return shown && waveform.IsDocked() && !measures.IsTabbed();
}

/// Shows every dialog once; the suffix tells the pictures of one language from those of another.
bool CWalk::GoThroughDialogs(std::string const & suffix)
{
    auto const name = [&suffix](char const * picture) { return picture + suffix; };
    auto const cancel = [](CWnd & dialog) { dialog.PostMessage(WM_COMMAND, IDCANCEL); };
    auto const windowMenu = static_cast<int>(m_window.GetMenu()->GetMenuItemCount()) - 2; // before the help
    UINT const items = m_window.GetMenu()->GetSubMenu(windowMenu)->GetMenuItemCount();
    if (!m_window.ShowDetails(0) || !Step(name("workbench-details").c_str()) ||
        !StepInMenu(name("workbench-details-menu").c_str(), m_window.Details(), CPoint(180, 60)))
    {
        return false;
    }
    if (!ShowSettingsPages(name))
    {
        return false;
    }
    if (!StepInMainMenu(name("workbench-window-menu").c_str(), windowMenu))
    {
        return false;
    }
    // By now the menu's picture has given the dialogs, which are not active, time to fade.
    BYTE alpha = 0;
    if (!::GetLayeredWindowAttributes(m_window.Details().m_hWnd, nullptr, &alpha, nullptr) ||
        alpha != workbench::Settings().InactiveAlpha())
    {
        return false;
    }
    m_window.CloseDialogs();
    if (!m_window.ShowPreview() || !Step(name("workbench-preview").c_str()))
    {
        return false;
    }
    m_window.CloseDialogs();
    // With the last dialog its item and the separator above it go.
    if (m_window.GetMenu()->GetSubMenu(windowMenu)->GetMenuItemCount() != items)
    {
        return false;
    }
    return GoThroughFrames(suffix) && GoThroughPanes(suffix) &&
           StepInDialog(name("workbench-language").c_str(), ID_CHOOSE_LANGUAGE, cancel) &&
           StepInDialog(name("workbench-folder").c_str(), ID_OPEN_FOLDER, cancel) &&
           StepInDialog(name("workbench-columns").c_str(), ID_CHOOSE_COLUMNS, cancel) &&
           StepInDialog(name("workbench-export").c_str(), ID_EXPORT_LIST, cancel);
}

/// Chooses a language in the language chooser, as a user would.
bool CWalk::ChangeLanguage(wchar_t const * name)
{
    return StepInDialog("workbench-language-chosen", ID_CHOOSE_LANGUAGE, [name](CWnd & dialog) {
        auto * const list = CWnd::FromHandle(::FindWindowExW(dialog.m_hWnd, nullptr, L"ComboBox", nullptr));
        if (list != nullptr)
        {
            list->SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name));
        }
        dialog.PostMessage(WM_COMMAND, IDOK);
    });
}

/// All but English, which was the first; German stays.
bool CWalk::GoThroughLanguages()
{
    for (std::size_t language = workbench::language_count - 1; language > 0; --language)
    {
        workbench::LanguageFacts const & facts = workbench::language_facts[language];
        if (!ChangeLanguage(facts.name) || !GoThroughDialogs('-' + std::to_string(facts.id)))
        {
            return false;
        }
    }
    return true;
}

void CWalk::Click(int line, int column)
{
    CRecordingList & list = m_window.List();
    list.EnsureVisible(list.PlaceOf(line), FALSE);
    CPoint const point = list.CellCentre(line, static_cast<CRecordingList::Column>(column));
    LPARAM const where = MAKELPARAM(point.x, point.y);
    list.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
    list.PostMessage(WM_LBUTTONUP, 0, where);
    Settle();
}

/// Checks some recordings and makes the first other one the reference, as a user would with the mouse.
bool CWalk::CheckSome()
{
    CRecordingList & list = m_window.List();
    int checked = 0;
    for (int line = 0; line < m_window.RecordingCount() && checked < most_checked; line += 2)
    {
        if (list.GetCheckbox(line, CRecordingList::column_check) == XLC_UNCHECKED)
        {
            Click(line, CRecordingList::column_check);
            if (!list.IsChecked(line))
            {
                return false;
            }
            ++checked;
        }
    }
    for (int line = 0; line < m_window.RecordingCount(); ++line)
    {
        if (list.GetCheckbox(line, CRecordingList::column_check) == XLC_UNCHECKED)
        {
            Click(line, CRecordingList::column_reference);
            return list.ReferenceLine() == line && m_window.ChooseRecording((line + 1) % m_window.RecordingCount());
        }
    }
    return true;
}

/// Sorts by the peak level, the loudest first, as a click on the title does that shows the arrow already.
bool CWalk::SortByPeak()
{
    CRecordingList & list = m_window.List();
    CHeaderCtrl & header = *list.GetHeaderCtrl();
    CRect title;
    header.GetItemRect(CRecordingList::column_peak, &title);
    CPoint const point = title.CenterPoint();
    for (int click = 0; click < 2; ++click)
    {
        header.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        header.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        Settle();
    }
    bool const sorted = Step("workbench-sorted");
    list.SortLines(CRecordingList::column_name, true);
    return sorted;
}

/// Copies lines and spectrogram, of which the clipboard then has every form.
bool CWalk::CopyEverything()
{
    m_window.SendMessage(WM_COMMAND, ID_COPY_ALL);
    UINT const html = ::RegisterClipboardFormatW(L"HTML Format");
    if (!::IsClipboardFormatAvailable(CF_UNICODETEXT) || !::IsClipboardFormatAvailable(html))
    {
        return false;
    }
    m_window.SendMessage(WM_COMMAND, ID_COPY_SPECTROGRAM);
    return ::IsClipboardFormatAvailable(CF_ENHMETAFILE) != FALSE;
}

bool CWalk::Run()
{
    if (!WaitForRecordings() || !Step("workbench-initial"))
    {
        return false;
    }
    m_window.ShowFolders(true);
    if (m_window.ChooseRecording(m_window.RecordingCount() / 2))
    {
        m_window.MoveCursorToPart(cursor_percent);
        if (!Step("workbench-chosen"))
        {
            return false;
        }
    }
    if (m_window.RecordingCount() > 1 && !(SortByPeak() && CopyEverything()))
    {
        return false;
    }
    if (m_window.ChooseRecording(m_window.FirstDamagedRecording()) && !Step("workbench-damaged"))
    {
        return false;
    }
    if (m_window.RecordingCount() > 0 &&
        !(CheckSome() && Step("workbench-checked") &&
          StepInMenu("workbench-menu", m_window.List(),
                     m_window.List().CellCentre(m_window.RecordingCount() / 3, CRecordingList::column_overview)) &&
          StepInMainMenu("workbench-main-menu", 1) && GoThroughDialogs("") && GoThroughLanguages()))
    {
        return false;
    }
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    if (!Resize(work.left, work.top, work.Width(), work.Height()) || !Step("workbench-large"))
    {
        return false;
    }
    // The window's least size is larger than this and is what comes out.
    if (!Resize(work.left + 60, work.top + 50, 100, 100) || !Step("workbench-least"))
    {
        return false;
    }
    // A place that the next start can be told by.
    return Resize(work.left + 30, work.top + 110, work.Width() * 95 / 100, work.Height() * 6 / 10) &&
           Step("workbench-before-restart");
}

bool CWalk::RunAfterRestart()
{
    return WaitForRecordings() && Step("workbench-after-restart");
}
