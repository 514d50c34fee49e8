#include "FrameMeasuresPanel.h"

#include <afxdlgs.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "DrawingScopes.h"
#include "frame/WindowAlive.h"
#include "logic/SafeFile.h"
#include "logic/Spectrogram.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"
#include "logic/WriteTexts.h"
#include "resource.h"

using workbench::FrameTable;
using workbench::Text;
using workbench::Translatable;

namespace
{

// Lengths in dialog units.
constexpr int strip_height = 17;
constexpr int field_height = 13;
constexpr int label_width = 30;
constexpr int column_width = 74;
constexpr int words_width = 96;
constexpr int export_width = 60;
constexpr std::uintmax_t bytes_per_row = 40; // of an export, about
constexpr int part_gap = 4;
constexpr int list_height = 120; // of the columns

constexpr UINT look_interval = 50; // milliseconds from the first news until it is shown

/// Of the table's menu.
enum Command : UINT
{
    command_copy = 1,
    command_select_all,
    command_export,
    columns_of_command = 16,
    command_sort = 16, ///< this and the following ones by a column, whose number is added
    command_show = 32,
    command_left = 48,
    command_right = 64
};

struct Column
{
    wchar_t const * title;
    wchar_t const * name; ///< by which it is remembered
    wchar_t const * unit;
    int digits;
    wchar_t const * widest;
};

/// By their numbers in FrameTable.
Column const columns[] = {{Translatable(L"Time"), L"Time", L"s", 3, L"36000.000"},
                          {Translatable(L"Peak"), L"Peak", L"dBFS", 2, L"-100.00"},
                          {L"RMS", L"RMS", L"dBFS", 2, L"-100.00"},
                          {Translatable(L"Crest"), L"Crest", L"dB", 2, L"-100.00"},
                          {Translatable(L"Frequency"), L"Frequency", L"Hz", 1, L"24000.0"},
                          {Translatable(L"Centroid"), L"Centroid", L"Hz", 1, L"24000.0"}};

/// What each row is measured in, which is longer than a row.
std::wstring WindowText(std::wstring const & length)
{
    CString text;
    text.Format(Text(L"windows of %s"), length.c_str());
    return text.GetString();
}

wchar_t DecimalSign()
{
    wchar_t sign[8] = {};
    return ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, sign, static_cast<int>(std::size(sign))) > 0 ? sign[0]
                                                                                                               : L'.';
}

} // namespace

BEGIN_MESSAGE_MAP(CFrameMeasuresPanel, CPanel)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_PAINT()
    ON_WM_DESTROY()
    ON_WM_TIMER()
    ON_WM_CONTEXTMENU()
    ON_WM_SETTINGCHANGE()
    ON_EN_CHANGE(IDC_FRAME_FILTER, &CFrameMeasuresPanel::OnFilterChange)
    ON_CBN_SELCHANGE(IDC_FRAME_COLUMN, &CFrameMeasuresPanel::OnFilterChange)
    ON_BN_CLICKED(IDC_FRAME_EXPORT, &CFrameMeasuresPanel::OnExport)
    ON_MESSAGE(message_begin, &CFrameMeasuresPanel::OnBegin)
    ON_MESSAGE(message_told, &CFrameMeasuresPanel::OnTold)
END_MESSAGE_MAP()

bool CFrameMeasuresPanel::CreatePanel(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics)
{
    m_metrics = &metrics;
    constexpr DWORD control = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    constexpr DWORD label = WS_CHILD | WS_VISIBLE | SS_CENTERIMAGE | SS_NOPREFIX;
    // The table comes first, so that it has the focus of the whole.
    if (!CreatePanelWindow(L"", parent, id) ||
        !m_table.Create(control | WS_BORDER | LVS_SHOWSELALWAYS, CRect(), this, IDC_FRAME_TABLE) ||
        !m_label.Create(L"", label, CRect(), this) ||
        !m_column.Create(control | WS_VSCROLL | CBS_DROPDOWNLIST, CRect(), this, IDC_FRAME_COLUMN) ||
        !m_words.CreateEx(WS_EX_CLIENTEDGE, L"EDIT", L"", control | ES_AUTOHSCROLL, CRect(), this, IDC_FRAME_FILTER) ||
        !m_status.Create(L"", label | SS_ENDELLIPSIS, CRect(), this, IDC_FRAME_STATUS) ||
        !m_export.Create(L"", control, CRect(), this, IDC_FRAME_EXPORT))
    {
        return false;
    }
    for (CWnd * const window : std::array<CWnd *, 6>{&m_table, &m_label, &m_column, &m_words, &m_status, &m_export})
    {
        window->SetFont(&metrics.Font());
    }
    m_table.SetDpi(metrics.Resolution());
    m_table.m_onSelectionChange = [this] { OnChosen(); };
    m_table.m_onExportEnd = [this](bool whole) {
        bool const stopped = std::exchange(m_stopsExport, false);
        std::filesystem::path const file = std::exchange(m_exported, {});
        ShowStatus();
        if (!whole && !stopped)
        {
            unsigned long const error = workbench::WriteObstacle(file, m_table.RowsShown() * bytes_per_row);
            AfxMessageBox(workbench::WriteFailureText(file, error).c_str(), MB_ICONEXCLAMATION);
        }
        else if (auto const onExported = m_onExported; onExported && whole)
        {
            onExported(file);
        }
    };
    ShowTexts();
    return true;
}

