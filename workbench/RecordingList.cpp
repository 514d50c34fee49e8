// The list's columns, selection and input; its lines' contents are in RecordingListLines.cpp, their order and copies of
// them in RecordingListOrder.cpp.

#include "RecordingList.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

#include "frame/CoreLibrary.h"
#include "frame/RegisteredMessages.h"
#include "logic/ReadableColours.h"
#include "logic/Texts.h"
#include "resource.h"
#include "Settings.h"

namespace
{

using workbench::Text;
using workbench::Translatable;

struct ColumnDesign
{
    wchar_t const * title;
    int format;
    wchar_t const * leastText; ///< of the width that the column never goes below
};

// The date's least text is made when the columns are, as the user writes dates.
constexpr ColumnDesign column_designs[] = {
    {L"", LVCFMT_LEFT, L""},
    {Translatable(L"Name"), LVCFMT_LEFT, L"Measurement 1"},
    {Translatable(L"Ref."), LVCFMT_CENTER, L""},
    {Translatable(L"Waveform"), LVCFMT_LEFT, L"mmmmmmm"},
    {Translatable(L"Duration"), LVCFMT_RIGHT, L"10:00.000"},
    {Translatable(L"Channels"), LVCFMT_RIGHT, L"2"},
    {Translatable(L"Rate (Hz)"), LVCFMT_RIGHT, L"192000"},
    {Translatable(L"Peak (dBFS)"), LVCFMT_CENTER, L"mmmmmmm"},
    {Translatable(L"RMS (dBFS)"), LVCFMT_RIGHT, L"-100.0"},
    {Translatable(L"Date"), LVCFMT_LEFT, L""},
    {Translatable(L"Rating"), LVCFMT_LEFT, L"Not rated mm"},
    {Translatable(L"Comment"), LVCFMT_LEFT, L"mmmmmmmmmm"},
    {Translatable(L"Status"), LVCFMT_LEFT, L"mmm cut off,"},
    {Translatable(L"Crest (dB)"), LVCFMT_RIGHT, L"100.0"},
    {Translatable(L"Loudness (LUFS)"), LVCFMT_RIGHT, L"-100.0"},
    {Translatable(L"Frequency (Hz)"), LVCFMT_RIGHT, L"192000"},
    {Translatable(L"Distortion (%)"), LVCFMT_RIGHT, L"0.00100"},
};
static_assert(std::size(column_designs) == CRecordingList::column_count, "a column lacks its design");

// The flexible columns in the order in which they get what is left over, and how far they grow before the next one gets
// anything, as a multiple of their least width. The last one takes the rest.
struct Growth
{
    CRecordingList::Column column;
    int limit;
};
constexpr Growth column_growth[] = {{CRecordingList::column_comment, 2},
                                    {CRecordingList::column_overview, 2},
                                    {CRecordingList::column_peak, 2},
                                    {CRecordingList::column_overview, 3},
                                    {CRecordingList::column_comment, 100}};

// The room that cell and header keep left and right of a text, a divider and the rounding of text widths.
// Pixels of a screen of the usual resolution.
constexpr int text_room = 16;
constexpr int image_size = 20;
constexpr int check_width = 30; // of a header's check box with its room
constexpr int arrow_room = 20;  // of the arrow beside a title

// To the list itself: tell the host of changes, open a line, place the tool tip that shows.
constexpr UINT message_tell_changes = WM_APP + 1;
constexpr UINT message_tell_open = WM_APP + 2;
constexpr UINT message_place_tool_tip = WM_APP + 3;

// From this many selected rows on, the list view is kept from painting each one that a gesture changes.
constexpr UINT many_rows = 50;

// The base class's: the id of its edit, the class of its combo's window, and the timer that closes that without a
// choice.
constexpr int edit_id = 99;
constexpr wchar_t combo_class[] = L"SuperComboBox";
constexpr UINT_PTR cancel_combo_timer = 2;
constexpr int edit_room = 2; // pixels of an edit below its text

constexpr std::size_t most_value_widths = 2000; // that are remembered

constexpr UINT last_tool_id = 0xFFFF;
constexpr int tool_tip_gap = 2; // pixels

constexpr wchar_t const * rating_names[] = {Translatable(L"Not rated"), Translatable(L"Good"), Translatable(L"Usable"),
                                            Translatable(L"Rejected")};

} // namespace

BEGIN_MESSAGE_MAP(CRecordingList, CXListCtrl)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_NOTIFY_REFLECT_EX(LVN_ITEMCHANGED, &CRecordingList::OnItemChanged)
    ON_NOTIFY_REFLECT_EX(LVN_DELETEALLITEMS, &CRecordingList::OnDeleteAllItems)
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_TIMER()
    ON_WM_CONTEXTMENU()
    ON_NOTIFY_REFLECT_EX(LVN_COLUMNCLICK, &CRecordingList::OnTitleClick)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_NOTIFY_EX(HDN_BEGINTRACKW, 0, &CRecordingList::OnBeginTrack)
    ON_NOTIFY_EX(HDN_BEGINTRACKA, 0, &CRecordingList::OnBeginTrack)
    ON_NOTIFY_EX(HDN_DIVIDERDBLCLICKW, 0, &CRecordingList::OnDividerDoubleClick)
    ON_NOTIFY_EX(HDN_DIVIDERDBLCLICKA, 0, &CRecordingList::OnDividerDoubleClick)
    ON_NOTIFY_EX(HDN_ENDTRACKW, 0, &CRecordingList::OnEndTrack)
    ON_NOTIFY_EX(HDN_ENDTRACKA, 0, &CRecordingList::OnEndTrack)
    ON_NOTIFY_EX(HDN_BEGINDRAG, 0, &CRecordingList::OnBeginColumnDrag)
    ON_NOTIFY_EX(HDN_ENDDRAG, 0, &CRecordingList::OnEndColumnDrag)
    ON_NOTIFY_EX_RANGE(TTN_SHOW, 0, last_tool_id, &CRecordingList::OnToolTipShow)
    ON_MESSAGE(message_tell_changes, &CRecordingList::OnTellChanges)
    ON_MESSAGE(message_tell_open, &CRecordingList::OnTellOpen)
    ON_MESSAGE(message_place_tool_tip, &CRecordingList::OnPlaceToolTip)
