#pragma once
// Small frames beside another window.

#include <afxwin.h>

/// A frame that belongs to another window and has a caption of the small kind, or none.
class FRAMEWORK_API CMiniFrameWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMiniFrameWnd)

public:
    CMiniFrameWnd();

    virtual BOOL Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT & rect,
                        CWnd * pParentWnd = nullptr, UINT nID = 0);
    using CFrameWnd::CreateEx;
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT & rect,
                          CWnd * pParentWnd = nullptr, UINT nID = 0);
};
