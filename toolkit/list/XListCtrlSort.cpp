// CXListCtrl: sorting. By cells the native list sorts its row objects, which are marked before with what they are
// sorted by. For a host's comparison, which is given indices, the order is found first, from rows that stand still;
// then the native list moves its items once. Its own sort by index is not used: some systems ask for rows by index
// while items are moving.

#include "list/XListCtrl.h"

#include <algorithm>
#include <cwchar>
#include <functional>
#include <utility>

#include "list/XListCtrlHold.h"
#include "list/XListSort.h"

namespace
{
constexpr std::size_t first_text_size = 256;

/// What the native sort hands to its comparison.
struct CellSort
{
    CListRowOrder const & order;
    /// Sorted: what may be looked at, if that isn't everything.
    std::vector<XLISTCTRLROW *> own;
};

int CALLBACK CompareKnown(LPARAM first, LPARAM second, LPARAM sort)
{
    // An item without a row has no cell, and equals every other one.
    if (first == 0 || second == 0)
        return 0;
    return reinterpret_cast<CellSort const *>(sort)->order.Compare(*reinterpret_cast<XLISTCTRLROW const *>(first),
                                                                   *reinterpret_cast<XLISTCTRLROW const *>(second));
}

int CALLBACK CompareOwn(LPARAM first, LPARAM second, LPARAM sort)
{
    auto const & own = reinterpret_cast<CellSort const *>(sort)->own;
    auto const isOwn = [&own](LPARAM row) {
        return std::binary_search(own.begin(), own.end(), reinterpret_cast<XLISTCTRLROW *>(row), std::less<>());
    };
    return isOwn(first) && isOwn(second) ? CompareKnown(first, second, sort) : 0;
}

int CALLBACK ComparePlaces(LPARAM first, LPARAM second, LPARAM)
{
    if (first == 0 || second == 0)
        return 0;
    long long const a = reinterpret_cast<XLISTCTRLROW const *>(first)->sortMark().value;
    long long const b = reinterpret_cast<XLISTCTRLROW const *>(second)->sortMark().value;
    return static_cast<int>(a - b);
}
} // namespace

void CXListCtrl::SortByColumn(int col, bool ascending, bool setMark, int (*compare)(long long, long long, long long))
{
    if (col < 0 && setMark)
        SetHeaderRemoveAllMarks();
    if (col < 0 || col >= m_columnCount)
        return;
    m_sort->column = col;
    m_sort->ascending = ascending;
    Watch const watch(*this);
    if (m_hWnd != nullptr && compare == nullptr)
        SortByCells(col, ascending);
    else if (m_hWnd != nullptr)
        SortByHost(compare);
    if (!setMark || !watch.IsAlive())
        return;
    SetHeaderRemoveAllMarks();
    if (watch.IsAlive())
        SetHeaderCheckedState(col, ascending ? XHC_SORT_ASCENDING : XHC_SORT_DESCENDING);
}

void CXListCtrl::SortByCells(int col, bool ascending)
{
    CListRowOrder order(static_cast<unsigned int>(col), ascending);
    CellSort sort{order, {}};
    bool const known = RowsAreKnown();
    VisitRows([known, &order, &sort](XLISTCTRLROW & row) {
        order.Add(row);
        if (!known)
            sort.own.push_back(&row);
    });
    std::sort(sort.own.begin(), sort.own.end(), std::less<>());
    if (order.NeedsTexts())
    {
        if (!AddTexts(order, col))
            return;
        order.EndTexts();
    }
    SortItems(known ? &CompareKnown : &CompareOwn, reinterpret_cast<DWORD_PTR>(&sort));
}

