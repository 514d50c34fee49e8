// A window with a tree, a list and an edit field side by side: notifications handled by the parent, by the control
// itself (reflected), and by both; layout in WM_SIZE; a registered message; an image list.

#include <afxcmn.h>
#include <afxtempl.h>
#include <afxwin.h>

#include <iterator>

#include "../SelfTest.h"

CSelfTest theSelfTest;

namespace
{
UINT const filter_message = ::RegisterWindowMessage(_T("Tutorial.Browser.FilterChanged"));

enum ControlId : UINT
{
    tree_id = 1,
    list_id = 2,
    filter_id = 3
};

struct Planet
{
    LPCTSTR group;
    LPCTSTR name;
    int radius; // kilometres
};

Planet const planets[] = {{_T("Rock"), _T("Mercury"), 2440}, {_T("Rock"), _T("Venus"), 6052},
                          {_T("Rock"), _T("Earth"), 6371},   {_T("Rock"), _T("Mars"), 3390},
                          {_T("Gas"), _T("Jupiter"), 69911}, {_T("Gas"), _T("Saturn"), 58232}};
} // namespace

/// Sorts itself by the clicked column; the parent hears of the clicks too.
class CSortingList : public CListCtrl
{
public:
    int m_sortColumn = -1;

protected:
    BOOL OnColumnClick(NMHDR * pNMHDR, LRESULT * pResult)
    {
        m_sortColumn = reinterpret_cast<NMLISTVIEW *>(pNMHDR)->iSubItem;
        SortItems(&CSortingList::Compare, static_cast<DWORD_PTR>(m_sortColumn));
        *pResult = 0;
        return FALSE; // on to the parent
    }
    void OnDeleteItem(NMHDR *, LRESULT * pResult)
    {
        ++m_deleted;
        *pResult = 0;
    }

    static int CALLBACK Compare(LPARAM first, LPARAM second, LPARAM column)
    {
        Planet const & a = planets[first];
        Planet const & b = planets[second];
        return column == 0 ? ::_tcscmp(a.name, b.name) : a.radius - b.radius;
    }

public:
    int m_deleted = 0;

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSortingList, CListCtrl)
    ON_NOTIFY_REFLECT_EX(LVN_COLUMNCLICK, &CSortingList::OnColumnClick)
    ON_NOTIFY_REFLECT(LVN_DELETEITEM, &CSortingList::OnDeleteItem)
END_MESSAGE_MAP()

/// An edit field that colours itself and tells the parent of a change by a registered message.
class CFilterEdit : public CEdit
{
public:
    CFilterEdit() { m_brush.CreateSolidBrush(RGB(255, 255, 200)); }

protected:
    void OnChange() { GetParent()->SendMessage(filter_message, GetDlgCtrlID(), GetWindowTextLength()); }
    HBRUSH CtlColor(CDC * pDC, UINT)
    {
        pDC->SetBkColor(RGB(255, 255, 200));
        return m_brush;
    }

private:
    CBrush m_brush;

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CFilterEdit, CEdit)
    ON_CONTROL_REFLECT(EN_CHANGE, &CFilterEdit::OnChange)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class CBrowserWindow : public CWnd
{
public:
    BOOL CreateMain()
    {
        LPCTSTR const className =
            AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
        return CreateEx(WS_EX_CONTROLPARENT, className, _T("Browser"), WS_OVERLAPPEDWINDOW, CRect(100, 100, 700, 400),
                        nullptr, 0);
    }

protected:
    int OnCreate(LPCREATESTRUCT lpCreateStruct);
    void OnSize(UINT nType, int cx, int cy);
    void OnSelectionChanged(NMHDR * pNMHDR, LRESULT * pResult);
    void OnColumnClick(NMHDR * pNMHDR, LRESULT * pResult);
    void OnBeginLabelEdit(NMHDR * pNMHDR, LRESULT * pResult);
    void OnEndLabelEdit(NMHDR * pNMHDR, LRESULT * pResult);
    LRESULT OnFilterChanged(WPARAM wParam, LPARAM lParam);
    LRESULT OnSelfTest(WPARAM wParam, LPARAM lParam);

private:
    void FillTree();
    void FillList();

    CTreeCtrl m_tree;
    CSortingList m_list;
    CFilterEdit m_filter;
    CImageList m_images;
    CMap<CString, LPCTSTR, HTREEITEM, HTREEITEM> m_groups;
    CString m_group; // of the selected item; empty: all
    int m_columnClicks = 0;
    LPARAM m_filterLength = 0;

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBrowserWindow, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_NOTIFY(TVN_SELCHANGED, tree_id, &CBrowserWindow::OnSelectionChanged)
    ON_NOTIFY(TVN_BEGINLABELEDIT, tree_id, &CBrowserWindow::OnBeginLabelEdit)
    ON_NOTIFY(TVN_ENDLABELEDIT, tree_id, &CBrowserWindow::OnEndLabelEdit)
    ON_NOTIFY(LVN_COLUMNCLICK, list_id, &CBrowserWindow::OnColumnClick)
    ON_REGISTERED_MESSAGE(filter_message, &CBrowserWindow::OnFilterChanged)
    ON_MESSAGE(CSelfTest::message, &CBrowserWindow::OnSelfTest)
END_MESSAGE_MAP()

int CBrowserWindow::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    CRect const empty(0, 0, 0, 0);
    DWORD const child = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    if (!m_tree.Create(child | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_EDITLABELS, empty, this,
                       tree_id) ||
        !m_list.Create(child | LVS_REPORT | LVS_SHOWSELALWAYS, empty, this, list_id) ||
        !m_filter.Create(child | WS_BORDER | ES_AUTOHSCROLL, empty, this, filter_id))
    {
        return -1;
    }
    m_images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 1);
    m_images.Add(::LoadIcon(nullptr, IDI_INFORMATION));
    m_tree.SetImageList(&m_images, TVSIL_NORMAL);
    m_list.InsertColumn(0, _T("Name"), LVCFMT_LEFT, 120);
    m_list.InsertColumn(1, _T("Radius"), LVCFMT_RIGHT, 80);
    FillTree();
    FillList();
    return 0;
}

