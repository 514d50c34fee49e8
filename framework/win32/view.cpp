// CView and CCtrlView: windows in a frame that show a document.

#include "afxext.h"
#include "afxpriv.h"

#include "detail/FrameSupport.h"
#include "detail/PrintSupport.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CView, CWnd)
IMPLEMENT_DYNAMIC(CCtrlView, CView)

// clang-format off
BEGIN_MESSAGE_MAP(CView, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(WM_INITIALUPDATE, &CView::HandleInitialUpdate)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_SPLIT, &CView::UpdateSplit)
    ON_COMMAND_EX(ID_WINDOW_SPLIT, &CView::HandleSplit)
    ON_UPDATE_COMMAND_UI(ID_NEXT_PANE, &CView::UpdateNextPane)
    ON_UPDATE_COMMAND_UI(ID_PREV_PANE, &CView::UpdateNextPane)
    ON_COMMAND_EX(ID_NEXT_PANE, &CView::HandleNextPane)
    ON_COMMAND_EX(ID_PREV_PANE, &CView::HandleNextPane)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CCtrlView, CView)
    ON_WM_PAINT()
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr UINT panes_in_a_row = 16; // how identifiers of panes count
} // namespace

bool framework::IsTopParentActive(CWnd const & window)
{
    CWnd * const top = window.GetTopLevelParent();
    return top != nullptr && ::GetForegroundWindow() == ::GetLastActivePopup(top->m_hWnd);
}

CView::CView() : m_pDocument(nullptr) {}

CView::~CView()
{
    if (m_pDocument != nullptr)
        m_pDocument->RemoveView(this);
}

CDocument * CView::GetDocument() const
{
    return m_pDocument;
}

BOOL CView::PreCreateWindow(CREATESTRUCT & cs)
{
    ASSERT((cs.style & WS_CHILD) != 0);
    if (cs.lpszClass == nullptr)
        cs.lpszClass = framework::FrameClassName();
    if ((cs.style & WS_BORDER) != 0)
    {
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.style &= ~WS_BORDER;
    }
    return cs.lpszClass != nullptr;
}

int CView::OnCreate(LPCREATESTRUCT lpcs)
{
    if (CWnd::OnCreate(lpcs) == -1)
        return -1;
    auto const * const context = static_cast<CCreateContext const *>(lpcs->lpCreateParams);
    if (context == nullptr || context->m_pCurrentDoc == nullptr)
        return 0;
    if (!framework::IsDocument(context->m_pCurrentDoc))
        return -1; // closed while the frame was created
    context->m_pCurrentDoc->AddView(this);
    return 0;
}

void CView::OnDestroy()
{
    CFrameWnd * const frame = GetParentFrame();
    if (frame != nullptr && frame->GetActiveView() == this)
    {
        WindowGuard const guard(this);
        frame->SetActiveView(nullptr);
        if (!guard.Alive())
            return;
    }
    CWnd::OnDestroy();
}

void CView::PostNcDestroy()
{
    delete this;
}

LRESULT CView::HandleInitialUpdate(WPARAM, LPARAM)
{
    OnInitialUpdate();
    return 0;
}

void CView::OnInitialUpdate()
{
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnUpdate(CView *, LPARAM, CObject *)
{
    Invalidate(TRUE);
}

void CView::OnPaint()
{
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

void CView::OnPrepareDC(CDC *, CPrintInfo * pInfo)
{
    // A view that doesn't know its last page has one.
    if (pInfo != nullptr)
        pInfo->m_bContinuePrinting = pInfo->GetMaxPage() != framework::any_page || pInfo->m_nCurPage == 1;
}

BOOL CView::IsSelected(const CObject *) const
{
    return FALSE;
}

BOOL CView::OnScroll(UINT, UINT, BOOL)
{
    return FALSE;
}

BOOL CView::OnScrollBy(CSize, BOOL)
{
    return FALSE;
}

void CView::OnActivateView(BOOL bActivate, CView *, CView *)
{
    if (bActivate && framework::IsTopParentActive(*this))
        SetFocus();
}

void CView::OnActivateFrame(UINT, CFrameWnd *) {}

int CView::OnMouseActivate(CWnd * pDesktopWnd, UINT nHitTest, UINT message)
{
    WindowGuard const guard(this);
    int const result = CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT || !guard.Alive())
        return result;
    CFrameWnd * const frame = GetParentFrame();
    if (frame == nullptr)
        return result;
    HWND const focus = ::GetFocus();
    if (frame->GetActiveView() == this && m_hWnd != focus && !::IsChild(m_hWnd, focus))
        OnActivateView(TRUE, this, this);
    else
        frame->SetActiveView(this);
    return result;
}

BOOL CView::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    WindowGuard const guard(this);
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return guard.Alive() && m_pDocument != nullptr && m_pDocument->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CView::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    if (nAdjustType == adjustBorder)
    {
        CWnd::CalcWindowRect(lpClientRect, nAdjustType);
        return;
    }
    // Scroll bars belong to what is outside.
    ::AdjustWindowRectEx(lpClientRect, 0, FALSE, GetExStyle());
    DWORD const style = GetStyle();
    if ((style & WS_VSCROLL) != 0)
        lpClientRect->right += ::GetSystemMetrics(SM_CXVSCROLL);
    if ((style & WS_HSCROLL) != 0)
        lpClientRect->bottom += ::GetSystemMetrics(SM_CYHSCROLL);
}

