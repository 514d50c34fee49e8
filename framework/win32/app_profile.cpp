// CWinApp: settings in the registry or in an .INI file, and the command line.

#include <cstdlib>
#include <vector>

#include "detail/ThreadState.h"

namespace
{
constexpr int profile_text_size = 4096;

/// A registry key that is closed at the end.
class Key
{
public:
    explicit Key(HKEY key) : m_key(key) {}
    Key(Key const &) = delete;
    Key & operator=(Key const &) = delete;
    ~Key()
    {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }
    HKEY Get() const { return m_key; }
    explicit operator bool() const { return m_key != nullptr; }
    HKEY Release() { return std::exchange(m_key, nullptr); }

private:
    HKEY m_key;
};

HKEY CreateKey(HKEY parent, LPCTSTR name)
{
    HKEY key = nullptr;
    if (parent == nullptr || ::RegCreateKeyEx(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                                              nullptr, &key, nullptr) != ERROR_SUCCESS)
        return nullptr;
    return key;
}

/// The whole value, if it has the type and at least one byte.
bool ReadValue(HKEY key, LPCTSTR name, DWORD wanted, std::vector<BYTE> & bytes)
{
    DWORD type = 0;
    DWORD size = 0;
    if (::RegQueryValueEx(key, name, nullptr, &type, nullptr, &size) != ERROR_SUCCESS || type != wanted)
        return false;
    bytes.resize(size);
    return ::RegQueryValueEx(key, name, nullptr, &type, bytes.data(), &size) == ERROR_SUCCESS;
}

void ReplaceText(LPCTSTR & target, LPCTSTR text)
{
    std::free(const_cast<LPTSTR>(target));
    target = text != nullptr ? _tcsdup(text) : nullptr;
}
} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey)
{
    ASSERT(m_pszRegistryKey == nullptr);
    ASSERT(lpszRegistryKey != nullptr);
    ReplaceText(m_pszRegistryKey, lpszRegistryKey);
    ReplaceText(m_pszProfileName, m_pszAppName); // the application's key, no longer a file
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey)
{
    CString company;
    if (!company.LoadString(nIDRegistryKey))
        AfxThrowResourceException();
    SetRegistryKey(company);
}

HKEY CWinApp::GetAppRegistryKey()
{
    ASSERT(m_pszRegistryKey != nullptr && m_pszProfileName != nullptr);
    Key const software(CreateKey(HKEY_CURRENT_USER, L"software"));
    Key const company(CreateKey(software.Get(), m_pszRegistryKey));
    return CreateKey(company.Get(), m_pszProfileName);
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection)
{
    ASSERT(lpszSection != nullptr);
    Key const app(GetAppRegistryKey());
    return CreateKey(app.Get(), lpszSection);
}

LONG CWinApp::DelRegTree(HKEY hParentKey, const CString & strKeyName)
{
    return ::RegDeleteTree(hParentKey, strKeyName);
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault)
{
    if (m_pszRegistryKey == nullptr)
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    Key const section(GetSectionKey(lpszSection));
    DWORD value = 0;
    DWORD size = sizeof value;
    DWORD type = 0;
    if (!section ||
        ::RegQueryValueEx(section.Get(), lpszEntry, nullptr, &type, reinterpret_cast<BYTE *>(&value), &size) !=
            ERROR_SUCCESS ||
        type != REG_DWORD)
        return static_cast<UINT>(nDefault);
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue)
{
    if (m_pszRegistryKey == nullptr)
    {
        CString text;
        text.Format(L"%d", nValue);
        return ::WritePrivateProfileString(lpszSection, lpszEntry, text, m_pszProfileName);
    }
    Key const section(GetSectionKey(lpszSection));
    return section && ::RegSetValueEx(section.Get(), lpszEntry, 0, REG_DWORD, reinterpret_cast<BYTE *>(&nValue),
                                      sizeof nValue) == ERROR_SUCCESS;
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    LPCTSTR const fallback = lpszDefault != nullptr ? lpszDefault : L"";
    if (m_pszRegistryKey == nullptr)
    {
        wchar_t text[profile_text_size] = {};
        ::GetPrivateProfileString(lpszSection, lpszEntry, fallback, text, profile_text_size, m_pszProfileName);
        return text;
    }
    Key const section(GetSectionKey(lpszSection));
    std::vector<BYTE> bytes;
    if (!section || !ReadValue(section.Get(), lpszEntry, REG_SZ, bytes))
        return fallback;
    bytes.resize(bytes.size() + sizeof(wchar_t)); // a value need not have its end mark
    return reinterpret_cast<wchar_t const *>(bytes.data());
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    if (m_pszRegistryKey == nullptr)
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    // Without an entry the section goes, without a value the entry.
    if (lpszEntry == nullptr)
    {
        Key const app(GetAppRegistryKey());
        return app && ::RegDeleteTree(app.Get(), lpszSection) == ERROR_SUCCESS;
    }
    Key const section(GetSectionKey(lpszSection));
    if (!section)
        return FALSE;
    if (lpszValue == nullptr)
        return ::RegDeleteValue(section.Get(), lpszEntry) == ERROR_SUCCESS;
    auto const size = static_cast<DWORD>((::lstrlen(lpszValue) + 1) * sizeof(wchar_t));
    return ::RegSetValueEx(section.Get(), lpszEntry, 0, REG_SZ, reinterpret_cast<BYTE const *>(lpszValue), size) ==
           ERROR_SUCCESS;
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE * ppData, UINT * pBytes)
{
    ASSERT(ppData != nullptr && pBytes != nullptr);
    *ppData = nullptr;
    *pBytes = 0;
    if (m_pszRegistryKey != nullptr)
    {
        Key const section(GetSectionKey(lpszSection));
        std::vector<BYTE> bytes;
        if (!section || !ReadValue(section.Get(), lpszEntry, REG_BINARY, bytes))
            return FALSE;
        *ppData = new BYTE[bytes.size()];
        *pBytes = static_cast<UINT>(bytes.size());
        std::copy(bytes.begin(), bytes.end(), *ppData);
        return TRUE;
    }
    // In a file each byte is two letters from A to P, the low half first.
    CString const text = GetProfileString(lpszSection, lpszEntry);
    if (text.IsEmpty())
        return FALSE;
    int const count = text.GetLength() / 2;
    *ppData = new BYTE[static_cast<size_t>(count)];
    *pBytes = static_cast<UINT>(count);
    for (int byte = 0; byte < count; ++byte)
        (*ppData)[byte] = static_cast<BYTE>((text[2 * byte] - L'A') | ((text[2 * byte + 1] - L'A') << 4));
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    if (m_pszRegistryKey != nullptr)
    {
        Key const section(GetSectionKey(lpszSection));
        return section && ::RegSetValueEx(section.Get(), lpszEntry, 0, REG_BINARY, pData, nBytes) == ERROR_SUCCESS;
    }
    CString text;
    for (UINT byte = 0; byte < nBytes; ++byte)
    {
        text += static_cast<wchar_t>(L'A' + (pData[byte] & 0x0F));
        text += static_cast<wchar_t>(L'A' + (pData[byte] >> 4));
    }
    return WriteProfileString(lpszSection, lpszEntry, text);
}

