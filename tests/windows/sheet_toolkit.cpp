// The toolkit's sheets: display, buttons, titles, stored places, layout of the children.

#include <exception>
#include <string>

#include "GuardedHeap.h"
#include "sheet_Sheet3dTest.h"

using namespace sheet_tests;

namespace
{
using PropertySheet3d = SheetTest;
using PropertySheetRows = SheetTest;

/// Long titles, so that the tabs take two rows at the size of the pages.
void WidenTitles(Page3d & one, Page3d & two, Page3d & three)
{
    one.SetTitle(L"A title of some length for the first");
    two.SetTitle(L"A title of some length for the second");
    three.SetTitle(L"Third");
}
} // namespace

// --- Display ---

TEST_F(PropertySheet3d, WithoutPagesItIsNotDisplayedAndNothingIsSaid)
{
    Sheet3d sheet;
    EXPECT_EQ(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(sheet.Display(), 0);
    EXPECT_FALSE(sheet.IsOpen());
    EXPECT_TRUE(tests::App().TakeMessages().empty());
}

TEST_F(PropertySheet3d, WithoutPagesItsInitialisationTellsTheUserAndThrows)
{
    Sheet3d sheet(L"Empty one");
    std::string thrown;
    try
    {
        sheet.OnInitDialog();
    }
    catch (std::exception const & exception)
    {
        thrown = exception.what();
    }
    EXPECT_EQ(thrown, "Property Sheet without pages cannot be displayed!");
    std::vector<tests::TestApp::Message> const messages = tests::App().Take();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, L"Property Sheet \u201CEmpty one\u201D has no pages and cannot be displayed!");
    EXPECT_EQ(messages[0].type, static_cast<UINT>(MB_ICONERROR));
}

TEST_F(PropertySheet3d, WithoutPagesAnotherWayOfCreationLeavesNoWindow)
{
    int const windows = tests::ThreadWindows();
    Sheet3d sheet(L"Empty one");
    EXPECT_FALSE(sheet.Create(nullptr, static_cast<DWORD>(-1), 0));
    EXPECT_FALSE(sheet.IsOpen());
    EXPECT_EQ(sheet.DoModal(), -1);
    tests::App().TakeMessages();
    tests::PumpPosted();
    EXPECT_EQ(tests::ThreadWindows(), windows);
}

TEST_F(PropertySheet3d, ItIsNeverModal)
{
    tests::ScopedWindow parent;
    Sheet3d sheet;
    AddAll(sheet);
    EXPECT_NE(sheet.DisplayDialog(parent), 0);
    EXPECT_TRUE(sheet.IsOpen());
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(::GetWindow(sheet, GW_OWNER), parent.m_hWnd);
    EXPECT_TRUE(sheet.IsWindowVisible());
    constexpr DWORD style = WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME | DS_CONTEXTHELP | WS_VISIBLE;
    EXPECT_EQ(sheet.GetStyle() & style, style);
    EXPECT_EQ(sheet.GetExStyle() & WS_EX_TOPMOST, 0u);
}

TEST_F(PropertySheet3d, DisplayTakesTheMainWindowAsParent)
{
    tests::ScopedWindow main;
    CWnd * const former = std::exchange(AfxGetApp()->m_pMainWnd, static_cast<CWnd *>(main));
    Sheet3d sheet;
    AddAll(sheet);
    EXPECT_NE(sheet.Display(), 0);
    EXPECT_EQ(::GetWindow(sheet, GW_OWNER), main.m_hWnd);
    sheet.DestroyWindow();
    AfxGetApp()->m_pMainWnd = former;
}

TEST_F(PropertySheet3d, ASecondDisplayBringsItToTheTop)
{
    Sheet3d sheet;
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    tests::ScopedWindow other(OuterOf(sheet), WS_POPUP | WS_VISIBLE);
    other.BringWindowToTop();
    CPoint const middle = tests::Centre(sheet);
    ASSERT_TRUE(tests::PumpUntil([&] { return ::WindowFromPoint(middle) == other.m_hWnd; }));
    HWND const window = sheet.m_hWnd;
    EXPECT_EQ(sheet.DisplayDialog(nullptr), 1);
    EXPECT_EQ(sheet.m_hWnd, window);
    EXPECT_TRUE(tests::PumpUntil([&] { return ::GetAncestor(::WindowFromPoint(middle), GA_ROOT) == window; }));
}

