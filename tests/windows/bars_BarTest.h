#pragma once
// What the tests of bars share: a frame with bars that notes what it is asked.

#include <afxcmn.h>
#include <afxext.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "bars_resource.h"
#include "Input.h"
#include "Pump.h"
#include "TestApp.h"

namespace bars
{
constexpr UINT id_side_bar = AFX_IDW_CONTROLBAR_FIRST + 20;
constexpr UINT id_tools_in_rebar = AFX_IDW_CONTROLBAR_FIRST + 21;

/// A status bar with a pane that is drawn by it.
class DrawingStatusBar : public CStatusBar
{
public:
    int m_drawn = 0;
    UINT m_drawnItem = 0;

    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        ++m_drawn;
        m_drawnItem = item->itemID;
        ::FillRect(item->hDC, &item->rcItem, ::GetSysColorBrush(COLOR_HIGHLIGHT));
    }
};

class BarFrame : public CFrameWnd
{
public:
    CToolBar m_tools; // at the top
    CToolBar m_side;  // at the left
    CDialogBar m_dialog;
    CReBar m_rebar;
    CToolBar m_inRebar;
    CEdit m_editInRebar;
    DrawingStatusBar m_status;
    CWnd m_client;

    std::vector<UINT> m_commands;
    std::function<void(UINT)> m_onCommand;
    std::map<UINT, std::function<void(CCmdUI *)>> m_updates;
    std::vector<int> m_dropDowns;

    BOOL CreateFrame(CRect const & place) { return Create(nullptr, L"Bars", WS_OVERLAPPEDWINDOW, place); }
    void AddTools(DWORD style = CBRS_TOP | CBRS_TOOLTIPS | CBRS_FLYBY);
    void AddSide(DWORD style = CBRS_LEFT);
    void AddDialogBar(UINT style = CBRS_TOP);
    void AddRebar();
    void AddStatusBar();
    void AddClient();
    void AddAll();

    /// A window's place in the client area.
    CRect Place(CWnd const & window) const
    {
        CRect rect;
        window.GetWindowRect(&rect);
        ScreenToClient(&rect);
        return rect;
    }
    CRect Inside() const
    {
        CRect rect;
        GetClientRect(&rect);
        return rect;
    }
    std::wstring StatusText() const { return CString(m_status.GetPaneText(0)).GetString(); }

protected:
    afx_msg void OnTool(UINT id)
    {
        m_commands.push_back(id);
        if (m_onCommand)
            std::exchange(m_onCommand, {})(id);
    }
    afx_msg void OnUpdateTool(CCmdUI * state)
    {
        auto const found = m_updates.find(state->m_nID);
        if (found == m_updates.end())
            state->ContinueRouting();
        else
        {
            auto const update = found->second; // it may end the frame
            update(state);
        }
    }
    afx_msg void OnDropDown(NMHDR * header, LRESULT * result)
    {
        m_dropDowns.push_back(reinterpret_cast<NMTOOLBAR *>(header)->iItem);
        *result = TBDDRET_DEFAULT;
    }

    DECLARE_MESSAGE_MAP()
};

class BarTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_frame = new BarFrame;
        ASSERT_TRUE(m_frame->CreateFrame(CRect(60, 60, 760, 560)));
        m_window = m_frame->m_hWnd;
        tests::App().m_pMainWnd = m_frame;
    }
    void TearDown() override
    {
        if (::IsWindow(m_window))
            ::DestroyWindow(m_window);
        tests::App().m_pMainWnd = nullptr;
    }
    void Show()
    {
        m_frame->RecalcLayout();
        m_frame->ShowWindow(SW_SHOW);
        m_frame->UpdateWindow();
        ASSERT_TRUE(tests::BringToFront(m_window));
        Idle();
    }
    void Idle()
    {
        tests::PumpPosted();
        tests::App().OnIdle(0);
    }
    /// Whether the visible bars and the client window cover the frame's client area, none over another.
    void ExpectCovered() const;
    CPoint ButtonCentre(CToolBar const & bar, UINT id) const
    {
        CRect rect;
        bar.GetItemRect(bar.CommandToIndex(id), &rect);
        return tests::ClientPoint(bar.m_hWnd, rect.CenterPoint());
    }

    BarFrame * m_frame = nullptr; // deletes itself
    HWND m_window = nullptr;
};
} // namespace bars
