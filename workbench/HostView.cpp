#include "HostView.h"

IMPLEMENT_DYNCREATE(CHostView, CView)

BEGIN_MESSAGE_MAP(CHostView, CView)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

BOOL CHostView::PreCreateWindow(CREATESTRUCT & create)
{
    create.style |= WS_CLIPCHILDREN;
    create.dwExStyle |= WS_EX_CONTROLPARENT;
    return CView::PreCreateWindow(create);
}

void CHostView::OnSize(UINT type, int width, int height)
{
    CView::OnSize(type, width, height);
    if (auto * const child = GetWindow(GW_CHILD))
    {
        child->MoveWindow(0, 0, width, height);
    }
}

void CHostView::OnSetFocus(CWnd *)
{
    if (auto * const child = GetWindow(GW_CHILD))
    {
        child->SetFocus();
    }
}

BOOL CHostView::OnEraseBkgnd(CDC * dc)
{
    return GetWindow(GW_CHILD) != nullptr || CView::OnEraseBkgnd(dc); // the child covers all
}

/// In the main window itself there are several views, of which none is the active one.
int CHostView::OnMouseActivate(CWnd * top, UINT hit, UINT message)
{
    return GetParentFrame() == AfxGetMainWnd() ? CWnd::OnMouseActivate(top, hit, message)
                                               : CView::OnMouseActivate(top, hit, message);
}

/// In a frame, goes from one control to the next; in the main window that goes through all parts.
BOOL CHostView::PreTranslateMessage(MSG * message)
{
    if (CView::PreTranslateMessage(message))
    {
        return TRUE;
    }
    auto const goesOn = message->message == WM_KEYDOWN && message->wParam == VK_TAB && ::GetKeyState(VK_CONTROL) >= 0;
    return goesOn && GetParentFrame() != AfxGetMainWnd() && IsDialogMessage(message);
}
