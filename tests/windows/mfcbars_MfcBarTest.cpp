#include "mfcbars_MfcBarTest.h"

namespace mfcbars
{
IMPLEMENT_DYNCREATE(BarFrame, CMDIFrameWndEx)

BEGIN_MESSAGE_MAP(BarFrame, CMDIFrameWndEx)
    ON_WM_CREATE()
    ON_COMMAND_RANGE(ID_MFC_A, ID_MFC_E, &BarFrame::OnTool)
    ON_COMMAND_RANGE(ID_MFC_INNER, ID_MFC_PANE, &BarFrame::OnTool)
    ON_UPDATE_COMMAND_UI_RANGE(ID_MFC_A, ID_MFC_PANE, &BarFrame::OnUpdateTool)
END_MESSAGE_MAP()

int BarFrame::OnCreate(LPCREATESTRUCT cs)
{
    static UINT const panes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_MFC_PANE};
    if (CMDIFrameWndEx::OnCreate(cs) == -1 || !m_menuBar.Create(this) || !m_status.Create(this) ||
        !m_status.SetIndicators(panes, static_cast<int>(std::size(panes))))
        return -1;
    return 0;
}

void BarFrame::AddTools(DWORD style)
{
    ASSERT_TRUE(m_tools.Create(this, WS_CHILD | WS_VISIBLE | style));
    ASSERT_TRUE(m_tools.LoadToolBar(IDR_MFC_TOOLS));
    RecalcLayout();
}

BOOL BarFrame::OnShowPopupMenu(CMFCPopupMenu * popup)
{
    ++m_popupsShown;
    if (m_onShowPopup)
    {
        auto const action = m_onShowPopup; // it may end the frame
        action(popup);
        return TRUE;
    }
    return CMDIFrameWndEx::OnShowPopupMenu(popup);
}

void BarFrame::OnClosePopupMenu(CMFCPopupMenu * popup)
{
    ++m_popupsClosed;
    CMDIFrameWndEx::OnClosePopupMenu(popup);
}

void BarFrame::OnTool(UINT id)
{
    m_commands.push_back(id);
    if (m_onCommand)
        std::exchange(m_onCommand, {})(id);
}

void BarFrame::OnUpdateTool(CCmdUI * state)
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

void MfcBarTest::SetUp()
{
    m_frame = new BarFrame;
    ASSERT_TRUE(m_frame->LoadFrame(IDR_MFC_MAIN, WS_OVERLAPPEDWINDOW));
    m_window = m_frame->m_hWnd;
    tests::App().m_pMainWnd = m_frame;
    m_frame->SetWindowPos(nullptr, 60, 60, 900, 700, SWP_NOZORDER);
    m_frame->ShowWindow(SW_SHOW);
    m_frame->UpdateWindow();
    ASSERT_TRUE(tests::BringToFront(m_window));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window, m_nowhere)));
    Idle();
}

void MfcBarTest::TearDown()
{
    if (::IsWindow(m_window))
        ::DestroyWindow(m_window);
    tests::App().m_pMainWnd = nullptr;
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
}

int MfcBarTest::MenuIndex(wchar_t const * text) const
{
    for (int at = 0; at < m_frame->m_menuBar.GetCount(); ++at)
    {
        if (m_frame->m_menuBar.GetButtonText(at) == text)
            return at;
    }
    return -1;
}

int MfcBarTest::ItemIndex(CMFCPopupMenu & popup, wchar_t const * text)
{
    for (int at = 0; at < popup.GetMenuItemCount(); ++at)
    {
        if (popup.GetMenuBar()->GetButtonText(at) == text)
            return at;
    }
    return -1;
}

CMFCPopupMenu * MfcBarTest::OpenMenu(wchar_t const * text)
{
    int const index = MenuIndex(text);
    if (index < 0)
        return nullptr;
    tests::MoveMouse(ButtonCentre(m_frame->m_menuBar, index));
    tests::Click(ButtonCentre(m_frame->m_menuBar, index));
    tests::PumpUntil([&] { return !Closed() && CMFCPopupMenu::GetActiveMenu()->IsShown(); });
    // The button has to be up again, or it chooses something.
    tests::PumpUntil([] { return ::GetKeyState(VK_LBUTTON) >= 0; });
    return CMFCPopupMenu::GetActiveMenu();
}

void MfcBarTest::ClickItem(CMFCPopupMenu & popup, wchar_t const * text)
{
    int const index = ItemIndex(popup, text);
    ASSERT_GE(index, 0);
    CPoint const point = ButtonCentre(*popup.GetMenuBar(), index);
    ASSERT_TRUE(tests::MoveMouse(point));
    tests::Click(point);
}

CMDIChildWndEx * MfcBarTest::AddChild(bool maximised)
{
    auto * const child = new CMDIChildWndEx;
    if (!child->Create(nullptr, L"Sheet", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, m_frame))
        return nullptr;
    if (maximised)
        m_frame->MDIMaximize(child);
    Idle();
    return child;
}
} // namespace mfcbars
