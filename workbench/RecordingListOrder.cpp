// The order of the list's lines, and copies of them for other programs.

#include "RecordingList.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <string>
#include <utility>

#include "clipboard/Clipboard.h"

namespace
{

// The columns whose values are missing while a recording is being read, and if it cannot be.
constexpr CRecordingList::Column value_columns[] = {
    CRecordingList::column_reference, CRecordingList::column_overview, CRecordingList::column_duration,
    CRecordingList::column_channels,  CRecordingList::column_rate,     CRecordingList::column_peak,
    CRecordingList::column_rms,       CRecordingList::column_date,     CRecordingList::column_rating};

/// Whether lines are compared as words, for which the case of letters does not count.
bool HasWords(int column)
{
    return column == CRecordingList::column_name || column == CRecordingList::column_comment;
}

/// Whether lines are compared by a number that is not their cell's own: the bar of a peak has but whole percents, and
/// check, picture and choice have none.
bool HasOwnOrder(int column)
{
    return column == CRecordingList::column_reference || column == CRecordingList::column_overview ||
           column == CRecordingList::column_peak || column == CRecordingList::column_rating || HasWords(column);
}

constexpr std::size_t text_room = 256; // characters

/// Whether a column goes along into a copy.
bool IsCopied(int column)
{
    return column != CRecordingList::column_check && column != CRecordingList::column_overview;
}

} // namespace

int CRecordingList::LineAt(int row) const
{
    // A row keeps its line's number plus 1; one that does not exist gives 0.
    return GetItemData(row) - 1;
}

int CRecordingList::PlaceOf(int line) const
{
    if (line < 0 || line >= LineCount())
    {
        return -1;
    }
    auto const known = static_cast<std::size_t>(line);
    if (known >= m_places.size() || LineAt(m_places[known]) != line)
    {
        // Lines have moved since.
        m_places.assign(m_notes.size(), -1);
        for (int row = 0; row < LineCount(); ++row)
        {
            auto const other = LineAt(row);
            if (other >= 0 && other < LineCount())
            {
                m_places[static_cast<std::size_t>(other)] = row;
            }
        }
    }
    return m_places[known];
}

/// The lines are in no column's order any more.
void CRecordingList::ForgetOrder()
{
    m_sortedColumn = -1;
    SortByColumn(-1, true, true, nullptr);
    FitColumns();
    ShowHeaderCheck();
}

void CRecordingList::SortLines(Column column, bool ascending)
{
    if (column == column_check)
    {
        return;
    }
    EndEditing();
    m_sortedColumn = column;
    m_ascending = ascending;
    if (HasOwnOrder(column))
    {
        // Asked for once a row, not once a comparison.
        m_sortKeys.clear();
        auto const ranks = HasWords(column) ? RanksOfTexts(column) : std::vector<double>();
        for (int row = 0; row < LineCount(); ++row)
        {
            auto const value = ranks.empty() ? SortValue(row) : ranks[static_cast<std::size_t>(row)];
            m_sortKeys.push_back({GetItemProperty(row, column, XLP_SORT_LAST), value});
        }
    }
    SortByColumn(column, ascending, true, HasOwnOrder(column) ? &CompareInList : nullptr);
    FitColumns();
    // It goes with the marks of the other columns.
    ShowHeaderCheck();
    if (auto const chosen = ChosenRow(); chosen >= 0)
    {
        EnsureVisible(chosen, FALSE);
    }
}

/// The places that the texts of a column have among each other as the user's language orders them; the same for texts
/// that differ in the case of letters alone.
std::vector<double> CRecordingList::RanksOfTexts(int column) const
{
    auto const count = static_cast<std::size_t>(LineCount());
    std::vector<std::string> keys(count);
    std::vector<wchar_t> buffer(text_room);
    constexpr DWORD flags = LCMAP_SORTKEY | NORM_IGNORECASE;
    for (std::size_t row = 0; row < count; ++row)
    {
        auto const text = TextOf(static_cast<int>(row), column, buffer);
        auto const length = static_cast<int>(text.size());
        if (length == 0)
        {
            continue;
        }
        auto & key = keys[row];
        auto const size = ::LCMapStringW(LOCALE_USER_DEFAULT, flags, text.data(), length, nullptr, 0);
        key.resize(static_cast<std::size_t>(std::max(size, 0)));
        ::LCMapStringW(LOCALE_USER_DEFAULT, flags, text.data(), length, reinterpret_cast<wchar_t *>(key.data()), size);
    }
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::ranges::sort(order, {}, [&keys](std::size_t row) -> std::string const & { return keys[row]; });
    std::vector<double> ranks(count);
    auto rank = 0.0;
    for (std::size_t i = 1; i < count; ++i)
    {
        rank += keys[order[i]] != keys[order[i - 1]] ? 1.0 : 0.0;
        ranks[order[i]] = rank;
    }
    return ranks;
}

