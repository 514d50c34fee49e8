// The workbench's list of recordings with thousands of files, beside a native list that is given the same texts.

#include <afxcmn.h>
#include <psapi.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "ControlBench.h"
#include "logic/Texts.h"
#include "Measure.h"
#include "RecordingList.h"

namespace
{
using bench::Nanoseconds;
using bench::PumpAll;
using workbench::RecordingAnalysis;

constexpr int usual_count = 5000;
constexpr int small_count = 500;
constexpr int large_count = 20000;
constexpr int rounds = 3;
constexpr DWORD list_style = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS;
CRect const window_place(0, 0, 1240, 500);
CRect const list_place(0, 0, 1200, 260);

// Our cells have kinds, colours and tool tips besides their texts.
constexpr double listing_goal = 3.0;
constexpr double results_goal = 1.25;
constexpr double marking_goal = 1.0;
constexpr double growth_goal = 1.25;
constexpr double sorting_goal = 3.0;
constexpr double filtering_goal = 3.0;
constexpr double memory_limit = 40'000.0;
constexpr double wait_limit = 50e6; // nanoseconds

std::vector<std::filesystem::path> Files(int count)
{
    std::vector<std::filesystem::path> files;
    for (int i = 0; i < count; ++i)
        files.push_back(std::filesystem::path(L"C:\\recordings") / (L"recording " + std::to_wstring(i) + L".wav"));
    return files;
}

std::shared_ptr<RecordingAnalysis const> Analysis()
{
    auto analysis = std::make_shared<RecordingAnalysis>();
    analysis->file.lastWrite = 1'700'000'000;
    analysis->info.channels = 1;
    analysis->info.sampleRate = 48000;
    analysis->info.frames = 48000;
    analysis->info.announcedFrames = 48000;
    analysis->levels = {-6.0, -9.0};
    return analysis;
}

/// One of its own, with the largest overview that is kept.
std::shared_ptr<RecordingAnalysis const> LargeAnalysis()
{
    auto analysis = std::make_shared<RecordingAnalysis>(*Analysis());
    constexpr std::size_t channels = 2;
    workbench::WaveformBuilder builder(channels, workbench::RecordingAnalyser::most_buckets / channels);
    builder.Add(std::vector<double>(workbench::RecordingAnalyser::most_buckets, 0.5));
    analysis->waveform = builder.Finish();
    return analysis;
}

double BytesInUse()
{
    PROCESS_MEMORY_COUNTERS_EX counters{};
    counters.cb = sizeof counters;
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS *>(&counters),
                              sizeof counters);
    return static_cast<double>(counters.WorkingSetSize);
}

/// What each step over all files takes, in nanoseconds a file.
struct Costs
{
    double listing;
    double results;
    double marking;
    double sorting = 0.0;
    double filtering = 0.0;

    double All() const { return listing + results + marking; }
};

struct OurList
{
    explicit OurList(CWnd & parent)
    {
        m_list.CreateList(parent, 7, m_metrics);
        m_list.SetWindowPos(nullptr, 0, 0, list_place.Width(), list_place.Height(), SWP_NOZORDER);
    }

    workbench::ScreenMetrics m_metrics;
    CRecordingList m_list;
};

Costs OfOurs(CWnd & parent, int count)
{
    OurList ours(parent);
    CRecordingList & list = ours.m_list;
    std::vector<std::filesystem::path> const files = Files(count);
    std::shared_ptr<RecordingAnalysis const> const analysis = Analysis();
    std::vector<CRecordingList::Notes> const notes(files.size());
    auto const perFile = [count](std::function<void()> const & work) {
        double const time = Nanoseconds([&] {
            work();
            PumpAll();
        });
        return time / count;
    };
    Costs costs{};
    costs.listing = perFile([&] { list.ShowFiles(files, notes); });
    costs.results = perFile([&] {
        CRecordingList::Batch const batch(list);
        for (int line = 0; line < count; ++line)
            list.ShowAnalysis(line, analysis);
    });
    costs.marking = perFile([&] { list.CheckAll(true); });
    costs.sorting = perFile([&] { list.SortLines(CRecordingList::column_name, false); });
    // A letter that a third of the names have.
    costs.filtering = perFile([&] {
        workbench::RecordingFilter filter;
        filter.words = L"7";
        list.SetFilter(filter);
    });
    list.DestroyWindow();
    PumpAll();
    return costs;
}

/// The bytes that a listed file takes, with its values and its overview.
double BytesOfOurs(CWnd & parent, int count)
{
    workbench::ScreenMetrics metrics;
    CRecordingList list;
    list.CreateList(parent, 7, metrics);
    std::vector<std::filesystem::path> const files = Files(count);
    std::vector<CRecordingList::Notes> const notes(files.size());
    double const before = BytesInUse();
    list.ShowFiles(files, notes);
    {
        CRecordingList::Batch const batch(list);
        for (int line = 0; line < count; ++line)
            list.ShowAnalysis(line, LargeAnalysis());
    }
    PumpAll();
    double const after = BytesInUse();
    list.DestroyWindow();
    PumpAll();
    return (after - before) / count;
}

