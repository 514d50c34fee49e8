// CXListCtrl: sorting. The order is found first, from the rows as they stand; then the native list moves its items once.

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
        : m_list(list), m_col(col), m_begins(rows, unread), m_buffer(first_size)
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

void CXListCtrl::SortByColumn(int col, bool ascending, bool setMark,
                              int (*compare)(long long, long long, long long))
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
        ApplyOrder(DefaultOrder());
    }
    else
    {
        auto const list = static_cast<long long>(reinterpret_cast<LONG_PTR>(this));
        ApplyOrder(SortedOrder(RowCount(), [compare, list](int a, int b) { return compare(a, b, list); }));
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

std::vector<int> CXListCtrl::DefaultOrder() const
{
    std::vector<XLISTCTRLROW *> const rows = AllRows();
    std::vector<XLISTCTRLDATA const *> cells(rows.size(), nullptr);
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i] != nullptr && static_cast<unsigned int>(m_sortColumn) < rows[i]->capacity())
            cells[i] = rows[i]->cells() + m_sortColumn;
    ColumnTexts texts(*this, m_sortColumn, rows.size());
    return SortedOrder(static_cast<int>(rows.size()), [&](int a, int b) {
        return CompareCells(cells[static_cast<std::size_t>(a)], cells[static_cast<std::size_t>(b)], m_sortAscending,
                            [&] { return texts.Compare(a, b); });
    });
}

void CXListCtrl::ApplyOrder(std::vector<int> const & order)
{
    std::vector<XLISTCTRLROW *> rows = AllRows();
    // A comparison may have changed the list, against its rules.
    if (rows.size() != order.size() || rows.empty())
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