int CRecordingList::CompareInList(long long a, long long b, long long list)
{
    auto * const control = reinterpret_cast<CXListCtrl *>(static_cast<LONG_PTR>(list));
    return static_cast<CRecordingList *>(control)->CompareRows(static_cast<int>(a), static_cast<int>(b));
}

int CRecordingList::CompareRows(int a, int b) const
{
    auto const rows = static_cast<int>(m_sortKeys.size());
    if (a < 0 || a >= rows || b < 0 || b >= rows)
    {
        return 0;
    }
    auto const & keyA = m_sortKeys[static_cast<std::size_t>(a)];
    auto const & keyB = m_sortKeys[static_cast<std::size_t>(b)];
    if (keyA.last || keyB.last)
    {
        return static_cast<int>(keyA.last) - static_cast<int>(keyB.last);
    }
    auto const order = static_cast<int>(keyA.value > keyB.value) - static_cast<int>(keyA.value < keyB.value);
    return m_ascending ? order : -order;
}

/// What a row is sorted by in a column with an order of its own.
double CRecordingList::SortValue(int row)
{
    switch (m_sortedColumn)
    {
    case column_reference:
        return GetItemRadioOn(row, column_reference) ? 0.0 : 1.0;
    case column_peak:
        return GetRowItemDataDirect(row, column_peak)->floatValue;
    case column_rating:
        return GetComboCurSel(row, column_rating);
    default:
        // Pictures have the order in which the files were opened.
        return LineAt(row);
    }
}

void CRecordingList::SortValuesLast(int row, bool last)
{
    for (auto const column : value_columns)
    {
        // The date is known of a file that cannot be read, too.
        if (last || column != column_date)
        {
            SetItemProperty(row, column, XLP_SORT_LAST, last);
        }
    }
}

/// The list's own work comes last, for it tells the parent.
BOOL CRecordingList::OnTitleClick(NMHDR * header, LRESULT * result)
{
    auto const column = reinterpret_cast<NMLISTVIEW *>(header)->iSubItem;
    if (column >= 0 && column < column_count)
    {
        SortLines(static_cast<Column>(column), column != m_sortedColumn || !m_ascending);
    }
    if (column != column_check)
    {
        return OnColumnClick(header, result);
    }
    // The header drives its cells here alone; to follow each of them it would count them all each time.
    Batch const batch(*this);
    SetHeaderAutoCheckbox(true);
    auto const handled = OnColumnClick(header, result);
    SetHeaderAutoCheckbox(false);
    return handled;
}

BOOL CRecordingList::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result)
{
    bool const begins = message == WM_NOTIFY && reinterpret_cast<NMHDR *>(lParam)->code == LVN_BEGINDRAG;
    if (begins && IsEditing())
    {
        // A press beside an editor ends it and drags nothing: the rows would change places under it.
        EndEditing();
        if (result != nullptr)
        {
            *result = 0;
        }
        return TRUE;
    }
    auto const handled = CXListCtrl::OnChildNotify(message, wParam, lParam, result);
    if (begins)
    {
        m_draggingRow = true;
    }
    return handled;
}

// After its first drag the list would go on marking and swapping rows with every click. Here a drag ends with its drop:
// without one, mouse messages go past the list's dragging.

/// Frames the row on which a drag would drop; cells show no mark of their own.
void CRecordingList::OnPaint()
{
    CXListCtrl::OnPaint();
    auto const target = m_draggingRow ? GetNextItem(-1, LVNI_DROPHILITED) : -1;
    CRect row;
    if (target >= 0 && GetItemRect(target, &row, LVIR_BOUNDS))
    {
        CClientDC dc(this);
        CBrush brush(::GetSysColor(COLOR_HIGHLIGHT));
        dc.FrameRect(&row, &brush);
        row.DeflateRect(1, 1);
        dc.FrameRect(&row, &brush);
    }
}

