// Windows and their objects: creation, subclassing, handle maps, relations, the end.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <vector>

#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
class Watched : public CWnd
{
public:
    std::vector<UINT> m_received;
    HWND m_handleAtNcCreate = nullptr;
    int m_preSubclassed = 0;
    int m_gone = 0;
    bool m_refuse = false;
    bool m_refuseClass = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_received.push_back(message);
        if (message == WM_NCCREATE)
            m_handleAtNcCreate = m_hWnd;
        if (message == WM_CREATE && m_refuse)
            return -1;
        return CWnd::WindowProc(message, wParam, lParam);
    }
    BOOL PreCreateWindow(CREATESTRUCT & cs) override
    {
        if (m_refuseClass)
            return FALSE;
        cs.dwExStyle |= WS_EX_TOOLWINDOW;
        return CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override { ++m_preSubclassed; }
    void PostNcDestroy() override { ++m_gone; }
};

bool Has(std::vector<UINT> const & messages, UINT wanted)
{
    return std::find(messages.begin(), messages.end(), wanted) != messages.end();
}

BOOL CreatePopup(CWnd & window)
{
    return window.CreateEx(0, AfxRegisterWndClass(0), L"popup", WS_POPUP, CRect(10, 20, 110, 70), nullptr, 0);
}

TEST(CoreWindows, CreationReachesTheObjectFromItsFirstMessageOn)
{
    Watched window;
    ASSERT_TRUE(CreatePopup(window));
    EXPECT_EQ(window.m_handleAtNcCreate, window.m_hWnd);
    EXPECT_TRUE(Has(window.m_received, WM_NCCREATE));
    EXPECT_TRUE(Has(window.m_received, WM_CREATE));
    EXPECT_EQ(window.m_preSubclassed, 1);
    EXPECT_NE(window.GetExStyle() & WS_EX_TOOLWINDOW, 0u);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window);
    CRect place;
    window.GetWindowRect(&place);
    EXPECT_EQ(place, CRect(10, 20, 110, 70));
    window.DestroyWindow();
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_gone, 1);
    EXPECT_TRUE(Has(window.m_received, WM_NCDESTROY));
}

TEST(CoreWindows, RefusedCreationLeavesNoWindow)
{
    Watched window;
    window.m_refuse = true;
    EXPECT_FALSE(CreatePopup(window));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_gone, 1);
}

TEST(CoreWindows, FailureBeforeTheWindowExistsIsToldToTheObject)
{
    Watched window;
    EXPECT_FALSE(window.CreateEx(0, L"no such class", L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ(window.m_gone, 1);
    window.m_refuseClass = true;
    EXPECT_FALSE(CreatePopup(window));
    EXPECT_EQ(window.m_gone, 2);
}

TEST(CoreWindows, ObjectCanBeUsedForOneWindowAfterTheOther)
{
    Watched window;
    ASSERT_TRUE(CreatePopup(window));
    window.DestroyWindow();
    tests::ScopedWindow parent(CRect(0, 0, 100, 100), WS_OVERLAPPED);
    ASSERT_TRUE(window.Create(L"BUTTON", L"b", WS_CHILD | BS_AUTOCHECKBOX, CRect(0, 0, 20, 20), &parent, 5));
    window.SendMessage(BM_CLICK);
    EXPECT_EQ(window.SendMessage(BM_GETCHECK), BST_CHECKED); // the button's own procedure, not the first window's
    window.DestroyWindow();
}

TEST(CoreWindows, ObjectForgetsTheProcedureOfTheWindowItHadBefore)
{
    tests::ScopedWindow parent(CRect(0, 0, 100, 100), WS_OVERLAPPED);
    auto const create = [&parent](LPCTSTR name) {
        return ::CreateWindow(name, L"", WS_CHILD, 0, 0, 20, 20, parent.m_hWnd, nullptr, AfxGetInstanceHandle(),
                              nullptr);
    };
    Watched window;
    ASSERT_TRUE(window.SubclassWindow(create(L"STATIC")));
    window.DestroyWindow();
    ASSERT_TRUE(window.SubclassWindow(create(L"BUTTON")));
    window.SendMessage(BM_SETSTATE, TRUE);
    EXPECT_EQ(window.SendMessage(BM_GETSTATE) & BST_PUSHED, BST_PUSHED);
    window.UnsubclassWindow();
    ASSERT_TRUE(window.SubclassWindow(create(L"LISTBOX")));
    window.SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"item"));
    EXPECT_EQ(window.SendMessage(LB_GETCOUNT), 1);
    window.DestroyWindow();
}