void CBrowserWindow::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    int const filterHeight = 22;
    int const treeWidth = cx / 3;
    m_filter.MoveWindow(0, 0, cx, filterHeight);
    m_tree.MoveWindow(0, filterHeight, treeWidth, cy - filterHeight);
    m_list.MoveWindow(treeWidth, filterHeight, cx - treeWidth, cy - filterHeight);
}

void CBrowserWindow::FillTree()
{
    HTREEITEM const root = m_tree.InsertItem(_T("planets"), 0, 0);
    for (Planet const & planet : planets)
    {
        HTREEITEM group = nullptr;
        if (!m_groups.Lookup(planet.group, group))
        {
            group = m_tree.InsertItem(planet.group, 0, 0, root);
            m_groups.SetAt(planet.group, group);
        }
    }
    m_tree.Expand(root, TVE_EXPAND);
}

void CBrowserWindow::FillList()
{
    CString filter;
    m_filter.GetWindowText(filter);
    m_list.SetRedraw(FALSE);
    m_list.DeleteAllItems();
    for (int i = 0; i < static_cast<int>(std::size(planets)); ++i)
    {
        if (!m_group.IsEmpty() && m_group != planets[i].group)
            continue;
        if (CString(planets[i].name).Find(filter) < 0)
            continue;
        int const row = m_list.InsertItem(m_list.GetItemCount(), planets[i].name);
        CString radius;
        radius.Format(_T("%d"), planets[i].radius);
        m_list.SetItemText(row, 1, radius);
        m_list.SetItemData(row, static_cast<DWORD_PTR>(i));
    }
    m_list.SetRedraw(TRUE);
}

void CBrowserWindow::OnSelectionChanged(NMHDR * pNMHDR, LRESULT * pResult)
{
    HTREEITEM const item = reinterpret_cast<NMTREEVIEW *>(pNMHDR)->itemNew.hItem;
    m_group = item == m_tree.GetRootItem() ? CString() : m_tree.GetItemText(item);
    FillList();
    *pResult = 0;
}

void CBrowserWindow::OnBeginLabelEdit(NMHDR * pNMHDR, LRESULT * pResult)
{
    *pResult = reinterpret_cast<NMTVDISPINFO *>(pNMHDR)->item.hItem == m_tree.GetRootItem(); // not the root
}

void CBrowserWindow::OnEndLabelEdit(NMHDR * pNMHDR, LRESULT * pResult)
{
    *pResult = reinterpret_cast<NMTVDISPINFO *>(pNMHDR)->item.pszText != nullptr; // null: the user gave up
}

void CBrowserWindow::OnColumnClick(NMHDR *, LRESULT * pResult)
{
    ++m_columnClicks;
    *pResult = 0;
}

