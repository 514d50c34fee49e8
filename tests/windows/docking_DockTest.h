#pragma once
// What the tests of docking share: a main frame with panes that note what happens to them.

#include <afxcontrolbars.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Input.h"
#include "Pump.h"
#include "TestApp.h"

namespace docking
{
constexpr UINT first_pane = 500;

class Pane : public CDockablePane
{
public:
    int m_paints = 0;
    int m_closes = 0;
    int m_floats = 0;
    int m_docks = 0;
    bool m_mayDock = true;
    bool m_mayFloat = true;
    std::function<void()> m_onSize;
    std::function<void()> m_onParent;
    COLORREF m_colour = RGB(255, 255, 255);

    void OnPressCloseButton() override { ++m_closes; }
    void OnAfterFloat() override { ++m_floats; }
    void OnAfterDock(CBasePane *, LPCRECT, AFX_DOCK_METHOD) override { ++m_docks; }
    BOOL OnBeforeDock(CBasePane **, LPCRECT, AFX_DOCK_METHOD) override { return m_mayDock; }
    BOOL OnBeforeFloat(CRect &, AFX_DOCK_METHOD) override { return m_mayFloat; }
    void OnAfterChangeParent(CWnd *) override
    {
        if (m_onParent)
        {
            auto const action = m_onParent; // it may end the pane
            action();
        }
    }

protected:
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        CDockablePane::OnSize(type, cx, cy);
        if (m_onSize)
        {
            auto const action = m_onSize;
            action();
        }
    }
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        CRect rect;
        GetClientRect(&rect);
        dc.FillSolidRect(&rect, m_colour);
        ++m_paints;
    }

    DECLARE_MESSAGE_MAP()
};

class MainFrame : public CMDIFrameWndEx
{
public:
    int m_closed = 0;
    bool m_mayClose = true;

    BOOL OnCloseDockingPane(CDockablePane *) override
    {
        ++m_closed;
        return m_mayClose;
    }
};

class DockTest : public testing::Test
{
protected:
    void SetUp() override { MakeFrame(); }
    void TearDown() override
    {
        EndFrame();
        tests::App().m_pMainWnd = nullptr;
    }

    void MakeFrame(CRect const & place = CRect(60, 40, 1060, 740))
    {
        m_frame = new MainFrame;
        ASSERT_TRUE(m_frame->Create(nullptr, L"Docking", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, place));
        m_window = m_frame->m_hWnd;
        tests::App().m_pMainWnd = m_frame;
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        m_frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
    }
    void EndFrame()
    {
        if (::IsWindow(m_window))
            ::DestroyWindow(m_window);
        m_panes.clear();
        m_frame = nullptr;
        m_window = nullptr;
    }
    void ShowFrame()
    {
        m_frame->ShowWindow(SW_SHOW);
        m_frame->UpdateWindow();
        ASSERT_TRUE(tests::BringToFront(m_window));
    }

    /// A pane with its window and no place.
    Pane & NewPane(UINT id = 0, CSize size = CSize(200, 150), DWORD style = CBRS_LEFT,
                   DWORD controlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE)
    {
        auto pane = std::make_unique<Pane>();
        if (id == 0)
            id = first_pane + static_cast<UINT>(m_panes.size());
        CString title;
        title.Format(L"Pane %u", id - first_pane);
        static COLORREF const colours[] = {RGB(255, 230, 230), RGB(230, 255, 230), RGB(230, 230, 255),
                                           RGB(255, 255, 220), RGB(255, 230, 255), RGB(220, 255, 255)};
        pane->m_colour = colours[id % std::size(colours)];
        EXPECT_TRUE(pane->Create(title, m_frame, CRect(CPoint(0, 0), size), TRUE, id,
                                 WS_CHILD | WS_VISIBLE | style | CBRS_FLOAT_MULTI, AFX_CBRS_REGULAR_TABS,
                                 controlBarStyle));
        m_panes.push_back(std::move(pane));
        return *m_panes.back();
    }
    Pane & Docked(DWORD side, int extent = 200)
    {
        Pane & pane = NewPane(0, CSize(extent, extent));
        EXPECT_TRUE(pane.DockToFrameWindow(side));
        return pane;
    }

    /// A window's rectangle in the frame's client area.
    CRect Place(CWnd const & window) const
    {
        CRect rect;
        window.GetWindowRect(&rect);
        m_frame->ScreenToClient(&rect);
        return rect;
    }
    static CRect Screen(HWND window)
    {
        CRect rect;
        ::GetWindowRect(window, &rect);
        return rect;
    }
    CRect Inside() const
    {
        CRect rect;
        m_frame->GetClientRect(&rect);
        return rect;
    }
    CRect Centre() const
    {
        CRect rect;
        ::GetWindowRect(m_frame->m_hWndMDIClient, &rect);
        m_frame->ScreenToClient(&rect);
        return rect;
    }
    /// What holds a pane's caption: itself or its tabs.
    static CWnd & Holder(CDockablePane & pane)
    {
        CWnd * const tabbed = pane.GetParentTabbedPane();
        return tabbed != nullptr ? *tabbed : pane;
    }
    static CPoint CaptionOf(CDockablePane & pane)
    {
        CRect const rect = Screen(Holder(pane).m_hWnd);
        return CPoint(rect.left + 30, rect.top + 6);
    }

    MainFrame * m_frame = nullptr;
    HWND m_window = nullptr;
    std::vector<std::unique_ptr<Pane>> m_panes;
};
} // namespace docking
