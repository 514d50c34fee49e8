#pragma once
// The system's own dialogs.

#define __AFXDLGS_H__

#include <afxwin.h>
#include <commdlg.h>

#include "detail/propertysheet.h"

class FRAMEWORK_API CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd * pParentWnd);

protected:
    void OnOK() override;
    void OnCancel() override;
};

class FRAMEWORK_API CColorDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CColorDialog)

public:
    CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd * pParentWnd = nullptr);

    CHOOSECOLOR m_cc;

    INT_PTR DoModal() override;
    void SetCurrentColor(COLORREF clr);
    COLORREF GetColor() const;
    static COLORREF * PASCAL GetSavedCustomColors();

protected:
    virtual BOOL OnColorOK();

private:
    static UINT_PTR CALLBACK Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OwnerHook(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR dialog);
    bool AskColourOk(LPARAM lParam);
};

/// The dialogs for files to open and to save. The members that need the item dialog of newer systems are not offered.
class FRAMEWORK_API CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd * pParentWnd = nullptr, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    ~CFileDialog() override;

    INT_PTR DoModal() override;

    const OPENFILENAME & GetOFN() const;
    OPENFILENAME & GetOFN();
    BOOL IsPickFoldersMode() const;

    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    CString GetFolderPath() const;
    BOOL GetReadOnlyPref() const;
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION & pos) const;

    void SetTemplate(UINT nWin3ID, UINT nWin4ID);
    void SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID);
    void SetControlText(int nID, LPCSTR lpsz);
    void SetControlText(int nID, const wchar_t * lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCSTR lpsz);

protected:
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    virtual BOOL OnFileNameOK();
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;

private:
    friend class CFolderPickerDialog;

    static UINT_PTR CALLBACK Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR PickFolder(HWND owner);
    CString AskDialog(UINT message) const;
    HWND DialogWindow() const;

    OPENFILENAME m_openFile;
    CString m_filter; // with null characters between its parts
    CString m_defaultExtension;
    CString m_templateName;
    LPTSTR m_buffer; // receives the names
    TCHAR m_fileTitle[MAX_PATH];
    BOOL m_open;
    BOOL m_pickFolders = FALSE;
};

/// Asks for a folder; GetFolderPath and GetPathName give it.
class FRAMEWORK_API CFolderPickerDialog : public CFileDialog
{
    DECLARE_DYNAMIC(CFolderPickerDialog)

public:
    explicit CFolderPickerDialog(LPCTSTR lpszFolder = nullptr, DWORD dwFlags = 0, CWnd * pParentWnd = nullptr,
                                 DWORD dwSize = 0);
    ~CFolderPickerDialog() override;
};

#include "detail/printdialogs.h"
