// The extended frames.

#include "afxcontrolbars.h"

IMPLEMENT_DYNCREATE(CMDIFrameWndEx, CMDIFrameWnd)
IMPLEMENT_DYNCREATE(CMDIChildWndEx, CMDIChildWnd)
IMPLEMENT_DYNCREATE(CFrameWndEx, CFrameWnd)

CMDIFrameWndEx::CMDIFrameWndEx() : m_resource(0) {}

CMDIFrameWndEx::~CMDIFrameWndEx() = default;

BOOL CMDIFrameWndEx::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd * pParentWnd, CCreateContext * pContext)
{
    m_resource = nIDResource;
    return CMDIFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext);
}

UINT CMDIFrameWndEx::GetDefaultResId() const
{
    return m_resource;
}

BOOL CMDIFrameWndEx::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    return CMDIFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CMDIFrameWndEx::RecalcLayout(BOOL bNotify)
{
    CMDIFrameWnd::RecalcLayout(bNotify);
}

CMDIChildWndEx::CMDIChildWndEx() = default;

CMDIChildWndEx::~CMDIChildWndEx() = default;

void CMDIChildWndEx::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    CMDIChildWnd::OnUpdateFrameTitle(bAddToTitle);
}

void CMDIChildWndEx::RecalcLayout(BOOL bNotify)
{
    CMDIChildWnd::RecalcLayout(bNotify);
}

CString CMDIChildWndEx::GetFrameText() const
{
    CString text;
    GetWindowText(text);
    return text;
}

HICON CMDIChildWndEx::GetFrameIcon() const
{
    if (HICON const icon = GetIcon(FALSE))
        return icon;
    return reinterpret_cast<HICON>(::GetClassLongPtr(m_hWnd, GCLP_HICONSM));
}

BOOL CMDIChildWndEx::CanShowOnMDITabs()
{
    return TRUE;
}

BOOL CMDIChildWndEx::CanShowOnWindowsList()
{
    return TRUE;
}

LPCTSTR CMDIChildWndEx::GetDocumentName(CObject **)
{
    CDocument const * const document = GetActiveDocument();
    return document != nullptr ? document->GetPathName().GetString() : nullptr;
}

BOOL CMDIChildWndEx::IsReadOnly()
{
    return FALSE;
}

void CMDIChildWndEx::ActivateTopLevelFrame()
{
    if (CFrameWnd * const top = GetTopLevelFrame())
        top->ActivateFrame();
}

CFrameWndEx::CFrameWndEx() : m_resource(0) {}

CFrameWndEx::~CFrameWndEx() = default;

BOOL CFrameWndEx::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd * pParentWnd, CCreateContext * pContext)
{
    m_resource = nIDResource;
    return CFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext);
}

UINT CFrameWndEx::GetDefaultResId() const
{
    return m_resource;
}

BOOL CFrameWndEx::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWndEx::PreTranslateMessage(MSG * pMsg)
{
    return CFrameWnd::PreTranslateMessage(pMsg);
}

void CFrameWndEx::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    CFrameWnd::OnUpdateFrameTitle(bAddToTitle);
}

void CFrameWndEx::RecalcLayout(BOOL bNotify)
{
    CFrameWnd::RecalcLayout(bNotify);
}
