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
    create.style &= ~WS_BORDER; // what it hosts has an edge of its own, or none
    create.dwExStyle |= WS_EX_CONTROLPARENT;
    return CView::PreCreateWindow(create);
}

void CHostView::OnSize(UINT type, int width, int height)
{
    CView::OnSize(type, width, height);
    Fill();
}

void CHostView::Fill()
{
    CRect client;
    GetClientRect(&client);
    if (CWnd * const child = GetWindow(GW_CHILD))
    {
        child->MoveWindow(client);
    }
}

void CHostView::OnSetFocus(CWnd *)
{
    CWnd * const child = GetWindow(GW_CHILD);
    if (child == nullptr)
    {
        return;
    }
    // What consists of controls has the first one take it.
    bool const holds = (child->GetExStyle() & WS_EX_CONTROLPARENT) != 0;
    HWND const first = holds ? ::GetNextDlgTabItem(child->m_hWnd, nullptr, FALSE) : nullptr;
    ::SetFocus(first != nullptr ? first : child->m_hWnd);
}

BOOL CHostView::OnEraseBkgnd(CDC * dc)
{
    return GetWindow(GW_CHILD) != nullptr || CView::OnEraseBkgnd(dc); // the child covers all
}

/// In the main window itself there are several views, of which none is the active one.
int CHostView::OnMouseActivate(CWnd * top, UINT hit, UINT message)
{
    return IsInMainWindow() ? CWnd::OnMouseActivate(top, hit, message) : CView::OnMouseActivate(top, hit, message);
}

/// Whether it lies in the main window itself, and not in a frame or a pane that floats.
bool CHostView::IsInMainWindow() const
{
    CWnd * const main = AfxGetMainWnd();
    return main != nullptr && GetParentFrame() == main && main->IsChild(this);
}

/// Goes from one control to the next; in the main window that goes through all parts.
BOOL CHostView::PreTranslateMessage(MSG * message)
{
    if (CView::PreTranslateMessage(message))
    {
        return TRUE;
    }
    bool const goesOn = message->message == WM_KEYDOWN && message->wParam == VK_TAB && ::GetKeyState(VK_CONTROL) >= 0;
    return goesOn && !IsInMainWindow() && IsDialogMessage(message);
}
