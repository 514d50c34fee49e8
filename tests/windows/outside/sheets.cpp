// Property sheets and their pages, as a host sees them.

#include <afxpropertysheet.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "dialogs/Dialog3d.h"
#include "dialogs/PropertyPage3d.h"
#include "dialogs/PropertySheet3d.h"
#include "layout/Edges.h"
#include "MessageRecorder.h"
#include "outside_resource.h"
#include "OutsideTest.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "TestApp.h"

namespace outside
{
namespace
{
constexpr int ok_button = 1;
constexpr int cancel_button = 2;
constexpr int help_button = 9;
constexpr int apply_button = 0x3021;
constexpr UINT new_page = 0x46F;

class Page : public CPropertyPage3d
{
public:
    explicit Page(unsigned int id = IDD_OUTSIDE_FIRST, unsigned int caption = 0)
        : CPropertyPage3d(CDialog3d::NO_DLL, id, caption)
    {
    }
    Page(unsigned int id, CString const & title) : CPropertyPage3d(CDialog3d::NO_DLL, id, title) {}
    Page(AFX_EXTENSION_MODULE module, unsigned int id) : CPropertyPage3d(module, id, 0u) {}

    using CPropertyPage3d::ClientCoordinates;
    using CPropertyPage3d::D3dLayoutChild;
    using CPropertyPage3d::D3dLayoutComplete;

    static std::vector<UINT> Messages()
    {
        std::vector<UINT> messages;
        for (AFX_MSGMAP_ENTRY const * entry = CPropertyPage3d::GetThisMessageMap()->lpEntries; entry->nSig != 0;
             ++entry)
            messages.push_back(entry->nMessage);
        return messages;
    }

    BOOL OnInitDialog() override
    {
        m_result = CPropertyPage3d::OnInitDialog();
        m_opened = ScreenRect(m_hWnd).Size();
        ++m_inits;
        if (m_onInit)
            m_onInit();
        return TRUE;
    }

    BOOL m_result = -1;
    CSize m_opened;
    int m_inits = 0;
    int m_erased = 0;
    std::function<void()> m_onInit;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ERASEBKGND)
            ++m_erased;
        return CPropertyPage3d::WindowProc(message, wParam, lParam);
    }
};

/// A page of no template.
class EmptyPage : public CPropertyPage3d
{
public:
    EmptyPage() = default;
};

class Sheet : public CPropertySheet3d
{
public:
    explicit Sheet(wchar_t const * title = L"Settings", CWnd * parent = nullptr, unsigned int page = 0)
        : CPropertySheet3d(title, parent, page)
    {
    }

    using CPropertySheet3d::ClientCoordinates;
    using CPropertySheet3d::D3dLayoutChild;
    using CPropertySheet3d::D3dLayoutComplete;

    static std::vector<UINT> Messages()
    {
        std::vector<UINT> messages;
        for (AFX_MSGMAP_ENTRY const * entry = CPropertySheet3d::GetThisMessageMap()->lpEntries; entry->nSig != 0;
             ++entry)
            messages.push_back(entry->nMessage);
        return messages;
    }

    BOOL OnInitDialog() override
    {
        BOOL const result = CPropertySheet3d::OnInitDialog();
        if (m_onInit)
            m_onInit();
        return result;
    }

    std::function<void()> m_onInit;
    int m_erased = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ERASEBKGND)
            ++m_erased;
        return CPropertySheet3d::WindowProc(message, wParam, lParam);
    }
};

class OutsideSheet : public testing::Test
{
protected:
    void SetUp() override
    {
        m_formerStore = CVeskBase::PreferenceVesk();
        CVeskBase::SetPreferenceVesk(&m_store);
        m_main = std::make_unique<tests::ScopedWindow>();
        tests::App().m_pMainWnd = m_main.get();
    }
    void TearDown() override
    {
        tests::App().m_pMainWnd = nullptr;
        m_main.reset();
        CVeskBase::SetPreferenceVesk(m_formerStore);
    }

