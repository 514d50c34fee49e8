#pragma once
// Property sheets and their pages. Included by afxdlgs.h.

#include <afxwin.h>
#include <prsht.h>

#include <memory>
#include <vector>

class CPropertyPage;
class CPropertySheet;
class CTabCtrl;

// Controls of the native sheet
#ifndef AFX_IDC_TAB_CONTROL
#define AFX_IDC_TAB_CONTROL 0x3020
#endif
#ifndef ID_APPLY_NOW
#define ID_APPLY_NOW 0x3021
#define ID_WIZBACK 0x3023
#define ID_WIZNEXT 0x3024
#define ID_WIZFINISH 0x3025
#endif

namespace framework
{
class SheetWindow;
struct PropertySheetAccess;

/// How a native page finds its object, which may end before it.
struct PageLink
{
    CPropertyPage * page = nullptr;
};

/// What a page knows beyond its header.
struct PageState
{
    CString caption;
    CString headerTitle;
    CString headerSubTitle;
    CPropertySheet * sheet = nullptr; // that it has been added to
    std::shared_ptr<PageLink> link;
    bool shown = false; // it has been the active page in its present window
};

/// A page of a sheet. native is null while the sheet has no window.
struct SheetPage
{
    CPropertyPage * page;
    HPROPSHEETPAGE native;
};

/// What a sheet knows beyond its header.
struct SheetState
{
    CString caption;
    CWnd * parent = nullptr;
    std::vector<SheetPage> pages;
    std::shared_ptr<SheetWindow> window; // of the present opening
    int button = IDCANCEL;               // pressed last
    DWORD style = 0;
    DWORD exStyle = 0;
    bool modeless = false;
    bool ended = false; // EndDialog, perhaps before the modal loop
    bool stacked = true;
};
} // namespace framework

/// One page of a property sheet. Whoever makes it owns it; it must last as long as the sheet shows it.
class FRAMEWORK_API CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    CPropertyPage();
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    ~CPropertyPage() override;

    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    void Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0);

    PROPSHEETPAGE m_psp;

    const PROPSHEETPAGE & GetPSP() const { return m_psp; }
    PROPSHEETPAGE & GetPSP() { return m_psp; }

    void CancelToClose();
    void SetModified(BOOL bChanged = TRUE);
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    virtual BOOL OnApply();
    virtual void OnReset();
    virtual BOOL OnQueryCancel();
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    void OnOK() override;
    void OnCancel() override;
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    virtual BOOL OnWizardFinish();

    void EndDialog(int nResult);
    BOOL PreTranslateMessage(MSG * pMsg) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;

private:
    friend struct framework::PropertySheetAccess;

    void Init(LPCTSTR templateName, UINT caption, UINT headerTitle, UINT headerSubTitle);

    framework::PageState m_pageState;
};

/// A window with pages that a tab control or, in a wizard, the buttons choose. It does not own the pages.
class FRAMEWORK_API CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet();
    explicit CPropertySheet(UINT nIDCaption, CWnd * pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd * pParentWnd = nullptr, UINT iSelectPage = 0);
    CPropertySheet(UINT nIDCaption, CWnd * pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);
    CPropertySheet(LPCTSTR pszCaption, CWnd * pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);
    ~CPropertySheet() override;

    void Construct(UINT nIDCaption, CWnd * pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd * pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(UINT nIDCaption, CWnd * pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);
    void Construct(LPCTSTR pszCaption, CWnd * pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);

    PROPSHEETHEADER m_psh;

    using CWnd::Create;
    /// The style -1 stands for WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME | DS_CONTEXTHELP | WS_VISIBLE.
    virtual BOOL Create(CWnd * pParentWnd = nullptr, DWORD dwStyle = static_cast<DWORD>(-1), DWORD dwExStyle = 0);
    virtual INT_PTR DoModal();
    void EndDialog(int nEndID);

    void AddPage(CPropertyPage * pPage);
    void RemovePage(CPropertyPage * pPage);
    void RemovePage(int nPage);
    int GetPageCount() const;
    CPropertyPage * GetPage(int nPage) const;
    int GetPageIndex(CPropertyPage * pPage);
    int GetActiveIndex() const;
    CPropertyPage * GetActivePage() const;
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage * pPage);

    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    void SetWizardMode();
    void SetFinishText(LPCTSTR lpszText);
    void SetWizardButtons(DWORD dwFlags);
    void EnableStackedTabs(BOOL bStacked);
    CTabCtrl * GetTabControl() const;
    void PressButton(int nButton);
    void MapDialogRect(LPRECT lpRect) const;

    virtual BOOL OnInitDialog();

    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG * pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;
    BOOL ContinueModal() override;
    void PreSubclassWindow() override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    friend struct framework::PropertySheetAccess;

    void Init(LPCTSTR caption, CWnd * parent, UINT selectPage);
    void SetBitmaps(HBITMAP watermark, HPALETTE palette, HBITMAP header);
    bool IsWizard() const { return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97)) != 0; }
    bool CreateSheet(HWND parent);
    void HideButtons();
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    LRESULT HandlePressButton(WPARAM wParam, LPARAM lParam);
    void OnClose();
    void OnSysCommand(UINT nID, LPARAM lParam);

    framework::SheetState m_sheetState;

    DECLARE_MESSAGE_MAP()
};
