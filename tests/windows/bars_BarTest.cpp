#include "bars_BarTest.h"

namespace bars
{
BEGIN_MESSAGE_MAP(BarFrame, CFrameWnd)
    ON_COMMAND_RANGE(ID_TOOL_A, ID_TOOL_E, &BarFrame::OnTool)
    ON_COMMAND_RANGE(ID_BAR_GO, ID_BAR_GO, &BarFrame::OnTool)
    ON_UPDATE_COMMAND_UI_RANGE(ID_TOOL_A, ID_PANE_OWN, &BarFrame::OnUpdateTool)
    ON_NOTIFY(TBN_DROPDOWN, AFX_IDW_TOOLBAR, &BarFrame::OnDropDown)
END_MESSAGE_MAP()

void BarFrame::AddTools(DWORD style)
{
    ASSERT_TRUE(m_tools.CreateEx(this, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | style));
    ASSERT_TRUE(m_tools.LoadToolBar(IDR_BARS));
}

void BarFrame::AddSide(DWORD style)
{
    ASSERT_TRUE(m_side.CreateEx(this, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 0, 0), id_side_bar));
    ASSERT_TRUE(m_side.LoadToolBar(IDR_BARS));
}

void BarFrame::AddDialogBar(UINT style)
{
    ASSERT_TRUE(m_dialog.Create(this, IDD_BAR, WS_VISIBLE | style, AFX_IDW_DIALOGBAR));
}

void BarFrame::AddRebar()
{
    ASSERT_TRUE(m_rebar.Create(this));
    ASSERT_TRUE(m_inRebar.CreateEx(this, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP, CRect(0, 0, 0, 0),
                                   id_tools_in_rebar));
    ASSERT_TRUE(m_inRebar.LoadToolBar(IDR_BARS));
    ASSERT_TRUE(m_editInRebar.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(0, 0, 120, 22), this, 900));
    ASSERT_TRUE(m_rebar.AddBar(&m_inRebar));
    ASSERT_TRUE(m_rebar.AddBar(&m_editInRebar, L"Text"));
}

void BarFrame::AddStatusBar()
{
    static UINT const panes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_INDICATOR_NUM, ID_INDICATOR_SCRL};
    ASSERT_TRUE(m_status.Create(this));
    ASSERT_TRUE(m_status.SetIndicators(panes, static_cast<int>(std::size(panes))));
}

void BarFrame::AddClient()
{
    ASSERT_TRUE(m_client.Create(AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_WINDOW)), L"",
                                WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST));
}

void BarFrame::AddAll()
{
    AddTools();
    AddRebar();
    AddDialogBar();
    AddSide();
    AddStatusBar();
    AddClient();
}

void BarTest::ExpectCovered() const
{
    std::vector<CRect> places;
    for (HWND child = ::GetWindow(m_window, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if ((::GetWindowLong(child, GWL_STYLE) & WS_VISIBLE) != 0)
            places.push_back(m_frame->Place(*CWnd::FromHandle(child)));
    }
    CRect const inside = m_frame->Inside();
    long long covered = 0;
    for (CRect const & place : places)
    {
        EXPECT_EQ(place & inside, place);
        covered += static_cast<long long>(place.Width()) * place.Height();
        for (CRect const & other : places)
        {
            if (&other != &place)
            {
                EXPECT_TRUE((place & other).IsRectEmpty());
            }
        }
    }
    EXPECT_EQ(covered, static_cast<long long>(inside.Width()) * inside.Height());
}
} // namespace bars