bool CXListCtrl::AddTexts(CListRowOrder & order, int col)
{
    Watch const watch(*this);
    std::vector<XLISTCTRLROW *> rows;
    if (!RowsAreKnown())
        rows = RowsFromTop();
    int const count = RowCount();
    std::vector<wchar_t> buffer(first_text_size);
    for (int row = 0; row < count; ++row)
    {
        LVITEMW item{};
        std::size_t length = 0;
        for (;;)
        {
            item.mask = LVIF_TEXT | LVIF_PARAM;
            item.iItem = row;
            item.iSubItem = col;
            item.pszText = buffer.data();
            item.cchTextMax = static_cast<int>(buffer.size());
            // Not every native list gives it with the text of another column than the first.
            item.lParam = -1;
            buffer[0] = L'\0';
            AskNative(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
            // The parent may have been asked for the text.
            if (!watch.IsUnchanged())
                return false;
            // The native list may give its own text instead of a copy.
            if (item.pszText == nullptr || item.pszText == LPSTR_TEXTCALLBACKW)
                item.pszText = const_cast<wchar_t *>(L"");
            length = std::wcslen(item.pszText);
            if (item.pszText != buffer.data() || length < buffer.size() - 1)
                break;
            buffer.resize(2 * buffer.size());
        }
        XLISTCTRLROW * object = item.lParam != -1 ? reinterpret_cast<XLISTCTRLROW *>(item.lParam) : NativeParam(row);
        if (!rows.empty())
            object = rows[static_cast<std::size_t>(row)];
        if (object != nullptr)
            order.AddText(*object, {item.pszText, length});
    }
    return true;
}

void CXListCtrl::SortByHost(int (*compare)(long long, long long, long long))
{
    Watch const watch(*this);
    auto const list = static_cast<long long>(reinterpret_cast<LONG_PTR>(this));
    std::vector<int> const order = SortedOrder(RowCount(), [compare, list, &watch](int a, int b) {
        // A comparison that changes the list, against the rules, is not asked again.
        return watch.IsUnchanged() ? compare(a, b, list) : 0;
    });
    if (watch.IsUnchanged() && !std::is_sorted(order.begin(), order.end()))
        ApplyOrder(order);
}

void CXListCtrl::ApplyOrder(std::vector<int> const & order)
{
    Watch const watch(*this);
    std::vector<XLISTCTRLROW *> rows = RowsFromTop();
    // Only through a row object of its own can a native item be told its place; those without get one for this time.
    std::vector<std::pair<XLISTCTRLROW *, XLISTCTRLROW *>> replaced;
    bool complete = true;
    for (std::size_t i = 0; i < rows.size() && watch.Changes() == replaced.size(); ++i)
    {
        if (rows[i] != nullptr)
            continue;
        if (m_sort->standInsInUse == m_sort->standIns.size())
            m_sort->standIns.push_back(std::make_unique<XLISTCTRLROW>());
        rows[i] = m_sort->standIns[m_sort->standInsInUse++].get();
        replaced.emplace_back(rows[i], NativeParam(static_cast<int>(i)));
        complete = SetNativeParam(static_cast<int>(i), rows[i]) && complete;
        if (!watch.IsThere())
            return;
    }
    // The host has heard of each one, and the sort itself is a change.
    unsigned long long expected = replaced.size();
    if (watch.IsAlive() && complete && watch.Changes() == expected)
    {
        ++expected;
        long long place = 0;
        for (int const row : order)
        {
            XLISTCTRLROW::SortMark mark;
            mark.value = place++;
            rows[static_cast<std::size_t>(row)]->SetSortMark(mark);
        }
        SortItems(&ComparePlaces, 0);
    }
    for (auto const & [standIn, former] : replaced)
    {
        LVFINDINFOW find{};
        find.flags = LVFI_PARAM;
        find.lParam = reinterpret_cast<LPARAM>(standIn);
        int const row = watch.IsAlive() ? FindItem(&find) : -1;
        if (row < 0)
            continue;
        SetNativeParam(row, former);
        ++expected;
    }
    // What the host hears of meanwhile may sort as well, with others.
    if (watch.IsThere())
        m_sort->standInsInUse -= replaced.size();
    if (watch.IsAlive() && watch.Changes() != expected)
        m_rows->model.PutRowsInOrder();
}

bool CXListCtrl::SetNativeParam(int row, XLISTCTRLROW const * object)
{
    Watch const watch(*this);
    m_rows->ownChange = true;
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    item.lParam = reinterpret_cast<LPARAM>(object);
    // Straight to where the native list hears of it: rows are deleted by the thousand.
    bool const set = CXListCtrl::DefWindowProc(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item)) != FALSE;
    if (watch.IsThere())
        m_rows->ownChange = false;
    return set;
}
