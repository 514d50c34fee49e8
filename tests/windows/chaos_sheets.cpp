// Property sheets, with pages and sheets that end, delete, add, remove and select each other in every message and
// notification that they get.

#include <afxcmn.h>

#include <algorithm>
#include <vector>

#include "chaos_Chaos.h"
#include "dialogs/Dialog3d.h"
#include "dialogs/PropertyPage3d.h"
#include "dialogs/PropertySheet3d.h"
#include "MemoryPreferenceStore.h"
#include "sheet_resource.h"

namespace
{
constexpr UINT templates[] = {IDD_PAGE_ONE, IDD_PAGE_TWO, IDD_PAGE_THREE};
constexpr size_t most_pages = 8;

template <class SheetBase, class PageBase> class SheetWorld;

/// Messages amid which no host's code runs, whose sender expects the window to last, or which a control sends while its
/// own code runs: native controls do not stand their end then.
bool IsQuiet(UINT message, LPARAM lParam)
{
    switch (message)
    {
    case WM_NCDESTROY:
    case WM_DESTROY:
    case WM_NCCREATE:
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
    case WM_NOTIFY:
    case WM_ERASEBKGND:
    case WM_PRINTCLIENT:
    case WM_SETCURSOR:
    case WM_MOUSEACTIVATE:
        return true;
    case WM_COMMAND:
        return lParam != 0;
    default:
        return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    }
}

/// What is queued, without waiting for more.
void PumpSome()
{
    MSG message;
    for (int i = 0; i < 20 && ::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE); ++i)
    {
        if (AfxPreTranslateMessage(&message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
}

template <class SheetBase, class PageBase> class ChaoticPage : public PageBase
{
public:
    using World = SheetWorld<SheetBase, PageBase>;

    template <class... Arguments> explicit ChaoticPage(World & world, Arguments... arguments)
        : PageBase(arguments...),
          m_world(world)
    {
        m_world.Enter(this);
    }
    ~ChaoticPage() override
    {
        m_world.Leave(this);
        if (this->m_hWnd != nullptr)
            this->DestroyWindow();
    }

    /// Its window is no longer being made. A dialog that ends before that costs some systems its font.
    bool IsComplete() const { return this->m_hWnd == nullptr || m_initialised == this->m_hWnd; }

    BOOL OnInitDialog() override
    {
        World & world = m_world; // this object may end
        m_initialised = this->m_hWnd;
        if (!Disturbed(world))
            return FALSE;
        BOOL const result = PageBase::OnInitDialog();
        return world.Lives(this) && Disturbed(world) ? result : FALSE;
    }
    BOOL OnSetActive() override
    {
        World & world = m_world;
        bool const accepts = !world.OneIn(8);
        return Disturbed(world) && PageBase::OnSetActive() && accepts && world.Lives(this) && Disturbed(world);
    }
    BOOL OnKillActive() override
    {
        World & world = m_world;
        bool const accepts = !world.OneIn(8);
        return Disturbed(world) && PageBase::OnKillActive() && accepts && world.Lives(this) && Disturbed(world);
    }
    BOOL OnApply() override
    {
        World & world = m_world;
        bool const accepts = !world.OneIn(8);
        return Disturbed(world) && PageBase::OnApply() && accepts;
    }
    void OnOK() override
    {
        World & world = m_world;
        Disturbed(world);
    }
    void OnCancel() override
    {
        World & world = m_world;
        Disturbed(world);
    }
    BOOL OnQueryCancel() override
    {
        World & world = m_world;
        bool const accepts = !world.OneIn(4);
        return Disturbed(world) && accepts;
    }
    void OnReset() override
    {
        World & world = m_world;
        if (Disturbed(world))
            PageBase::OnReset();
    }

protected:
    void DoDataExchange(CDataExchange * exchange) override
    {
        PageBase::DoDataExchange(exchange);
        if (m_exchanging)
            return;
        m_exchanging = true;
        World & world = m_world;
        world.DisturbGently();
        if (world.Lives(this))
            m_exchanging = false;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        World & world = m_world;
        if (IsQuiet(message, lParam) || !world.Lives(this))
            return PageBase::WindowProc(message, wParam, lParam);
        if (!Disturbed(world) || this->m_hWnd == nullptr)
            return 0;
        LRESULT const result = PageBase::WindowProc(message, wParam, lParam);
        if (world.Lives(this))
            world.Disturb();
        return result;
    }

private:
    /// Whether the page lives afterwards.
    bool Disturbed(World & world)
    {
        world.Disturb();
        return world.Lives(this);
    }

    World & m_world;
    HWND m_initialised = nullptr;
    bool m_exchanging = false;
};

template <class SheetBase, class PageBase> class ChaoticSheet : public SheetBase
{
public:
    using World = SheetWorld<SheetBase, PageBase>;

    ChaoticSheet(World & world) : SheetBase(L"Chaos", nullptr, 0u), m_world(world) { m_world.m_sheet = this; }
    ~ChaoticSheet() override
    {
        m_world.m_sheet = nullptr;
        if (this->m_hWnd != nullptr)
            this->DestroyWindow();
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        World & world = m_world;
        if (IsQuiet(message, lParam) || world.m_sheet != this)
            return SheetBase::WindowProc(message, wParam, lParam);
        world.Disturb();
        if (world.m_sheet != this || this->m_hWnd == nullptr)
            return 0;
        LRESULT const result = SheetBase::WindowProc(message, wParam, lParam);
        if (world.m_sheet == this)
            world.Disturb();
        return result;
    }

private:
    World & m_world;
};

template <class SheetBase, class PageBase> class SheetWorld : public chaos::Chaos
{
public:
    using Sheet = ChaoticSheet<SheetBase, PageBase>;
    using Page = ChaoticPage<SheetBase, PageBase>;

    explicit SheetWorld(unsigned int seed) : Chaos(seed) { CVeskBase::SetPreferenceVesk(&m_store); }
    ~SheetWorld() override
    {
        delete m_sheet;
        while (!m_pages.empty())
            delete m_pages.back();
        CVeskBase::SetPreferenceVesk(nullptr);
        tests::App().TakeMessages();
    }

    bool Lives(Page const * page) const { return std::find(m_pages.begin(), m_pages.end(), page) != m_pages.end(); }
    void Enter(Page * page) { m_pages.push_back(page); }
    void Leave(Page * page) { std::erase(m_pages, page); }
    /// No window ends: for the inside of an exchange, which goes on with its page.
    void DisturbGently()
    {
        ++m_gentle;
        Disturb();
        --m_gentle;
    }

    Sheet * m_sheet = nullptr;

    /// The window system keeps each device context, with its region and bitmap, that it has needed at once: a window
    /// that is painted within the painting of another one needs one more.
    static constexpr int kept_by_the_system = 120;

protected:
    void CheckInvariants() override
    {
        if (m_sheet == nullptr)
            return;
        for (int i = 0; i < m_sheet->GetPageCount(); ++i)
            EXPECT_TRUE(Lives(static_cast<Page *>(m_sheet->GetPage(i))));
        HWND const window = m_sheet->m_hWnd;
        if (window == nullptr)
            return;
        EXPECT_EQ(CWnd::FromHandlePermanent(window), m_sheet);
        EXPECT_EQ(m_sheet->GetTabControl()->GetItemCount(), m_sheet->GetPageCount());
    }
    void Operate() override;

private:
    Page * AnyPage()
    {
        return m_pages.empty() ? nullptr : m_pages[static_cast<size_t>(Pick(static_cast<int>(m_pages.size())))];
    }
    void MakeSheet();
    void MakePage();
    static void Open(CPropertySheet3d & sheet, SheetWorld & world)
    {
        sheet.SetResizable(world.OneIn(2));
        sheet.DisplayDialog(nullptr);
    }
    static void Open(CPropertySheet & sheet, SheetWorld & world)
    {
        if (sheet.m_hWnd == nullptr && world.OneIn(2))
            sheet.Create(nullptr, WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 0);
        else if (sheet.m_hWnd == nullptr)
            sheet.Create();
    }
    static CPropertyPage3d * Make(SheetWorld & world, CPropertyPage3d *, UINT id)
    {
        return new ChaoticPage<SheetBase, PageBase>(world, CDialog3d::NO_DLL, id, 0u);
    }
    static CPropertyPage * Make(SheetWorld & world, CPropertyPage *, UINT id)
    {
        return new ChaoticPage<SheetBase, PageBase>(world, id);
    }

    MemoryPreferenceStore m_store;
    std::vector<Page *> m_pages;
    int m_gentle = 0;
    bool m_opening = false;
};

template <class SheetBase, class PageBase> void SheetWorld<SheetBase, PageBase>::MakeSheet()
{
    auto * const sheet = new Sheet(*this);
    if (OneIn(4))
        sheet->EnableStackedTabs(FALSE);
    for (Page * const page : m_pages)
    {
        if (!OneIn(4))
            sheet->AddPage(page);
    }
}

template <class SheetBase, class PageBase> void SheetWorld<SheetBase, PageBase>::MakePage()
{
    UINT const id = templates[Pick(static_cast<int>(std::size(templates)))];
    Make(*this, static_cast<PageBase *>(nullptr), id);
}

template <class SheetBase, class PageBase> void SheetWorld<SheetBase, PageBase>::Operate()
{
    int const operation = Pick(22);
    if (m_sheet == nullptr)
    {
        Note("make a sheet");
        if (m_pages.size() < 3)
            MakePage();
        if (m_sheet == nullptr)
            MakeSheet();
        return;
    }
    Sheet & sheet = *m_sheet;
    Page * const page = AnyPage();
    HWND const window = sheet.m_hWnd;
    if (window == nullptr)
    {
        Note("open");
        // Not within itself, nor while the object's former window ends.
        if (!m_opening && m_gentle == 0)
        {
            m_opening = true;
            Open(sheet, *this);
            m_opening = false;
        }
        return;
    }
    bool const mayEnd = m_gentle == 0;
    switch (operation)
    {
    case 0:
        Note("destroy the sheet's window");
        if (mayEnd && OneIn(4))
            sheet.DestroyWindow();
        break;
    case 1:
        Note("delete the sheet");
        if (mayEnd && !m_opening && OneIn(4))
            delete m_sheet;
        break;
    case 2:
    case 3:
        Note("a new page");
        if (m_pages.size() < most_pages)
            MakePage();
        break;
    case 4:
    case 5:
    case 6:
        Note("add a page");
        if (page != nullptr && sheet.GetPageIndex(page) < 0)
            sheet.AddPage(page);
        break;
    case 7:
        Note("remove a page");
        if (mayEnd && page != nullptr && sheet.GetPageCount() > 1)
            sheet.RemovePage(page);
        break;
    case 8:
        Note("delete a page");
        if (mayEnd && m_pages.size() > 2 && page->IsComplete())
            delete page;
        break;
    case 9:
    case 10:
    case 11:
        Note("select a page");
        sheet.SetActivePage(Pick(std::max(sheet.GetPageCount(), 1)));
        break;
    case 12:
        Note("a click on a tab");
        if (CTabCtrl * const tabs = sheet.GetTabControl())
        {
            CRect tab;
            tabs->GetItemRect(Pick(3), &tab);
            LPARAM const point = MAKELPARAM(tab.CenterPoint().x, tab.CenterPoint().y);
            tabs->PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, point);
            tabs->PostMessage(WM_LBUTTONUP, 0, point);
        }
        break;
    case 13:
        Note("modified");
        if (page != nullptr)
            page->SetModified(OneIn(2));
        break;
    case 14:
        Note("press a button");
        sheet.PressButton(Pick(2) == 0 ? PSBTN_APPLYNOW : Pick(7));
        break;
    case 15:
        Note("push a button");
        {
            constexpr int buttons[] = {IDOK, IDCANCEL, ID_APPLY_NOW, ID_APPLY_NOW};
            int const id = buttons[Pick(4)];
            if (HWND const button = ::GetDlgItem(window, id))
                ::SendMessage(window, WM_COMMAND, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(button));
        }
        break;
    case 16:
        Note("resize");
        sheet.SetWindowPos(nullptr, Pick(200), Pick(200), 200 + Pick(500), 200 + Pick(300), SWP_NOZORDER);
        break;
    case 17:
        Note("ask the siblings");
        if (page != nullptr && page->m_hWnd != nullptr)
            page->QuerySiblings(1, 2);
        break;
    case 18:
        Note("title");
        sheet.SetTitle(OneIn(2) ? L"One" : L"Another");
        break;
    case 19:
        Note("end the dialog");
        if (mayEnd && OneIn(4))
            sheet.EndDialog(IDOK);
        break;
    case 20:
        Note("close");
        if (mayEnd && OneIn(4))
            sheet.PostMessage(WM_CLOSE);
        break;
    default:
        Note("pump");
        if (mayEnd)
            PumpSome();
        break;
    }
}
} // namespace

TEST(ChaosSheets, Framework)
{
    chaos::RunAll<SheetWorld<CPropertySheet, CPropertyPage>>();
}

TEST(ChaosSheets, Toolkit)
{
    chaos::RunAll<SheetWorld<CPropertySheet3d, CPropertyPage3d>>();
}
