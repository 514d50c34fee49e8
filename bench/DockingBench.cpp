// Docked panes beside the same windows moved by the window system's own call.

#include <afxcontrolbars.h>

#include <memory>
#include <vector>

#include "ControlBench.h"
#include "Measure.h"

namespace
{
struct Place
{
    HWND window;
    CRect rect;
};

std::vector<Place> PlacesOf(CWnd const & frame)
{
    std::vector<Place> places;
    for (HWND child = ::GetWindow(frame.m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if ((::GetWindowLong(child, GWL_STYLE) & WS_VISIBLE) == 0)
            continue;
        CRect rect;
        ::GetWindowRect(child, &rect);
        frame.ScreenToClient(&rect);
        places.push_back({child, rect});
    }
    return places;
}
} // namespace

/// A frame with 12 docked panes that goes to and fro between two sizes: its layout beside one pass of DeferWindowPos
/// over the same windows, with the places worked out before.
bool bench::ResizingDockedPanes()
{
    auto * const frame = new CFrameWndEx;
    if (!frame->Create(nullptr, L"docking", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE,
                       CRect(20, 20, 920, 720)))
        return false;
    frame->EnableDocking(CBRS_ALIGN_ANY);
    CWnd centre;
    centre.Create(L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), frame, AFX_IDW_PANE_FIRST);
    std::vector<std::unique_ptr<CDockablePane>> panes;
    DWORD const sides[] = {CBRS_ALIGN_LEFT, CBRS_ALIGN_RIGHT, CBRS_ALIGN_TOP, CBRS_ALIGN_BOTTOM};
    for (UINT id = 500; id < 512; ++id)
    {
        panes.push_back(std::make_unique<CDockablePane>());
        CDockablePane & pane = *panes.back();
        if (!pane.Create(L"Pane", frame, CRect(0, 0, 120, 90), TRUE, id, WS_CHILD | WS_VISIBLE | CBRS_LEFT))
            return false;
        if (id < 504)
            pane.DockToFrameWindow(sides[id % 4]);
        else
            pane.DockToWindow(panes[id % 4].get(), id % 2 == 0 ? CBRS_ALIGN_BOTTOM : CBRS_ALIGN_RIGHT);
    }
    CDockingManager & manager = *frame->GetDockingManager();
    CSize const sizes[] = {CSize(900, 700), CSize(1010, 790)};
    int now = 1;
    auto const resize = [&] {
        now = 1 - now;
        manager.LockUpdate(TRUE);
        frame->SetWindowPos(nullptr, 0, 0, sizes[now].cx, sizes[now].cy, SWP_NOMOVE | SWP_NOZORDER);
        PumpAll();
    };
    std::vector<Place> places[2];
    for (int round = 0; round < 2; ++round)
    {
        resize();
        manager.LockUpdate(FALSE);
        PumpAll();
        places[now] = PlacesOf(*frame);
    }
    auto const ours = [&] {
        resize();
        double const time = Nanoseconds([&] { manager.LockUpdate(FALSE); });
        PumpAll();
        return time;
    };
    auto const plain = [&] {
        resize();
        double const time = Nanoseconds([&] {
            HDWP moving = ::BeginDeferWindowPos(static_cast<int>(places[now].size()));
            for (Place const & place : places[now])
            {
                moving = ::DeferWindowPos(moving, place.window, nullptr, place.rect.left, place.rect.top,
                                          place.rect.Width(), place.rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
            }
            ::EndDeferWindowPos(moving);
        });
        manager.LockUpdate(FALSE); // finds all in place
        PumpAll();
        return time;
    };
    Rounds rounds;
    rounds.seconds = 30;
    Comparison const compared = Compare(ours, plain, rounds);
    size_t const windows = places[0].size();
    frame->DestroyWindow();
    return Report("resizing a frame with 12 docked panes beside one DeferWindowPos pass, a window", compared,
                  static_cast<double>(windows), 1.2);
}
