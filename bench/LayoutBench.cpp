// The layout engine on real windows beside the window system's own calls.

#include <afxwin.h>
#include "layout/DialogResizer.h"
#include "ControlBench.h"
#include "Measure.h"

#include <memory>

/// 1,000 visible children in a visible window: the resizer's layout beside the same MoveWindow calls alone.
/// Both sides move the same windows between the same two sizes in turns; each side makes each way as often.
bool bench::LayoutOf1000Children()
{
    constexpr int childCount = 1000;
    CWnd parent;
    if (!parent.CreateEx(0, AfxRegisterWndClass(0), L"layout", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 640, 520,
                         nullptr, nullptr))
        return false;

    std::vector<std::unique_ptr<CWnd>> children;
    CEdges const edges[] = {CEdges::BOTTOM_RIGHT(), CEdges::TOP_LEFT_BOTTOM_RIGHT(), CEdges::HORI_CENTER(),
                            CEdges::BOTTOM_THIRD(), CEdges::RIGHT_HALF()};
    CDialogResizer resizer(parent, CString());
    for (int i = 0; i < childCount; ++i)
    {
        children.push_back(std::make_unique<CWnd>());
        int const x = i % 40 * 15;
        int const y = i / 40 * 18;
        if (!children.back()->Create(L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(x, y, x + 14, y + 16), &parent,
                                     static_cast<UINT>(100 + i)))
            return false;
        resizer.PositionChild(children.back().get(), edges[i % 5], nullptr);
    }

    struct Place
    {
        HWND window;
        CRect rect;
    };
    CSize const sizes[] = {CSize(700, 560), CSize(820, 660)};
    std::vector<Place> places[2];
    for (int s = 0; s < 2; ++s)
    {
        parent.SetWindowPos(nullptr, 0, 0, sizes[s].cx, sizes[s].cy, SWP_NOMOVE | SWP_NOZORDER);
        resizer.OnSize();
        for (CWnd * child = parent.GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
        {
            CRect rect;
            child->GetWindowRect(rect);
            parent.ScreenToClient(rect);
            places[s].push_back({child->m_hWnd, rect});
        }
        PumpAll();
    }

    // Each side goes to the size where the other has not just been, so that all windows move each time.
    int now = 1;
    auto const resizeParent = [&] {
        now = 1 - now;
        parent.SetWindowPos(nullptr, 0, 0, sizes[now].cx, sizes[now].cy, SWP_NOMOVE | SWP_NOZORDER);
        PumpAll();
    };
    Comparison const compared = Compare(
        [&] {
            resizeParent();
            double const time = Nanoseconds([&] { resizer.OnSize(); });
            PumpAll();
            return time;
        },
        [&] {
            resizeParent();
            double const time = Nanoseconds([&] {
                for (Place const & place : places[now])
                    ::MoveWindow(place.window, place.rect.left, place.rect.top, place.rect.Width(), place.rect.Height(),
                                 TRUE);
            });
            PumpAll();
            return time;
        });
    parent.DestroyWindow();
    return bench::Report("layout of 1,000 children beside 1,000 MoveWindow calls, a child", compared, childCount, 1.05);
}
