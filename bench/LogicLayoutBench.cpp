// The layout engine's arithmetic beside the plain loop over the same data.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <random>

#include "layout/DialogResizer.h"
#include "layout/LayoutPlatform.h"
#include "LogicBench.h"
#include "Measure.h"

namespace
{
constexpr int child_count = 1000;

/// Windows that are entries of a table: as cheap as a window system can be, so that what is left is the arithmetic.
class TableOfWindows final : public LayoutPlatform
{
public:
    struct Window
    {
        CRect rect;
        bool valid = true;
    };
    std::vector<Window> windows = std::vector<Window>(child_count + 1);

    static HWND Handle(std::size_t index) { return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(index + 1)); }
    static std::size_t Index(HWND window) { return reinterpret_cast<std::uintptr_t>(window) - 1; }
    static CWnd * Object(std::size_t index) { return reinterpret_cast<CWnd *>(Handle(index)); }

    HWND HandleOf(CWnd const & window) override { return reinterpret_cast<HWND>(const_cast<CWnd *>(&window)); }
    CWnd * DialogItem(CWnd &, int) override { return nullptr; }
    bool IsWindow(HWND) override { return true; }
    void GetWindowRect(HWND window, RECT & rect) override { rect = windows[Index(window)].rect; }
    HWND GetParent(HWND) override { return Handle(0); }
    void ScreenToClient(HWND, POINT &) override {}
    HWND FirstChild(HWND) override { return Handle(1); }
    HWND NextWindow(HWND window) override
    {
        return Index(window) < static_cast<std::size_t>(child_count) ? Handle(Index(window) + 1) : nullptr;
    }
    void MoveWindow(HWND window, int left, int top, int width, int height) override
    {
        windows[Index(window)].rect = CRect(left, top, left + width, top + height);
    }
    void MoveDialog(CWnd &, int, int, int, int) override {}
    void Invalidate(HWND window) override { windows[Index(window)].valid = false; }
    void ReportAssertion(wchar_t const *, wchar_t const *, unsigned int) override { std::abort(); }
};

TableOfWindows table;

struct PlainChild
{
    CRect design;
    CRect fractions;
};

std::vector<PlainChild> plainChildren;
CSize const design_size(2000, 1500);

void SetUp(CDialogResizer & resizer)
{
    std::mt19937 random(7);
    plainChildren.clear();
    for (int i = 0; i < child_count; ++i)
    {
        CRect const design(static_cast<int>(random() % 1900), static_cast<int>(random() % 1400), 1950, 1450);
        CRect const fractions(static_cast<int>(random() % 10001), static_cast<int>(random() % 10001), 10000, 10000);
        plainChildren.push_back({design, fractions});
        resizer.PositionChild(TableOfWindows::Object(static_cast<std::size_t>(i) + 1), fractions, &design);
    }
}

void SetSize(int round)
{
    table.windows[0].rect = CRect(0, 0, design_size.cx + round % 500, design_size.cy + round % 300);
}

/// The same formulas over an array, with the results written where the resizer's window system writes them.
void LayOutByPlainLoop()
{
    int const dx = table.windows[0].rect.Width() - design_size.cx;
    int const dy = table.windows[0].rect.Height() - design_size.cy;
    for (std::size_t i = 0; i < plainChildren.size(); ++i)
    {
        PlainChild const & child = plainChildren[i];
        table.windows[i + 1].rect = CRect(child.design.left + child.fractions.left * dx / 10000,
                                          child.design.top + child.fractions.top * dy / 10000,
                                          child.design.right + child.fractions.right * dx / 10000,
                                          child.design.bottom + child.fractions.bottom * dy / 10000);
        table.windows[i + 1].valid = false;
    }
}
} // namespace

LayoutPlatform & LayoutPlatform::Instance()
{
    return table;
}

bool bench::LayoutArithmetic()
{
    table.windows[0].rect = CRect(CPoint(0, 0), design_size);
    CDialogResizer resizer(*TableOfWindows::Object(0), CString());
    SetUp(resizer);
    int round = 0;
    Comparison const compared = Compare(Repeating([&resizer, round]() mutable {
                                            SetSize(++round);
                                            resizer.OnSize();
                                            benchmark::ClobberMemory();
                                        }),
                                        Repeating([round]() mutable {
                                            SetSize(++round);
                                            LayOutByPlainLoop();
                                            benchmark::ClobberMemory();
                                        }));
    return ReportTime("layout arithmetic beside a plain loop, a child", compared.ours / child_count,
                      compared.reference / child_count, 20);
}
