// Filling a report list beside filling a native one with the same texts.

#include <afxcmn.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "ControlBench.h"
#include "list/XListCtrl.h"
#include "list/XListRowPool.h"
#include "Measure.h"
#include "ModuleAllocations.h"

namespace
{
using bench::Nanoseconds;
using bench::PumpAll;

constexpr int row_count = 20000;
constexpr int column_count = 8;
constexpr int cell_count = row_count * column_count;
constexpr DWORD list_style = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS;
CRect const list_place(0, 0, 700, 500);

using Texts = std::vector<std::wstring>;

Texts const & CellTexts()
{
    static Texts const texts = [] {
        Texts made;
        for (int i = 0; i < cell_count; ++i)
            made.push_back(L"value " + std::to_wstring(i * 7 % 100003));
        return made;
    }();
    return texts;
}

wchar_t const * TextOf(int row, int column)
{
    return CellTexts()[static_cast<std::size_t>(row * column_count + column)].c_str();
}

void Fill(CListCtrl & list)
{
    list.SetRedraw(FALSE);
    for (int row = 0; row < row_count; ++row)
    {
        list.InsertItem(row, TextOf(row, 0));
        for (int column = 1; column < column_count; ++column)
            list.SetItemText(row, column, TextOf(row, column));
    }
    list.SetRedraw(TRUE);
}

void Fill(CXListCtrl & list)
{
    list.SetRedraw(FALSE);
    list.SetBatchInsertMode(true);
    for (int row = 0; row < row_count; ++row)
    {
        list.InsertItem(row, TextOf(row, 0), nullptr, row);
        for (int column = 1; column < column_count; ++column)
            list.SetItemText(row, column, TextOf(row, column));
    }
    list.SetBatchInsertMode(false);
    list.SetRedraw(TRUE);
}

/// What a report list has to make for each row besides: its object and its cells.
struct Records
{
    XLISTCTRLROW row;
    XLISTCTRLDATA cells[column_count];
};

void FillWithRecords(CListCtrl & list, std::vector<std::unique_ptr<Records>> & records)
{
    list.SetRedraw(FALSE);
    for (int row = 0; row < row_count; ++row)
    {
        records.push_back(std::make_unique<Records>());
        list.InsertItem(LVIF_TEXT | LVIF_PARAM, row, TextOf(row, 0), 0, 0, 0,
                        reinterpret_cast<LPARAM>(records.back().get()));
        for (int column = 1; column < column_count; ++column)
            list.SetItemText(row, column, TextOf(row, column));
    }
    list.SetRedraw(TRUE);
}

template <class List> void CreateWithColumns(List & list, CWnd & parent)
{
    list.Create(list_style, list_place, &parent, 7);
    list.ModifyStyle(0, LVS_NOSORTHEADER);
}

void AddColumns(CXListCtrl & list)
{
    for (int i = 0; i < column_count; ++i)
        list.AddColumn(L"column", LVCFMT_LEFT, 80);
}
void AddColumns(CListCtrl & list)
{
    for (int i = 0; i < column_count; ++i)
        list.InsertColumn(i, L"column", LVCFMT_LEFT, 80, i);
}

class Parent : public CWnd
{
public:
    Parent()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"list", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 740, 560, nullptr,
                 nullptr);
        PumpAll();
    }
    ~Parent() override { DestroyWindow(); }
};

/// Filling a new list of that class.
template <class List> double FillNew(CWnd & parent)
{
    List list;
    CreateWithColumns(list, parent);
    AddColumns(list);
    PumpAll();
    double const time = Nanoseconds([&] { Fill(list); });
    list.DestroyWindow();
    PumpAll();
    return time;
}

double FillNewWithRecords(CWnd & parent)
{
    CListCtrl list;
    CreateWithColumns(list, parent);
    AddColumns(list);
    PumpAll();
    std::vector<std::unique_ptr<Records>> records;
    double const time = Nanoseconds([&] { FillWithRecords(list, records); });
    list.DestroyWindow();
    PumpAll();
    return time;
}
} // namespace

bool bench::FillingAList()
{
    Parent parent;
    CellTexts();
    bool const plain =
        Report("filling 20,000 rows of 8 cells beside the native list, a cell",
               Compare([&] { return FillNew<CXListCtrl>(parent); }, [&] { return FillNew<CListCtrl>(parent); }),
               cell_count, 1.10);
    bool const same =
        Report("the same beside the native list with a record made for each row, a cell",
               Compare([&] { return FillNew<CXListCtrl>(parent); }, [&] { return FillNewWithRecords(parent); }),
               cell_count, 1.10);
    return plain && same;
}

