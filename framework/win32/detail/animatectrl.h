#pragma once
// The control that plays silent films.

#include "ControlHandles.h"

class FRAMEWORK_API CAnimateCtrl : public CWnd
{
    DECLARE_DYNAMIC(CAnimateCtrl)

public:
    CAnimateCtrl();
    ~CAnimateCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    /// A file, or a resource of the type AVI of the module that has it. Null closes.
    BOOL Open(LPCTSTR lpszFileName);
    BOOL Open(UINT nID);
    /// nTo -1: to the last picture; nRep -1: for ever.
    BOOL Play(UINT nFrom, UINT nTo, UINT nRep)
    {
        return framework::Send<BOOL>(m_hWnd, ACM_PLAY, nRep, static_cast<LPARAM>(MAKELONG(nFrom, nTo)));
    }
    BOOL Stop() { return framework::Send<BOOL>(m_hWnd, ACM_STOP); }
    BOOL Seek(UINT nTo) { return Play(nTo, nTo, 1); }
    BOOL Close() { return framework::Send<BOOL>(m_hWnd, ACM_OPEN); }
    BOOL IsPlaying() const { return framework::Send<BOOL>(m_hWnd, ACM_ISPLAYING); }
};