    static void Close(Sheet & sheet)
    {
        sheet.CloseDialog();
        ASSERT_TRUE(tests::PumpUntil([&] { return !sheet.IsOpen(); }));
    }
    static void Grow(Sheet & sheet, int dx, int dy)
    {
        CRect const rect = ScreenRect(sheet.m_hWnd);
        sheet.SetWindowPos(nullptr, 0, 0, rect.Width() + dx, rect.Height() + dy, SWP_NOMOVE | SWP_NOZORDER);
        tests::PumpPosted();
    }
    static CRect ChildRect(Sheet & sheet, int id) { return RectInParent(::GetDlgItem(sheet.m_hWnd, id)); }
    static CRect TabRect(Sheet & sheet) { return RectInParent(sheet.GetTabControl()->m_hWnd); }
    static CRect PageRect(Sheet & sheet) { return RectIn(sheet.GetActivePage()->m_hWnd, sheet.m_hWnd); }
    static std::wstring TabText(Sheet & sheet, int index)
    {
        wchar_t text[128] = {};
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 128;
        ::SendMessageW(sheet.GetTabControl()->m_hWnd, TCM_GETITEMW, index, reinterpret_cast<LPARAM>(&item));
        return text;
    }
    static void SetTabText(Sheet & sheet, int index, wchar_t const * text)
    {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<wchar_t *>(text);
        ::SendMessageW(sheet.GetTabControl()->m_hWnd, TCM_SETITEMW, index, reinterpret_cast<LPARAM>(&item));
    }
    static int Rows(Sheet & sheet) { return sheet.GetTabControl()->GetRowCount(); }
    static int TabHeight(Sheet & sheet)
    {
        CRect rect;
        sheet.GetTabControl()->GetItemRect(0, &rect);
        return rect.Height();
    }
    /// As a click on the tab does it.
    static void Select(Sheet & sheet, int index)
    {
        CRect rect;
        sheet.GetTabControl()->GetItemRect(index, &rect);
        CPoint const at = rect.CenterPoint();
        ::SendMessageW(sheet.GetTabControl()->m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        ::SendMessageW(sheet.GetTabControl()->m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    }
    static MINMAXINFO Limits(HWND window)
    {
        MINMAXINFO info{};
        info.ptMinTrackSize = {1, 2};
        info.ptMaxTrackSize = {7777, 8888};
        ::SendMessageW(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
        return info;
    }

    RecordingStore m_store;
    std::unique_ptr<tests::ScopedWindow> m_main;

private:
    CResourceVesk * m_formerStore = nullptr;
};

class OutsidePage : public OutsideSheet
{
};
} // namespace

// Pages

TEST_F(OutsidePage, HasItsRunTimeClass)
{
    EXPECT_EQ(RUNTIME_CLASS(CPropertyPage3d)->m_pfnGetBaseClass(), RUNTIME_CLASS(CMFCPropertyPage));
    Page const page;
    EXPECT_TRUE(page.IsKindOf(RUNTIME_CLASS(CPropertyPage3d)));
}

TEST_F(OutsidePage, HandlesThreeMessagesInThisOrder)
{
    EXPECT_EQ(Page::Messages(), (std::vector<UINT>{WM_DESTROY, WM_SIZE, WM_GETMINMAXINFO}));
}

TEST_F(OutsidePage, NeverHasHelp)
{
    EXPECT_EQ(Page().GetPSP().dwFlags & PSP_HASHELP, 0u);
    EXPECT_EQ(Page(IDD_OUTSIDE_FIRST, CString(L"x")).GetPSP().dwFlags & PSP_HASHELP, 0u);
}

TEST_F(OutsidePage, TitleGoesToTheHeader)
{
    Page page(IDD_OUTSIDE_FIRST, CString(L"Own title"));
    EXPECT_NE(page.GetPSP().dwFlags & PSP_USETITLE, 0u);
    EXPECT_STREQ(page.GetPSP().pszTitle, L"Own title");
}

TEST_F(OutsidePage, LaterTitleGoesToTheHeader)
{
    Page page;
    CString title(L"Later title");
    page.SetTitle(title);
    title = L"Something else";
    EXPECT_NE(page.GetPSP().dwFlags & PSP_USETITLE, 0u);
    EXPECT_STREQ(page.GetPSP().pszTitle, L"Later title");
    page.SetTitle(L"Again");
    EXPECT_STREQ(page.GetPSP().pszTitle, L"Again");
}

TEST_F(OutsidePage, MayHaveNoTemplate)
{
    EmptyPage page;
    page.SetTitle(L"x");
    EXPECT_STREQ(page.GetPSP().pszTitle, L"x");
}

TEST_F(OutsidePage, ConstructionLeavesTheResourceModuleInForce)
{
    HINSTANCE const before = AfxGetResourceHandle();
    HINSTANCE const other = ::GetModuleHandleW(L"instrument_ui.dll");
    AfxSetResourceHandle(other);
    {
        Page const first;
        EXPECT_EQ(AfxGetResourceHandle(), other);
        Page const second(IDD_OUTSIDE_FIRST, CString(L"x"));
        EXPECT_EQ(AfxGetResourceHandle(), other);
    }
    AfxSetResourceHandle(before);
}

TEST_F(OutsidePage, ApplicationsTemplateIsFoundWhateverModuleIsInForce)
{
    HINSTANCE const before = AfxGetResourceHandle();
    AfxSetResourceHandle(::GetModuleHandleW(L"instrument_ui.dll"));
    Page page;
    Page titled(IDD_OUTSIDE_SECOND, CString(L"x"));
    AfxSetResourceHandle(before);
    Sheet sheet;
    sheet.AddPage(&page);
    sheet.AddPage(&titled);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_NE(page.GetDlgItem(IDC_OUTSIDE_EDIT), nullptr);
    Select(sheet, 1);
    tests::PumpPosted();
    EXPECT_NE(titled.GetDlgItem(IDC_OUTSIDE_BUTTON), nullptr);
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, TemplateComesFromTheModuleThatWasNamed)
{
    AFX_EXTENSION_MODULE module{};
    module.hModule = ::GetModuleHandleW(L"instrument_ui.dll");
    ASSERT_NE(module.hModule, nullptr);
    Page page(module, 130);
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_NE(page.GetDlgItem(1016), nullptr);
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, TabHasTheTemplatesCaption)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(TabText(sheet, 0), L"First");
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, TabHasTheCaptionOfTheStringTable)
{
    Page page(IDD_OUTSIDE_FIRST, IDS_OUTSIDE_TAB);
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(TabText(sheet, 0), L"Tab from a string");
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, TabHasTheTitle)
{
    Page page(IDD_OUTSIDE_FIRST, CString(L"Own title"));
    Page later(IDD_OUTSIDE_SECOND);
    later.SetTitle(L"Later title");
    Sheet sheet;
    sheet.AddPage(&page);
    sheet.AddPage(&later);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(TabText(sheet, 0), L"Own title");
    EXPECT_EQ(TabText(sheet, 1), L"Later title");
    page.SetTitle(L"Too late");
    EXPECT_EQ(TabText(sheet, 0), L"Own title");
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, InitAlwaysAnswersOne)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(page.m_result, 1);
    EXPECT_EQ(page.m_inits, 1);
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, ChildrenFollowByAllFourWays)
{
    Page page;
    CButton third;
    CButton fourth;
    page.m_onInit = [&] {
        third.Create(L"3", WS_CHILD | WS_VISIBLE, CRect(150, 5, 190, 25), &page, 4001);
        fourth.Create(L"4", WS_CHILD | WS_VISIBLE, CRect(150, 35, 190, 55), &page, 4002);
        page.D3dLayoutChild(IDC_OUTSIDE_BUTTON, CEdges::BOTTOM_RIGHT(), nullptr);
        page.D3dLayoutChild(IDC_OUTSIDE_EDIT, CRect(0, 0, 10000, 5000), nullptr);
        page.D3dLayoutChild(&third, CEdges::TOP_RIGHT(), nullptr);
        CRect const design(150, 30, 190, 50);
        page.D3dLayoutChild(&fourth, CRect(5000, 0, 5000, 0), &design);
        page.D3dLayoutComplete();
    };
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    auto const set = [&](int dx, int dy) {
        page.SetWindowPos(nullptr, 0, 0, page.m_opened.cx + dx, page.m_opened.cy + dy, SWP_NOMOVE | SWP_NOZORDER);
    };
    set(0, 0);
    CRect const button = RectInParent(page.GetDlgItem(IDC_OUTSIDE_BUTTON)->m_hWnd);
    CRect const edit = RectInParent(page.GetDlgItem(IDC_OUTSIDE_EDIT)->m_hWnd);
    EXPECT_EQ(RectInParent(third.m_hWnd), CRect(150, 5, 190, 25));
    EXPECT_EQ(RectInParent(fourth.m_hWnd), CRect(150, 30, 190, 50));
    set(80, 60);
    EXPECT_EQ(RectInParent(page.GetDlgItem(IDC_OUTSIDE_BUTTON)->m_hWnd), button + CPoint(80, 60));
    EXPECT_EQ(RectInParent(page.GetDlgItem(IDC_OUTSIDE_EDIT)->m_hWnd),
              CRect(edit.left, edit.top, edit.right + 80, edit.bottom + 30));
    EXPECT_EQ(RectInParent(third.m_hWnd), CRect(230, 5, 270, 25));
    EXPECT_EQ(RectInParent(fourth.m_hWnd), CRect(190, 30, 230, 50));
    set(0, 0);
    EXPECT_EQ(RectInParent(page.GetDlgItem(IDC_OUTSIDE_BUTTON)->m_hWnd), button);
    EXPECT_EQ(RectInParent(page.GetDlgItem(IDC_OUTSIDE_EDIT)->m_hWnd), edit);
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, ChildMovesOnlyWhenTheLayoutIsComplete)
{
    Page page;
    CRect before;
    CRect registered;
    CRect complete;
    page.m_onInit = [&] {
        HWND const button = page.GetDlgItem(IDC_OUTSIDE_BUTTON)->m_hWnd;
        before = RectInParent(button);
        CRect const design(30, 50, 90, 75);
        page.D3dLayoutChild(IDC_OUTSIDE_BUTTON, CEdges::TOP_LEFT(), &design);
        registered = RectInParent(button);
        page.D3dLayoutComplete();
        complete = RectInParent(button);
    };
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(registered, before);
    EXPECT_EQ(complete, CRect(30, 50, 90, 75));
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, UnknownControlIsNoMatter)
{
    Page page;
    page.m_onInit = [&] {
        page.D3dLayoutChild(4711, CEdges::BOTTOM_RIGHT(), nullptr);
        page.D3dLayoutChild(static_cast<CWnd *>(nullptr), CEdges::BOTTOM_RIGHT(), nullptr);
        page.D3dLayoutComplete();
    };
    Sheet sheet;
    sheet.AddPage(&page);
    EXPECT_NE(sheet.DisplayDialog(m_main.get()), 0);
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, ClientCoordinatesOfAControl)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    CRect rect;
    page.ClientCoordinates(IDC_OUTSIDE_EDIT, rect);
    EXPECT_EQ(rect, RectInParent(page.GetDlgItem(IDC_OUTSIDE_EDIT)->m_hWnd));
    sheet.DestroyWindow();
}

