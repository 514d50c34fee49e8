// Notifications of controls: the control's own object comes first, then the parent.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ScopedWindow.h"

namespace
{
using Calls = std::vector<std::string>;
constexpr UINT id_control = 10;
constexpr UINT notice_taken = 0x0FFF0001; // only its low word is in the map, as for any notification
constexpr UINT notice_shared = 0x0FFF0002;
constexpr UINT notice_parent = 0x0FFF0003;

class Control : public CWnd
{
public:
    explicit Control(Calls & calls) : m_calls(calls) {}

    BOOL m_take = TRUE;
    HBRUSH m_brush = nullptr;

protected:
    afx_msg void OnTaken(NMHDR *, LRESULT * result)
    {
        m_calls.push_back("control taken");
        *result = 5;
    }
    afx_msg BOOL OnShared(NMHDR *, LRESULT *)
    {
        m_calls.push_back("control shared");
        return m_take;
    }
    afx_msg void OnClickedReflected() { m_calls.push_back("control clicked"); }
    afx_msg BOOL OnDoubleReflected()
    {
        m_calls.push_back("control double");
        return m_take;
    }
    afx_msg HBRUSH CtlColor(CDC * dc, UINT kind)
    {
        m_calls.push_back("control colour " + std::to_string(kind) + (dc != nullptr ? " dc" : ""));
        return m_brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT item) { m_calls.push_back("control draw " + std::to_string(item->itemID)); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT item)
    {
        m_calls.push_back("control measure");
        item->itemHeight = 17;
    }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT) { return -1; }
    afx_msg void HScroll(UINT code, UINT position)
    {
        m_calls.push_back("control scroll " + std::to_string(code) + " " + std::to_string(position));
    }

    DECLARE_MESSAGE_MAP()

private:
    Calls & m_calls;
};

BEGIN_MESSAGE_MAP(Control, CWnd)
    ON_NOTIFY_REFLECT(notice_taken, &Control::OnTaken)
    ON_NOTIFY_REFLECT_EX(notice_shared, &Control::OnShared)
    ON_CONTROL_REFLECT(BN_CLICKED, &Control::OnClickedReflected)
    ON_CONTROL_REFLECT_EX(BN_DOUBLECLICKED, &Control::OnDoubleReflected)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
END_MESSAGE_MAP()

class Parent : public tests::ScopedWindow
{
public:
    explicit Parent(Calls & calls) : ScopedWindow(CRect(0, 0, 100, 100), WS_OVERLAPPED), m_calls(calls) {}

    BOOL m_takeEx = TRUE;

protected:
    afx_msg void OnNotice(NMHDR *, LRESULT * result)
    {
        m_calls.push_back("parent notice");
        *result = 6;
    }
    afx_msg void OnNoticeRange(UINT id, NMHDR *, LRESULT *) { m_calls.push_back("parent range " + std::to_string(id)); }
    afx_msg BOOL OnNoticeEx(UINT id, NMHDR *, LRESULT *)
    {
        m_calls.push_back("parent ex " + std::to_string(id));
        return m_takeEx;
    }
    afx_msg void OnClicked() { m_calls.push_back("parent clicked"); }
    afx_msg void OnDouble() { m_calls.push_back("parent double"); }
    afx_msg void OnControlRange(UINT id) { m_calls.push_back("parent control range " + std::to_string(id)); }

    DECLARE_MESSAGE_MAP()

private:
    Calls & m_calls;
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
    ON_NOTIFY(notice_taken, id_control, &Parent::OnNotice)
    ON_NOTIFY(notice_shared, id_control, &Parent::OnNotice)
    ON_NOTIFY_RANGE(notice_parent, id_control, id_control + 1, &Parent::OnNoticeRange)
    ON_NOTIFY_EX(notice_parent, id_control + 2, &Parent::OnNoticeEx)
    ON_BN_CLICKED(id_control, &Parent::OnClicked)
    ON_BN_DOUBLECLICKED(id_control, &Parent::OnDouble)
    ON_CONTROL_RANGE(BN_SETFOCUS, id_control, id_control + 1, &Parent::OnControlRange)
END_MESSAGE_MAP()

class CoreReflection : public testing::Test
{
protected:
    CoreReflection() : m_host(m_calls), m_control(m_calls)
    {
        m_control.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 10, 10), &m_host, id_control);
    }
    ~CoreReflection() override { m_control.DestroyWindow(); }

    LRESULT Notify(UINT code)
    {
        NMHDR header{m_control.m_hWnd, id_control, code};
        return m_host.SendMessage(WM_NOTIFY, id_control, reinterpret_cast<LPARAM>(&header));
    }
    LRESULT Command(UINT code)
    {
        return m_host.SendMessage(WM_COMMAND, MAKEWPARAM(id_control, code), reinterpret_cast<LPARAM>(m_control.m_hWnd));
    }
    Calls Take() { return std::exchange(m_calls, {}); }

    Calls m_calls;
    Parent m_host;
    Control m_control;
};