END_MESSAGE_MAP()

// A stored choice of columns knows which ones it can not have known.
static_assert(workbench::Settings::first_later_column == CRecordingList::first_measure &&
                  workbench::Settings::columns == CRecordingList::column_count,
              "Settings.h counts other columns than the list has");

bool CRecordingList::CreateList(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics)
{
    m_metrics = &metrics;
    EnableItemToolTipps();
    // More than one line can be selected: with LVS_SINGLESEL the arrow keys would not leave a selected line.
    constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SHOWSELALWAYS;
    if (!Create(style, CRect(), &parent, id))
    {
        return false;
    }
    SetFullRowSelect();
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_HEADERDRAGDROP);
    SetFont(&metrics.Font(), FALSE);
    SetDpi(metrics.Resolution());
    m_stars = std::make_shared<CStarRating>(metrics.Resolution());
    m_onDoubleClick = [this](int row, int column) {
        // Cells that act on a click of their own are left to it.
        if (column != column_check && column != column_reference && column != column_rating && column != column_comment)
        {
            TellOpen(LineAt(row));
        }
    };
    SetFixedTexts();
    CreateImages();
    CreateColumns();
    CreateMenu();
    return true;
}

/// What is in no line.
void CRecordingList::SetFixedTexts()
{
    GlobalComboStringsReset();
    for (int i = 0; i < static_cast<int>(std::size(rating_names)); ++i)
    {
        GlobalComboStringsInsert(i, Text(rating_names[i]));
    }
    SetEmptyListText(Text(L"No recordings. Open files or a folder."));
}

wchar_t const * CRecordingList::Title(int column)
{
    return column >= 0 && column < column_count ? Text(column_designs[column].title) : L"";
}

wchar_t const * CRecordingList::RatingName(int rating)
{
    return rating >= 0 && rating < static_cast<int>(std::size(rating_names)) ? Text(rating_names[rating]) : L"";
}

bool CRecordingList::CanBeHidden(int column)
{
    return column > column_name && column < column_count;
}

/// The least widths in the present language.
void CRecordingList::MeasureTitles()
{
    for (int i = 0; i < column_count; ++i)
    {
        auto & least = m_least[static_cast<std::size_t>(i)];
        least = std::max(WidthOf(Title(i)), WidthOf(column_designs[i].leastText));
        if (i == column_check)
        {
            least = m_metrics->Scaled(check_width);
        }
        else if (i == column_rating)
        {
            // Their names are chosen from a list in the cell, beside its button.
            for (wchar_t const * const name : rating_names)
            {
                least = std::max(least, WidthOf(std::wstring(Text(name)) + L"mm"));
            }
        }
        else if (i == column_date)
        {
            least =
                WidthOf(UserDateTimeText(CTime(2000, 12, 28, 22, 58, 48), dtf_date_time_without_seconds).GetString());
        }
    }
    // With the columns that show at first.
    m_leastWidth = std::accumulate(m_least.begin(), m_least.begin() + first_measure, 0) +
                   m_metrics->Scaled(arrow_room) + ::GetSystemMetrics(SM_CXVSCROLL) +
                   2 * ::GetSystemMetrics(SM_CXBORDER);
}

void CRecordingList::CreateColumns()
{
    MeasureTitles();
    for (int i = 0; i < column_count; ++i)
    {
        AddColumn(Title(i), column_designs[i].format, m_least[static_cast<std::size_t>(i)]);
    }
    m_needs = m_least;
    SetHeaderCheckedState(column_check, XHC_UNCHECKED);
}

/// The images of the states, which also give the lines their height.
void CRecordingList::CreateImages()
{
    int const size = m_metrics->Scaled(image_size);
    VERIFY(m_images.Create(size, size, ILC_COLOR32 | ILC_MASK, 3, 0));
    for (int const id : {IDI_STATUS_OK, IDI_STATUS_DAMAGED, IDI_STATUS_UNREADABLE})
    {
        m_images.Add(static_cast<HICON>(
            ::LoadImageW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_SHARED)));
    }
    SetImageList(&m_images, LVSIL_SMALL);
}

void CRecordingList::ShowTexts()
{
    EndEditing();
    SetFixedTexts();
    MeasureTitles();
    for (int i = column_name; i < column_count; ++i)
    {
        LVCOLUMN column{};
        // With a text alone, its side would be the left one.
        column.mask = LVCF_TEXT | LVCF_FMT;
        column.fmt = column_designs[i].format;
        column.pszText = const_cast<wchar_t *>(Title(i));
        SetColumn(i, &column);
        auto & needed = m_needs[static_cast<std::size_t>(i)];
        needed = std::max(needed, m_least[static_cast<std::size_t>(i)]);
    }
    CreateMenu();
    RefreshLines();
    FitColumns();
}

