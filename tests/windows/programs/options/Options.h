// Options.h : the classes of the program
//

#if !defined(AFX_OPTIONS_H__INCLUDED_)
#define AFX_OPTIONS_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// COptionsApp

class COptionsApp : public CWinApp
{
public:
    COptionsApp();

    //{{AFX_VIRTUAL(COptionsApp)
public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(COptionsApp)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

extern COptionsApp theApp;

/////////////////////////////////////////////////////////////////////////////
// CGeneralPage

class CGeneralPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CGeneralPage)
public:
    CGeneralPage();
    ~CGeneralPage();

    //{{AFX_DATA(CGeneralPage)
    enum { IDD = IDD_GENERAL };
    CString m_strName;
    CString m_strFolder;
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CGeneralPage)
public:
    virtual BOOL OnKillActive();
    virtual BOOL OnApply();
protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    //}}AFX_VIRTUAL

protected:
    //{{AFX_MSG(CGeneralPage)
    afx_msg void OnChange();
    afx_msg void OnWizard();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CChannelsPage

class CChannelsPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CChannelsPage)
public:
    CChannelsPage();
    ~CChannelsPage();

    //{{AFX_DATA(CChannelsPage)
    enum { IDD = IDD_CHANNELS };
    CListBox m_wndList;
    CSpinButtonCtrl m_wndSpin;
    int m_nCount;
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CChannelsPage)
public:
    virtual BOOL OnSetActive();
protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    //}}AFX_VIRTUAL

protected:
    //{{AFX_MSG(CChannelsPage)
    virtual BOOL OnInitDialog();
    afx_msg void OnChangeCount();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CColoursPage

class CColoursPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CColoursPage)
public:
    CColoursPage();
    ~CColoursPage();

    //{{AFX_DATA(CColoursPage)
    enum { IDD = IDD_COLOURS };
    int m_nScheme;
    int m_nLevel;
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CColoursPage)
protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    //}}AFX_VIRTUAL

protected:
    //{{AFX_MSG(CColoursPage)
    afx_msg void OnScheme();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// COptionsSheet

class COptionsSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(COptionsSheet)
public:
    COptionsSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);

    CGeneralPage m_pageGeneral;
    CChannelsPage m_pageChannels;
    CColoursPage m_pageColours;

    //{{AFX_VIRTUAL(COptionsSheet)
public:
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

    virtual ~COptionsSheet();

protected:
    //{{AFX_MSG(COptionsSheet)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CWelcomePage and CSummaryPage of the wizard

class CWelcomePage : public CPropertyPage
{
    DECLARE_DYNCREATE(CWelcomePage)
public:
    CWelcomePage();

    //{{AFX_DATA(CWelcomePage)
    enum { IDD = IDD_WELCOME };
    CString m_strName;
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CWelcomePage)
public:
    virtual BOOL OnSetActive();
    virtual LRESULT OnWizardNext();
protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    //}}AFX_VIRTUAL
};

class CSummaryPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CSummaryPage)
public:
    CSummaryPage();

    const CWelcomePage* m_pWelcome;

    //{{AFX_DATA(CSummaryPage)
    enum { IDD = IDD_SUMMARY };
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CSummaryPage)
public:
    virtual BOOL OnSetActive();
    virtual BOOL OnWizardFinish();
    //}}AFX_VIRTUAL
};

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_OPTIONS_H__INCLUDED_)
