// The framework's property sheet: opening, pages, order of notifications, keys, wizard.

#include <stdexcept>

#include "sheet_SheetTest.h"

using namespace sheet_tests;

namespace
{
class SheetTest : public testing::Test
{
protected:
    Notes m_notes;
    Page m_one{m_notes, "1", static_cast<UINT>(IDD_PAGE_ONE)};
    Page m_two{m_notes, "2", static_cast<UINT>(IDD_PAGE_TWO)};
    Page m_three{m_notes, "3", static_cast<UINT>(IDD_PAGE_THREE)};

    void AddAll(CPropertySheet & sheet)
    {
        sheet.AddPage(&m_one);
        sheet.AddPage(&m_two);
        sheet.AddPage(&m_three);
    }
    Notes Taken() { return std::exchange(m_notes, {}); }
};

using PropertySheets = SheetTest;
using PropertySheetModal = SheetTest;
using PropertySheetWizard = SheetTest;
using PropertySheetEnds = SheetTest;

/// Notes whether a native control is destroyed, or loses an item, while its own code runs.
struct OwnCode
{
    int depth = 0;
    bool disturbed = false;

    void Watch(HWND window) { ::SetWindowSubclass(window, Procedure, 1, reinterpret_cast<DWORD_PTR>(this)); }

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR data)
    {
        auto & self = *reinterpret_cast<OwnCode *>(data);
        if ((message == WM_DESTROY || message == TCM_DELETEITEM) && self.depth > 0)
            self.disturbed = true;
        if (message == WM_NCDESTROY)
        {
            ::RemoveWindowSubclass(window, Procedure, id);
            return ::DefSubclassProc(window, message, wParam, lParam);
        }
        bool const click = message == WM_LBUTTONDOWN || message == WM_LBUTTONUP;
        self.depth += click;
        LRESULT const result = ::DefSubclassProc(window, message, wParam, lParam);
        self.depth -= click;
        return result;
    }
};
} // namespace

// --- Modeless sheets ---

TEST_F(PropertySheets, CreateGivesTheDocumentedStyles)
{
    tests::ScopedWindow parent;
    Sheet sheet(L"Title", parent);
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create(parent));
    constexpr DWORD style = WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME | DS_CONTEXTHELP | WS_VISIBLE;
    EXPECT_EQ(sheet.GetStyle() & style, style);
    EXPECT_EQ(sheet.GetStyle() & (WS_CHILD | WS_THICKFRAME), 0u);
    EXPECT_TRUE(sheet.IsWindowVisible());
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(TextOf(sheet), L"Title");
}

TEST_F(PropertySheets, CreateTakesStylesOfItsOwn)
{
    tests::ScopedWindow parent;
    Sheet sheet(L"Title", parent);
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create(parent, WS_POPUP | WS_CAPTION | WS_THICKFRAME, WS_EX_TOOLWINDOW));
    EXPECT_EQ(sheet.GetStyle() & (WS_SYSMENU | WS_THICKFRAME), static_cast<DWORD>(WS_THICKFRAME));
    EXPECT_NE(sheet.GetExStyle() & WS_EX_TOOLWINDOW, 0u);
    EXPECT_FALSE(sheet.IsWindowVisible());
}

TEST_F(PropertySheets, AChildSheetLiesInItsParent)
{
    tests::ScopedWindow parent;
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create(parent, WS_CHILD | WS_VISIBLE | DS_CONTROL));
    EXPECT_EQ(::GetParent(sheet), parent.m_hWnd);
    EXPECT_NE(sheet.GetStyle() & WS_CHILD, 0u);
    EXPECT_TRUE(m_one.IsWindowVisible());
}

TEST_F(PropertySheets, ASheetThatIsNotModalHidesItsButtonsAndShrinks)
{
    Sheet sheet(L"Title");
    AddAll(sheet);
    int buttonsTop = 0;
    sheet.m_onInit = [&] {
        CRect client;
        sheet.GetClientRect(&client);
        CRect const ok = PlaceOf(sheet.Item(IDOK));
        buttonsTop = ok.top - client.bottom;
    };
    ASSERT_TRUE(sheet.Create());
    for (int const id : {IDOK, IDCANCEL, ID_APPLY_NOW})
    {
        EXPECT_FALSE(sheet.Shows(id)) << id;
        EXPECT_FALSE(::IsWindowEnabled(sheet.Item(id))) << id;
    }
    EXPECT_EQ(buttonsTop, 0);
    CRect client;
    sheet.GetClientRect(&client);
    EXPECT_GE(client.bottom, PlaceOf(sheet.GetTabControl()->m_hWnd).bottom);
}

