// CAnimateCtrl.

#include <afxcmn.h>

#include "detail/ControlSupport.h"

IMPLEMENT_DYNAMIC(CAnimateCtrl, CWnd)

CAnimateCtrl::CAnimateCtrl() = default;

CAnimateCtrl::~CAnimateCtrl()
{
    DestroyWindow();
}

BOOL CAnimateCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_ANIMATE_CLASS, ANIMATE_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CAnimateCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_ANIMATE_CLASS, dwExStyle, ANIMATE_CLASS, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

BOOL CAnimateCtrl::Open(LPCTSTR lpszFileName)
{
    return framework::Send<BOOL>(m_hWnd, ACM_OPEN, 0, lpszFileName);
}

BOOL CAnimateCtrl::Open(UINT nID)
{
    LPCTSTR const name = MAKEINTRESOURCE(nID);
    return framework::Send<BOOL>(m_hWnd, ACM_OPEN, AfxFindResourceHandle(name, _T("AVI")), name);
}