void CWinApp::ParseCommandLine(CCommandLineInfo & rCmdInfo)
{
    int count = 0;
    LPWSTR * const arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (arguments == nullptr)
        return;
    for (int index = 1; index < count; ++index)
    {
        LPCTSTR parameter = arguments[index];
        BOOL const flag = *parameter == L'-' || *parameter == L'/';
        if (flag)
            ++parameter;
        rCmdInfo.ParseParam(parameter, flag, index + 1 == count);
    }
    ::LocalFree(arguments);
}

CCommandLineInfo::CCommandLineInfo()
    : m_bShowSplash(TRUE),
      m_bRunEmbedded(FALSE),
      m_bRunAutomated(FALSE),
      m_nShellCommand(FileNew)
{
}

CCommandLineInfo::~CCommandLineInfo() = default;

void CCommandLineInfo::ParseParam(const TCHAR * pszParam, BOOL bFlag, BOOL bLast)
{
    if (bFlag)
        ParseFlag(pszParam);
    else
        ParseValue(pszParam);
    if (bLast)
        ParseLast();
}

void CCommandLineInfo::ParseParam(const char * pszParam, BOOL bFlag, BOOL bLast)
{
    ParseParam(CString(pszParam).GetString(), bFlag, bLast);
}

void CCommandLineInfo::ParseFlag(LPCTSTR flag)
{
    CString const name(flag);
    auto const is = [&name](LPCTSTR other) { return name.CompareNoCase(other) == 0; };
    // The shell's verbs are written exactly so; the others in any case.
    if (name == L"pt")
        m_nShellCommand = FilePrintTo;
    else if (name == L"p")
        m_nShellCommand = FilePrint;
    else if (is(L"Register") || is(L"Regserver") || is(L"RegisterPerUser") || is(L"RegserverPerUser"))
        m_nShellCommand = AppRegister;
    else if (is(L"Unregister") || is(L"Unregserver") || is(L"UnregisterPerUser") || is(L"UnregserverPerUser"))
        m_nShellCommand = AppUnregister;
    else if (name == L"dde")
        m_nShellCommand = FileDDE;
    else if (is(L"Embedding"))
    {
        m_bRunEmbedded = TRUE;
        m_bShowSplash = FALSE;
    }
    else if (is(L"Automation"))
    {
        m_bRunAutomated = TRUE;
        m_bShowSplash = FALSE;
    }
    else if (name.Left(8).CompareNoCase(L"restart:") == 0)
    {
        m_nShellCommand = RestartByRestartManager;
        m_strRestartIdentifier = name.Mid(8);
    }
}

void CCommandLineInfo::ParseValue(LPCTSTR value)
{
    if (m_strFileName.IsEmpty())
        m_strFileName = value;
    else if (m_nShellCommand != FilePrintTo)
        return;
    else if (m_strPrinterName.IsEmpty())
        m_strPrinterName = value;
    else if (m_strDriverName.IsEmpty())
        m_strDriverName = value;
    else if (m_strPortName.IsEmpty())
        m_strPortName = value;
}

void CCommandLineInfo::ParseLast()
{
    if (m_nShellCommand == FileNew && !m_strFileName.IsEmpty())
        m_nShellCommand = FileOpen;
    m_bShowSplash = m_bShowSplash && !m_bRunEmbedded && !m_bRunAutomated;
}
