#include "dialogs/PropertySheet3d.h"

#include <afxcmn.h>

#include <stdexcept>

#include "dialogs/PropertyPage3d.h"
#include "dialogs/TabRows.h"
#include "frame/WindowAlive.h"

namespace
{
constexpr UINT resize_page_message = WM_USER + 111; // 0x46F, to the sheet itself
constexpr int ok_button = 1;
constexpr int cancel_button = 2;
constexpr int apply_button = 12321;

constexpr wchar_t no_pages_message[] = L"Property Sheet \u201C%s\u201D has no pages and cannot be displayed!";
constexpr char no_pages_text[] = "Property Sheet without pages cannot be displayed!";
} // namespace

IMPLEMENT_DYNAMIC(CPropertySheet3d, CMFCPropertySheet)

BEGIN_MESSAGE_MAP(CPropertySheet3d, CMFCPropertySheet)
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_MESSAGE(resize_page_message, &CPropertySheet3d::OnResizePage)
    ON_WM_CREATE()
END_MESSAGE_MAP()

CPropertySheet3d::CPropertySheet3d(wchar_t const * title, CWnd * parent, unsigned int selectPage)
    : CMFCPropertySheet(title, parent, selectPage),
      m_dialogTitle(title),
      m_resizable(false),
      m_pageRect(0, 0, 0, 0),
      m_tabRows(0)
{
}

CPropertySheet3d::CPropertySheet3d(unsigned int captionId, CWnd * parent, unsigned int selectPage)
    : CMFCPropertySheet(captionId, parent, selectPage),
      m_resizable(false),
      m_pageRect(0, 0, 0, 0),
      m_tabRows(0)
{
}

CPropertySheet3d::~CPropertySheet3d()
{
    // Here, where the handlers of this class still run and their members live.
    if (m_hWnd != nullptr)
        DestroyWindow();
    // A window whose own code runs at the moment ends later, without this object.
    if (m_hWnd != nullptr)
        SavePosition();
    m_resizer.reset();
    m_fenster.reset();
}

std::unique_ptr<CPropertySheet3d> CPropertySheet3d::FromCaption(unsigned int captionId, CWnd * parent,
                                                                unsigned int selectPage)
{
    return std::unique_ptr<CPropertySheet3d>(new CPropertySheet3d(captionId, parent, selectPage));
}

int CPropertySheet3d::Display()
{
    return DisplayDialog(AfxGetMainWnd());
}

int CPropertySheet3d::DisplayDialog(CWnd * parent)
{
    m_psh.dwFlags &= ~static_cast<DWORD>(PSH_NOAPPLYNOW | PSH_HASHELP);
    if (IsOpen())
    {
        BringWindowToTop();
        return 1;
    }
    if (GetPageCount() == 0)
        return 0;
    return Create(parent, static_cast<DWORD>(-1), 0);
}

bool CPropertySheet3d::IsOpen() const
{
    return ::IsWindow(GetSafeHwnd()) != FALSE;
}

void CPropertySheet3d::CloseDialog()
{
    PostMessage(WM_CLOSE);
}

void CPropertySheet3d::SetDialogTitle(CString const & title)
{
    m_dialogTitle = title;
}

void CPropertySheet3d::SetResizable(bool resizable)
{
    m_resizable = resizable;
}

int CPropertySheet3d::OnCreate(LPCREATESTRUCT createStruct)
{
    if (CMFCPropertySheet::OnCreate(createStruct) == -1)
        return -1;
    if (m_resizable)
        ModifyStyle(0, WS_THICKFRAME | WS_SYSMENU, 0);
    return 0;
}

BOOL CPropertySheet3d::OnInitDialog()
{
    if (GetPageCount() == 0)
    {
        CString text;
        text.Format(no_pages_message, m_dialogTitle.GetString());
        AfxMessageBox(text, MB_ICONERROR);
        throw std::runtime_error(no_pages_text);
    }

    WindowAlive const alive(*this, m_life);
    // With this flag the framework keeps the buttons, which it hides on other sheets that are not modal.
    m_psh.dwFlags |= PSH_WIZARD;
    BOOL const result = CMFCPropertySheet::OnInitDialog();
    if (!alive.IsThere())
        return result;
    m_psh.dwFlags &= ~static_cast<DWORD>(PSH_WIZARD);
    if (!alive.IsAlive())
        return result;

    if (m_dialogTitle.IsEmpty())
    {
        GetWindowText(m_dialogTitle);
    }
    else
    {
        CString const title = m_dialogTitle; // a handler may set another one
        SetWindowText(title);
    }
    if (!alive.IsAlive())
        return result;

    // Before any stored position is applied: the present size is the design size.
    if (m_resizer == nullptr)
        m_resizer = std::make_unique<CDialogResizer>(*this, CString());
    D3dLayoutChild(GetTabControl(), CEdges::TOP_LEFT_RIGHT(), nullptr);
    D3dLayoutChild(GetActivePage(), CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
    for (int const id : {ok_button, cancel_button, apply_button})
        D3dLayoutChild(id, CEdges::BOTTOM_RIGHT(), nullptr);
    D3dLayoutComplete();
    if (!alive.IsAlive())
        return result;

    CTabCtrl const * const tabs = GetTabControl();
    m_tabRows = tabs != nullptr ? tabs->GetRowCount() : 0;
    m_pageRect = CRect(0, 0, 0, 0);
    if (CPropertyPage const * const page = GetActivePage())
    {
        page->GetWindowRect(&m_pageRect);
        page->GetParent()->ScreenToClient(&m_pageRect);
    }

    if (m_fenster == nullptr)
    {
        m_fenster = std::make_unique<CFensterManager>(
            m_dialogTitle, m_resizable ? CFensterManager::window_sizable_dialog : CFensterManager::window_dialog);
    }
    m_fenster->PreferedPosition(this);
    m_fenster->ReadMyPosition(this);
    return result;
}

BOOL CPropertySheet3d::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result)
{
    HWND const window = m_hWnd;
    UINT const code = reinterpret_cast<NMHDR const *>(lParam)->code;
    BOOL const handled = CMFCPropertySheet::OnNotify(wParam, lParam, result);
    // Posted: the framework moves the new page to its place of the first layout only after this notification.
    if (code == TCN_SELCHANGE)
        ::PostMessage(window, resize_page_message, 0, 0);
    return handled;
}

