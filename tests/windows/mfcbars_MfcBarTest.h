#pragma once
// What the tests of the bars that draw themselves share: an MDI frame with a menu bar, a tool bar and a status bar,
// that notes what it is asked.

#include <afxcontrolbars.h>
#include <afxext.h>
#include <afxmenubar.h>
#include <afxpopupmenu.h>
#include <afxstatusbar.h>
#include <afxtoolbar.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "Input.h"
#include "mfcbars_resource.h"
#include "Pump.h"
#include "TestApp.h"

namespace mfcbars
{
class BarFrame : public CMDIFrameWndEx
{
    DECLARE_DYNCREATE(BarFrame)

public:
    CMFCMenuBar m_menuBar;
    CMFCToolBar m_tools;
    CMFCStatusBar m_status;

    std::vector<UINT> m_commands;
    std::function<void(UINT)> m_onCommand;
    std::map<UINT, std::function<void(CCmdUI *)>> m_updates;
    std::function<void(CMFCPopupMenu *)> m_onShowPopup;
    int m_popupsShown = 0;
    int m_popupsClosed = 0;

    void AddTools(DWORD style = CBRS_TOP | CBRS_TOOLTIPS);
    BOOL OnShowPopupMenu(CMFCPopupMenu * popup) override;
    void OnClosePopupMenu(CMFCPopupMenu * popup) override;
    std::wstring StatusText() const { return CString(m_status.GetPaneText(0)).GetString(); }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnTool(UINT id);
    afx_msg void OnUpdateTool(CCmdUI * state);

    DECLARE_MESSAGE_MAP()
};

class MfcBarTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    void Idle()
    {
        tests::PumpPosted();
        tests::App().OnIdle(0);
    }
    /// The middle of a button, on the screen.
    CPoint ButtonCentre(CMFCToolBar const & bar, int index) const
    {
        CRect rect;
        bar.GetItemRect(index, &rect);
        return tests::ClientPoint(bar.m_hWnd, rect.CenterPoint());
    }
    int MenuIndex(wchar_t const * text) const;
    static int ItemIndex(CMFCPopupMenu & popup, wchar_t const * text);
    /// Clicks on a name of the menu bar and waits for its menu.
    CMFCPopupMenu * OpenMenu(wchar_t const * text);
    /// Clicks on an item of a menu.
    void ClickItem(CMFCPopupMenu & popup, wchar_t const * text);
    bool Closed() const { return CMFCPopupMenu::GetActiveMenu() == nullptr; }
    bool Commanded(UINT id) const { return m_frame->m_commands == std::vector<UINT>{id}; }
    CMDIChildWndEx * AddChild(bool maximised = false);

    BarFrame * m_frame = nullptr; // deletes itself
    HWND m_window = nullptr;
    CPoint m_nowhere{700, 500}; // in the frame's client area, over no bar
};
} // namespace mfcbars