TEST_F(OutsidePage, LeastSizeIsThatOfTheFirstOpening)
{
    Page page;
    {
        Sheet sheet;
        sheet.AddPage(&page);
        ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
        CSize const first = page.m_opened;
        MINMAXINFO const limits = Limits(page.m_hWnd);
        EXPECT_EQ(CSize(limits.ptMinTrackSize.x, limits.ptMinTrackSize.y), first);
        EXPECT_EQ(limits.ptMaxTrackSize.x, 7777);
        EXPECT_EQ(limits.ptMaxTrackSize.y, 8888);
        sheet.DestroyWindow();
    }
    CSize const first = page.m_opened;
    Page wide(IDD_OUTSIDE_WIDE);
    Sheet second(L"Second");
    second.AddPage(&page);
    second.AddPage(&wide);
    ASSERT_NE(second.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(page.m_inits, 2);
    MINMAXINFO const limits = Limits(page.m_hWnd);
    EXPECT_EQ(CSize(limits.ptMinTrackSize.x, limits.ptMinTrackSize.y), first);
    second.DestroyWindow();
}

TEST_F(OutsidePage, SizeHasThePagePaintedWholly)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    CRect client;
    page.GetClientRect(&client);
    page.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    page.ValidateRect(nullptr);
    page.m_erased = 0;
    page.Invalidate(FALSE);
    page.UpdateWindow();
    int const byChildren = page.m_erased; // controls ask for their background
    page.m_erased = 0;
    page.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    CRect update;
    page.GetUpdateRect(&update);
    EXPECT_EQ(update, client);
    page.UpdateWindow();
    EXPECT_EQ(page.m_erased, byChildren + 1);
    sheet.DestroyWindow();
}