TEST_F(PropertySheets, WithTheWizardFlagTheButtonsStay)
{
    class Keeping : public Sheet
    {
    public:
        BOOL OnInitDialog() override
        {
            m_psh.dwFlags |= PSH_WIZARD;
            BOOL const result = Sheet::OnInitDialog();
            m_psh.dwFlags &= ~static_cast<DWORD>(PSH_WIZARD);
            return result;
        }
    } sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    for (int const id : {IDOK, IDCANCEL, ID_APPLY_NOW})
        EXPECT_TRUE(sheet.Shows(id)) << id;
    EXPECT_TRUE(sheet.GetTabControl()->IsWindowVisible());
}

TEST_F(PropertySheets, PagesAreMadeAsTheyAreShown)
{
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    EXPECT_EQ(Taken(), (Notes{"1 init", "1 set"}));
    EXPECT_EQ(sheet.GetActivePage(), &m_one);
    EXPECT_EQ(m_two.m_hWnd, nullptr);
    EXPECT_TRUE(sheet.SetActivePage(&m_three));
    EXPECT_EQ(Taken(), (Notes{"1 kill", "3 init", "3 set"}));
    EXPECT_EQ(sheet.GetActiveIndex(), 2);
    EXPECT_TRUE(sheet.SetActivePage(0));
    EXPECT_EQ(Taken(), (Notes{"3 kill", "1 set"}));
    EXPECT_TRUE(m_one.IsWindowVisible());
    EXPECT_FALSE(m_three.IsWindowVisible());
}

TEST_F(PropertySheets, AClickOnATabChangesThePage)
{
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    Taken();
    ASSERT_TRUE(tests::BringToFront(sheet));
    CRect tab;
    sheet.GetTabControl()->GetItemRect(1, &tab);
    tests::Click(tests::ClientPoint(sheet.GetTabControl()->m_hWnd, tab.CenterPoint()));
    EXPECT_TRUE(tests::PumpUntil([&] { return sheet.GetActivePage() == &m_two; }));
    EXPECT_EQ(Taken(), (Notes{"1 kill", "2 init", "2 set"}));
}

TEST_F(PropertySheets, APageThatRefusesToBeLeftStays)
{
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    m_one.m_killActive = FALSE;
    Taken();
    EXPECT_FALSE(sheet.SetActivePage(1));
    EXPECT_EQ(Taken(), (Notes{"1 kill"}));
    EXPECT_EQ(sheet.GetActivePage(), &m_one);
    EXPECT_TRUE(m_one.IsWindowVisible());
}

TEST_F(PropertySheets, LeavingAPageTakesItsValues)
{
    Sheet sheet;
    AddAll(sheet);
    m_one.m_exchanges = true;
    m_one.m_text = L"before";
    ASSERT_TRUE(sheet.Create());
    EXPECT_EQ(TextOf(*m_one.GetDlgItem(IDC_PAGE_TEXT)), L"before");
    m_one.SetDlgItemText(IDC_PAGE_TEXT, L"typed");
    sheet.SetActivePage(1);
    EXPECT_EQ(m_one.m_text, L"typed");
    m_one.m_text = L"after";
    sheet.SetActivePage(0);
    EXPECT_EQ(TextOf(*m_one.GetDlgItem(IDC_PAGE_TEXT)), L"after");
}

TEST_F(PropertySheets, PagesBeforeTheOpening)
{
    Sheet sheet(L"Title", nullptr, 1);
    AddAll(sheet);
    EXPECT_EQ(sheet.GetPageCount(), 3);
    EXPECT_EQ(sheet.GetPage(2), &m_three);
    EXPECT_EQ(sheet.GetPageIndex(&m_two), 1);
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    EXPECT_EQ(sheet.GetActivePage(), &m_two);
    sheet.RemovePage(&m_one);
    EXPECT_EQ(sheet.GetPageCount(), 2);
    EXPECT_EQ(sheet.GetPageIndex(&m_one), -1);
    EXPECT_TRUE(sheet.SetActivePage(&m_two));
    ASSERT_TRUE(sheet.Create());
    EXPECT_EQ(sheet.GetActivePage(), &m_two);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
}

TEST_F(PropertySheets, PagesOfAnOpenSheetComeAndGo)
{
    Sheet sheet;
    sheet.AddPage(&m_one);
    sheet.AddPage(&m_two);
    ASSERT_TRUE(sheet.Create());
    sheet.AddPage(&m_three);
    EXPECT_EQ(sheet.GetPageCount(), 3);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 3);
    EXPECT_TRUE(sheet.SetActivePage(2));
    EXPECT_EQ(sheet.GetActivePage(), &m_three);
    sheet.RemovePage(&m_one);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
    EXPECT_EQ(sheet.GetActivePage(), &m_three);
    EXPECT_EQ(m_one.m_hWnd, nullptr);
    sheet.RemovePage(1);
    EXPECT_EQ(sheet.GetPageCount(), 1);
    EXPECT_EQ(sheet.GetActivePage(), &m_two);
    EXPECT_EQ(m_three.m_hWnd, nullptr);
    sheet.AddPage(&m_one);
    EXPECT_TRUE(sheet.SetActivePage(&m_one));
    EXPECT_TRUE(m_one.IsWindowVisible());
}

