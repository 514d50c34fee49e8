// The framework's property sheet: opening, pages, order of notifications, wizard.

#include "sheet_SheetTest.h"

using namespace sheet_tests;

namespace
{
class PropertySheets : public testing::Test
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
} // namespace

TEST_F(PropertySheets, Explore)
{
    tests::ScopedWindow parent;
    Sheet sheet(L"Title", parent);
    AddAll(sheet);
    ASSERT_TRUE(sheet.Create(parent));
    tests::PumpPosted();
    auto dump = [&](char const * when) {
        printf("%s: style %lx ex %lx active %d page %p rows %d notes", when, sheet.GetStyle(), sheet.GetExStyle(), sheet.GetActiveIndex(), sheet.GetActivePage(), sheet.GetTabControl()->GetRowCount());
        for (auto const & n : Taken()) printf(" [%s]", n.c_str());
        printf("\n"); fflush(stdout);
    };
    dump("created");
    printf("tab style %lx visible ok %d\n", sheet.GetTabControl()->GetStyle(), sheet.Shows(IDOK));
    sheet.SetActivePage(1); dump("set 1");
    sheet.SetActivePage(2); dump("set 2");
    sheet.SetActivePage(0); dump("set 0");
    for (int i=0;i<3;++i) { auto r = PlaceOf(sheet.GetPage(i)->m_hWnd); printf("page %d: %ld %ld %ld %ld vis %d\n", i, r.left,r.top,r.right,r.bottom, sheet.GetPage(i)->IsWindowVisible()); }
    auto r = PlaceOf(sheet.GetTabControl()->m_hWnd);printf("tab: %ld %ld %ld %ld\n", r.left,r.top,r.right,r.bottom);
    sheet.DestroyWindow();
    Taken();
}
