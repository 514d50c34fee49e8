// Opening and closing of dialogs: templates, icons, stored positions, and that nothing is left behind.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "dialogs_Dialog3dTest.h"
#include "GdiHandleCount.h"
#include "ThreadWindows.h"

using namespace dialog_tests;

namespace
{
constexpr int toolkit_control = 1016; // of the toolkit's dialog 130

HMODULE ToolkitModule()
{
    return ::GetModuleHandleW(L"instrument_ui.dll");
}

AFX_EXTENSION_MODULE ToolkitRecord()
{
    AFX_EXTENSION_MODULE module{};
    module.hModule = ToolkitModule();
    return module;
}

HICON ToolkitIcon(int id)
{
    return ::LoadIconW(ToolkitModule(), MAKEINTRESOURCEW(id));
}

HICON SmallIconOf(CWnd & window)
{
    return reinterpret_cast<HICON>(window.SendMessage(WM_GETICON, ICON_SMALL, 0));
}

/// Makes another module current for the scope.
class ResourceScope
{
public:
    explicit ResourceScope(HINSTANCE module) : m_former(AfxGetResourceHandle()) { AfxSetResourceHandle(module); }
    ~ResourceScope() { AfxSetResourceHandle(m_former); }
    ResourceScope(ResourceScope const &) = delete;
    ResourceScope & operator=(ResourceScope const &) = delete;

private:
    HINSTANCE m_former;
};

/// The list of all managers, to count them.
class ManagerCount : public CFensterManager
{
public:
    static size_t Now() { return m_managerListe.size(); }
};

using Dialog3dLifecycle = DialogTest;
/// A suite, and so a process, of its own: it takes long.
using Dialog3dOpenings = DialogTest;

} // namespace

// --- Templates and displays ---

TEST_F(Dialog3dLifecycle, WithoutALibraryTheTemplateIsTheApplications)
{
    auto const bytes = reinterpret_cast<unsigned char const *>(&CDialog3d::NO_DLL);
    EXPECT_EQ(std::count(bytes, bytes + sizeof(CDialog3d::NO_DLL), 0), std::ptrdiff_t{sizeof(CDialog3d::NO_DLL)});
    TestDialog dialog(IDD_TOOLKITS_NUMBER);
    {
        ResourceScope const scope(ToolkitModule());
        EXPECT_NE(dialog.DisplayDialog(), 0);
        EXPECT_EQ(AfxGetResourceHandle(), ToolkitModule()) << "as it was";
    }
    EXPECT_NE(dialog.Item(IDC_HOSTS_OWN), nullptr);
    EXPECT_EQ(dialog.Item(toolkit_control), nullptr);
}