TEST_F(PropertySheets, APageThatEndsLeavesItsSheet)
{
    Sheet sheet;
    sheet.AddPage(&m_one);
    {
        Page passing(m_notes, "p", static_cast<UINT>(IDD_PAGE_TWO));
        sheet.AddPage(&passing);
        ASSERT_TRUE(sheet.Create());
        sheet.SetActivePage(1);
    }
    EXPECT_EQ(sheet.GetPageCount(), 1);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 1);
    EXPECT_EQ(sheet.GetActivePage(), &m_one);
}

TEST_F(PropertySheets, Titles)
{
    Sheet sheet(IDS_SHEET_CAPTION);
    AddAll(sheet);
    sheet.SetTitle(L"Before");
    ASSERT_TRUE(sheet.Create());
    EXPECT_EQ(TextOf(sheet), L"Before");
    sheet.SetTitle(L"Now");
    EXPECT_EQ(TextOf(sheet), L"Now");
    sheet.DestroyWindow();
    Sheet other(IDS_SHEET_CAPTION);
    for (CPropertyPage * page : {&m_one, &m_two})
    {
        sheet.RemovePage(page);
        other.AddPage(page);
    }
    ASSERT_TRUE(other.Create());
    EXPECT_EQ(TextOf(other), L"Sheet from a string");
    other.DestroyWindow();
}

TEST_F(PropertySheets, TabsWrapUnlessStackingIsOff)
{
    for (bool const stacked : {true, false})
    {
        Sheet sheet;
        std::vector<std::unique_ptr<Page>> pages;
        for (int i = 0; i < 12; ++i)
        {
            pages.push_back(std::make_unique<Page>(m_notes, "p", static_cast<UINT>(IDD_PAGE_ONE),
                                                   static_cast<UINT>(IDS_PAGE_CAPTION)));
            sheet.AddPage(pages.back().get());
        }
        if (!stacked)
            sheet.EnableStackedTabs(FALSE);
        ASSERT_TRUE(sheet.Create());
        if (stacked)
            EXPECT_GT(sheet.GetTabControl()->GetRowCount(), 1);
        else
            EXPECT_EQ(sheet.GetTabControl()->GetRowCount(), 1);
        EXPECT_EQ((sheet.GetTabControl()->GetStyle() & TCS_MULTILINE) != 0, stacked);
        sheet.DestroyWindow();
    }
}

TEST_F(PropertySheets, SiblingsAreAskedInTurn)
{
    class Asked : public Page
    {
    public:
        using Page::Page;
        int m_answer = 0;
        int m_asked = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != PSM_QUERYSIBLINGS)
                return Page::WindowProc(message, wParam, lParam);
            ++m_asked;
            EXPECT_EQ(wParam, 5u);
            EXPECT_EQ(lParam, 6);
            return m_answer;
        }
    };
    Asked first(m_notes, "a", static_cast<UINT>(IDD_PAGE_ONE));
    Asked second(m_notes, "b", static_cast<UINT>(IDD_PAGE_TWO));
    Sheet sheet;
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    ASSERT_TRUE(sheet.Create());
    sheet.SetActivePage(1);
    EXPECT_EQ(second.QuerySiblings(5, 6), 0);
    EXPECT_EQ(first.m_asked, 1);
    EXPECT_EQ(second.m_asked, 1);
    first.m_answer = 7;
    EXPECT_EQ(second.QuerySiblings(5, 6), 7);
    EXPECT_EQ(second.m_asked, 1) << "an answer ends the round";
    sheet.DestroyWindow();
}

TEST_F(PropertySheets, CommandsGoOnToTheOwner)
{
    class Owner : public tests::ScopedWindow
    {
    public:
        BOOL OnCmdMsg(UINT id, int code, void * extra, AFX_CMDHANDLERINFO * info) override
        {
            if (id == 0x8123 && code == CN_COMMAND)
            {
                ++m_commands;
                return TRUE;
            }
            return ScopedWindow::OnCmdMsg(id, code, extra, info);
        }
        int m_commands = 0;
    } owner;
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create(owner));
    m_one.SendMessage(WM_COMMAND, 0x8123, 0);
    EXPECT_EQ(owner.m_commands, 1);
    sheet.SendMessage(WM_COMMAND, 0x8123, 0);
    EXPECT_EQ(owner.m_commands, 2);
    sheet.DestroyWindow();
}