TEST(CoreWindows, ObjectMayDeleteItselfAtTheEnd)
{
    class SelfDeleting : public CWnd
    {
    public:
        explicit SelfDeleting(bool & deleted) : m_deleted(deleted) {}
        ~SelfDeleting() override { m_deleted = true; }

    protected:
        void PostNcDestroy() override { delete this; }

    private:
        bool & m_deleted;
    };
    bool deleted = false;
    auto * const window = new SelfDeleting(deleted);
    ASSERT_TRUE(CreatePopup(*window));
    EXPECT_TRUE(window->DestroyWindow());
    EXPECT_TRUE(deleted);
}

TEST(CoreWindows, DeletedObjectTakesItsWindowAlong)
{
    HWND handle = nullptr;
    {
        CWnd window;
        ASSERT_TRUE(CreatePopup(window));
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(CoreWindows, SubclassedControlSendsItsMessagesToTheObject)
{
    tests::ScopedWindow parent(CRect(0, 0, 100, 100), WS_OVERLAPPED);
    HWND const handle = ::CreateWindow(L"BUTTON", L"x", WS_CHILD, 0, 0, 20, 20, parent.m_hWnd,
                                       reinterpret_cast<HMENU>(7), AfxGetInstanceHandle(), nullptr);
    LONG_PTR const own = ::GetWindowLongPtr(handle, GWLP_WNDPROC);
    Watched button;
    ASSERT_TRUE(button.SubclassDlgItem(7, &parent));
    EXPECT_EQ(button.m_hWnd, handle);
    EXPECT_EQ(button.m_preSubclassed, 1);
    button.SendMessage(BM_SETSTATE, TRUE);
    EXPECT_TRUE(Has(button.m_received, BM_SETSTATE));
    EXPECT_EQ(button.SendMessage(BM_GETSTATE) & BST_PUSHED, BST_PUSHED);

    EXPECT_EQ(button.UnsubclassWindow(), handle);
    EXPECT_EQ(button.m_hWnd, nullptr);
    EXPECT_EQ(::GetWindowLongPtr(handle, GWLP_WNDPROC), own);
    button.m_received.clear();
    ::SendMessage(handle, BM_SETSTATE, FALSE, 0);
    EXPECT_TRUE(button.m_received.empty());
    EXPECT_FALSE(button.SubclassDlgItem(8, &parent));
}

TEST(CoreWindows, SubclassedWindowGetsItsOwnProcedureBackAtTheEnd)
{
    HWND const handle =
        ::CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, AfxGetInstanceHandle(), nullptr);
    Watched window;
    ASSERT_TRUE(window.SubclassWindow(handle));
    ::DestroyWindow(handle);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_gone, 1);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(CoreWindows, AttachedObjectLeavesTheProcedureAlone)
{
    HWND const handle =
        ::CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, AfxGetInstanceHandle(), nullptr);
    LONG_PTR const own = ::GetWindowLongPtr(handle, GWLP_WNDPROC);
    Watched window;
    EXPECT_FALSE(window.Attach(nullptr));
    EXPECT_TRUE(window.Attach(handle));
    EXPECT_EQ(CWnd::FromHandle(handle), &window);
    EXPECT_EQ(::GetWindowLongPtr(handle, GWLP_WNDPROC), own);
    EXPECT_EQ(window.Detach(), handle);
    EXPECT_NE(CWnd::FromHandle(handle), &window);
    ::DestroyWindow(handle);
}

TEST(CoreWindows, TemporaryObjectLastsUntilTheMapIsCleared)
{
    HWND const desktop = ::GetDesktopWindow();
    CWnd * const object = CWnd::FromHandle(desktop);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->m_hWnd, desktop);
    EXPECT_EQ(CWnd::FromHandle(desktop), object);
    EXPECT_EQ(CWnd::FromHandlePermanent(desktop), nullptr);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(desktop));
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
}

