#include "dialogs/PropertyPage3d.h"

#include "frame/CoreLibrary.h"
#include "frame/WindowAlive.h"

IMPLEMENT_DYNAMIC(CPropertyPage3d, CMFCPropertyPage)

BEGIN_MESSAGE_MAP(CPropertyPage3d, CMFCPropertyPage)
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

namespace
{
/// Ends the framework's own layout of the window, where the framework has one: it would work against the resizer.
template <class Window> void EndDynamicLayout(Window & window)
{
    if constexpr (requires { window.EnableDynamicLayout(FALSE); })
        window.EnableDynamicLayout(FALSE);
}
} // namespace

CPropertyPage3d::CPropertyPage3d() = default;

CPropertyPage3d::CPropertyPage3d(AFX_EXTENSION_MODULE module, unsigned int templateId, unsigned int captionId)
{
    CResourceModuleScope const scope(module.hModule);
    Construct(templateId, captionId);
    GetPSP().dwFlags &= ~static_cast<DWORD>(PSP_HASHELP);
}

CPropertyPage3d::CPropertyPage3d(AFX_EXTENSION_MODULE module, unsigned int templateId, CString const & title)
    : m_title(title)
{
    CResourceModuleScope const scope(module.hModule);
    Construct(templateId, 0);
    GetPSP().dwFlags &= ~static_cast<DWORD>(PSP_HASHELP);
    UseTitle();
}

CPropertyPage3d::~CPropertyPage3d()
{
    // Here, where the handlers of this class still run and their members live.
    if (m_hWnd != nullptr)
        DestroyWindow();
}

void CPropertyPage3d::SetTitle(CString const & title)
{
    m_title = title;
    UseTitle();
}

void CPropertyPage3d::UseTitle()
{
    GetPSP().pszTitle = m_title;
    GetPSP().dwFlags |= PSP_USETITLE;
}

BOOL CPropertyPage3d::OnInitDialog()
{
    HWND const window = m_hWnd;
    CMFCPropertyPage::OnInitDialog();
    // The host may have ended the page or deleted the object.
    if (StillHas(this, window) && m_resizer == nullptr)
        m_resizer = std::make_unique<CDialogResizer>(*this, CString());
    return TRUE;
}

void CPropertyPage3d::OnDestroy()
{
    CMFCPropertyPage::OnDestroy();
    EndDynamicLayout(*this);
}

void CPropertyPage3d::OnSize(UINT type, int cx, int cy)
{
    HWND const window = m_hWnd;
    CMFCPropertyPage::OnSize(type, cx, cy);
    if (!StillHas(this, window) || m_resizer == nullptr)
        return;
    m_resizer->OnSize();
    if (StillHas(this, window))
        Invalidate(TRUE);
}

void CPropertyPage3d::OnGetMinMaxInfo(MINMAXINFO * info)
{
    if (m_resizer != nullptr)
        m_resizer->OnGetMinMaxInfo(info, CDialogResizer::RESIZE_BOTH);
}

void CPropertyPage3d::D3dLayoutChild(int id, CEdges const & edges, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(id, edges, designRect);
}

void CPropertyPage3d::D3dLayoutChild(int id, CRect const & fractions, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(id, fractions, designRect);
}

void CPropertyPage3d::D3dLayoutChild(CWnd * child, CEdges const & edges, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(child, edges, designRect);
}

void CPropertyPage3d::D3dLayoutChild(CWnd * child, CRect const & fractions, CRect const * designRect)
{
    if (m_resizer != nullptr)
        m_resizer->PositionChild(child, fractions, designRect);
}

void CPropertyPage3d::D3dLayoutComplete()
{
    if (m_resizer != nullptr)
        m_resizer->OnSize();
}

void CPropertyPage3d::ClientCoordinates(int id, CRect & rect)
{
    GetDlgItem(id)->GetWindowRect(&rect);
    ScreenToClient(&rect);
}
