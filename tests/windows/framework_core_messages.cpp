// Message maps: how messages and commands find their handlers, and what the handlers are given.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ScopedWindow.h"

namespace
{
constexpr UINT plain_message = WM_APP + 1;
UINT const registered_message = ::RegisterWindowMessage(L"framework_core_messages.registered");
UINT const other_registered_message = ::RegisterWindowMessage(L"framework_core_messages.other");
constexpr UINT id_plain = 100;
constexpr UINT id_range_first = 110;
constexpr UINT id_range_last = 112;
constexpr UINT id_ex = 120;
constexpr UINT id_ex_range_first = 130;
constexpr UINT id_ex_range_last = 131;
constexpr UINT id_disabled = 140;
constexpr UINT id_base_only = 150;
constexpr UINT id_notify = 160;

class Base : public tests::ScopedWindow
{
public:
    Base() : ScopedWindow(CRect(0, 0, 100, 100), WS_OVERLAPPED) {}

    std::vector<std::string> m_calls;
    BOOL m_exAnswer = TRUE;
    bool m_continueUpdate = false;

protected:
    void Note(char const * name, long long first = 0, long long second = 0, long long third = 0)
    {
        m_calls.push_back(std::string(name) + " " + std::to_string(first) + " " + std::to_string(second) + " " +
                          std::to_string(third));
    }
    void OnPlainInBase() { Note("plain in base"); }
    void OnBaseOnly() { Note("base only"); }
    void OnUpdateBase(CCmdUI * ui)
    {
        Note("update in base", ui->m_nID);
        ui->Enable(TRUE);
    }
    LRESULT OnPlainMessage(WPARAM wParam, LPARAM lParam)
    {
        Note("message in base", static_cast<long long>(wParam), lParam);
        return 11;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Base, CWnd)
    ON_COMMAND(id_plain, &Base::OnPlainInBase)
    ON_COMMAND(id_base_only, &Base::OnBaseOnly)
    ON_UPDATE_COMMAND_UI(id_base_only, &Base::OnUpdateBase)
    ON_MESSAGE(plain_message, &Base::OnPlainMessage)
END_MESSAGE_MAP()

class Derived : public Base
{
protected:
    void OnPlain() { Note("plain"); }
    void OnRange(UINT id) { Note("range", id); }
    BOOL OnEx(UINT id)
    {
        Note("ex", id);
        return m_exAnswer;
    }
    void OnUpdateDisabled(CCmdUI * ui) { ui->Enable(FALSE); }
    void OnDisabled() { Note("disabled"); }
    LRESULT OnRegistered(WPARAM wParam, LPARAM lParam)
    {
        Note("registered", static_cast<long long>(wParam), lParam);
        return 22;
    }
    LRESULT OnOtherRegistered(WPARAM, LPARAM)
    {
        Note("other registered");
        return 33;
    }
    afx_msg void OnSize(UINT type, int cx, int cy) { Note("size", type, cx, cy); }
    afx_msg void OnMove(int x, int y) { Note("move", x, y); }
    afx_msg void OnMouseMove(UINT flags, CPoint point) { Note("mouse move", flags, point.x, point.y); }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point)
    {
        Note("wheel", flags, delta, point.x);
        return TRUE;
    }
    afx_msg void OnKeyDown(UINT key, UINT count, UINT flags) { Note("key", key, count, flags); }
    afx_msg void OnTimer(UINT_PTR id) { Note("timer", static_cast<long long>(id)); }
    afx_msg void OnSysCommand(UINT id, LPARAM lParam) { Note("system", id, lParam); }
    afx_msg BOOL OnEraseBkgnd(CDC * dc)
    {
        Note("erase", reinterpret_cast<long long>(dc->m_hDC));
        return 5;
    }
    afx_msg void OnSetFocus(CWnd * old) { Note("focus", old != nullptr); }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg LRESULT OnNcHitTest(CPoint point)
    {
        Note("hit", point.x, point.y);
        return HTCAPTION;
    }
    afx_msg void OnXButtonDown(UINT flags, UINT button, CPoint point) { Note("x button", flags, button, point.y); }
    afx_msg void OnShowWindow(BOOL show, UINT status) { Note("show", show, status); }
    afx_msg void OnSizing(UINT side, LPRECT rect) { Note("sizing", side, rect->left, rect->bottom); }
    afx_msg BOOL OnSetCursor(CWnd * window, UINT hit, UINT message)
    {
        Note("cursor", window == this, hit, message);
        return TRUE;
    }
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar * bar)
    {
        Note("scroll", code, position, bar != nullptr);
    }
    afx_msg HCURSOR OnQueryDragIcon() { return ::LoadCursor(nullptr, IDC_HAND); }
    afx_msg BOOL OnCopyData(CWnd * window, COPYDATASTRUCT * data)
    {
        Note("copy", window != nullptr, static_cast<long long>(data->dwData));
        return 7;
    }
    afx_msg int OnMouseActivate(CWnd * top, UINT hit, UINT message)
    {
        Note("activate", top == this, hit, message);
        return MA_NOACTIVATE;
    }
    afx_msg void OnNotifyPlain(NMHDR * header, LRESULT * result)
    {
        Note("notify", static_cast<long long>(header->code));
        *result = 9;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Base)
    ON_COMMAND(id_plain, &Derived::OnPlain)
    ON_COMMAND_RANGE(id_range_first, id_range_last, &Derived::OnRange)
    ON_COMMAND_EX(id_ex, &Derived::OnEx)
    ON_COMMAND_EX_RANGE(id_ex_range_first, id_ex_range_last, &Derived::OnEx)
    ON_COMMAND(id_disabled, &Derived::OnDisabled)
    ON_UPDATE_COMMAND_UI(id_disabled, &Derived::OnUpdateDisabled)
    ON_REGISTERED_MESSAGE(other_registered_message, &Derived::OnOtherRegistered)
    ON_REGISTERED_MESSAGE(registered_message, &Derived::OnRegistered)
    ON_NOTIFY(NM_CLICK, id_notify, &Derived::OnNotifyPlain)
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_TIMER()
    ON_WM_SYSCOMMAND()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_GETDLGCODE()
    ON_WM_NCHITTEST()
    ON_WM_XBUTTONDOWN()
    ON_WM_SHOWWINDOW()
    ON_WM_SIZING()
    ON_WM_SETCURSOR()
    ON_WM_VSCROLL()
    ON_WM_QUERYDRAGICON()
    ON_WM_COPYDATA()
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

using Calls = std::vector<std::string>;

class CoreMessages : public testing::Test
{
protected:
    CoreMessages() { m_window.m_calls.clear(); }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return m_window.SendMessage(message, wParam, lParam);
    }
    Calls Take() { return std::exchange(m_window.m_calls, {}); }