void CRecordingList::CreateMenu()
{
    CMenu & menu = PopUpMenu();
    while (menu.GetMenuItemCount() > 0)
    {
        menu.DeleteMenu(0, MF_BYPOSITION);
    }
    menu.AppendMenu(MF_STRING, ID_SHOW_DETAILS, Text(L"&Details...\tAlt+Enter"));
    menu.AppendMenu(MF_STRING, ID_SHOW_IN_FRAME, Text(L"In a &window of its own\tCtrl+N"));
    menu.AppendMenu(MF_STRING, ID_SET_REFERENCE, Text(L"Set as &reference\tCtrl+R"));
    menu.AppendMenu(MF_STRING, ID_EDIT_COMMENT, Text(L"Edit &comment\tF2"));
    menu.AppendMenu(MF_STRING, ID_CHOOSE_RATING, Text(L"Ra&te...\tF4"));
    menu.AppendMenu(MF_STRING, ID_READ_AGAIN, Text(L"Read &again\tCtrl+F5"));
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, ID_MARK_ALL, Text(L"&Mark all\tCtrl+A"));
    menu.AppendMenu(MF_STRING, ID_MARK_NONE, Text(L"Mark &none\tCtrl+Shift+A"));
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, ID_RENAME, Text(L"R&ename...\tShift+F2"));
    menu.AppendMenu(MF_STRING, ID_DELETE_RECORDINGS, Text(L"Move to tras&h...\tDel"));
    menu.AppendMenu(MF_STRING, ID_SHOW_FILE, Text(L"&Show in file manager"));
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, ID_RELOAD, Text(L"Re&load everything\tF5"));
    menu.SetDefaultItem(ID_SHOW_DETAILS);
}

int CRecordingList::WidthOf(std::wstring const & text) const
{
    return GetStringWidth(text.c_str()) + m_metrics->Scaled(text_room);
}

/// The same of a text that many lines have, or had: it is measured once.
int CRecordingList::WidthOfValue(std::wstring const & text) const
{
    if (auto const known = m_valueWidths.find(text); known != m_valueWidths.end())
    {
        return known->second;
    }
    if (m_valueWidths.size() >= most_value_widths)
    {
        m_valueWidths.clear();
    }
    return m_valueWidths[text] = WidthOf(text);
}

namespace
{

/// Of the screen: in a picture's letters may have other widths.
CDC & Created(CDC & dc)
{
    dc.CreateIC(L"DISPLAY", nullptr, nullptr, nullptr);
    return dc;
}

} // namespace

CRecordingList::Measuring::Measuring(CFont & font) : scope(Created(dc), font) {}

/// The same of one among thousands of names, each another one: the list view takes a device context for each.
int CRecordingList::WidthOfName(std::wstring const & name)
{
    if (m_batches == 0)
    {
        return WidthOf(name);
    }
    if (!m_measuring)
    {
        m_measuring = std::make_unique<Measuring>(m_metrics->Font());
    }
    auto const length = static_cast<int>(name.size());
    return m_measuring->dc.GetTextExtent(name.c_str(), length).cx + m_metrics->Scaled(text_room);
}

void CRecordingList::Require(Column column, int width)
{
    m_needs[column] = std::max(m_needs[column], width);
}

/// Gives the columns that show values all the width that they need, then status and name what they need as far as it is
/// there, and shares the rest among the flexible ones.
void CRecordingList::FitColumns()
{
    // Changing a width can change the scroll bars and so come back here through the size message.
    // Nor does anything below an open editor.
    // While the user drags a divider, nothing else moves; a title that is being clicked has the mouse, too.
    bool const dragged = m_tracking && ::GetCapture() == GetHeaderCtrl()->GetSafeHwnd();
    if (m_fitting || m_leastWidth == 0 || m_batches > 0 || dragged || IsEditing())
    {
        return;
    }
    m_fitting = true;
    CRect client;
    GetClientRect(&client);
    m_fittedWidth = client.Width();
    std::array<int, column_count> widths = m_needs;
    widths[column_name] = m_least[column_name];
    widths[column_status] = m_least[column_status];
    if (m_sortedColumn >= 0)
    {
        auto & width = widths[static_cast<std::size_t>(m_sortedColumn)];
        width = std::max(width, WidthOf(Text(column_designs[m_sortedColumn].title)) + m_metrics->Scaled(arrow_room));
    }
    for (auto const & [column, width] : m_userWidths)
    {
        if (column < column_count)
        {
            widths[static_cast<std::size_t>(column)] = width;
        }
    }
    for (int const column : m_hidden)
    {
        widths[static_cast<std::size_t>(column)] = 0;
    }
    int rest = std::max(client.Width() - std::accumulate(widths.begin(), widths.end(), 0), 0);
    auto const give = [&](Column column, int wanted) {
        if (m_userWidths.contains(column) || IsHidden(column))
        {
            return;
        }
        int const more = std::clamp(wanted - widths[column], 0, rest);
        widths[column] += more;
        rest -= more;
    };
    give(column_status, m_needs[column_status]);
    give(column_name, m_needs[column_name]);
    for (Growth const & growth : column_growth)
    {
        give(growth.column, growth.limit * m_least[growth.column]);
    }
    if (std::accumulate(widths.begin(), widths.end(), 0) > client.Width() && !m_userWidths.contains(column_name))
    {
        // The list scrolls sideways anyway, so names that begin alike need not be cut short for the last columns.
        widths[column_name] = std::max(widths[column_name], std::min(m_needs[column_name], client.Width() / 3));
    }
    std::vector<int> changed;
    for (int column = 0; column < column_count; ++column)
    {
        if (widths[static_cast<std::size_t>(column)] != GetColumnWidth(column))
        {
            changed.push_back(column);
        }
    }
    // Each one would have the list scroll its pixels and paint the rest.
    bool const many = changed.size() > 1;
    if (many)
    {
        SetRedraw(FALSE);
    }
    for (int const column : changed)
    {
        // The list's own function would add room for the header, which is in these widths already.
        CListCtrl::SetColumnWidth(column, widths[static_cast<std::size_t>(column)]);
    }
    if (many)
    {
        SetRedraw(TRUE);
    }
    m_fitting = false;
}