TEST_F(CoreReflection, NotificationThatTheControlTakesNeverReachesTheParent)
{
    EXPECT_EQ(Notify(notice_taken), 5);
    EXPECT_EQ(Take(), Calls{"control taken"});
}

TEST_F(CoreReflection, ControlMayLeaveANotificationToTheParent)
{
    m_control.m_take = FALSE;
    EXPECT_EQ(Notify(notice_shared), 6);
    EXPECT_EQ(Take(), (Calls{"control shared", "parent notice"}));
    m_control.m_take = TRUE;
    Notify(notice_shared);
    EXPECT_EQ(Take(), Calls{"control shared"});
}

TEST_F(CoreReflection, NotificationWithoutReflectionGoesToTheParentsRange)
{
    Notify(notice_parent);
    EXPECT_EQ(Take(), Calls{"parent range 10"});
    m_control.SetDlgCtrlID(id_control + 2);
    Notify(notice_parent);
    EXPECT_EQ(Take(), Calls{"parent ex 12"});
}

TEST_F(CoreReflection, CommandNotificationIsReflectedToo)
{
    EXPECT_EQ(Command(BN_CLICKED), 1);
    EXPECT_EQ(Take(), Calls{"control clicked"});
    m_control.m_take = FALSE;
    Command(BN_DOUBLECLICKED);
    EXPECT_EQ(Take(), (Calls{"control double", "parent double"}));
    Command(BN_SETFOCUS);
    EXPECT_EQ(Take(), Calls{"parent control range 10"});
}

TEST_F(CoreReflection, ControlChoosesItsColours)
{
    HDC const dc = ::GetDC(m_host.m_hWnd);
    m_control.m_brush = static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH));
    auto const ask = [&] {
        return m_host.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                                  reinterpret_cast<LPARAM>(m_control.m_hWnd));
    };
    EXPECT_EQ(ask(), reinterpret_cast<LRESULT>(m_control.m_brush));
    EXPECT_EQ(Take(), Calls{"control colour 6 dc"});
    m_control.m_brush = nullptr; // no choice: the system's
    EXPECT_NE(ask(), 0);
    EXPECT_EQ(Take(), Calls{"control colour 6 dc"});
    ::ReleaseDC(m_host.m_hWnd, dc);
}

TEST_F(CoreReflection, OwnerDrawMessagesGoToTheControl)
{
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_STATIC;
    draw.hwndItem = m_control.m_hWnd;
    draw.itemID = 3;
    EXPECT_EQ(m_host.SendMessage(WM_DRAWITEM, id_control, reinterpret_cast<LPARAM>(&draw)), TRUE);
    MEASUREITEMSTRUCT measure{};
    measure.CtlType = ODT_LISTBOX;
    measure.CtlID = id_control;
    EXPECT_EQ(m_host.SendMessage(WM_MEASUREITEM, id_control, reinterpret_cast<LPARAM>(&measure)), TRUE);
    EXPECT_EQ(measure.itemHeight, 17u);
    COMPAREITEMSTRUCT compare{};
    compare.hwndItem = m_control.m_hWnd;
    EXPECT_EQ(m_host.SendMessage(WM_COMPAREITEM, id_control, reinterpret_cast<LPARAM>(&compare)), -1);
    EXPECT_EQ(Take(), (Calls{"control draw 3", "control measure"}));
}

TEST_F(CoreReflection, ScrollMessagesGoToTheControl)
{
    m_host.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 9), reinterpret_cast<LPARAM>(m_control.m_hWnd));
    EXPECT_EQ(Take(), Calls{"control scroll 4 9"});
}

TEST_F(CoreReflection, NotificationsAreIgnoredWhileDataAreExchanged)
{
    class Exchanging : public Parent
    {
    public:
        using Parent::Parent;

        HWND m_sender = nullptr;
        bool m_fail = false;

    protected:
        void DoDataExchange(CDataExchange * pDX) override
        {
            SendMessage(WM_COMMAND, MAKEWPARAM(id_control, BN_DOUBLECLICKED), reinterpret_cast<LPARAM>(m_sender));
            if (m_fail)
                pDX->Fail();
        }
    };
    Exchanging window(m_calls);
    window.m_sender = m_control.m_hWnd;
    EXPECT_TRUE(window.UpdateData(FALSE));
    window.m_fail = true;
    EXPECT_FALSE(window.UpdateData(TRUE));
    EXPECT_EQ(Take(), Calls{});
}
} // namespace