bool bench::RefillingAList()
{
    Parent parent;
    CXListCtrl list;
    CreateWithColumns(list, parent);
    AddColumns(list);
    CListCtrl native;
    CreateWithColumns(native, parent);
    AddColumns(native);
    unsigned long long firstAllocations = 0;
    {
        ModuleAllocations const counter(L"instrument_ui.dll");
        Fill(list);
        firstAllocations = counter.Count();
    }
    Fill(native);

    std::vector<double> ours;
    std::vector<double> reference;
    unsigned long long allocations = 0;
    for (int round = 0; round < 7; ++round)
    {
        reference.push_back(Nanoseconds([&] {
            native.SetRedraw(FALSE);
            native.DeleteAllItems();
            Fill(native);
        }));
        ours.push_back(Nanoseconds([&] {
            list.SetRedraw(FALSE);
            list.DeleteAllItems();
            Fill(list);
        }));
    }
    {
        ModuleAllocations const counter(L"instrument_ui.dll");
        list.SetRedraw(FALSE);
        list.DeleteAllItems();
        Fill(list);
        allocations = counter.Count();
    }
    list.DestroyWindow();
    native.DestroyWindow();
    // A new list needs a row object and its cells for each row: fewer would mean that the count does not see them.
    if (firstAllocations < 2ULL * row_count)
    {
        std::printf("the module's allocations cannot be counted\n");
        return false;
    }
    bool const timeMet = Report("deleting and refilling 20,000 rows of 8 cells beside the native list, a cell",
                                Median(ours) / cell_count, Median(reference) / cell_count, 1.15);
    return ReportCount("allocations of the module in refilling 20,000 rows beside filling them anew", allocations,
                       firstAllocations, 0) &&
           timeMet;
}

namespace
{
/// The bytes in use in all heaps of the process, with what the heaps themselves need for each block.
unsigned long long BytesInUse()
{
    std::vector<HANDLE> heaps(::GetProcessHeaps(0, nullptr) + 8);
    heaps.resize(::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
    unsigned long long bytes = 0;
    for (HANDLE const heap : heaps)
    {
        ::HeapLock(heap);
        PROCESS_HEAP_ENTRY entry{};
        while (::HeapWalk(heap, &entry))
        {
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
                bytes += entry.cbData + entry.cbOverhead;
        }
        ::HeapUnlock(heap);
    }
    return bytes;
}

/// What the rows of a filled list of that class take, a row.
template <class List> unsigned long long BytesOfARow(CWnd & parent)
{
    List list;
    CreateWithColumns(list, parent);
    AddColumns(list);
    PumpAll();
    unsigned long long const before = BytesInUse();
    Fill(list);
    unsigned long long const after = BytesInUse();
    list.DestroyWindow();
    PumpAll();
    return (after - before) / row_count;
}
} // namespace

bool bench::MemoryOfARow()
{
    XLISTCTRLDATA const cell;
    // The fields themselves, whatever they lead to. NOLINTBEGIN(bugprone-sizeof-container, bugprone-sizeof-expression)
    unsigned long long const fields =
        sizeof(cell.properties) + sizeof(cell.valueType) + sizeof(cell.imageIndex) + sizeof(cell.toolTipText) +
        sizeof(cell.intValue) + sizeof(cell.floatValue) + sizeof(cell.timeValue) + sizeof(cell.itemData64) +
        sizeof(cell.itemDataPtr) + sizeof(cell.idx8) + sizeof(cell.textColor) + sizeof(cell.backgroundColor) +
        sizeof(cell.gradientColor) + sizeof(cell.checkedState) + sizeof(cell.comboStrings) + sizeof(cell.comboSorted) +
        sizeof(cell.comboVisibleItems) + sizeof(cell.comboDefaultId) + sizeof(cell.comboCurrentId) +
        sizeof(cell.progressValue) + sizeof(cell.progressDisplayValue) + sizeof(cell.progressFormat) +
        sizeof(cell.progressShowText) + sizeof(cell.customDraw);
    unsigned long long const row = sizeof(XLISTCTRLROW *) + sizeof(XLISTCTRLROW) + column_count * sizeof(XLISTCTRLDATA);
    // NOLINTEND(bugprone-sizeof-container, bugprone-sizeof-expression)
    // A tenth more than the bare fields for gaps, the row object and its slot.
    unsigned long long const most = column_count * fields * 11 / 10;
    bool const met =
        ReportCount("bytes of a row object of 8 cells beside its bare fields", row, column_count * fields, most);

    Parent parent;
    CellTexts();
    unsigned long long const native = BytesOfARow<CListCtrl>(parent);
    unsigned long long const ours = BytesOfARow<CXListCtrl>(parent);
    if (native < column_count * sizeof(wchar_t))
    {
        std::printf("the heaps' bytes cannot be counted\n");
        return false;
    }
    // The list is a native one with a row object for each row; an eighth more than the bare fields for what is told
    // above and for the heap's own bytes.
    return ReportCount("bytes of a row of 8 text cells in use beside the native list's row", ours, native,
                       native + column_count * fields * 9 / 8) &&
           met;
}
