// Tool tips of windows that asked for them.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Input.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
constexpr UINT id_button = 20;

class Tipping : public tests::ScopedWindow
{
public:
    Tipping() : ScopedWindow(CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE) {}

    int m_asked = 0;
    bool m_ownTools = false;
    HWND m_tip = nullptr;
    HWND m_tool = nullptr;

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO * info) const override
    {
        if (!m_ownTools)
            return CWnd::OnToolHitTest(point, info);
        if (point.x < 150)
            return -1;
        info->hwnd = m_hWnd;
        info->uId = 77;
        info->rect = CRect(150, 0, 300, 200);
        info->lpszText = LPSTR_TEXTCALLBACK;
        return 77;
    }

protected:
    afx_msg BOOL OnNeedText(UINT id, NMHDR * header, LRESULT *)
    {
        EXPECT_EQ(id, 0u); // the tip control's own id
        auto * const info = reinterpret_cast<NMTTDISPINFO *>(header);
        ++m_asked;
        m_tip = header->hwndFrom;
        m_tool = (info->uFlags & TTF_IDISHWND) != 0 ? reinterpret_cast<HWND>(header->idFrom) : nullptr;
        info->lpszText = const_cast<LPTSTR>(L"explanation");
        ::SendMessage(header->hwndFrom, TTM_SETDELAYTIME, TTDT_AUTOPOP, 20000);
        return TRUE;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Tipping, CWnd)
    ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &Tipping::OnNeedText)
END_MESSAGE_MAP()

class CoreToolTips : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            m_button.Create(L"BUTTON", L"b", WS_CHILD | WS_VISIBLE, CRect(20, 20, 120, 60), &m_window, id_button));
        ASSERT_TRUE(tests::BringToFront(m_window.m_hWnd));
        ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window.m_hWnd, {5, 150})));
        tests::PumpPosted();
    }
    void TearDown() override { m_button.DestroyWindow(); }

    bool Shown() const { return m_window.m_tip != nullptr && ::IsWindowVisible(m_window.m_tip); }

    Tipping m_window;
    CWnd m_button;
};

TEST_F(CoreToolTips, ChildUnderTheCursorGetsItsTip)
{
    m_window.EnableToolTips();
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window.m_hWnd, {50, 40})));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_window.m_asked > 0 && Shown(); }));
    EXPECT_EQ(m_window.m_tool, m_button.m_hWnd);
    wchar_t text[30] = {};
    ::GetWindowText(m_window.m_tip, text, 30);
    EXPECT_STREQ(text, L"explanation");

    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window.m_hWnd, {5, 150})));
    EXPECT_TRUE(tests::PumpUntil([this] { return !Shown(); }));
}

TEST_F(CoreToolTips, CancellingHidesTheTip)
{
    m_window.EnableToolTips();
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window.m_hWnd, {50, 40})));
    ASSERT_TRUE(tests::PumpUntil([this] { return Shown(); }));
    CWnd::CancelToolTips();
    EXPECT_FALSE(Shown());
}

TEST_F(CoreToolTips, WindowNamesItsOwnTools)
{
    m_window.m_ownTools = true;
    m_window.EnableToolTips();
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window.m_hWnd, {200, 100})));
    ASSERT_TRUE(tests::PumpUntil([this] { return Shown(); }));
    EXPECT_EQ(m_window.m_tool, nullptr);
}

TEST_F(CoreToolTips, WithoutThemNobodyIsAsked)
{
    m_window.EnableToolTips();
    m_window.EnableToolTips(FALSE);
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window.m_hWnd, {50, 40})));
    tests::PumpFor(std::chrono::milliseconds(900));
    EXPECT_EQ(m_window.m_asked, 0);
}

TEST_F(CoreToolTips, HitTestGivesTheChildsIdAndWindow)
{
    TOOLINFO info{};
    info.cbSize = sizeof info;
    EXPECT_EQ(m_window.OnToolHitTest({50, 40}, &info), static_cast<INT_PTR>(id_button));
    EXPECT_EQ(info.hwnd, m_window.m_hWnd);
    EXPECT_EQ(info.uId, reinterpret_cast<UINT_PTR>(m_button.m_hWnd));
    EXPECT_NE(info.uFlags & TTF_IDISHWND, 0u);
    EXPECT_EQ(info.lpszText, LPSTR_TEXTCALLBACK);
    EXPECT_EQ(m_window.OnToolHitTest({5, 150}, &info), -1);
    m_button.ShowWindow(SW_HIDE);
    EXPECT_EQ(m_window.OnToolHitTest({50, 40}, &info), -1);
}
} // namespace