Costs OfNative(CWnd & parent, int count)
{
    CListCtrl list;
    list.Create(list_style | WS_BORDER, list_place, &parent, 8);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES);
    for (int i = 0; i < CRecordingList::column_count; ++i)
        list.InsertColumn(i, L"column", LVCFMT_LEFT, 80);
    std::vector<std::filesystem::path> const files = Files(count);
    auto const perFile = [count, &list](std::function<void(int)> const & work) {
        double const time = Nanoseconds([&] {
            list.SetRedraw(FALSE);
            for (int row = 0; row < count; ++row)
                work(row);
            list.SetRedraw(TRUE);
            PumpAll();
        });
        return time / count;
    };
    Costs costs{};
    costs.listing = perFile([&](int row) {
        list.InsertItem(row, L"");
        list.SetItemText(row, CRecordingList::column_name, files[static_cast<std::size_t>(row)].filename().c_str());
        list.SetItemText(row, CRecordingList::column_rating, L"Not rated");
        list.SetItemText(row, CRecordingList::column_comment, L"");
        list.SetItemText(row, CRecordingList::column_status, L"not read yet");
    });
    costs.results = perFile([&](int row) {
        static wchar_t const * const texts[] = {L"0:01.000", L"1", L"48000", L"-6.0", L"-9.0", L"11/14/2023 10:13 PM"};
        for (int i = 0; i < static_cast<int>(std::size(texts)); ++i)
            list.SetItemText(row, CRecordingList::column_duration + i, texts[i]);
        list.SetItemText(row, CRecordingList::column_status, L"OK");
        // Both make room for their longest texts.
        for (wchar_t const * const text : texts)
            list.GetStringWidth(text);
    });
    costs.marking = perFile([&](int row) { list.SetCheck(row, TRUE); });
    costs.sorting =
        Nanoseconds([&] {
            for (int row = 0; row < count; ++row)
                list.SetItemData(row, static_cast<DWORD_PTR>(row));
            list.SortItems([](LPARAM first, LPARAM second, LPARAM) { return static_cast<int>(second - first); }, 0);
            PumpAll();
        }) /
        count;
    costs.filtering =
        Nanoseconds([&] {
            list.SetRedraw(FALSE);
            for (int row = count - 1; row >= 0; --row)
            {
                if (files[static_cast<std::size_t>(row)].filename().wstring().find(L'7') == std::wstring::npos)
                    list.DeleteItem(row);
            }
            list.SetRedraw(TRUE);
            PumpAll();
        }) /
        count;
    list.DestroyWindow();
    PumpAll();
    return costs;
}

/// The longest that the thread goes without looking for messages, in nanoseconds, while it does something and until all
/// that comes of it is done: a message from elsewhere waits as long at most. It is the best of some rounds, as other
/// programs have their share of the processor.
double LongestWait(std::function<void()> const & prepare, std::function<void()> const & act)
{
    constexpr auto after = std::chrono::milliseconds(1500);
    auto best = std::numeric_limits<double>::max();
    for (int round = 0; round < rounds; ++round)
    {
        prepare();
        PumpAll();
        double longest = Nanoseconds(act);
        auto const end = std::chrono::steady_clock::now() + after;
        while (std::chrono::steady_clock::now() < end)
        {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
            MSG message;
            while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                longest = std::max(longest, Nanoseconds([&] { ::DispatchMessageW(&message); }));
        }
        best = std::min(best, longest);
    }
    return best;
}