// Display

TEST_F(OutsideSheet, HasItsRunTimeClass)
{
    EXPECT_EQ(RUNTIME_CLASS(CPropertySheet3d)->m_pfnGetBaseClass(), RUNTIME_CLASS(CMFCPropertySheet));
    Sheet const sheet;
    EXPECT_TRUE(sheet.IsKindOf(RUNTIME_CLASS(CPropertySheet3d)));
}

TEST_F(OutsideSheet, HandlesFiveMessagesInThisOrder)
{
    EXPECT_EQ(Sheet::Messages(), (std::vector<UINT>{WM_DESTROY, WM_SIZE, WM_GETMINMAXINFO, new_page, WM_CREATE}));
}

TEST_F(OutsideSheet, WithoutPagesItIsNotDisplayed)
{
    Sheet sheet;
    EXPECT_EQ(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(sheet.Display(), 0);
    EXPECT_FALSE(sheet.IsOpen());
    EXPECT_TRUE(tests::App().Take().empty());
}

TEST_F(OutsideSheet, DisplayReturnsWhileItIsOpen)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    EXPECT_FALSE(sheet.IsOpen());
    EXPECT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_TRUE(sheet.IsOpen());
    EXPECT_TRUE(sheet.IsWindowVisible());
    EXPECT_TRUE(m_main->IsWindowEnabled());
    EXPECT_EQ(::GetWindow(sheet.m_hWnd, GW_OWNER), m_main->m_hWnd);
    Close(sheet);
    EXPECT_FALSE(sheet.IsOpen());
}

TEST_F(OutsideSheet, DisplayTakesTheMainWindowAsParent)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    EXPECT_NE(sheet.Display(), 0);
    EXPECT_EQ(::GetWindow(sheet.m_hWnd, GW_OWNER), m_main->m_hWnd);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, SecondDisplayBringsItToTheTop)
{
    Page firstPage;
    Page secondPage(IDD_OUTSIDE_SECOND);
    Sheet first(L"First sheet");
    Sheet second(L"Second sheet");
    first.AddPage(&firstPage);
    second.AddPage(&secondPage);
    ASSERT_NE(first.DisplayDialog(m_main.get()), 0);
    ASSERT_NE(second.DisplayDialog(m_main.get()), 0);
    HWND const window = first.m_hWnd;
    EXPECT_EQ(first.DisplayDialog(m_main.get()), 1);
    EXPECT_EQ(first.m_hWnd, window);
    HWND below = window;
    while (below != nullptr && below != second.m_hWnd)
        below = ::GetWindow(below, GW_HWNDNEXT);
    EXPECT_EQ(below, second.m_hWnd);
    first.DestroyWindow();
    second.DestroyWindow();
}

TEST_F(OutsideSheet, ApplyShowsAndHelpDoesNot)
{
    Page page;
    Sheet sheet;
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW | PSH_HASHELP;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(sheet.m_psh.dwFlags & (PSH_NOAPPLYNOW | PSH_HASHELP), 0u);
    for (int const id : {ok_button, cancel_button, apply_button})
    {
        ASSERT_NE(sheet.GetDlgItem(id), nullptr) << id;
        EXPECT_TRUE(sheet.GetDlgItem(id)->IsWindowVisible()) << id;
    }
    CWnd * const help = sheet.GetDlgItem(help_button);
    EXPECT_TRUE(help == nullptr || !help->IsWindowVisible());
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, FlagsAreClearedWhateverFollows)
{
    Page page;
    Sheet sheet;
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW | PSH_HASHELP;
    EXPECT_EQ(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(sheet.m_psh.dwFlags & (PSH_NOAPPLYNOW | PSH_HASHELP), 0u);
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW | PSH_HASHELP;
    EXPECT_EQ(sheet.DisplayDialog(m_main.get()), 1);
    EXPECT_EQ(sheet.m_psh.dwFlags & (PSH_NOAPPLYNOW | PSH_HASHELP), 0u);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, IsNoWizardAfterwards)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(sheet.m_psh.dwFlags & PSH_WIZARD, 0u);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, ShowsTheChosenPageFirst)
{
    Page first;
    Page second(IDD_OUTSIDE_SECOND);
    Sheet sheet(L"Settings", nullptr, 1);
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(sheet.GetActivePage(), &second);
    EXPECT_EQ(first.m_inits, 0);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, MayHaveAnotherParentAtTheNextOpening)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    tests::ScopedWindow other(CRect(500, 100, 700, 300));
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    Close(sheet);
    ASSERT_NE(sheet.DisplayDialog(&other), 0);
    EXPECT_EQ(::GetWindow(sheet.m_hWnd, GW_OWNER), other.m_hWnd);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, MayEndWhileItOpens)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    sheet.m_onInit = [&] { sheet.CloseDialog(); };
    sheet.DisplayDialog(m_main.get());
    ASSERT_TRUE(tests::PumpUntil([&] { return !sheet.IsOpen(); }));
    sheet.m_onInit = {};
    EXPECT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_TRUE(sheet.IsWindowVisible());
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, PageMayEndItWhileItOpens)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    page.m_onInit = [&] { sheet.DestroyWindow(); };
    sheet.DisplayDialog(m_main.get());
    ASSERT_TRUE(tests::PumpUntil([&] { return !sheet.IsOpen(); }));
    page.m_onInit = {};
    EXPECT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_TRUE(sheet.IsWindowVisible());
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, ClosesByAPostedMessage)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    tests::MessageRecorder recorder({WM_CLOSE});
    recorder.Watch(sheet.m_hWnd, "sheet");
    sheet.CloseDialog();
    EXPECT_TRUE(sheet.IsOpen());
    ASSERT_TRUE(tests::PumpUntil([&] { return !sheet.IsOpen(); }));
    ASSERT_FALSE(recorder.Received().empty());
    EXPECT_EQ(recorder.Received()[0].way, tests::Way::posted);
}