void CFrameMeasuresPanel::ShowTexts()
{
    m_table.SetWindowText(Text(L"Analysis Frames")); // for programs that read the screen
    m_label.SetWindowText(Text(L"Filter:"));
    m_words.SetCueBanner(Text(L"e.g. > -20 or 100..200"), TRUE);
    int const chosen = m_column.GetCurSel();
    m_column.ResetContent();
    for (Column const & column : columns)
    {
        m_column.AddString(Text(column.title));
    }
    m_column.SetCurSel(chosen >= 0 ? chosen : static_cast<int>(FrameTable::column_peak));
    ShowColumns();
    ShowStatus();
    Arrange();
}

void CFrameMeasuresPanel::ShowColumns()
{
    CClientDC dc(&m_table);
    workbench::FontScope const font(dc, m_metrics->Font());
    std::vector<TableColumn> shown(std::size(columns));
    for (std::size_t i = 0; i < shown.size(); ++i)
    {
        TableColumn & column = shown[i];
        column.title = Text(columns[i].title);
        column.name = columns[i].name;
        column.kind = TableKind::floating;
        column.format = {NumberStyle::fixed, columns[i].digits, false, UnitPlace::header, columns[i].unit};
        // Room for the title with its mark of sorting; the table counts in pixels at 96 to the inch.
        long const title =
            dc.GetTextExtent(CString(TitleOf(column).c_str())).cx + 11 * m_metrics->AverageWidth() / 2 + 1;
        long const number = dc.GetTextExtent(CString(columns[i].widest)).cx + 3 * m_metrics->AverageWidth();
        column.width =
            ::MulDiv(std::max<int>(title, number), USER_DEFAULT_SCREEN_DPI, static_cast<int>(m_table.GetDpi())) + 1;
    }
    m_table.SetColumns(std::move(shown), L"AnalysisFrames");
    // What a filter finds depends on how numbers are shown.
    OnFilterChange();
}

int CFrameMeasuresPanel::WantedWidth() const
{
    int width = ::GetSystemMetrics(SM_CXVSCROLL) + 4 * ::GetSystemMetrics(SM_CXEDGE);
    for (int place = 0; place < static_cast<int>(m_table.ShownColumns().size()); ++place)
    {
        width += m_table.GetColumnWidth(place);
    }
    return width;
}

void CFrameMeasuresPanel::ShowRecording(std::wstring name, std::filesystem::path const & path)
{
    ShowRecording(std::move(name), [path] { return workbench::FileByteSource::Open(path); });
}

void CFrameMeasuresPanel::ShowRecording(std::wstring name, workbench::OpenBytes open)
{
    End();
    m_name = std::move(name);
    m_text.clear();
    m_cursor = 0;
    m_wantsRow = true;
    m_open = std::move(open);
    ShowStatus();
    Invalidate(); // which begins it, where the panel is seen
}

void CFrameMeasuresPanel::ShowText(std::wstring text)
{
    End();
    m_name.clear();
    m_text = std::move(text);
    ShowStatus();
}

/// Gives up what is shown.
void CFrameMeasuresPanel::End()
{
    KillTimer(look_timer);
    m_job.reset();
    *m_told = false;
    m_open = nullptr;
    m_wantsRow = false;
    if (m_source)
    {
        m_table.SetSource(nullptr);
        m_source.reset();
    }
}

/// What is hidden, or behind another tab, isn't painted: so it is measured when it is seen first.
void CFrameMeasuresPanel::OnPaint()
{
    CPaintDC const dc(this);
    if (m_open)
    {
        PostMessage(message_begin);
    }
}

