// The analysis frames of an hour of noise: measured and shown at once, beside the measuring alone, and how long the
// window waits meanwhile, beside a native list without texts.

#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "ControlBench.h"
#include "FrameMeasuresPanel.h"
#include "Measure.h"

namespace
{
using workbench::FrameTable;

constexpr std::uint32_t sample_rate = 48000;
constexpr std::uint32_t hour = 3600;
constexpr std::uint32_t ten_minutes = 600;
constexpr std::uint32_t reference_seconds = 120;
constexpr std::uint32_t rows_a_second = 1000;
CRect const window_place(0, 0, 700, 700);

// The thread that measures shares the processor with the window's, which paints 20 times a second.
constexpr double filling_goal = 1.25;
// Ours also asks for texts, paints them and says how far it is.
constexpr double wait_goal = 4.0;
constexpr unsigned long long bytes_goal = 32;
constexpr DWORD poll_interval = 5;
constexpr std::size_t waits_that_count = 20;

/// So many seconds of noise with 16 bits, which is made when it is read.
class Noise : public workbench::ByteSource
{
public:
    explicit Noise(std::uint32_t seconds) : m_bytes(seconds * sample_rate * 2)
    {
        auto const put = [this](std::uint32_t value, int bytes) {
            for (int i = 0; i < bytes; ++i)
                m_header.push_back(static_cast<std::byte>(value >> (8 * i)));
        };
        put(0x46464952, 4); // RIFF
        put(m_bytes + 36, 4);
        put(0x45564157, 4); // WAVE
        put(0x20746D66, 4); // fmt
        put(16, 4);
        put(0x00010001, 4); // whole numbers, one channel
        put(sample_rate, 4);
        put(sample_rate * 2, 4);
        put(0x00100002, 4); // two bytes, 16 bits
        put(0x61746164, 4); // data
        put(m_bytes, 4);
    }
    std::uint64_t Size() const override { return m_header.size() + m_bytes; }
    std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        auto const count = static_cast<std::size_t>(
            std::min<std::uint64_t>(buffer.size(), Size() - std::min<std::uint64_t>(offset, Size())));
        for (std::size_t i = 0; i < count; ++i)
        {
            m_random = m_random * 1664525U + 1013904223U;
            auto const place = static_cast<std::size_t>(offset) + i;
            buffer[i] = place < m_header.size() ? m_header[place] : static_cast<std::byte>(m_random >> 24);
        }
        return count;
    }

private:
    std::uint32_t m_bytes;
    std::uint32_t m_random = 1;
    std::vector<std::byte> m_header;
};

class Window : public CWnd
{
public:
    Window()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"frames", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, window_place.left,
                 window_place.top, window_place.Width(), window_place.Height(), nullptr, nullptr);
    }
    ~Window() override { DestroyWindow(); }
};

/// How long a window did not answer.
class Waits
{
public:
    void Add(double nanoseconds) { m_all.push_back(nanoseconds); }
    /// The median of the longest ones.
    double Longest() const
    {
        std::vector<double> all = m_all;
        std::ranges::sort(all, std::greater());
        all.resize(std::min(all.size(), waits_that_count));
        return all.empty() ? 0 : bench::Median(all);
    }

private:
    std::vector<double> m_all;
};

struct Filling
{
    double time = 0; ///< in nanoseconds
    Waits waits;
    Waits native; ///< of a native list that is told how many rows there are
    std::size_t rows = 0;
};

/// Dispatches messages until it holds.
template <class Condition> void PumpUntil(Condition const & holds, Waits & waits)
{
    while (!holds())
    {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, poll_interval, QS_ALLINPUT);
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            waits.Add(bench::Nanoseconds([&] { ::DispatchMessageW(&message); }));
    }
}

Filling Fill(std::uint32_t seconds, std::vector<TableSortColumn> const & sort)
{
    Window window;
    workbench::ScreenMetrics metrics;
    CFrameMeasuresPanel panel;
    panel.CreatePanel(window, 7, metrics);
    panel.MoveWindow(0, 0, window_place.Width(), window_place.Height());
    panel.Table().SortBy(sort);
    bench::PumpAll();
    Filling filling;
    filling.time = bench::Nanoseconds([&] {
        panel.ShowRecording(L"noise", [seconds] { return std::make_unique<Noise>(seconds); });
        PumpUntil([&] { return !panel.IsFilling() && panel.Table().RowsShown() == seconds * rows_a_second; },
                  filling.waits);
    });
    filling.rows = panel.Table().RowsShown();
    panel.DestroyWindow();
    CListCtrl native;
    native.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, CRect(CPoint(0, 0), window_place.Size()), &window,
                  8);
    for (int column = 0; column < static_cast<int>(FrameTable::column_count); ++column)
        native.InsertColumn(column, L"column", LVCFMT_RIGHT, 90);
    std::atomic<bool> told = false;
    workbench::FrameMeasuresJob const job([seconds] { return std::make_unique<Noise>(seconds); },
                                          {[&told](std::size_t) { told = true; }, [] {}});
    PumpUntil(
        [&] {
            if (told.exchange(false))
            {
                filling.native.Add(bench::Nanoseconds([&] {
                    native.SetItemCountEx(static_cast<int>(job.Rows()->Size()),
                                          LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
                    native.UpdateWindow();
                }));
            }
            return job.GetResult() != nullptr;
        },
        filling.native);
    return filling;
}

/// What measuring alone takes a row, in nanoseconds.
double MeasuringAlone()
{
    std::vector<workbench::FrameMeasures> rows;
    double const time = bench::Nanoseconds([&] {
        workbench::FrameAnalyser analyser(std::make_unique<Noise>(reference_seconds));
        while (analyser.Step(rows))
            continue;
    });
    return time / static_cast<double>(rows.size());
}

unsigned long long BytesOfARow()
{
    workbench::FrameStore store;
    std::size_t const empty = store.Memory();
    std::vector<workbench::FrameMeasures> const rows(1000);
    for (std::uint32_t second = 0; second < hour; ++second)
        store.Append(rows);
    return (store.Memory() - empty + store.Size() - 1) / store.Size();
}
} // namespace

bool bench::MeasuringFrames()
{
    double const before = MeasuringAlone();
    Filling const all = Fill(hour, {});
    double const alone = (before + MeasuringAlone()) / 2;
    bool met = Report("workbench: an analysis frame of an hour, measured and shown, beside measured alone",
                      all.time / static_cast<double>(all.rows), alone, filling_goal);
    met = Report("workbench: longest waits of the window meanwhile, beside a native list told as often",
                 all.waits.Longest(), all.native.Longest(), wait_goal) &&
          met;
    Filling const sorted = Fill(ten_minutes, {{FrameTable::column_centroid, true}});
    met = Report("workbench: the same of ten minutes, sorted by the centroid", sorted.waits.Longest(),
                 sorted.native.Longest(), wait_goal) &&
          met;
    return ReportCount("workbench: bytes an analysis frame, beside its four numbers", BytesOfARow(),
                       sizeof(workbench::FrameMeasures), bytes_goal) &&
           met;
}