    Derived m_window;
};

TEST_F(CoreMessages, DerivedHandlerComesBeforeThatOfTheBaseClass)
{
    Send(WM_COMMAND, id_plain);
    EXPECT_EQ(Take(), Calls{"plain 0 0 0"});
}

TEST_F(CoreMessages, CommandsAreLookedForInTheBaseClass)
{
    Send(WM_COMMAND, id_base_only);
    EXPECT_EQ(Take(), (Calls{"update in base 150 0 0", "base only 0 0 0"}));
}

TEST_F(CoreMessages, CommandRangeIncludesItsEndsAndNoMore)
{
    for (UINT const id : {id_range_first - 1, id_range_first, id_range_last, id_range_last + 1})
        Send(WM_COMMAND, id);
    EXPECT_EQ(Take(), (Calls{"range 110 0 0", "range 112 0 0"}));
}

TEST_F(CoreMessages, HandledCommandAnswersOne)
{
    EXPECT_EQ(Send(WM_COMMAND, id_plain), 1);
    EXPECT_EQ(Send(WM_COMMAND, 99), 0);
}

TEST_F(CoreMessages, ExtendedCommandSaysWhetherItIsHandled)
{
    EXPECT_EQ(Send(WM_COMMAND, id_ex), 1);
    m_window.m_exAnswer = FALSE;
    EXPECT_EQ(Send(WM_COMMAND, id_ex_range_last), 0);
    EXPECT_EQ(Take(), (Calls{"ex 120 0 0", "ex 131 0 0"}));
}

TEST_F(CoreMessages, CommandThatItsUpdateHandlerDisablesIsNotCarriedOut)
{
    EXPECT_EQ(Send(WM_COMMAND, id_disabled), 1);
    EXPECT_EQ(Take(), Calls{});
}