TEST_F(Dialog3dLifecycle, WithALibrarysRecordTheTemplateIsTheLibrarys)
{
    HINSTANCE const before = AfxGetResourceHandle();
    TestDialog dialog(IDD_TOOLKITS_NUMBER, nullptr, ToolkitRecord());
    HINSTANCE during = nullptr;
    dialog.m_onExchange = [&](CDataExchange *) { during = AfxGetResourceHandle(); };
    EXPECT_NE(dialog.DisplayDialog(), 0);
    EXPECT_NE(dialog.Item(toolkit_control), nullptr);
    EXPECT_EQ(dialog.Item(IDC_HOSTS_OWN), nullptr);
    EXPECT_EQ(during, ToolkitModule());
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST_F(Dialog3dLifecycle, ADerivedClassCanDisplayAnotherTemplate)
{
    TestDialog dialog(IDD_FIXED);
    EXPECT_NE(dialog.DisplayDialog(ToolkitRecord(), IDD_TOOLKITS_NUMBER), 0);
    EXPECT_NE(dialog.Item(toolkit_control), nullptr);
}

TEST_F(Dialog3dLifecycle, AMissingTemplateGivesAClearResult)
{
    HINSTANCE const before = AfxGetResourceHandle();
    for (AFX_EXTENSION_MODULE const & module : {CDialog3d::NO_DLL, ToolkitRecord()})
    {
        TestDialog dialog(2999, nullptr, module);
        EXPECT_EQ(dialog.DisplayDialog(), 0);
        EXPECT_FALSE(dialog.IsOpen());
        EXPECT_EQ(dialog.DoModal(), -1);
        EXPECT_FALSE(dialog.OpenInitially());
        EXPECT_FALSE(dialog.IsOpen());
        EXPECT_EQ(dialog.m_inits, 0);
        EXPECT_TRUE(dialog.SetGenuineTitle(L"Still free"));
        EXPECT_EQ(AfxGetResourceHandle(), before);
    }
}

TEST_F(Dialog3dLifecycle, ASecondDisplayLeavesTheDialogBelowOthers)
{
    TestDialog dialog;
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_NE(dialog.DisplayDialog(), 0);
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_TRUE(dialog.IsWindowVisible());
    HWND const window = dialog.m_hWnd;

    tests::ScopedWindow other(OuterOf(dialog));
    ASSERT_TRUE(tests::BringToFront(other));
    auto const above = [](HWND upper, HWND lower) {
        for (HWND next = ::GetWindow(lower, GW_HWNDPREV); next != nullptr; next = ::GetWindow(next, GW_HWNDPREV))
        {
            if (next == upper)
                return true;
        }
        return false;
    };
    ASSERT_TRUE(above(other.m_hWnd, window));
    EXPECT_EQ(dialog.DisplayDialog(), 1);
    EXPECT_EQ(dialog.m_hWnd, window);
    EXPECT_EQ(dialog.m_inits, 1);
    EXPECT_TRUE(above(other.m_hWnd, window));
    EXPECT_EQ(::GetForegroundWindow(), other.m_hWnd);
}

TEST_F(Dialog3dLifecycle, AModalDialogRunsInItsModuleAndGivesItsResult)
{
    HINSTANCE const before = AfxGetResourceHandle();
    TestDialog dialog(IDD_TOOLKITS_NUMBER, nullptr, ToolkitRecord());
    HINSTANCE during = nullptr;
    bool visible = false;
    tests::LaterActions later;
    later.Add(
        [&] {
            during = AfxGetResourceHandle();
            visible = dialog.IsWindowVisible() != FALSE;
            dialog.EndDialog(4711);
        },
        [&] { return dialog.IsOpen() && dialog.m_inits == 1; });
    EXPECT_EQ(dialog.DoModal(), 4711);
    EXPECT_FALSE(later.Failed());
    EXPECT_TRUE(visible);
    EXPECT_EQ(during, ToolkitModule());
    EXPECT_EQ(AfxGetResourceHandle(), before);
    EXPECT_FALSE(dialog.IsOpen());
}

TEST_F(Dialog3dLifecycle, TheModelessDialogsOwnerIsTheMainWindow)
{
    tests::ScopedWindow main;
    tests::ScopedWindow parent(CRect(300, 300, 500, 400));
    tests::App().m_pMainWnd = &main;
    TestDialog dialog(IDD_FIXED, &parent);
    EXPECT_NE(dialog.DisplayDialog(), 0);
    EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_OWNER), main.m_hWnd) << "not the one of the constructor, as hosts expect";
    dialog.DestroyWindow();
    tests::App().m_pMainWnd = nullptr;
}

TEST_F(Dialog3dLifecycle, ADialogWithoutAStoreIsCreatedHidden)
{
    CVeskBase::SetPreferenceVesk(nullptr);
    TestDialog dialog;
    EXPECT_NE(dialog.DisplayDialog(), 0);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_FALSE(dialog.OpenInitially());
}

TEST_F(Dialog3dLifecycle, TheUnseenOpeningLeavesTheFocusWhereItIs)
{
    class FocusCounter : public CEdit
    {
    public:
        int m_lost = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            m_lost += message == WM_KILLFOCUS ? 1 : 0;
            return CEdit::WindowProc(message, wParam, lParam);
        }
    };
    tests::ScopedWindow window;
    FocusCounter edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 100, 30), window, 7));
    ASSERT_TRUE(tests::BringToFront(window));
    edit.SetFocus();
    edit.m_lost = 0;
    for (bool const chosenByTheDialog : {false, true})
    {
        TestDialog dialog;
        dialog.m_onInit = [&] {
            if (chosenByTheDialog)
                dialog.GetDlgItem(IDC_NAME)->SetFocus();
        };
        dialog.OpenInitially();
        EXPECT_EQ(dialog.m_inits, 1);
        EXPECT_EQ(::GetFocus(), edit.m_hWnd);
        EXPECT_EQ(::GetActiveWindow(), window.m_hWnd);
        EXPECT_EQ(edit.m_lost, 0) << (chosenByTheDialog ? "the dialog chose its focus" : "the system chose the focus");

        ASSERT_NE(dialog.DisplayDialog(), 0);
        EXPECT_EQ(::GetFocus(), dialog.Item(IDC_NAME)) << "opened for real, it has it";
        dialog.DestroyWindow();
        ASSERT_TRUE(tests::BringToFront(window));
        edit.SetFocus();
        edit.m_lost = 0;
    }
}

