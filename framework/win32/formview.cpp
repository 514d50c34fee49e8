// CFormView: a view with the controls of a dialog template.

#include "afxpriv.h"

#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

// clang-format off
BEGIN_MESSAGE_MAP(CFormView, CScrollView)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
    ON_MESSAGE(WM_INITDIALOG, &CFormView::HandleInitDialog)
END_MESSAGE_MAP()
// clang-format on

namespace
{
INT_PTR CALLBACK FormProcedure(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG; // the rest is the message map's
}
} // namespace

CFormView::CFormView(LPCTSTR lpszTemplateName)
    : m_templateId(0),
      m_context(nullptr),
      m_focus(nullptr),
      m_initialized(false)
{
    if (IS_INTRESOURCE(lpszTemplateName))
        m_templateId = static_cast<UINT>(reinterpret_cast<UINT_PTR>(lpszTemplateName));
    else
        m_templateName = lpszTemplateName;
}

CFormView::CFormView(UINT nIDTemplate) : CFormView(MAKEINTRESOURCE(nIDTemplate)) {}

CFormView::~CFormView() = default;

BOOL CFormView::Create(LPCTSTR, LPCTSTR, DWORD dwStyle, const RECT & rect, CWnd * pParentWnd, UINT nID,
                       CCreateContext * pContext)
{
    ASSERT(pParentWnd != nullptr);
    m_context = pContext; // a template has no way to pass it
    LPCTSTR const name = m_templateName.IsEmpty() ? MAKEINTRESOURCE(m_templateId) : m_templateName.GetString();
    HINSTANCE const instance = AfxFindResourceHandle(name, RT_DIALOG);
    CREATESTRUCT cs{};
    cs.style = static_cast<LONG>(dwStyle);
    if ((cs.style & (WS_CHILD | WS_BORDER)) == 0)
        cs.style |= WS_CHILD;
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    if (::FindResource(instance, name, RT_DIALOG) == nullptr)
    {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    HWND const window = ::CreateDialogParam(instance, name, pParentWnd->m_hWnd, FormProcedure, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    if (window == nullptr || FromHandlePermanent(window) != this)
        return FALSE;
    m_context = nullptr;
    // Style, identifier and place are those that were asked for; the template's caption isn't wanted.
    WindowGuard const guard(this);
    ModifyStyle(WS_BORDER | WS_CAPTION, static_cast<DWORD>(cs.style) & (WS_BORDER | WS_CAPTION));
    ModifyStyleEx(WS_EX_CLIENTEDGE, cs.dwExStyle & WS_EX_CLIENTEDGE);
    SetDlgCtrlID(static_cast<int>(nID));
    // The template's size is what can be scrolled over.
    CRect size;
    GetWindowRect(&size);
    CRect client;
    GetClientRect(&client);
    SetScrollSizes(MM_TEXT, CSize(client.Width(), client.Height()));
    if (!guard.Alive())
        return FALSE;
    // Created with a size of its own, it is given the one asked for.
    SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (guard.Alive() && (dwStyle & WS_VISIBLE) != 0)
        ShowWindow(SW_NORMAL);
    return guard.Alive();
}

int CFormView::OnCreate(LPCREATESTRUCT lpcs)
{
    CREATESTRUCT copy = *lpcs;
    copy.lpCreateParams = m_context;
    return CScrollView::OnCreate(&copy);
}

LRESULT CFormView::HandleInitDialog(WPARAM, LPARAM)
{
    Default();
    LPCTSTR const name = m_templateName.IsEmpty() ? MAKEINTRESOURCE(m_templateId) : m_templateName.GetString();
    m_initialized = ExecuteDlgInit(name) != FALSE;
    return m_initialized;
}

BOOL CFormView::IsInitDlgCompleted() const
{
    return m_initialized;
}

void CFormView::OnInitialUpdate()
{
    WindowGuard const guard(this);
    UpdateData(FALSE);
    if (guard.Alive())
        CScrollView::OnInitialUpdate();
}

void CFormView::OnDraw(CDC *) {}

BOOL CFormView::PreTranslateMessage(MSG * pMsg)
{
    if (CView::PreTranslateMessage(pMsg))
        return TRUE;
    // The frames' accelerators come before the keys of the controls.
    WindowGuard const guard(this);
    for (CFrameWnd * frame = GetParentFrame(); frame != nullptr; frame = frame->GetParentFrame())
    {
        if (frame->PreTranslateMessage(pMsg) || !guard.Alive())
            return TRUE;
    }
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST)
        return FALSE;
    return IsDialogMessage(pMsg);
}

bool CFormView::SaveFocus()
{
    HWND const focus = ::GetFocus();
    if (focus == nullptr || !::IsChild(m_hWnd, focus))
        return false;
    m_focus = focus;
    return true;
}

void CFormView::OnActivateView(BOOL bActivate, CView *, CView *)
{
    if (!bActivate)
        SaveFocus();
    else if (framework::IsTopParentActive(*this))
        SetFocus(); // which goes on to a control
}

void CFormView::OnActivateFrame(UINT nState, CFrameWnd *)
{
    if (nState == WA_INACTIVE)
        SaveFocus();
}

void CFormView::OnSetFocus(CWnd * pOldWnd)
{
    if (m_focus != nullptr && ::IsWindow(m_focus) && ::IsChild(m_hWnd, m_focus))
    {
        ::SetFocus(m_focus);
        return;
    }
    Default(); // the dialog's own way to its first control
    if (::GetFocus() != m_hWnd)
        return;
    HWND const first = ::GetNextDlgTabItem(m_hWnd, nullptr, FALSE);
    if (first != nullptr && (pOldWnd == nullptr || first != pOldWnd->m_hWnd))
        ::SetFocus(first);
}
