// The list's columns, selection and input; its lines' contents are in RecordingListLines.cpp, their order and copies of
// them in RecordingListOrder.cpp.

#include "RecordingList.h"

#include <algorithm>
#include <numeric>

#include "frame/CoreLibrary.h"
#include "frame/RegisteredMessages.h"
#include "logic/Texts.h"
#include "resource.h"

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
constexpr ColumnDesign c_columns[CRecordingList::column_count] = {
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
    {Translatable(L"Comment"), LVCFMT_LEFT, L"mmmmmmm"},
    {Translatable(L"Status"), LVCFMT_LEFT, L"mmm cut off,"},
};

// The flexible columns in the order in which they get what is left over, and how far they grow before the next one gets
// anything, as a multiple of their least width. The last one takes the rest.
struct Growth
{
    CRecordingList::Column column;
    int limit;
};
constexpr Growth c_growth[] = {{CRecordingList::column_overview, 2},
                               {CRecordingList::column_comment, 2},
                               {CRecordingList::column_peak, 2},
                               {CRecordingList::column_overview, 3},
                               {CRecordingList::column_comment, 100}};

// The room that cell and header keep left and right of a text, a divider and the rounding of text widths.
constexpr int c_textRoom = 16;
constexpr int c_checkWidth = 30; // of a header's check box with its room
constexpr int c_arrowRoom = 20;  // of the arrow beside a title

constexpr wchar_t const * c_ratings[] = {Translatable(L"Not rated"), Translatable(L"Good"), Translatable(L"Usable"),
                                         Translatable(L"Rejected")};

} // namespace

BEGIN_MESSAGE_MAP(CRecordingList, CXListCtrl)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_NOTIFY_REFLECT_EX(LVN_ITEMCHANGED, &CRecordingList::OnItemChanged)
    ON_WM_KEYDOWN()
    ON_WM_CONTEXTMENU()
    ON_NOTIFY_REFLECT_EX(LVN_COLUMNCLICK, &CRecordingList::OnTitleClick)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

bool CRecordingList::CreateList(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics)
{
    EnableItemToolTipps();
    // More than one line can be selected: with LVS_SINGLESEL the arrow keys would not leave a selected line.
    constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SHOWSELALWAYS;
    if (!Create(style, CRect(), &parent, id))
    {
        return false;
    }
    SetFullRowSelect();
    SetFont(&metrics.Font(), FALSE);
    SetEmptyListText(Text(L"No recordings. Open files or a folder."));
    SetHeaderAutoCheckbox(true);
    EnableDragAndDrop();
    m_onRowsSwapped = [this](int, int) { ForgetOrder(); };
    for (int i = 0; i < static_cast<int>(std::size(c_ratings)); ++i)
    {
        GlobalComboStringsInsert(i, Text(c_ratings[i]));
    }
    CreateImages();
    CreateColumns();
    CreateMenu();
    return true;
}

void CRecordingList::CreateColumns()
{
    for (int i = 0; i < column_count; ++i)
    {
        auto const & design = c_columns[i];
        auto const * const title = Text(design.title);
        auto & least = m_least[static_cast<std::size_t>(i)];
        least = std::max(WidthOf(title), WidthOf(design.leastText));
        if (i == column_check)
        {
            least = c_checkWidth;
        }
        else if (i == column_date)
        {
            least =
                WidthOf(UserDateTimeText(CTime(2000, 12, 28, 22, 58, 48), dtf_date_time_without_seconds).GetString());
        }
        AddColumn(title, design.format, least);
    }
    m_needs = m_least;
    m_leastWidth = std::accumulate(m_least.begin(), m_least.end(), 0) + c_arrowRoom + ::GetSystemMetrics(SM_CXVSCROLL) +
                   2 * ::GetSystemMetrics(SM_CXBORDER);
    SetHeaderCheckedState(column_check, XHC_UNCHECKED);
}

/// The images of the states, which also give the lines their height.
void CRecordingList::CreateImages()
{
    constexpr int size = 20;
    VERIFY(m_images.Create(size, size, ILC_COLOR32 | ILC_MASK, 3, 0));
    for (auto const id : {IDI_STATUS_OK, IDI_STATUS_DAMAGED, IDI_STATUS_UNREADABLE})
    {
        m_images.Add(static_cast<HICON>(
            ::LoadImageW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, LR_SHARED)));
    }
    SetImageList(&m_images, LVSIL_SMALL);
}