TEST_F(Dialog3dLifecycle, TheResultOfOnInitDialogIsTheFrameworks)
{
    TestDialog dialog;
    dialog.DisplayDialog();
    EXPECT_EQ(dialog.m_inits, 1);
    EXPECT_EQ(::GetFocus(), dialog.Item(IDC_NAME)) << "the system chose the focus";
}

TEST_F(Dialog3dOpenings, FiveHundredObjectsLeaveNothing)
{
    auto const once = [](UINT id) {
        TestDialog dialog(id);
        dialog.SetDialogTitle(L"Often");
        dialog.m_onInit = [&] {
            dialog.D3dLayoutChild(IDC_NAME, CEdges::LEFT_RIGHT(), nullptr);
            dialog.D3dLayoutComplete(id == IDD_SIZABLE ? CDialogResizer::RESIZE_BOTH : CDialogResizer::RESIZE_NONE);
        };
        ASSERT_NE(dialog.DisplayDialog(), 0);
        dialog.Ausblenden(200);
        tests::PumpPosted();
        dialog.DestroyWindow();
    };
    once(IDD_SIZABLE);
    once(IDD_FIXED);
    tests::PumpPosted();
    int const handles = tests::GdiHandleCount();
    int const windows = tests::ThreadWindows();
    size_t const managers = ManagerCount::Now();
    for (int opening = 0; opening < 250; ++opening)
    {
        once(IDD_SIZABLE);
        once(IDD_FIXED);
    }
    tests::PumpPosted();
    EXPECT_EQ(tests::GdiHandleCount(), handles);
    EXPECT_EQ(tests::ThreadWindows(), windows);
    EXPECT_EQ(ManagerCount::Now(), managers);
}

TEST_F(Dialog3dOpenings, OneObjectOpensFiveHundredTimes)
{
    size_t const managers = ManagerCount::Now();
    {
        TestDialog dialog(IDD_SIZABLE);
        dialog.m_onInit = [&] {
            dialog.D3dLayoutChild(IDC_CLOSE_UP, CEdges::BOTTOM_RIGHT(), nullptr);
            dialog.D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
        };
        ASSERT_NE(dialog.DisplayDialog(), 0);
        CRect const place = OuterOf(dialog);
        dialog.DestroyWindow();
        tests::PumpPosted();
        int const handles = tests::GdiHandleCount();
        int const windows = tests::ThreadWindows();
        for (int opening = 0; opening < 500; ++opening)
        {
            ASSERT_NE(dialog.DisplayDialog(), 0);
            ASSERT_EQ(OuterOf(dialog), place);
            tests::PumpPosted();
            dialog.DestroyWindow();
        }
        tests::PumpPosted();
        EXPECT_EQ(tests::GdiHandleCount(), handles);
        EXPECT_EQ(tests::ThreadWindows(), windows);
        EXPECT_EQ(dialog.m_inits, 501);
    }
    EXPECT_EQ(ManagerCount::Now(), managers);
}

TEST_F(Dialog3dLifecycle, TheCloseButtonCanBeGreyed)
{
    TestDialog dialog;
    dialog.DisplayDialog();
    auto const state = [&] {
        return ::GetMenuState(::GetSystemMenu(dialog.m_hWnd, FALSE), SC_CLOSE, MF_BYCOMMAND) &
               (MF_GRAYED | MF_DISABLED);
    };
    EXPECT_EQ(state(), 0u);
    dialog.EnableCloseButton(false);
    EXPECT_NE(state(), 0u);
    dialog.EnableCloseButton(true);
    EXPECT_EQ(state(), 0u);
}

TEST_F(Dialog3dLifecycle, ADialogWithoutASystemMenuHasNoCloseButtonToGrey)
{
    tests::ScopedWindow main;
    tests::App().m_pMainWnd = &main;
    TestDialog dialog(IDD_CHILD);
    dialog.DisplayDialog();
    ASSERT_EQ(dialog.GetSystemMenu(FALSE), nullptr);
    dialog.EnableCloseButton(false);
    EXPECT_TRUE(dialog.IsOpen());
    dialog.DestroyWindow();
    tests::App().m_pMainWnd = nullptr;
}