LRESULT CBrowserWindow::OnFilterChanged(WPARAM, LPARAM lParam)
{
    m_filterLength = lParam;
    FillList();
    return 0;
}

LRESULT CBrowserWindow::OnSelfTest(WPARAM, LPARAM)
{
    HTREEITEM const root = m_tree.GetRootItem();
    SELFTEST_CHECK(m_tree.GetItemText(root) == _T("planets"));
    SELFTEST_CHECK(m_tree.GetCount() == 3);
    SELFTEST_CHECK(m_groups.GetCount() == 2);
    SELFTEST_CHECK(m_list.GetItemCount() == 6);
    SELFTEST_CHECK(m_tree.GetParent() == this);
    SELFTEST_CHECK(CWnd::FromHandle(m_list.m_hWnd) == &m_list);
    SELFTEST_CHECK(GetDlgItem(tree_id) == &m_tree);

    CRect client;
    GetClientRect(&client);
    CRect tree;
    m_tree.GetWindowRect(&tree);
    ScreenToClient(&tree);
    SELFTEST_CHECK(tree == CRect(0, 22, client.right / 3, client.bottom));

    HTREEITEM gas = nullptr;
    SELFTEST_CHECK(m_groups.Lookup(_T("Gas"), gas));
    m_tree.SelectItem(gas);
    SELFTEST_CHECK(m_list.GetItemCount() == 2);
    SELFTEST_CHECK(m_list.GetItemText(0, 0) == _T("Jupiter"));
    SELFTEST_CHECK(m_list.GetItemText(1, 1) == _T("58232"));
    SELFTEST_CHECK(m_list.m_deleted == 6); // the six that went; handled by the list itself
    m_tree.SelectItem(root);

    m_tree.SetFocus();
    SELFTEST_CHECK(m_tree.EditLabel(root) == nullptr); // refused by OnBeginLabelEdit
    CEdit * const label = m_tree.EditLabel(gas);
    SELFTEST_CHECK(label != nullptr);
    if (label != nullptr)
    {
        label->SetWindowText(_T("Giants"));
        label->SendMessage(WM_KEYDOWN, VK_RETURN);
    }
    SELFTEST_CHECK(m_tree.GetItemText(gas) == _T("Giants"));
    m_tree.SetItemText(gas, _T("Gas"));

    NMLISTVIEW click = {};
    click.hdr = {m_list.m_hWnd, list_id, static_cast<UINT>(LVN_COLUMNCLICK)};
    click.iSubItem = 1;
    SendMessage(WM_NOTIFY, list_id, reinterpret_cast<LPARAM>(&click));
    SELFTEST_CHECK(m_list.m_sortColumn == 1);
    SELFTEST_CHECK(m_columnClicks == 1);
    SELFTEST_CHECK(m_list.GetItemText(0, 0) == _T("Mercury"));
    SELFTEST_CHECK(m_list.GetItemText(5, 0) == _T("Jupiter"));
    click.iSubItem = 0;
    SendMessage(WM_NOTIFY, list_id, reinterpret_cast<LPARAM>(&click));
    SELFTEST_CHECK(m_list.GetItemText(0, 0) == _T("Earth"));

    m_filter.SetWindowText(_T("ar"));
    SELFTEST_CHECK(m_filterLength == 2);
    SELFTEST_CHECK(m_list.GetItemCount() == 2); // Earth, Mars
    m_filter.RedrawWindow();
    CClientDC dc(&m_filter);
    CRect filter;
    m_filter.GetClientRect(&filter);
    SELFTEST_CHECK(dc.GetPixel(filter.right - 3, filter.bottom - 3) == RGB(255, 255, 200));

    theSelfTest.Finish();
    PostMessage(WM_CLOSE);
    return 0;
}

class CBrowserApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES};
        ::InitCommonControlsEx(&classes);
        CWinApp::InitInstance();
        if (!m_window.CreateMain())
            return FALSE;
        m_pMainWnd = &m_window;
        m_window.ShowWindow(m_nCmdShow);
        m_window.UpdateWindow();
        if (CSelfTest::IsWanted())
            m_window.PostMessage(CSelfTest::message);
        return TRUE;
    }

    int ExitInstance() override
    {
        int const result = CWinApp::ExitInstance();
        SELFTEST_CHECK(m_window.m_hWnd == nullptr);
        return CSelfTest::IsWanted() ? theSelfTest.ExitCode() : result;
    }

private:
    CBrowserWindow m_window;
};

CBrowserApp theApp;
