// Sorting a report list beside the cheapest sort of a native one, and exporting it as text.

#include <afxcmn.h>
#include "clipboard/Clipboard.h"
#include "list/XListCtrl.h"
#include "ControlBench.h"
#include "Measure.h"

#include <string>
#include <vector>

namespace
{
using bench::Nanoseconds;

constexpr int row_count = 100000;
constexpr int rounds = 5;
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

void Fill(CXListCtrl & list, int round)
{
    list.SetRedraw(FALSE);
    list.SetBatchInsertMode(true);
    list.DeleteAllItems();
    for (int row = 0; row < row_count; ++row)
    {
        int const key = Key(row, round);
        list.AddItem((L"recording " + std::to_wstring(key)).c_str(), nullptr, row);
        list.SetItemText(row, column_number, key);
        list.SetItemFloatVal(row, column_float, static_cast<float>(key) / 8.0F, L"shown");
    }
    list.SetBatchInsertMode(false);
    list.SetRedraw(TRUE);
}

void Fill(CListCtrl & list, int round)
{
    list.SetRedraw(FALSE);
    list.DeleteAllItems();
    for (int row = 0; row < row_count; ++row)
        list.InsertItem(LVIF_TEXT | LVIF_PARAM, row, L"recording", 0, 0, 0, Key(row, round));
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

bool IsSorted(CXListCtrl & list, int col)
{
    for (int row = 1; row < list.GetItemCount(); ++row)
    {
        bool const right = col == column_text ? list.GetItemText(row - 1, col).Compare(list.GetItemText(row, col)) <= 0
                                              : list.GetRowItemDataDirect(row - 1, column_number)->intValue <=
                                                    list.GetRowItemDataDirect(row, column_number)->intValue;
        if (!right)
            return false;
    }
    return list.GetItemCount() == row_count;
}

bool SortBy(column col, char const * name, double goal)
{
    Lists lists;
    std::vector<double> ours;
    std::vector<double> reference;
    for (int round = 0; round < rounds; ++round)
    {
        Fill(lists.own, round);
        Fill(lists.native, round);
        reference.push_back(Nanoseconds([&] { lists.native.SortItems(&CompareParams, 0); }));
        ours.push_back(Nanoseconds([&] { lists.own.SortByColumn(col, true, false, nullptr); }));
    }
    return bench::Report(name, bench::Median(ours) / row_count, bench::Median(reference) / row_count, goal) &&
           IsSorted(lists.own, col);
}
} // namespace

bool bench::SortingAList()
{
    bool const numbers = SortBy(column_number, "sorting 100,000 rows by number beside the native sort, a row", 1.5);
    bool const texts = SortBy(column_text, "sorting 100,000 rows by text beside the native sort, a row", 2.5);
    return numbers && texts;
}

bool bench::ExportingAList()
{
    Lists lists;
    Fill(lists.own, 0);
    bool done = true;
    std::vector<double> ours;
    std::vector<double> reference;
    for (int round = 0; round < rounds; ++round)
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