TEST_F(PropertySheet3d, CloseDialogPostsTheClosing)
{
    Sheet3d sheet;
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    sheet.CloseDialog();
    EXPECT_TRUE(sheet.IsOpen()) << "posted";
    EXPECT_TRUE(tests::PumpUntil([&] { return !sheet.IsOpen(); }));
}

// --- Buttons ---

TEST_F(PropertySheet3d, TheButtonsStayAndThereIsNoHelp)
{
    Sheet3d sheet;
    AddAll(sheet);
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW | PSH_HASHELP;
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(sheet.m_psh.dwFlags & (PSH_NOAPPLYNOW | PSH_HASHELP | PSH_WIZARD), 0u);
    EXPECT_TRUE(sheet.Shows(ok_button));
    EXPECT_TRUE(sheet.Shows(cancel_button));
    EXPECT_TRUE(sheet.Shows(apply_button));
    EXPECT_FALSE(sheet.Item(help_button) != nullptr && sheet.Shows(help_button));
    EXPECT_TRUE(::IsWindowEnabled(sheet.Item(ok_button)));
    for (CPropertyPage const * page : {&m_one, &m_two, &m_three})
        EXPECT_EQ(page->m_psp.dwFlags & PSP_HASHELP, 0u);
}

TEST_F(PropertySheet3d, TheChildrenFollowTheSheetsSize)
{
    Sheet3d sheet;
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    CRect const outer = OuterOf(sheet);
    CRect const tabs = PlaceOf(sheet.GetTabControl()->m_hWnd);
    CRect const page = sheet.PagePlace();
    CRect const text = PlaceOf(m_one.GetDlgItem(IDC_PAGE_TEXT)->m_hWnd);
    std::vector<CSize> corners;
    for (int const id : {ok_button, cancel_button, apply_button})
        corners.push_back(sheet.FromCorner(id));

    sheet.SetSize(outer.Width() + 70, outer.Height() + 50);
    EXPECT_EQ(PlaceOf(sheet.GetTabControl()->m_hWnd), CRect(tabs.left, tabs.top, tabs.right + 70, tabs.bottom));
    EXPECT_EQ(sheet.PagePlace(), CRect(page.left, page.top, page.right + 70, page.bottom + 50));
    EXPECT_EQ(PlaceOf(m_one.GetDlgItem(IDC_PAGE_TEXT)->m_hWnd),
              CRect(text.left, text.top, text.right + 70, text.bottom));
    std::vector<CSize> moved;
    for (int const id : {ok_button, cancel_button, apply_button})
        moved.push_back(sheet.FromCorner(id));
    EXPECT_EQ(moved, corners);

    sheet.SetSize(outer.Width(), outer.Height());
    EXPECT_EQ(PlaceOf(sheet.GetTabControl()->m_hWnd), tabs);
    EXPECT_EQ(sheet.PagePlace(), page);
}

// --- Pages ---

TEST_F(PropertySheet3d, ANewPageTakesThePlaceOfTheOldOne)
{
    Sheet3d sheet;
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    CRect const outer = OuterOf(sheet);
    sheet.SetSize(outer.Width() + 70, outer.Height() + 50);
    CRect const place = sheet.PagePlace();
    ASSERT_TRUE(tests::BringToFront(sheet));
    for (int const index : {1, 2, 1, 0})
    {
        int const messages = sheet.m_resizeMessages;
        tests::Click(sheet.TabPoint(index));
        ASSERT_TRUE(tests::PumpUntil([&] { return sheet.GetActiveIndex() == index; })) << index;
        ASSERT_TRUE(tests::PumpUntil([&] { return sheet.m_resizeMessages > messages; })) << index;
        tests::PumpPosted();
        EXPECT_EQ(sheet.PagePlace(), place) << index;
        EXPECT_EQ(sheet.m_resizeMessages, messages + 1) << index;
    }
}

