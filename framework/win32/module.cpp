// Modules: the current instance and resources, and the chain of extension modules.

#include <mutex>

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

namespace
{
/// Guards the chains of all module states.
std::recursive_mutex & ChainMutex()
{
    static std::recursive_mutex mutex;
    return mutex;
}

HMODULE FrameworkModule()
{
    static HMODULE const module = [] {
        HMODULE found = nullptr;
        ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCTSTR>(&AfxGetModuleState), &found);
        return found;
    }();
    return module;
}

/// The first module, in the order of search, for which the test holds. Null if there is none.
template <class Test> HMODULE FindModule(Test test)
{
    HMODULE const current = AfxGetResourceHandle();
    if (test(current))
        return current;
    std::lock_guard const lock(ChainMutex());
    for (bool const system : {false, true})
    {
        for (CDynLinkLibrary * library = AfxGetModuleState()->m_pFirstLibrary; library != nullptr;
             library = library->m_pNextDLL)
        {
            if ((library->m_bSystem != FALSE) == system && library->m_hResource != nullptr &&
                test(library->m_hResource))
                return library->m_hResource;
        }
    }
    if (test(FrameworkModule()))
        return FrameworkModule();
    return nullptr;
}

/// String tables hold blocks of 16 strings, each with its length in front.
bool HasString(HMODULE module, UINT id)
{
    HRSRC const resource = ::FindResource(module, MAKEINTRESOURCE((id >> 4) + 1), RT_STRING);
    if (resource == nullptr)
        return false;
    auto at = static_cast<WORD const *>(::LockResource(::LoadResource(module, resource)));
    if (at == nullptr)
        return false;
    auto const end = at + ::SizeofResource(module, resource) / sizeof(WORD);
    for (UINT skipped = 0; skipped < (id & 15) && at < end; ++skipped)
        at += *at + 1;
    return at < end && *at != 0;
}
} // namespace

AFX_MODULE_STATE::AFX_MODULE_STATE() : AFX_MODULE_STATE(nullptr) {}

AFX_MODULE_STATE::AFX_MODULE_STATE(HINSTANCE hInstance)
    : m_pCurrentWinApp(nullptr),
      m_hCurrentInstanceHandle(hInstance),
      m_hCurrentResourceHandle(hInstance),
      m_lpszCurrentAppName(nullptr),
      m_pFirstLibrary(nullptr)
{
}

AFX_MODULE_STATE * AFXAPI AfxGetAppModuleState()
{
    // Never destroyed: extension modules that are unloaded at the end still unhook themselves.
    static auto * const state = new AFX_MODULE_STATE(::GetModuleHandle(nullptr));
    return state;
}

AFX_MODULE_STATE * AFXAPI AfxGetModuleState()
{
    AFX_MODULE_STATE * const state = framework::CurrentThreadState().moduleState;
    return state != nullptr ? state : AfxGetAppModuleState();
}

AFX_MODULE_STATE * AFXAPI AfxSetModuleState(AFX_MODULE_STATE * pNewState)
{
    return std::exchange(framework::CurrentThreadState().moduleState, pNewState);
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE * pModuleState) : m_previous(AfxSetModuleState(pModuleState))
{
}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2()
{
    AfxSetModuleState(m_previous);
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE & state, BOOL bSystem)
    : m_hModule(state.hModule),
      m_hResource(state.hResource),
      m_bSystem(bSystem),
      m_pNextDLL(nullptr),
      m_state(AfxGetModuleState())
{
    Hook();
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule),
      m_hResource(hResource),
      m_bSystem(FALSE),
      m_pNextDLL(nullptr),
      m_state(AfxGetModuleState())
{
    Hook();
}

void CDynLinkLibrary::Hook()
{
    std::lock_guard const lock(ChainMutex());
    m_pNextDLL = std::exchange(m_state->m_pFirstLibrary, this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    std::lock_guard const lock(ChainMutex());
    for (CDynLinkLibrary ** link = &m_state->m_pFirstLibrary; *link != nullptr; link = &(*link)->m_pNextDLL)
    {
        if (*link != this)
            continue;
        *link = m_pNextDLL;
        break;
    }
}

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType)
{
    HMODULE const found = FindModule(
        [lpszName, lpszType](HMODULE module) { return ::FindResource(module, lpszName, lpszType) != nullptr; });
    return found != nullptr ? found : AfxGetResourceHandle();
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID)
{
    return FindModule([nID](HMODULE module) { return HasString(module, nID); });
}

int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf)
{
    if (nMaxBuf == 0)
        return 0;
    lpszBuf[0] = 0;
    HINSTANCE const module = AfxFindStringResourceHandle(nIDS);
    return module != nullptr ? ::LoadString(module, nIDS, lpszBuf, static_cast<int>(nMaxBuf)) : 0;
}

HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR lpszModuleName)
{
    return ::LoadLibrary(lpszModuleName);
}

HINSTANCE AFXAPI AfxLoadLibraryEx(LPCTSTR lpFileName, HANDLE hFile, DWORD dwFlags)
{
    return ::LoadLibraryEx(lpFileName, hFile, dwFlags);
}

BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib)
{
    return ::FreeLibrary(hInstLib);
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE & state, HMODULE hModule)
{
    if (state.bInitialized)
        return TRUE;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    state.pFirstSharedClass = nullptr;
    state.pFirstSharedFactory = nullptr;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE & state, BOOL bAll)
{
    if (!state.bInitialized)
        return;
    std::lock_guard const lock(ChainMutex());
    AFX_MODULE_STATE * const states[] = {AfxGetModuleState(), bAll ? AfxGetAppModuleState() : nullptr};
    for (AFX_MODULE_STATE * const moduleState : states)
    {
        CDynLinkLibrary * library = moduleState != nullptr ? moduleState->m_pFirstLibrary : nullptr;
        while (library != nullptr)
        {
            CDynLinkLibrary * const next = library->m_pNextDLL;
            if (library->m_hModule == state.hModule)
                delete library;
            library = next;
        }
    }
    state.bInitialized = FALSE;
}