TEST_F(CoreMessages, MessageByNumberGivesTheHandlersAnswer)
{
    EXPECT_EQ(Send(plain_message, 3, 4), 11);
    EXPECT_EQ(Take(), Calls{"message in base 3 4 0"});
}

TEST_F(CoreMessages, RegisteredMessagesAreToldApart)
{
    EXPECT_EQ(Send(registered_message, 5, 6), 22);
    EXPECT_EQ(Send(other_registered_message), 33);
    EXPECT_EQ(Take(), (Calls{"registered 5 6 0", "other registered 0 0 0"}));
}

TEST_F(CoreMessages, HandlerInformationIsGivenInsteadOfACall)
{
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(m_window.OnCmdMsg(id_plain, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &m_window);
    EXPECT_TRUE(info.pmf != nullptr);
    EXPECT_FALSE(m_window.OnCmdMsg(99, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(Take(), Calls{});
}

TEST_F(CoreMessages, NotificationGoesByTheSendersOwnId)
{
    CWnd sender;
    ASSERT_TRUE(sender.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 5, 5), &m_window, id_notify));
    NMHDR header{sender.m_hWnd, 12345, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(Send(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header)), 9);
    EXPECT_EQ(Take(), Calls{"notify " + std::to_string(static_cast<UINT>(NM_CLICK)) + " 0 0"});
    sender.DestroyWindow();
}

TEST_F(CoreMessages, WordsArePassedSignedWhereTheyArePositions)
{
    Send(WM_MOVE, 0, MAKELPARAM(static_cast<WORD>(-5), 7));
    Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(static_cast<WORD>(-1), static_cast<WORD>(-2)));
    Send(WM_NCHITTEST, 0, MAKELPARAM(static_cast<WORD>(-3), 4));
    EXPECT_EQ(Take(), (Calls{"move -5 7 0", "mouse move 1 -1 -2", "hit -3 4 0"}));
}

TEST_F(CoreMessages, SizeTypeAndExtentArePassed)
{
    Send(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 3));
    EXPECT_EQ(Take(), Calls{"size 2 40000 3"});
}

TEST_F(CoreMessages, WheelTurnIsSigned)
{
    EXPECT_EQ(Send(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)), MAKELPARAM(8, 9)), 1);
    EXPECT_EQ(Take(), Calls{"wheel 8 -120 8"});
}

TEST_F(CoreMessages, KeyRepeatAndFlagsAreTheWordsOfLParam)
{
    Send(WM_KEYDOWN, VK_F2, MAKELPARAM(3, 0x4001));
    EXPECT_EQ(Take(), Calls{"key 113 3 16385"});
}

TEST_F(CoreMessages, TimerIdIsPassedWhole)
{
    Send(WM_TIMER, 0x100000001);
    EXPECT_EQ(Take(), Calls{"timer 4294967297 0 0"});
}

TEST_F(CoreMessages, AnswersOfHandlersAreReturned)
{
    EXPECT_EQ(Send(WM_GETDLGCODE), DLGC_WANTARROWS);
    EXPECT_EQ(Send(WM_NCHITTEST), HTCAPTION);
    EXPECT_EQ(Send(WM_QUERYDRAGICON), reinterpret_cast<LRESULT>(::LoadCursor(nullptr, IDC_HAND)));
    EXPECT_EQ(Send(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(m_window.m_hWnd), MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)),
              MA_NOACTIVATE);
    COPYDATASTRUCT data{42, 0, nullptr};
    EXPECT_EQ(Send(WM_COPYDATA, reinterpret_cast<WPARAM>(m_window.m_hWnd), reinterpret_cast<LPARAM>(&data)), 7);
}

TEST_F(CoreMessages, SideButtonsAndSizingAnswerTrue)
{
    EXPECT_EQ(Send(WM_XBUTTONDOWN, MAKEWPARAM(MK_SHIFT, XBUTTON2), MAKELPARAM(1, 2)), TRUE);
    RECT rect{1, 2, 3, 4};
    EXPECT_EQ(Send(WM_SIZING, WMSZ_TOP, reinterpret_cast<LPARAM>(&rect)), TRUE);
    EXPECT_EQ(Take(), (Calls{"x button 4 2 2", "sizing 3 1 4"}));
}