TEST_F(PropertySheets, DialogUnits)
{
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    CRect rect(0, 0, 4, 8);
    sheet.MapDialogRect(&rect);
    CRect expected(0, 0, 4, 8);
    ::MapDialogRect(sheet, &expected);
    EXPECT_EQ(rect, expected);
    EXPECT_GT(rect.right, 4);
}

TEST_F(PropertySheets, HeadersOfPages)
{
    Page page(m_notes, "h", static_cast<UINT>(IDD_PAGE_ONE), static_cast<UINT>(IDS_PAGE_CAPTION),
              static_cast<UINT>(IDS_SHEET_CAPTION), static_cast<UINT>(IDS_PAGE_CAPTION));
    EXPECT_EQ(CString(page.m_psp.pszTitle), L"From a string");
    EXPECT_EQ(CString(page.m_psp.pszHeaderTitle), L"Sheet from a string");
    EXPECT_EQ(CString(page.m_psp.pszHeaderSubTitle), L"From a string");
    constexpr DWORD flags = PSP_USETITLE | PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE;
    EXPECT_EQ(page.m_psp.dwFlags & flags, flags);
    EXPECT_EQ(&page.GetPSP(), &page.m_psp);
    page.Construct(static_cast<UINT>(IDD_PAGE_TWO));
    EXPECT_EQ(page.m_psp.dwFlags & flags, 0u);
    EXPECT_EQ(page.m_psp.pszTemplate, MAKEINTRESOURCE(IDD_PAGE_TWO));
    EXPECT_EQ(page.m_psp.dwSize, sizeof(PROPSHEETPAGE));
}

TEST_F(PropertySheets, ATemplateInMemory)
{
    tests::DialogTemplate dialog(L"Memory", CRect(0, 0, 100, 50), WS_CHILD | WS_CAPTION);
    dialog.Add(L"Edit", L"here", 5, CRect(5, 5, 80, 20));
    Page page(m_notes, "m");
    page.m_psp.dwFlags |= PSP_DLGINDIRECT;
    page.m_psp.pResource = dialog.Get();
    Sheet sheet;
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create());
    EXPECT_EQ(TextOf(*page.GetDlgItem(5)), L"here");
    sheet.DestroyWindow();
}

TEST_F(PropertySheets, AMissingTemplateGivesAResult)
{
    Page missing(m_notes, "m", static_cast<UINT>(IDD_PAGE_NO_RESOURCE));
    Sheet sheet;
    sheet.AddPage(&m_one);
    sheet.AddPage(&missing);
    EXPECT_FALSE(sheet.Create());
    EXPECT_EQ(sheet.DoModal(), -1);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_TRUE(Taken().empty());
}

TEST_F(PropertySheets, APageWithAnUnknownControlLeavesNothingBehind)
{
    Page bad(m_notes, "b", static_cast<UINT>(IDD_PAGE_BAD_CONTROL));
    Sheet sheet;
    sheet.AddPage(&m_one);
    sheet.AddPage(&bad);
    ASSERT_TRUE(sheet.Create());
    sheet.SetActivePage(1);
    // The next window of the thread is nobody else's.
    tests::ScopedWindow other;
    EXPECT_NE(other.m_hWnd, nullptr);
    EXPECT_NE(bad.m_hWnd, other.m_hWnd);
    sheet.SetActivePage(0);
    sheet.DestroyWindow();
}

TEST_F(PropertySheets, CtrlTabGoesRound)
{
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    ASSERT_TRUE(tests::BringToFront(sheet));
    m_one.GetDlgItem(IDC_PAGE_TEXT)->SetFocus();
    for (CPropertyPage * const page : {&m_two, &m_three, &m_one})
    {
        tests::Key(VK_TAB, {VK_CONTROL});
        EXPECT_TRUE(tests::PumpUntil([&] { return sheet.GetActivePage() == page; }));
        // The focus doesn't stay in what is hidden now.
        EXPECT_TRUE(::IsWindowVisible(::GetFocus()));
        EXPECT_TRUE(page->IsChild(CWnd::GetFocus()) || CWnd::GetFocus() == sheet.GetTabControl());
        if (CWnd * const text = page->GetDlgItem(IDC_PAGE_TEXT))
            text->SetFocus();
    }
    tests::Key(VK_TAB, {VK_CONTROL, VK_SHIFT});
    EXPECT_TRUE(tests::PumpUntil([&] { return sheet.GetActivePage() == &m_three; }));
    tests::Key(VK_PRIOR, {VK_CONTROL});
    EXPECT_TRUE(tests::PumpUntil([&] { return sheet.GetActivePage() == &m_two; }));
}