BOOL CPropertySheet3d::OnCommand(WPARAM wParam, LPARAM lParam)
{
    HWND const window = m_hWnd;
    BOOL const handled = CMFCPropertySheet::OnCommand(wParam, lParam);
    if (LOWORD(wParam) == apply_button && HIWORD(wParam) == 0)
        ::PostMessage(window, resize_page_message, 0, 0);
    return handled;
}

LRESULT CPropertySheet3d::OnResizePage(WPARAM, LPARAM)
{
    WindowAlive const alive(*this, m_life);
    if (m_resizer == nullptr)
        return 0;
    // Each of the calls sends messages, in which the host may end the sheet.
    CPropertyPage * const page = GetActivePage();
    if (!alive.IsAlive() || m_resizer == nullptr)
        return 0;
    D3dLayoutChild(page, CEdges::TOP_LEFT_BOTTOM_RIGHT(), &m_pageRect);
    if (alive.IsAlive() && m_resizer != nullptr)
        D3dLayoutComplete();
    return 0;
}

void CPropertySheet3d::OnSize(UINT type, int cx, int cy)
{
    WindowAlive const alive(*this, m_life);
    CMFCPropertySheet::OnSize(type, cx, cy);
    if (!alive.IsAlive() || m_resizer == nullptr)
        return;
    m_resizer->OnSize();
    if (!alive.IsAlive())
        return;
    CTabCtrl * const tabs = GetTabControl();
    if (tabs == nullptr || !alive.IsAlive())
        return;
    FollowTabRows(*tabs);
    if (alive.IsAlive())
        Invalidate(TRUE);
}

void CPropertySheet3d::FollowTabRows(CTabCtrl & tabs)
{
    WindowAlive const alive(*this, m_life);
    int const rows = tabs.GetRowCount();
    if (!alive.IsAlive() || rows == m_tabRows)
        return;
    CRect tab(0, 0, 0, 0);
    tabs.GetItemRect(0, &tab);
    CPropertyPage const * const page = alive.IsAlive() ? GetActivePage() : nullptr;
    if (page == nullptr || !alive.IsAlive() || m_resizer == nullptr)
        return;
    TabRows::Change const change = TabRows::ChangeOfRows(m_tabRows, rows, tab);
    m_resizer->RepositionChild(page, &change.offset, &change.growth, false);
    // Before the layout, in which the host's code may run and find the sheet resized once more.
    m_tabRows = rows;
    m_pageRect = TabRows::PageArea(m_pageRect, change);
    m_resizer->OnSize();
}

void CPropertySheet3d::OnGetMinMaxInfo(MINMAXINFO * info)
{
    if (m_resizer != nullptr)
        m_resizer->OnGetMinMaxInfo(info, CDialogResizer::RESIZE_BOTH);
}

void CPropertySheet3d::SavePosition()
{
    if (m_fenster == nullptr)
        return;
    m_fenster->CalcMyPosition(this);
    m_fenster->SaveMyPosition(false);
}

void CPropertySheet3d::OnDestroy()
{
    SavePosition();
    CMFCPropertySheet::OnDestroy();
}

void CPropertySheet3d::D3dLayoutChild(int id, CEdges const & edges, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(id, edges, designRect);
}

void CPropertySheet3d::D3dLayoutChild(int id, CRect const & fractions, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(id, fractions, designRect);
}

void CPropertySheet3d::D3dLayoutChild(CWnd * child, CEdges const & edges, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(child, edges, designRect);
}

void CPropertySheet3d::D3dLayoutChild(CWnd * child, CRect const & fractions, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(child, fractions, designRect);
}

void CPropertySheet3d::D3dLayoutComplete()
{
    if (m_resizer != nullptr)
        m_resizer->OnSize();
}

void CPropertySheet3d::ClientCoordinates(int id, CRect & rect)
{
    GetDlgItem(id)->GetWindowRect(&rect);
    ScreenToClient(&rect);
}