// Title

TEST_F(OutsideSheet, TitleIsTheCaption)
{
    Page page;
    Sheet sheet(L"Measured values");
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"Measured values");
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, LaterTitleCountsFromTheNextOpening)
{
    Page page;
    Sheet sheet(L"Before");
    sheet.AddPage(&page);
    sheet.SetDialogTitle(L"First title");
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"First title");
    sheet.SetDialogTitle(L"Second title");
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"First title");
    Close(sheet);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"Second title");
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, PlaceKeepsTheNameOfTheFirstOpening)
{
    Page page;
    Sheet sheet(L"First title");
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    sheet.SetDialogTitle(L"Second title");
    Close(sheet);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_NE(Managers::Find(L"First title"), nullptr);
    EXPECT_EQ(Managers::Find(L"Second title"), nullptr);
    m_store.m_values.clear();
    Close(sheet);
    EXPECT_TRUE(m_store.Has(L"First_title-Fensterpos"));
    EXPECT_FALSE(m_store.Has(L"Second_title-Fensterpos"));
}

TEST_F(OutsideSheet, CaptionOfTheStringTableNamesThePlace)
{
    Page page;
    std::unique_ptr<CPropertySheet3d> const sheet = CPropertySheet3d::FromCaption(IDS_OUTSIDE_CAPTION, m_main.get(), 0);
    sheet->AddPage(&page);
    ASSERT_NE(sheet->DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(TextOf(sheet->m_hWnd), L"Sheet from a string");
    EXPECT_NE(Managers::Find(L"Sheet from a string"), nullptr);
    sheet->DestroyWindow();
    EXPECT_TRUE(m_store.Has(L"Sheet_from_a_string-Fensterpos"));
}

TEST_F(OutsideSheet, EmptyTitleIsTakenFromTheWindow)
{
    Page page;
    Sheet sheet(L"From the window");
    sheet.AddPage(&page);
    sheet.SetDialogTitle(L"");
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"From the window");
    EXPECT_NE(Managers::Find(L"From the window"), nullptr);
    sheet.DestroyWindow();
}

// Its place

TEST_F(OutsideSheet, EndOfTheParentStoresThePlace)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    CRect const place = ScreenRect(sheet.m_hWnd);
    tests::App().m_pMainWnd = nullptr;
    m_main->DestroyWindow();
    EXPECT_FALSE(sheet.IsOpen());
    EXPECT_EQ(m_store.Position(L"Settings"), place);
}

TEST_F(OutsideSheet, ResizableSheetComesBackAsLargeAsItWas)
{
    Page first;
    Page second(IDD_OUTSIDE_SECOND);
    Sheet sheet;
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    sheet.SetResizable(true);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    Grow(sheet, 100, 70);
    CRect const place = ScreenRect(sheet.m_hWnd);
    CRect const page = PageRect(sheet);
    CRect const button = ChildRect(sheet, ok_button);
    Close(sheet);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(ScreenRect(sheet.m_hWnd), place);
    EXPECT_EQ(PageRect(sheet), page);
    EXPECT_EQ(ChildRect(sheet, ok_button), button);
    Select(sheet, 1);
    tests::PumpPosted();
    EXPECT_EQ(PageRect(sheet), page);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, ManagerComesWithTheFirstOpeningAndStays)
{
    Page page;
    {
        Sheet sheet;
        sheet.AddPage(&page);
        EXPECT_EQ(Managers::Find(L"Settings"), nullptr);
        ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
        CFensterManager * const manager = Managers::Find(L"Settings");
        ASSERT_NE(manager, nullptr);
        EXPECT_EQ(manager->WhatsMyType(), static_cast<int>(CFensterManager::window_dialog));
        Close(sheet);
        EXPECT_EQ(Managers::Find(L"Settings"), manager);
        ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
        EXPECT_EQ(Managers::Find(L"Settings"), manager);
        Close(sheet);
    }
    EXPECT_EQ(Managers::Find(L"Settings"), nullptr);
}

TEST_F(OutsideSheet, ResizableSheetIsOfTheResizableType)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    sheet.SetResizable(true);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(Managers::Find(L"Settings")->WhatsMyType(), static_cast<int>(CFensterManager::window_sizable_dialog));
    EXPECT_EQ(sheet.GetStyle() & (WS_THICKFRAME | WS_SYSMENU), static_cast<DWORD>(WS_THICKFRAME | WS_SYSMENU));
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, FixedSheetHasNoThickFrame)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(sheet.GetStyle() & WS_THICKFRAME, 0u);
    sheet.SetResizable(true);
    EXPECT_EQ(sheet.GetStyle() & WS_THICKFRAME, 0u);
    Close(sheet);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_NE(sheet.GetStyle() & WS_THICKFRAME, 0u);
    EXPECT_EQ(Managers::Find(L"Settings")->WhatsMyType(), static_cast<int>(CFensterManager::window_dialog));
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, ClosingStoresThePlaceAsOpen)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    sheet.SetWindowPos(nullptr, 210, 140, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    CRect const place = ScreenRect(sheet.m_hWnd);
    Close(sheet);
    EXPECT_EQ(m_store.Position(L"Settings"), place);
    EXPECT_EQ(m_store.Get(L"Settings-IstOffen"), 1);
    EXPECT_EQ(m_store.Get(L"Settings-Gestalt"), 0);
}