TEST_F(PropertySheets, TabGoesThroughPageAndSheet)
{
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    ASSERT_TRUE(tests::BringToFront(sheet));
    m_one.GetDlgItem(IDC_PAGE_TEXT)->SetFocus();
    for (HWND const next : {m_one.GetDlgItem(IDC_PAGE_CHECK)->m_hWnd, m_one.GetDlgItem(IDC_PAGE_PUSH)->m_hWnd,
                            sheet.GetTabControl()->m_hWnd, m_one.GetDlgItem(IDC_PAGE_TEXT)->m_hWnd})
    {
        tests::Key(VK_TAB);
        EXPECT_TRUE(tests::PumpUntil([&] { return ::GetFocus() == next; }));
    }
}

TEST_F(PropertySheets, EscapeDoesNothingToASheetWithoutButtons)
{
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    ASSERT_TRUE(tests::BringToFront(sheet));
    m_one.GetDlgItem(IDC_PAGE_TEXT)->SetFocus();
    Taken();
    tests::Key(VK_ESCAPE);
    tests::Key(VK_TAB); // arrives later
    ASSERT_TRUE(tests::PumpUntil([&] { return ::GetFocus() == m_one.GetDlgItem(IDC_PAGE_CHECK)->m_hWnd; }));
    EXPECT_TRUE(Taken().empty());
    EXPECT_EQ(sheet.GetActivePage(), &m_one);
}

