// A table of a million rows: shown for the first time, painted beside the report list, scrolled through, and told of
// changes by threads.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "ControlBench.h"
#include "list/table/XTableCtrl.h"
#include "list/XListCtrl.h"
#include "Measure.h"

namespace
{
using bench::Nanoseconds;
using bench::PumpAll;

constexpr TableRow row_count = 1000000;
constexpr unsigned int column_count = 8;
constexpr int column_width = 74;
constexpr int page_rows = 40;
constexpr int list_width = static_cast<int>(column_count) * column_width + 10;
constexpr int list_height = 900;
constexpr DWORD list_style = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS;

std::wstring TextOf(TableRow row, unsigned int column)
{
    return L"val " + std::to_wstring(row * column_count + column);
}

/// Texts that are made when they are asked for.
class TextRows : public TableSource
{
public:
    TableRow RowCount() const override { return row_count; }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        if (row >= row_count)
            return false;
        value.SetText(TextOf(row, column));
        return true;
    }
};

/// Numbers that threads write.
class LiveRows : public TableSource
{
public:
    static constexpr TableRow count = 100000;

    TableRow RowCount() const override { return count; }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        if (row >= count)
            return false;
        long long const present = m_values[row].load(std::memory_order_relaxed);
        // Nobody but the painting asks.
        m_shown[row] = present;
        value.SetWhole(present + column);
        return true;
    }
    bool IsShown(TableRow row) const { return m_shown[row] == m_values[row].load(std::memory_order_relaxed); }
    void Put(TableRow row, long long value) { m_values[row].store(value, std::memory_order_relaxed); }

private:
    std::vector<std::atomic<long long>> m_values = std::vector<std::atomic<long long>>(count);
    mutable std::vector<long long> m_shown = std::vector<long long>(count);
};

std::vector<TableColumn> Columns(TableKind kind)
{
    std::vector<TableColumn> columns(column_count);
    for (unsigned int i = 0; i < column_count; ++i)
    {
        columns[i].title = L"column " + std::to_wstring(i);
        columns[i].width = column_width;
        columns[i].kind = kind;
    }
    return columns;
}

class Window : public CWnd
{
public:
    Window()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"table", WS_POPUP | WS_VISIBLE, 0, 0, 2 * list_width, list_height, nullptr,
                 nullptr);
    }
    ~Window() override { DestroyWindow(); }
};

double Paint(CWnd & list)
{
    PumpAll();
    return Nanoseconds([&] {
        list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_NOCHILDREN);
        ::GdiFlush();
    });
}

bool ShowingForTheFirstTime()
{
    auto const source = std::make_shared<TextRows>();
    std::vector<double> ours;
    std::vector<double> reference;
    for (int i = 0; i < 9; ++i)
    {
        Window window;
        CXTableCtrl table;
        table.SetColumns(Columns(TableKind::text));
        table.Create(list_style, CRect(0, 0, list_width, list_height), &window, 7);
        CListCtrl native;
        native.Create(list_style | LVS_OWNERDATA, CRect(list_width, 0, 2 * list_width, list_height), &window, 8);
        for (unsigned int column = 0; column < column_count; ++column)
            native.InsertColumn(static_cast<int>(column), L"column", LVCFMT_LEFT, column_width);
        PumpAll();
        ours.push_back(Nanoseconds([&] {
            table.SetSource(source);
            table.UpdateWindow();
            ::GdiFlush();
        }));
        reference.push_back(Nanoseconds([&] {
            native.SetItemCountEx(row_count);
            native.UpdateWindow();
            ::GdiFlush();
        }));
        PumpAll();
    }
    constexpr double goal = 50e6;
    return bench::ReportTime("table: a million rows of 8 columns shown for the first time, beside a list without texts",
                             bench::Median(ours), bench::Median(reference), goal);
}