LRESULT CFrameMeasuresPanel::OnBegin(WPARAM, LPARAM)
{
    if (m_open)
    {
        Begin();
    }
    return 0;
}

void CFrameMeasuresPanel::Begin()
{
    workbench::FrameMeasuresJob::Listener listener;
    listener.appended = [feed = m_table.Feed(), told = m_told, window = m_hWnd](std::size_t count) {
        feed->RowsAppended(static_cast<TableRow>(count));
        if (!told->exchange(true))
        {
            ::PostMessageW(window, message_told, 0, 0);
        }
    };
    listener.ended = [window = m_hWnd] { ::PostMessageW(window, message_told, 0, 0); };
    m_job = std::make_unique<workbench::FrameMeasuresJob>(std::exchange(m_open, nullptr), std::move(listener));
    m_source = std::make_shared<FrameTable>(m_job->Rows());
    m_table.SetSource(m_source);
    ShowStatus();
}

LRESULT CFrameMeasuresPanel::OnTold(WPARAM, LPARAM)
{
    SetTimer(look_timer, look_interval, nullptr);
    return 0;
}

void CFrameMeasuresPanel::OnTimer(UINT_PTR id)
{
    if (id == look_timer)
    {
        Look();
        return;
    }
    CPanel::OnTimer(id);
}

/// Follows what was told, and goes on looking while the table is at work.
void CFrameMeasuresPanel::Look()
{
    *m_told = false;
    if (m_job && m_job->GetResult())
    {
        m_table.UpdateNow(); // nothing more is told
    }
    if (!m_table.IsOrdering() && !m_table.IsExporting())
    {
        KillTimer(look_timer);
    }
    if (m_wantsRow)
    {
        ChooseCursorRow();
    }
    ShowStatus();
}

workbench::FrameRaster const * CFrameMeasuresPanel::Raster() const
{
    return m_source && m_source->RowCount() > 0 ? &m_job->Rows()->Raster() : nullptr;
}

void CFrameMeasuresPanel::ShowCursor(std::uint64_t frame)
{
    // A selection of several rows stays while the plots are scrolled or zoomed, and when they follow it.
    if (frame == m_cursor && !m_wantsRow)
    {
        return;
    }
    m_cursor = frame;
    m_wantsRow = true;
    ChooseCursorRow();
    if (m_wantsRow && m_source)
    {
        m_table.SetItemState(-1, 0, LVIS_SELECTED); // another row would belie the cursor
    }
}

void CFrameMeasuresPanel::ChooseCursorRow()
{
    workbench::FrameRaster const * const raster = Raster();
    if (raster == nullptr)
    {
        return;
    }
    auto const row = static_cast<TableRow>(raster->RowAt(m_cursor));
    if (row == m_table.FocusRow() && m_table.IsRowSelected(row))
    {
        m_wantsRow = false;
        return;
    }
    m_wantsRow = !m_table.GoToRow(row);
}

/// The user has chosen a row.
void CFrameMeasuresPanel::OnChosen()
{
    workbench::FrameRaster const * const raster = Raster();
    TableRow const row = m_table.FocusRow();
    if (raster == nullptr || row == no_table_row || !m_table.IsRowSelected(row))
    {
        return;
    }
    m_wantsRow = false;
    m_cursor = raster->FrameOf(row);
    auto const onFrame = m_onFrame;
    if (onFrame)
    {
        onFrame(m_cursor);
    }
}