TEST_F(PropertySheets, ClosingEndsASheetThatIsNotModal)
{
    Sheet sheet;
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    sheet.SendMessage(WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    ASSERT_TRUE(sheet.Create());
    sheet.EndDialog(IDOK);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

// --- Modal sheets ---

TEST_F(PropertySheetModal, TheButtonsGiveTheResult)
{
    for (int const id : {IDOK, IDCANCEL})
    {
        tests::ScopedWindow owner;
        Sheet sheet(L"Modal", owner);
        AddAll(sheet);
        tests::LaterActions later;
        bool enabled = true;
        bool visible = false;
        later.Add(
            [&] {
                enabled = owner.IsWindowEnabled() != FALSE;
                visible = sheet.Shows(IDOK) && sheet.Shows(IDCANCEL) && sheet.Shows(ID_APPLY_NOW);
                sheet.Push(id);
            },
            [&] { return sheet.m_hWnd != nullptr && sheet.IsWindowVisible(); });
        EXPECT_EQ(sheet.DoModal(), id);
        EXPECT_FALSE(enabled);
        EXPECT_TRUE(visible);
        EXPECT_TRUE(owner.IsWindowEnabled());
        EXPECT_EQ(sheet.m_hWnd, nullptr);
        if (id == IDOK)
            EXPECT_EQ(Taken(), (Notes{"1 init", "1 set", "1 kill", "1 apply", "1 ok"}));
        else
            EXPECT_EQ(Taken(), (Notes{"1 init", "1 set", "1 query", "1 reset", "1 cancel"}));
        for (CPropertyPage * page : {&m_one, &m_two, &m_three})
            sheet.RemovePage(page);
    }
}

TEST_F(PropertySheetModal, PressedButtons)
{
    struct Case
    {
        int button;
        INT_PTR result;
    };
    for (Case const & each : {Case{PSBTN_OK, IDOK}, Case{PSBTN_CANCEL, IDCANCEL}})
    {
        Sheet sheet;
        sheet.AddPage(&m_one);
        tests::LaterActions later;
        later.Add([&] { sheet.PressButton(each.button); }, [&] { return sheet.m_hWnd != nullptr; });
        EXPECT_EQ(sheet.DoModal(), each.result);
        sheet.RemovePage(0);
    }
}

TEST_F(PropertySheetModal, EndDialogGivesAnyResult)
{
    Sheet sheet;
    AddAll(sheet);
    tests::LaterActions later;
    later.Add([&] { sheet.EndDialog(4711); }, [&] { return sheet.m_hWnd != nullptr && sheet.IsWindowVisible(); });
    EXPECT_EQ(sheet.DoModal(), 4711);
    sheet.m_onInit = [&] { sheet.EndDialog(4712); };
    EXPECT_EQ(sheet.DoModal(), 4712);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(PropertySheetModal, ApplyAsksAllPagesThatWereShown)
{
    Sheet sheet;
    AddAll(sheet);
    tests::LaterActions later;
    later.Add(
        [&] {
            sheet.SetActivePage(2);
            m_three.SetModified();
            Taken();
            EXPECT_TRUE(::IsWindowEnabled(sheet.Item(ID_APPLY_NOW)));
            sheet.Push(ID_APPLY_NOW);
            Notes const notes = Taken();
            EXPECT_EQ(notes, (Notes{"3 kill", "1 apply", "1 ok", "3 apply", "3 ok", "3 set"}));
            EXPECT_FALSE(::IsWindowEnabled(sheet.Item(ID_APPLY_NOW)));
            m_three.SetModified();
            EXPECT_TRUE(::IsWindowEnabled(sheet.Item(ID_APPLY_NOW)));
            m_three.SetModified(FALSE);
            EXPECT_FALSE(::IsWindowEnabled(sheet.Item(ID_APPLY_NOW)));
            m_three.CancelToClose();
            EXPECT_FALSE(::IsWindowEnabled(sheet.Item(IDCANCEL)));
            sheet.Push(IDOK);
        },
        [&] { return sheet.m_hWnd != nullptr && sheet.IsWindowVisible(); });
    EXPECT_EQ(sheet.DoModal(), IDOK);
}

TEST_F(PropertySheetModal, APageCanRefuse)
{
    Sheet sheet;
    AddAll(sheet);
    tests::LaterActions later;
    auto const shown = [&] { return sheet.m_hWnd != nullptr && sheet.IsWindowVisible(); };
    later.Add(
        [&] {
            m_one.m_apply = FALSE;
            sheet.Push(IDOK);
            EXPECT_EQ(Taken(), (Notes{"1 init", "1 set", "1 kill", "1 apply"}));
            m_one.m_killActive = FALSE;
            sheet.Push(IDOK);
            EXPECT_EQ(Taken(), (Notes{"1 kill"}));
            m_one.m_queryCancel = FALSE;
            sheet.Push(IDCANCEL);
            EXPECT_EQ(Taken(), (Notes{"1 query"}));
            sheet.SendMessage(WM_CLOSE);
            EXPECT_EQ(Taken(), (Notes{"1 query"}));
            m_one.m_queryCancel = TRUE;
            sheet.SendMessage(WM_CLOSE);
        },
        shown);
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(Taken(), (Notes{"1 query", "1 reset", "1 cancel"}));
}

TEST_F(PropertySheetModal, EnterAndEscape)
{
    for (WORD const key : {VK_RETURN, VK_ESCAPE})
    {
        Sheet sheet;
        sheet.AddPage(&m_one);
        tests::LaterActions later;
        later.Add(
            [&] {
                tests::BringToFront(sheet);
                m_one.GetDlgItem(IDC_PAGE_TEXT)->SetFocus();
                tests::Key(key);
            },
            [&] { return sheet.m_hWnd != nullptr && sheet.IsWindowVisible(); });
        EXPECT_EQ(sheet.DoModal(), key == VK_RETURN ? IDOK : IDCANCEL);
        sheet.RemovePage(0);
    }
}

TEST_F(PropertySheetModal, EscapeInAFieldOfSeveralLines)
{
    Sheet sheet;
    sheet.AddPage(&m_two);
    tests::LaterActions later;
    later.Add(
        [&] {
            tests::BringToFront(sheet);
            m_two.GetDlgItem(IDC_PAGE_LINES)->SetFocus();
            Taken();
            tests::Key(VK_ESCAPE);
        },
        [&] { return sheet.m_hWnd != nullptr && sheet.IsWindowVisible(); });
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(Taken(), (Notes{"2 query", "2 reset", "2 cancel"}));
}

// --- Wizards ---

TEST_F(PropertySheetWizard, GoesThroughItsPages)
{
    Sheet sheet(L"Wizard");
    AddAll(sheet);
    sheet.SetWizardMode();
    sheet.m_onInit = [&] { sheet.SetWizardButtons(PSWIZB_NEXT); };
    tests::LaterActions later;
    later.Add(
        [&] {
            tests::PumpPosted();
            EXPECT_FALSE(sheet.Shows(IDOK));
            EXPECT_TRUE(sheet.Shows(ID_WIZNEXT));
            EXPECT_TRUE(::IsWindowEnabled(sheet.Item(ID_WIZNEXT)));
            EXPECT_FALSE(::IsWindowEnabled(sheet.Item(ID_WIZBACK)));
            EXPECT_EQ(Taken(), (Notes{"1 init", "1 set"}));
            m_one.m_next = -1;
            sheet.Push(ID_WIZNEXT);
            EXPECT_EQ(Taken(), (Notes{"1 next"})) << "it refuses";
            m_one.m_next = 0;
            sheet.Push(ID_WIZNEXT);
            EXPECT_EQ(sheet.GetActivePage(), &m_two);
            EXPECT_EQ(sheet.GetActiveIndex(), 1);
            EXPECT_EQ(Taken(), (Notes{"1 next", "1 kill", "2 init", "2 set"}));
            sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
            tests::PumpPosted();
            sheet.Push(ID_WIZBACK);
            EXPECT_EQ(Taken(), (Notes{"2 back", "2 kill", "1 set"}));
            sheet.SetActivePage(2);
            sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
            sheet.SetFinishText(L"Done");
            tests::PumpPosted();
            EXPECT_EQ(TextOf(*sheet.GetDlgItem(ID_WIZFINISH)), L"Done");
            Taken();
            m_three.m_finish = FALSE;
            sheet.Push(ID_WIZFINISH);
            EXPECT_EQ(Taken(), (Notes{"3 finish"})) << "it refuses";
            m_three.m_finish = TRUE;
            sheet.Push(ID_WIZFINISH);
        },
        [&] { return sheet.m_hWnd != nullptr && sheet.IsWindowVisible(); });
    EXPECT_EQ(sheet.DoModal(), ID_WIZFINISH);
    EXPECT_EQ(Taken(), (Notes{"3 finish"}));
}

TEST_F(PropertySheetWizard, OneThatIsNotModalKeepsItsButtonsAndClosesAtTheEnd)
{
    Sheet sheet(L"Wizard");
    AddAll(sheet);
    sheet.SetWizardMode();
    ASSERT_TRUE(sheet.Create());
    EXPECT_EQ(sheet.GetStyle() & WS_SYSMENU, 0u);
    EXPECT_TRUE(sheet.Shows(ID_WIZNEXT));
    EXPECT_TRUE(sheet.Shows(IDCANCEL));
    sheet.Push(IDCANCEL);
    EXPECT_TRUE(tests::PumpUntil([&] { return sheet.m_hWnd == nullptr; }));
}

// --- Ends at bad times ---

TEST_F(PropertySheetEnds, InItsOwnInitialisation)
{
    int const windows = tests::ThreadWindows();
    for (bool const modal : {false, true})
    {
        Sheet sheet;
        AddAll(sheet);
        int ends = 0;
        sheet.m_onInit = [&] { sheet.DestroyWindow(); };
        sheet.m_onDestroyed = [&] { ++ends; };
        if (modal)
            EXPECT_EQ(sheet.DoModal(), -1);
        else
            EXPECT_FALSE(sheet.Create());
        EXPECT_EQ(sheet.m_hWnd, nullptr);
        EXPECT_EQ(ends, 1);
        for (CPropertyPage * page : {&m_one, &m_two, &m_three})
            EXPECT_EQ(page->m_hWnd, nullptr);
        EXPECT_EQ(tests::ThreadWindows(), windows);
        sheet.m_onInit = {};
        EXPECT_TRUE(sheet.Create());
        sheet.DestroyWindow();
        for (CPropertyPage * page : {&m_one, &m_two, &m_three})
            sheet.RemovePage(page);
    }
}

TEST_F(PropertySheetEnds, InEveryNotificationOfAPage)
{
    int const windows = tests::ThreadWindows();
    for (std::string const moment : {"init", "set", "kill", "apply", "ok", "query", "reset", "cancel"})
    {
        SCOPED_TRACE(moment);
        Sheet sheet(L"Ends");
        AddAll(sheet);
        bool armed = false;
        m_two.m_act = [&](std::string const & what) {
            if (armed && what == moment)
                sheet.DestroyWindow();
        };
        ASSERT_TRUE(sheet.Create());
        armed = true;
        sheet.SetActivePage(1);
        if (sheet.m_hWnd != nullptr)
            sheet.SendMessage(PSM_PRESSBUTTON, PSBTN_APPLYNOW);
        if (sheet.m_hWnd != nullptr)
            sheet.SetActivePage(0);
        if (sheet.m_hWnd != nullptr)
            sheet.SetActivePage(1);
        if (sheet.m_hWnd != nullptr)
            sheet.SendMessage(PSM_PRESSBUTTON, PSBTN_CANCEL);
        EXPECT_EQ(sheet.m_hWnd, nullptr);
        EXPECT_EQ(m_two.m_hWnd, nullptr);
        tests::PumpPosted();
        EXPECT_EQ(tests::ThreadWindows(), windows);
        m_two.m_act = {};
        for (CPropertyPage * page : {&m_one, &m_two, &m_three})
            sheet.RemovePage(page);
    }
}

TEST_F(PropertySheetEnds, WithItsObjectInANotification)
{
    int const windows = tests::ThreadWindows();
    for (std::string const moment : {"init", "set", "kill", "apply"})
    {
        SCOPED_TRACE(moment);
        auto sheet = std::make_unique<Sheet>(L"Ends");
        AddAll(*sheet);
        ASSERT_TRUE(sheet->Create());
        m_two.m_act = [&](std::string const & what) {
            if (what == moment)
                sheet.reset();
        };
        sheet->SetActivePage(1);
        if (sheet != nullptr)
            sheet->SendMessage(PSM_PRESSBUTTON, PSBTN_APPLYNOW);
        EXPECT_EQ(sheet, nullptr);
        tests::PumpPosted();
        EXPECT_EQ(tests::ThreadWindows(), windows);
        EXPECT_EQ(m_two.m_hWnd, nullptr);
        m_two.m_act = {};
    }
}

TEST_F(PropertySheetEnds, APageLeavesInANotification)
{
    for (std::string const moment : {"set", "kill", "apply", "ok"})
    {
        SCOPED_TRACE(moment);
        Sheet sheet(L"Ends");
        AddAll(sheet);
        ASSERT_TRUE(sheet.Create());
        m_two.m_act = [&](std::string const & what) {
            if (what == moment)
                sheet.RemovePage(&m_two);
        };
        sheet.SetActivePage(1);
        sheet.SendMessage(PSM_PRESSBUTTON, PSBTN_APPLYNOW);
        EXPECT_EQ(sheet.GetPageCount(), 2);
        EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
        EXPECT_EQ(m_two.m_hWnd, nullptr);
        EXPECT_NE(sheet.GetActivePage(), nullptr);
        m_two.m_act = {};
        sheet.DestroyWindow();
        for (CPropertyPage * page : {&m_one, &m_three})
            sheet.RemovePage(page);
    }
}

TEST_F(PropertySheetEnds, AfterAClickOnATab)
{
    for (std::string const moment : {"1 kill", "2 init", "2 set"})
    {
        SCOPED_TRACE(moment);
        Sheet sheet(L"Ends");
        AddAll(sheet);
        ASSERT_TRUE(sheet.Create());
        for (Page * const page : {&m_one, &m_two})
        {
            page->m_act = [&, page](std::string const & what) {
                if (page->m_name + " " + what == moment)
                    sheet.DestroyWindow();
            };
        }
        OwnCode tabs;
        tabs.Watch(sheet.GetTabControl()->m_hWnd);
        ASSERT_TRUE(tests::BringToFront(sheet));
        CRect tab;
        sheet.GetTabControl()->GetItemRect(1, &tab);
        tests::Click(tests::ClientPoint(sheet.GetTabControl()->m_hWnd, tab.CenterPoint()));
        EXPECT_TRUE(tests::PumpUntil([&] { return sheet.m_hWnd == nullptr; }));
        EXPECT_FALSE(tabs.disturbed);
        EXPECT_EQ(m_one.m_hWnd, nullptr);
        m_one.m_act = m_two.m_act = {};
        for (CPropertyPage * page : {&m_one, &m_two, &m_three})
            sheet.RemovePage(page);
    }
}

TEST_F(PropertySheetEnds, APageLeavesAfterAClickOnItsTab)
{
    Sheet sheet(L"Ends");
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create());
    m_two.m_act = [&](std::string const & what) {
        if (what == "set")
            sheet.RemovePage(&m_two);
    };
    OwnCode tabs;
    tabs.Watch(sheet.GetTabControl()->m_hWnd);
    ASSERT_TRUE(tests::BringToFront(sheet));
    CRect tab;
    sheet.GetTabControl()->GetItemRect(1, &tab);
    tests::Click(tests::ClientPoint(sheet.GetTabControl()->m_hWnd, tab.CenterPoint()));
    EXPECT_TRUE(tests::PumpUntil([&] { return sheet.GetTabControl()->GetItemCount() == 2; }));
    EXPECT_FALSE(tabs.disturbed);
    EXPECT_EQ(sheet.GetPageCount(), 2);
    EXPECT_EQ(m_two.m_hWnd, nullptr);
    EXPECT_NE(sheet.GetActivePage(), nullptr);
    m_two.m_act = {};
    sheet.DestroyWindow();
}

TEST_F(PropertySheetEnds, WithItsOwner)
{
    Sheet sheet(L"Ends");
    AddAll(sheet);
    {
        tests::ScopedWindow owner;
        ASSERT_TRUE(sheet.Create(owner));
    }
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_EQ(m_one.m_hWnd, nullptr);
}

TEST_F(PropertySheetEnds, AnExceptionInTheInitialisation)
{
    int const windows = tests::ThreadWindows();
    Sheet sheet(L"Throws");
    AddAll(sheet);
    sheet.m_onInit = [] { throw std::runtime_error("thrown"); };
    EXPECT_FALSE(sheet.Create());
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_EQ(sheet.DoModal(), -1);
    EXPECT_EQ(tests::ThreadWindows(), windows);
    tests::App().TakeMessages();
}