int CRecordingList::ChosenRow() const
{
    int const focused = GetNextItem(-1, LVNI_SELECTED | LVNI_FOCUSED);
    return focused >= 0 ? focused : GetSelectedItem();
}

/// Selects no row, without painting each one.
void CRecordingList::ClearSelection()
{
    Batch const batch(*this);
    m_touched = true;
    SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
}

int CRecordingList::ChosenLine() const
{
    // Its row may be still to come.
    if (!m_wanted.empty() && m_holds && m_heldFocus >= 0)
    {
        auto const & source = m_sources[static_cast<std::size_t>(m_heldFocus)];
        if (source.shown && source.isHeld && !source.hasRow)
        {
            return m_heldFocus;
        }
    }
    int const row = ChosenRow();
    return row >= 0 ? LineAt(row) : -1;
}

void CRecordingList::ChooseLine(int line)
{
    if (!m_wanted.empty())
    {
        bool const isToCome = line >= 0 && line < LineCount() && m_sources[static_cast<std::size_t>(line)].shown;
        HoldLines(isToCome ? std::vector<int>{line} : std::vector<int>(), isToCome ? line : -1);
    }
    if (GetSelectedCount() > many_rows)
    {
        ClearSelection();
    }
    for (int other = GetSelectedItem(); other >= 0; other = GetSelectedItemAfter(other))
    {
        if (LineAt(other) != line)
        {
            SetItemState(other, 0, LVIS_SELECTED | LVIS_FOCUSED);
        }
    }
    int const row = PlaceOf(line);
    if (row >= 0)
    {
        SetCurSel(row, true);
    }
}

/// Marks lines or takes their marks, as a gesture of the user. It needs no rows.
void CRecordingList::SetChecked(std::vector<int> const & lines, bool checked)
{
    Batch const batch(*this);
    for (int const line : lines)
    {
        Notes const before = NotesOf(line);
        if (before.checked != checked && IsReadable(line))
        {
            Notes after = before;
            after.checked = checked;
            SetNotes(line, after);
            m_history.Note(line, before, after);
            Tell(changed_marks);
        }
    }
    ShowNotes();
}

void CRecordingList::CheckAll(bool checked)
{
    std::vector<int> lines;
    for (int line = 0; line < LineCount(); ++line)
    {
        auto const & source = m_sources[static_cast<std::size_t>(line)];
        if (source.hasRow || source.shown)
        {
            lines.push_back(line);
        }
    }
    SetChecked(lines, checked);
}

void CRecordingList::ToggleSelected()
{
    SetChecked(SelectedLines(), !IsChecked(ChosenLine()));
}

void CRecordingList::ShowHeaderCheck()
{
    if (m_batches > 0)
    {
        return;
    }
    std::size_t checked = m_totals.Checked();
    std::size_t checkable = m_totals.Lines() - m_totals.Unreadable();
    if (!Filter().LetsAllThrough())
    {
        // Of those that show.
        checked = 0;
        checkable = 0;
        for (std::size_t line = 0; line < m_sources.size(); ++line)
        {
            Source const & source = m_sources[line];
            if (source.shown && !(source.analysis && source.analysis->problem))
            {
                checked += m_totals.IsChecked(line) ? 1 : 0;
                ++checkable;
            }
        }
    }
    int const state = checked == 0 ? XHC_UNCHECKED : checked == checkable ? XHC_CHECKED : XHC_MIXED;
    if (state != GetHeaderCheckedState(column_check))
    {
        SetHeaderCheckedState(column_check, state);
    }
}

void CRecordingList::SetReference(int line)
{
    int const row = PlaceOf(line);
    ShowNewNotes(row, line);
    if (GetItemCheckedState(row, column_reference) == XLC_RADIO_OFF)
    {
        SetRadioButton(row, column_reference, XLC_RADIO_ON);
        SetModified(row, column_reference, true);
        OnItemStateChange(row, column_reference, WM_XLISTCTRL_CHECKBOX_CLICKED);
    }
}

void CRecordingList::ShowReference()
{
    if (m_boldLine == m_reference)
    {
        return;
    }
    if (m_boldLine >= 0)
    {
        if (int const former = PlaceOf(m_boldLine); former >= 0)
        {
            SetBold(former, column_name, false);
        }
    }
    m_boldLine = m_reference;
    int const row = PlaceOf(m_boldLine);
    if (row >= 0)
    {
        SetBold(row, column_name, true);
        CClientDC dc(this);
        workbench::FontScope const font(dc, m_metrics->BoldFont());
        Require(column_name, dc.GetTextExtent(GetItemText(row, column_name)).cx + m_metrics->Scaled(text_room));
        FitColumns();
    }
}

void CRecordingList::SetUserWidths(std::map<int, int> const & widths)
{
    m_userWidths = widths;
    FitColumns();
}

void CRecordingList::SetHiddenColumns(std::set<int> const & columns)
{
    EndEditing();
    m_hidden = columns;
    std::erase_if(m_hidden, [](int column) { return !CanBeHidden(column); });
    FitColumns();
}

CRecordingList::Batch::Batch(CRecordingList & list) : m_list(list)
{
    if (m_list.m_batches++ > 0)
    {
        return;
    }
    m_list.m_wasClean = m_list.GetUpdateRect(nullptr) == FALSE;
    m_list.m_touched = false;
    m_list.m_scrolledTo = m_list.ScrolledTo();
    m_list.SetRedraw(FALSE);
    m_list.SetBatchInsertMode(true);
}