TEST_F(PropertySheet3d, ApplyLaysOutOnce)
{
    Sheet3d sheet;
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    tests::PumpPosted();
    CRect const place = sheet.PagePlace();
    m_one.SetModified();
    EXPECT_TRUE(::IsWindowEnabled(sheet.Item(apply_button)));
    Taken();
    // What somebody has done to the page meanwhile is put right.
    m_one.MoveWindow(0, 0, 10, 10);
    int const messages = sheet.m_resizeMessages;
    sheet.Push(apply_button);
    EXPECT_EQ(sheet.m_resizeMessages, messages) << "posted";
    tests::PumpPosted();
    EXPECT_EQ(sheet.m_resizeMessages, messages + 1);
    EXPECT_EQ(Taken(), (Notes{"1 kill", "1 apply", "1 ok", "1 set"}));
    EXPECT_EQ(sheet.PagePlace(), place);
    EXPECT_FALSE(::IsWindowEnabled(sheet.Item(apply_button)));
    EXPECT_TRUE(sheet.IsOpen());
}

TEST_F(PropertySheet3d, TheMessageToItselfNeedsNoParametersAndGivesZero)
{
    Sheet3d sheet;
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(sheet.SendMessage(resize_page, 5, 7), 0);
    EXPECT_EQ(TextOf(sheet), L"Sheet") << "it has the number of the native sheet's narrow title message";
}

TEST_F(PropertySheet3d, APagesInitialisationGivesOne)
{
    Sheet3d sheet;
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(m_one.m_initResult, 1);
}

TEST_F(PropertySheet3d, APageKeepsItsDesignSizeForItsLife)
{
    Sheet3d sheet;
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    CRect const outer = OuterOf(sheet);
    CRect const text = PlaceOf(m_one.GetDlgItem(IDC_PAGE_TEXT)->m_hWnd);
    for (int opening = 0; opening < 3; ++opening)
    {
        sheet.DestroyWindow();
        ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
        EXPECT_EQ(PlaceOf(m_one.GetDlgItem(IDC_PAGE_TEXT)->m_hWnd), text);
        sheet.SetSize(outer.Width() + 30, outer.Height() + 30);
        EXPECT_EQ(PlaceOf(m_one.GetDlgItem(IDC_PAGE_TEXT)->m_hWnd).right, text.right + 30);
    }
}

TEST_F(PropertySheet3d, APageAnswersForItsLeastSize)
{
    Sheet3d sheet;
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    CSize const page = m_one.m_designSize;
    MINMAXINFO info{};
    info.ptMaxTrackSize = CPoint(5000, 5000);
    m_one.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(CPoint(info.ptMinTrackSize), CPoint(page));
    EXPECT_EQ(CPoint(info.ptMaxTrackSize), CPoint(5000, 5000));
}

TEST_F(PropertySheet3d, LayoutBeforeTheOpeningDoesNothing)
{
    Sheet3d sheet;
    AddAll(sheet);
    sheet.D3dLayoutChild(ok_button, CEdges::BOTTOM_RIGHT(), nullptr);
    sheet.D3dLayoutComplete();
    m_one.D3dLayoutChild(IDC_PAGE_TEXT, CEdges::TOP_LEFT(), nullptr);
    m_one.D3dLayoutComplete();
    EXPECT_NE(sheet.DisplayDialog(nullptr), 0);
}

TEST_F(PropertySheet3d, TitlesOfPages)
{
    Page3d named(m_notes, "n", CDialog3d::NO_DLL, IDD_PAGE_ONE, CString(L"Named"));
    Page3d captioned(m_notes, "c", CDialog3d::NO_DLL, IDD_PAGE_ONE, static_cast<unsigned int>(IDS_PAGE_CAPTION));
    EXPECT_EQ(CString(named.GetPSP().pszTitle), L"Named");
    EXPECT_NE(named.GetPSP().dwFlags & PSP_USETITLE, 0u);
    EXPECT_EQ(m_one.GetPSP().dwFlags & PSP_USETITLE, 0u);
    m_two.SetTitle(L"Other");
    EXPECT_EQ(CString(m_two.GetPSP().pszTitle), L"Other");
    EXPECT_NE(m_two.GetPSP().dwFlags & PSP_USETITLE, 0u);

    Sheet3d sheet;
    for (CPropertyPage * page : {static_cast<CPropertyPage *>(&named), static_cast<CPropertyPage *>(&captioned),
                                 static_cast<CPropertyPage *>(&m_one), static_cast<CPropertyPage *>(&m_two)})
        sheet.AddPage(page);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    auto const title = [&sheet](int index) {
        wchar_t text[64] = {};
        TCITEM item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        sheet.GetTabControl()->GetItem(index, &item);
        return CString(text);
    };
    EXPECT_EQ(title(0), L"Named");
    EXPECT_EQ(title(1), L"From a string");
    EXPECT_EQ(title(2), L"One");
    EXPECT_EQ(title(3), L"Other");
    named.SetTitle(L"Later");
    EXPECT_EQ(title(0), L"Named") << "it takes effect when the page is created";
    sheet.DestroyWindow();
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(title(0), L"Later");
}

