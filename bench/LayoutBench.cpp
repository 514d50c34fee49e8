// The layout engine on real windows beside the window system's own calls.

#include <afxwin.h>

#include <cstdio>
#include <memory>

#include "ControlBench.h"
#include "layout/DialogResizer.h"
#include "Measure.h"

/// 1,000 visible children in a visible window: the resizer's layout beside the same calls with the places worked out
/// before. A layout moves and invalidates each child; what the platform takes for the latter shows in the name.
/// Both sides move the same windows between the same two sizes in turns; each side makes each way as often.
bool bench::LayoutOf1000Children()
{
    constexpr int child_count = 1000;
    CWnd parent;
    if (!parent.CreateEx(0, AfxRegisterWndClass(0), L"layout", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 640, 520,
                         nullptr, nullptr))
        return false;

    std::vector<std::unique_ptr<CWnd>> children;
    CEdges const edges[] = {CEdges::BOTTOM_RIGHT(), CEdges::TOP_LEFT_BOTTOM_RIGHT(), CEdges::HORI_CENTER(),
                            CEdges::BOTTOM_THIRD(), CEdges::RIGHT_HALF()};
    CDialogResizer resizer(parent, CString());
    for (int i = 0; i < child_count; ++i)
    {
        children.push_back(std::make_unique<CWnd>());
        int const x = i % 40 * 15;
        int const y = i / 40 * 18;
        if (!children.back()->Create(L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(x, y, x + 14, y + 16), &parent,
                                     static_cast<UINT>(100 + i)))
            return false;
        resizer.PositionChild(children.back().get(), edges[i % 5], nullptr);
    }

    CSize const sizes[] = {CSize(700, 560), CSize(820, 660)};
    std::vector<CRect> places[2];
    for (int s = 0; s < 2; ++s)
    {
        parent.SetWindowPos(nullptr, 0, 0, sizes[s].cx, sizes[s].cy, SWP_NOMOVE | SWP_NOZORDER);
        resizer.OnSize();
        for (CWnd * child = parent.GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
        {
            CRect rect;
            child->GetWindowRect(rect);
            parent.ScreenToClient(rect);
            places[s].push_back(rect);
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
    auto const side = [&](auto const & work) {
        return [&resizeParent, &work] {
            resizeParent();
            double const time = Nanoseconds(work);
            PumpAll();
            return time;
        };
    };
    auto const layout = [&] { resizer.OnSize(); };
    auto const plain = [&](bool invalidates) {
        HWND child = ::GetWindow(parent.m_hWnd, GW_CHILD);
        for (CRect const & place : places[now])
        {
            ::MoveWindow(child, place.left, place.top, place.Width(), place.Height(), TRUE);
            if (invalidates)
                ::InvalidateRect(child, nullptr, FALSE);
            child = ::GetWindow(child, GW_HWNDNEXT);
        }
    };
    auto const moves = [&] { plain(false); };
    auto const sameCalls = [&] { plain(true); };
    Rounds rounds;
    rounds.seconds = 60; // the platform takes up to a millisecond for each window
    Comparison const compared = Compare(side(layout), side(sameCalls), rounds);
    rounds.seconds = 15;
    Comparison const withoutInvalidating = Compare(side(layout), side(moves), rounds);
    parent.DestroyWindow();
    char name[160];
    std::snprintf(
        name, sizeof name,
        "layout of 1,000 children (%.2f times MoveWindow alone) beside MoveWindow and InvalidateRect, a child",
        withoutInvalidating.ratio);
    return bench::Report(name, compared, child_count, 1.05);
}
