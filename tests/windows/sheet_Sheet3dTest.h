#pragma once
// Sheets and pages of the toolkit whose protected operations a test can call.

#include "dialogs/Dialog3d.h"
#include "dialogs/PropertyPage3d.h"
#include "dialogs/PropertySheet3d.h"
#include "sheet_SheetTest.h"

namespace sheet_tests
{
constexpr UINT resize_page = 0x46F;
constexpr int ok_button = 1;
constexpr int cancel_button = 2;
constexpr int apply_button = 12321;
constexpr int help_button = 9;

/// A page that lays its edit field out.
class Page3d : public Noting<CPropertyPage3d>
{
public:
    using Noting<CPropertyPage3d>::Noting;
    using CPropertyPage3d::ClientCoordinates;
    using CPropertyPage3d::D3dLayoutChild;
    using CPropertyPage3d::D3dLayoutComplete;

    BOOL m_initResult = -1;
    CSize m_designSize; // of the first opening

    BOOL OnInitDialog() override
    {
        m_initResult = CPropertyPage3d::OnInitDialog();
        if (m_designSize == CSize())
            m_designSize = OuterOf(*this).Size();
        D3dLayoutChild(IDC_PAGE_TEXT, CEdges::TOP_LEFT_RIGHT(), nullptr);
        D3dLayoutComplete();
        Note("init");
        return m_initResult;
    }
};

class Sheet3d : public Watched<CPropertySheet3d>
{
public:
    explicit Sheet3d(wchar_t const * title = L"Sheet", CWnd * parent = nullptr, unsigned int selectPage = 0)
        : Watched<CPropertySheet3d>(title, parent, selectPage)
    {
    }

    using CPropertySheet3d::ClientCoordinates;
    using CPropertySheet3d::D3dLayoutChild;
    using CPropertySheet3d::D3dLayoutComplete;

    int m_resizeMessages = 0;
    int m_sizes = 0;

    void SetSize(int width, int height)
    {
        SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        tests::PumpPosted();
    }
    int Rows() const { return GetTabControl()->GetRowCount(); }
    int TabHeight() const
    {
        CRect rect;
        GetTabControl()->GetItemRect(0, &rect);
        return rect.Height();
    }
    CRect PagePlace() const { return PlaceOf(GetActivePage()->m_hWnd); }
    /// The middle of the tab on the screen.
    CPoint TabPoint(int index) const
    {
        CRect rect;
        GetTabControl()->GetItemRect(index, &rect);
        return tests::ClientPoint(GetTabControl()->m_hWnd, rect.CenterPoint());
    }
    /// From the client area's lower right corner to the window's.
    CSize FromCorner(int id) const
    {
        CRect client;
        GetClientRect(&client);
        CRect const place = PlaceOf(Item(id));
        return CSize(client.right - place.right, client.bottom - place.bottom);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == resize_page)
            ++m_resizeMessages;
        if (message == WM_SIZE)
            ++m_sizes;
        return Watched<CPropertySheet3d>::WindowProc(message, wParam, lParam);
    }
};

/// A preference store for the time of the test, and three pages.
class SheetTest : public testing::Test
{
protected:
    void SetUp() override { CVeskBase::SetPreferenceVesk(&m_store); }
    void TearDown() override { CVeskBase::SetPreferenceVesk(nullptr); }

    void AddAll(CPropertySheet & sheet)
    {
        sheet.AddPage(&m_one);
        sheet.AddPage(&m_two);
        sheet.AddPage(&m_three);
    }
    Notes Taken() { return std::exchange(m_notes, {}); }
    void StorePlace(CString const & name, CRect const & place)
    {
        m_store.LookupSetInt(name + L"-Fensterpos", place.top, 0);
        m_store.LookupSetInt(name + L"-Fensterpos", place.left, 1);
        m_store.LookupSetInt(name + L"-Fensterpos", place.bottom, 2);
        m_store.LookupSetInt(name + L"-Fensterpos", place.right, 3);
    }
    CRect StoredPlace(CString const & name)
    {
        return CRect(
            m_store.LookupGetInt(name + L"-Fensterpos", 1, -1), m_store.LookupGetInt(name + L"-Fensterpos", 0, -1),
            m_store.LookupGetInt(name + L"-Fensterpos", 3, -1), m_store.LookupGetInt(name + L"-Fensterpos", 2, -1));
    }

    MemoryPreferenceStore m_store;
    Notes m_notes;
    Page3d m_one{m_notes, "1", CDialog3d::NO_DLL, IDD_PAGE_ONE, 0u};
    Page3d m_two{m_notes, "2", CDialog3d::NO_DLL, IDD_PAGE_TWO, 0u};
    Page3d m_three{m_notes, "3", CDialog3d::NO_DLL, IDD_PAGE_THREE, 0u};
};
} // namespace sheet_tests