TEST_F(Dialog3dLifecycle, TheLargestIdAndAControlsRectangle)
{
    TestDialog dialog(IDD_SIZABLE);
    dialog.DisplayDialog();
    EXPECT_EQ(dialog.GetMaxID(), 1016);
    CStatic nameless;
    nameless.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &dialog, static_cast<UINT>(-1));
    CButton inner;
    inner.Create(L"", WS_CHILD, CRect(0, 0, 5, 5), &nameless, 5000);
    EXPECT_EQ(dialog.GetMaxID(), 1016) << "no negative id, no child's child";
    CButton button;
    button.Create(L"", WS_CHILD, CRect(11, 12, 33, 44), &dialog, 2345);
    EXPECT_EQ(dialog.GetMaxID(), 2345);
    CRect rect;
    dialog.ClientCoordinates(2345, rect);
    EXPECT_EQ(rect, CRect(11, 12, 33, 44));
    TestDialog empty(IDD_TOOLKITS_NUMBER);
    empty.DisplayDialog();
    empty.GetDlgItem(IDC_HOSTS_OWN)->DestroyWindow();
    EXPECT_EQ(empty.GetMaxID(), 0);
}

// --- Icons ---

TEST_F(Dialog3dLifecycle, TheStandardIconIsTheSmallOne)
{
    TestDialog dialog;
    dialog.DisplayDialog();
    ASSERT_NE(ToolkitIcon(121), nullptr);
    EXPECT_EQ(SmallIconOf(dialog), ToolkitIcon(121));
    EXPECT_EQ(dialog.SendMessage(WM_GETICON, ICON_BIG, 0), 0);
}

TEST_F(Dialog3dLifecycle, AnIconShowsAtTheNextOpening)
{
    struct
    {
        CDialog3d::icon_t icon;
        int id;
    } const icons[] = {{CDialog3d::ICON_DISC, 124},
                       {CDialog3d::ICON_SCOPE, 123},
                       {CDialog3d::ICON_DIAL, 125},
                       {CDialog3d::ICON_STANDARD, 121},
                       {static_cast<CDialog3d::icon_t>(3 + 14), 121}};
    HINSTANCE const before = AfxGetResourceHandle();
    TestDialog dialog;
    HICON shown = ToolkitIcon(121);
    for (auto const & [icon, id] : icons)
    {
        dialog.DisplayDialog();
        dialog.SelectIcon(icon);
        EXPECT_EQ(SmallIconOf(dialog), shown) << "not before";
        EXPECT_EQ(AfxGetResourceHandle(), before);
        dialog.DestroyWindow();
        dialog.DisplayDialog();
        shown = ToolkitIcon(id);
        EXPECT_EQ(SmallIconOf(dialog), shown) << id;
        dialog.DestroyWindow();
    }
    static_assert(CDialog3d::ICON_STANDARD == 0 && CDialog3d::ICON_DISC == 1 && CDialog3d::ICON_SCOPE == 2 &&
                  CDialog3d::ICON_DIAL == 3);
}

// --- Positions ---

TEST_F(Dialog3dLifecycle, ThePlaceIsStoredAtTheEndAndComesBack)
{
    CSize size;
    {
        TestDialog dialog;
        dialog.DisplayDialog();
        size = OuterOf(dialog).Size();
        dialog.SetWindowPos(nullptr, 222, 111, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
    EXPECT_EQ(StoredPlace(L"Fixed_dialog"), CRect(CPoint(222, 111), size));
    EXPECT_EQ(m_store.LookupGetInt(L"Fixed_dialog-Gestalt", 0, -1), 0);
    TestDialog dialog;
    dialog.DisplayDialog();
    EXPECT_EQ(OuterOf(dialog), CRect(CPoint(222, 111), size));
}

TEST_F(Dialog3dLifecycle, AFixedDialogKeepsItsSizeAndAResizableOneTakesTheStoredSize)
{
    StorePlace(L"Fixed_dialog", CRect(100, 120, 900, 700));
    StorePlace(L"Sizable_dialog", CRect(100, 120, 900, 700));
    TestDialog fixed;
    fixed.DisplayDialog();
    EXPECT_EQ(OuterOf(fixed).TopLeft(), CPoint(100, 120));
    EXPECT_LT(OuterOf(fixed).Width(), 500);
    TestDialog sizable(IDD_SIZABLE);
    sizable.DisplayDialog();
    EXPECT_EQ(OuterOf(sizable), CRect(100, 120, 900, 700));
}

TEST_F(Dialog3dLifecycle, PositionsAreStoredAndReadOnDemand)
{
    TestDialog dialog;
    dialog.DisplayDialog();
    dialog.SetWindowPos(nullptr, 55, 66, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    dialog.FensterpositionSpeichern();
    CRect const place = OuterOf(dialog);
    EXPECT_EQ(StoredPlace(L"Fixed_dialog"), place);
    EXPECT_TRUE(m_store.LookupGetBool(L"Fixed_dialog-IstOffen", 0, false));
    dialog.SetWindowPos(nullptr, 300, 300, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    dialog.FensterpositionLaden();
    EXPECT_EQ(OuterOf(dialog), place);
}
