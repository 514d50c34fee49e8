// Countdown.h : the classes of the program
//

#if !defined(AFX_COUNTDOWN_H__INCLUDED_)
#define AFX_COUNTDOWN_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// CCountdownApp

class CCountdownApp : public CWinApp
{
public:
    CCountdownApp();

// Overrides
    //{{AFX_VIRTUAL(CCountdownApp)
    public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

// Implementation

    //{{AFX_MSG(CCountdownApp)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CCountdownDlg dialog

class CCountdownDlg : public CDialog
{
// Construction
public:
    CCountdownDlg(CWnd* pParent = NULL);

// Dialog Data
    //{{AFX_DATA(CCountdownDlg)
    enum { IDD = IDD_COUNTDOWN_DIALOG };
    CProgressCtrl    m_wndProgress;
    CSliderCtrl    m_wndSeconds;
    CSpinButtonCtrl    m_wndSpin;
    CButton    m_wndStart;
    UINT    m_nMinutes;
    BOOL    m_bSound;
    CString    m_strRest;
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CCountdownDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnCancel();
    //}}AFX_VIRTUAL

// Implementation
protected:
    HICON m_hIcon;
    UINT_PTR m_nTimer;
    int m_nRest;    // seconds
    int m_nWhole;

    void ShowRest();
    void Stop();

    //{{AFX_MSG(CCountdownDlg)
    virtual BOOL OnInitDialog();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnPaint();
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg void OnStart();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnChangeMinutes();
    afx_msg void OnDestroy();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_COUNTDOWN_H__INCLUDED_)
