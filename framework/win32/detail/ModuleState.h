#pragma once
// Modules: which instance and resources are current, and the extension modules whose resources and classes take part.

#include "cmdtarget.h"

class CDynLinkLibrary;
class COleObjectFactory;
class CWinApp;
struct CRuntimeClass;

/// What an extension module knows of itself. Filled by AfxInitExtensionModule.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource; // the same as hModule, unless the resources lie in a module of their own
    CRuntimeClass * pFirstSharedClass;
    COleObjectFactory * pFirstSharedFactory;
};

/// What the framework keeps for an application, or for a library that is no extension module.
class FRAMEWORK_API AFX_MODULE_STATE
{
public:
    AFX_MODULE_STATE();
    explicit AFX_MODULE_STATE(HINSTANCE hInstance);
    ~AFX_MODULE_STATE() = default;
    AFX_MODULE_STATE(const AFX_MODULE_STATE &) = delete;
    AFX_MODULE_STATE & operator=(const AFX_MODULE_STATE &) = delete;

    CWinApp * m_pCurrentWinApp;
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
    LPCTSTR m_lpszCurrentAppName;
    CDynLinkLibrary * m_pFirstLibrary; // in the order of search: the youngest first
};

/// Hooks an extension module into the application's search for resources and run-time classes, until it is deleted.
class FRAMEWORK_API CDynLinkLibrary : public CCmdTarget
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE & state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem; // searched after all others
    CDynLinkLibrary * m_pNextDLL;

private:
    void Hook();

    AFX_MODULE_STATE * m_state;
};

FRAMEWORK_API AFX_MODULE_STATE * AFXAPI AfxGetAppModuleState();
FRAMEWORK_API AFX_MODULE_STATE * AFXAPI AfxGetModuleState();
/// Makes a state the thread's current one, null the application's; gives the previous one.
FRAMEWORK_API AFX_MODULE_STATE * AFXAPI AfxSetModuleState(AFX_MODULE_STATE * pNewState);
/// The state of the module that calls. It lies in the library that each module links for itself.
AFX_MODULE_STATE * AFXAPI AfxGetStaticModuleState();

struct FRAMEWORK_API AFX_MAINTAIN_STATE2
{
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE * pModuleState);
    ~AFX_MAINTAIN_STATE2();
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2 &) = delete;
    AFX_MAINTAIN_STATE2 & operator=(const AFX_MAINTAIN_STATE2 &) = delete;

private:
    AFX_MODULE_STATE * m_previous;
};

#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE2 _ctlState(p);

FRAMEWORK_API HINSTANCE AFXAPI AfxGetInstanceHandle();
FRAMEWORK_API HINSTANCE AFXAPI AfxGetResourceHandle();
FRAMEWORK_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
/// The module to load a resource from: the current resource handle if it has it, then the extension modules in order,
/// then the framework itself; if none has it, the current resource handle.
FRAMEWORK_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
FRAMEWORK_API int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);

FRAMEWORK_API HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR lpszModuleName);
FRAMEWORK_API HINSTANCE AFXAPI AfxLoadLibraryEx(LPCTSTR lpFileName, HANDLE hFile, DWORD dwFlags);
FRAMEWORK_API BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib);

FRAMEWORK_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE & state, HMODULE hModule);
FRAMEWORK_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE & state, BOOL bAll = FALSE);
