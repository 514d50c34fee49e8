// Sorting a report list beside the cheapest sort of a native one; searching and deleting its rows beside the same of a
// native one; exporting it as text.

#include <afxcmn.h>

#include <iterator>
#include <string>
#include <vector>

#include "clipboard/Clipboard.h"
#include "ControlBench.h"
#include "list/XListCtrl.h"
#include "Measure.h"

namespace
{
using bench::Nanoseconds;

constexpr DWORD list_style = WS_CHILD | LVS_REPORT | LVS_SHOWSELALWAYS;
CRect const list_place(0, 0, 700, 500);

/// A number for each row and round, scattered and the same in every run.
int Key(int row, int round)
{
    auto const mixed = static_cast<unsigned>(row + 1) * 2654435761U ^ static_cast<unsigned>(round) * 40503U;
    return static_cast<int>((mixed ^ mixed >> 15) % 1000003U);
}

int CALLBACK CompareParams(LPARAM a, LPARAM b, LPARAM)
{
    return static_cast<int>(a) - static_cast<int>(b);
}

class Parent : public CWnd
{
public:
    Parent() { CreateEx(0, AfxRegisterWndClass(0), L"list", WS_OVERLAPPEDWINDOW, 20, 20, 740, 560, nullptr, nullptr); }
    ~Parent() override { DestroyWindow(); }
};

enum column
{
    column_text,
    column_number,
    column_float,
    column_count
};

void Fill(CXListCtrl & list, int rowCount, int round)
{
    list.SetRedraw(FALSE);
    list.SetBatchInsertMode(true);
    list.DeleteAllItems();
    for (int row = 0; row < rowCount; ++row)
    {
        int const key = Key(row, round);
        list.AddItem((L"recording " + std::to_wstring(key)).c_str(), nullptr, row);
        list.SetItemText(row, column_number, key);
        list.SetItemFloatVal(row, column_float, static_cast<float>(key) / 8.0F, L"shown");
    }
    list.SetBatchInsertMode(false);
    list.SetRedraw(TRUE);
}

void Fill(CListCtrl & list, int rowCount, int round)
{
    list.SetRedraw(FALSE);
    list.DeleteAllItems();
    for (int row = 0; row < rowCount; ++row)
    {
        list.InsertItem(LVIF_TEXT | LVIF_PARAM, row, L"recording", 0, 0, 0, Key(row, round));
        for (int col = 1; col < column_count; ++col)
            list.SetItemText(row, col, L"shown");
    }
    list.SetRedraw(TRUE);
}

struct Lists
{
    Lists()
    {
        own.Create(list_style, list_place, &parent, 7);
        for (int i = 0; i < column_count; ++i)
            own.AddColumn(L"column", LVCFMT_LEFT, 80);
        native.Create(list_style, list_place, &parent, 8);
        for (int i = 0; i < column_count; ++i)
            native.InsertColumn(i, L"column", LVCFMT_LEFT, 80, i);
    }
    ~Lists()
    {
        own.DestroyWindow();
        native.DestroyWindow();
    }
    Parent parent;
    CXListCtrl own;
    CListCtrl native;
};

bool IsSorted(CXListCtrl & list, int rowCount, int col)
{
    for (int row = 1; row < list.GetItemCount(); ++row)
    {
        bool const right = col == column_text ? list.GetItemText(row - 1, col).Compare(list.GetItemText(row, col)) <= 0
                                              : list.GetRowItemDataDirect(row - 1, column_number)->intValue <=
                                                    list.GetRowItemDataDirect(row, column_number)->intValue;
        if (!right)
            return false;
    }
    return list.GetItemCount() == rowCount;
}

/// 20000 as "20,000".
std::string Number(int number)
{
    std::string const digits = std::to_string(number);
    return number < 1000 ? digits : digits.substr(0, digits.size() - 3) + "," + digits.substr(digits.size() - 3);
}

/// Fewer rounds where each takes long.
int RoundsFor(int rowCount)
{
    return rowCount <= 1000 ? 41 : rowCount <= 20000 ? 11 : 5;
}

/// Reads a column's texts, as whoever sorts a native list by them has to.
void ReadTexts(CListCtrl const & list, int rowCount)
{
    wchar_t text[64];
    for (int row = 0; row < rowCount; ++row)
        list.GetItemText(row, 1, text, static_cast<int>(std::size(text)));
}

bool SortBy(column col, int rowCount)
{
    Lists lists;
    std::vector<double> ours;
    std::vector<double> reference;
    std::vector<double> reading;
    std::vector<double> oursInOrder;
    std::vector<double> referenceInOrder;
    for (int round = 0; round < RoundsFor(rowCount); ++round)
    {
        Fill(lists.own, rowCount, round);
        Fill(lists.native, rowCount, round);
        auto const sortOwn = [&] { lists.own.SortByColumn(col, true, false, nullptr); };
        auto const sortNative = [&] { lists.native.SortItems(&CompareParams, 0); };
        reference.push_back(Nanoseconds(sortNative));
        ours.push_back(Nanoseconds(sortOwn));
        // The native list has its rows in order by now, so that this is the time of the texts alone.
        if (col == column_text)
            reading.push_back(Nanoseconds([&] { ReadTexts(lists.native, rowCount); }));
        referenceInOrder.push_back(Nanoseconds([&] {
            if (col == column_text)
                ReadTexts(lists.native, rowCount);
            sortNative();
        }));
        oursInOrder.push_back(Nanoseconds(sortOwn));
    }
    std::string const what = "sorting " + Number(rowCount) + " rows by " + (col == column_text ? "text" : "number");
    bool const scattered =
        bench::Report(what + " beside the native sort by a number, a row", bench::Median(ours) / rowCount,
                      bench::Median(reference) / rowCount, col == column_text ? 2.0 : 1.5);
    // What no sort by text can do without, as only the native list has the texts.
    bool const read =
        col != column_text || bench::Report(what + " beside the native sort by a number and reading the texts, a row",
                                            bench::Median(ours) / rowCount,
                                            (bench::Median(reference) + bench::Median(reading)) / rowCount, 1.5);
    bool const inOrder =
        bench::Report(what + ", in order already, beside the same" +
                          (col == column_text ? " and reading the texts, a row" : ", a row"),
                      bench::Median(oursInOrder) / rowCount, bench::Median(referenceInOrder) / rowCount, 2.0);
    return IsSorted(lists.own, rowCount, col) && scattered && read && inOrder;
}

int FindParam(CListCtrl const & list, LPARAM param)
{
    LVFINDINFOW find{};
    find.flags = LVFI_PARAM;
    find.lParam = param;
    return list.FindItem(&find);
}

bool SearchIn(int rowCount)
{
    Lists lists;
    Fill(lists.own, rowCount, 0);
    // In the same list: where items lie in memory counts for more than anything else.
    CListCtrl const & native = lists.own;
    struct Place
    {
        char const * name;
        int row;
    } const places[] = {{"first", 0}, {"middle", rowCount / 2}, {"last", rowCount - 1}, {"missing", -1}};
    bool allMet = true;
    for (Place const & place : places)
    {
        char const * const name = place.name;
        int const row = place.row;
        // The first row takes so little time that many searches are measured at once.
        int const calls = row == 0 ? 1000 : 1;
        auto const param = static_cast<LPARAM>(row >= 0 ? native.GetItemData(row) : 7);
        bool right = true;
        std::vector<double> ours;
        std::vector<double> reference;
        for (int round = 0; round < 31; ++round)
        {
            ours.push_back(Nanoseconds([&] {
                for (int i = 0; i < calls; ++i)
                    right = lists.own.FindDataItem(row >= 0 ? row : rowCount + 7) == row && right;
            }));
            reference.push_back(Nanoseconds([&] {
                for (int i = 0; i < calls; ++i)
                    right = FindParam(native, param) == row && right;
            }));
        }
        allMet = bench::Report("finding the " + std::string(name) + " of " + Number(rowCount) +
                                   " rows beside the native search by parameter",
                               bench::Median(ours) / calls, bench::Median(reference) / calls, 1.2) &&
                 right && allMet;
    }
    return allMet;
}

/// Deletes a row of the native list with the messages that the report list's deletion consists of: the row's word is
/// asked for and cleared, of which the parent hears, and then the row goes.
void DeleteWithMessages(CListCtrl & list, int row)
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    list.GetItem(&item);
    item.lParam = 0;
    list.SetItem(&item);
    list.DeleteItem(row);
}

