// CXListCtrl: sorting. The order is found first, from the rows as they stand; then the native list moves its items once,
// by the places found. Its own sort by index is not used: some systems ask for rows by index while items are moving.

#include "list/XListCtrl.h"

#include "list/XListSort.h"

#include <algorithm>
#include <cwchar>

namespace
{
/// The texts that a column shows, each read when it is first compared.
class ColumnTexts
{
public:
    ColumnTexts(CListCtrl const & list, int col, std::size_t rows)
        : m_list(list),
          m_col(col),
          m_begins(rows, unread),
          m_buffer(first_size)
    {
    }

    /// As CString compares.
    int Compare(int a, int b)
    {
        std::size_t const first = BeginOf(a);
        std::size_t const second = BeginOf(b);
        return std::wcscmp(&m_texts[first], &m_texts[second]);
    }

private:
    static constexpr std::size_t unread = static_cast<std::size_t>(-1);
    static constexpr std::size_t first_size = 256;

    std::size_t BeginOf(int row)
    {
        std::size_t & begin = m_begins[static_cast<std::size_t>(row)];
        if (begin == unread)
        {
            std::size_t const length = Read(row);
            begin = m_texts.size();
            m_texts.insert(m_texts.end(), m_buffer.begin(), m_buffer.begin() + static_cast<std::ptrdiff_t>(length));
            m_texts.push_back(L'\0');
        }
        return begin;
    }

    /// Reads the text into the buffer; its length.
    std::size_t Read(int row)
    {
        for (;;)
        {
            int const size = static_cast<int>(m_buffer.size());
            m_buffer[0] = L'\0';
            int const length = m_list.GetItemText(row, m_col, m_buffer.data(), size);
            if (length < size - 1)
                return length > 0 ? static_cast<std::size_t>(length) : 0;
            m_buffer.resize(2 * m_buffer.size());
        }
    }

    CListCtrl const & m_list;
    int m_col;
    std::vector<std::size_t> m_begins;
    std::vector<wchar_t> m_buffer;
    std::vector<wchar_t> m_texts;
};

int CALLBACK ComparePlaces(LPARAM first, LPARAM second, LPARAM)
{
    return reinterpret_cast<XLISTCTRLROW const *>(first)->sortPlace() -
           reinterpret_cast<XLISTCTRLROW const *>(second)->sortPlace();
}
} // namespace

void CXListCtrl::SortByColumn(int col, bool ascending, bool setMark, int (*compare)(long long, long long, long long))
{
    if (col < 0 && setMark)
        SetHeaderRemoveAllMarks();
    if (col < 0 || col >= m_columnCount)
        return;
    m_sortColumn = col;
    m_sortAscending = ascending;
    HWND const self = m_hWnd;
    if (compare == nullptr)
    {
        std::vector<XLISTCTRLROW *> rows = AllRows();
        std::vector<int> const order = DefaultOrder(rows);
        ApplyOrder(order, rows);
    }
    else
    {
        auto const list = static_cast<long long>(reinterpret_cast<LONG_PTR>(this));
        std::vector<int> const order =
            SortedOrder(RowCount(), [compare, list](int a, int b) { return compare(a, b, list); });
        std::vector<XLISTCTRLROW *> rows = AllRows();
        ApplyOrder(order, rows);
    }
    if (!setMark || !::IsWindow(self))
        return;
    SetHeaderRemoveAllMarks();
    SetHeaderCheckedState(col, ascending ? XHC_SORT_ASCENDING : XHC_SORT_DESCENDING);
}

std::vector<XLISTCTRLROW *> CXListCtrl::AllRows() const
{
    std::vector<XLISTCTRLROW *> rows(static_cast<std::size_t>(RowCount()));
    int row = 0;
    for (XLISTCTRLROW *& object : rows)
        object = RowOf(row++);
    return rows;
}

std::vector<int> CXListCtrl::DefaultOrder(std::vector<XLISTCTRLROW *> const & rows) const
{
    auto const col = static_cast<unsigned int>(m_sortColumn);
    std::vector<ListSortKey> keys;
    keys.reserve(rows.size());
    for (XLISTCTRLROW const * const row : rows)
        keys.emplace_back(row != nullptr && col < row->capacity() ? row->cells() + col : nullptr);
    ColumnTexts texts(*this, m_sortColumn, rows.size());
    return SortedOrder(static_cast<int>(rows.size()), [&, ascending = m_sortAscending](int a, int b) {
        return CompareRows(keys[static_cast<std::size_t>(a)], keys[static_cast<std::size_t>(b)], ascending,
                           [&texts, a, b] { return texts.Compare(a, b); });
    });
}

void CXListCtrl::ApplyOrder(std::vector<int> const & order, std::vector<XLISTCTRLROW *> & rows)
{
    // What was asked of the host for the order may have changed the list, against the rules.
    if (rows.size() != order.size() || rows.size() != static_cast<std::size_t>(RowCount()) || rows.empty())
        return;
    // Only through its row object can a native item be told its place; those without get one for this time.
    auto const strays = static_cast<std::size_t>(std::count(rows.begin(), rows.end(), nullptr));
    std::vector<XLISTCTRLROW> substitutes(strays);
    std::vector<int> strayRows;
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        if (rows[i] != nullptr)
            continue;
        rows[i] = &substitutes[strayRows.size()];
        strayRows.push_back(static_cast<int>(i));
        SetNativeParam(strayRows.back(), rows[i]);
    }
    int place = 0;
    for (int const row : order)
        rows[static_cast<std::size_t>(row)]->SetSortPlace(place++);

    bool const sorted = SortItems(&ComparePlaces, 0) != FALSE;
    for (std::size_t i = 0; i < strays; ++i)
        SetNativeParam(sorted ? substitutes[i].sortPlace() : strayRows[i], nullptr);
}

bool CXListCtrl::SetNativeParam(int row, XLISTCTRLROW const * object)
{
    return CListCtrl::SetItemData(row, reinterpret_cast<DWORD_PTR>(object)) != FALSE;
}