TEST_F(OutsideSheet, FixedSheetTakesTheStoredPlaceWithItsOwnSize)
{
    Page page;
    CSize own;
    {
        Sheet sheet(L"Unknown");
        sheet.AddPage(&page);
        ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
        own = ScreenRect(sheet.m_hWnd).Size();
        sheet.DestroyWindow();
    }
    Sheet sheet;
    sheet.AddPage(&page);
    m_store.PutWindow(L"Settings", true, CRect(220, 150, 1000, 900));
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(ScreenRect(sheet.m_hWnd), CRect(CPoint(220, 150), own));
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, ResizableSheetTakesTheStoredPlaceAndSize)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    sheet.SetResizable(true);
    CRect const place(120, 90, 920, 690);
    m_store.PutWindow(L"Settings", true, place);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    EXPECT_EQ(ScreenRect(sheet.m_hWnd), place);
    CRect client;
    sheet.GetClientRect(&client);
    EXPECT_GT(PageRect(sheet).Width(), client.Width() / 2); // laid out for it
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, WithoutStoredPlaceItStaysWhereItOpened)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    CRect const opened = ScreenRect(sheet.m_hWnd);
    CFensterManager * const manager = Managers::Find(L"Settings");
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(manager->WhatsMyPosition(), opened);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, OpensWithoutStore)
{
    CVeskBase::SetPreferenceVesk(nullptr);
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    Close(sheet);
    EXPECT_TRUE(m_store.m_log.empty());
}

// Layout

TEST_F(OutsideSheet, ChildrenFollowTheSize)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    sheet.SetResizable(true);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    CRect const tab = TabRect(sheet);
    CRect const shown = PageRect(sheet);
    std::vector<CRect> buttons;
    for (int const id : {ok_button, cancel_button, apply_button})
        buttons.push_back(ChildRect(sheet, id));
    Grow(sheet, 90, 70);
    EXPECT_EQ(TabRect(sheet), CRect(tab.left, tab.top, tab.right + 90, tab.bottom));
    EXPECT_EQ(PageRect(sheet), CRect(shown.left, shown.top, shown.right + 90, shown.bottom + 70));
    int index = 0;
    for (int const id : {ok_button, cancel_button, apply_button})
        EXPECT_EQ(ChildRect(sheet, id), buttons[index++] + CPoint(90, 70)) << id;
    Grow(sheet, -90, -70);
    EXPECT_EQ(TabRect(sheet), tab);
    EXPECT_EQ(PageRect(sheet), shown);
    EXPECT_EQ(ChildRect(sheet, apply_button), buttons[2]);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, FixedSheetIsLaidOutAsWell)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    CRect const button = ChildRect(sheet, ok_button);
    Grow(sheet, 50, 40);
    EXPECT_EQ(ChildRect(sheet, ok_button), button + CPoint(50, 40));
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, LeastSizeIsThatOfTheFirstOpening)
{
    for (bool const resizable : {false, true})
    {
        Page page;
        Sheet sheet;
        sheet.AddPage(&page);
        sheet.SetResizable(resizable);
        m_store.m_values.clear();
        ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
        CSize const first = ScreenRect(sheet.m_hWnd).Size();
        MINMAXINFO limits = Limits(sheet.m_hWnd);
        EXPECT_EQ(CSize(limits.ptMinTrackSize.x, limits.ptMinTrackSize.y), first) << resizable;
        EXPECT_EQ(limits.ptMaxTrackSize.x, 7777);
        EXPECT_EQ(limits.ptMaxTrackSize.y, 8888);
        Grow(sheet, 60, 60);
        Close(sheet);
        ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
        limits = Limits(sheet.m_hWnd);
        EXPECT_EQ(CSize(limits.ptMinTrackSize.x, limits.ptMinTrackSize.y), first) << resizable;
        sheet.DestroyWindow();
    }
}

TEST_F(OutsideSheet, BelowTheLeastSizeItIsLaidOutAsForThat)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    CRect const shown = PageRect(sheet);
    CRect const button = ChildRect(sheet, ok_button);
    Grow(sheet, -40, -30);
    EXPECT_EQ(PageRect(sheet), shown);
    EXPECT_EQ(ChildRect(sheet, ok_button), button);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, OwnChildrenFollowByAllFourWays)
{
    Page page;
    Sheet sheet;
    CButton child[4];
    sheet.m_onInit = [&] {
        for (int index = 0; index < 4; ++index)
        {
            child[index].Create(L"c", WS_CHILD | WS_VISIBLE, CRect(2 + 20 * index, 2, 12 + 20 * index, 12), &sheet,
                                IDC_OUTSIDE_OWN + 50 + index);
        }
        sheet.D3dLayoutChild(IDC_OUTSIDE_OWN + 50, CEdges::TOP_RIGHT(), nullptr);
        sheet.D3dLayoutChild(IDC_OUTSIDE_OWN + 51, CRect(0, 0, 5000, 0), nullptr);
        sheet.D3dLayoutChild(&child[2], CEdges::BOTTOM_LEFT(), nullptr);
        sheet.D3dLayoutChild(&child[3], CRect(2500, 2500, 2500, 2500), nullptr);
        sheet.D3dLayoutComplete();
    };
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    Grow(sheet, 80, 40);
    EXPECT_EQ(RectInParent(child[0].m_hWnd), CRect(82, 2, 92, 12));
    EXPECT_EQ(RectInParent(child[1].m_hWnd), CRect(22, 2, 72, 12));
    EXPECT_EQ(RectInParent(child[2].m_hWnd), CRect(42, 42, 52, 52));
    EXPECT_EQ(RectInParent(child[3].m_hWnd), CRect(82, 12, 92, 22));
    CRect rect;
    sheet.ClientCoordinates(IDC_OUTSIDE_OWN + 53, rect);
    EXPECT_EQ(rect, CRect(82, 12, 92, 22));
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, SizeHasTheSheetPaintedWholly)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    sheet.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    sheet.ValidateRect(nullptr);
    sheet.m_erased = 0;
    CRect client;
    sheet.GetClientRect(&client);
    sheet.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    CRect update;
    sheet.GetUpdateRect(&update, TRUE); // erases if that was asked for
    EXPECT_EQ(update, client);
    EXPECT_EQ(sheet.m_erased, 1);
    sheet.DestroyWindow();
}

