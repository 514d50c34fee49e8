// CWinAppEx: the workspace.

#include "afxcontrolbars.h"

#include <algorithm>

#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CWinAppEx, CWinApp)

namespace
{
constexpr wchar_t default_base[] = L"Workspace";
constexpr wchar_t placement_entry[] = L"WindowPlacement";
constexpr int data_version = 0x00010001; // major and minor half
constexpr wchar_t version_entry[] = L"Version";

struct Placement
{
    RECT rect;
    INT32 flags;
    INT32 show;
    UINT32 sum; // of what is before it

    UINT32 Sum() const
    {
        UINT32 total = 2166136261u;
        for (LONG const value : {rect.left, rect.top, rect.right, rect.bottom, LONG{flags}, LONG{show}})
            total = (total ^ static_cast<UINT32>(value)) * 16777619u;
        return total;
    }
};

/// The names of a section only for one call.
class SectionForNow
{
public:
    SectionForNow(CString & target, LPCTSTR section) : m_target(target), m_former(target)
    {
        if (section != nullptr)
            m_target = section;
    }
    SectionForNow(SectionForNow const &) = delete;
    SectionForNow & operator=(SectionForNow const &) = delete;
    ~SectionForNow() { m_target = m_former; }

private:
    CString & m_target;
    CString m_former;
};
} // namespace

CWinAppEx::CWinAppEx(BOOL) : m_registryBase(default_base), m_loadPlacement(true) {}

CWinAppEx::~CWinAppEx() = default;

int CWinAppEx::ExitInstance()
{
    return CWinApp::ExitInstance();
}

LPCTSTR CWinAppEx::SetRegistryBase(LPCTSTR lpszSectionName)
{
    m_sectionForNow = m_registryBase;
    m_registryBase = lpszSectionName != nullptr ? lpszSectionName : default_base;
    return m_sectionForNow;
}

LPCTSTR CWinAppEx::GetRegistryBase()
{
    return m_registryBase;
}

CString CWinAppEx::GetRegSectionPath(LPCTSTR szSectionAdd)
{
    CString path = m_registryBase;
    if (szSectionAdd != nullptr && *szSectionAdd != L'\0')
    {
        if (!path.IsEmpty() && path.Right(1) != L"\\")
            path += L"\\";
        path += szSectionAdd;
    }
    return path;
}

// Values

int CWinAppEx::GetInt(LPCTSTR lpszEntry, int nDefault)
{
    return static_cast<int>(GetProfileInt(GetRegSectionPath(), lpszEntry, nDefault));
}

CString CWinAppEx::GetString(LPCTSTR lpszEntry, LPCTSTR lpzDefault)
{
    return GetProfileString(GetRegSectionPath(), lpszEntry, lpzDefault);
}

BOOL CWinAppEx::GetBinary(LPCTSTR lpszEntry, LPBYTE * ppData, UINT * pBytes)
{
    return GetProfileBinary(GetRegSectionPath(), lpszEntry, ppData, pBytes);
}

BOOL CWinAppEx::WriteInt(LPCTSTR lpszEntry, int nValue)
{
    return WriteProfileInt(GetRegSectionPath(), lpszEntry, nValue);
}

BOOL CWinAppEx::WriteString(LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    return WriteProfileString(GetRegSectionPath(), lpszEntry, lpszValue);
}

BOOL CWinAppEx::WriteBinary(LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    return WriteProfileBinary(GetRegSectionPath(), lpszEntry, pData, nBytes);
}

int CWinAppEx::GetSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nDefault)
{
    return static_cast<int>(GetProfileInt(GetRegSectionPath(lpszSubSection), lpszEntry, nDefault));
}

CString CWinAppEx::GetSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    return GetProfileString(GetRegSectionPath(lpszSubSection), lpszEntry, lpszDefault);
}

BOOL CWinAppEx::GetSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE * ppData, UINT * pBytes)
{
    return GetProfileBinary(GetRegSectionPath(lpszSubSection), lpszEntry, ppData, pBytes);
}

BOOL CWinAppEx::WriteSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nValue)
{
    return WriteProfileInt(GetRegSectionPath(lpszSubSection), lpszEntry, nValue);
}

BOOL CWinAppEx::WriteSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    return WriteProfileString(GetRegSectionPath(lpszSubSection), lpszEntry, lpszValue);
}

BOOL CWinAppEx::WriteSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    return WriteProfileBinary(GetRegSectionPath(lpszSubSection), lpszEntry, pData, nBytes);
}

int CWinAppEx::GetDataVersion() const
{
    return data_version;
}

int CWinAppEx::GetDataVersionMajor() const
{
    return data_version >> 16;
}

int CWinAppEx::GetDataVersionMinor() const
{
    return data_version & 0xFFFF;
}

// The workspace

void CWinAppEx::PreLoadState() {}

void CWinAppEx::LoadCustomState() {}

void CWinAppEx::PreSaveState() {}

void CWinAppEx::SaveCustomState() {}

BOOL CWinAppEx::IsStateExists(LPCTSTR lpszSectionName)
{
    if (m_pszRegistryKey == nullptr)
        return FALSE;
    HKEY const root = GetAppRegistryKey();
    HKEY key = nullptr;
    bool const exists = root != nullptr && ::RegOpenKeyEx(root, lpszSectionName, 0, KEY_READ, &key) == ERROR_SUCCESS;
    if (key != nullptr)
        ::RegCloseKey(key);
    if (root != nullptr)
        ::RegCloseKey(root);
    return exists;
}