void CRecordingList::CreateMenu()
{
    auto & menu = PopUpMenu();
    menu.AppendMenu(MF_STRING, ID_SHOW_DETAILS, Text(L"&Details...\tAlt+Enter"));
    menu.AppendMenu(MF_STRING, ID_SET_REFERENCE, Text(L"Set as &reference\tCtrl+R"));
    menu.AppendMenu(MF_STRING, ID_READ_AGAIN, Text(L"Read &again\tCtrl+F5"));
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, ID_MARK_ALL, Text(L"&Mark all\tCtrl+A"));
    menu.AppendMenu(MF_STRING, ID_MARK_NONE, Text(L"Mark &none\tCtrl+Shift+A"));
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, ID_RELOAD, Text(L"Re&load everything\tF5"));
    menu.SetDefaultItem(ID_SHOW_DETAILS);
}

int CRecordingList::WidthOf(std::wstring const & text) const
{
    return GetStringWidth(text.c_str()) + c_textRoom;
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
    if (m_fitting || m_leastWidth == 0)
    {
        return;
    }
    m_fitting = true;
    CRect client;
    GetClientRect(&client);
    auto widths = m_needs;
    widths[column_name] = m_least[column_name];
    widths[column_status] = m_least[column_status];
    if (m_sortedColumn >= 0)
    {
        auto & width = widths[static_cast<std::size_t>(m_sortedColumn)];
        width = std::max(width, WidthOf(Text(c_columns[m_sortedColumn].title)) + c_arrowRoom);
    }
    auto rest = std::max(client.Width() - std::accumulate(widths.begin(), widths.end(), 0), 0);
    auto const give = [&](Column column, int wanted) {
        auto const more = std::clamp(wanted - widths[column], 0, rest);
        widths[column] += more;
        rest -= more;
    };
    give(column_status, m_needs[column_status]);
    give(column_name, m_needs[column_name]);
    for (auto const & growth : c_growth)
    {
        give(growth.column, growth.limit * m_least[growth.column]);
    }
    for (int column = 0; column < column_count; ++column)
    {
        auto const width = widths[static_cast<std::size_t>(column)];
        if (width != GetColumnWidth(column))
        {
            // The list's own function would add room for the header, which is in these widths already.
            CListCtrl::SetColumnWidth(column, width);
        }
    }
    m_fitting = false;
}

int CRecordingList::ChosenLine() const
{
    auto const focused = GetNextItem(-1, LVNI_SELECTED | LVNI_FOCUSED);
    return LineAt(focused >= 0 ? focused : GetSelectedItem());
}

void CRecordingList::ChooseLine(int line)
{
    auto const row = PlaceOf(line);
    for (auto other = GetSelectedItem(); other >= 0; other = GetSelectedItemAfter(other))
    {
        if (other != row)
        {
            SetItemState(other, 0, LVIS_SELECTED | LVIS_FOCUSED);
        }
    }
    if (row >= 0)
    {
        SetCurSel(row, true);
    }
}

void CRecordingList::SetChecked(int row, bool checked)
{
    auto const state = GetCheckbox(row, column_check);
    auto const wanted = checked ? XLC_CHECKED : XLC_UNCHECKED;
    if ((state == XLC_CHECKED || state == XLC_UNCHECKED) && state != wanted)
    {
        SetCheckbox(row, column_check, wanted);
        SetModified(row, column_check, true);
        OnItemStateChange(row, column_check, WM_XLISTCTRL_CHECKBOX_CLICKED);
    }
}

void CRecordingList::CheckAll(bool checked)
{
    for (int row = 0; row < GetItemCount(); ++row)
    {
        SetChecked(row, checked);
    }
}

void CRecordingList::ToggleSelected()
{
    auto const checked = !IsChecked(ChosenLine());
    for (auto row = GetSelectedItem(); row >= 0; row = GetSelectedItemAfter(row))
    {
        SetChecked(row, checked);
    }
}