TEST_F(PropertySheet3d, APagesTemplateIsThatOfItsModule)
{
    constexpr int toolkit_dialog = 130;
    constexpr int toolkit_control = 1016;
    AFX_EXTENSION_MODULE module{};
    module.hModule = ::GetModuleHandleW(L"instrument_ui.dll");
    HINSTANCE const before = AfxGetResourceHandle();
    Noting<CPropertyPage3d> page(m_notes, "t", module, toolkit_dialog, CString(L"Toolkit's"));
    EXPECT_EQ(AfxGetResourceHandle(), before);
    EXPECT_EQ(page.GetPSP().hInstance, module.hModule);
    Sheet3d sheet;
    sheet.AddPage(&page);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_NE(page.GetDlgItem(toolkit_control), nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST_F(PropertySheet3d, APageWithoutATemplateGivesAResult)
{
    HINSTANCE const before = AfxGetResourceHandle();
    int const windows = tests::ThreadWindows();
    Page3d missing(m_notes, "m", CDialog3d::NO_DLL, IDD_PAGE_NO_RESOURCE, 0u);
    {
        Sheet3d sheet;
        sheet.AddPage(&m_one);
        sheet.AddPage(&missing);
        EXPECT_EQ(sheet.DisplayDialog(nullptr), 0);
        EXPECT_FALSE(sheet.IsOpen());
        EXPECT_EQ(sheet.DoModal(), -1);
        sheet.RemovePage(&missing);
        EXPECT_NE(sheet.DisplayDialog(nullptr), 0);
        sheet.AddPage(&missing);
        EXPECT_EQ(sheet.GetPageCount(), 1);
    }
    tests::PumpPosted();
    EXPECT_EQ(tests::ThreadWindows(), windows);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

// --- Titles and places ---

TEST_F(PropertySheet3d, TheTitleOfAnOpenSheetStays)
{
    Sheet3d sheet(L"First");
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(TextOf(sheet), L"First");
    sheet.SetDialogTitle(L"Second");
    EXPECT_EQ(TextOf(sheet), L"First");
    sheet.DestroyWindow();
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(TextOf(sheet), L"Second");
}

TEST_F(PropertySheet3d, ASheetFromACaptionHasItsNameFromTheWindow)
{
    auto const sheet = CPropertySheet3d::FromCaption(IDS_SHEET_CAPTION, nullptr, 1);
    AddAll(*sheet);
    StorePlace(L"Sheet_from_a_string", CRect(77, 66, 400, 300));
    ASSERT_NE(sheet->DisplayDialog(nullptr), 0);
    EXPECT_EQ(TextOf(*sheet), L"Sheet from a string");
    EXPECT_EQ(OuterOf(*sheet).TopLeft(), CPoint(77, 66));
    EXPECT_EQ(sheet->GetActivePage(), &m_two);
    sheet->SetWindowPos(nullptr, 88, 99, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    sheet->DestroyWindow();
    EXPECT_EQ(StoredPlace(L"Sheet_from_a_string").TopLeft(), CPoint(88, 99));
}

TEST_F(PropertySheet3d, ASheetOfFixedSizeComesBackToItsPlace)
{
    CRect place;
    {
        Sheet3d sheet(L"Fixed");
        AddAll(sheet);
        ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
        EXPECT_EQ(sheet.GetStyle() & WS_THICKFRAME, 0u);
        sheet.SetWindowPos(nullptr, 123, 45, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        place = OuterOf(sheet);
        ASSERT_TRUE(tests::BringToFront(sheet));
        sheet.Push(cancel_button);
        ASSERT_TRUE(tests::PumpUntil([&] { return !sheet.IsOpen(); }));
    }
    EXPECT_EQ(StoredPlace(L"Fixed"), place);
    Sheet3d sheet(L"Fixed");
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(OuterOf(sheet), place);
}

TEST_F(PropertySheet3d, AStoredSizeIsForResizableSheets)
{
    CRect const stored(100, 80, 700, 640);
    StorePlace(L"Fixed", stored);
    StorePlace(L"Free", stored);
    {
        Sheet3d sheet(L"Fixed");
        AddAll(sheet);
        ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
        EXPECT_EQ(OuterOf(sheet).TopLeft(), stored.TopLeft());
        EXPECT_LT(OuterOf(sheet).Width(), stored.Width());
        sheet.DestroyWindow();
    }
    Sheet3d sheet(L"Free");
    sheet.SetResizable(true);
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(OuterOf(sheet), stored);
    CRect client;
    sheet.GetClientRect(&client);
    EXPECT_EQ(client.right - PlaceOf(sheet.Item(apply_button)).right,
              client.right - PlaceOf(sheet.GetTabControl()->m_hWnd).right)
        << "the children have followed";
}

TEST_F(PropertySheet3d, AResizableSheetHasAThickFrame)
{
    Sheet3d sheet;
    sheet.SetResizable(true);
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_EQ(sheet.GetStyle() & (WS_THICKFRAME | WS_SYSMENU), static_cast<DWORD>(WS_THICKFRAME | WS_SYSMENU));
}

TEST_F(PropertySheet3d, TheLeastSizeIsThatOfTheFirstOpening)
{
    for (bool const resizable : {false, true})
    {
        Sheet3d sheet(L"Least");
        sheet.SetResizable(resizable);
        AddAll(sheet);
        ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
        CRect const outer = OuterOf(sheet);
        MINMAXINFO info{};
        info.ptMaxTrackSize = CPoint(5000, 5000);
        sheet.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
        EXPECT_EQ(CPoint(info.ptMinTrackSize), CPoint(outer.Width(), outer.Height())) << resizable;
        EXPECT_EQ(CPoint(info.ptMaxTrackSize), CPoint(5000, 5000)) << resizable;
        sheet.DestroyWindow();
    }
}

TEST_F(PropertySheet3d, TheTypeIsThatOfTheFirstOpening)
{
    CRect const stored(100, 80, 700, 640);
    StorePlace(L"Typed", stored);
    Sheet3d sheet(L"Typed");
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    CRect const fixed = OuterOf(sheet);
    sheet.DestroyWindow();
    StorePlace(L"Typed", stored);
    sheet.SetResizable(true);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    EXPECT_NE(sheet.GetStyle() & WS_THICKFRAME, 0u);
    EXPECT_LT(OuterOf(sheet).Width(), stored.Width()) << "the manager is kept, a dialog of fixed size";
    EXPECT_EQ(OuterOf(sheet).TopLeft(), fixed.TopLeft());
}

// --- Rows of tabs ---

TEST_F(PropertySheetRows, ThePageGivesTheTabsTheirRoom)
{
    Sheet3d sheet;
    WidenTitles(m_one, m_two, m_three);
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    ASSERT_EQ(sheet.Rows(), 2);
    CRect const outer = OuterOf(sheet);
    CRect const narrow = sheet.PagePlace();
    int const height = sheet.TabHeight();
    ASSERT_GT(height, 0);

    sheet.SetSize(outer.Width() + 300, outer.Height());
    ASSERT_EQ(sheet.Rows(), 1);
    CRect const wide = sheet.PagePlace();
    EXPECT_EQ(wide, CRect(narrow.left, narrow.top - height, narrow.right + 300, narrow.bottom));

    sheet.SetSize(outer.Width(), outer.Height() + 40);
    ASSERT_EQ(sheet.Rows(), 2);
    EXPECT_EQ(sheet.PagePlace(), CRect(narrow.left, narrow.top, narrow.right, narrow.bottom + 40));
    sheet.SetSize(outer.Width() + 300, outer.Height());
    EXPECT_EQ(sheet.PagePlace(), wide) << "exactly";
}

/// Does something once, where it has been asked for its page.
class AskedSheet : public Sheet3d
{
public:
    std::function<void()> m_act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        bool const acts = message == PSM_GETCURRENTPAGEHWND && m_act;
        LRESULT const result = Sheet3d::WindowProc(message, wParam, lParam);
        if (acts)
        {
            auto const act = std::exchange(m_act, {});
            act();
        }
        return result;
    }
};

class LeftPage : public Page3d
{
public:
    using Page3d::Page3d;
    std::function<void()> m_onLeft;

    BOOL OnKillActive() override
    {
        if (auto const act = std::exchange(m_onLeft, {}))
            act();
        return Page3d::OnKillActive();
    }
};

TEST_F(PropertySheetRows, ASheetMayEndWhileItLooksForItsRows)
{
    tests::GuardedHeap heap;
    LeftPage page(m_notes, "a", CDialog3d::NO_DLL, IDD_PAGE_ONE, 0u);
    auto sheet = std::make_unique<AskedSheet>();
    WidenTitles(m_one, m_two, m_three);
    sheet->AddPage(&page);
    AddAll(*sheet);
    ASSERT_NE(sheet->DisplayDialog(nullptr), 0);
    int const rows = sheet->Rows();
    HWND const window = sheet->m_hWnd;
    HWND const tabs = sheet->GetTabControl()->m_hWnd;
    CRect const outer = OuterOf(*sheet);
    // Within a notification of the native sheet, so that the windows last longer than the object.
    page.m_onLeft = [&] {
        sheet->m_act = [&] {
            EXPECT_LT(::SendMessageW(tabs, TCM_GETROWCOUNT, 0, 0), rows);
            sheet.reset();
        };
        ::SetWindowPos(window, nullptr, 0, 0, outer.Width() + 500, outer.Height(),
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        EXPECT_EQ(sheet, nullptr) << "it was asked";
        EXPECT_TRUE(::IsWindow(window));
    };
    ::SendMessageW(window, PSM_SETCURSEL, 3, 0);
    tests::PumpPosted();
    EXPECT_EQ(sheet, nullptr);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(PropertySheetRows, ANewPageIsInTheMovedArea)
{
    Sheet3d sheet;
    WidenTitles(m_one, m_two, m_three);
    AddAll(sheet);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    CRect const outer = OuterOf(sheet);
    ASSERT_TRUE(tests::BringToFront(sheet));
    for (int const wider : {300, 0, 300, 0})
    {
        sheet.SetSize(outer.Width() + wider, outer.Height() + 20);
        ASSERT_EQ(sheet.Rows(), wider > 0 ? 1 : 2);
        CRect const place = sheet.PagePlace();
        int const index = (sheet.GetActiveIndex() + 1) % 3;
        int const messages = sheet.m_resizeMessages;
        tests::Click(sheet.TabPoint(index));
        ASSERT_TRUE(tests::PumpUntil([&] { return sheet.m_resizeMessages > messages; }));
        tests::PumpPosted();
        ASSERT_EQ(sheet.GetActiveIndex(), index);
        EXPECT_EQ(sheet.PagePlace(), place) << wider << " " << index;
    }
}

TEST_F(PropertySheetRows, APageLaterGetsRoomForItsTab)
{
    Sheet3d sheet;
    m_one.SetTitle(L"A title of some length for the first");
    m_two.SetTitle(L"A title of some length for the second");
    sheet.AddPage(&m_one);
    ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    ASSERT_EQ(sheet.Rows(), 1);
    CRect const outer = OuterOf(sheet);
    CRect const place = sheet.PagePlace();
    sheet.AddPage(&m_two);
    ASSERT_EQ(sheet.Rows(), 2);
    sheet.SetSize(outer.Width(), outer.Height() + 1);
    EXPECT_EQ(sheet.PagePlace(), CRect(place.left, place.top + sheet.TabHeight(), place.right, place.bottom + 1));
}