CScrollBar * CView::GetScrollBarCtrl(int nBar) const
{
    DWORD const own = nBar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL;
    if ((GetStyle() & own) != 0)
        return nullptr; // the window's own bar, which is no control
    CWnd * const parent = GetParent();
    if (parent == nullptr || !parent->IsKindOf(RUNTIME_CLASS(CSplitterWnd)))
        return nullptr;
    auto const id = static_cast<UINT>(static_cast<WORD>(GetDlgCtrlID()));
    if (id < AFX_IDW_PANE_FIRST || id > AFX_IDW_PANE_LAST)
        return nullptr;
    UINT const pane = id - AFX_IDW_PANE_FIRST;
    UINT const bar =
        nBar == SB_HORZ ? AFX_IDW_HSCROLL_FIRST + pane % panes_in_a_row : AFX_IDW_VSCROLL_FIRST + pane / panes_in_a_row;
    HWND const control = ::GetDlgItem(parent->m_hWnd, static_cast<int>(bar));
    return control != nullptr ? static_cast<CScrollBar *>(CWnd::FromHandle(control)) : nullptr;
}

namespace
{
/// The splitter around a view, also one that lies deeper; null if there is none.
CSplitterWnd * SplitterAround(CWnd const & view)
{
    for (CWnd * above = view.GetParent(); above != nullptr; above = above->GetParent())
    {
        if (above->IsKindOf(RUNTIME_CLASS(CSplitterWnd)))
            return static_cast<CSplitterWnd *>(above);
        if (above->IsKindOf(RUNTIME_CLASS(CFrameWnd)))
            break;
    }
    return nullptr;
}
} // namespace

void CView::UpdateSplit(CCmdUI * pCmdUI)
{
    CSplitterWnd * const splitter = SplitterAround(*this);
    pCmdUI->Enable(splitter != nullptr && !splitter->IsTracking());
}

BOOL CView::HandleSplit(UINT)
{
    CSplitterWnd * const splitter = SplitterAround(*this);
    if (splitter == nullptr)
        return FALSE;
    splitter->DoKeyboardSplit();
    return TRUE;
}

void CView::UpdateNextPane(CCmdUI * pCmdUI)
{
    CSplitterWnd * const splitter = SplitterAround(*this);
    pCmdUI->Enable(splitter != nullptr && splitter->CanActivateNext(pCmdUI->m_nID == ID_PREV_PANE));
}

BOOL CView::HandleNextPane(UINT nID)
{
    CSplitterWnd * const splitter = SplitterAround(*this);
    if (splitter == nullptr)
        return FALSE;
    splitter->ActivateNext(nID == ID_PREV_PANE);
    return TRUE;
}

CCtrlView::CCtrlView(LPCTSTR lpszClass, DWORD dwStyle) : m_strClass(lpszClass), m_dwDefaultStyle(dwStyle) {}

CCtrlView::~CCtrlView() = default;

BOOL CCtrlView::PreCreateWindow(CREATESTRUCT & cs)
{
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&controls);
    ASSERT(cs.lpszClass == nullptr);
    cs.lpszClass = m_strClass;
    // The style that a view gets by default is taken as "the control's own"; a border stays as asked for.
    if ((static_cast<DWORD>(cs.style) | WS_BORDER) == AFX_WS_DEFAULT_VIEW)
    {
        cs.style =
            static_cast<LONG>(m_dwDefaultStyle & (static_cast<DWORD>(cs.style) | ~static_cast<DWORD>(WS_BORDER)));
    }
    return CView::PreCreateWindow(cs);
}

void CCtrlView::OnPaint()
{
    Default();
}

void CCtrlView::OnDraw(CDC *)
{
    ASSERT(FALSE); // the control paints
}