void CRecordingList::ShowHeaderCheck()
{
    auto const checked = CountCheckedItems(column_check, XLC_CHECKED);
    auto const unchecked = CountCheckedItems(column_check, XLC_UNCHECKED);
    auto const state = checked == 0 ? XHC_UNCHECKED : unchecked == 0 ? XHC_CHECKED : XHC_MIXED;
    if (state != GetHeaderCheckedState(column_check))
    {
        SetHeaderCheckedState(column_check, state);
    }
}

void CRecordingList::SetReference(int line)
{
    auto const row = PlaceOf(line);
    if (GetItemCheckedState(row, column_reference) == XLC_RADIO_OFF)
    {
        SetRadioButton(row, column_reference, XLC_RADIO_ON);
        SetModified(row, column_reference, true);
        OnItemStateChange(row, column_reference, WM_XLISTCTRL_CHECKBOX_CLICKED);
    }
}

void CRecordingList::ShowReference()
{
    auto const reference = GetActiveRadioItem(column_reference);
    for (int row = 0; row < GetItemCount(); ++row)
    {
        if (GetBold(row, column_name) != (row == reference))
        {
            SetBold(row, column_name, row == reference);
        }
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
    FitColumns();
}

void CRecordingList::OnSetFocus(CWnd * other)
{
    CXListCtrl::OnSetFocus(other);
    RepaintSelected();
}

void CRecordingList::OnKillFocus(CWnd * other)
{
    CXListCtrl::OnKillFocus(other);
    RepaintSelected();
}

BOOL CRecordingList::OnItemChanged(NMHDR * header, LRESULT * result)
{
    auto const & change = *reinterpret_cast<NMLISTVIEW *>(header);
    if ((change.uChanged & LVIF_STATE) != 0)
    {
        UpdateSubItem(change.iItem, column_check);
    }
    *result = 0;
    return FALSE; // the parent hears of it, too
}

/// The system's list view leaves the first two pixels of a line out when it repaints a selection.
void CRecordingList::RepaintSelected()
{
    for (auto row = GetSelectedItem(); row >= 0; row = GetSelectedItemAfter(row))
    {
        UpdateSubItem(row, column_check);
    }
}

/// Erases, besides what no cell covers, the edges that bars leave free in their cells.
BOOL CRecordingList::OnEraseBkgnd(CDC * dc)
{
    auto const result = CXListCtrl::OnEraseBkgnd(dc);
    auto const end = std::min(GetTopIndex() + GetCountPerPage() + 1, GetItemCount());
    for (auto row = GetTopIndex(); row < end; ++row)
    {
        CRect cell;
        if (GetItemProperty(row, column_peak, XLP_PROGRESS) && GetSubItemRect(row, column_peak, LVIR_BOUNDS, cell))
        {
            dc->FillSolidRect(cell.left, cell.top, 1, cell.Height(), ::GetSysColor(COLOR_WINDOW));
            dc->FillSolidRect(cell.left, cell.bottom - 1, cell.Width(), 1, ::GetSysColor(COLOR_WINDOW));
        }
    }
    return result;
}

void CRecordingList::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key == VK_SPACE && ::GetKeyState(VK_CONTROL) >= 0 && ::GetKeyState(VK_SHIFT) >= 0)
    {
        ToggleSelected();
        return;
    }
    if (key == L'C' && ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_SHIFT) >= 0 && ::GetKeyState(VK_MENU) >= 0)
    {
        CopyToClipboard(false);
        return;
    }
    CXListCtrl::OnKeyDown(key, repeat, flags);
}

void CRecordingList::OnContextMenu(CWnd * window, CPoint point)
{
    auto row = PlaceOf(ChosenLine());
    if (point == CPoint(-1, -1) && row >= 0)
    {
        // By the keyboard: the menu opens at the chosen line.
        EnsureVisible(row, FALSE);
        point = CellCentre(LineAt(row), column_name);
        ClientToScreen(&point);
    }
    else
    {
        auto client = point;
        ScreenToClient(&client);
        int column = 0;
        row = GetPointItem(client, column);
    }
    auto const readable = GetItemCheckedState(row, column_reference) != XLC_NONE;
    PopUpMenu().EnableMenuItem(ID_SET_REFERENCE, MF_BYCOMMAND | (readable ? MF_ENABLED : MF_GRAYED));
    CXListCtrl::OnContextMenu(window, point);
}