/// The rows of a sorted list, one by one.
bool DeleteRows(int rowCount, bool fromTop)
{
    Lists lists;
    auto const deleteAll = [rowCount, fromTop](auto & list, auto deleteOne) {
        list.SetRedraw(FALSE);
        double const time = Nanoseconds([&] {
            for (int left = rowCount; left > 0; --left)
                deleteOne(list, fromTop ? 0 : left - 1);
        });
        list.SetRedraw(TRUE);
        return time;
    };
    int round = 0;
    auto const ours = [&] {
        Fill(lists.own, rowCount, ++round);
        lists.own.SortByColumn(column_number, true, false, nullptr);
        return deleteAll(lists.own, [](CXListCtrl & list, int row) { list.DeleteItem(row); });
    };
    auto const native = [&](auto deleteOne) {
        Fill(lists.native, rowCount, ++round);
        lists.native.SortItems(&CompareParams, 0);
        return deleteAll(lists.native, deleteOne);
    };
    std::string const what =
        "deleting " + Number(rowCount) + " rows of a sorted list from the " + (fromTop ? "top" : "bottom");
    bench::Rounds const rounds{5, 40, 20, 0.015};
    bool const plain = bench::Report(
        what + " beside the native list, a row",
        bench::Compare(
            ours, [&] { return native([](CListCtrl & list, int row) { list.DeleteItem(row); }); }, rounds),
        rowCount, 1.1);
    bool const same = bench::Report(what + " beside the native list given the same messages, a row",
                                    bench::Compare(
                                        ours, [&] { return native(&DeleteWithMessages); }, rounds),
                                    rowCount, 1.1);
    return plain && same;
}
} // namespace