std::wstring CFrameMeasuresPanel::StatusText() const
{
    if (!m_text.empty() || m_name.empty())
    {
        return m_text;
    }
    auto const result = m_job ? m_job->GetResult() : nullptr;
    if (result && result->problem)
    {
        return result->problem->Text();
    }
    if (m_noNumber)
    {
        // Shown by itself, as it is the reason why the filter does nothing.
        return m_noNumber->empty() ? Text(L"A number is missing.")
                                   : std::wstring(Text(L"No number:")) + L' ' + *m_noNumber;
    }
    CString text;
    if (m_table.IsExporting())
    {
        text.Format(Text(L"Exporting: %d %%"), m_table.ExportProgress() / 10);
        return text.GetString();
    }
    unsigned int const count = m_source ? m_source->RowCount() : 0;
    TableRow const shown = m_table.RowsShown();
    if (shown < count && m_words.GetSafeHwnd() != nullptr && m_words.GetWindowTextLength() > 0)
    {
        text.Format(Text(L"Frames: %s of %s"), workbench::FormatThousands(shown).c_str(),
                    workbench::FormatThousands(count).c_str());
    }
    else
    {
        text.Format(Text(L"Frames: %s"), workbench::FormatThousands(count).c_str());
    }
    auto status = std::wstring(text.GetString());
    if (!result)
    {
        text.Format(Text(L"measuring, %d %%"), m_job ? m_job->Progress() / 10 : 0);
        status += L"; " + std::wstring(text.GetString());
    }
    else if (!result->whole)
    {
        status += std::wstring(L"; ") + Text(L"the file ends early");
    }
    else if (workbench::FrameRaster const * const raster = Raster())
    {
        std::uint32_t const rate = raster->SampleRate();
        status += L"; " + WindowText(workbench::FormatStretch(workbench::SpectrogramWindow(rate), rate));
    }
    return status;
}

void CFrameMeasuresPanel::ShowStatus()
{
    CString const status(StatusText().c_str());
    CString present;
    m_status.GetWindowText(present);
    if (present != status)
    {
        m_status.SetWindowText(status);
    }
    CString const wanted(m_table.IsExporting() ? Text(L"Stop") : Text(L"Export..."));
    m_export.GetWindowText(present);
    if (present != wanted)
    {
        m_export.SetWindowText(wanted);
    }
    bool const canExport = m_table.RowsShown() > 0;
    if (canExport != (m_export.IsWindowEnabled() != FALSE))
    {
        if (!canExport && GetFocus() == &m_export)
        {
            m_table.SetFocus();
        }
        m_export.EnableWindow(canExport);
    }
}

void CFrameMeasuresPanel::OnFilterChange()
{
    CString words;
    m_words.GetWindowText(words);
    auto const column = static_cast<unsigned int>(std::max(m_column.GetCurSel(), 0));
    workbench::FrameFilter filter = workbench::ParseFrameFilter(words.GetString(), column, DecimalSign());
    m_noNumber = std::move(filter.noNumber);
    m_table.SetRowFilter(std::move(filter.rows));
    if (m_source)
    {
        m_wantsRow = true;
        SetTimer(look_timer, look_interval, nullptr);
    }
    ShowStatus();
}

/// The decimal sign may be another one.
void CFrameMeasuresPanel::OnSettingChange(UINT flags, LPCTSTR section)
{
    CPanel::OnSettingChange(flags, section);
    OnFilterChange();
}

bool CFrameMeasuresPanel::CopySelection()
{
    return GetFocus() == &m_table && (m_table.CopyRows(TableForm::text, true, true), true);
}

void CFrameMeasuresPanel::OnExport()
{
    if (m_table.IsExporting())
    {
        m_stopsExport = true;
        m_table.StopExport();
        return;
    }
    Export();
}

/// Writes the rows shown, with all the digits that are known.
void CFrameMeasuresPanel::Export()
{
    auto const name = std::filesystem::path(m_name).stem().wstring();
    CFileDialog dialog(FALSE, L"csv", name.c_str(),
                       OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_NOCHANGEDIR,
                       Text(L"CSV tables (*.csv)|*.csv||"), this);
    dialog.GetOFN().lpstrTitle = Text(L"Export Analysis Frames");
    WindowAlive const alive(*this, m_life);
    std::shared_ptr<FrameTable> const source = m_source;
    if (dialog.DoModal() != IDOK || !alive.IsAlive() || m_source != source)
    {
        return;
    }
    m_stopsExport = false;
    std::filesystem::path const file(dialog.GetPathName().GetString());
    if (m_table.ExportRows(file.wstring(), TableForm::csv, false))
    {
        m_exported = file;
        SetTimer(look_timer, look_interval, nullptr);
        ShowStatus();
    }
}