TEST(CoreWindows, NullObjectHasANullHandle)
{
    CWnd * volatile none = nullptr;
    EXPECT_EQ(none->GetSafeHwnd(), nullptr);
    CWnd empty;
    EXPECT_EQ(static_cast<HWND>(empty), nullptr);
    EXPECT_TRUE(empty == CWnd());
}

TEST(CoreWindows, ClassNamesFollowWhatTheClassHas)
{
    CString const plain = AfxRegisterWndClass(CS_DBLCLKS);
    EXPECT_EQ(CString(AfxRegisterWndClass(CS_DBLCLKS)), plain);
    EXPECT_NE(CString(AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW))), plain);
    WNDCLASS found{};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), plain, &found));
    EXPECT_EQ(found.style, static_cast<UINT>(CS_DBLCLKS));
}

class CoreRelations : public testing::Test
{
protected:
    CoreRelations() : m_top(CRect(0, 0, 200, 200), WS_OVERLAPPED)
    {
        m_panel.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &m_top, 1);
        m_inner.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &m_panel, 2);
        m_popup.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 20, 20), &m_top, 0);
    }
    ~CoreRelations() override
    {
        m_popup.DestroyWindow();
        m_panel.DestroyWindow();
    }

    tests::ScopedWindow m_top;
    CWnd m_panel;
    CWnd m_inner;
    CWnd m_popup;
};

TEST_F(CoreRelations, ParentsAndOwners)
{
    EXPECT_EQ(m_inner.GetParent(), &m_panel);
    EXPECT_EQ(m_inner.GetTopLevelParent(), &m_top);
    EXPECT_EQ(m_inner.GetParentOwner(), &m_top);
    EXPECT_EQ(m_popup.GetParent(), &m_top);
    EXPECT_EQ(m_popup.GetOwner(), &m_top);
    EXPECT_EQ(m_popup.GetTopLevelOwner(), &m_top);
    EXPECT_EQ(m_popup.GetTopLevelParent(), &m_top);
    EXPECT_EQ(m_inner.GetParentFrame(), nullptr);
    m_inner.SetOwner(&m_popup);
    EXPECT_EQ(m_inner.GetOwner(), &m_popup);
    m_inner.SetOwner(nullptr);
    EXPECT_EQ(m_inner.GetOwner(), &m_panel);
}

TEST_F(CoreRelations, ItemsAndDescendants)
{
    EXPECT_EQ(m_top.GetDlgItem(1), &m_panel);
    EXPECT_EQ(m_top.GetDlgItem(2), nullptr);
    EXPECT_EQ(m_top.GetDescendantWindow(2), &m_inner);
    EXPECT_EQ(m_top.GetDescendantWindow(3), nullptr);
    HWND handle = nullptr;
    m_top.GetDlgItem(1, &handle);
    EXPECT_EQ(handle, m_panel.m_hWnd);
    EXPECT_TRUE(m_top.IsChild(&m_inner));
}

TEST_F(CoreRelations, MessagesToDescendantsReachWhomTheyShould)
{
    class Counter : public CWnd
    {
    public:
        int m_count = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            m_count += message == WM_APP ? 1 : 0;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Counter shallow;
    Counter deep;
    ASSERT_TRUE(shallow.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &m_top, 20));
    ASSERT_TRUE(deep.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &m_inner, 21));
    m_top.SendMessageToDescendants(WM_APP, 0, 0, FALSE);
    EXPECT_EQ(shallow.m_count, 1);
    EXPECT_EQ(deep.m_count, 0);
    m_top.SendMessageToDescendants(WM_APP);
    EXPECT_EQ(shallow.m_count, 2);
    EXPECT_EQ(deep.m_count, 1);
    m_top.SendMessageToDescendants(WM_APP, 0, 0, TRUE, TRUE);
    EXPECT_EQ(deep.m_count, 2);
    shallow.DestroyWindow();
    deep.DestroyWindow();
}

TEST_F(CoreRelations, CoordinatesAreTurnedBothWays)
{
    CRect rect(1, 2, 11, 22);
    m_inner.ClientToScreen(&rect);
    m_inner.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(1, 2, 11, 22));
    CPoint point(3, 4);
    m_inner.MapWindowPoints(&m_panel, &point, 1);
    EXPECT_EQ(point, CPoint(3, 4));
}