bool bench::SortingAList()
{
    bool allMet = true;
    for (int const rowCount : {1000, 20000, 100000})
    {
        allMet = SortBy(column_number, rowCount) && allMet;
        allMet = SortBy(column_text, rowCount) && allMet;
    }
    return allMet;
}

bool bench::SearchingAList()
{
    bool const some = SearchIn(20000);
    bool const many = SearchIn(100000);
    return some && many;
}

bool bench::DeletingRows()
{
    bool const top = DeleteRows(20000, true);
    bool const bottom = DeleteRows(20000, false);
    return top && bottom;
}

bool bench::ExportingAList()
{
    constexpr int row_count = 100000;
    Lists lists;
    Fill(lists.own, row_count, 0);
    bool done = true;
    std::vector<double> ours;
    std::vector<double> reference;
    for (int round = 0; round < 5; ++round)
    {
        ours.push_back(Nanoseconds([&] { done = lists.own.ExportToClipboard(true, 0, -1, 0, -1) && done; }));
        // The texts of one column, read one by one.
        reference.push_back(Nanoseconds([&] {
            for (int row = 0; row < row_count; ++row)
                lists.own.GetItemText(row, column_text);
        }));
    }
    Clipboard::StringToClipboard(CString());
    return Report("exporting 100,000 rows of 3 cells beside reading 100,000 texts, a row", Median(ours) / row_count,
                  Median(reference) / row_count, 4.0) &&
           done;
}