void CFrameMeasuresPanel::OnContextMenu(CWnd * window, CPoint point)
{
    if (window != &m_table)
    {
        CPanel::OnContextMenu(window, point);
        return;
    }
    BOOL const isByKey = point == CPoint(-1, -1);
    CRect place;
    m_table.GetWindowRect(&place);
    if (isByKey)
    {
        point = CPoint(place.left + m_metrics->X(part_gap), place.top + 2 * m_metrics->LineHeight());
    }
    CMenu menu;
    if (!menu.CreatePopupMenu())
    {
        return;
    }
    bool const some = m_table.RowsShown() > 0;
    long const enabled = some ? MF_ENABLED : MF_GRAYED;
    menu.AppendMenu(MF_STRING | enabled, command_copy, Text(L"&Copy\tCtrl+C"));
    menu.AppendMenu(MF_STRING | enabled, command_select_all, Text(L"Select &all\tCtrl+A"));
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING | (some && !m_table.IsExporting() ? MF_ENABLED : MF_GRAYED), command_export,
                    Text(L"&Export as CSV..."));
    AppendColumnMenus(menu);
    WindowAlive const alive(*this, m_life);
    BOOL const chosen = menu.TrackPopupMenu(TPM_RETURNCMD | TPM_RIGHTBUTTON, point.x, point.y, this);
    if (!alive.IsAlive())
    {
        return;
    }
    switch (static_cast<UINT>(chosen))
    {
    case command_copy:
        m_table.CopyRows(TableForm::text, true, true);
        break;
    case command_select_all:
        m_table.SelectAllRows();
        break;
    case command_export:
        Export();
        break;
    default:
        DoWithColumn(static_cast<UINT>(chosen));
        break;
    }
}

/// What titles offer to the mouse, for the keyboard.
void CFrameMeasuresPanel::AppendColumnMenus(CMenu & menu)
{
    std::vector<unsigned int> const shown = m_table.ShownColumns();
    std::vector<TableSortColumn> const & sorted = m_table.SortColumns();
    std::pair<UINT, wchar_t const *> const kinds[] = {{command_sort, Text(L"&Sort by")},
                                                      {command_show, Text(L"S&how columns")},
                                                      {command_left, Text(L"Move column to the &left")},
                                                      {command_right, Text(L"Move column to the &right")}};
    menu.AppendMenu(MF_SEPARATOR);
    for (auto const & [first, title] : kinds)
    {
        CMenu columnsOf;
        if (!columnsOf.CreatePopupMenu())
        {
            return;
        }
        for (UINT column = 0; column < std::size(columns); ++column)
        {
            auto const place = std::ranges::find(shown, column);
            bool const isShown = place != shown.end();
            bool const isMark = (first == command_show && isShown) ||
                                (first == command_sort && !sorted.empty() && sorted.front().column == column);
            bool const isPossible = first == command_sort   ? m_source != nullptr
                                    : first == command_show ? !isShown || shown.size() > 1
                                    : first == command_left ? isShown && place != shown.begin()
                                                            : isShown && column != shown.back();
            CString text;
            text.Format(L"&%u %s", column + 1, Text(columns[column].title));
            columnsOf.AppendMenu(MF_STRING | (isMark ? MF_CHECKED : MF_UNCHECKED) |
                                     (isPossible ? MF_ENABLED : MF_GRAYED),
                                 first + column, text);
        }
        menu.AppendMenu(MF_POPUP | MF_STRING, reinterpret_cast<UINT_PTR>(columnsOf.Detach()), title);
    }
}

void CFrameMeasuresPanel::DoWithColumn(UINT command)
{
    unsigned int const kind = command / columns_of_command * columns_of_command;
    unsigned int const column = command - kind;
    std::vector<unsigned int> const shown = m_table.ShownColumns();
    auto const place = static_cast<unsigned int>(std::ranges::find(shown, column) - shown.begin());
    switch (kind)
    {
    case command_sort: {
        std::vector<TableSortColumn> const & sorted = m_table.SortColumns();
        bool const isAscending = !sorted.empty() && sorted.front().column == column && !sorted.front().descending;
        m_table.SortBy({{column, isAscending}});
        SetTimer(look_timer, look_interval, nullptr);
        break;
    }
    case command_show:
        m_table.HideTableColumn(column, place < shown.size());
        break;
    case command_left:
        m_table.MoveTableColumn(column, place - 1);
        break;
    case command_right:
        m_table.MoveTableColumn(column, place + 1);
        break;
    default:
        break;
    }
}

/// The keys of the strip and of the table that are the window's elsewhere.
BOOL CFrameMeasuresPanel::PreTranslateMessage(MSG * message)
{
    if (message->message != WM_KEYDOWN || ::GetKeyState(VK_MENU) < 0 || m_metrics == nullptr)
    {
        return CPanel::PreTranslateMessage(message);
    }
    WPARAM const key = message->wParam;
    bool const control = ::GetKeyState(VK_CONTROL) < 0;
    if (message->hwnd == m_table.m_hWnd)
    {
        if (control && key == L'C')
        {
            CopySelection();
            return TRUE;
        }
        if (control && key == L'A')
        {
            m_table.SelectAllRows();
            return TRUE;
        }
        if (control && key == L'F')
        {
            m_words.SetFocus();
            m_words.SetSel(0, -1);
            return TRUE;
        }
        if (key == VK_ESCAPE && !control && m_table.IsOrdering())
        {
            m_table.StopOrdering();
            return TRUE;
        }
    }
    return TranslateStripKey(message) || CPanel::PreTranslateMessage(message);
}