CRecordingList::Batch::~Batch()
{
    if (m_list.m_batches == 1 && std::exchange(m_list.m_late, false))
    {
        m_list.ShowWantedRows();
    }
    if (--m_list.m_batches > 0)
    {
        return;
    }
    m_list.m_measuring.reset();
    m_list.SetBatchInsertMode(false);
    m_list.SetRedraw(TRUE);
    // Both have everything painted again, which is too much where only lines out of sight have changed. What has
    // scrolled meanwhile has not been moved on the screen.
    if (m_list.m_wasClean && !m_list.m_touched && m_list.ScrolledTo() == m_list.m_scrolledTo)
    {
        m_list.ValidateRect(nullptr);
    }
    m_list.ShowHeaderCheck();
    m_list.FitColumns();
    m_list.ScrollAfterFilling();
}

/// Notes that a batch changes a row.
void CRecordingList::Touch(int row)
{
    if (m_batches > 0 && !m_touched)
    {
        int const top = GetTopIndex();
        m_touched = row >= top && row <= top + GetCountPerPage();
    }
}

/// Takes the change into what is known of the lines. Parents hear of it by m_onChanged and not for each cell.
void CRecordingList::OnItemStateChange(int row, int column, unsigned int message)
{
    int const line = LineAt(row);
    if (line < 0 || line >= LineCount())
    {
        return;
    }
    if (message == WM_XLISTCTRL_LINK_CLICKED)
    {
        TellOpen(line);
        return;
    }
    auto & notes = m_notes[static_cast<std::size_t>(line)];
    workbench::RecordingNotes const before = notes;
    switch (column)
    {
    case column_check:
        Touch(row);
        // A cell that was still to be shown anew has been turned from what it was before.
        notes.checked = (m_sources[static_cast<std::size_t>(line)].newNotes & new_mark) != 0
                            ? !notes.checked
                            : GetCheckbox(row, column_check) == XLC_CHECKED;
        m_totals.SetChecked(static_cast<std::size_t>(line), notes.checked);
        m_noted.push_back(line);
        ShowHeaderCheck();
        break;
    case column_reference:
        if (GetItemRadioOn(row, column_reference))
        {
            m_reference = line;
        }
        else if (m_reference == line)
        {
            m_reference = -1;
        }
        NoteReference();
        ShowReference();
        break;
    case column_rating:
        notes.rating = std::max(GetComboCurSel(row, column_rating), 0);
        m_noted.push_back(line);
        RateSelected(row, notes.rating);
        break;
    case column_comment: {
        notes.comment = GetItemText(row, column_comment).GetString();
        m_noted.push_back(line);
        auto & source = m_sources[static_cast<std::size_t>(line)];
        source.searched = workbench::SearchedText(source.file, notes.comment);
        break;
    }
    default:
        break;
    }
    if (column != column_reference) // which is noted for all lines
    {
        m_history.Note(line, before, notes);
    }
    Tell(changed_marks);
}

/// Takes over into the notes which line is the reference, from all that were one in a list of their own.
void CRecordingList::NoteReference()
{
    for (int line = 0; line < LineCount(); ++line)
    {
        auto & notes = m_notes[static_cast<std::size_t>(line)];
        if (notes.reference != (line == m_reference))
        {
            workbench::RecordingNotes const before = notes;
            notes.reference = line == m_reference;
            m_history.Note(line, before, notes);
            m_noted.push_back(line);
        }
    }
}