TEST_F(CoreRelations, WindowIsCentredOnItsOwnerOrParent)
{
    m_inner.SetWindowPos(nullptr, 0, 0, 40, 20, SWP_NOZORDER);
    m_inner.CenterWindow();
    CRect place;
    m_inner.GetWindowRect(&place);
    m_panel.ScreenToClient(&place);
    EXPECT_EQ(place, CRect(30, 40, 70, 60));
}

TEST_F(CoreRelations, StyleChangesAreToldApart)
{
    EXPECT_TRUE(m_panel.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED));
    EXPECT_FALSE(m_panel.ModifyStyle(0, WS_BORDER));
    CRect client;
    m_panel.GetClientRect(&client);
    EXPECT_EQ(client.Width(), 98);
    EXPECT_TRUE(m_panel.ModifyStyleEx(0, WS_EX_CLIENTEDGE));
    EXPECT_NE(m_panel.GetExStyle() & WS_EX_CLIENTEDGE, 0u);
}

TEST_F(CoreRelations, PlacesInTheZOrderAreObjects)
{
    CWnd other;
    ASSERT_TRUE(other.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &m_top, 30));
    m_panel.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(m_top.GetTopWindow(), &m_panel);
    m_panel.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(m_top.GetTopWindow(), &other);
    EXPECT_EQ(other.GetNextWindow(), &m_panel);
    EXPECT_EQ(::GetNextWindow(other.m_hWnd, GW_HWNDNEXT), m_panel.m_hWnd);
    EXPECT_EQ(::GetNextWindow(m_panel.m_hWnd, GW_HWNDPREV), other.m_hWnd);
    other.DestroyWindow();
}

TEST(CoreWindows, ScrollLimitLeavesThePageOut)
{
    tests::ScopedWindow window(CRect(0, 0, 200, 200), WS_OVERLAPPED | WS_VSCROLL);
    SCROLLINFO info{};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 20;
    window.SetScrollInfo(SB_VERT, &info);
    EXPECT_EQ(window.GetScrollLimit(SB_VERT), 90);
    EXPECT_EQ(window.GetScrollPos(SB_VERT), 20);
}

TEST(CoreWindows, LayeredAttributesAreKept)
{
    tests::ScopedWindow window(CRect(0, 0, 50, 50), WS_OVERLAPPED);
    window.ModifyStyleEx(0, WS_EX_LAYERED);
    ASSERT_TRUE(window.SetLayeredWindowAttributes(RGB(1, 2, 3), 99, LWA_ALPHA));
    BYTE alpha = 0;
    DWORD flags = 0;
    COLORREF key = 0;
    ASSERT_TRUE(window.GetLayeredWindowAttributes(&key, &alpha, &flags));
    EXPECT_EQ(alpha, 99);
    EXPECT_EQ(flags, static_cast<DWORD>(LWA_ALPHA));
}

TEST(CoreWindows, BarsTakeTheirPlacesAndTheRestIsLeftOver)
{
    // What bars are sent by RepositionBars; see the message WM_SIZEPARENT of the framework.
    constexpr UINT size_parent = 0x0361;
    struct Layout
    {
        HDWP positions;
        RECT rect;
        SIZE total;
        BOOL stretch;
    };
    class Bar : public CWnd
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == size_parent)
                reinterpret_cast<Layout *>(lParam)->rect.top += 25;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    tests::ScopedWindow window(CRect(0, 0, 300, 200), WS_POPUP);
    Bar bar;
    CWnd pane;
    ASSERT_TRUE(bar.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(), &window, AFX_IDW_TOOLBAR));
    ASSERT_TRUE(pane.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(), &window, AFX_IDW_PANE_FIRST));
    CRect rest;
    window.RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, AFX_IDW_PANE_FIRST, CWnd::reposQuery,
                          &rest);
    EXPECT_EQ(rest, CRect(0, 25, 300, 200));
    window.RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, AFX_IDW_PANE_FIRST);
    CRect place;
    pane.GetWindowRect(&place);
    window.ScreenToClient(&place);
    EXPECT_EQ(place, CRect(0, 25, 300, 200));
    bar.DestroyWindow();
    pane.DestroyWindow();
}
} // namespace