bool PaintingAPage()
{
    Window window;
    auto const source = std::make_shared<TextRows>();
    CXTableCtrl table;
    table.SetColumns(Columns(TableKind::text));
    table.Create(list_style, CRect(0, 0, list_width, list_height), &window, 7);
    table.SetSource(source);
    CXListCtrl list;
    list.Create(list_style, CRect(list_width, 0, 2 * list_width, list_height), &window, 8);
    for (unsigned int column = 0; column < column_count; ++column)
        list.AddColumn(L"column", LVCFMT_LEFT, column_width);
    // As many rows as the table shows.
    int const rows = std::max(table.GetCountPerPage() + 1, page_rows);
    for (TableRow row = 0; row < static_cast<TableRow>(rows); ++row)
    {
        int const item = list.AddItem(TextOf(row, 0).c_str(), nullptr, row);
        for (unsigned int column = 1; column < column_count; ++column)
            list.SetItemText(item, static_cast<int>(column), TextOf(row, column).c_str());
    }
    PumpAll();
    double const cells = static_cast<double>(rows) * column_count;
    bool met = bench::Report("table: page of text beside the report list's, a cell",
                             bench::Compare([&] { return Paint(table); }, [&] { return Paint(list); }), cells, 1.1);
    met = bench::Report("table: page at the end of a million rows beside one ahead with texts as long, a cell",
                        bench::Compare(
                            [&] {
                                table.EnsureVisible(row_count - 1, FALSE);
                                return Paint(table);
                            },
                            [&] {
                                table.EnsureVisible(row_count / 5, FALSE);
                                return Paint(table);
                            }),
                        cells, 1.1) &&
          met;
    met = bench::Report("table: a step down in the middle of a million rows beside one at the top",
                        bench::Compare(
                            [&] {
                                table.EnsureVisible(row_count / 2, FALSE);
                                table.UpdateWindow();
                                return Nanoseconds([&] {
                                    table.SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
                                    table.UpdateWindow();
                                    ::GdiFlush();
                                });
                            },
                            [&] {
                                table.EnsureVisible(0, FALSE);
                                table.UpdateWindow();
                                return Nanoseconds([&] {
                                    table.SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
                                    table.UpdateWindow();
                                    ::GdiFlush();
                                });
                            }),
                        1, 1.1) &&
          met;
    return met;
}

/// The processor time of this thread in nanoseconds.
double ThreadTime()
{
    FILETIME created;
    FILETIME ended;
    FILETIME kernel;
    FILETIME user;
    ::GetThreadTimes(::GetCurrentThread(), &created, &ended, &kernel, &user);
    auto const ticks = [](FILETIME const & time) {
        return static_cast<double>(static_cast<unsigned long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime);
    };
    return 100 * (ticks(kernel) + ticks(user));
}

bool FollowingThreads()
{
    constexpr int seconds = 10;
    constexpr unsigned long long most_repaints = 70ULL * seconds;
    constexpr int teller_count = 4;
    constexpr int updates_a_millisecond = 25; // of each teller
    Window window;
    auto const source = std::make_shared<LiveRows>();
    CXTableCtrl table;
    table.SetColumns(Columns(TableKind::whole));
    table.Create(list_style, CRect(0, 0, list_width, list_height), &window, 7);
    table.SetSource(source);
    PumpAll();

    using Clock = std::chrono::steady_clock;
    auto const began = Clock::now();
    double const usedBefore = ThreadTime();
    unsigned long long const paintedBefore = table.Repaints();
    std::atomic<int> telling{teller_count};
    std::atomic<unsigned long long> told{0};
    std::vector<std::thread> tellers;
    for (unsigned int teller = 0; teller < teller_count; ++teller)
    {
        tellers.emplace_back([&, teller, feed = table.Feed(), rows = source] {
            unsigned int random = teller + 1;
            unsigned long long count = 0;
            for (auto next = began; next < began + std::chrono::seconds(seconds); next += std::chrono::milliseconds(1))
            {
                std::this_thread::sleep_until(next);
                for (int i = 0; i < updates_a_millisecond; ++i)
                {
                    random = random * 1664525U + 1013904223U;
                    // Every other one within the page that is seen.
                    TableRow const row = (random >> 8) % (i % 2 == 0 ? page_rows : LiveRows::count);
                    rows->Put(row, random >> 16);
                    feed->RowsChanged(row, row);
                    ++count;
                }
            }
            told += count;
            --telling;
        });
    }
    while (telling != 0)
    {
        PumpAll();
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    double const elapsed = std::chrono::duration<double>(Clock::now() - began).count();
    double const used = ThreadTime() - usedBefore;
    auto const painted = static_cast<double>(table.Repaints() - paintedBefore);
    for (std::thread & each : tellers)
        each.join();
    // The last changes may wait for their repaint.
    for (int i = 0; i < 20; ++i)
    {
        PumpAll();
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    unsigned long long wrong = 0;
    for (TableRow row = 0; row < page_rows; ++row)
    {
        if (!source->IsShown(row))
            ++wrong;
    }
    std::printf("table: %.0f changes a second told\n", static_cast<double>(told) / elapsed);
    bool met =
        bench::ReportCount("table: repaints in 10 s of 100,000 changes a second",
                           static_cast<unsigned long long>(painted / elapsed * seconds), most_repaints, most_repaints);
    met = bench::ReportTime("table: the window's thread in a second of them", used / elapsed, 1e9, 0.3e9) && met;
    met = bench::ReportCount("table: cells in view that are wrong at the end", wrong, page_rows, 0) && met;
    return met;
}
} // namespace

bool bench::ShowingATable()
{
    bool met = ShowingForTheFirstTime();
    met = PaintingAPage() && met;
    return FollowingThreads() && met;
}