bool CFrameMeasuresPanel::TranslateStripKey(MSG * message)
{
    bool const inWords = message->hwnd == m_words.m_hWnd;
    bool const inColumn = message->hwnd == m_column.m_hWnd;
    WPARAM const key = message->wParam;
    bool const control = ::GetKeyState(VK_CONTROL) < 0;
    if (inWords && key == VK_ESCAPE && !control && m_words.GetWindowTextLength() > 0)
    {
        m_words.SetWindowText(CString());
        return true;
    }
    if (!control && (((inWords || inColumn) && key == VK_RETURN) || (inWords && (key == VK_DOWN || key == VK_NEXT))))
    {
        m_table.SetFocus();
        return true;
    }
    if (inWords && control && key == L'A')
    {
        m_words.SetSel(0, -1);
        return true;
    }
    if (inWords && ((control && (key == L'C' || key == L'V' || key == L'X' || key == L'Z')) || key == VK_DELETE))
    {
        ::TranslateMessage(message);
        ::DispatchMessageW(message);
        return true;
    }
    return false;
}

/// In which the status of an hour is seen, while it is measured and afterwards.
int CFrameMeasuresPanel::StatusWidth()
{
    CString frames;
    frames.Format(Text(L"Frames: %s"), L"3,600,000");
    CString part;
    part.Format(Text(L"measuring, %d %%"), 100);
    CClientDC dc(this);
    workbench::FontScope const font(dc, m_metrics->Font());
    std::wstring const longest = L"23.2 ms";
    auto const window = CString(WindowText(longest).c_str());
    long const longer = std::max(dc.GetTextExtent(part).cx, dc.GetTextExtent(window).cx);
    return dc.GetTextExtent(frames + L"; ").cx + longer + m_metrics->AverageWidth();
}

/// One line above the table, or two where it is narrow.
void CFrameMeasuresPanel::Arrange()
{
    if (m_metrics == nullptr || m_export.GetSafeHwnd() == nullptr)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    int const gap = m_metrics->X(part_gap);
    int const line = m_metrics->Y(strip_height);
    int const high = m_metrics->Y(field_height);
    int const label = m_metrics->X(label_width);
    int const column = m_metrics->X(column_width);
    auto const button = std::min<int>(m_metrics->X(export_width), client.Width() / 2);
    int const whole = label + column + m_metrics->X(words_width) + StatusWidth() + button + 5 * gap;
    bool const isWide = client.Width() >= whole;
    int const top = (line - high) / 2;
    int const left = gap + label + gap;
    m_label.MoveWindow(gap, top, label, high);
    // A drop-down list's own height is its font's; the rest is its list's.
    m_column.MoveWindow(left, top, std::min<int>(column, client.Width() / 3), m_metrics->Y(list_height));
    auto const words = left + std::min<int>(column, client.Width() / 3) + gap;
    auto const wordsRight = isWide ? words + m_metrics->X(words_width) : static_cast<int>(client.right) - gap;
    m_words.MoveWindow(words, top, std::max(wordsRight - words, 0), high);
    int const second = isWide ? top : top + line;
    int const status = isWide ? wordsRight + 2 * gap : gap;
    auto const right = static_cast<int>(client.right) - gap - button;
    m_status.MoveWindow(status, second, std::max(right - gap - status, 0), high);
    m_export.MoveWindow(right, second, button, high);
    int const strip = isWide ? line : 2 * line;
    m_table.MoveWindow(0, strip, client.Width(), std::max<int>(client.Height() - strip, 0));
}

void CFrameMeasuresPanel::OnSize(UINT type, int width, int height)
{
    CPanel::OnSize(type, width, height);
    Arrange();
}

void CFrameMeasuresPanel::OnSetFocus(CWnd *)
{
    m_table.SetFocus();
}

void CFrameMeasuresPanel::OnDestroy()
{
    m_job.reset();
    m_open = nullptr;
    CPanel::OnDestroy();
}