TEST_F(CoreMessages, DeviceContextIsWrappedForTheHandler)
{
    HDC const dc = ::GetDC(m_window.m_hWnd);
    EXPECT_EQ(Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)), 5);
    EXPECT_EQ(Take(), Calls{"erase " + std::to_string(reinterpret_cast<long long>(dc)) + " 0 0"});
    ::ReleaseDC(m_window.m_hWnd, dc);
}

TEST_F(CoreMessages, MissingWindowIsANullPointer)
{
    Send(WM_SETFOCUS, 0);
    Send(WM_SETFOCUS, reinterpret_cast<WPARAM>(::GetDesktopWindow()));
    EXPECT_EQ(Take(), (Calls{"focus 0 0 0", "focus 1 0 0"}));
}

TEST_F(CoreMessages, ScrollBarIsNullForTheWindowsOwnBar)
{
    Send(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 500));
    EXPECT_EQ(Take(), Calls{"scroll 5 500 0"});
}

TEST_F(CoreMessages, UpdateHandlerMayPassTheItemOn)
{
    class Target : public CCmdTarget
    {
    };
    CCmdUI ui;
    ui.m_nID = id_base_only;
    EXPECT_TRUE(m_window.OnCmdMsg(id_base_only, static_cast<int>(CN_UPDATE_COMMAND_UI), &ui, nullptr));
    Target target;
    EXPECT_FALSE(target.OnCmdMsg(id_base_only, static_cast<int>(CN_UPDATE_COMMAND_UI), &ui, nullptr));
}

namespace
{
/// Ends its window when asked whether the command may run.
class EndsWhenAsked : public tests::ScopedWindow
{
public:
    EndsWhenAsked() : ScopedWindow(CRect(0, 0, 100, 100), WS_OVERLAPPED) {}

    int m_commands = 0;

protected:
    BOOL OnCmdMsg(UINT id, int code, void * extra, AFX_CMDHANDLERINFO * info) override
    {
        if (code == static_cast<int>(CN_UPDATE_COMMAND_UI))
            DestroyWindow();
        else
            ++m_commands;
        return CWnd::OnCmdMsg(id, code, extra, info);
    }
};
} // namespace

TEST(CoreCommands, AWindowThatEndsWhenAskedGetsNoCommand)
{
    EndsWhenAsked window;
    ::SendMessage(window.m_hWnd, WM_COMMAND, id_plain, 0);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_commands, 0);
}

// Menu and window items

TEST(CoreCmdUi, MenuItemIsDisabledCheckedAndRenamed)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 1, L"first");
    menu.AppendMenu(MF_STRING, 2, L"second");
    CCmdUI ui;
    ui.m_pMenu = &menu;
    ui.m_nID = 2;
    ui.m_nIndex = 1;
    ui.Enable(FALSE);
    ui.SetRadio(TRUE);
    ui.SetText(L"changed");
    MENUITEMINFO info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STATE | MIIM_FTYPE;
    ASSERT_TRUE(::GetMenuItemInfo(menu.m_hMenu, 1, TRUE, &info));
    EXPECT_EQ(info.fState & (MFS_GRAYED | MFS_CHECKED), static_cast<UINT>(MFS_GRAYED | MFS_CHECKED));
    EXPECT_NE(info.fType & MFT_RADIOCHECK, 0u);
    wchar_t text[20] = {};
    ::GetMenuString(menu.m_hMenu, 1, text, 20, MF_BYPOSITION);
    EXPECT_STREQ(text, L"changed");
    EXPECT_EQ(::GetMenuState(menu.m_hMenu, 0, MF_BYPOSITION), 0u);
}

TEST(CoreCmdUi, WindowItemIsDisabledCheckedAndRenamed)
{
    tests::ScopedWindow parent(CRect(0, 0, 100, 100), WS_OVERLAPPED);
    CWnd button;
    ASSERT_TRUE(button.Create(L"BUTTON", L"a", WS_CHILD | BS_CHECKBOX, CRect(0, 0, 20, 20), &parent, 1));
    CCmdUI ui;
    ui.m_pOther = &button;
    ui.Enable(FALSE);
    ui.SetCheck(1);
    ui.SetText(L"b");
    EXPECT_FALSE(button.IsWindowEnabled());
    EXPECT_EQ(button.SendMessage(BM_GETCHECK), BST_CHECKED);
    CString text;
    button.GetWindowText(text);
    EXPECT_STREQ(text, L"b");
    button.DestroyWindow();
}
} // namespace