BOOL CWinAppEx::CleanState(LPCTSTR lpszSectionName)
{
    SectionForNow const section(m_registryBase, lpszSectionName);
    return WriteProfileString(GetRegSectionPath(), nullptr, nullptr);
}

BOOL CWinAppEx::LoadState(CMDIFrameWndEx * pFrame, LPCTSTR lpszSectionName)
{
    ASSERT(pFrame != nullptr);
    return LoadState(lpszSectionName, &pFrame->m_impl);
}

BOOL CWinAppEx::LoadState(CFrameWndEx * pFrame, LPCTSTR lpszSectionName)
{
    ASSERT(pFrame != nullptr);
    return LoadState(lpszSectionName, &pFrame->m_impl);
}

BOOL CWinAppEx::LoadState(LPCTSTR lpszSectionName, CFrameImpl * pFrameImpl)
{
    SectionForNow const section(m_registryBase, lpszSectionName);
    CFrameWnd * const frame = pFrameImpl != nullptr ? pFrameImpl->m_frame : nullptr;
    WindowGuard const guard(frame);
    PreLoadState();
    bool loaded = false;
    // Another version's workspace means nothing here.
    if (GetInt(version_entry, 0) >> 16 == GetDataVersionMajor())
    {
        if (frame != nullptr && guard.Alive() && m_loadPlacement)
            ReloadWindowPlacement(frame);
        if (guard.Alive() && pFrameImpl->m_loadDockState && pFrameImpl->Manager().Create(frame))
            loaded = pFrameImpl->Manager().LoadState(GetRegSectionPath()) != FALSE;
    }
    LoadCustomState();
    return loaded;
}

BOOL CWinAppEx::SaveState(CMDIFrameWndEx * pFrame, LPCTSTR lpszSectionName)
{
    ASSERT(pFrame != nullptr);
    return SaveState(lpszSectionName, &pFrame->m_impl);
}

BOOL CWinAppEx::SaveState(CFrameWndEx * pFrame, LPCTSTR lpszSectionName)
{
    ASSERT(pFrame != nullptr);
    return SaveState(lpszSectionName, &pFrame->m_impl);
}

BOOL CWinAppEx::SaveState(LPCTSTR lpszSectionName, CFrameImpl * pFrameImpl)
{
    SectionForNow const section(m_registryBase, lpszSectionName);
    CFrameWnd * const frame = pFrameImpl != nullptr ? pFrameImpl->m_frame : nullptr;
    WindowGuard const guard(frame);
    PreSaveState();
    bool saved = true;
    if (frame != nullptr && guard.Alive())
    {
        WINDOWPLACEMENT placement{};
        placement.length = sizeof placement;
        if (m_loadPlacement && frame->GetWindowPlacement(&placement))
        {
            saved = StoreWindowPlacement(placement.rcNormalPosition, static_cast<int>(placement.flags),
                                         static_cast<int>(placement.showCmd)) != FALSE;
        }
        if (guard.Alive() && pFrameImpl->Host() != nullptr)
            saved = pFrameImpl->Manager().SaveState(GetRegSectionPath()) && saved;
    }
    saved = WriteInt(version_entry, GetDataVersion()) && saved;
    SaveCustomState();
    return saved;
}

void CWinAppEx::OnClosingMainFrame(CFrameImpl * pFrameImpl)
{
    SaveState(nullptr, pFrameImpl);
}

// The main frame's place

void CWinAppEx::EnableLoadWindowPlacement(BOOL bEnable)
{
    m_loadPlacement = bEnable != FALSE;
}

BOOL CWinAppEx::StoreWindowPlacement(const CRect & rectNormalPosition, int nFlags, int nShowCmd)
{
    Placement placement{rectNormalPosition, nFlags, nShowCmd, 0};
    placement.sum = placement.Sum();
    return WriteBinary(placement_entry, reinterpret_cast<BYTE *>(&placement), sizeof placement);
}

BOOL CWinAppEx::LoadWindowPlacement(CRect & rectNormalPosition, int & nFlags, int & nShowCmd)
{
    BYTE * data = nullptr;
    UINT size = 0;
    if (!GetBinary(placement_entry, &data, &size))
        return FALSE;
    Placement placement{};
    if (size == sizeof placement)
        std::copy_n(data, sizeof placement, reinterpret_cast<BYTE *>(&placement));
    delete[] data;
    if (size != sizeof placement || placement.sum != placement.Sum())
        return FALSE;
    rectNormalPosition = placement.rect;
    nFlags = placement.flags;
    nShowCmd = placement.show;
    return TRUE;
}

BOOL CWinAppEx::ReloadWindowPlacement(CFrameWnd * pFrame)
{
    ASSERT(pFrame != nullptr);
    CRect rect;
    int flags = 0;
    int show = 0;
    if (!LoadWindowPlacement(rect, flags, show) || rect.Width() <= 0 || rect.Height() <= 0 ||
        ::MonitorFromRect(&rect, MONITOR_DEFAULTTONULL) == nullptr)
        return FALSE;
    // A frame that was closed as an icon comes back as a window; whether it is shown is the program's.
    bool const maximized = show == SW_SHOWMAXIMIZED || (flags & WPF_RESTORETOMAXIMIZED) != 0;
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (!pFrame->GetWindowPlacement(&placement))
        return FALSE;
    placement.rcNormalPosition = rect;
    placement.showCmd = pFrame->IsWindowVisible() ? (maximized ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL) : SW_HIDE;
    if (maximized && m_nCmdShow != SW_SHOWMINIMIZED)
        m_nCmdShow = SW_SHOWMAXIMIZED;
    return pFrame->SetWindowPlacement(&placement);
}
