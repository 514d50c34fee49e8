// The popup list of entries: what it tells its parent, and how it follows mouse, keys and scroll bar.

#include <gtest/gtest.h>

#include <string>

#include "frame/InternalMessages.h"
#include "Input.h"
#include "list/XComboList.h"
#include "MessageRecorder.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
class ComboPopupList : public testing::Test
{
protected:
    ComboPopupList()
        : m_heard({WM_XCOMBOLIST_VK_RETURN, WM_XCOMBOLIST_VK_ESCAPE, WM_XCOMBOLIST_KEYDOWN, WM_XCOMBOLIST_LBUTTONUP})
    {
    }

    void SetUp() override
    {
        m_heard.Watch(m_host.m_hWnd, "parent");
        ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
        ASSERT_TRUE(m_popup.CreateAt(CRect(200, 200, 320, 300)));
        for (int i = 0; i < 30; ++i)
            m_popup.List().AddString(std::to_wstring(i).c_str());
        ASSERT_TRUE(tests::MoveMouse({600, 600}));
        m_popup.Show(true);
        tests::PumpPosted();
    }

    int Count(UINT message) const { return m_heard.Count("parent", message); }
    bool PressKey(WORD key, UINT message)
    {
        int const before = Count(message);
        tests::Key(key);
        return tests::PumpUntil([&] { return Count(message) > before; });
    }

    tests::ScopedWindow m_host{CRect(100, 100, 500, 500)};
    XListCtrl::CXComboList m_popup{&m_host};
    tests::MessageRecorder m_heard;
};

TEST_F(ComboPopupList, TheFirstShowGivesItsListTheFocus)
{
    EXPECT_TRUE(m_popup.IsWindowVisible());
    EXPECT_EQ(::GetFocus(), m_popup.List().m_hWnd);
    EXPECT_NE(m_popup.GetStyle() & WS_POPUP, 0U);
    m_popup.Show(false);
    EXPECT_FALSE(m_popup.IsWindowVisible());
}

TEST_F(ComboPopupList, KeysAreToldToTheParent)
{
    EXPECT_TRUE(PressKey(VK_DOWN, WM_XCOMBOLIST_KEYDOWN));
    int const first = m_popup.List().GetCurSel();
    EXPECT_TRUE(PressKey(VK_DOWN, WM_XCOMBOLIST_KEYDOWN));
    EXPECT_EQ(m_popup.List().GetCurSel(), first + 1);
    EXPECT_TRUE(PressKey(VK_RETURN, WM_XCOMBOLIST_VK_RETURN));
    EXPECT_TRUE(PressKey(VK_ESCAPE, WM_XCOMBOLIST_VK_ESCAPE));
    EXPECT_EQ(Count(WM_XCOMBOLIST_LBUTTONUP), 0);
}

TEST_F(ComboPopupList, TheItemUnderTheMouseIsSelectedAndAReleaseTold)
{
    int const height = m_popup.List().GetItemHeight(0);
    CPoint const third = tests::ClientPoint(m_popup.List().m_hWnd, {10, 2 * height + height / 2});
    ASSERT_TRUE(tests::MoveMouse(third));
    EXPECT_TRUE(tests::PumpUntil([this] { return m_popup.List().GetCurSel() == 2; }));
    tests::Click(third);
    EXPECT_TRUE(tests::PumpUntil([this] { return Count(WM_XCOMBOLIST_LBUTTONUP) == 1; }));
    EXPECT_EQ(m_popup.List().GetCurSel(), 2);
}

TEST_F(ComboPopupList, TheScrollBarMovesTheList)
{
    HWND const bar = ::FindWindowExW(m_popup.m_hWnd, nullptr, L"ScrollBar", nullptr);
    ASSERT_NE(bar, nullptr);
    auto const scroll = [&](int code, int position = 0) {
        m_popup.SendMessage(WM_VSCROLL, static_cast<WPARAM>(MAKELONG(code, position)), reinterpret_cast<LPARAM>(bar));
        return m_popup.List().GetTopIndex();
    };
    EXPECT_EQ(scroll(SB_LINEDOWN), 1);
    EXPECT_EQ(scroll(SB_LINEDOWN), 2);
    EXPECT_EQ(scroll(SB_LINEUP), 1);
    EXPECT_EQ(scroll(SB_THUMBTRACK, 7), 7);
    EXPECT_EQ(::GetScrollPos(bar, SB_CTL), 7);
    EXPECT_GT(scroll(SB_PAGEDOWN), 8);
    EXPECT_EQ(scroll(SB_TOP), 0);
    EXPECT_EQ(scroll(SB_LINEUP), 0);
}

TEST_F(ComboPopupList, TheThirdLossOfTheFocusIsAnEscape)
{
    // One that has not been shown has lost none yet.
    XListCtrl::CXComboList popup(&m_host);
    ASSERT_TRUE(popup.CreateAt(CRect(0, 0, 50, 50)));
    for (int loss = 1; loss <= 4; ++loss)
    {
        ::SendMessageW(popup.m_hWnd, WM_KILLFOCUS, 0, 0);
        EXPECT_EQ(Count(WM_XCOMBOLIST_VK_ESCAPE), loss < 3 ? 0 : 1) << loss;
    }
}

TEST_F(ComboPopupList, ItsEndLeavesNoWindow)
{
    HWND const list = m_popup.List().m_hWnd;
    m_popup.DestroyWindow();
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_TRUE(m_popup.CreateAt(CRect(0, 0, 50, 50)));
}
} // namespace