// A new active page

TEST_F(OutsideSheet, SelectingATabPostsOneMessage)
{
    Page first;
    Page second(IDD_OUTSIDE_SECOND);
    Sheet sheet;
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    tests::PumpPosted();
    tests::MessageRecorder recorder({new_page});
    recorder.Watch(sheet.m_hWnd, "sheet");
    Select(sheet, 1);
    EXPECT_EQ(recorder.Received().size(), 0u);
    tests::PumpPosted();
    EXPECT_TRUE(recorder.Matches(
        {{"sheet", new_page, tests::Way::posted, 0, 0}, {"sheet", new_page, tests::Way::sent, 0, 0, {}, {}, true}}));
    EXPECT_EQ(sheet.GetActivePage(), &second);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, NewPageTakesThePlaceOfTheOldOne)
{
    Page first;
    Page second(IDD_OUTSIDE_SECOND);
    Sheet sheet;
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    sheet.SetResizable(true);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    Grow(sheet, 120, 80);
    CRect const place = PageRect(sheet);
    Select(sheet, 1);
    tests::PumpPosted();
    ASSERT_EQ(sheet.GetActivePage(), &second);
    EXPECT_EQ(PageRect(sheet), place);
    Grow(sheet, 10, 20);
    EXPECT_EQ(PageRect(sheet), CRect(place.left, place.top, place.right + 10, place.bottom + 20));
    Select(sheet, 0);
    tests::PumpPosted();
    ASSERT_EQ(sheet.GetActivePage(), &first);
    EXPECT_EQ(PageRect(sheet), CRect(place.left, place.top, place.right + 10, place.bottom + 20));
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, ApplyPostsTheMessage)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    tests::PumpPosted();
    page.SetModified();
    tests::MessageRecorder recorder({new_page});
    recorder.Watch(sheet.m_hWnd, "sheet");
    sheet.GetDlgItem(apply_button)->SendMessage(BM_CLICK);
    tests::PumpPosted();
    EXPECT_TRUE(recorder.Matches(
        {{"sheet", new_page, tests::Way::posted, 0, 0}, {"sheet", new_page, tests::Way::sent, 0, 0, {}, {}, true}}));
    EXPECT_TRUE(sheet.IsOpen());
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, OnlyApplyPressedPostsTheMessage)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    tests::PumpPosted();
    tests::MessageRecorder recorder({new_page});
    recorder.Watch(sheet.m_hWnd, "sheet");
    HWND const button = sheet.GetDlgItem(apply_button)->m_hWnd;
    sheet.SendMessage(WM_COMMAND, MAKEWPARAM(apply_button, 6), reinterpret_cast<LPARAM>(button));
    sheet.SendMessage(WM_COMMAND, MAKEWPARAM(12345, 0), 0);
    tests::PumpPosted();
    EXPECT_TRUE(recorder.Received().empty());
    sheet.SendMessage(WM_COMMAND, MAKEWPARAM(apply_button, 0), reinterpret_cast<LPARAM>(button));
    tests::PumpPosted();
    EXPECT_EQ(recorder.Count("sheet", new_page), 1);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, NotificationOfASelectionPostsTheMessage)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    tests::PumpPosted();
    tests::MessageRecorder recorder({new_page});
    recorder.Watch(sheet.m_hWnd, "sheet");
    NMHDR header{sheet.GetTabControl()->m_hWnd, static_cast<UINT_PTR>(sheet.GetTabControl()->GetDlgCtrlID()),
                 static_cast<UINT>(TCN_SELCHANGING)};
    sheet.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    header.code = static_cast<UINT>(NM_CLICK);
    sheet.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    tests::PumpPosted();
    EXPECT_TRUE(recorder.Received().empty());
    header.code = static_cast<UINT>(-551);
    sheet.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    EXPECT_TRUE(recorder.Received().empty());
    tests::PumpPosted();
    EXPECT_EQ(recorder.Count("sheet", new_page), 1);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, ApplyCausesOneLayout)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    tests::PumpPosted();
    tests::MessageRecorder recorder({WM_WINDOWPOSCHANGING});
    recorder.Watch(sheet.GetDlgItem(ok_button)->m_hWnd, "ok");
    recorder.Watch(page.m_hWnd, "page");
    HWND const button = sheet.GetDlgItem(apply_button)->m_hWnd;
    sheet.SendMessage(WM_COMMAND, MAKEWPARAM(apply_button, 0), reinterpret_cast<LPARAM>(button));
    EXPECT_EQ(recorder.Count("ok", WM_WINDOWPOSCHANGING), 0);
    tests::PumpPosted();
    EXPECT_EQ(recorder.Count("ok", WM_WINDOWPOSCHANGING), 1);
    EXPECT_EQ(recorder.Count("page", WM_WINDOWPOSCHANGING), 1);
    sheet.DestroyWindow();
}