void CRecordingList::OnMouseMove(UINT flags, CPoint point)
{
    if (m_draggingRow)
    {
        CXListCtrl::OnMouseMove(flags, point);
    }
    else
    {
        CListCtrl::OnMouseMove(flags, point);
    }
}

void CRecordingList::OnLButtonUp(UINT flags, CPoint point)
{
    if (std::exchange(m_draggingRow, false))
    {
        CXListCtrl::OnLButtonUp(flags, point);
    }
    else
    {
        CListCtrl::OnLButtonUp(flags, point);
    }
}

std::vector<int> CRecordingList::RowsOf(Lines lines) const
{
    std::vector<int> rows;
    if (lines == Lines::selected)
    {
        for (auto row = GetSelectedItem(); row >= 0; row = GetSelectedItemAfter(row))
        {
            rows.push_back(row);
        }
    }
    if (lines == Lines::all || (lines == Lines::selected && rows.empty()))
    {
        rows.resize(static_cast<std::size_t>(GetItemCount()));
        std::iota(rows.begin(), rows.end(), 0);
    }
    for (int row = 0; lines == Lines::marked && row < GetItemCount(); ++row)
    {
        if (IsChecked(LineAt(row)))
        {
            rows.push_back(row);
        }
    }
    return rows;
}

/// A cell's text without blanks at its ends. It lies in the buffer, which grows where it must.
std::wstring_view CRecordingList::TextOf(int row, int column, std::vector<wchar_t> & buffer) const
{
    LVITEMW item{};
    item.iSubItem = column;
    std::size_t length = 0;
    for (;;)
    {
        item.pszText = buffer.data();
        item.cchTextMax = static_cast<int>(buffer.size());
        // Asked of the list view itself: there are many of them, and nobody else knows an answer.
        length = static_cast<std::size_t>(const_cast<CRecordingList *>(this)->DefWindowProc(
            LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
        if (length + 1 < buffer.size())
        {
            break;
        }
        buffer.resize(2 * buffer.size());
    }
    std::wstring_view text(buffer.data(), length);
    constexpr auto blanks = L" \t\r\n";
    auto const first = text.find_first_not_of(blanks);
    return first == text.npos ? std::wstring_view() : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

workbench::TextTable CRecordingList::Table(Lines lines, std::set<int> const & without)
{
    EndEditing();
    return TableOf(RowsOf(lines), without);
}

workbench::TextTable CRecordingList::TableOf(std::vector<int> const & rows, std::set<int> const & without)
{
    workbench::TextTable table;
    std::vector<int> columns;
    for (int column = 0; column < column_count; ++column)
    {
        if (!IsCopied(column) || without.contains(column))
        {
            continue;
        }
        columns.push_back(column);
        wchar_t title[64] = L"";
        LVCOLUMNW native{};
        native.mask = LVCF_TEXT | LVCF_FMT;
        native.pszText = title;
        native.cchTextMax = static_cast<int>(std::size(title));
        GetColumn(column, &native);
        table.columns.push_back({title, (native.fmt & LVCFMT_JUSTIFYMASK) == LVCFMT_RIGHT});
    }
    auto const reference = PlaceOf(m_reference);
    std::vector<wchar_t> buffer(text_room);
    table.rows.reserve(rows.size());
    for (auto const row : rows)
    {
        auto & texts = table.rows.emplace_back();
        texts.reserve(columns.size());
        for (auto const column : columns)
        {
            auto const marked = column == column_reference && row == reference;
            texts.emplace_back(marked ? L"x" : TextOf(row, column, buffer));
        }
    }
    return table;
}

bool CRecordingList::CopyToClipboard(bool all)
{
    auto const rows = RowsOf(all ? Lines::all : Lines::selected);
    if (rows.empty())
    {
        return false;
    }
    auto const table = TableOf(rows, m_hidden);
    return Clipboard::HtmlToClipboard(workbench::HtmlTable(table).c_str(), workbench::PlainTable(table).c_str());
}