std::vector<int> CRecordingList::TakeNotedLines()
{
    std::vector<int> lines = std::exchange(m_noted, {});
    std::ranges::sort(lines);
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

// The editors of the base class keep a row's number, whatever happens to the rows: before lines are sorted or go, and
// before the edited one becomes one that has none, they are closed.

HWND CRecordingList::CommentEditor() const
{
    return m_hWnd != nullptr ? ::GetDlgItem(m_hWnd, edit_id) : nullptr;
}

HWND CRecordingList::RatingCombo() const
{
    return m_ratingCombo != nullptr && ::IsWindow(m_ratingCombo) ? m_ratingCombo : nullptr;
}

void CRecordingList::EndEditing()
{
    if (CommentEditor() != nullptr)
    {
        // It takes its text when it loses the focus.
        SetFocus();
        OnXEditKillFocus(0, 0);
    }
    if (RatingCombo() != nullptr)
    {
        // As a message: called by itself, the handler would hand on whatever message is being handled, which may be the
        // main window's to close.
        SendMessage(WM_TIMER, cancel_combo_timer);
        m_ratingCombo = nullptr;
    }
}

void CRecordingList::EditComment(int line)
{
    int const row = PlaceOf(line);
    ShowNewNotes(row, line);
    XLISTCTRLDATA const * const cell = row >= 0 ? GetRowItemDataDirect(row, column_comment) : nullptr;
    if (cell == nullptr || (cell->properties & XLP_EDIT) == 0 || IsHidden(column_comment))
    {
        return;
    }
    EndEditing();
    ShowColumn(row, column_comment);
    DrawEditControl(row, column_comment);
    PlaceEditors(line);
}

void CRecordingList::ChooseRating(int line)
{
    int const row = PlaceOf(line);
    if (row >= 0 && !IsHidden(column_rating))
    {
        ShowNewNotes(row, line);
        EndEditing();
        ShowColumn(row, column_rating);
        DrawComboBoxControl(row, column_rating);
        PlaceEditors(line);
    }
}

/// Scrolls a cell into view, with as much of it as there is room for.
void CRecordingList::ShowColumn(int row, Column column)
{
    EnsureVisible(row, FALSE);
    CRect client;
    GetClientRect(&client);
    CRect cell;
    if (GetSubItemRect(row, column, LVIR_BOUNDS, cell))
    {
        long const beyond = std::max(cell.right - client.right, 0L);
        long const shift = cell.left < 0 ? cell.left : std::min(beyond, cell.left);
        if (shift != 0)
        {
            Scroll(CSize(static_cast<int>(shift), 0));
        }
    }
}

/// Makes an editor that has just been opened one that the user can go on with.
void CRecordingList::PlaceEditors(int line)
{
    if (auto * const edit = CommentEditor(); edit != nullptr)
    {
        m_editedLine = line;
        // The first click elsewhere goes there.
        if (::GetCapture() == edit)
        {
            ::ReleaseCapture();
        }
        // Its text stands at its top; it is to stand where the line's other texts do.
        CRect place;
        ::GetWindowRect(edit, &place);
        ScreenToClient(&place);
        CClientDC dc(this);
        workbench::FontScope const font(dc, m_metrics->Font());
        LONG const height = dc.GetTextExtent(L"Mg").cy;
        if (height + edit_room < place.Height())
        {
            ::SetWindowPos(edit, nullptr, place.left, place.top + (place.Height() - height) / 2, place.Width(),
                           height + edit_room, SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
    struct Search
    {
        HWND list;
        HWND found;
    };
    Search search{m_hWnd, nullptr};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto & result = *reinterpret_cast<Search *>(parameter);
            wchar_t name[32] = L"";
            ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
            if (std::wstring_view(name) == combo_class &&
                ::GetWindow(window, GW_OWNER) == ::GetAncestor(result.list, GA_ROOT))
            {
                result.found = window;
            }
            return result.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&search));
    if (search.found != nullptr && search.found != m_ratingCombo)
    {
        m_editedLine = line;
        // The list of ratings is what it was opened for; this key shows it.
        ::PostMessageW(search.found, WM_KEYDOWN, VK_F4, 1);
    }
    m_ratingCombo = search.found;
}

BOOL CRecordingList::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    // An editor would stay where it is, over another line.
    EndEditing();
    return CXListCtrl::OnMouseWheel(flags, delta, point);
}

/// Has the host told of changes once the present messages are done, all at once.
void CRecordingList::Tell(unsigned changes)
{
    if (m_changes == 0 && m_repaintLast < m_repaintFirst)
    {
        PostMessage(message_tell_changes);
    }
    m_changes |= changes;
}

/// Has a row's begin painted together with others once the present messages are done: a gesture can change all rows.
void CRecordingList::RepaintSoon(int row)
{
    if (m_repaintLast < m_repaintFirst)
    {
        Tell(0);
        m_repaintFirst = row;
        m_repaintLast = row;
    }
    // A negative one stands for all rows.
    m_repaintFirst = std::min(m_repaintFirst, row);
    m_repaintLast = std::max(m_repaintLast, row < 0 ? GetItemCount() - 1 : row);
}

LRESULT CRecordingList::OnTellChanges(WPARAM, LPARAM)
{
    m_history.EndStep();
    unsigned int const changes = std::exchange(m_changes, 0U);
    RepaintRows(std::exchange(m_repaintFirst, 0), std::exchange(m_repaintLast, -1), false);
    if (std::exchange(m_columnDragged, false))
    {
        FollowDraggedColumn();
    }
    // Only now has the header given a column the width that was told at the drag's end, and is a closed editor gone.
    FitColumns();
    // A copy, as what it does may replace it.
    if (auto const onChanged = m_onChanged; onChanged && changes != 0)
    {
        onChanged(changes);
    }
    return 0;
}

void CRecordingList::TellOpen(int line)
{
    PostMessage(message_tell_open, static_cast<WPARAM>(line), static_cast<LPARAM>(m_generation));
}

LRESULT CRecordingList::OnTellOpen(WPARAM line, LPARAM generation)
{
    // The line may be another file's by now.
    if (auto const onOpen = m_onOpen; onOpen && static_cast<unsigned>(generation) == m_generation)
    {
        onOpen(static_cast<int>(line));
    }
    return 0;
}

BOOL CRecordingList::OnBeginTrack(UINT, NMHDR * header, LRESULT * result)
{
    if (IsHidden(reinterpret_cast<NMHEADERW *>(header)->iItem))
    {
        *result = TRUE; // stays hidden
        return TRUE;
    }
    // Nothing would take an editor along.
    EndEditing();
    m_tracking = true;
    *result = 0;
    return FALSE; // the list itself needs it, too
}

BOOL CRecordingList::OnDividerDoubleClick(UINT, NMHDR * header, LRESULT * result)
{
    EndEditing();
    *result = 0;
    return IsHidden(reinterpret_cast<NMHEADERW *>(header)->iItem);
}

BOOL CRecordingList::OnEndTrack(UINT, NMHDR * header, LRESULT * result)
{
    m_tracking = false;
    auto const & track = *reinterpret_cast<NMHEADERW *>(header);
    if (track.iItem >= 0 && track.iItem < column_count && track.pitem != nullptr &&
        (track.pitem->mask & HDI_WIDTH) != 0)
    {
        m_userWidths[track.iItem] = track.pitem->cxy;
        Tell(changed_widths);
    }
    *result = 0;
    return FALSE; // the list itself needs it, too
}

BOOL CRecordingList::OnBeginColumnDrag(UINT, NMHDR * header, LRESULT * result)
{
    EndEditing(); // nothing would take an editor along
    auto const stays = IsHidden(reinterpret_cast<NMHEADERW *>(header)->iItem);
    *result = stays;
    return stays;
}

/// The order is the new one by the time that the host is told.
BOOL CRecordingList::OnEndColumnDrag(UINT, NMHDR *, LRESULT * result)
{
    m_columnDragged = true;
    Tell(changed_widths);
    *result = 0;
    return FALSE; // the list view needs it, too
}

std::vector<int> CRecordingList::ColumnOrder() const
{
    std::vector<int> order(column_count);
    std::iota(order.begin(), order.end(), 0);
    const_cast<CRecordingList *>(this)->GetColumnOrderArray(order.data(), column_count);
    return order;
}

void CRecordingList::SetColumnOrder(std::vector<int> order)
{
    std::vector<int> all(column_count);
    std::iota(all.begin(), all.end(), 0);
    KeepChecksBesideNames(order);
    if (std::ranges::is_permutation(order, all))
    {
        EndEditing();
        SetColumnOrderArray(column_count, order.data());
        Invalidate();
    }
}

/// The list's first column reaches up to its second one, wherever that stands.
void CRecordingList::KeepChecksBesideNames(std::vector<int> & order)
{
    std::erase(order, column_check);
    order.insert(std::ranges::find(order, column_name), column_check);
}

/// The user has dragged a column: what stands in other places now is painted there.
void CRecordingList::FollowDraggedColumn()
{
    std::vector<int> const order = ColumnOrder();
    std::vector<int> kept = order;
    KeepChecksBesideNames(kept);
    if (kept != order)
    {
        SetColumnOrder(kept);
    }
    Invalidate();
    GetHeaderCtrl()->Invalidate();
}

void CRecordingList::FollowColours()
{
    RefreshLines();
}

/// The tool tip tells the file's path, and at the status what is wrong with it. Other cells have none.
INT_PTR CRecordingList::OnToolHitTest(CPoint point, TOOLINFO * info) const
{
    LVHITTESTINFO hit{};
    hit.pt = point;
    const_cast<CRecordingList *>(this)->SubItemHitTest(&hit);
    return hit.iSubItem == column_name || hit.iSubItem == column_status ? CXListCtrl::OnToolHitTest(point, info) : -1;
}

/// Puts the tool tip into its own line, where it covers no other one.
void CRecordingList::PlaceToolTip(HWND tip, UINT_PTR tool)
{
    auto const row = static_cast<int>((tool - 1) >> 8);
    auto const column = static_cast<int>((tool - 1) & 0xFF);
    CRect cell;
    if (tool == 0 || !::IsWindow(tip) || !GetSubItemRect(row, column, LVIR_BOUNDS, cell))
    {
        return;
    }
    ClientToScreen(&cell);
    CRect place;
    ::GetWindowRect(tip, &place);
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    bool const toTheRight = cell.right + tool_tip_gap + place.Width() <= work.right;
    long const left = toTheRight ? cell.right + tool_tip_gap : cell.left - tool_tip_gap - place.Width();
    ::SetWindowPos(tip, nullptr, std::max(left, work.left), cell.top + (cell.Height() - place.Height()) / 2, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CRecordingList::OnToolTipShow(UINT, NMHDR * header, LRESULT * result)
{
    PlaceToolTip(header->hwndFrom, header->idFrom);
    // Not every system keeps to this place and has the size by now.
    PostMessage(message_place_tool_tip, header->idFrom, reinterpret_cast<LPARAM>(header->hwndFrom));
    *result = TRUE;
    return TRUE;
}

LRESULT CRecordingList::OnPlaceToolTip(WPARAM tool, LPARAM tip)
{
    auto const window = reinterpret_cast<HWND>(tip);
    if (::IsWindowVisible(window))
    {
        PlaceToolTip(window, tool);
    }
    return 0;
}

/// Chosen lines have colours on which the cells' marks can be told apart.
void CRecordingList::GetDrawColors(int row, int column, COLORREF & text, COLORREF & background)
{
    COLORREF chosenText = CLR_INVALID;
    COLORREF chosenBackground = CLR_INVALID;
    CXListCtrl::GetDrawColors(row, column, chosenText, chosenBackground);
    if (chosenBackground != CLR_INVALID && m_colours.adapts)
    {
        text = chosenText;
        background = chosenBackground;
    }
    else if (chosenBackground != CLR_INVALID)
    {
        workbench::RowColours const colours =
            workbench::ChosenRowColours(chosenBackground, ::GetSysColor(COLOR_WINDOW));
        text = colours.text;
        background = colours.background;
    }
}

CPoint CRecordingList::CellCentre(int line, Column column)
{
    CRect rect;
    GetSubItemRect(PlaceOf(line), column, LVIR_BOUNDS, rect);
    return rect.CenterPoint();
}

void CRecordingList::OnSize(UINT type, int width, int height)
{
    CXListCtrl::OnSize(type, width, height);
    // The height alone, as the horizontal scroll bar takes of it, changes no column.
    if (width != m_fittedWidth)
    {
        FitColumns();
    }
}

void CRecordingList::OnSetFocus(CWnd * other)
{
    CXListCtrl::OnSetFocus(other);
    RepaintRows(0, GetItemCount() - 1, true);
    Tell(0);
}

void CRecordingList::OnKillFocus(CWnd * other)
{
    CXListCtrl::OnKillFocus(other);
    RepaintRows(0, GetItemCount() - 1, true);
}

BOOL CRecordingList::OnItemChanged(NMHDR * header, LRESULT * result)
{
    auto const & change = *reinterpret_cast<NMLISTVIEW *>(header);
    if ((change.uChanged & LVIF_STATE) != 0)
    {
        RepaintSoon(change.iItem);
        if (((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0)
        {
            Tell(changed_selection);
            m_holds = m_holds && m_filling;
        }
    }
    *result = 0;
    return FALSE; // the parent hears of it, too
}

/// Nobody needs to hear of each row that goes.
BOOL CRecordingList::OnDeleteAllItems(NMHDR *, LRESULT * result)
{
    *result = TRUE;
    return TRUE;
}

/// Has the begin of rows painted, as far as they are in sight: the system's list view leaves the first two pixels of a
/// line out when it repaints a selection.
void CRecordingList::RepaintRows(int first, int last, bool selectedOnly)
{
    if (first > last)
    {
        return;
    }
    int const top = GetTopIndex();
    int const end = std::min(last, top + GetCountPerPage());
    for (int row = std::max(first, top); row <= end; ++row)
    {
        if (!selectedOnly || GetItemState(row, LVIS_SELECTED) != 0)
        {
            UpdateSubItem(row, column_check);
        }
    }
}

/// Erases, besides what no cell covers, the edges that bars leave free in their cells.
BOOL CRecordingList::OnEraseBkgnd(CDC * dc)
{
    m_colours = control_colors::Of(m_hWnd);
    BOOL const result = CXListCtrl::OnEraseBkgnd(dc);
    int const end = std::min(GetTopIndex() + GetCountPerPage() + 1, GetItemCount());
    for (int row = GetTopIndex(); row < end; ++row)
    {
        CRect cell;
        if (GetItemProperty(row, column_peak, XLP_PROGRESS) && GetSubItemRect(row, column_peak, LVIR_BOUNDS, cell))
        {
            dc->FillSolidRect(cell.left, cell.top, 1, cell.Height(), m_colours.window);
            dc->FillSolidRect(cell.left, cell.bottom - 1, cell.Width(), 1, m_colours.window);
        }
    }
    return result;
}

void CRecordingList::OnLButtonDown(UINT flags, CPoint point)
{
    // The list view would do the same, row by row.
    if ((flags & (MK_CONTROL | MK_SHIFT)) == 0 && GetSelectedCount() > many_rows)
    {
        int column = 0;
        int const row = GetPointItem(point, column);
        if (row >= 0 && GetItemState(row, LVIS_SELECTED) == 0)
        {
            ClearSelection();
        }
    }
    if ((flags & MK_SHIFT) != 0)
    {
        SelectRangeTo(point, (flags & MK_CONTROL) != 0);
    }
    int column = 0;
    int const line = LineAt(GetPointItem(point, column));
    unsigned int const generation = m_generation;
    m_dragsNothing = false;
    // One that stays open would lose its text to the next one.
    EndEditing();
    ShowNewNotes(PlaceOf(line), line);
    CXListCtrl::OnLButtonDown(flags, point);
    if (generation == m_generation)
    {
        PlaceEditors(line);
    }
}

/// Selects all from where a range begins to a point's row before the list view does, which would paint each one.
void CRecordingList::SelectRangeTo(CPoint point, bool othersStay)
{
    int column = 0;
    int const row = GetPointItem(point, column);
    int const mark = GetSelectionMark();
    int const rows = GetItemCount();
    if (row < 0 || mark < 0 || mark >= rows || static_cast<UINT>(std::abs(row - mark)) <= many_rows)
    {
        return;
    }
    std::vector<bool> isMeant(static_cast<std::size_t>(rows));
    auto const begin = isMeant.begin() + std::min(row, mark);
    std::fill(begin, begin + std::abs(row - mark) + 1, true);
    SelectRows(isMeant, othersStay);
}

void CRecordingList::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key == VK_SPACE && !IsTyping() && ::GetKeyState(VK_CONTROL) >= 0 && ::GetKeyState(VK_SHIFT) >= 0)
    {
        ToggleSelected();
        return;
    }
    if (key == VK_DELETE)
    {
        if (auto const onDelete = m_onDelete; onDelete && GetSelectedCount() > 0)
        {
            onDelete();
        }
        return;
    }
    if (key == L'C' && ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_SHIFT) >= 0 && ::GetKeyState(VK_MENU) >= 0)
    {
        CopyToClipboard(false);
        return;
    }
    bool const selectsRange = ::GetKeyState(VK_SHIFT) < 0 && (key == VK_HOME || key == VK_END);
    if (selectsRange || GetSelectedCount() > many_rows)
    {
        Batch const batch(*this);
        m_touched = true;
        CXListCtrl::OnKeyDown(key, repeat, flags);
        return;
    }
    CXListCtrl::OnKeyDown(key, repeat, flags);
}

void CRecordingList::OnContextMenu(CWnd * window, CPoint point)
{
    CRect titles;
    GetHeaderCtrl()->GetWindowRect(&titles);
    if (window == GetHeaderCtrl() || titles.PtInRect(point))
    {
        if (auto const onColumns = m_onColumns)
        {
            onColumns(point);
        }
        return;
    }
    int row = PlaceOf(ChosenLine());
    if (point == CPoint(-1, -1) && row >= 0)
    {
        // By the keyboard: the menu opens at the chosen line.
        EnsureVisible(row, FALSE);
        // Where the list is scrolled to the right, the name is not in sight.
        CRect client;
        GetClientRect(&client);
        point = CellCentre(LineAt(row), column_name);
        point.x = std::clamp<int>(point.x, 0, std::max<int>(client.right - 1, 0));
        ClientToScreen(&point);
    }
    else
    {
        CPoint client = point;
        ScreenToClient(&client);
        int column = 0;
        row = GetPointItem(client, column);
    }
    // While the menu shows, lines can move and go.
    m_menuLine = LineAt(row);
    m_menuGeneration = m_generation;
    bool const readable = GetItemCheckedState(row, column_reference) != XLC_NONE;
    auto const enable = [this](UINT id, bool enabled) {
        PopUpMenu().EnableMenuItem(id, MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
    };
    enable(ID_SET_REFERENCE, readable);
    enable(ID_EDIT_COMMENT, readable && !IsHidden(column_comment));
    enable(ID_CHOOSE_RATING, readable && !IsHidden(column_rating));
    CXListCtrl::OnContextMenu(window, point);
}