TEST_F(OutsideSheet, MessagePutsThePageWhereItBelongs)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
    tests::PumpPosted();
    CRect const place = PageRect(sheet);
    page.SetWindowPos(nullptr, 0, 0, 50, 60, SWP_NOZORDER);
    ASSERT_NE(PageRect(sheet), place);
    EXPECT_EQ(sheet.SendMessage(new_page, 0, 0), 0);
    EXPECT_EQ(PageRect(sheet), place);
    sheet.DestroyWindow();
}

// Rows of tabs

namespace
{
constexpr wchar_t long_text[] = L"A page with a name that is very much longer than others";

class OutsideRows : public OutsideSheet
{
protected:
    void SetUp() override
    {
        OutsideSheet::SetUp();
        m_sheet.AddPage(&m_first);
        m_sheet.AddPage(&m_second);
        m_sheet.SetResizable(true);
    }
    void TearDown() override
    {
        if (m_sheet.m_hWnd != nullptr)
            m_sheet.DestroyWindow();
        OutsideSheet::TearDown();
    }
    void SetTexts(bool wrap)
    {
        SetTabText(m_sheet, 0, wrap ? long_text : L"First");
        SetTabText(m_sheet, 1, wrap ? long_text : L"Second");
    }

    Page m_first;
    Page m_second{IDD_OUTSIDE_SECOND};
    Sheet m_sheet;
};
} // namespace

TEST_F(OutsideRows, PageGivesRoomToASecondRow)
{
    ASSERT_NE(m_sheet.DisplayDialog(m_main.get()), 0);
    ASSERT_EQ(Rows(m_sheet), 1);
    CRect const place = PageRect(m_sheet);
    SetTexts(true);
    ASSERT_EQ(Rows(m_sheet), 2);
    Grow(m_sheet, 0, 1);
    int const height = TabHeight(m_sheet);
    ASSERT_EQ(Rows(m_sheet), 2);
    EXPECT_EQ(PageRect(m_sheet), CRect(place.left, place.top + height, place.right, place.bottom + 1));
    SetTexts(false);
    ASSERT_EQ(Rows(m_sheet), 1);
    Grow(m_sheet, 0, -1);
    EXPECT_EQ(PageRect(m_sheet), place);
}

TEST_F(OutsideRows, NextPageTakesTheMovedArea)
{
    ASSERT_NE(m_sheet.DisplayDialog(m_main.get()), 0);
    ASSERT_EQ(Rows(m_sheet), 1);
    SetTexts(true);
    Grow(m_sheet, 0, 1);
    ASSERT_EQ(Rows(m_sheet), 2);
    CRect const place = PageRect(m_sheet);
    Select(m_sheet, 1);
    tests::PumpPosted();
    ASSERT_EQ(m_sheet.GetActivePage(), &m_second);
    EXPECT_EQ(PageRect(m_sheet), place);
}

TEST_F(OutsideRows, WideSheetNeedsFewerRows)
{
    m_first.SetTitle(long_text);
    m_second.SetTitle(long_text);
    ASSERT_NE(m_sheet.DisplayDialog(m_main.get()), 0);
    ASSERT_EQ(Rows(m_sheet), 2);
    CRect const place = PageRect(m_sheet);
    int const height = TabHeight(m_sheet);
    Grow(m_sheet, 500, 0);
    ASSERT_EQ(Rows(m_sheet), 1);
    EXPECT_EQ(PageRect(m_sheet), CRect(place.left, place.top - height, place.right + 500, place.bottom));
    Grow(m_sheet, -500, 0);
    ASSERT_EQ(Rows(m_sheet), 2);
    EXPECT_EQ(PageRect(m_sheet), place);
}

TEST_F(OutsideRows, RowsAreCountedAnewAtEachOpening)
{
    ASSERT_NE(m_sheet.DisplayDialog(m_main.get()), 0);
    CRect const place = PageRect(m_sheet);
    SetTexts(true);
    Grow(m_sheet, 0, 1);
    ASSERT_EQ(Rows(m_sheet), 2);
    Close(m_sheet);
    m_store.m_values.clear();
    ASSERT_NE(m_sheet.DisplayDialog(m_main.get()), 0);
    ASSERT_EQ(Rows(m_sheet), 1);
    EXPECT_EQ(PageRect(m_sheet), place);
    Select(m_sheet, 1);
    tests::PumpPosted();
    EXPECT_EQ(PageRect(m_sheet), place);
}

// Failure

TEST_F(OutsideSheet, InitWithoutPagesComplainsAndThrows)
{
    Sheet sheet(L"Empty one");
    bool thrown = false;
    try
    {
        sheet.OnInitDialog();
    }
    catch (std::exception const & error)
    {
        thrown = true;
        EXPECT_STREQ(error.what(), "Property Sheet without pages cannot be displayed!");
    }
    EXPECT_TRUE(thrown);
    std::vector<tests::TestApp::Message> const messages = tests::App().Take();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, L"Property Sheet \u201CEmpty one\u201D has no pages and cannot be displayed!");
    EXPECT_EQ(messages[0].type & MB_ICONMASK, static_cast<UINT>(MB_ICONERROR));
    EXPECT_EQ(Managers::Find(L"Empty one"), nullptr);
}

TEST_F(OutsideSheet, OpensAndClosesAgainAndAgain)
{
    Page page;
    Sheet sheet;
    sheet.AddPage(&page);
    CRect place;
    for (int round = 0; round < 3; ++round)
    {
        ASSERT_NE(sheet.DisplayDialog(m_main.get()), 0);
        tests::PumpPosted();
        if (round == 0)
            place = PageRect(sheet);
        EXPECT_EQ(PageRect(sheet), place) << round;
        EXPECT_TRUE(sheet.GetDlgItem(apply_button)->IsWindowVisible());
        Close(sheet);
    }
    EXPECT_EQ(page.m_inits, 3);
}
} // namespace outside
