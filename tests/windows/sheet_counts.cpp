// Two hundred openings of sheets leave nothing behind.

#include "GuardedHeap.h"
#include "sheet_Sheet3dTest.h"

using namespace sheet_tests;

namespace
{
constexpr int openings = 200;

using PropertySheetCounts = SheetTest;

/// Ends the objects that stand for handles for the moment, as each loop does.
void BecomeIdle()
{
    tests::PumpPosted();
    AfxGetApp()->OnIdle(1);
}

/// The blocks and bytes that the calls leave, once the first of them have made what stays.
template <typename Action> void LeavesNothing(Action const & action)
{
    for (int i = 0; i < 10; ++i)
        action();
    tests::PumpPosted();
    int const windows = tests::ThreadWindows();
    int const objects = tests::GdiHandleCount();
    tests::GuardedHeap heap;
    action();
    BecomeIdle();
    size_t const blocks = heap.LiveBlocks();
    for (int i = 0; i < openings; ++i)
        action();
    BecomeIdle();
    EXPECT_EQ(heap.LiveBlocks(), blocks);
    EXPECT_EQ(heap.Check(), 0u);
    EXPECT_EQ(tests::ThreadWindows(), windows);
    constexpr int kept_by_the_system = 4; // fonts
    EXPECT_LE(tests::GdiHandleCount(), objects + kept_by_the_system);
}

/// The list of all managers, to count them.
class ManagerCount : public CFensterManager
{
public:
    static size_t Now() { return m_managerListe.size(); }
};
} // namespace

TEST_F(PropertySheetCounts, SheetsThatAreNotModal)
{
    LeavesNothing([] {
        Notes notes;
        Page one(notes, "1", static_cast<UINT>(IDD_PAGE_ONE));
        Page two(notes, "2", static_cast<UINT>(IDD_PAGE_TWO));
        Page three(notes, "3", static_cast<UINT>(IDD_PAGE_THREE));
        Sheet sheet(L"Counted");
        sheet.AddPage(&one);
        sheet.AddPage(&two);
        ASSERT_TRUE(sheet.Create());
        sheet.SetActivePage(1);
        sheet.AddPage(&three);
        sheet.RemovePage(&one);
        if (notes.size() % 2 == 0)
            sheet.DestroyWindow();
    });
}

TEST_F(PropertySheetCounts, ModalSheets)
{
    LeavesNothing([] {
        Notes notes;
        Page one(notes, "1", static_cast<UINT>(IDD_PAGE_ONE));
        Sheet sheet(L"Counted");
        sheet.AddPage(&one);
        sheet.m_onInit = [&] { sheet.PressButton(PSBTN_OK); };
        EXPECT_EQ(sheet.DoModal(), IDOK);
    });
}

TEST_F(PropertySheetCounts, SheetsThatEndInANotification)
{
    LeavesNothing([] {
        Notes notes;
        Page one(notes, "1", static_cast<UINT>(IDD_PAGE_ONE));
        Page two(notes, "2", static_cast<UINT>(IDD_PAGE_TWO));
        Sheet sheet(L"Counted");
        sheet.AddPage(&one);
        sheet.AddPage(&two);
        two.m_act = [&](std::string const &) { sheet.DestroyWindow(); };
        ASSERT_TRUE(sheet.Create());
        sheet.SetActivePage(1);
        EXPECT_EQ(sheet.m_hWnd, nullptr);
    });
}

TEST_F(PropertySheetCounts, SheetsOfTheToolkit)
{
    size_t const managers = ManagerCount::Now();
    LeavesNothing([] {
        Notes notes;
        Page3d one(notes, "1", CDialog3d::NO_DLL, IDD_PAGE_ONE, CString(L"first"));
        Page3d two(notes, "2", CDialog3d::NO_DLL, IDD_PAGE_TWO, 0u);
        Sheet3d sheet(L"Counted");
        sheet.SetResizable(true);
        sheet.AddPage(&one);
        sheet.AddPage(&two);
        ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
        sheet.SetSize(500, 400);
        sheet.SetActivePage(1);
        sheet.Push(ok_button);
        tests::PumpPosted();
        EXPECT_FALSE(sheet.IsOpen());
        ASSERT_NE(sheet.DisplayDialog(nullptr), 0);
    });
    EXPECT_EQ(ManagerCount::Now(), managers);
}