/// Whether no step over thousands of lines keeps the list from answering.
bool ReportWaits(CWnd & parent, int count)
{
    OurList ours(parent);
    CRecordingList & list = ours.m_list;
    std::vector<std::filesystem::path> const files = Files(count);
    std::shared_ptr<RecordingAnalysis const> const analysis = Analysis();
    auto const showAll = [&] {
        CRecordingList::Batch const batch(list);
        list.ShowFiles(files, std::vector<CRecordingList::Notes>(files.size()));
        for (int line = 0; line < count; ++line)
            list.ShowAnalysis(line, analysis);
    };
    auto const filter = [&list](wchar_t const * words) {
        workbench::RecordingFilter wanted;
        wanted.words = words;
        list.SetFilter(wanted);
    };
    auto const filtered = [&] {
        filter(L"7");
        list.FinishRows();
    };
    auto const unfiltered = [&] {
        filter(L"");
        list.FinishRows();
    };
    auto const speak = [&list](unsigned short language) {
        workbench::SetLanguage(workbench::LanguageOf(language));
        list.ShowTexts();
    };
    auto const go = [&list, count](int gone) {
        std::vector<int> numbers(static_cast<std::size_t>(count), -1);
        std::iota(numbers.begin() + gone, numbers.end(), 0);
        list.Renumber(numbers);
    };
    std::vector<int> all(static_cast<std::size_t>(count));
    std::iota(all.begin(), all.end(), 0);

    showAll();
    LongestWait([] {}, [] {}); // until the window is on the screen
    double const painting = LongestWait([] {}, [&] { list.RedrawWindow(); });
    bool met = true;
    auto const report = [&](char const * name, std::function<void()> const & prepare,
                            std::function<void()> const & act) {
        met = bench::ReportTime(std::string("workbench: longest wait at 5,000, ") + name + " (beside a painting)",
                                LongestWait(prepare, act), painting, wait_limit) &&
              met;
    };
    report("filter by one letter", unfiltered, [&] { filter(L"7"); });
    report("no filter", filtered, [&] { filter(L""); });
    report("no filter and a sort at once", filtered, [&] {
        filter(L"");
        list.SortLines(CRecordingList::column_rms, true);
    });
    unfiltered();
    report(
        "sort by name", [&] { list.SortLines(CRecordingList::column_rms, true); },
        [&] { list.SortLines(CRecordingList::column_name, false); });
    auto const unmarked = [&] {
        list.CheckAll(false);
        list.FinishRows();
    };
    report("mark all", unmarked, [&] { list.CheckAll(true); });
    report(
        "take that back",
        [&] {
            unmarked();
            list.CheckAll(true);
            list.FinishRows();
        },
        [&] { list.Undo(); });
    report(
        "another language",
        [&] {
            speak(1033);
            list.FinishRows();
        },
        [&] { speak(1031); });
    speak(1033);
    report(
        "select all", [&] { list.ChooseLine(0); }, [&] { list.SelectLines(all, 0); });
    report(
        "a click with Shift on the last line",
        [&] {
            list.ChooseLine(0);
            list.SetSelectionMark(0);
            list.EnsureVisible(count - 1, FALSE);
        },
        [&] {
            CRect row;
            list.GetItemRect(count - 1, &row, LVIR_BOUNDS);
            // The list view waits for the end of the press.
            list.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(5 * row.Height(), row.CenterPoint().y));
            list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(5 * row.Height(), row.CenterPoint().y));
        });
    report(
        "300 go while all are selected",
        [&] {
            showAll();
            list.SelectLines(all, 0);
        },
        [&] { go(300); });
    report(
        "1,000 go while one is selected",
        [&] {
            showAll();
            list.ChooseLine(2000);
        },
        [&] { go(1000); });
    list.DestroyWindow();
    PumpAll();
    return met;
}
} // namespace

bool bench::OpeningRecordings()
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, window_place, nullptr, 0);
    // First, while nothing is free to be used again.
    double const bytes = BytesOfOurs(parent, usual_count);
    std::vector<double> listing, results, marking, nativeListing, nativeResults, nativeMarking, small, large;
    std::vector<double> sorting, filtering, nativeSorting, nativeFiltering;
    for (int round = 0; round < rounds; ++round)
    {
        Costs const ours = OfOurs(parent, usual_count);
        Costs const native = OfNative(parent, usual_count);
        listing.push_back(ours.listing);
        results.push_back(ours.results);
        marking.push_back(ours.marking);
        nativeListing.push_back(native.listing);
        nativeResults.push_back(native.results);
        nativeMarking.push_back(native.marking);
        sorting.push_back(ours.sorting);
        filtering.push_back(ours.filtering);
        nativeSorting.push_back(native.sorting);
        nativeFiltering.push_back(native.filtering);
        large.push_back(OfOurs(parent, large_count).All());
        // As much work as the large one, so that both are as steady.
        constexpr int small_lists = large_count / small_count / 4;
        double sum = 0.0;
        for (int i = 0; i < small_lists; ++i)
            sum += OfOurs(parent, small_count).All();
        small.push_back(sum / small_lists);
    }
    bool met = ReportWaits(parent, usual_count);
    parent.DestroyWindow();
    met = Report("workbench: list a file, 5,000", Median(listing), Median(nativeListing), listing_goal) && met;
    met = Report("workbench: show a file's values, 5,000", Median(results), Median(nativeResults), results_goal) && met;
    met = Report("workbench: mark a file, 5,000", Median(marking), Median(nativeMarking), marking_goal) && met;
    met =
        Report("workbench: sort by name, a file of 5,000", Median(sorting), Median(nativeSorting), sorting_goal) && met;
    met = Report("workbench: filter by one letter, a file of 5,000", Median(filtering), Median(nativeFiltering),
                 filtering_goal) &&
          met;
    met = Report("workbench: memory of a listed recording beside 40 kB, bytes", bytes, memory_limit, 1.0) && met;
    return Report("workbench: a file among 20,000 by one among 500", Median(large), Median(small), growth_goal) && met;
}
