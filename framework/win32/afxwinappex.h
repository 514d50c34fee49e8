#pragma once
// An application that keeps its workspace: frame, panes and settings below one key of the registry.

#include <afxwin.h>

class CFrameImpl;
class CFrameWndEx;
class CMDIFrameWndEx;

class FRAMEWORK_API CWinAppEx : public CWinApp
{
    DECLARE_DYNAMIC(CWinAppEx)

public:
    explicit CWinAppEx(BOOL bResourceSmartUpdate = FALSE);
    ~CWinAppEx() override;

    /// Brings the frame's workspace back; called by LoadFrame. FALSE and the frame as it is, if there is none, or none
    /// that can be read. A section is that of the call only.
    BOOL LoadState(CMDIFrameWndEx * pFrame, LPCTSTR lpszSectionName = nullptr);
    BOOL LoadState(CFrameWndEx * pFrame, LPCTSTR lpszSectionName = nullptr);
    virtual BOOL LoadState(LPCTSTR lpszSectionName = nullptr, CFrameImpl * pFrameImpl = nullptr);
    /// Keeps it; called when the main frame closes. A program that ends meanwhile has kept the former or the new one.
    BOOL SaveState(CMDIFrameWndEx * pFrame, LPCTSTR lpszSectionName = nullptr);
    BOOL SaveState(CFrameWndEx * pFrame, LPCTSTR lpszSectionName = nullptr);
    virtual BOOL SaveState(LPCTSTR lpszSectionName = nullptr, CFrameImpl * pFrameImpl = nullptr);
    /// Forgets it.
    virtual BOOL CleanState(LPCTSTR lpszSectionName = nullptr);
    BOOL IsStateExists(LPCTSTR lpszSectionName);
    virtual void OnClosingMainFrame(CFrameImpl * pFrameImpl);

    // Called before and after the framework's part
    virtual void PreLoadState();
    virtual void LoadCustomState();
    virtual void PreSaveState();
    virtual void SaveCustomState();

    /// The key below the application's that the workspace lies in, "Workspace" at first; gives the former one.
    LPCTSTR SetRegistryBase(LPCTSTR lpszSectionName = nullptr);
    LPCTSTR GetRegistryBase();
    CString GetRegSectionPath(LPCTSTR szSectionAdd = L"");

    // Values there
    int GetInt(LPCTSTR lpszEntry, int nDefault = 0);
    CString GetString(LPCTSTR lpszEntry, LPCTSTR lpzDefault = L"");
    BOOL GetBinary(LPCTSTR lpszEntry, LPBYTE * ppData, UINT * pBytes);
    BOOL WriteInt(LPCTSTR lpszEntry, int nValue);
    BOOL WriteString(LPCTSTR lpszEntry, LPCTSTR lpszValue);
    BOOL WriteBinary(LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    // and in a key below
    int GetSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nDefault = 0);
    CString GetSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = L"");
    BOOL GetSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE * ppData, UINT * pBytes);
    BOOL WriteSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nValue);
    BOOL WriteSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    BOOL WriteSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);

    int GetDataVersion() const;
    int GetDataVersionMajor() const;
    int GetDataVersionMinor() const;

    /// Whether the main frame's place belongs to the workspace; it does at first.
    void EnableLoadWindowPlacement(BOOL bEnable = TRUE);
    virtual BOOL LoadWindowPlacement(CRect & rectNormalPosition, int & nFlags, int & nShowCmd);
    virtual BOOL StoreWindowPlacement(const CRect & rectNormalPosition, int nFlags, int nShowCmd);
    virtual BOOL ReloadWindowPlacement(CFrameWnd * pFrame);

    int ExitInstance() override;

private:
    CString m_registryBase;
    CString m_sectionForNow;
    bool m_loadPlacement;
};
