// CDialogBar: a bar with the controls of a dialog template.

#include <afxext.h>

#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)

BEGIN_MESSAGE_MAP(CDialogBar, CControlBar)
END_MESSAGE_MAP()

namespace
{
/// A bar doesn't take the focus when it comes into being.
INT_PTR CALLBACK BarDialogProcedure(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}
} // namespace

CDialogBar::CDialogBar() : m_sizeTemplate(0, 0)
{
    SetBorders(0, 0, 0, 0);
}

CDialogBar::~CDialogBar()
{
    DestroyWindow();
}

BOOL CDialogBar::Create(CWnd * pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID)
{
    return Create(pParentWnd, MAKEINTRESOURCE(nIDTemplate), nStyle, nID);
}

BOOL CDialogBar::Create(CWnd * pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID)
{
    ASSERT(pParentWnd != nullptr && lpszTemplateName != nullptr);
    TakeStyles(nStyle, nID);
    SetOwner(pParentWnd);
    HINSTANCE const module = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    HRSRC const found = ::FindResource(module, lpszTemplateName, RT_DIALOG);
    HGLOBAL const loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    DLGTEMPLATE const * const dialogTemplate =
        loaded != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
    if (dialogTemplate == nullptr)
    {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    HWND const window = ::CreateDialogIndirect(module, dialogTemplate, pParentWnd->m_hWnd, BarDialogProcedure);
    if (!AfxUnhookWindowCreate())
    {
        PostNcDestroy();
        return FALSE;
    }
    // It may have been ended by what it did at its start.
    framework::WindowGuard const guard(this);
    if (window == nullptr || CWnd::FromHandlePermanent(window) != this)
        return FALSE;
    ASSERT((GetStyle() & WS_CHILD) != 0);
    SetDlgCtrlID(static_cast<int>(nID));
    CRect rect;
    GetWindowRect(&rect);
    m_sizeTemplate = rect.Size();
    ModifyStyle(0, WS_CLIPSIBLINGS);
    if (!ExecuteDlgInit(lpszTemplateName) || !guard.Alive())
        return FALSE;
    // It shows whatever its style says. The frame's layout gives it its place.
    SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return guard.Alive();
}

CSize CDialogBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    if (!bStretch)
        return m_sizeTemplate;
    CSize size = CControlBar::CalcFixedLayout(TRUE, bHorz);
    (bHorz ? size.cy : size.cx) = bHorz ? m_sizeTemplate.cy : m_sizeTemplate.cx;
    return size;
}

void CDialogBar::OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler)
{
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
